// The fixed catalogue of metadata fields.
// Thread: any. Built once, then immutable.
#pragma once

#include "core/schema/FieldSpec.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace Quorbel::FieldSchema {

struct CameraRowSpec {
    QString label{};
    QStringList tags{};  ///< tried in order; the first with a value wins
};

const QList<FieldSpec>& all();
/// The same, and behind them those of IptcSchema.
const QList<FieldSpec>& everyField();
/// The field with exactly this id, of this catalogue or of IptcSchema; nothing when there is none. The pointer stays
/// valid for ever.
const FieldSpec* spec(const QString& id);
/// The field that a tag of this name, in some group, is read for ("City": place); case plays no part. Nothing when
/// there is none.
const FieldSpec* readFrom(const QString& tagName);
/// Those that are always on screen, and the others.
QList<FieldSpec> defaultFields();
QList<FieldSpec> addableFields();
/// Every field's read tags, without duplicates, ascending.
QStringList readTags();
const QList<CameraRowSpec>& cameraRows();
QStringList cameraReadTags();
/// The offsets that the offset picker offers.
const QStringList& timeZoneOffsets();

}  // namespace Quorbel::FieldSchema
