// What one writing run of ExifTool is told, beside its files. Thread: any. A plain value.
#pragma once

#include "core/tool/Assignment.h"

namespace Quorbel {

struct WriteCommand {
    QStringList options{};  ///< "-ec", "-tagsfromfile …": they come first, as they stand
    QList<Assignment> assignments{};
    /// Tags ("XMP-dc:Title") whose texts in further languages ("XMP-dc:Title-de") are then copied back from the file
    /// itself: assigning the tag has replaced them all.
    QStringList keptLanguages{};
    /// Texts in further languages. They stand behind that copy, which would bring back what they replace.
    QList<Assignment> languages{};

    bool isEmpty() const { return options.isEmpty() && assignments.isEmpty() && languages.isEmpty(); }
    bool operator==(const WriteCommand&) const = default;
};

/// One argument each, in the order in which the tool has to get them. Throws like requireOneWay(), over all
/// assignments.
QStringList arguments(const WriteCommand& command);

}  // namespace Quorbel
