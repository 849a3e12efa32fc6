// The fields of one photo as a text that anything can carry: the clipboard, its managers, a file, a mail. Pasted, they
// are edits of other photos.
// Thread: any. A plain value. Knows neither clipboard nor selection.
#pragma once

#include "core/save/Edits.h"

#include <QByteArray>
#include <QDateTime>

#include <variant>

namespace Quorbel {

struct CopiedFields {
    /// Characters of a text of fields, bytes of its file.
    static constexpr qsizetype largest = 4LL * 1024 * 1024;

    QString photo{};  ///< path of the photo that they were copied from; "" where that is not known
    QDateTime copiedAt{};  ///< local time; invalid where that is not known
    /// Texts that are not empty, items to be added to lists, paths of keywords among these, custom values. No subjects.
    Edits edits{};

    /// What one sees of a photo: texts in further languages are among its values. `paths`: those that it holds.
    static CopiedFields of(const QString& photo, const ExternalRefresh::Drafts& shown, const QStringList& paths);

    /// Keys of the fields (as in Edits), in the order in which the inspector shows them.
    QStringList keys() const;
    /// Those of these keys alone; paths go with the keywords.
    Edits chosen(const QSet<QString>& keys) const;

    /// What somebody reads who pastes it into a text.
    QByteArray toJson() const;
    /// Why a text is none of ours that can be used.
    enum class Refusal {
        foreign,  ///< no text of copied fields, or a damaged one
        newer,  ///< of a later version of the program
        tooLarge,
        empty,  ///< no field in it that is known here
    };
    /// What makes no sense in it is left out.
    static std::variant<CopiedFields, Refusal> fromJson(const QByteArray& text);

    bool operator==(const CopiedFields&) const = default;

private:
    void put(const QString& key, const QString& text);
    void putItems(const QString& id, const QStringList& items);
    void putPaths(const QStringList& paths);
};

/// "Title", "Title (German)", or the name of the custom field.
QString labelOfKey(const QString& key);

}  // namespace Quorbel
