#include "ui/sheets/renaming/RenameRowDelegate.h"

#include "core/language/Texts.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QAbstractScrollArea>
#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal height = 32;
constexpr qreal stackedHeight = 50;
constexpr qreal stackedBelow = 540;  // lists narrower than this
constexpr qreal side = 12;
constexpr qreal oldNameWidth = 140;
constexpr qreal arrowWidth = 30;
constexpr qreal gap = 12;
constexpr qreal chipHeight = 18;
constexpr qreal chipPadding = 5;
constexpr qreal nameSize = 12;
constexpr qreal wordsSize = 11;
constexpr qreal signSize = 12;
constexpr int singleLine = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;

bool isStacked(qreal listWidth)
{
    return listWidth < pxF(stackedBelow);
}

bool isWarning(const RenameRow& row)
{
    return row.number > 0 || row.obstacle != RenameRow::Obstacle::none;
}

}  // namespace

RenameRowDelegate::RenameRowDelegate(RowAt rowAt, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_rowAt(std::move(rowAt))
{
}

QString RenameRowDelegate::missingText(const QString& label)
{
    //: %1 is the name of a field that a photo does not have.
    return Texts::tr("no %1").arg(Texts::inSentence(label));
}

int RenameRowDelegate::rowHeight(int listWidth)
{
    return px(isStacked(listWidth) ? stackedHeight : height);
}

QSize RenameRowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    const auto* list = qobject_cast<const QAbstractScrollArea*>(option.widget);
    return { px(200), rowHeight(list ? list->viewport()->width() : px(stackedBelow)) };
}

// What a row is painted with: its parts are placed from the side where one begins to read.
struct RenameRowDelegate::Look {
    const Theme& theme;
    QRectF item;
    Qt::LayoutDirection direction;
    QRectF at(const QRectF& place) const { return mirrored(place, item, direction); }
};

void RenameRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    painter->setLayoutDirection(option.direction);
    const RenameRow* row = m_rowAt(index.row());
    if (!row)
        return;
    const Theme& theme = Theme::of(option.widget);
    const QRectF box(option.rect);
    const Look look{ theme, box, option.direction };
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (row->isMarked())
        painter->fillRect(box, theme.amberBg);
    painter->fillRect(QRectF(box.left(), box.bottom() - 1, box.width(), 1), theme.line);
    if (option.state & QStyle::State_HasFocus) {
        painter->setPen(QPen(theme.derived.focusStrong, pxF(2)));
        painter->drawRoundedRect(box.adjusted(2, 2, -2, -3), pxF(5), pxF(5));
    }
    const QRectF line = box.adjusted(pxF(side), 0, -pxF(side), -1);
    if (isStacked(box.width())) {
        const qreal half = line.height() / 2;
        const QRectF first = line.adjusted(0, pxF(3), 0, -half);
        paintOldName(
            *painter, first.adjusted(0, 0, paintWords(*painter, first, *row, look) - first.right(), 0), *row, look);
        paintArrowAndName(*painter, line.adjusted(0, half, 0, -pxF(3)), *row, look);
    } else {
        const qreal right = paintWords(*painter, line, *row, look);
        const QRectF old(line.left(), line.top(), pxF(oldNameWidth), line.height());
        paintOldName(*painter, old, *row, look);
        paintArrowAndName(*painter, QRectF(old.topRight(), QPointF(right, line.bottom())), *row, look);
    }
    painter->restore();
}

void RenameRowDelegate::paintOldName(QPainter& painter, const QRectF& box, const RenameRow& row, const Look& look)
{
    const QFont mono = verbatimMonoFont(nameSize);
    painter.setFont(mono);
    painter.setPen(look.theme.derived.label);
    painter.drawText(look.at(box), singleLine,
        keptInOrder(QFontMetricsF(mono).elidedText(row.oldName, Qt::ElideMiddle, box.width())));
}

void RenameRowDelegate::paintArrowAndName(QPainter& painter, const QRectF& box, const RenameRow& row, const Look& look)
{
    const QRectF arrow(box.left(), box.top(), pxF(arrowWidth), box.height());
    Icon::paint(painter, look.at(arrow.adjusted(0, 0, -pxF(6), 0)), u"arrow.right"_s, pxF(14), look.theme.muted);
    paintNewName(painter, box.adjusted(arrow.width(), 0, 0, 0), row, look);
}

// At the right; what is left of them belongs to the new name.
qreal RenameRowDelegate::paintWords(QPainter& painter, const QRectF& row, const RenameRow& of, const Look& look)
{
    const QString words = of.words();
    if (words.isEmpty())
        return row.right();
    const QFont font = verbatimFont(wordsSize);
    const QFontMetricsF metrics(font);
    const qreal most = (row.width() - pxF(side)) / 2;
    const qreal width = qMin(metrics.horizontalAdvance(words) + 1, most);
    const QRectF box(row.right() - width, row.top(), width, row.height());
    painter.setFont(font);
    painter.setPen(of.isMarked() ? look.theme.derived.amberText : look.theme.derived.label);
    painter.drawText(look.at(box), singleLine, metrics.elidedText(words, Qt::ElideMiddle, width));
    if (!isWarning(of))
        return box.left() - pxF(gap);
    const QRectF sign(box.left() - pxF(signSize + 4), row.top(), pxF(signSize), row.height());
    Icon::paint(
        painter, look.at(sign), u"exclamationmark.triangle.fill"_s, pxF(signSize), look.theme.derived.amberText);
    return sign.left() - pxF(gap);
}

// The name that is written; with a value missing, what the pattern makes of the others, and the gap in it.
void RenameRowDelegate::paintNewName(QPainter& painter, const QRectF& box, const RenameRow& row, const Look& look)
{
    const QFont mono = verbatimMonoFont(nameSize);
    const QFontMetricsF metrics(mono);
    painter.setFont(mono);
    painter.setPen(look.theme.text);
    if (row.pieces.isEmpty()) {
        painter.drawText(
            look.at(box), singleLine, keptInOrder(metrics.elidedText(row.newName, Qt::ElideMiddle, box.width())));
        return;
    }
    paintPieces(painter, look.at(box), row, look);
}

// A name of a file runs from left to right, whatever is around it.
void RenameRowDelegate::paintPieces(QPainter& painter, const QRectF& box, const RenameRow& row, const Look& look)
{
    const QFont mono = verbatimMonoFont(nameSize);
    const QFont small = sansFont(wordsSize);
    const auto isMissing = [](const RenderedPiece& piece) { return piece.kind == RenderedPiece::Kind::missing; };
    const auto textOf = [&](const RenderedPiece& piece) {
        return isMissing(piece) ? missingText(piece.label) : piece.text;
    };
    const auto widthOf = [&](const RenderedPiece& piece) {
        const qreal padding = isMissing(piece) ? pxF(chipPadding) : 0;
        return QFontMetricsF(isMissing(piece) ? small : mono).horizontalAdvance(textOf(piece)) + 2 * padding;
    };
    qreal left = box.left();
    if (look.direction == Qt::RightToLeft) {
        qreal all = 0;
        for (const RenderedPiece& piece : row.pieces)
            all += widthOf(piece);
        left = qMax(left, box.right() - all);
    }
    for (const RenderedPiece& piece : row.pieces) {
        const qreal padding = isMissing(piece) ? pxF(chipPadding) : 0;
        const qreal room = box.right() - left;
        if (room <= 2 * padding)
            return;
        const QRectF place(left, box.top(), qMin(widthOf(piece), room), box.height());
        if (isMissing(piece)) {
            const QRectF chip(place.left(), place.center().y() - pxF(chipHeight) / 2, place.width(), pxF(chipHeight));
            paintBox(painter, chip, pxF(4), Qt::transparent, QPen(look.theme.derived.amberText, 1, Qt::DashLine));
        }
        painter.setFont(isMissing(piece) ? small : mono);
        painter.setPen(isMissing(piece) ? look.theme.derived.amberText : look.theme.text);
        painter.drawText(place.adjusted(padding, 0, -padding, 0), int(singleLine) | int(Qt::AlignAbsolute),
            keptInOrder(QFontMetricsF(painter.font())
                            .elidedText(textOf(piece), Qt::ElideRight, place.width() - 2 * padding + 1)));
        left += place.width();
    }
}

}  // namespace Quorbel
