#include "ui/sidebar/SidebarDelegate.h"

#include "app/model/thumbnails/ThumbnailStore.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"
#include "ui/sidebar/FolderHeading.h"
#include "ui/sidebar/SidebarModel.h"
#include "ui/sidebar/ThumbnailView.h"

#include <QPainter>

namespace Quorbel {

namespace {

// Points.
constexpr qreal rowHeight = 54;
constexpr qreal headingRowHeight = 30;
constexpr qreal rowGap = 2;
constexpr qreal rowRadius = 9;
constexpr qreal thumbnailSize = 42;
constexpr qreal thumbnailCorner = 7;
constexpr qreal thumbnailLeft = 6;
constexpr qreal textGap = 10;
constexpr qreal nameTop = 10;
constexpr qreal nameHeight = 18;
constexpr qreal detailHeight = 15;

void paintGround(QPainter& painter, const QStyleOptionViewItem& option, const QRectF& row, const Theme& theme)
{
    const bool selected = option.state & QStyle::State_Selected;
    painter.setPen(Qt::NoPen);
    if (selected || option.state & QStyle::State_MouseOver) {
        painter.setBrush(selected ? theme.sel : theme.derived.rowHover);
        painter.drawRoundedRect(row, pxF(rowRadius), pxF(rowRadius));
    }
    // The row that the keyboard is on: around it, or inside a selected one while keys are in use.
    if (option.state & QStyle::State_HasFocus && (!selected || option.state & QStyle::State_KeyboardFocusChange)) {
        const qreal inset = selected ? 3 : 1;
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(selected ? theme.selSub : theme.derived.focusStrong, pxF(selected ? 1.5 : 2)));
        painter.drawRoundedRect(
            row.adjusted(inset, inset, -inset, -inset), pxF(rowRadius) - inset, pxF(rowRadius) - inset);
    }
}

}  // namespace

SidebarDelegate::SidebarDelegate(const SidebarModel& rows, ThumbnailStore* thumbs, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_rows(rows)
    , m_thumbs(thumbs)
{
}

int SidebarDelegate::pitch()
{
    return px(rowHeight) + px(rowGap);
}

int SidebarDelegate::headingHeight()
{
    return px(headingRowHeight);
}

RowPitch SidebarDelegate::pitches()
{
    return { headingHeight() + px(rowGap), pitch() };
}

QSize SidebarDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const
{
    const RowPitch pitch = pitches();
    return { 0, m_rows.heading(index.row()) ? pitch.heading : pitch.photo };
}

void SidebarDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (const FolderGroup* group = m_rows.heading(index.row()))
        return FolderHeading::paint(*painter, option, headingHeight(), *group);
    const ImageRecord* photo = m_rows.record(index.row());
    if (!photo)
        return;
    const Theme& theme = Theme::of(option.widget);
    const QRectF row(option.rect.adjusted(0, 0, 0, -px(rowGap)));
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    paintGround(*painter, option, row, theme);

    const qreal size = pxF(thumbnailSize);
    const auto placed = [&](const QRectF& place) { return mirrored(place, row, option.direction); };
    const QRectF square(row.left() + px(thumbnailLeft), row.top() + (row.height() - size) / 2, size, size);
    const QUrl file = m_rows.seenFile(*photo);
    const auto entry = m_thumbs ? m_thumbs->entry(file, ThumbnailStore::Kind::small) : ThumbnailStore::Entry{};
    ThumbnailView::paint(*painter, placed(square), pxF(thumbnailCorner), entry, file, theme);

    const bool selected = option.state & QStyle::State_Selected;
    QRectF line(square.right() + px(textGap), row.top() + px(nameTop), 0, px(nameHeight));
    line.setRight(row.right() - px(textGap));
    painter->setFont(verbatimFont(13));
    painter->setPen(selected ? theme.selText : theme.text);
    painter->drawText(placed(line), Qt::AlignVCenter | Qt::TextSingleLine,
        keptInOrder(painter->fontMetrics().elidedText(photo->fileName, Qt::ElideMiddle, int(line.width()))));
    line.translate(0, line.height() + 1);
    line.setHeight(px(detailHeight));
    painter->setFont(sansFont(11));
    painter->setPen(selected ? theme.selSub : theme.muted);
    painter->drawText(placed(line), Qt::AlignVCenter | Qt::TextSingleLine,
        keptInOrder(painter->fontMetrics().elidedText(m_rows.line(*photo), Qt::ElideRight, int(line.width()))));
    painter->restore();
}

}  // namespace Quorbel
