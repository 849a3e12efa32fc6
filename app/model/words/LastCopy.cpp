#include "app/model/words/LastCopy.h"

#include "app/model/Background.h"
#include "core/words/CopiedFields.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace Quorbel {

namespace {

void writeFile(const QString& path, const QByteArray& text)
{
    QSaveFile file(path);
    // Private: it holds what the user wrote.
    if (QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
        && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) && file.write(text) == text.size())
        file.commit();
}

}  // namespace

LastCopy::LastCopy(const QString& path)
    : m_path(path)
{
}

LastCopy::~LastCopy() = default;

void LastCopy::keep(const QByteArray& text)
{
    m_kept = text;
    if (m_isWriting)
        m_isStale = true;
    else if (!m_path.isEmpty())
        write();
}

// One at a time, so that the last one stays.
void LastCopy::write()
{
    m_isWriting = true;
    m_isStale = false;
    runInBackground(
        this, [path = m_path, text = m_kept] { writeFile(path, text); },
        [this] {
            m_isWriting = false;
            if (m_isStale)
                write();
        });
}

QByteArray LastCopy::text() const
{
    QFile file(m_path);
    if (m_path.isEmpty() || m_isWriting || !file.open(QIODevice::ReadOnly) || file.size() > CopiedFields::largest)
        return m_kept;
    return file.readAll();
}

}  // namespace Quorbel
