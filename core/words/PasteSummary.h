// What pasting fields would do to each of many photos, in numbers and in one line for each field.
// Thread: any. Pure: photos are handed in with what is unsaved of them.
#pragma once

#include "core/words/CopiedFields.h"

#include <optional>

namespace Quorbel {

/// Of one field. Numbers are those of photos that were read.
struct PasteCount {
    int replaced = 0;  ///< hold another text, which would go
    int filled = 0;  ///< hold nothing
    int same = 0;  ///< hold just that; of a list, all of its items
    int gained = 0;  ///< of a list: hold items, and would gain some
    int unknown = 0;  ///< were not looked at for this language yet
    /// The text that all of `replaced` hold; of a list of one photo its items.
    std::optional<QString> old{};

    int photos() const { return replaced + filled + same + gained + unknown; }
    bool operator==(const PasteCount&) const = default;
};

namespace PasteSummary {

struct Photo {
    ImageRecord record{};  ///< one that was read
    std::optional<PhotoDetails> details{};  ///< nothing where they are not known
};

/// By key. `unsaved` is what is edited of these photos: it counts as what they hold.
QMap<QString, PasteCount> counts(const CopiedFields& fields, const Edits& unsaved, const QList<Photo>& photos);

/// "Replaces 4 titles, fills 8"; of a field that is not ticked "Would replace 4 titles, fill 8". Of one photo what it
/// holds now.
QString line(const QString& key, const PasteCount& count, bool isTicked);

/// One line of what would be pasted.
QString shownValue(const CopiedFields& fields, const QString& key);

/// The keys of the fields in the order of their lines: words, then what is each photo's own, then fields that are not
/// always on screen.
QStringList lineKeys(const CopiedFields& fields);

/// Whether a field is ticked for somebody who never said so: dates, offsets and positions are each photo's own.
bool isTickedAtFirst(const QString& key);

}  // namespace PasteSummary

}  // namespace Quorbel
