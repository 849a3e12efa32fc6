// Why a save, or a part of it, did not happen: what the tool said, told to the user.
// Thread: any. Pure.
#pragma once

#include "app/model/saving/SaveJob.h"

namespace Quorbel::SaveReasons {

/// "not written", with the tool's reasons for these fields (keys) where it gave any.
QString notWritten(const QStringList& keys, const QString& messages);
/// "EXIF refused: Bad format (0) for IFD0 entry 0".
QString refused(const QMap<QString, QString>& reasonByHome);
/// The homes without which most can be saved at the least loss: what some of the photos refuse, the fewest first.
QStringList homesToLeaveOut(const QMap<QUrl, QMap<QString, QString>>& refusedHomes);

/// "Saved, but 2 fields read back differently: Coordinates, Job ID", with the tool's reasons; "Nothing was written: …"
/// of a save that changed no file. At least one key.
QString differencesText(const QStringList& keys, const SaveJob::Written& written);
/// What was left alone though the save went well; "" when there is nothing to say.
QString notesText(const WriteNotes& notes);

}  // namespace Quorbel::SaveReasons
