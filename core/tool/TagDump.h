// Reads ExifTool's PHP output, the one form of its answers that keeps every byte of every value: JSON makes numbers of
// texts and drops what is not UTF-8, XML drops carriage returns and shows names otherwise than they are.
// Thread: any. Pure.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>

namespace Quorbel {

/// ExifTool tag ("XMP-dc:Title-de") to its values, as bytes: old EXIF texts are often not UTF-8.
using FileTags = QMap<QString, QList<QByteArray>>;

namespace TagDump {

/// The options that make the tool answer in this form: numbers as stored, the tags of all groups, binary values too.
QStringList options();
/// The tags by the path of their file. A file at which the answer breaks off is not among them.
QHash<QByteArray, FileTags> parse(const QByteArray& answer);

}  // namespace TagDump

}  // namespace Quorbel
