#include "ui/controls/cards/FoldingHeading.h"

#include "ui/controls/Labels.h"
#include "ui/controls/cards/EditedDot.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"

#include <QPainter>

namespace Quorbel {

namespace {

// Points.
constexpr qreal high = 34;
constexpr qreal gap = 7;
constexpr qreal chevron = 12;
constexpr qreal ringSide = 3;  // between the texts and the ring
constexpr qreal narrow = 370;  // below, the fields have no column
constexpr qreal narrowGap = 12;
constexpr qreal ringTop = 4;
constexpr qreal radius = 6;

}  // namespace

FoldingHeading::FoldingHeading(const QString& title, QWidget* parent)
    : FoldLine(title, parent)
{
    onRestyle(this, [this] {
        updateGeometry();
        showToolTip();
    });
    installFocusRing(this, { RingShape::tight, radius, {}, [this] {
                                return mirrored(
                                    line().adjusted(-pxF(ringSide), pxF(ringTop), pxF(ringSide), -pxF(ringTop)), this);
                            } });
}

void FoldingHeading::setCount(const QString& text)
{
    m_count = text;
    update();
}

void FoldingHeading::setColumn(qreal points)
{
    m_column = points;
    showToolTip();
    update();
}

QSize FoldingHeading::sizeHint() const
{
    const int title = QFontMetrics(sectionFont()).horizontalAdvance(text());
    return { px(EditedDot::room + 2 * gap + chevron) + qMax(title, px(m_column)) + px(120), px(high) };
}

QSize FoldingHeading::minimumSizeHint() const
{
    return { px(120), px(high) };
}

// Without the strip for the dot and the line below.
QRectF FoldingHeading::line() const
{
    return QRectF(rect()).adjusted(px(EditedDot::room), 0, 0, -1);
}

QRectF FoldingHeading::titleRect() const
{
    QRectF title = line();
    const qreal most = title.width() - pxF(chevron + gap);
    title.setWidth(qMin(most, QFontMetricsF(sectionFont()).horizontalAdvance(text()) + 1));
    return title;
}

QRectF FoldingHeading::summaryRect() const
{
    QRectF summary = line();
    const bool hasColumn = line().width() >= px(narrow);
    const qreal column = hasColumn ? line().left() + px(m_column) : 0;
    summary.setLeft(qMax(column, titleRect().right() + pxF(hasColumn ? gap : narrowGap)));
    summary.setRight(line().right() - pxF(chevron + gap));
    return summary;
}

void FoldingHeading::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.fillRect(mirrored(QRectF(line().left(), height() - 1, line().width(), 1), this), theme.line);
    if (isEdited())
        EditedDot::paint(painter, this, line().center().y());
    painter.setOpacity(opacity());
    painter.setFont(sectionFont());
    painter.setPen(theme.text);
    const QRectF title = titleRect();
    painter.drawText(mirrored(title, this), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
        QFontMetricsF(sectionFont()).elidedText(text(), Qt::ElideRight, title.width()));
    const QRectF behind = summaryRect();
    if (!isOpen() && behind.width() > 0) {
        summary().paint(painter, mirrored(behind, this), theme);
    } else if (isOpen()) {
        painter.setFont(sansFont(11));
        painter.setPen(theme.derived.label);
        const QRectF room(
            title.right() + pxF(gap), title.top(), behind.right() - title.right() - pxF(gap), title.height());
        painter.drawText(mirrored(room, this), Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine,
            QFontMetricsF(painter.font()).elidedText(m_count, Qt::ElideRight, room.width()));
    }
    const QRectF place(line().right() - pxF(chevron), line().top(), pxF(chevron), line().height());
    paintChevron(painter, mirrored(place, this));
}

}  // namespace Quorbel
