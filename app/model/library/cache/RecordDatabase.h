// The file of the record cache: one connection to it. Several programs may use it at once, and anybody may remove it at
// any time. What it holds is bytes to it.
// Thread: the one that made it. Failures are silent: whoever asks hears of nothing found, or of damage, and makes anew.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

#include <optional>

namespace Quorbel {

class RecordDatabase final {
public:
    enum class Use { read, write };

    struct Row {
        qint64 number = 0;
        qint64 used = 0;  ///< when it was asked for last, in milliseconds since 1970
        QByteArray content{};
    };

    /// To write, the folder and the file are made, for their owner alone.
    RecordDatabase(const QString& folder, Use use);
    ~RecordDatabase();
    Q_DISABLE_COPY_MOVE(RecordDatabase)

    bool isOpen() const { return m_isOpen; }
    /// The file is no database of ours, or holds one no more.
    bool isDamaged() const { return m_isDamaged; }
    /// Whether the file that is open still has its name.
    bool isInPlace() const;
    /// Which file is open, as long as it is there.
    quint64 inode() const { return m_inode; }
    /// Removes the file when it is this one, so that the next connection makes it anew.
    static void remove(const QString& folder, quint64 inode);

    /// Of the file with this path. Many are had sooner behind a beginReading(); it lasts as long as the connection.
    std::optional<Row> row(const QString& path);
    void beginReading() { run(QStringLiteral("BEGIN")); }
    /// What stands beside the row of that file; nothing where nothing does.
    std::optional<QByteArray> details(const QString& path);
    bool isEmpty();
    /// What was kept for this key.
    std::optional<QByteArray> fact(const QByteArray& key);

    /// What follows is written as a whole by commit(); whether it could begin.
    bool begin();
    void put(const QString& path, const QByteArray& content, qint64 now);
    void use(qint64 number, qint64 now);
    /// Beside the row of the file with this path, where it has one; as long as that is there.
    void putDetails(const QString& path, const QByteArray& content);
    void keepFact(const QByteArray& key, const QByteArray& value);
    bool commit();

    qint64 count();
    /// What the rows take, in bytes.
    qint64 size();
    /// Removes those rows that were not asked for the longest.
    void removeOldest(qint64 rows);

private:
    bool open(Use use);
    bool makeTables();
    bool makeDetailsTable();
    bool prepare();
    void prepareDetails();
    bool run(QSqlQuery& query);
    bool run(const QString& statement);
    qint64 number(const QString& statement);
    std::optional<qint64> folder(const QString& path);
    qint64 madeFolder(const QString& path);
    void note(const QSqlError& error);

    const QString m_path;
    const QString m_connection;
    quint64 m_inode = 0;
    bool m_isOpen = false;
    bool m_isDamaged = false;
    bool m_hasFailed = false;  ///< since begin()
    QHash<QString, std::optional<qint64>> m_folders;  ///< by path; of one read, or one begin()
    // Prepared once, run often.
    QSqlQuery m_find;
    QSqlQuery m_put;
    QSqlQuery m_use;
    QSqlQuery m_findDetails;  ///< not prepared while no details were ever kept
    QSqlQuery m_putDetails;
};

}  // namespace Quorbel
