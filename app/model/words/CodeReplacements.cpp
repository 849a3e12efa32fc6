#include "app/model/words/CodeReplacements.h"

#include "app/model/AppModel.h"
#include "app/model/Background.h"
#include "core/language/Texts.h"
#include "platform/files/FolderWatches.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPointer>

#include <sys/stat.h>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Another one whenever the file is, or may be: empty where there is none.
QByteArray stampOf(const QString& path)
{
    struct stat info { };
    if (::stat(QFile::encodeName(path).constData(), &info) != 0)
        return {};
    QByteArray stamp;
    for (const qint64 part :
        { qint64(info.st_dev), qint64(info.st_ino), qint64(info.st_size), qint64(info.st_mtim.tv_sec),
            qint64(info.st_mtim.tv_nsec), qint64(info.st_ctim.tv_sec), qint64(info.st_ctim.tv_nsec) })
        stamp += QByteArray::number(part) + ' ';
    return stamp;
}

QString nameOf(const QString& path)
{
    return QFileInfo(path).fileName();
}

}  // namespace

CodeReplacements::CodeReplacements(AppModel& model)
    : m_file(model.preferences(), "codeFile", {})
{
    // Where other machines change the file, nothing tells of it.
    if (auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        connect(application, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
            if (state == Qt::ApplicationActive)
                look();
        });
    look();
}

CodeReplacements::~CodeReplacements() = default;

void CodeReplacements::setFile(const QString& path)
{
    requireMainThread("setFile");
    if (path == m_file())
        return look();
    m_file.set(path);
    m_read = {};
    m_isKnown = false;
    emit changed();
    look();
}

void CodeReplacements::choose()
{
    requireMainThread("choose");
    if (m_chooser)
        m_chooser([self = QPointer(this)](const QString& path) {
            if (self && !path.isEmpty())
                self->setFile(path);
        });
}

std::function<std::optional<QString>(const QString& code)> CodeReplacements::texts()
{
    return [self = QPointer(this)](const QString& code) { return self ? self->text(code) : std::nullopt; };
}

void CodeReplacements::look()
{
    requireMainThread("look");
    m_isStale = m_isLooking;
    if (!m_isLooking && !m_file().isEmpty())
        begin();
}

// A file system may keep one waiting.
void CodeReplacements::begin()
{
    m_isLooking = true;
    if (!m_watcher)
        m_watcher = std::make_unique<FolderWatcher>([this] { look(); });
    runInBackground(
        this,
        [path = m_file(), known = m_isKnown ? m_read.stamp : QByteArray(), watches = m_watcher->watches()] {
            return lookedUp(path, known, *watches);
        },
        [this](Found found) { take(std::move(found)); });
}

// The folder is watched before the file is looked at: no change falls between. A file that is put in the place of
// another one is an event of its folder, and so is one that goes and comes back.
CodeReplacements::Found CodeReplacements::lookedUp(const QString& path, const QByteArray& known, FolderWatches& watches)
{
    const QFileInfo info(path);
    QSet<QString> folders{ info.path() };
    if (const QString target = info.canonicalFilePath(); !target.isEmpty())
        folders.insert(QFileInfo(target).path());
    for (const QString& folder : std::as_const(folders))
        watches.add(folder);
    watches.keep(folders);
    Found found{ .path = path, .stamp = stampOf(path) };
    if (!found.stamp.isEmpty() && found.stamp == known) {
        found.isSame = true;
        return found;
    }
    QFile file(path);
    if (!info.exists())
        found.problem = Texts::tr("“%1” is not there any more.").arg(nameOf(path));
    else if (!info.isFile())
        found.problem = Texts::tr("“%1” is no file.").arg(nameOf(path));
    else if (info.size() > CodeList::largest)
        found.problem = Texts::tr("“%1” is too large for a list of codes.").arg(nameOf(path));
    else if (!file.open(QIODevice::ReadOnly))
        found.problem = Texts::tr("“%1” cannot be read: %2").arg(nameOf(path), file.errorString());
    else
        found.codes = CodeList::parse(file.readAll());
    return found;
}

void CodeReplacements::take(Found found)
{
    m_isLooking = false;
    const bool isWanted = found.path == m_file();
    if (isWanted && !found.isSame) {
        const bool differs = !m_isKnown || found.codes != m_read.codes || found.problem != m_read.problem;
        m_read = std::move(found);
        m_isKnown = true;
        if (differs)
            emit changed();
    }
    if (!isWanted || m_isStale)
        look();
}

}  // namespace Quorbel
