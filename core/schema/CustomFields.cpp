#include "core/schema/CustomFields.h"

#include "core/language/Texts.h"
#include "core/schema/FieldSchema.h"
#include "core/tool/MetadataWriter.h"

#include <algorithm>

namespace Quorbel::CustomFields {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView prefix("custom:");

// The keys with a meaning of their own in ExifTool's tag tables (%specialTags of its main module), as far as they are
// letters only.
const QStringList& reservedNames()
{
    static const QStringList names{ u"AVOID"_s, u"DATAMEMBER"_s, u"FORMAT"_s, u"GROUPS"_s, u"NAMESPACE"_s, u"NOTES"_s,
        u"PERMANENT"_s, u"PREFERRED"_s, u"PRIORITY"_s, u"VARS"_s, u"WRITABLE"_s };
    return names;
}

// What ExifTool takes for something else than a name, in any case: the whole group, the kind of metadata, and an error
// of its own.
bool isTakenForOther(const QString& name)
{
    const QStringList names{ u"All"_s, u"XMP"_s, u"Error"_s };
    return names.contains(name, Qt::CaseInsensitive);
}

bool isAscii(const QString& name)
{
    return std::all_of(name.cbegin(), name.cend(), [](QChar c) { return c.unicode() < 0x80; });
}

}  // namespace

QString key(const QString& name)
{
    return prefix + name;
}

std::optional<QString> nameIn(const QString& key)
{
    return key.startsWith(prefix) ? std::optional(key.sliced(prefix.size())) : std::nullopt;
}

std::optional<QString> nameProblem(const QString& name)
{
    const auto stored = MetadataWriter::sanitizeCustomName(name);
    if (!stored)
        return std::nullopt;
    if (!isAscii(*stored))
        return Texts::tr("Only the letters A–Z and digits can be stored in a name.");
    if (stored->size() == 1)
        return Texts::tr("A name needs at least two letters or digits.");
    if (reservedNames().contains(*stored) || isTakenForOther(*stored))
        return Texts::tr("“%1” is a reserved word; choose another name.").arg(*stored);
    if (const FieldSpec* field = FieldSchema::readFrom(*stored))
        //: %1 is a field's name
        return Texts::tr("That is the field %1").arg(Texts::shown(field->label));
    return std::nullopt;
}

bool isWritable(const QString& name)
{
    return MetadataWriter::sanitizeCustomName(name) == name && isAscii(name) && name.size() > 1 && name != u"XMP"_s
        && !reservedNames().contains(name) && !MetadataWriter::customArgs(name, {}).isEmpty();
}

QString spelling(const QString& name, const QStringList& held)
{
    if (held.contains(name))
        return name;
    const auto found = std::find_if(held.cbegin(), held.cend(),
        [&name](const QString& other) { return other.compare(name, Qt::CaseInsensitive) == 0; });
    return found == held.cend() ? name : *found;
}

QStringList names(const QList<CustomValue>& values)
{
    QStringList names;
    for (const CustomValue& custom : values)
        names.append(custom.name);
    return names;
}

qsizetype indexOf(const QList<CustomValue>& values, const QString& name)
{
    const auto found = std::find_if(
        values.cbegin(), values.cend(), [&name](const CustomValue& custom) { return custom.name == name; });
    return found == values.cend() ? -1 : found - values.cbegin();
}

void put(QList<CustomValue>& values, const CustomValue& value)
{
    if (const qsizetype i = indexOf(values, value.name); i >= 0)
        values[i] = value;
    else
        values.append(value);
}

}  // namespace Quorbel::CustomFields
