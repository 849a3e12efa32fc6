// What the sidecars of photos hold beside the records, put over what the photos' own files do.
// Thread: any; read() blocks on ExifTool, all else is pure.
#pragma once

#include "core/schema/FieldSpec.h"
#include "core/schema/ImageRecord.h"
#include "core/schema/PhotoDetails.h"
#include "core/sidecar/SidecarPolicy.h"
#include "core/text/JSONValue.h"
#include "core/tool/ExifToolRunner.h"

#include <QHash>

namespace Quorbel::SidecarDetails {

/// What the tool reads of the sidecars of those of the photos that have one, by photo, all in one run. A sidecar that
/// cannot be read holds nothing, as for the records. Throws the runner's errors.
QHash<QUrl, JSONObject> read(const ExifToolRunner& runner, const SidecarPolicy& policy,
    const QList<ImageRecord>& photos, const ReadControl& control);

/// Whether this sidecar decides what the field holds; one that is emptied there decides too.
bool decides(const FieldSpec& field, const JSONObject& sidecar);
/// The keyword paths of the photo: the sidecar's alone, where that holds keywords or paths of its own.
QStringList paths(const QStringList& ofFile, const QStringList& ofSidecar, const JSONObject& sidecar);
/// IPTC's fields. Of `ofSidecar` they are taken, where the sidecar decides.
void putOver(PhotoDetails& details, const PhotoDetails& ofSidecar, const JSONObject& sidecar);

}  // namespace Quorbel::SidecarDetails
