// Which tags a save touches, how they are read before it and put back after it. Thread: any. Pure.
#pragma once

#include "core/save/journal/JournalEntry.h"
#include "core/tool/WriteCommand.h"

#include <optional>

namespace Quorbel {
struct EditPlan;
}

namespace Quorbel::JournalTags {

/// The tags that the plan assigns ("XMP-dc:Title", "GPSLatitude"), without duplicates, in the order of the plan; behind
/// them IPTC as a whole when its texts have to be re-encoded for that, and XMP as a whole when structures change, of
/// which the tool cannot write all that it reads. A text in one language stands for all of its
/// tag.
QStringList writtenTags(const EditPlan& plan);
/// Those that the save has assigned in this file.
const QStringList& writtenTags(const JournalEntry& entry, const JournalFile& file);
/// Arguments that read those tags for TagDump, language variants and custom fields included.
QStringList readArgs(const QStringList& writtenTags);
/// Of what a file holds in more tags, read by readArgs: what readArgs would have read of these alone.
FileTags among(const FileTags& tags, const QStringList& writtenTags);
/// What puts the old values back into one file; of XMP that is longer than an argument may be, nothing.
WriteCommand restoreCommand(const JournalEntry& entry, const JournalFile& file);
/// The tag that stands for a file's whole XMP, byte for byte.
QString xmpBlockTag();
/// XMP that goes back as a whole, and is too long to be an argument; nothing where it is not so.
std::optional<QByteArray> longXmp(const JournalEntry& entry, const JournalFile& file);
/// Whether what was found, read by readArgs of these or more tags, is what the file had; numbers up to the rounding of
/// a restored position.
bool isRestored(const JournalEntry& entry, const JournalFile& file, const FileTags& found);

}  // namespace Quorbel::JournalTags
