#include "core/save/journal/JournalSidecar.h"

#include "core/save/SaveGuard.h"

#include <QFile>
#include <QSaveFile>
#include <QScopeGuard>

namespace Quorbel {

JournalSidecar JournalSidecar::of(const QString& path)
{
    JournalSidecar sidecar{ .path = path, .before = FileStamp::of(path) };
    QFile file(path);
    if (sidecar.before && file.open(QIODevice::ReadOnly))
        sidecar.text = file.readAll();
    // What could not be read whole is not written back either.
    if (sidecar.before && sidecar.text.size() != sidecar.before->size)
        return {};
    return sidecar;
}

bool JournalSidecar::restore() const
{
    if (path.isEmpty() || !after || FileStamp::of(path) != after)
        return true;
    if (!before)
        return QFile::remove(path);
    const QList<QUrl> files = SaveGuard::filesBehindLinks({ QUrl::fromLocalFile(path) });
    if (SaveGuard::isReadOnly(files.constFirst()))
        return false;
    const SaveGuard::AttributeKeeper attributes(files);
    const auto restoreAttributes = qScopeGuard([&attributes] { attributes.restore(); });
    QSaveFile file(files.constFirst().toLocalFile());
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
}

}  // namespace Quorbel
