#include "core/save/TagHomes.h"

#include <algorithm>
#include <array>

namespace Quorbel::TagHomes {

using namespace Qt::StringLiterals;

namespace {

QString groupOf(const QString& tag)
{
    return tag.left(tag.indexOf(u':') + 1);
}

bool isOneOf(const QString& fileType, const QStringList& kinds)
{
    // "Extended WEBP" and "HEICS" are kinds of WEBP and HEIC.
    return std::any_of(
        kinds.cbegin(), kinds.cend(), [&fileType](const QString& kind) { return fileType.contains(kind); });
}

// Whether tags assigned to the one group are found in the other.
bool isWithin(const QString& assigned, const QString& found)
{
    const auto isOf = [&found](QStringView family) { return found.startsWith(family); };
    if (assigned == u"XMP:")
        return isOf(u"XMP-");
    if (assigned == u"IPTC:")
        return isOf(u"IPTC");
    if (assigned == u"EXIF:")
        return !isOf(u"XMP") && !isOf(u"IPTC") && found != u"IFD1:";
    return assigned.isEmpty() || assigned == found;
}

}  // namespace

bool holds(const QString& fileType, const QString& tag)
{
    static const QStringList withoutIptc{ u"WEBP"_s, u"HEIC"_s, u"HEIF"_s, u"HEVC"_s, u"AVIF"_s, u"JXL"_s, u"GIF"_s,
        u"CR3"_s, u"CRW"_s };
    static const QStringList withoutExif{ u"GIF"_s, u"CRW"_s };
    if (tag.startsWith(u"IPTC:"_s))
        return !isOneOf(fileType, withoutIptc);
    return !tag.startsWith(u"EXIF:"_s) || !isOneOf(fileType, withoutExif);
}

FileTags placesOf(const QString& tag, const FileTags& tags)
{
    const QString group = groupOf(tag);
    const QString name = tag.sliced(group.size());
    FileTags places;
    for (auto it = tags.cbegin(); it != tags.cend(); ++it) {
        const QString found = groupOf(it.key());
        if (isWithin(group, found) && it.key().sliced(found.size()).compare(name, Qt::CaseInsensitive) == 0)
            places.insert(it.key(), *it);
    }
    return places;
}

QStringList itemsOf(const QString& tag, const FileTags& tags)
{
    QStringList items;
    const FileTags places = placesOf(tag, tags);
    for (const auto& place : places)
        for (const auto& value : place)
            items.append(QString::fromUtf8(value));
    return items;
}

}  // namespace Quorbel::TagHomes
