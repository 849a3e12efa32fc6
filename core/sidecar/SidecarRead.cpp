#include "core/sidecar/SidecarRead.h"

#include "core/sidecar/SidecarSchema.h"
#include "core/tool/MetadataReader.h"
#include "core/tool/PhotoRead.h"

#include <QFileInfo>
#include <QHash>
#include <QSet>

namespace Quorbel::SidecarRead {

using namespace Qt::StringLiterals;

namespace {

// The tool makes nothing of it, and says so in a file's own tag only.
QString reasonForNoFile(const QFileInfo& sidecar)
{
    if (sidecar.isDir())
        return u"Not a file"_s;
    return sidecar.size() == 0 ? u"File is empty"_s : QString();
}

// What the tool reads of files that are no XMP, or half of one, is nothing, and no error to it.
QString reasonIn(const JSONObject& main)
{
    if (main.value(u"File:FileType"_s).stringValue() != u"XMP"_s)
        return u"Not an XMP file"_s;
    const QString warning = main.value(u"ExifTool:Warning"_s).stringValue().value_or(QString());
    return warning.startsWith(u"XMP format error"_s) ? warning : QString();
}

QStringList readTags()
{
    return SidecarSchema::readTags() << u"FileType"_s << u"Warning"_s;
}

}  // namespace

QList<FileFailure> overlay(
    const ExifToolRunner& runner, const SidecarPolicy& policy, QList<ImageRecord>& photos, const ReadControl& control)
{
    QList<FileFailure> broken;
    if (!policy.isInUse())
        return broken;
    QList<QUrl> sidecars;
    QSet<QString> known;
    QHash<qsizetype, QString> paths;  // by position of the photo
    for (qsizetype i = 0; i < photos.size(); ++i) {
        const QString path = policy.existing(photos.at(i).url);
        if (path.isEmpty())
            continue;
        const QFileInfo file(path);
        photos[i].sidecarName = file.fileName();
        photos[i].sidecarModificationDate = file.lastModified();
        if (const QString reason = reasonForNoFile(file); !reason.isEmpty()) {
            broken.append({ QUrl::fromLocalFile(path), reason });
            continue;
        }
        paths.insert(i, path);
        if (!known.contains(path))
            sidecars.append(QUrl::fromLocalFile(path));
        known.insert(path);
    }
    const PhotoRead::Answers answers = PhotoRead::ask(
        runner, readTags(), sidecars, { .progress = {}, .stop = control.stop, .started = control.started });
    QSet<QString> unusable;
    for (const QUrl& url : std::as_const(sidecars)) {
        const QString path = url.toLocalFile();
        const QString reason = answers.reasons.value(path, reasonIn(answers.main.value(path)));
        if (reason.isEmpty() || answers.gone.contains(path))
            continue;
        unusable.insert(path);
        broken.append({ url, reason });
    }
    for (auto path = paths.cbegin(); path != paths.cend(); ++path)
        if (!unusable.contains(*path))
            MetadataReader::overlay(photos[path.key()], answers.main.value(*path), answers.custom.value(*path));
    return broken;
}

}  // namespace Quorbel::SidecarRead
