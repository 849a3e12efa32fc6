#include "ui/controls/theme/FocusRing.h"

#include "ui/controls/theme/AnimatedValue.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"

#include <QAbstractScrollArea>
#include <QEvent>
#include <QFocusEvent>
#include <QPainter>
#include <QPointer>

namespace Quorbel {

namespace {

// The widget that the ring is a child of: the nearest that scrolls as a whole, or the window. Anything between may
// clip the control without clipping its ring.
QWidget* ringHost(QWidget* control)
{
    QWidget* host = control->parentWidget();
    while (host && !host->isWindow()) {
        const QWidget* viewport = host->parentWidget();
        const auto* area = viewport ? qobject_cast<QAbstractScrollArea*>(viewport->parentWidget()) : nullptr;
        if (area && area->viewport() == viewport)
            return host;
        host = host->parentWidget();
    }
    return host;
}

bool cameByKeyboard(Qt::FocusReason reason)
{
    return reason != Qt::MouseFocusReason && reason != Qt::PopupFocusReason;
}

// The ring itself, and the watch over the control and everything between it and the host.
class FocusRing final : public QWidget {
public:
    FocusRing(QWidget* control, QWidget* host, const FocusRingOptions& options)
        : QWidget(host)
        , m_control(control)
        , m_options(options)
        , m_opacity(this, Duration::marking, QEasingCurve::OutCubic)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        for (QWidget* w = control; w && w != host; w = w->parentWidget())
            w->installEventFilter(this);
        follow();
        m_opacity.moveTo(1);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::ZOrderChange:
            follow();
            break;
        case QEvent::Paint:
            // The control repaints when its edited state changes: so must the ring. Only then: the ring lies over the
            // control's edge, and its repaint is another one of the control.
            if (watched == m_control && isAmber() != m_paintedAmber)
                update();
            break;
        default:
            break;
        }
        return QWidget::eventFilter(watched, event);
    }

    void paintEvent(QPaintEvent*) override
    {
        if (!m_control)
            return;
        const Theme& theme = Theme::of(m_control);
        DirectedPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(m_opacity.value());
        m_paintedAmber = isAmber();
        if (m_options.shape == RingShape::field) {
            stroke(painter, 0, HighContrast::isOn(theme) ? 3 : 2,
                m_paintedAmber ? theme.derived.ringAmber : theme.derived.ring);
            return;
        }
        const qreal gap = m_options.shape == RingShape::button ? 1.5 : 0;
        stroke(painter, gap, HighContrast::isOn(theme) ? 2.5 : 2, theme.focus);
        stroke(painter, gap, .75, theme.derived.focusStrong);
    }

private:
    static constexpr int margin = 4;  // device-independent pixels around the control

    bool isAmber() const { return m_options.amber && m_options.amber(); }

    void follow()
    {
        // Moved into another window or area: that one's ring comes with the next focus.
        if (!m_control || !parentWidget() || !parentWidget()->isAncestorOf(m_control))
            return hide();
        const QRect box = m_options.box ? m_options.box().toAlignedRect() : m_control->rect();
        const QPoint topLeft = m_control->mapTo(parentWidget(), box.topLeft());
        setGeometry(QRect(topLeft, box.size()).adjusted(-margin, -margin, margin, margin));
        // Only the rim belongs to the ring: what changes inside the control is no concern of it.
        const int rim = margin + 2 + int(pxF(m_options.radius) / 2);
        setMask(QRegion(rect()) - QRegion(rect().adjusted(rim, rim, -rim, -rim)));
        setVisible(m_control->isVisibleTo(parentWidget()));
        raise();
        update();
    }

    // A line of this width whose inner edge lies `distance` outside the control.
    void stroke(QPainter& painter, qreal distance, qreal width, const QColor& color)
    {
        const qreal outset = distance + width / 2;
        const QRectF rect = QRectF(this->rect()).adjusted(margin, margin, -margin, -margin);
        painter.setPen(QPen(color, width));
        painter.setBrush(Qt::NoBrush);
        const qreal radius = pxF(m_options.radius) + outset;
        painter.drawRoundedRect(rect.adjusted(-outset, -outset, outset, outset), radius, radius);
    }

    QPointer<QWidget> m_control;
    FocusRingOptions m_options;
    bool m_paintedAmber = false;
    AnimatedValue m_opacity;
};

// Makes and removes the ring as the focus comes and goes.
class FocusWatch final : public QObject {
public:
    FocusWatch(QWidget* control, FocusRingOptions options)
        : QObject(control)
        , m_control(control)
        , m_options(std::move(options))
    {
        control->installEventFilter(this);
    }

    ~FocusWatch() override { delete m_ring.data(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::FocusIn) {
            const auto reason = static_cast<QFocusEvent*>(event)->reason();
            if (m_options.shape == RingShape::field || cameByKeyboard(reason))
                showRing();
        } else if (event->type() == QEvent::FocusOut) {
            // A menu that the control opened has the focus for a while, the ring stays with the control.
            if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
                delete m_ring.data();
        } else if (event->type() == QEvent::KeyPress && static_cast<QWidget*>(watched)->hasFocus()) {
            showRing();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void showRing()
    {
        QWidget* host = m_ring ? nullptr : ringHost(m_control);
        if (host)
            m_ring = new FocusRing(m_control, host, m_options);
    }

    QWidget* m_control;
    FocusRingOptions m_options;
    QPointer<QWidget> m_ring;
};

}  // namespace

QObject* installFocusRing(QWidget* control, FocusRingOptions options)
{
    return new FocusWatch(control, std::move(options));
}

}  // namespace Quorbel
