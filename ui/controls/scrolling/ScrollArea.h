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
    /// Something is laid over this many pixels at the lower end.
    void setCovered(int pixels) { m_covered = pixels; }
    /// Scrolls as little as it takes to have all of a part of the content on screen, with so much free around it as
    /// there is room for; a part that is higher than the room has its top there. All in pixels.
    void reveal(const QRect& part, int around);
    /// All of a widget in the content, with a little around it.
    void reveal(const QWidget& widget);
    /// The innermost one that a widget scrolls in; null where it is in none.
    static ScrollArea* around(const QWidget& widget);

protected:
    bool event(QEvent* event) override;

private:
    bool m_framed = false;
    int m_covered = 0;
};

}  // namespace Quorbel
