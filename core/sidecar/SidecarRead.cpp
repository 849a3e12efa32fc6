#include "core/sidecar/SidecarRead.h"

#include "core/language/Texts.h"
#include "core/sidecar/SidecarSchema.h"
#include "core/tool/MetadataReader.h"
#include "core/tool/PhotoRead.h"

#include <QFileInfo>

namespace Quorbel::SidecarRead {

using namespace Qt::StringLiterals;

namespace {

// The tool makes nothing of it, and says so in a file's own tag only.
QString reasonForNoFile(const QFileInfo& sidecar)
{
    if (sidecar.isDir())
        return Texts::tr("Not a file");
    return sidecar.size() == 0 ? Texts::tr("File is empty") : QString();
}

QStringList readTags()
{
    return SidecarSchema::readTags() << u"FileType"_s << u"Warning"_s;
}

}  // namespace

QString reasonIn(const JSONObject& read)
{
    if (read.value(u"File:FileType"_s).stringValue() != u"XMP"_s)
        return Texts::tr("Not an XMP file");
    const QString warning = read.value(u"ExifTool:Warning"_s).stringValue().value_or(QString());
    return warning.startsWith(u"XMP format error"_s) ? warning : QString();
}

QHash<QString, Answer> of(const ExifToolRunner& runner, const QStringList& paths, const ReadControl& control)
{
    QHash<QString, Answer> found;
    QList<QUrl> readable;
    for (const QString& path : paths) {
        if (found.contains(path))
            continue;
        const QString reason = reasonForNoFile(QFileInfo(path));
        found.insert(path, { .reason = reason });
        if (reason.isEmpty())
            readable.append(QUrl::fromLocalFile(path));
    }
    const PhotoRead::Answers answers = PhotoRead::ask(
        runner, readTags(), readable, { .progress = {}, .stop = control.stop, .started = control.started });
    for (const QUrl& url : std::as_const(readable)) {
        const QString path = url.toLocalFile();
        if (answers.gone.contains(path)) {
            found.remove(path);
            continue;
        }
        Answer& answer = found[path];
        answer.reason = answers.reasons.value(path, reasonIn(answers.main.value(path)));
        if (answer.reason.isEmpty())
            answer = { answers.main.value(path), answers.custom.value(path), {} };
    }
    return found;
}

QList<FileFailure> overlay(
    const ExifToolRunner& runner, const SidecarPolicy& policy, QList<ImageRecord>& photos, const ReadControl& control)
{
    QList<FileFailure> broken;
    if (!policy.isInUse())
        return broken;
    QStringList sidecars;
    QHash<qsizetype, QString> paths;  // by position of the photo
    for (qsizetype i = 0; i < photos.size(); ++i) {
        const QString path = policy.existing(photos.at(i).url);
        if (path.isEmpty())
            continue;
        const QFileInfo file(path);
        photos[i].sidecarName = file.fileName();
        photos[i].sidecarModificationDate = file.lastModified();
        paths.insert(i, path);
        sidecars.append(path);
    }
    sidecars.removeDuplicates();
    const QHash<QString, Answer> answers = of(runner, sidecars, control);
    for (const QString& path : std::as_const(sidecars))
        if (const QString reason = answers.value(path).reason; !reason.isEmpty())
            broken.append({ QUrl::fromLocalFile(path), reason });
    for (auto path = paths.cbegin(); path != paths.cend(); ++path)
        if (const auto answer = answers.constFind(*path); answer != answers.cend() && answer->reason.isEmpty())
            MetadataReader::overlay(photos[path.key()], answer->main, answer->custom);
    return broken;
}

}  // namespace Quorbel::SidecarRead
