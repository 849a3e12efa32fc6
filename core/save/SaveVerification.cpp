#include "core/save/SaveVerification.h"

#include "core/schema/CustomFields.h"
#include "core/schema/FieldSchema.h"
#include "core/text/Coordinates.h"
#include "core/text/Text.h"
#include "core/tool/MetadataWriter.h"

#include <algorithm>

namespace Quorbel::SaveVerification {

using namespace Qt::StringLiterals;

namespace {

// ExifTool prints "1.10" and "True" as the JSON values 1.1 and true: the same text in the file, another form here.
bool sameText(const QString& written, const QString& found)
{
    if (written == found)
        return true;
    const QString lower = written.toLower();
    if (lower == u"true"_s || lower == u"false"_s)
        return lower == found;
    const auto a = Text::parseDouble(written);
    const auto b = Text::parseDouble(found);
    return a && b && *a == *b;
}

bool samePosition(const QString& written, const QString& found)
{
    const auto normal = [](const QString& text) {
        const auto point = Coordinates::parse(text);
        return point ? Coordinates::displayString(*point) : Text::trimmed(text);
    };
    return normal(written) == normal(found);
}

bool sameScalar(const FieldSpec& field, const QString& written, const QString& found)
{
    switch (field.kind) {
    case FieldKind::coordinates:
        return samePosition(written, found);
    case FieldKind::date:
        return MetadataWriter::displayDate(MetadataWriter::normalizeDate(written)) == found;
    case FieldKind::rating:
        return sameText(MetadataWriter::normalizeRating(written), MetadataWriter::normalizeRating(found));
    default:
        return sameText(written, found);
    }
}

QStringList withoutBlanks(const QStringList& items)
{
    QStringList kept;
    for (const auto& item : items)
        if (const QString trimmed = Text::trimmed(item); !trimmed.isEmpty())
            kept.append(trimmed);
    return kept;
}

bool sameList(const QStringList& written, const QStringList& found, MetadataWriter::ListMode mode)
{
    const QStringList wanted = withoutBlanks(written);
    if (mode == MetadataWriter::ListMode::replace)
        return std::equal(wanted.cbegin(), wanted.cend(), found.cbegin(), found.cend(), sameText);
    return std::all_of(wanted.cbegin(), wanted.cend(), [&found](const QString& item) {
        return std::any_of(
            found.cbegin(), found.cend(), [&item](const QString& other) { return sameText(item, other); });
    });
}

bool holdsCustom(const ImageRecord& record, const CustomValue& custom)
{
    const auto name = MetadataWriter::sanitizeCustomName(custom.name);
    // Without its definition ExifTool reads a custom name back with a capital first letter.
    const auto found = std::find_if(record.custom.cbegin(), record.custom.cend(),
        [&name](const CustomValue& other) { return name && other.name.compare(*name, Qt::CaseInsensitive) == 0; });
    return sameText(custom.value, found == record.custom.cend() ? QString() : found->value);
}

// Whether the field is written, but not to all of its homes.
bool isInPart(const EditPlan& plan, const FieldSpec& field)
{
    if (plan.leftOut.isEmpty())
        return false;
    EditPlan alone{ .leftOut = plan.leftOut };
    if (const auto scalar = plan.scalars.constFind(field.id); scalar != plan.scalars.cend())
        alone.scalars.insert(field.id, *scalar);
    if (const auto list = plan.lists.constFind(field.id); list != plan.lists.cend())
        alone.lists.insert(field.id, *list);
    const auto rest = MetadataWriter::assignments(alone);
    alone.leftOut.clear();
    return !rest.isEmpty() && rest != MetadataWriter::assignments(alone);
}

}  // namespace

QStringList differences(const EditPlan& plan, const ImageRecord& record)
{
    QStringList keys;
    for (const auto& field : FieldSchema::all()) {
        if (isInPart(plan, field))
            continue;
        if (const auto scalar = plan.scalars.constFind(field.id);
            scalar != plan.scalars.cend() && !sameScalar(field, *scalar, record.values.value(field.id)))
            keys.append(field.id);
        if (const auto list = plan.lists.constFind(field.id);
            list != plan.lists.cend() && !sameList(*list, record.lists.value(field.id), plan.listMode))
            keys.append(field.id);
    }
    for (const auto& custom : plan.customs)
        if (!holdsCustom(record, custom))
            keys.append(CustomFields::key(custom.name));
    return keys;
}

QStringList labels(const QStringList& keys)
{
    QStringList texts;
    for (const auto& key : keys) {
        const FieldSpec* field = FieldSchema::spec(key);
        texts.append(field ? field->label : CustomFields::nameIn(key).value_or(key));
    }
    return texts;
}

}  // namespace Quorbel::SaveVerification
