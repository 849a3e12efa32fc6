// What photos hold of some fields of IptcSchema, read in one run of ExifTool.
// Thread: any; blocks on ExifTool.
#pragma once

#include "core/iptc/IptcValues.h"
#include "core/tool/ExifToolRunner.h"

#include <QHash>

namespace Quorbel::IptcRead {

/// Without the photos that could not be read. No run for no ids. Throws the runner's errors.
QHash<QUrl, IptcValues> of(
    const ExifToolRunner& runner, const QStringList& ids, const QList<QUrl>& targets, const ReadControl& control = {});

}  // namespace Quorbel::IptcRead
