// The temporary files that a save needs, and what is left of them when the program is killed.
// Thread: any. Touches only files that bear its own names.
#pragma once

#include <QDateTime>
#include <QDir>
#include <QString>

namespace Quorbel::TemporaryFiles {

/// A new name, "quorbel-<identifier>.conf", for the definitions of custom fields that a save hands to the tool.
QString newConfigName();
/// Removes such files of this user that are more than an hour old: no save takes that long. How many there were.
int clearAbandoned(const QString& folder = QDir::tempPath(), const QDateTime& now = QDateTime::currentDateTime());
/// Removes half-written JSON files from a folder of ours that are more than an hour old: "<name>.json.<six
/// characters>", as QSaveFile leaves them when the process is killed. How many there were.
int clearHalfWritten(const QString& folder, const QDateTime& now = QDateTime::currentDateTime());

}  // namespace Quorbel::TemporaryFiles
