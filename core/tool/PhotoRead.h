// One read of many photos: the tool's runs over them, and the search for those that it cannot read.
// Thread: any; blocks on ExifTool.
#pragma once

#include "core/schema/ImageRecord.h"
#include "core/tool/ExifToolRunner.h"
#include "core/tool/WriteFailures.h"

#include <QSet>

namespace Quorbel::PhotoRead {

/// What the two runs said of each file, by path.
struct Answers {
    QMap<QString, JSONObject> main{};
    QMap<QString, JSONObject> custom{};
    QMap<QString, QString> reasons{};  ///< why a file could not be read
    QSet<QString> gone{};
};

/// What can be read, and what cannot.
struct Outcome {
    QList<ImageRecord> records{};  ///< in the order of the URLs, without those left out or gone
    QList<FileFailure> leftOut{};  ///< in the order of the URLs; the reason as the tool or the decoder says it
    QList<FileFailure> sidecars{};  ///< those that could not be read, of records that are there without them
};

/// One record a URL, in their order, from two runs of the tool, and a third over those photos only that hold a custom
/// field named like a tag of the schema. Progress counts all runs, in files of the list. Throws the runner's errors;
/// then there are no records at all.
QList<ImageRecord> all(const ExifToolRunner& runner, const QList<QUrl>& urls, const ReadControl& control);

/// The same, but a file that cannot be read or decoded is left out and named, one that is gone by now is left out
/// without a word, and a tag called Error in a photo is nothing to stumble over. To find the culprits takes one more
/// run. Throws the runner's errors when the tool fails as a whole.
Outcome each(const ExifToolRunner& runner, const QList<QUrl>& urls, const ReadControl& control);

/// The runs of each() with other tags, over whatever files.
Answers ask(const ExifToolRunner& runner, const QStringList& tags, const QList<QUrl>& urls, const ReadControl& control);

}  // namespace Quorbel::PhotoRead
