#include "ui/controls/TargetRoom.h"

#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QSet>
#include <QWidget>

#include <algorithm>

namespace Quorbel {

namespace {

// The room of a control, in its own coordinates.
QRect roomOf(const QWidget* control)
{
    const int across = qMax(0, leastTarget - control->width() + 1) / 2;
    const int along = qMax(0, leastTarget - control->height() + 1) / 2;
    return control->rect().adjusted(-across, -along, across, along);
}

// What may lie in the room of a control without being meant by a press: what the control is in, and texts.
bool isGround(const QWidget* under, const QWidget* control)
{
    return under != control && (under->isAncestorOf(control) || qobject_cast<const QLabel*>(under));
}

// Sees each press before what it hits does, and all that follows of it until the button is let go.
class TargetRooms final : public QObject {
public:
    TargetRooms()
        : QObject(qApp)
    {
        qApp->installEventFilter(this);
    }

    void add(QWidget* control)
    {
        m_controls.insert(control);
        connect(control, &QObject::destroyed, this, [this, control] { m_controls.remove(control); });
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return watched->isWidgetType() && press(static_cast<QWidget*>(watched), *static_cast<QMouseEvent*>(event));
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
            return follow(watched, *static_cast<QMouseEvent*>(event));
        default:
            return false;
        }
    }

private:
    bool press(QWidget* under, const QMouseEvent& event)
    {
        if (m_isPassing)
            return false;
        m_pressed.clear();
        if (event.button() != Qt::LeftButton)
            return false;
        const QPoint at = under->mapTo(under->window(), event.position().toPoint());
        QWidget* found = nullptr;
        int nearest = 2 * leastTarget;
        for (QWidget* control : std::as_const(m_controls)) {
            if (control->window() != under->window() || !control->isVisible() || !control->isEnabled()
                || !isGround(under, control))
                continue;
            const QPoint inside = control->mapFrom(control->window(), at);
            const int distance = (inside - control->rect().center()).manhattanLength();
            if (roomOf(control).contains(inside) && distance < nearest) {
                nearest = distance;
                found = control;
            }
        }
        if (!found)
            return false;
        m_pressed = found;
        m_under = under;
        pass(event);
        return true;
    }

    bool follow(QObject* watched, const QMouseEvent& event)
    {
        if (m_isPassing || !m_pressed || watched != m_under)
            return false;
        pass(event);
        if (event.type() == QEvent::MouseButtonRelease)
            m_pressed.clear();
        return true;
    }

    // A place in the room counts as one at the edge of the control: it is no place outside.
    void pass(const QMouseEvent& event)
    {
        QPoint at =
            m_pressed->mapFrom(m_pressed->window(), m_under->mapTo(m_under->window(), event.position().toPoint()));
        if (roomOf(m_pressed).contains(at)) {
            at.setX(std::clamp(at.x(), 0, m_pressed->width() - 1));
            at.setY(std::clamp(at.y(), 0, m_pressed->height() - 1));
        }
        QMouseEvent copy(
            event.type(), at, m_pressed->mapToGlobal(at), event.button(), event.buttons(), event.modifiers());
        m_isPassing = true;
        QCoreApplication::sendEvent(m_pressed, &copy);
        m_isPassing = false;
    }

    QSet<QWidget*> m_controls;
    QPointer<QWidget> m_pressed;
    QPointer<QWidget> m_under;
    bool m_isPassing = false;
};

}  // namespace

void giveTargetRoom(QWidget* control)
{
    static QPointer<TargetRooms> rooms;
    if (!rooms)
        rooms = new TargetRooms;
    rooms->add(control);
}

}  // namespace Quorbel
