// One change of one tag, as a save asks it of ExifTool; arguments() is the one place where it becomes text.
// Thread: any. A plain value and pure functions: starts nothing.
#pragma once

#include "core/text/Errors.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace Quorbel {

struct Assignment {
    enum class Operation {
        set,  ///< "-TAG=value": the tag's one value, or one more item of the list that the run makes; "" deletes
        add,  ///< "-TAG+=value": an item beside those that the file has
        remove,  ///< "-TAG-=value": an item less
        restore,  ///< "-TAG#=value": like set, by the number that the file stores; "" is a text without characters
    };

    QString tag{};  ///< with its group ("XMP-dc:Title"); the GPS tags come without one
    Operation operation = Operation::set;
    QString value{};
    bool operator==(const Assignment&) const = default;
};

/// The standard that a tag belongs to: "EXIF" (a position without a group too), "IPTC" or "XMP". A file holds each in a
/// home of its own; the tool may take one and refuse another.
QString homeOf(const QString& tag);

/// One run was to replace a tag and to add to it at once.
class AssignmentConflict final : public Error {
public:
    explicit AssignmentConflict(const QString& tag);
};

/// Throws AssignmentConflict when one tag is set (or restored) and also added to or taken from: ExifTool would then
/// keep what the tag held and add the rest, and say nothing. Tags are told apart as ExifTool does, in any case; that
/// two different names ("Subject", "XMP-dc:Subject") may mean the same tag is not seen.
void requireOneWay(const QList<Assignment>& assignments);

/// One argument each, in their order. Throws like requireOneWay().
QStringList arguments(const QList<Assignment>& assignments);

}  // namespace Quorbel
