#include "app/model/selection/Selection.h"

#include "app/model/library/PhotoList.h"

#include <algorithm>

namespace Quorbel {

namespace {

const QUrl& visibleURL(const PhotoList& list, qsizetype row)
{
    return list.records().at(list.visibleRows().at(row)).url;
}

qsizetype visibleRow(const PhotoList& list, const QUrl& photo)
{
    return list.visibleRows().indexOf(list.position(photo));
}

// Whether the photo of a row is on screen or can be scrolled there.
bool isShown(const PhotoList& list, qsizetype row)
{
    return row >= 0 && !list.groups().isFolded(row);
}

// The shown photos from one to the other; nothing when either is not shown.
std::optional<QSet<QUrl>> visibleRange(const PhotoList& list, const QUrl& from, const QUrl& to)
{
    const qsizetype first = visibleRow(list, from);
    const qsizetype last = visibleRow(list, to);
    if (!isShown(list, first) || !isShown(list, last))
        return std::nullopt;
    QSet<QUrl> range;
    range.reserve(std::abs(last - first) + 1);
    for (qsizetype row = std::min(first, last); row <= std::max(first, last); ++row)
        if (isShown(list, row))
            range.insert(visibleURL(list, row));
    return range;
}

// Of the photos that are visible, the one closest to `center`, the later one of two; the first where that is hidden.
std::optional<QUrl> nearest(const PhotoList& list, const QSet<QUrl>& photos, const std::optional<QUrl>& center)
{
    const qsizetype count = list.visibleRows().size();
    const auto isOneOfThem = [&](qsizetype row) {
        return row >= 0 && row < count && photos.contains(visibleURL(list, row));
    };
    const qsizetype from = center ? std::max<qsizetype>(visibleRow(list, *center), 0) : 0;
    for (qsizetype distance = 0; distance < count; ++distance)
        for (const qsizetype row : { from + distance, from - distance })
            if (isOneOfThem(row))
                return visibleURL(list, row);
    return std::nullopt;
}

// The first in the list; at least one photo.
const QUrl& firstOf(const PhotoList& list, const QSet<QUrl>& photos)
{
    return *std::min_element(photos.cbegin(), photos.cend(),
        [&list](const QUrl& a, const QUrl& b) { return list.position(a) < list.position(b); });
}

QUrl nearestOrFirst(const PhotoList& list, const QSet<QUrl>& photos, const QUrl& center)
{
    const std::optional<QUrl> visible = nearest(list, photos, center);
    return visible ? *visible : firstOf(list, photos);
}

}  // namespace

Selection Selection::firstVisible(const PhotoList& list)
{
    return list.visibleRows().isEmpty() ? Selection{} : of(visibleURL(list, 0));
}

Selection Selection::afterClick(const PhotoList& list, const QUrl& photo, bool range, bool toggle) const
{
    if (toggle) {
        QSet<QUrl> toggled = photos;
        if (!toggled.remove(photo))
            toggled.insert(photo);
        if (toggled.isEmpty())
            toggled.insert(photo);
        return { toggled, photo, toggled.contains(photo) ? photo : nearestOrFirst(list, toggled, photo) };
    }
    const std::optional<QUrl>& base = anchor ? anchor : primary;
    if (range && base)
        if (const auto between = visibleRange(list, *base, photo))
            return { *between, anchor, photo };
    return of(photo);
}

Selection Selection::withAllVisible(const PhotoList& list) const
{
    Selection all{ {}, anchor, primary };
    const qsizetype count = list.visibleRows().size();
    all.photos.reserve(count);
    for (qsizetype row = 0; row < count; ++row)
        all.photos.insert(visibleURL(list, row));
    // The search may hide the one that was.
    if (count > 0 && (!all.primary || !all.photos.contains(*all.primary)))
        all.primary = visibleURL(list, 0);
    return all;
}

Selection Selection::withoutGone(const PhotoList& list, const std::optional<QUrl>& heir) const
{
    Selection remaining = *this;
    remaining.photos.removeIf([&list](const QUrl& photo) { return !list.contains(photo); });
    if (remaining.photos.isEmpty())
        return firstVisible(list);
    if (anchor && !list.contains(*anchor))
        remaining.anchor.reset();
    if (primary && list.contains(*primary))
        return remaining;
    if (heir && remaining.photos.contains(*heir)) {
        remaining.primary = heir;
        return remaining;
    }
    remaining.primary = firstOf(list, remaining.photos);
    return remaining;
}

std::optional<QUrl> Selection::nearestStaying(const PhotoList& list, const QSet<QUrl>& gone) const
{
    return nearest(list, photos - gone, primary);
}

Selection Selection::renamed(const NewNames& names) const
{
    const auto now = [&names](const std::optional<QUrl>& photo) {
        return photo ? std::optional(names.of(*photo)) : std::nullopt;
    };
    return { names.of(photos), now(anchor), now(primary) };
}

}  // namespace Quorbel
