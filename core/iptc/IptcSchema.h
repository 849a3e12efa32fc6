// The properties of the IPTC Photo Metadata Standard 2025.1 that the fixed catalogue (FieldSchema) has no field for: 43
// of 66. They are fields like others wherever a field is looked up by its id, in drafts, edits and saves; what photos
// hold of them is not in their records, but in PhotoDetails.
// Thread: any. Built once, then immutable.
#pragma once

#include "core/schema/FieldSpec.h"

#include <QList>
#include <QMap>

namespace Quorbel::IptcSchema {

/// In the order in which they are offered. Their write tags are those of ExifTool 12.57, with group 1; the first one
/// is read, and the others where it is missing.
const QList<FieldSpec>& all();
/// Whether a field's id belongs here: it begins with "iptc.". Of the key of a language too.
bool isId(const QString& key);
/// The pointer stays valid for ever; nothing for any other id.
const FieldSpec* spec(const QString& id);
/// What the standard calls a field of all(): "Alt Text (Accessibility)".
QString standardName(const FieldSpec& field);
/// The other 23 properties: what the standard calls each, and the id of the field of FieldSchema that it is.
const QMap<QString, QString>& inFixedCatalogue();
/// What the details run asks for, beside the languages of texts.
QStringList readTags();
/// Whether ExifTool takes values of this tag by the code alone ("-TAG#=").
bool isWrittenByCode(const QString& tag);
/// What a tag is given for a code: IPTC's older block wants subjects as "IPTC:01000000:::", and the tool fills anything
/// shorter up with blanks. All other tags take the code.
QString storedIn(const QString& tag, const QString& code);

}  // namespace Quorbel::IptcSchema
