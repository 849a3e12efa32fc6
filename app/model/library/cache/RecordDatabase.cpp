#include "app/model/library/cache/RecordDatabase.h"

#include <QDir>
#include <QFile>
#include <QSqlError>
#include <QUrl>
#include <QUuid>
#include <QVariant>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr int formatVersion = 1;
// How long a connection waits for another one that writes, in milliseconds.
constexpr int busyTimeout = 2000;

// Results of the engine: what is open is no database, or not whole.
constexpr int corrupt = 11;
constexpr int notADatabase = 26;
constexpr int shortRead = 522;

QString fileIn(const QString& folder)
{
    return folder + u"/records.db"_s;
}

quint64 inodeOf(const QString& path)
{
    struct stat status { };
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? quint64(status.st_ino) : 0;
}

// Made here, since the engine would let everybody read it. A file that is there is never opened: closing it would take
// the engine's locks away.
void makeFile(const QString& folder, const QString& path)
{
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    // A folder in its place, when there is nothing in it.
    ::rmdir(QFile::encodeName(path).constData());
    const int made = ::open(QFile::encodeName(path).constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
    if (made >= 0)
        ::close(made);
    else
        ::chmod(QFile::encodeName(path).constData(), 0600);
}

QString folderOf(const QString& path)
{
    return path.left(path.lastIndexOf(u'/'));
}

QString nameOf(const QString& path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

}  // namespace

RecordDatabase::RecordDatabase(const QString& folder, Use use)
    : m_path(fileIn(folder))
    , m_connection(u"records-"_s + QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    if (use == Use::write)
        makeFile(folder, m_path);
    m_inode = inodeOf(m_path);
    if (m_inode != 0)
        m_isOpen = open(use);
}

RecordDatabase::~RecordDatabase()
{
    m_find = QSqlQuery();
    m_put = QSqlQuery();
    m_use = QSqlQuery();
    m_findDetails = QSqlQuery();
    m_putDetails = QSqlQuery();
    if (QSqlDatabase::contains(m_connection))
        QSqlDatabase::removeDatabase(m_connection);
}

bool RecordDatabase::open(Use use)
{
    auto database = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_connection);
    // One that was removed meanwhile is not made by the way.
    database.setDatabaseName(QUrl::fromLocalFile(m_path).toString(QUrl::FullyEncoded) + u"?mode=rw"_s);
    database.setConnectOptions(u"QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=%1"_s.arg(busyTimeout));
    if (!database.open()) {
        note(database.lastError());
        return false;
    }
    if (use == Use::write && !makeTables())
        return false;
    const qint64 version = number(u"PRAGMA user_version"_s);
    // Nothing is in it yet, or another version of ours made it.
    m_isDamaged = m_isDamaged || (version != formatVersion && version != 0);
    return version == formatVersion && prepare();
}

bool RecordDatabase::makeTables()
{
    // Readers go on while it is written; a lost machine costs the last records at most.
    for (const QString& setting :
        { u"PRAGMA journal_mode = WAL"_s, u"PRAGMA synchronous = NORMAL"_s, u"PRAGMA journal_size_limit = 16777216"_s })
        run(setting);
    if (number(u"PRAGMA user_version"_s) != 0)
        return !m_isDamaged && makeDetailsTable();
    return begin() && run(u"CREATE TABLE IF NOT EXISTS folder (id INTEGER PRIMARY KEY, path TEXT UNIQUE NOT NULL)"_s)
        && run(u"CREATE TABLE IF NOT EXISTS record (id INTEGER PRIMARY KEY, folder INTEGER NOT NULL, "
               "name TEXT NOT NULL, used INTEGER NOT NULL, content BLOB NOT NULL, UNIQUE (folder, name))"_s)
        && run(u"CREATE INDEX IF NOT EXISTS record_used ON record (used)"_s)
        && run(u"CREATE TABLE IF NOT EXISTS fact (key BLOB PRIMARY KEY, value BLOB NOT NULL)"_s) && makeDetailsTable()
        && run(u"PRAGMA user_version = %1"_s.arg(formatVersion)) && commit();
}

// In a file that an earlier version of ours made there is none, and what it holds stays valid.
bool RecordDatabase::makeDetailsTable()
{
    return run(u"CREATE TABLE IF NOT EXISTS details (record INTEGER PRIMARY KEY, content BLOB NOT NULL)"_s);
}

bool RecordDatabase::prepare()
{
    const auto database = QSqlDatabase::database(m_connection, false);
    m_find = QSqlQuery(database);
    m_put = QSqlQuery(database);
    m_use = QSqlQuery(database);
    m_find.setForwardOnly(true);
    const bool isGood = m_find.prepare(u"SELECT id, used, content FROM record WHERE folder = ? AND name = ?"_s)
        && m_put.prepare(u"INSERT INTO record (folder, name, used, content) VALUES (?, ?, ?, ?) "
                         "ON CONFLICT (folder, name) DO UPDATE SET used = excluded.used, content = excluded.content"_s)
        && m_use.prepare(u"UPDATE record SET used = ? WHERE id = ?"_s);
    if (!isGood)
        for (const QSqlQuery* query : { &m_find, &m_put, &m_use })
            note(query->lastError());
    prepareDetails();
    return isGood;
}

// Nobody who only reads makes the table.
void RecordDatabase::prepareDetails()
{
    if (number(u"SELECT EXISTS (SELECT 1 FROM sqlite_master WHERE name = 'details')"_s) != 1)
        return;
    const auto database = QSqlDatabase::database(m_connection, false);
    m_findDetails = QSqlQuery(database);
    m_putDetails = QSqlQuery(database);
    m_findDetails.setForwardOnly(true);
    const bool isGood = m_findDetails.prepare(u"SELECT details.content FROM record JOIN details "
                                              "ON details.record = record.id WHERE folder = ? AND name = ?"_s)
        && m_putDetails.prepare(u"INSERT OR REPLACE INTO details (record, content) "
                                "SELECT id, ? FROM record WHERE folder = ? AND name = ?"_s);
    if (!isGood)
        for (const QSqlQuery* query : { &m_findDetails, &m_putDetails })
            note(query->lastError());
}

void RecordDatabase::note(const QSqlError& error)
{
    m_hasFailed = true;
    bool isNumber = false;
    const int code = error.nativeErrorCode().toInt(&isNumber);
    const int kind = code & 0xFF;
    // A table that is missing is damage of its own kind.
    if (isNumber && (kind == corrupt || kind == notADatabase || code == shortRead || kind == 1))
        m_isDamaged = true;
}

bool RecordDatabase::isInPlace() const
{
    return m_inode != 0 && inodeOf(m_path) == m_inode;
}

void RecordDatabase::remove(const QString& folder, quint64 inode)
{
    if (inodeOf(fileIn(folder)) != inode)
        return;
    for (const QString& suffix : { QString(), u"-wal"_s, u"-shm"_s, u"-journal"_s })
        QFile::remove(fileIn(folder) + suffix);
}

bool RecordDatabase::run(QSqlQuery& query)
{
    if (query.exec())
        return true;
    note(query.lastError());
    return false;
}

bool RecordDatabase::run(const QString& statement)
{
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    if (query.exec(statement))
        return true;
    note(query.lastError());
    return false;
}

qint64 RecordDatabase::number(const QString& statement)
{
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.setForwardOnly(true);
    if (query.exec(statement) && query.next())
        return query.value(0).toLongLong();
    note(query.lastError());
    return -1;
}

std::optional<qint64> RecordDatabase::folder(const QString& path)
{
    const auto known = m_folders.constFind(path);
    if (known != m_folders.cend())
        return *known;
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.setForwardOnly(true);
    query.prepare(u"SELECT id FROM folder WHERE path = ?"_s);
    query.addBindValue(path);
    const bool isThere = run(query) && query.next();
    return m_folders[path] = isThere ? std::optional(query.value(0).toLongLong()) : std::nullopt;
}

std::optional<RecordDatabase::Row> RecordDatabase::row(const QString& path)
{
    const auto number = folder(folderOf(path));
    if (!number || m_isDamaged)
        return std::nullopt;
    m_find.bindValue(0, *number);
    m_find.bindValue(1, nameOf(path));
    if (!run(m_find) || !m_find.next())
        return std::nullopt;
    return Row{ m_find.value(0).toLongLong(), m_find.value(1).toLongLong(), m_find.value(2).toByteArray() };
}

std::optional<QByteArray> RecordDatabase::details(const QString& path)
{
    const auto number = folder(folderOf(path));
    if (!number || m_isDamaged || m_findDetails.lastQuery().isEmpty())
        return std::nullopt;
    m_findDetails.bindValue(0, *number);
    m_findDetails.bindValue(1, nameOf(path));
    return run(m_findDetails) && m_findDetails.next() ? std::optional(m_findDetails.value(0).toByteArray())
                                                      : std::nullopt;
}

bool RecordDatabase::isEmpty()
{
    return number(u"SELECT EXISTS (SELECT 1 FROM record)"_s) != 1;
}

std::optional<QByteArray> RecordDatabase::fact(const QByteArray& key)
{
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.setForwardOnly(true);
    query.prepare(u"SELECT value FROM fact WHERE key = ?"_s);
    query.addBindValue(key);
    return run(query) && query.next() ? std::optional(query.value(0).toByteArray()) : std::nullopt;
}

bool RecordDatabase::begin()
{
    m_hasFailed = false;
    m_folders.clear();
    return run(u"BEGIN IMMEDIATE"_s);
}

bool RecordDatabase::commit()
{
    if (!m_hasFailed && run(u"COMMIT"_s))
        return true;
    run(u"ROLLBACK"_s);
    return false;
}

qint64 RecordDatabase::madeFolder(const QString& path)
{
    if (const auto known = folder(path))
        return *known;
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.prepare(u"INSERT INTO folder (path) VALUES (?)"_s);
    query.addBindValue(path);
    if (!run(query))
        return 0;
    const qint64 number = query.lastInsertId().toLongLong();
    m_folders[path] = number;
    return number;
}

void RecordDatabase::put(const QString& path, const QByteArray& content, qint64 now)
{
    if (m_hasFailed)
        return;
    m_put.bindValue(0, madeFolder(folderOf(path)));
    m_put.bindValue(1, nameOf(path));
    m_put.bindValue(2, now);
    m_put.bindValue(3, content);
    run(m_put);
}

void RecordDatabase::putDetails(const QString& path, const QByteArray& content)
{
    const auto number = folder(folderOf(path));
    if (m_hasFailed || !number)
        return;
    m_putDetails.bindValue(0, content);
    m_putDetails.bindValue(1, *number);
    m_putDetails.bindValue(2, nameOf(path));
    run(m_putDetails);
}

void RecordDatabase::use(qint64 number, qint64 now)
{
    if (m_hasFailed)
        return;
    m_use.bindValue(0, now);
    m_use.bindValue(1, number);
    run(m_use);
}

void RecordDatabase::keepFact(const QByteArray& key, const QByteArray& value)
{
    QSqlQuery query(QSqlDatabase::database(m_connection, false));
    query.prepare(u"INSERT OR REPLACE INTO fact (key, value) VALUES (?, ?)"_s);
    query.addBindValue(key);
    query.addBindValue(value);
    run(query);
}

qint64 RecordDatabase::count()
{
    return number(u"SELECT count(*) FROM record"_s);
}

qint64 RecordDatabase::size()
{
    const qint64 pages = number(u"PRAGMA page_count"_s) - number(u"PRAGMA freelist_count"_s);
    return pages * number(u"PRAGMA page_size"_s);
}

void RecordDatabase::removeOldest(qint64 rows)
{
    run(u"DELETE FROM record WHERE id IN (SELECT id FROM record ORDER BY used, id LIMIT %1)"_s.arg(rows));
    run(u"DELETE FROM details WHERE NOT EXISTS (SELECT 1 FROM record WHERE record.id = details.record)"_s);
    run(u"DELETE FROM folder WHERE NOT EXISTS (SELECT 1 FROM record WHERE record.folder = folder.id)"_s);
}

}  // namespace Quorbel
