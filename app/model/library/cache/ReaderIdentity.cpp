#include "app/model/library/cache/ReaderIdentity.h"

#include "app/model/library/cache/RecordCode.h"
#include "core/tool/MetadataReader.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QTimeZone>

#include <sys/stat.h>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QByteArray joined(const QByteArrayList& parts)
{
    return QCryptographicHash::hash(parts.join('\n'), QCryptographicHash::Sha1);
}

// Of the file behind the name; the name alone where there is none.
QByteArray fileStamp(const QString& path)
{
    struct stat status { };
    const QByteArray name = QFile::encodeName(path);
    if (stat(name.constData(), &status) != 0)
        return name;
    const auto time = [](const timespec& moment) {
        return QByteArray::number(qint64(moment.tv_sec)) + '.' + QByteArray::number(qint64(moment.tv_nsec));
    };
    return QByteArrayList{ name, QByteArray::number(quint64(status.st_dev)), QByteArray::number(quint64(status.st_ino)),
        QByteArray::number(qint64(status.st_size)), time(status.st_mtim), time(status.st_ctim) }
        .join(' ');
}

QByteArray libraryStamp(const QStringList& folders)
{
    for (const QString& folder : folders)
        if (const QString file = folder + u"/Image/ExifTool.pm"_s; QFileInfo::exists(file))
            return fileStamp(file);
    return {};
}

// Where the tool looks, in its order: the user's own, and beside the script or what the script is a link to.
QStringList configurationFiles(const ExifToolRunner& runner)
{
    const QString name = u"/.ExifTool_config"_s;
    QString home = qEnvironmentVariable("EXIFTOOL_HOME");
    if (home.isEmpty())
        home = qEnvironmentVariable("HOME", u"."_s);
    const QFileInfo script(runner.exiftoolURL.toLocalFile());
    return { home + name, script.absolutePath() + name, QFileInfo(script.symLinkTarget()).absolutePath() + name };
}

}  // namespace

ToolAnswer ToolAnswer::of(const ExifToolRunner& runner)
{
    const QString heading = u"Include directories:"_s;
    const QString said = runner.versions();
    ToolAnswer answer{ .version = said.section(heading, 0, 0).trimmed() };
    const QStringList lines = said.section(heading, 1).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines)
        answer.folders.append(line.trimmed());
    answer.library = libraryStamp(answer.folders);
    return answer;
}

bool ToolAnswer::isValid() const
{
    return !version.isEmpty() && libraryStamp(folders) == library;
}

namespace ReaderIdentity {

QByteArray toolStamp(const ExifToolRunner& runner)
{
    return joined({ fileStamp(runner.exiftoolURL.toLocalFile()), fileStamp(runner.perlURL.toLocalFile()),
        qgetenv("PERL5LIB"), qgetenv("PERLLIB") });
}

QByteArray surroundings(const ExifToolRunner& runner)
{
    static const QByteArray reader = RecordCode::schemaFingerprint() + MetadataReader::readTags().join(u'\n').toUtf8();
    QByteArrayList parts{ QTimeZone::systemTimeZoneId(), qgetenv("TZ"), QByteArray::number(MetadataReader::meaning),
        reader };
    for (const QString& file : configurationFiles(runner))
        parts.append(fileStamp(file));
    return joined(parts);
}

QByteArray of(const ToolAnswer& tool, const QByteArray& surroundings)
{
    return joined({ tool.version.toUtf8(), surroundings });
}

}  // namespace ReaderIdentity

}  // namespace Quorbel
