// One metadata field: what it is called, how it is edited, and the tags it lives in. Thread: any. Plain values.
#pragma once

#include "core/schema/Enumerations.h"

#include <QString>
#include <QStringList>

namespace Quorbel {

/// The last three are kinds of IptcSchema's fields only: a whole number, a code of a vocabulary, a structure.
enum class FieldKind { text, multiline, keywords, date, coordinates, rating, offset, number, code, structure };
/// The inspector's sections, in their order on screen; the raw value is the section's title. Those behind the first
/// three hold fields of IptcSchema only.
enum class FieldSection {
    common,
    location,
    additional,
    contact,
    people,
    locationCreated,
    locationShown,
    subjects,
    things,
    regions,
    rights,
    licensing,
    source,
    image,
};

template <>
struct RawValues<FieldKind> {
    static const QList<std::pair<FieldKind, QString>>& table();
};
template <>
struct RawValues<FieldSection> {
    static const QList<std::pair<FieldSection, QString>>& table();
};

struct FieldSpec {
    QString id{};  ///< stable key of drafts, records and plans
    QString label{};  ///< name shown to the user
    FieldKind kind = FieldKind::text;
    FieldSection section = FieldSection::common;
    QStringList writeTags{};  ///< tags that a save assigns, in order, each with its specific group
    QStringList readTags{};  ///< group-0 tags consulted when reading, the preferred one first
    QString namespaceHint{};  ///< where the value lands, as shown to the user
    bool alwaysShown = false;
    QString addNote{};  ///< one line for the add-field sheet
    bool addOnly = false;

    bool isSeveral = false;  ///< holds several numbers, codes or structures
    bool hasLanguages = false;  ///< of IptcSchema's fields: the text may come in several languages
    QString vocabulary{};  ///< of a code: the Vocabulary that it is one of
    QString structure{};  ///< of a structure: its name among IptcStructures
    QString standard{};  ///< of IptcSchema's fields: what the IPTC Photo Metadata Standard calls it, and since when

    bool isList() const { return kind == FieldKind::keywords || isSeveral; }
    /// Of its write tags the one whose text may come in several languages; "" when there is none.
    QString languageTag() const;
    bool operator==(const FieldSpec&) const = default;
};

}  // namespace Quorbel
