#include "core/schema/CustomFields.h"

#include <algorithm>

namespace Quorbel::CustomFields {

namespace {

constexpr QLatin1StringView prefix("custom:");

}  // namespace

QString key(const QString& name)
{
    return prefix + name;
}

std::optional<QString> nameIn(const QString& key)
{
    return key.startsWith(prefix) ? std::optional(key.sliced(prefix.size())) : std::nullopt;
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

}  // namespace Quorbel::CustomFields
