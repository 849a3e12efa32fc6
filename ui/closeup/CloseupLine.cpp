#include "ui/closeup/CloseupLine.h"

#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"

#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr int restInterval = 2'500;  // milliseconds
constexpr int mostStars = 5;
// Points.
constexpr qreal barHeight = 44;
constexpr qreal sidePadding = 20;
constexpr qreal gap = 18;
constexpr qreal starSize = 13;
constexpr qreal dotSize = 6;
constexpr qreal closeSize = 28;
constexpr qreal leastName = 120;

// "3 / 40", as it is spoken.
QString spokenPlace(const QString& place)
{
    const QStringList numbers = place.split(u" / "_s);
    return numbers.size() == 2 ? Texts::tr("%1 of %2").arg(numbers.at(0), numbers.at(1)) : place;
}

}  // namespace

QString CloseupText::spoken() const
{
    QStringList parts{ name, spokenPlace(place) };
    if (stars > 0)
        parts.append(Texts::tr("%n star(s)", nullptr, stars));
    for (const QString& part : { unsaved, note, zoom })
        if (!part.isEmpty())
            parts.append(part);
    return parts.join(u", "_s);
}

CloseupLine::CloseupLine(QWidget* parent)
    : QWidget(parent)
    , m_close(new QBIconButton(u"xmark"_s, Texts::tr("Back to the list"), this))
    , m_opacity(this, Duration::column)
{
    m_close->setSizes({ closeSize, closeSize }, 15, 0, 6);
    //: The key.
    m_close->setHint(Texts::tr("Escape"));
    m_close->setFocusPolicy(Qt::NoFocus);  // the keyboard has Escape
    connect(m_close, &QAbstractButton::clicked, this, &CloseupLine::closeAsked);
    m_leaves.setSingleShot(true);
    m_leaves.setInterval(restInterval);
    connect(&m_leaves, &QTimer::timeout, this, [this] { m_opacity.moveTo(0, [this] { hide(); }); });
    appear();
}

int CloseupLine::lineHeight()
{
    return px(barHeight);
}

void CloseupLine::setText(const CloseupText& text)
{
    if (text == m_text)
        return;
    m_text = text;
    appear();
}

void CloseupLine::appear()
{
    m_opacity.jumpTo(1);
    show();
    update();
    if (!underMouse())
        m_leaves.start();
}

void CloseupLine::enterEvent(QEnterEvent* event)
{
    QWidget::enterEvent(event);
    m_leaves.stop();
}

void CloseupLine::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    m_leaves.start();
}

void CloseupLine::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int side = px(closeSize);
    m_close->setGeometry(mirrored(QRect(width() - px(sidePadding) - side, (height() - side) / 2, side, side), this));
}

void CloseupLine::paintEvent(QPaintEvent*)
{
    constexpr qreal groundOpacity = .82;
    DirectedPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(m_opacity.value());
    painter.fillRect(rect(), withAlpha(Theme::of(this).bg, groundOpacity));
    QRect room = rect().adjusted(px(sidePadding), 0, -px(sidePadding + closeSize + gap), 0);
    paintRight(painter, room);
    paintLeft(painter, room);
}

// From the right: zoom, note, what is unsaved; what has no room is left out, the zoom first.
void CloseupLine::paintRight(QPainter& painter, QRect& room) const
{
    const Theme& theme = Theme::of(this);
    painter.setFont(sansFont(12));
    for (const QString* told : { &m_text.unsaved, &m_text.note, &m_text.zoom }) {
        const QString& text = *told;
        const bool isUnsaved = told == &m_text.unsaved;
        const int dot = isUnsaved ? px(dotSize + 7) : 0;
        const int width = painter.fontMetrics().horizontalAdvance(text) + dot;
        if (text.isEmpty() || room.width() - width < px(leastName))
            continue;
        painter.setPen(isUnsaved ? theme.amber : theme.derived.label);
        painter.drawText(mirrored(room, this), Qt::AlignRight | Qt::AlignVCenter, text);
        if (isUnsaved) {
            const QRectF place(
                room.right() + 1 - width, room.center().y() - pxF(dotSize) / 2, pxF(dotSize), pxF(dotSize));
            painter.setPen(Qt::NoPen);
            painter.setBrush(theme.amber);
            painter.drawEllipse(mirrored(place, this));
        }
        room.setRight(room.right() - width - px(gap));
    }
}

void CloseupLine::paintLeft(QPainter& painter, QRect room) const
{
    const Theme& theme = Theme::of(this);
    painter.setFont(sansFont(12));
    const int placeWidth = painter.fontMetrics().horizontalAdvance(m_text.place);
    const int starsWidth = m_text.stars > 0 ? mostStars * px(starSize + 2) + px(gap) : 0;
    painter.setFont(verbatimFont(13, QFont::DemiBold));
    const QString name = painter.fontMetrics().elidedText(
        m_text.name, Qt::ElideMiddle, qMax(0, room.width() - placeWidth - starsWidth - px(gap)));
    painter.setPen(theme.text);
    painter.drawText(mirrored(room, this), Qt::AlignLeft | Qt::AlignVCenter, keptInOrder(name));
    room.setLeft(room.left() + painter.fontMetrics().horizontalAdvance(name) + px(gap));
    painter.setFont(sansFont(12));
    painter.setPen(theme.derived.label);
    painter.drawText(mirrored(room, this), Qt::AlignLeft | Qt::AlignVCenter, m_text.place);
    room.setLeft(room.left() + placeWidth + px(gap));
    for (int star = 0; star < m_text.stars; ++star) {
        const QRectF cell(room.left() + star * px(starSize + 2), 0, px(starSize), height());
        Icon::paint(painter, mirrored(cell, this), u"star.fill"_s, pxF(starSize), theme.text);
    }
}

}  // namespace Quorbel
