#include "app/model/templates/TemplateStore.h"

#include "app/model/Background.h"
#include "core/language/Texts.h"
#include "core/text/Errors.h"
#include "core/text/Text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr int writeDelay = 400;  // milliseconds after the last key
constexpr int lookDelay = 150;

// What came of a write.
struct Written {
    QString path{};
    QString problem{};
};

Written written(const QString& folder, const TemplateFile::Stored& stored)
{
    try {
        return { TemplateFile::write(folder, stored), {} };
    } catch (const Error& error) {
        return { stored.path, error.description() };
    }
}

QString copied(const Template& value, const QString& path)
{
    QSaveFile file(path);
    const QByteArray json = TemplateFile::toJson(value);
    if (file.open(QIODevice::WriteOnly) && file.write(json) == json.size() && file.commit())
        return {};
    return FileError(Texts::tr("Cannot export the template “%1”"), QUrl::fromLocalFile(path), file.errorString())
        .description();
}

}  // namespace

TemplateStore::TemplateStore(const QString& folder)
    : m_folder(folder)
{
    m_thread.setMaxThreadCount(1);
    m_writeTimer.setSingleShot(true);
    m_loadTimer.setSingleShot(true);
    connect(&m_writeTimer, &QTimer::timeout, this, qOverload<>(&TemplateStore::write));
    connect(&m_loadTimer, &QTimer::timeout, this, &TemplateStore::load);
    // Not in the way of the window's first picture.
    if (!folder.isEmpty())
        m_loadTimer.start(0);
}

TemplateStore::~TemplateStore()
{
    m_thread.waitForDone();
    for (const Entry& entry : std::as_const(m_entries))
        if (entry.isDirty && !m_folder.isEmpty())
            written(m_folder, entry.stored);
}

const TemplateStore::Entry* TemplateStore::find(int id) const
{
    const auto it = std::find_if(m_entries.cbegin(), m_entries.cend(), [id](const Entry& e) { return e.id == id; });
    return it == m_entries.cend() ? nullptr : &*it;
}

TemplateStore::Entry* TemplateStore::entry(int id)
{
    const auto it = std::find_if(m_entries.begin(), m_entries.end(), [id](const Entry& e) { return e.id == id; });
    return it == m_entries.end() ? nullptr : &*it;
}

const TemplateStore::Entry* TemplateStore::withDigit(int digit) const
{
    const auto it = std::find_if(m_entries.cbegin(), m_entries.cend(),
        [digit](const Entry& e) { return digit > 0 && e.value().digit == digit; });
    return it == m_entries.cend() ? nullptr : &*it;
}

// --- From the disk ---

void TemplateStore::load()
{
    runIn(
        m_thread, this,
        [folder = m_folder] {
            QDir().mkpath(folder);
            return TemplateFile::list(folder);
        },
        [this](const TemplateFile::Listing& listing) { take(listing); });
}

// What is not on the disk yet stays as it is here.
void TemplateStore::take(const TemplateFile::Listing& listing)
{
    QHash<QString, Template> found;
    for (const TemplateFile::Stored& stored : listing.templates)
        found.insert(stored.path, stored.value);
    QList<Entry> entries;
    for (const Entry& entry : std::as_const(m_entries)) {
        const bool isUnsettled = entry.isDirty || entry.writes > 0;
        const auto now = found.constFind(entry.stored.path);
        if (!isUnsettled && now == found.cend())
            continue;
        entries.append(entry);
        if (!isUnsettled)
            entries.last().stored.value = *now;
        found.remove(entry.stored.path);
    }
    for (const TemplateFile::Stored& stored : listing.templates)
        if (found.contains(stored.path))
            entries.append({ .id = ++m_lastId, .stored = stored });
    m_entries = entries;
    m_problems = listing.problems;
    sort();
    // Of two files with the same digit the first keeps it.
    QSet<int> digits;
    for (Entry& entry : m_entries)
        if (int& digit = entry.stored.value.digit; digit > 0) {
            if (digits.contains(digit))
                digit = 0;
            digits.insert(digit);
        }
    watch();
    emit changed();
}

void TemplateStore::watch()
{
    if (!m_watcher) {
        m_watcher = std::make_unique<QFileSystemWatcher>();
        for (const auto signal : { &QFileSystemWatcher::directoryChanged, &QFileSystemWatcher::fileChanged })
            connect(m_watcher.get(), signal, this, [this] { m_loadTimer.start(lookDelay); });
    }
    // A file that is rewritten in place changes no folder.
    QStringList paths{ m_folder };
    for (const Entry& entry : std::as_const(m_entries))
        if (!entry.stored.path.isEmpty())
            paths.append(entry.stored.path);
    for (const QString& path : m_watcher->files() + m_watcher->directories())
        paths.removeAll(path);
    if (paths.isEmpty())
        return;
    m_watcher->addPaths(paths);
    // What changed before they were watched nobody told.
    m_loadTimer.start(lookDelay);
}

void TemplateStore::setSorting(bool on)
{
    m_sorting = on;
    sort();
    emit changed();
}

void TemplateStore::sort()
{
    if (!m_sorting)
        return;
    std::stable_sort(m_entries.begin(), m_entries.end(), [](const Entry& a, const Entry& b) {
        const int digitA = a.value().digit > 0 ? a.value().digit : 10;
        const int digitB = b.value().digit > 0 ? b.value().digit : 10;
        return digitA != digitB ? digitA < digitB : Text::naturalCompare(a.value().name, b.value().name) < 0;
    });
}

// --- To the disk ---

int TemplateStore::add(const Template& value)
{
    freeDigit(value.digit, 0);
    m_entries.append({ .id = ++m_lastId, .stored = { {}, value }, .isDirty = true });
    const int id = m_lastId;
    sort();
    write();
    emit changed();
    return id;
}

void TemplateStore::change(int id, const Template& value)
{
    Entry* changing = entry(id);
    if (!changing || changing->value() == value)
        return;
    freeDigit(value.digit, id);
    changing->stored.value = value;
    changing->isDirty = true;
    m_writeTimer.start(writeDelay);
    emit changed();
}

void TemplateStore::freeDigit(int digit, int except)
{
    for (Entry& entry : m_entries)
        if (digit > 0 && entry.id != except && entry.value().digit == digit) {
            entry.stored.value.digit = 0;
            entry.isDirty = true;
        }
}

void TemplateStore::remove(int id)
{
    const Entry* gone = find(id);
    if (!gone)
        return;
    const QString path = gone->stored.path;
    m_entries.removeIf([id](const Entry& e) { return e.id == id; });
    // A rename, no more; Qt's way to the trash is not for other threads.
    m_thread.waitForDone();
    if (!path.isEmpty() && !QFile::moveToTrash(path))
        QFile::remove(path);
    emit changed();
}

void TemplateStore::write()
{
    if (m_folder.isEmpty())
        return;
    for (Entry& entry : m_entries)
        if (entry.isDirty)
            write(entry);
}

void TemplateStore::write(Entry& changed)
{
    // One at a time: the next has to know the name that the file got.
    if (changed.writes > 0) {
        m_writeTimer.start(writeDelay);
        return;
    }
    changed.isDirty = false;
    ++changed.writes;
    runIn(
        m_thread, this, [folder = m_folder, stored = changed.stored] { return written(folder, stored); },
        [this, id = changed.id](const Written& result) {
            if (!result.problem.isEmpty())
                emit failed(result.problem);
            if (Entry* now = entry(id)) {
                --now->writes;
                now->stored.path = result.path;
            } else if (!result.path.isEmpty()) {
                QFile::remove(result.path);  // it was removed meanwhile
            }
        });
}

void TemplateStore::import(const QStringList& paths)
{
    runIn(
        m_thread, this,
        [paths] {
            TemplateFile::Listing listing;
            for (const QString& path : paths) {
                QString problem;
                if (const auto value = TemplateFile::read(path, &problem))
                    listing.templates.append({ path, *value });
                else
                    listing.problems.append(problem);
            }
            return listing;
        },
        [this](const TemplateFile::Listing& listing) { takeImported(listing); });
}

// Digits that are in use stay with those that have them.
void TemplateStore::takeImported(const TemplateFile::Listing& listing)
{
    m_importProblems = listing.problems;
    QList<int> ids;
    for (const TemplateFile::Stored& stored : listing.templates) {
        Template value = stored.value;
        if (withDigit(value.digit))
            value.digit = 0;
        m_entries.append({ .id = ++m_lastId, .stored = { {}, value }, .isDirty = true });
        ids.append(m_lastId);
    }
    sort();
    write();
    emit changed();
    if (!ids.isEmpty())
        emit imported(ids);
}

QString TemplateStore::fileOf(int id)
{
    if (m_folder.isEmpty() || !find(id))
        return {};
    m_thread.waitForDone();
    Entry* wanted = entry(id);
    if (wanted->writes > 0) {
        // Just written; what its file is called is still on its way here.
        for (const TemplateFile::Stored& stored : TemplateFile::list(m_folder).templates)
            if (stored.value == wanted->value())
                return stored.path;
    }
    if (wanted->isDirty || wanted->stored.path.isEmpty()) {
        const Written result = written(m_folder, wanted->stored);
        wanted->stored.path = result.path;
        wanted->isDirty = !result.problem.isEmpty();
        if (wanted->isDirty)
            emit failed(result.problem);
    }
    return wanted->isDirty ? QString() : wanted->stored.path;
}

void TemplateStore::exportTo(int id, const QString& path)
{
    if (const Entry* wanted = find(id))
        runIn(
            m_thread, this, [value = wanted->value(), path] { return copied(value, path); },
            [this](const QString& problem) {
                if (!problem.isEmpty())
                    emit failed(problem);
            });
}

}  // namespace Quorbel
