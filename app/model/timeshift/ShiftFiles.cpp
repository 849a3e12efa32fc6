#include "app/model/timeshift/ShiftFiles.h"

#include "core/save/SaveGuard.h"
#include "core/save/shift/SidecarShift.h"
#include "core/sidecar/SidecarPlan.h"

#include <QFile>
#include <QFileInfo>

namespace Quorbel {

namespace {

QString behindLink(const QUrl& file)
{
    return SaveGuard::filesBehindLinks({ file }).constFirst().toLocalFile();
}

}  // namespace

ShiftFiles::ShiftFiles(const SidecarPolicy& policy, const QList<QUrl>& targets)
    : m_targets(targets)
{
    const QList<QUrl> files = policy.filesToWrite(targets);
    for (qsizetype i = 0; i < files.size(); ++i)
        if (files.at(i) != targets.at(i))
            m_sidecars.insert(targets.at(i), files.at(i));
    if (!m_sidecars.isEmpty())
        m_savedAt = SidecarPlan::savedAt();
}

QStringList ShiftFiles::tags() const
{
    return m_sidecars.isEmpty() ? PhotoShift::tags()
                                : PhotoShift::tags() + SidecarShift::tags() + SidecarPlan::tagsOf({});
}

QList<QUrl> ShiftFiles::toRead() const
{
    const QSet<QUrl> themselves(m_targets.cbegin(), m_targets.cend());
    QList<QUrl> files = m_targets;
    for (const QUrl& file : written(m_targets))
        if (!themselves.contains(file) && QFileInfo::exists(file.toLocalFile()))
            files.append(file);
    return files;
}

QList<QUrl> ShiftFiles::written(const QList<QUrl>& targets) const
{
    QList<QUrl> files;
    QSet<QUrl> known;
    for (const QUrl& target : targets)
        if (const QUrl file = written(target); !known.contains(file)) {
            known.insert(file);
            files.append(file);
        }
    return files;
}

FileTags ShiftFiles::held(const QUrl& target, const OldValues& values) const
{
    return values.value(QFile::encodeName(behindLink(written(target))));
}

std::optional<PhotoShift> ShiftFiles::shifted(const QUrl& target, const TimeShift& shift, const OldValues& values) const
{
    const auto photo = values.constFind(QFile::encodeName(behindLink(target)));
    if (photo == values.cend())
        return std::nullopt;
    if (!isBeside(target))
        return PhotoShift::of(shift, *photo);
    const FileTags sidecar = held(target, values);
    return SidecarShift::of(shift, sidecar, *photo, SidecarPlan::note(target.fileName(), sidecar, m_savedAt));
}

QList<QUrl> ShiftFiles::changedSince(const QHash<QUrl, FileStamp>& stamps) const
{
    const auto isSame = [&stamps](const QUrl& file) {
        const auto then = stamps.constFind(file);
        return FileStamp::of(file.toLocalFile()) == (then == stamps.cend() ? std::nullopt : std::optional(*then));
    };
    QList<QUrl> targets = m_targets;
    targets.removeIf([&](const QUrl& target) {
        return stamps.contains(target) && isSame(target) && (!isBeside(target) || isSame(written(target)));
    });
    return targets;
}

QHash<QUrl, QList<FileTags>> ShiftFiles::stored(const ExifToolRunner& runner, const QStringList& tags) const
{
    const QHash<QUrl, FileTags> read = MetadataService{ runner }.stored(tags, toRead());
    QHash<QUrl, QList<FileTags>> stored;
    for (const QUrl& target : m_targets) {
        if (isBeside(target) && read.contains(written(target)))
            stored[target].append(read.value(written(target)));
        if (read.contains(target))
            stored[target].append(read.value(target));
    }
    return stored;
}

void ShiftFiles::addTo(JournalEntry& entry) const
{
    QHash<QString, QUrl> photos;
    for (auto sidecar = m_sidecars.cbegin(); sidecar != m_sidecars.cend(); ++sidecar)
        photos.insert(behindLink(*sidecar), sidecar.key());
    for (JournalFile& file : entry.files)
        if (const auto photo = photos.constFind(file.path); photo != photos.cend())
            file.link = photo->toLocalFile();
}

QList<FileFailure> ShiftFiles::byTarget(const QList<FileFailure>& failures) const
{
    QHash<QUrl, QString> reasons;
    for (const FileFailure& failure : failures)
        reasons.insert(failure.file, failure.reason);
    QList<FileFailure> own;
    for (const QUrl& target : m_targets)
        if (const auto reason = reasons.constFind(written(target)); reason != reasons.cend())
            own.append({ target, *reason });
    return own;
}

}  // namespace Quorbel
