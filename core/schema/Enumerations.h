// Raw values of enumerations: the texts under which they are stored and shown.
// An enumeration takes part by specialising RawValues with a table of (case, raw value) pairs in case order.
#pragma once

#include <QList>
#include <QString>

#include <optional>
#include <utility>

namespace Quorbel {

template <typename E>
struct RawValues;  // static const QList<std::pair<E, QString>>& table();

template <typename E>
QString rawValue(E e)
{
    for (const auto& [value, raw] : RawValues<E>::table())
        if (value == e)
            return raw;
    return {};
}

/// Nothing for a text that is no raw value.
template <typename E>
std::optional<E> fromRawValue(const QString& raw)
{
    for (const auto& [value, text] : RawValues<E>::table())
        if (text == raw)
            return value;
    return std::nullopt;
}

/// All cases, in the order of their declaration.
template <typename E>
QList<E> allCases()
{
    QList<E> cases;
    for (const auto& entry : RawValues<E>::table())
        cases.append(entry.first);
    return cases;
}

}  // namespace Quorbel
