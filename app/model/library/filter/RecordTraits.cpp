#include "app/model/library/filter/RecordTraits.h"

#include "core/schema/FieldID.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostStars = 5;

bool isBlank(const QString& text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar letter) { return letter.isSpace(); });
}

}  // namespace

const QList<Gap>& Gaps::all()
{
    static const QList<Gap> gaps{
        { PhotoTrait::noTitle, FieldID::title },
        { PhotoTrait::noDescription, FieldID::description },
        { PhotoTrait::noDate, FieldID::date },
        { PhotoTrait::noKeywords, FieldID::keywords },
        { PhotoTrait::noCreator, FieldID::creator },
        { PhotoTrait::noCopyright, FieldID::copyright },
        { PhotoTrait::noPlace, FieldID::place },
    };
    return gaps;
}

PhotoTraits Gaps::traits()
{
    PhotoTraits traits;
    for (const Gap& gap : all())
        traits |= gap.trait;
    return traits;
}

PhotoTraits RecordTraits::mask()
{
    return Gaps::traits() | PhotoTrait::unrated | PhotoTrait::unread;
}

RecordTraits RecordTraits::of(const ImageRecord& record)
{
    static const QString rating = u"rating"_s;
    if (record.isUnread)
        return { PhotoTrait::unread, 0 };
    RecordTraits found;
    for (const Gap& gap : Gaps::all()) {
        const auto value = record.values.constFind(gap.field);
        const bool isText = value != record.values.cend() && !isBlank(*value);
        found.traits.setFlag(gap.trait, !isText && record.lists.value(gap.field).isEmpty());
    }
    const int stars = record.values.value(rating).toInt();
    found.stars = std::clamp(stars, 0, mostStars);
    found.traits.setFlag(PhotoTrait::unrated, stars == 0);
    return found;
}

bool holdsText(const ImageRecord& record, const QStringMatcher& text)
{
    const auto has = [&text](const QString& value) { return text.indexIn(value) >= 0; };
    return std::any_of(record.values.cbegin(), record.values.cend(), has)
        || std::any_of(record.lists.cbegin(), record.lists.cend(),
            [&](const QStringList& items) { return std::any_of(items.cbegin(), items.cend(), has); })
        || std::any_of(
            record.custom.cbegin(), record.custom.cend(), [&](const CustomValue& custom) { return has(custom.value); })
        || std::any_of(
            record.camera.cbegin(), record.camera.cend(), [&](const CameraRow& row) { return has(row.value); });
}

}  // namespace Quorbel
