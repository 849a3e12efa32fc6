// Turns field values into assignments of ExifTool's tags.
// Thread: any. Pure and total: starts nothing, touches no file, never fails.
#pragma once

#include "core/tool/WriteCommand.h"

#include <optional>

namespace Quorbel {
struct EditPlan;
struct FieldSpec;
struct SidecarNote;
}  // namespace Quorbel

namespace Quorbel::MetadataWriter {

enum class ListMode {
    replace,  ///< the new items replace the tag's list
    append,  ///< the new items are added, without duplicates
};

/// ExifTool's family-1 group of the custom fields.
QString customNamespacePrefix();
/// The URI bound to it; see Product.h.
QString customNamespaceURI();

/// The value for each write tag of the field, in order; an empty one deletes the tags. Coordinates become the four GPS
/// tags.
QList<Assignment> scalarArgs(const FieldSpec& field, const QString& value);
/// Items are trimmed, blank ones dropped. replace: the tag is emptied, then given each item; append: each item is
/// taken out and added, and there is nothing at all without items.
QList<Assignment> listArgs(const FieldSpec& field, const QStringList& values, ListMode mode);
/// One assignment, or none when the name has no storable character, or is the one that stands for all of the group:
/// an assignment of "All" deletes every custom field.
QList<Assignment> customArgs(const QString& name, const QString& value);
/// What other programs want to know of a sidecar.
QList<Assignment> noteArgs(const SidecarNote& note);
/// What one save tells the tool: scalars, lists (as they stand, where the plan's are exact), items that are taken away
/// ("-=" alone, for every write tag of the list, behind all that is added), custom values, what
/// belongs together with them, and texts in further languages. Field ids that the schema does not know are skipped, and
/// so are the homes that the plan leaves out.
WriteCommand command(const EditPlan& plan);
/// All assignments of that command.
QList<Assignment> assignments(const EditPlan& plan);
/// The ExifTool user-definition file that declares the custom group with these names.
QString customConfig(const QStringList& names);
/// What of a typed name the tag's name keeps: letters, marks and digits of any script, without leading digits; nothing
/// when that leaves nothing.
std::optional<QString> sanitizeCustomName(const QString& name);

/// A typed date as "yyyy:MM:dd HH:mm:ss" in wall-clock time; what does not parse is passed on trimmed.
QString normalizeDate(const QString& text);
/// "0" to "5"; "" for blank; what is no number is passed on trimmed.
QString normalizeRating(const QString& text);
/// ExifTool's date as "yyyy-MM-dd HH:mm"; what does not parse is passed on trimmed.
QString displayDate(const QString& text);

}  // namespace Quorbel::MetadataWriter
