// What scrolls up and down in our own look. Thread: the main thread.
#pragma once

#include <QScrollArea>

namespace Quorbel {

/// A QScrollArea under an OverlayScrollBar, without a frame or a ground of its own: what lies behind it shows.
class ScrollArea : public QScrollArea {
    Q_OBJECT

public:
    explicit ScrollArea(QWidget* parent = nullptr);
    /// QScrollArea's setWidget(); the content takes the area's width and has no ground of its own either.
    void setContent(QWidget* content);
    /// Draws ground and border of a field around what scrolls.
    void setFramed(bool on);

protected:
    bool event(QEvent* event) override;

private:
    bool m_framed = false;
};

}  // namespace Quorbel
