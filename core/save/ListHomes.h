// What a save has to do so that no home of a list (keywords in IPTC, keywords in XMP) loses what only it holds: other
// programs write some homes and not the others, and only the first one is shown.
// Thread: any. Pure: starts nothing, touches no file.
//
// Two spellings count as one item where the one is what Windows Latin 1 made of the other, and of no second item; then
// the intact one stays.
#pragma once

#include "core/save/EditPlan.h"
#include "core/tool/TagDump.h"

#include <QHash>
#include <QUrl>

namespace Quorbel::ListHomes {

/// Field id to the items that were on screen, as the record has them: without what was typed.
using SeenLists = QMap<QString, QStringList>;

/// What happens to the lists of one photo.
struct Change {
    /// To be run before a plan that appends: what each home gains of the others, and gives up of damaged spellings and
    /// of further spellings of what the plan takes away.
    QList<Assignment> preparation{};
    /// Field id to the items of every home afterwards. A plan that replaces has to write just these, as they stand; one
    /// that appends leaves them among others.
    QMap<QString, QStringList> items{};
    /// Field id to the items, as files spell them, that were seen and leave all homes; behind those of a plan that
    /// takes items away, the items that this photo does not hold.
    QMap<QString, QStringList> takenAway{};
    QStringList joined{};  ///< ids of the fields whose homes this brings together
    bool operator==(const Change&) const = default;
};

/// `before`: what a file of this type holds in the tags of the plan. An item that was seen goes back as the file spells
/// it (on screen "1.10" is 1.1), one that was seen and is not in a plan that replaces leaves all homes, and one that
/// was never seen stays.
Change change(const EditPlan& plan, const FileTags& before, const QString& fileType, const SeenLists& seen);

/// How the record shows a stored item: ExifTool's JSON makes numbers and Booleans of texts that look like them.
QString shownText(const QString& item);

}  // namespace Quorbel::ListHomes
