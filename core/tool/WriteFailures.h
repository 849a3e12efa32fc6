// Reads from ExifTool's messages which files of a write failed, and why. Thread: any. Pure.
#pragma once

#include "core/text/Errors.h"

#include <QList>
#include <QString>
#include <QUrl>

namespace Quorbel {

struct FileFailure {
    QUrl file{};
    QString reason{};  ///< ExifTool's own words, "Not a valid JPG (looks more like a TXT)"
    bool operator==(const FileFailure&) const = default;
};

/// The targets that the tool's standard error names in a line "Error: REASON - PATH", in the targets' order. A
/// target that it does not name was written, unless the tool was cut off.
QList<FileFailure> writeFailures(const QString& standardError, const QList<QUrl>& targets);

/// The same from a failed run. When the tool names no file (it was killed, or could not start its work), all
/// targets count as failed, with the whole error as the reason.
QList<FileFailure> writeFailures(const ToolError& error, const QList<QUrl>& targets);

/// Why the tool did not take some assignments, in its own words: its warnings that name one of the tags (in whatever
/// group; no tags: any), "Not a floating point number for XMP-xmp:Rating". Tags with one cause share a line.
QStringList refusals(const QString& standardError, const QStringList& tags = {});

/// What the tool said of its failure, without paths and repetitions: its errors, else its refusals, else all of it.
QString toolReason(const ToolError& error);

}  // namespace Quorbel
