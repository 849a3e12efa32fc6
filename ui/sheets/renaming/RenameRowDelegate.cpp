#include "ui/sheets/renaming/RenameRowDelegate.h"

#include "core/language/Texts.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
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

void RenameRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const RenameRow* row = m_rowAt(index.row());
    if (!row)
        return;
    const Theme& theme = Theme::of(option.widget);
    const QRectF box(option.rect);
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
            *painter, first.adjusted(0, 0, paintWords(*painter, first, *row, theme) - first.right(), 0), *row, theme);
        paintArrowAndName(*painter, line.adjusted(0, half, 0, -pxF(3)), *row, theme);
    } else {
        const qreal right = paintWords(*painter, line, *row, theme);
        const QRectF old(line.left(), line.top(), pxF(oldNameWidth), line.height());
        paintOldName(*painter, old, *row, theme);
        paintArrowAndName(*painter, QRectF(old.topRight(), QPointF(right, line.bottom())), *row, theme);
    }
    painter->restore();
}

void RenameRowDelegate::paintOldName(QPainter& painter, const QRectF& box, const RenameRow& row, const Theme& theme)
{
    const QFont mono = verbatimMonoFont(nameSize);
    painter.setFont(mono);
    painter.setPen(theme.derived.label);
    painter.drawText(box, singleLine, QFontMetricsF(mono).elidedText(row.oldName, Qt::ElideMiddle, box.width()));
}

void RenameRowDelegate::paintArrowAndName(
    QPainter& painter, const QRectF& box, const RenameRow& row, const Theme& theme)
{
    const QRectF arrow(box.left(), box.top(), pxF(arrowWidth), box.height());
    Icon::paint(painter, arrow.adjusted(0, 0, -pxF(6), 0), u"arrow.right"_s, pxF(14), theme.muted);
    paintNewName(painter, box.adjusted(arrow.width(), 0, 0, 0), row, theme);
}

// At the right; what is left of them belongs to the new name.
qreal RenameRowDelegate::paintWords(QPainter& painter, const QRectF& row, const RenameRow& of, const Theme& theme)
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
    painter.setPen(of.isMarked() ? theme.derived.amberText : theme.derived.label);
    painter.drawText(box, singleLine, metrics.elidedText(words, Qt::ElideMiddle, width));
    if (!isWarning(of))
        return box.left() - pxF(gap);
    const QRectF sign(box.left() - pxF(signSize + 4), row.top(), pxF(signSize), row.height());
    Icon::paint(painter, sign, u"exclamationmark.triangle.fill"_s, pxF(signSize), theme.derived.amberText);
    return sign.left() - pxF(gap);
}

// The name that is written; with a value missing, what the pattern makes of the others, and the gap in it.
void RenameRowDelegate::paintNewName(QPainter& painter, const QRectF& box, const RenameRow& row, const Theme& theme)
{
    const QFont mono = verbatimMonoFont(nameSize);
    const QFontMetricsF metrics(mono);
    painter.setFont(mono);
    painter.setPen(theme.text);
    if (row.pieces.isEmpty()) {
        painter.drawText(box, singleLine, metrics.elidedText(row.newName, Qt::ElideMiddle, box.width()));
        return;
    }
    const QFont small = sansFont(wordsSize);
    qreal left = box.left();
    for (const RenderedPiece& piece : row.pieces) {
        const bool isMissing = piece.kind == RenderedPiece::Kind::missing;
        const QString text = isMissing ? missingText(piece.label) : piece.text;
        const qreal padding = isMissing ? pxF(chipPadding) : 0;
        const qreal width = (isMissing ? QFontMetricsF(small) : metrics).horizontalAdvance(text) + 2 * padding;
        const qreal room = box.right() - left;
        if (room <= 2 * padding)
            return;
        const QRectF place(left, box.top(), qMin(width, room), box.height());
        if (isMissing) {
            const QRectF chip(place.left(), place.center().y() - pxF(chipHeight) / 2, place.width(), pxF(chipHeight));
            paintBox(painter, chip, pxF(4), Qt::transparent, QPen(theme.derived.amberText, 1, Qt::DashLine));
        }
        painter.setFont(isMissing ? small : mono);
        painter.setPen(isMissing ? theme.derived.amberText : theme.text);
        painter.drawText(place.adjusted(padding, 0, -padding, 0), singleLine,
            QFontMetricsF(painter.font()).elidedText(text, Qt::ElideRight, place.width() - 2 * padding + 1));
        left += place.width();
    }
}

}  // namespace Quorbel
