// The one entry point through which photos are read, written and renamed.
// Thread: any, but never the interface's: every call blocks on ExifTool. Holds no state; copy it freely.
#pragma once

#include "core/iptc/IptcValues.h"
#include "core/save/SavePortion.h"
#include "core/save/WriteNotes.h"
#include "core/save/journal/SaveUndo.h"
#include "core/schema/ImageRecord.h"
#include "core/schema/PhotoDetails.h"
#include "core/sidecar/SidecarPolicy.h"
#include "core/tool/PhotoRead.h"

#include <optional>

namespace Quorbel {

struct MetadataService {
    ExifToolRunner runner{};
    SidecarPolicy sidecars{};  ///< read over the photos that it names, and written instead of them

    /// A service around the located tool; nothing when there is none.
    static std::optional<MetadataService> locate();
    QUrl toolURL() const { return runner.exiftoolURL; }

    /// One record a URL, or an error that stands for all; see PhotoRead::all().
    QList<ImageRecord> read(const QList<QUrl>& urls, const ReadControl& control = {}) const;
    /// Records of those that can be read, and the others with the reason; see PhotoRead::each().
    PhotoRead::Outcome readEach(const QList<QUrl>& urls, const ReadControl& control = {}) const;
    /// Writes the plan to all targets in one run (plus one a file when sidecars are on) and returns the tool's
    /// standard output; "" when nothing was run. A symbolic link stands for the file that it points to; extended
    /// attributes, mode and owner survive. A run beforehand re-encodes IPTC that cannot hold a text as it is encoded,
    /// one afterwards gives a position in XMP its sign. Throws ValueTooLong, or like SafeWriter::write().
    QString write(const EditPlan& plan, const QList<QUrl>& targets, const WriteOptions& options,
        const QList<Preparation>& preparations = {}, WriteNotes* notes = nullptr) const;
    /// The same for portions that share no target, in as few starts of the tool as hold their arguments (and one a file
    /// when sidecars are on). What keeps one portion from being written keeps none of the others. Throws the runner's
    /// errors where the tool could not be started at all, and FileError.
    PortionsOutcome writeEach(
        const QList<SavePortion>& portions, const WriteOptions& options, WriteNotes* notes = nullptr) const;
    /// The options of a save of these photos as this service and the journal are to have them: photos whose edits go
    /// beside them, and photos whose sidecar by name is another's, are mirrored by none.
    WriteOptions withOwnMirrors(WriteOptions options, const QList<QUrl>& photos) const;
    /// What these photos hold beside their records, read in one run; without those that could not be read. The records
    /// tell what is shown. Throws the runner's errors.
    QHash<QUrl, PhotoDetails> details(const QList<ImageRecord>& photos, const ReadControl& control = {}) const;
    /// See RefusedHomes::find().
    QMap<QUrl, QMap<QString, QString>> refusedHomes(const EditPlan& plan, const QList<QUrl>& targets) const;
    QMap<QUrl, QMap<QString, QString>> refusedHomes(const QList<SavePortion>& portions) const;
    /// What a save of just this plan, which knows nothing of the photos, is about to replace; see SaveUndo.
    JournalEntry journalEntry(const EditPlan& plan, const QList<QUrl>& targets, const WriteOptions& options = {}) const;
    /// See SaveUndo::oldValues().
    OldValues oldValues(const QStringList& tags, const QList<QUrl>& targets, const ReadControl& control = {}) const;
    /// What the files that a save of the targets writes hold in these tags, named as assignments name them, as it is
    /// stored: one run, for the targets that could be read. Throws the runner's errors.
    QHash<QUrl, FileTags> stored(
        QStringList tagNames, const QList<QUrl>& targets, const ReadControl& control = {}) const;
    /// See IptcRead::of().
    QHash<QUrl, IptcValues> iptc(
        const QStringList& ids, const QList<QUrl>& targets, const ReadControl& control = {}) const;
    UndoOutcome undo(const JournalEntry& entry) const;
    /// See Companions::movePhoto().
    void renameFile(const QUrl& source, const QUrl& destination) const;

    bool operator==(const MetadataService&) const = default;
};

}  // namespace Quorbel
