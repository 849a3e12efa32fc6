// Sheets: dialogs laid over the window they belong to. The window is dimmed behind them and takes no input.
// Thread: the main thread. Knows nothing of what a sheet is about: that is its body's matter.
#pragma once

#include "ui/controls/theme/AnimatedValue.h"

#include <QList>
#include <QPixmap>
#include <QPointer>
#include <QWidget>

namespace Quorbel {

/// The inside of a sheet: everything below its title bar, its padding (24 px) included. Its size hint is the
/// sheet's size; a body that changes it calls updateGeometry().
class SheetBody : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SheetBody)

public:
    explicit SheetBody(QWidget* parent = nullptr);

    /// Text of the 46 px bar over the body; without one there is no bar.
    virtual QString title() const { return {}; }
    /// Pixels; in a narrower window the sheet is as wide as that leaves room. 0: as wide as its contents.
    int wantedWidth() const { return m_wantedWidth; }
    void setWantedWidth(int width);
    /// What Return does, unless a button has the focus; bodies leave it without effect while their default button
    /// is disabled.
    virtual void confirm() = 0;
    /// What Escape does. The body, or the model behind it, then has the sheet dismissed.
    virtual void cancel() = 0;
    /// What has the focus when the sheet opens; the first in the tab order when null.
    virtual QWidget* initialFocus() { return nullptr; }

private:
    int m_wantedWidth = 0;
};

class SheetFrame;

/// Covers a window while it has sheets, the newest on top. Tab stays inside the top sheet; when the last one goes,
/// the focus returns to where it was, or to the field that gave it up for the sheet.
class SheetHost final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SheetHost)

public:
    /// Covers all of `window` and follows its size; invisible while there is no sheet.
    explicit SheetHost(QWidget* window);
    ~SheetHost() override;

    /// Opens a sheet and takes its body over.
    void present(SheetBody* body);
    /// Closes the sheet with this body and deletes it; another body changes nothing.
    void dismiss(SheetBody* body);
    /// The body on top; null while no sheet is open.
    SheetBody* current() const;

signals:
    /// The first sheet opened, or the last one closed.
    void openChanged(bool open);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// The picture of a sheet that was closed and still fades.
    struct Leaving {
        QPixmap picture{};
        QRect rect{};
    };

    void fadeOut(SheetFrame* frame);
    void focusTop();
    void keepFocusInside(QWidget* now);

    QList<SheetFrame*> m_frames;
    QPointer<QWidget> m_focusBefore;
    QPointer<QWidget> m_focusGivenUp;  ///< by a field that was made to commit its text before a sheet asks
    Leaving m_leaving{};
    AnimatedValue m_leavingOpacity;
};

}  // namespace Quorbel
