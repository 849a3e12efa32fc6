// A small window in the look of a menu that drops down from something in the window: the frame, where it goes, and how
// it closes. What is in it, the classes derived from it know.
// Thread: the main thread.
#pragma once

#include <QWidget>

namespace Quorbel {

/// Escape, a click outside and a change of the window close it; it deletes itself then. The keyboard goes back to where
/// it was.
class Popover : public QWidget {
    Q_OBJECT

public:
    /// The theme is that of the opener. A press on the opener that closes this does not open it again.
    explicit Popover(QWidget* opener);
    /// Opens under `anchor` (global), or over it where there is more room, this many pixels wide; is no higher than the
    /// room there.
    void open(const QRect& anchor, int width);
    /// Without the room for the shadow.
    QRect box() const;

signals:
    void closed();

protected:
    /// The height that all of the content takes in a box of this width, the box's edges included.
    virtual int heightIn(int width) = 0;
    /// Whether it stays inside the opener's window; else inside the screen, as a menu does.
    virtual bool staysInWindow() const { return true; }
    /// Lays the content out in the box.
    virtual void arrange(const QRect& box) = 0;
    /// Finds the place anew, after the content changed; with `sameSide` not on the other side of the anchor.
    void place(bool sameSide = false);
    bool isBelow() const { return m_isBelow; }

    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* m_opener;
    QRect m_anchor;
    int m_width = 0;
    bool m_isBelow = true;  ///< the anchor
};

}  // namespace Quorbel
