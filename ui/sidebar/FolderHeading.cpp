#include "ui/sidebar/FolderHeading.h"

#include "core/language/Texts.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"

#include <QPainter>
#include <QStyleOptionViewItem>

namespace Quorbel::FolderHeading {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal radius = 6;
constexpr qreal left = 4;
constexpr qreal iconSize = 14;
constexpr qreal iconRoom = 16;
constexpr qreal gap = 6;
constexpr qreal right = 22;

void paintGround(QPainter& painter, const QStyleOptionViewItem& option, const QRectF& row, const Theme& theme)
{
    if (option.state & QStyle::State_MouseOver) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme.derived.rowHover);
        painter.drawRoundedRect(row, pxF(radius), pxF(radius));
    }
    if (option.state & QStyle::State_HasFocus && option.state & QStyle::State_KeyboardFocusChange) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(theme.derived.focusStrong, pxF(2)));
        painter.drawRoundedRect(row.adjusted(1, 1, -1, -1), pxF(radius) - 1, pxF(radius) - 1);
    }
}

// The name is what one looks for: the parents give way first, down to a third of the room.
void paintName(QPainter& painter, QRectF room, const QRectF& row, const FolderGroup& group, const Theme& theme)
{
    const auto draw = [&](const QString& text) {
        painter.drawText(
            mirrored(room, row, painter.layoutDirection()), Qt::AlignVCenter | Qt::TextSingleLine, keptInOrder(text));
    };
    const QFont parentsFont = verbatimFont(12);
    const QFont nameFont = verbatimFont(12, QFont::DemiBold);
    if (!group.parents.isEmpty()) {
        const QFontMetricsF metrics(parentsFont);
        const QString slash = u" / "_s;
        const qreal forName = QFontMetricsF(nameFont).horizontalAdvance(group.name) + 1;
        const qreal most = qMax(room.width() - forName - metrics.horizontalAdvance(slash), room.width() / 3);
        const QString shown = metrics.elidedText(group.parents, Qt::ElideMiddle, most) + slash;
        painter.setFont(parentsFont);
        painter.setPen(theme.derived.label);
        draw(shown);
        room.setLeft(room.left() + metrics.horizontalAdvance(shown));
    }
    painter.setFont(nameFont);
    painter.setPen(theme.text);
    draw(QFontMetricsF(nameFont).elidedText(group.name, Qt::ElideMiddle, room.width()));
}

QString spoken(const FolderGroup& group)
{
    //: State of a folder in the list, spoken.
    const QString state = group.isFolded ? Texts::tr("collapsed") : Texts::tr("expanded");
    return u"%1, %2, %3"_s.arg(text(group), Texts::tr("%n photo(s)", nullptr, group.count), state);
}

}  // namespace

QString text(const FolderGroup& group)
{
    return group.parents.isEmpty() ? group.name : group.parents + u" / "_s + group.name;
}

QVariant data(const FolderGroup& group, int role)
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return text(group);
    case Qt::AccessibleTextRole:
        return spoken(group);
    default:
        return {};
    }
}

void paint(QPainter& painter, const QStyleOptionViewItem& option, int height, const FolderGroup& group)
{
    const Theme& theme = Theme::of(option.widget);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF row(option.rect.left(), option.rect.top(), option.rect.width(), height);
    paintGround(painter, option, row, theme);
    QRectF room = row.adjusted(pxF(left), 0, -pxF(right), 0);
    const auto placed = [&](const QRectF& place) { return mirrored(place, QRectF(row), option.direction); };
    Icon::paint(painter, placed(QRectF(room.left(), room.top(), pxF(iconRoom), room.height())),
        group.isFolded ? u"chevron.right"_s : u"chevron.down"_s, pxF(iconSize), theme.derived.label);
    room.setLeft(room.left() + pxF(iconRoom + gap));

    const QString count = QString::number(group.count);
    painter.setFont(sansFont(11));
    painter.setPen(theme.derived.label);
    painter.drawText(placed(room), Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine, count);
    room.setRight(room.right() - QFontMetricsF(painter.font()).horizontalAdvance(count) - pxF(gap));
    paintName(painter, room, QRectF(row), group, theme);
    painter.restore();
}

}  // namespace Quorbel::FolderHeading
