// What the last saves replaced, so that they can be taken back, also after a restart.
// Thread: any, one at a time on one journal file. Knows nothing of processes: SaveUndo reads the old values and
// writes them back.
#pragma once

#include "core/tool/TagDump.h"
#include "core/tool/WriteCommand.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace Quorbel {

struct EditPlan;

/// Enough of a file's state to tell whether somebody else changed it since.
struct FileStamp {
    qint64 modified = 0;  ///< milliseconds since 1970, UTC
    qint64 size = 0;  ///< bytes
    bool operator==(const FileStamp&) const = default;

    /// Nothing when there is no such file.
    static std::optional<FileStamp> of(const QString& path);
};

/// The XMP file beside a photo that a save has written as well.
struct JournalSidecar {
    QString path{};  ///< empty: none was written
    std::optional<FileStamp> before{};  ///< nothing when there was none
    std::optional<FileStamp> after{};
    QByteArray text{};  ///< all that it held before
    bool operator==(const JournalSidecar&) const = default;

    /// As it is now, before the save.
    static JournalSidecar of(const QString& path);
    /// Puts it back unless somebody else changed it since. Whether that worked, or was not to be done.
    bool restore() const;
};

struct JournalFile {
    QString path{};
    FileStamp before{};
    FileStamp after{};
    /// What they held before the save. A written tag that is not here was absent.
    FileTags tags{};
    JournalSidecar sidecar{};
    bool operator==(const JournalFile&) const = default;
};

/// One save.
struct JournalEntry {
    QDateTime savedAt{};
    QStringList writtenTags{};  ///< the tags that the save assigned, as its assignments name them
    QStringList customNames{};  ///< names of the custom fields among them
    QList<JournalFile> files{};
    bool operator==(const JournalEntry&) const = default;
};

namespace SaveJournal {

/// Saves that are kept.
constexpr qsizetype limit = 20;

/// The tags that the plan assigns ("XMP-dc:Title", "GPSLatitude"), without duplicates, in the order of the plan.
QStringList writtenTags(const EditPlan& plan);
/// Arguments that read those tags for TagDump, language variants and custom fields included.
QStringList readArgs(const QStringList& writtenTags);
/// What puts the old values back into one file.
WriteCommand restoreCommand(const JournalEntry& entry, const JournalFile& file);
/// Whether these tags, read by readArgs, are those that the file had; numbers up to the rounding of a restored
/// position.
bool isRestored(const JournalEntry& entry, const JournalFile& file, const FileTags& tags);

/// The journal's saves, oldest first; none for a file that is missing or damaged.
QList<JournalEntry> load(const QString& journalPath);
/// Writes them, the newest `limit` of them. False when the file system refuses; the old journal is then intact.
bool store(const QString& journalPath, const QList<JournalEntry>& entries);
/// Follows a photo that got another name.
void rename(QList<JournalEntry>& entries, const QString& from, const QString& to);
/// Takes the newest save out after it was undone in these files (paths). Those that it had found as an earlier save
/// left them are, as they now stand, again what that earlier save left.
void removeUndone(QList<JournalEntry>& entries, const QStringList& restored);

}  // namespace SaveJournal

}  // namespace Quorbel
