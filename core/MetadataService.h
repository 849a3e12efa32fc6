// The one entry point through which photos are read, written and renamed.
// Thread: any, but never the interface's: every call blocks on ExifTool. Holds no state; copy it freely.
#pragma once

#include "core/EditPlan.h"
#include "core/ExifToolRunner.h"
#include "core/ImageRecord.h"

#include <optional>

namespace Quorbel {

struct MetadataService {
    ExifToolRunner runner{};

    /// A service around the located tool; nothing when there is none.
    static std::optional<MetadataService> locate();
    QUrl toolURL() const { return runner.exiftoolURL; }

    /// One record a URL, in their order, from exactly two runs of the tool. Progress counts the files of the main
    /// run. Throws the runner's errors; then there are no records at all.
    QList<ImageRecord> read(const QList<QUrl>& urls, const ReadControl& control = {}) const;
    /// Writes the plan to all targets in one run (plus one a file when sidecars are on) and returns the tool's
    /// standard output; "" when nothing was run. Throws the runner's errors and FileError.
    QString write(const EditPlan& plan, const QList<QUrl>& targets, const WriteOptions& options) const;
    /// Moves the photo within its file system, and with it its sidecar and its backup as far as they exist. Never
    /// replaces a file: throws FileError when the destination exists or the main move fails; a companion whose
    /// new name is taken stays where it is.
    void renameFile(const QUrl& source, const QUrl& destination) const;

    bool operator==(const MetadataService&) const = default;
};

}  // namespace Quorbel
