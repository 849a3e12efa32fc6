#include "core/tool/TemporaryConfig.h"

#include "core/language/Texts.h"
#include "core/text/Errors.h"
#include "core/tool/MetadataWriter.h"
#include "core/tool/TemporaryFiles.h"

#include <QDir>
#include <QSaveFile>

#include <cerrno>

namespace Quorbel {

using namespace Qt::StringLiterals;

TemporaryConfig::TemporaryConfig(const QStringList& customNames, const QString& further)
{
    if (customNames.isEmpty() && further.isEmpty())
        return;
    const QString customs = customNames.isEmpty() ? QString() : MetadataWriter::customConfig(customNames);
    const QByteArray text = (customs + further).toUtf8();
    const QString directory = QDir::tempPath();
    if (directory.isEmpty())  // Qt's answer for a TMPDIR that does not exist
        throw FileError(Texts::tr("Cannot write to “%1”"), QUrl::fromLocalFile(qEnvironmentVariable("TMPDIR")),
            qt_error_string(ENOENT));
    const QUrl url = QUrl::fromLocalFile(directory + u'/' + TemporaryFiles::newConfigName());
    QSaveFile file(url.toLocalFile());
    if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)
        || file.write(text) != text.size() || !file.commit())
        throw FileError(Texts::tr("Cannot write “%1”"), url, file.errorString());
    m_url = url;
}

TemporaryConfig::~TemporaryConfig()
{
    if (m_url)
        QFile::remove(m_url->toLocalFile());
}

}  // namespace Quorbel
