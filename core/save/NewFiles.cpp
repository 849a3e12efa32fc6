#include "core/save/NewFiles.h"

#include "core/save/FileMove.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString prefix()
{
    return u".quorbel-new-"_s;
}

// What a killed program left here. No write takes a day.
void clearAbandoned(const QString& folder)
{
    const QFileInfoList left = QDir(folder).entryInfoList({ prefix() + u'*' }, QDir::Files | QDir::Hidden);
    for (const QFileInfo& file : left)
        if (file.lastModified().daysTo(QDateTime::currentDateTime()) > 1)
            QFile::remove(file.filePath());
}

QString withOwnNames(QString text, const QHash<QUrl, QUrl>& own)
{
    for (auto file = own.cbegin(); file != own.cend(); ++file)
        text.replace(file.key().toLocalFile(), file->toLocalFile());
    return text;
}

}  // namespace

NewFiles::~NewFiles()
{
    for (auto file = m_own.keyBegin(); file != m_own.keyEnd(); ++file)
        QFile::remove(file->toLocalFile());
}

QList<QUrl> NewFiles::hidden(const QList<QUrl>& files)
{
    QList<QUrl> hidden;
    QString cleared;
    for (const QUrl& file : files) {
        const QFileInfo info(file.toLocalFile());
        if (info.exists() || info.isSymLink()) {
            hidden.append(file);
            continue;
        }
        if (info.path() != cleared)
            clearAbandoned(cleared = info.path());
        const QString id = QUuid::createUuid().toString(QUuid::Id128).left(12);
        const QUrl name = QUrl::fromLocalFile(info.path() + u'/' + prefix() + id + u'.' + info.suffix());
        m_own.insert(name, file);
        hidden.append(name);
    }
    return hidden;
}

bool NewFiles::giveName(const QUrl& file) const
{
    const QUrl own = m_own.value(file);
    return own.isEmpty() || FileMove::withoutReplacing(file.toLocalFile(), own.toLocalFile()) == 0;
}

ToolError NewFiles::told(const ToolError& error) const
{
    const auto* failed = std::get_if<ToolError::ExecFailed>(&error.payload());
    if (!failed || m_own.isEmpty())
        return error;
    return ToolError(ToolError::ExecFailed{ failed->code, withOwnNames(failed->standardError, m_own) },
        withOwnNames(error.messages(), m_own));
}

}  // namespace Quorbel
