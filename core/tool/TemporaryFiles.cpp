#include "core/tool/TemporaryFiles.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QUuid>

#include <unistd.h>

namespace Quorbel::TemporaryFiles {

namespace {

constexpr qint64 longestSave = 3600;  // seconds

int clear(const QDir& folder, const QString& glob, const QRegularExpression& ours, const QDateTime& now)
{
    const QFileInfoList files = folder.entryInfoList({ glob }, QDir::Files | QDir::NoSymLinks | QDir::Hidden);
    int removed = 0;
    for (const QFileInfo& file : files)
        if (ours.match(file.fileName()).hasMatch() && file.ownerId() == geteuid()
            && file.lastModified().secsTo(now) > longestSave && QFile::remove(file.filePath()))
            ++removed;
    return removed;
}

}  // namespace

QString newConfigName()
{
    const QString id = QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
    return QStringLiteral("quorbel-") + id + QStringLiteral(".conf");
}

int clearAbandoned(const QString& folder, const QDateTime& now)
{
    // Files are written under a longer name first, which a killed process leaves behind as well.
    static const QRegularExpression ours(QStringLiteral("^quorbel-[0-9A-F-]{36}\\.conf(\\.\\w{6})?$"));
    return clear(QDir(folder), QStringLiteral("quorbel-*.conf*"), ours, now);
}

int clearHalfWritten(const QString& path, const QDateTime& now)
{
    const QFileInfo file(path);
    const QRegularExpression ours(u'^' + QRegularExpression::escape(file.fileName()) + QStringLiteral("\\.\\w{6}$"));
    return clear(file.dir(), QStringLiteral("*.??????"), ours, now);
}

}  // namespace Quorbel::TemporaryFiles
