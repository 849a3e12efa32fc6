// Another name for a file, never in the place of another file. Thread: any; asks the file system.
#pragma once

#include <QString>

namespace Quorbel::FileMove {

/// Moves a file within its file system unless something has the new name already, in one step where the file system
/// can do that. Zero, or the system's error number: EEXIST for a name that is taken.
int withoutReplacing(const QString& from, const QString& to);

}  // namespace Quorbel::FileMove
