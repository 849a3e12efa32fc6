// The templates in a folder: read, watched, and written when one changes.
// Thread: the main thread; the disk is worked at in a thread of its own, one job after the other. Other windows and
// programs may use the same folder: what they change appears here. Knows no photo.
#pragma once

#include "core/templates/TemplateFile.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <QUrl>

namespace Quorbel {

class TemplateStore final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TemplateStore)

public:
    struct Entry {
        int id = 0;  ///< as long as this lives
        TemplateFile::Stored stored{};
        bool isDirty = false;  ///< to be written
        int writes = 0;  ///< on their way to the disk
        const Template& value() const { return stored.value; }
    };

    /// An empty folder name: nothing is kept.
    explicit TemplateStore(const QString& folder);
    /// Writes what is still to be written.
    ~TemplateStore() override;

    const QList<Entry>& all() const { return m_entries; }
    const Entry* find(int id) const;
    /// The one with this digit; null when there is none.
    const Entry* withDigit(int digit) const;
    /// Files that were left out, each a line.
    QStringList problems() const { return m_problems + m_importProblems; }

    /// By digit, then by name; while off, those that are there keep their places.
    void setSorting(bool on);
    /// The id of the new one.
    int add(const Template& value);
    /// Written after a moment. A digit that another one has is taken from that.
    void change(int id, const Template& value);
    /// Its file goes to the trash, or where there is none, away.
    void remove(int id);
    /// Reads these files and keeps what they hold as templates of our own.
    void import(const QStringList& paths);
    /// Waits until the template is on the disk. Its file; "" when it could not be written.
    QString fileOf(int id);
    void exportTo(int id, const QString& path);

signals:
    void changed();
    /// These became templates of our own.
    void imported(const QList<int>& ids);
    /// A line for the user.
    void failed(const QString& problem);

private:
    Entry* entry(int id);
    void load();
    void take(const TemplateFile::Listing& listing);
    void takeImported(const TemplateFile::Listing& listing);
    void freeDigit(int digit, int except);
    void sort();
    void write();
    void write(Entry& entry);
    void watch();

    QString m_folder;
    QList<Entry> m_entries;
    QStringList m_problems;
    QStringList m_importProblems;
    QThreadPool m_thread;
    QTimer m_writeTimer;
    QTimer m_loadTimer;
    std::unique_ptr<QFileSystemWatcher> m_watcher;
    bool m_sorting = true;
    int m_lastId = 0;
};

}  // namespace Quorbel
