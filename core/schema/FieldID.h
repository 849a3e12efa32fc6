// Ids of the fields that code beside the schema asks for by name. Thread: any. Constants.
#pragma once

#include <QString>

namespace Quorbel::FieldID {

inline constexpr QLatin1StringView title("title");
inline constexpr QLatin1StringView description("description");
inline constexpr QLatin1StringView date("date");
inline constexpr QLatin1StringView keywords("keywords");
inline constexpr QLatin1StringView creator("creator");
inline constexpr QLatin1StringView copyright("copyright");
inline constexpr QLatin1StringView place("place");
inline constexpr QLatin1StringView coords("coords");
inline constexpr QLatin1StringView headline("headline");
inline constexpr QLatin1StringView event("event");
inline constexpr QLatin1StringView state("state");
inline constexpr QLatin1StringView country("country");
inline constexpr QLatin1StringView sublocation("sublocation");
inline constexpr QLatin1StringView rating("rating");

}  // namespace Quorbel::FieldID
