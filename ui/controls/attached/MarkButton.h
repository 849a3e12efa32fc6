// A line of amber text under a field, with an icon before it, that can be pressed.
// Thread: the main thread. Knows nothing of what it marks.
#pragma once

#include "ui/controls/Buttons.h"

namespace Quorbel {

/// 19 points high; what is too long for its width ends in "…" and is told by the tooltip.
class MarkButton final : public ThemedButton {
    Q_OBJECT

public:
    explicit MarkButton(const QString& icon, QWidget* parent = nullptr);
    /// Points from its left edge to the icon.
    static constexpr qreal sidePadding = 6;
    /// Has its ground while what it opened is open.
    void setOpen(bool open);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QRect textRect() const;

    QString m_icon;
    bool m_open = false;
};

}  // namespace Quorbel
