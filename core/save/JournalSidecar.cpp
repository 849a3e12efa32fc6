#include "core/save/JournalSidecar.h"

#include <QFile>
#include <QSaveFile>

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
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
}

}  // namespace Quorbel
