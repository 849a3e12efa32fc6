#include "ui/controls/BriefNote.h"

#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QAccessible>
#include <QPainter>

namespace Quorbel {

namespace {

constexpr int restInterval = 1'600;  // milliseconds
// Points.
constexpr qreal noteHeight = 34;
constexpr qreal sidePadding = 16;
constexpr qreal overEdge = 72;
constexpr qreal cornerRadius = 9;

}  // namespace

BriefNote::BriefNote(QWidget* parent)
    : QWidget(parent)
    , m_opacity(this, Duration::banner)
{
    hide();
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_leaves.setSingleShot(true);
    m_leaves.setInterval(restInterval);
    connect(&m_leaves, &QTimer::timeout, this, [this] { m_opacity.moveTo(0, [this] { hide(); }); });
}

void BriefNote::say(const QString& text)
{
    m_text = text;
    setAccessibleName(text);
    const int wanted = QFontMetrics(sansFont(13)).horizontalAdvance(text) + 2 * px(sidePadding);
    const int width = qMin(wanted, parentWidget()->width());
    setGeometry((parentWidget()->width() - width) / 2, parentWidget()->height() - px(overEdge) - px(noteHeight), width,
        px(noteHeight));
    m_opacity.jumpTo(1);
    show();
    raise();
    update();
    m_leaves.start();
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void BriefNote::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(m_opacity.value());
    paintBox(painter, rect(), pxF(cornerRadius), theme.sel, Qt::NoPen);
    painter.setPen(theme.selText);
    painter.setFont(sansFont(13));
    const QRect room = rect().adjusted(px(sidePadding), 0, -px(sidePadding), 0);
    // A substituted glyph, a star perhaps, may be a little wider than it was measured.
    const bool isWhole = width() < parentWidget()->width();
    const QString text = isWhole ? m_text : painter.fontMetrics().elidedText(m_text, Qt::ElideRight, room.width());
    painter.drawText(room, Qt::AlignCenter | Qt::TextDontClip, text);
}

}  // namespace Quorbel
