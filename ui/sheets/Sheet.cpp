#include "ui/sheets/Sheet.h"

#include "ui/controls/Accessibility.h"
#include "ui/controls/scrolling/ScrollArea.h"
#include "ui/controls/theme/AnimatedValue.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Shadow.h"
#include "ui/controls/theme/Theme.h"
#include "ui/sheets/SheetParts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGraphicsOpacityEffect>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

namespace Quorbel {

namespace {

constexpr qreal cornerRadius = 12;  // points, as all below
constexpr qreal titleHeight = 46;
constexpr qreal rise = 8;  // how far a sheet moves up while it fades in
constexpr qreal windowMargin = 12;

}  // namespace

SheetBody::SheetBody(QWidget* parent)
    : QWidget(parent)
{
}

void SheetBody::setWantedWidth(int width)
{
    m_wantedWidth = width;
    setFixedWidth(width);
}

// A body with its title bar, ground and keys.
class SheetFrame final : public QWidget {
    Q_OBJECT

public:
    SheetFrame(SheetBody* body, QWidget* parent)
        : QWidget(parent)
        , m_body(body)
        , m_shown(this, Duration::sheetIn, QEasingCurve::OutCubic, [this] { showStep(); })
    {
        auto* column = new QVBoxLayout(this);
        column->setSpacing(0);
        column->addWidget(body);
        body->installEventFilter(this);
        onRestyle(this, [this, column] { column->setContentsMargins(0, hasTitle() ? px(titleHeight) : 0, 0, 0); });
        describeAs(staticMetaObject, QAccessible::Dialog);
        setAccessibleName(hasTitle() ? body->title() : body->accessibleName());
        setAccessibleDescription(body->accessibleDescription());
        setFocusPolicy(Qt::NoFocus);
    }

    SheetBody* body() const { return m_body; }

    // Fades and moves the sheet in.
    void fadeIn()
    {
        setGraphicsEffect(new QGraphicsOpacityEffect(this));
        m_shown.moveTo(1, [this] { setGraphicsEffect(nullptr); });
    }

    qreal shown() const { return m_shown.value(); }

    void reveal(QWidget* focus)
    {
        if (m_scroll)
            m_scroll->ensureWidgetVisible(focus, 0, px(sheetPadding) / 2);
    }

    // Centred in the host. In a low one the body gives way as far as it can, and then scrolls.
    void place()
    {
        const QWidget* host = parentWidget();
        const int margin = px(windowMargin);
        const int room = host->height() - 2 * margin;
        if (const int wanted = m_body->wantedWidth(); wanted > 0)
            m_body->setFixedWidth(qMin(wanted, host->width() - 2 * margin));
        setScrolled(leastHeight() > room);
        const QSize size = m_scroll ? QSize(bodyWidth(), room) : sizeHint().expandedTo(minimumSizeHint());
        const int y = qMax(margin, (host->height() - size.height()) / 2);
        setGeometry(qMax(0, (host->width() - size.width()) / 2), y + qRound((1 - shown()) * px(rise)), size.width(),
            qMin(size.height(), host->height() - 2 * margin));
    }

    // The next or previous thing inside the sheet that takes Tab, going round; the sheet itself when nothing does.
    QWidget* nextStop(bool next)
    {
        QWidget* start = QApplication::focusWidget();
        if (!start || !isAncestorOf(start))
            start = this;
        for (QWidget* w = next ? start->nextInFocusChain() : start->previousInFocusChain(); w && w != start;
             w = next ? w->nextInFocusChain() : w->previousInFocusChain())
            if (isAncestorOf(w) && takesTab(w))
                return w;
        return start;
    }

    bool focusNextPrevChild(bool next) override
    {
        nextStop(next)->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::LayoutRequest)
            place();
        return QWidget::event(event);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::LayoutRequest && m_scroll)
            place();
        return QWidget::eventFilter(watched, event);
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Escape) {
            m_body->cancel();
        } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            auto* button = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
            if (button && isAncestorOf(button) && !button->isCheckable())
                button->click();
            else
                m_body->confirm();
        }
        event->accept();  // no key reaches the window behind
    }

    void mousePressEvent(QMouseEvent* event) override { event->accept(); }

    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = Theme::of(this);
        DirectedPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF ground(rect());
        QPainterPath shape;
        shape.addRoundedRect(ground, pxF(cornerRadius), pxF(cornerRadius));
        painter.fillPath(shape, theme.panel);
        if (hasTitle())
            paintTitle(painter, shape, theme);
        painter.setPen(theme.line);
        painter.drawRoundedRect(ground.adjusted(.5, .5, -.5, -.5), pxF(cornerRadius), pxF(cornerRadius));
    }

private:
    bool hasTitle() const { return !m_body->title().isEmpty(); }

    static bool takesTab(const QWidget* widget)
    {
        return (widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() && widget->isEnabled();
    }

    void paintTitle(QPainter& painter, const QPainterPath& shape, const Theme& theme) const
    {
        const QRect bar(0, 0, width(), px(titleHeight));
        painter.save();
        painter.setClipPath(shape);
        painter.fillRect(bar, theme.titlebar);
        painter.fillRect(0, bar.height() - 1, width(), 1, theme.line);
        painter.restore();
        painter.setPen(theme.text);
        painter.setFont(sansFont(13, QFont::DemiBold));
        painter.drawText(bar.adjusted(px(sheetPadding), 0, -px(sheetPadding), -1), Qt::AlignVCenter | Qt::AlignLeft,
            m_body->title());
    }

    int bodyWidth() const { return qMax(m_body->minimumWidth(), m_body->minimumSizeHint().width()); }

    int leastHeight() const
    {
        const QLayout* body = m_body->layout();
        const bool wraps = body && body->hasHeightForWidth();
        const int height = wraps ? body->totalHeightForWidth(bodyWidth()) : m_body->minimumSizeHint().height();
        return layout()->contentsMargins().top() + height;
    }

    void setScrolled(bool scrolled)
    {
        if (scrolled == (m_scroll != nullptr))
            return;
        QWidget* focus = QApplication::focusWidget();
        if (!focus || !m_body->isAncestorOf(focus))
            focus = nullptr;
        if (scrolled) {
            layout()->removeWidget(m_body);
            m_scroll = new ScrollArea;
            m_scroll->setFocusPolicy(Qt::NoFocus);
            m_scroll->setContent(m_body);
            layout()->addWidget(m_scroll);
        } else {
            layout()->addWidget(m_scroll->takeWidget());
            std::exchange(m_scroll, nullptr)->deleteLater();
        }
        m_body->show();
        if (focus)
            focus->setFocus(Qt::OtherFocusReason);
    }

    void showStep()
    {
        if (auto* effect = static_cast<QGraphicsOpacityEffect*>(graphicsEffect()))
            effect->setOpacity(shown());
        place();
        parentWidget()->update();
    }

    SheetBody* m_body;
    ScrollArea* m_scroll = nullptr;  // while the body is higher than its room
    AnimatedValue m_shown;
};

SheetHost::SheetHost(QWidget* window)
    : QWidget(window)
    , m_leavingOpacity(this, Duration::sheetOut)
{
    hide();
    window->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* before, QWidget* now) {
        m_focusGivenUp = !now && before && before->window() == this->window() ? before : nullptr;
        keepFocusInside(now);
    });
}

SheetHost::~SheetHost() = default;

void SheetHost::present(SheetBody* body)
{
    const bool first = m_frames.isEmpty();
    if (first) {
        m_focusBefore = window()->focusWidget() ? window()->focusWidget() : m_focusGivenUp.data();
        setGeometry(parentWidget()->rect());
    }
    auto* frame = new SheetFrame(body, this);
    m_frames.append(frame);
    setAttribute(Qt::WA_TransparentForMouseEvents, false);
    show();
    raise();
    frame->show();
    frame->raise();
    frame->place();
    m_leaving = {};
    frame->fadeIn();
    focusTop();
    update();
    if (first)
        emit openChanged(true);
}

void SheetHost::dismiss(SheetBody* body)
{
    SheetFrame* frame = nullptr;
    for (SheetFrame* candidate : std::as_const(m_frames))
        if (body && candidate->body() == body)
            frame = candidate;
    if (!frame)
        return;
    m_frames.removeOne(frame);
    const bool last = m_frames.isEmpty();
    if (last && motionEnabled(this))
        fadeOut(frame);
    frame->hide();
    frame->deleteLater();
    update();
    if (!last) {
        focusTop();
        return;
    }
    if (m_leaving.picture.isNull())
        hide();
    if (m_focusBefore && m_focusBefore->isVisible() && m_focusBefore->isEnabled())
        m_focusBefore->setFocus(Qt::OtherFocusReason);
    emit openChanged(false);
}

// The sheet is gone at once for whoever asks; only its picture still fades, and lets everything through.
void SheetHost::fadeOut(SheetFrame* frame)
{
    m_leaving = { frame->grab(), frame->geometry() };
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_leavingOpacity.jumpTo(1);
    m_leavingOpacity.moveTo(0, [this] {
        m_leaving = {};
        if (m_frames.isEmpty())
            hide();
    });
}

SheetBody* SheetHost::current() const
{
    return m_frames.isEmpty() ? nullptr : m_frames.last()->body();
}

bool SheetHost::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize) {
        setGeometry(parentWidget()->rect());
        for (SheetFrame* frame : std::as_const(m_frames))
            frame->place();
    }
    return QWidget::eventFilter(watched, event);
}

void SheetHost::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    for (SheetFrame* frame : std::as_const(m_frames)) {
        painter.setOpacity(frame->shown());
        painter.fillRect(rect(), theme.derived.dim);
        paintShadow(painter, frame->geometry(), pxF(cornerRadius), Shadow::sheet, theme);
    }
    if (!m_leaving.picture.isNull()) {
        painter.setOpacity(m_leavingOpacity.value());
        painter.fillRect(rect(), theme.derived.dim);
        painter.drawPixmap(m_leaving.rect.topLeft(), m_leaving.picture);
    }
}

void SheetHost::focusTop()
{
    SheetFrame* frame = m_frames.last();
    for (SheetFrame* other : std::as_const(m_frames))
        other->setEnabled(other == frame);
    QWidget* initial = frame->body()->initialFocus();
    (initial ? initial : frame->nextStop(true))->setFocus(Qt::OtherFocusReason);
}

void SheetHost::keepFocusInside(QWidget* now)
{
    if (m_frames.isEmpty() || !now || now->window() != window())
        return;
    if (m_frames.last()->body()->isAncestorOf(now))
        m_frames.last()->reveal(now);
    else if (!isAncestorOf(now))
        focusTop();
}

}  // namespace Quorbel

#include "Sheet.moc"
