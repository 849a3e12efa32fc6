// Which homes of a photo ("EXIF", "IPTC", "XMP") keep it from being saved: the tool takes all of a save or nothing.
// Thread: any; blocks on ExifTool. Changes no file.
#pragma once

#include <QMap>
#include <QUrl>

namespace Quorbel {
struct EditPlan;
struct ExifToolRunner;
struct SavePortion;
}  // namespace Quorbel

namespace Quorbel::RefusedHomes {

/// Of these targets, whose save failed: those that take a part of the plan, each with the homes that they refuse and
/// the tool's reason. One run a home, over all targets; none when the plan knows one home only. Throws the runner's
/// errors where the tool could not be started at all.
QMap<QUrl, QMap<QString, QString>> find(const ExifToolRunner& runner, const EditPlan& plan, const QList<QUrl>& targets);
/// The same of several portions, in as few starts of the tool as hold their arguments.
QMap<QUrl, QMap<QString, QString>> find(const ExifToolRunner& runner, const QList<SavePortion>& portions);

}  // namespace Quorbel::RefusedHomes
