#include "ui/sidebar/PassingNote.h"

#include "ui/controls/Accessibility.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QEvent>
#include <QPainter>

namespace Quorbel {

namespace {

constexpr int shownFor = 3000;  // milliseconds
// Points.
constexpr qreal high = 26;
constexpr qreal side = 10;
constexpr qreal aboveEdge = 12;

}  // namespace

PassingNote::PassingNote(QWidget* over)
    : QWidget(over)
{
    describeAs(staticMetaObject, QAccessible::AlertMessage);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    m_end.setSingleShot(true);
    m_end.setInterval(shownFor);
    connect(&m_end, &QTimer::timeout, this, &QWidget::hide);
    over->installEventFilter(this);
    onRestyle(this, [this] {
        setFont(sansFont(11.5));
        place();
    });
}

void PassingNote::say(const QString& text)
{
    m_text = text;
    setAccessibleName(text);
    place();
    show();
    raise();
    update();
    m_end.start();
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void PassingNote::place()
{
    const int room = parentWidget()->width() - 2 * px(side);
    const int width = qMin(fontMetrics().horizontalAdvance(m_text) + 2 * px(side), room);
    setGeometry(
        (parentWidget()->width() - width) / 2, parentWidget()->height() - px(high + aboveEdge), width, px(high));
}

bool PassingNote::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        place();
    return QWidget::eventFilter(watched, event);
}

void PassingNote::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    QPainter painter(this);
    paintBox(painter, rect(), pxF(6), theme.sel, Qt::NoPen);
    painter.setPen(theme.selText);
    const QRect line = rect().adjusted(px(side), 0, -px(side), 0);
    painter.drawText(
        line, Qt::AlignCenter | Qt::TextSingleLine, fontMetrics().elidedText(m_text, Qt::ElideRight, line.width()));
}

}  // namespace Quorbel
