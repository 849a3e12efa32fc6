// Who reads: all that a record depends on beside its photo. The tool's version is asked for by a run of it; what that
// run said holds for as long as the files that it is made of are the same.
// Thread: any. ToolAnswer::of() blocks on ExifTool; all else only looks at files.
#pragma once

#include "core/tool/ExifToolRunner.h"

#include <QByteArray>

#include <optional>

namespace Quorbel {

/// What the tool says of itself.
struct ToolAnswer {
    QString version{};  ///< of the tool, of Perl and of the libraries that it can use
    QStringList folders{};  ///< where Perl looks for the tool's own library, in this order
    QByteArray library{};  ///< stamp of the library that it found there
    bool operator==(const ToolAnswer&) const = default;

    /// Runs the tool. Throws like ExifToolRunner::version().
    static ToolAnswer of(const ExifToolRunner& runner);
    /// Whether Perl would find the same library now.
    bool isValid() const;
};

namespace ReaderIdentity {

/// Of the files and variables that decide which version answers. Equal stamps: the same answer, when it is valid.
QByteArray toolStamp(const ExifToolRunner& runner);
/// Of what else changes answers: the configuration files that the tool loads by itself, the local time zone, and what
/// our reader makes of an answer.
QByteArray surroundings(const ExifToolRunner& runner);
/// Both in one.
QByteArray of(const ToolAnswer& tool, const QByteArray& surroundings);

}  // namespace ReaderIdentity

}  // namespace Quorbel
