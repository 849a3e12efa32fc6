// One metadata field: what it is called, how it is edited, and the tags it lives in. Thread: any. Plain values.
#pragma once

#include "core/schema/Enumerations.h"

#include <QString>
#include <QStringList>

namespace Quorbel {

enum class FieldKind { text, multiline, keywords, date, coordinates, rating, offset };
/// The inspector's sections, in their order on screen; the raw value is the section's title.
enum class FieldSection { common, location, additional };

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

    bool isList() const { return kind == FieldKind::keywords; }
    /// Of its write tags the one whose text may come in several languages; "" when there is none.
    QString languageTag() const;
    bool operator==(const FieldSpec&) const = default;
};

}  // namespace Quorbel
