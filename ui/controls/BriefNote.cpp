#include "ui/controls/BriefNote.h"

#include "ui/controls/Accessibility.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QEvent>
#include <QPainter>

namespace Quorbel {

namespace {

// Milliseconds: for a star or two, and for each letter to read.
constexpr int restInterval = 1'400;
constexpr int restOfLetter = 50;
// Points.
constexpr qreal noteHeight = 34;
constexpr qreal sidePadding = 16;
constexpr qreal besides = 8;
constexpr qreal cornerRadius = 9;

}  // namespace

BriefNote::BriefNote(QWidget* host, qreal overEdge)
    : QWidget(host)
    , m_overEdge(overEdge)
    , m_opacity(this, Duration::banner)
{
    describeAs(staticMetaObject, QAccessible::AlertMessage);
    hide();
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_leaves.setSingleShot(true);
    connect(&m_leaves, &QTimer::timeout, this, [this] { m_opacity.moveTo(0, [this] { hide(); }); });
    host->installEventFilter(this);
    onRestyle(this, [this] {
        setFont(sansFont(13));
        place();
    });
}

void BriefNote::say(const QString& text)
{
    m_text = text;
    setAccessibleName(text);
    place();
    m_opacity.jumpTo(1);
    show();
    raise();
    update();
    m_leaves.start(restInterval + restOfLetter * int(text.size()));
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

int BriefNote::wantedWidth() const
{
    return fontMetrics().horizontalAdvance(m_text) + 2 * px(sidePadding);
}

void BriefNote::place()
{
    const int width = qMin(wantedWidth(), parentWidget()->width() - 2 * px(besides));
    setGeometry((parentWidget()->width() - width) / 2, parentWidget()->height() - px(m_overEdge) - px(noteHeight),
        width, px(noteHeight));
}

bool BriefNote::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        place();
    return QWidget::eventFilter(watched, event);
}

void BriefNote::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(m_opacity.value());
    paintBox(painter, rect(), pxF(cornerRadius), theme.sel, Qt::NoPen);
    painter.setPen(theme.selText);
    const QRect room = rect().adjusted(px(sidePadding), 0, -px(sidePadding), 0);
    // A substituted glyph, a star perhaps, may be a little wider than it was measured.
    const bool isWhole = width() >= wantedWidth();
    const QString text = isWhole ? m_text : painter.fontMetrics().elidedText(m_text, Qt::ElideRight, room.width());
    painter.drawText(room, Qt::AlignCenter | Qt::TextDontClip, text);
}

}  // namespace Quorbel
