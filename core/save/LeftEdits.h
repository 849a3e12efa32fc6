// Edits that were left behind unsaved, with their photos, until they are brought back.
// Thread: any. Plain values with pure functions. Knows neither selection nor file.
#pragma once

#include "core/save/Edits.h"

namespace Quorbel {

struct LeftEdits {
    Edits edits{};  ///< some, of one photo or more
    /// Of one photo: what it held then in the lists that the edits replace.
    QMap<QString, QStringList> heldLists{};
    /// Of one photo: keys of edits that are what it showed then, made to say that it is right.
    QStringList confirmed{};
    bool returns = false;  ///< put back without being asked for when just their photos are selected
    qint64 leftAt = 0;  ///< milliseconds since 1970, UTC

    /// The photo's edits as it is now: items that it gained since stay, items that it lost stay away, and what it holds
    /// already is no edit but where it was one then.
    Edits rebasedOnto(const ImageRecord& photo, const PhotoDetails* details = nullptr) const;
    /// Their photos: "a.jpg, b.jpg and 3 more".
    QString names() const;
    /// Their fields as people read them: "Title, Keywords and 2 more".
    QString fields() const;

    bool operator==(const LeftEdits&) const = default;
};

namespace LeftEditsList {

/// Edits that are kept.
constexpr qsizetype limit = 10;

/// In front of the others; the same edits of the same photos are kept once, and the oldest beyond `limit` go.
void keep(QList<LeftEdits>& list, const LeftEdits& left);
/// A photo has another name. Edits of the photo that had that name before do not pass to it.
void rename(QList<LeftEdits>& list, const QUrl& source, const QUrl& destination);
/// The same for many at once, which may also swap their names.
void rename(QList<LeftEdits>& list, const QHash<QUrl, QUrl>& names);

/// What a file of such edits holds, and back; nothing for a text that is none. Edits in it that make no sense are left
/// out.
QByteArray toJson(const QList<LeftEdits>& list);
std::optional<QList<LeftEdits>> fromJson(const QByteArray& text);

}  // namespace LeftEditsList

}  // namespace Quorbel
