#include "core/tool/TemporaryFiles.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QUuid>

#include <unistd.h>

namespace Quorbel::TemporaryFiles {

using namespace Qt::StringLiterals;

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
    return u"quorbel-"_s + id + u".conf"_s;
}

int clearAbandoned(const QString& folder, const QDateTime& now)
{
    // Files are written under a longer name first, which a killed process leaves behind as well.
    static const QRegularExpression ours(u"^quorbel-[0-9A-F-]{36}\\.conf(\\.\\w{6})?$"_s);
    return clear(QDir(folder), u"quorbel-*.conf*"_s, ours, now);
}

int clearHalfWritten(const QString& folder, const QDateTime& now)
{
    static const QRegularExpression ours(u"\\.json\\.\\w{6}$"_s);
    return clear(QDir(folder), u"*.json.??????"_s, ours, now);
}

}  // namespace Quorbel::TemporaryFiles
