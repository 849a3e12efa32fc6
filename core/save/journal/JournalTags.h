// Which tags a save touches, how they are read before it and put back after it. Thread: any. Pure.
#pragma once

#include "core/save/journal/JournalEntry.h"
#include "core/tool/WriteCommand.h"

namespace Quorbel {
struct EditPlan;
}

namespace Quorbel::JournalTags {

/// The tags that the plan assigns ("XMP-dc:Title", "GPSLatitude"), without duplicates, in the order of the plan; behind
/// them IPTC as a whole when its texts have to be re-encoded for that.
QStringList writtenTags(const EditPlan& plan);
/// The tags that some plan may assign, and IPTC as a whole: for whoever reads before it is known which.
const QStringList& allTags();
/// Arguments that read those tags for TagDump, language variants and custom fields included.
QStringList readArgs(const QStringList& writtenTags);
/// Of what a file holds in more tags, read by readArgs: what readArgs would have read of these alone.
FileTags among(const FileTags& tags, const QStringList& writtenTags);
/// What puts the old values back into one file.
WriteCommand restoreCommand(const JournalEntry& entry, const JournalFile& file);
/// Whether these tags, read by readArgs, are those that the file had; numbers up to the rounding of a restored
/// position.
bool isRestored(const JournalEntry& entry, const JournalFile& file, const FileTags& tags);

}  // namespace Quorbel::JournalTags
