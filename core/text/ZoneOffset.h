// How far a time zone is ahead of UTC, as photos write it: "+02:00", "-03:30", "Z". Thread: any. Pure.
#pragma once

#include <QString>

#include <optional>

namespace Quorbel::ZoneOffset {

/// Minutes, up to 14 hours either way; nothing for any other text.
std::optional<int> minutes(const QString& text);
/// "+02:00"; "+00:00", too.
QString text(int minutes);

}  // namespace Quorbel::ZoneOffset
