// A text to be read, of which parts can be selected and copied.
// Thread: the main thread.
#pragma once

#include <QPlainTextEdit>

namespace Quorbel {

/// Plain text that wraps, without a frame or a ground, selected by mouse and keyboard; scrolls where it is higher than
/// the room that it is given. Tab leaves it.
class SelectableText final : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit SelectableText(QWidget* parent = nullptr);
    /// The height that shows the text in this width, but of `mostLines` lines at most. The scroll bar's room is a part
    /// of the width.
    int heightFor(int width, int mostLines) const;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
};

}  // namespace Quorbel
