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

// The visible photos from one to the other; nothing when either is not visible.
std::optional<QSet<QUrl>> visibleRange(const PhotoList& list, const QUrl& from, const QUrl& to)
{
    const qsizetype first = visibleRow(list, from);
    const qsizetype last = visibleRow(list, to);
    if (first < 0 || last < 0)
        return std::nullopt;
    QSet<QUrl> range;
    range.reserve(std::abs(last - first) + 1);
    for (qsizetype row = std::min(first, last); row <= std::max(first, last); ++row)
        range.insert(visibleURL(list, row));
    return range;
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
        return { toggled, photo, photo };
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
    if (!all.primary && count > 0)
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
    const auto first = std::min_element(remaining.photos.cbegin(), remaining.photos.cend(),
        [&list](const QUrl& a, const QUrl& b) { return list.position(a) < list.position(b); });
    remaining.primary = *first;
    return remaining;
}

std::optional<QUrl> Selection::nearestStaying(const PhotoList& list, const QSet<QUrl>& gone) const
{
    const qsizetype count = list.visibleRows().size();
    const auto stays = [&](qsizetype row) {
        if (row < 0 || row >= count)
            return false;
        const QUrl& photo = visibleURL(list, row);
        return photos.contains(photo) && !gone.contains(photo);
    };
    const qsizetype from = primary ? std::max<qsizetype>(visibleRow(list, *primary), 0) : 0;
    for (qsizetype distance = 0; distance < count; ++distance)
        for (const qsizetype row : { from + distance, from - distance })
            if (stays(row))
                return visibleURL(list, row);
    return std::nullopt;
}

Selection Selection::renamed(const QUrl& source, const QUrl& destination) const
{
    Selection result = *this;
    if (result.photos.remove(source))
        result.photos.insert(destination);
    if (anchor == source)
        result.anchor = destination;
    if (primary == source)
        result.primary = destination;
    return result;
}

}  // namespace Quorbel
