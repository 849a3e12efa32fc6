// What the tests of struck saves share: photos whose damage shows, what a model says after a save, and the program in
// a process of its own, which can be killed or run as somebody else.
// Thread: the test's. Failing to set something up aborts the test.
#pragma once

#include "app/model/AppModel.h"
#include "tests/support/Support.h"

#include <QImage>
#include <QMap>
#include <QProcess>
#include <QRandomGenerator>

#include <memory>
#include <sys/types.h>

namespace Quorbel::Test {

/// Other moments in each run; those of an earlier one with the QUORBEL_FAULT_SEED that it printed.
QRandomGenerator seededMoments();

/// Five photos in a folder, each titled with its own name, and how they were.
class StruckPhotos {
public:
    static const QStringList& names();
    /// Makes them. An owner other than 0 gets the folder and the photos.
    explicit StruckPhotos(const QString& folder, uid_t owner = 0);
    QString path(const QString& name) const { return m_folder + u'/' + name; }
    QList<QUrl> urls() const;
    /// Names of the photos that do not hold the title, sorted. One that is damaged, missing, or neither old nor a whole
    /// new one fails the test, and so does a file that has no business beside them.
    QStringList unsaved(const QString& title) const;
    /// Names of what a killed tool or program left beside them.
    QStringList leftovers() const;
    /// Those among them under which a program keeps the photos of a save that is half done.
    QStringList secondNames() const;

private:
    void requireWhole(const QString& name, const QJsonObject& tags) const;
    void requireKnownNeighbors() const;

    QString m_folder;
    QMap<QString, QByteArray> m_before;
};

/// Five raw photos in a folder whose edits go beside them, and how they were; two have a sidecar of another program's.
class StruckRaws {
public:
    static const QStringList& names();
    explicit StruckRaws(const QString& folder, uid_t owner = 0);
    QString path(const QString& name) const { return m_folder + u'/' + name; }
    /// Names of the photos whose sidecar does not hold the title, sorted. A changed photo, half of a sidecar, one that
    /// lost what the other program wrote, and a file that has no business there fail the test.
    QStringList unsaved(const QString& title) const;
    /// Names of what a killed tool or program left.
    QStringList leftovers() const;

private:
    void requireWhole(const QString& name, const QJsonObject& tags) const;

    QString m_folder;
    QMap<QString, QByteArray> m_before;  ///< of all files
};

/// What the user sees after a save.
struct Aftermath {
    QString banner{};
    QStringList selected{};  ///< file names
    QString title{};  ///< in the draft or the batch
    QStringList keywords{};
    int unsavedCount = 0;

    static Aftermath of(const AppModel& model);
    QByteArray toLine() const;
    static Aftermath fromLine(const QByteArray& line);
};

/// Gives all open photos this title, and a keyword and a custom field.
void editAll(AppModel& model, const QString& title);

/// Every photo without the new title is still selected, with the edits, and the banner names it, or the one that
/// stopped the whole save. Fails the test otherwise.
void verifyNothingLost(const StruckPhotos& photos, const QString& title, const Aftermath& after);
void verifyNothingLost(const QStringList& unsaved, const QString& title, const Aftermath& after);

/// Tools that a model of this process has started and that run.
QList<pid_t> runningTools();

/// Another process that opens a folder, edits all photos in it and saves them. It leads a process group, so that the
/// tools that it runs can be killed with it; those that outlive it become children of this process.
class OtherProgram {
public:
    struct Launch {
        QString folder{};
        QString state{};  ///< folder of its journal, preferences and temporary files
        QString title{};
        bool backup = false;
        bool beside = false;  ///< edits of raw photos go beside them
        uid_t user = 0;  ///< 0: the same as this process
    };
    explicit OtherProgram(const Launch& launch);
    ~OtherProgram();
    Q_DISABLE_COPY_MOVE(OtherProgram)
    /// Waits until its save begins. False when the other user cannot run the program at all.
    bool waitForSave();
    /// Stops it and its tools, until they are killed.
    void pause() const;
    void kill() const;
    void killWithItsTool() const;
    /// Waits until it has ended, and every tool that it started.
    void waitForEnd();
    bool wasKilled() const { return m_process.exitStatus() == QProcess::CrashExit; }
    /// What it said after its save.
    Aftermath aftermath();

private:
    QProcess m_process;
    pid_t m_group = 0;
};

}  // namespace Quorbel::Test
