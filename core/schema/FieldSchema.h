// The fixed catalogue of metadata fields: what each is called, how it is edited, and the tags it lives in.
// Thread: any. Built once, then immutable.
#pragma once

#include "core/schema/Enumerations.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

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
    bool operator==(const FieldSpec&) const = default;
};

namespace FieldSchema {

struct CameraRowSpec {
    QString label{};
    QStringList tags{};  ///< tried in order; the first with a value wins
};

const QList<FieldSpec>& all();
/// The field with exactly this id; nothing when there is none. The pointer stays valid for ever.
const FieldSpec* spec(const QString& id);
QList<FieldSpec> defaultFields();
QList<FieldSpec> addableFields();
/// Every field's read tags, without duplicates, ascending.
QStringList readTags();
const QList<CameraRowSpec>& cameraRows();
QStringList cameraReadTags();
/// The offsets that the offset picker offers.
const QStringList& timeZoneOffsets();

}  // namespace FieldSchema

}  // namespace Quorbel
