// What tests share: photos made on the spot, the real tool, a recording fake one, an independent reader.
// Thread: the test's. Failing to set something up aborts the test: a test on half a fixture proves nothing.
#pragma once

#include "core/tool/ExifToolRunner.h"

#include <QByteArray>
#include <QJsonObject>
#include <QMap>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

/// Small, valid, decodable images without metadata: grey (JPEG), black (PNG, TIFF), one pixel (WebP).
QByteArray jpegBytes(int width = 8, int height = 8);
QByteArray pngBytes(int width = 8, int height = 8);
QByteArray tiffBytes(int width = 8, int height = 8);
QByteArray webpBytes();

void writeFile(const QString& path, const QByteArray& bytes);
QByteArray readFile(const QString& path);

/// A temporary folder of photos, removed with the object.
class PhotoFolder {
public:
    PhotoFolder();
    QString path() const { return m_directory.path(); }
    QString path(const QString& name) const { return m_directory.filePath(name); }
    QUrl url(const QString& name) const { return QUrl::fromLocalFile(path(name)); }
    /// Makes an image of the kind that the name's extension says (JPEG when it is no other).
    QUrl add(const QString& name) const;
    QUrl add(const QString& name, const QByteArray& bytes) const;
    /// The names of all files, hidden ones too, sorted.
    QStringList names() const;

private:
    QTemporaryDir m_directory;
};

/// Whether the long rows are to be run, too (QUORBEL_SLOW_TESTS=1).
bool isSlowRun();
/// Paths of real photos of a kind ("valid", "malformed"), as many as `most` of them, evenly chosen; all with
/// QUORBEL_SLOW_TESTS=1. None when QUORBEL_TEST_PHOTOS names no folder.
QStringList realPhotos(const QString& kind, qsizetype most);
/// Copies under names that do not collide, in the same order.
QList<QUrl> copied(const QStringList& paths, const PhotoFolder& folder);

/// Directs the process's temporary files, and those of its children, to a folder of its own while it lives.
class TemporaryFilesProbe {
public:
    TemporaryFilesProbe();
    ~TemporaryFilesProbe();
    TemporaryFilesProbe(const TemporaryFilesProbe&) = delete;
    TemporaryFilesProbe& operator=(const TemporaryFilesProbe&) = delete;
    QStringList names() const { return m_folder.names(); }
    QString path() const { return m_folder.path(); }

private:
    PhotoFolder m_folder;
    QByteArray m_before;
};

/// The tool that the build staged. What a call of it does and prints is the tool's own doing, in a process of its own;
/// only that process is not started from nothing (tests/support/tool). With QUORBEL_SLOW_TESTS=1 it is.
ExifToolRunner realTool();
/// The same, always started from nothing: for tests that look at, or end, its very process.
ExifToolRunner startedTool();
/// What a Perl script writes behind "exec" or "system" to call the real tool, and its arguments behind that.
QByteArray toolForPerl();
/// Standard output of the real tool, run apart from the code under test; its exit status must be 0.
QByteArray exiftool(const QStringList& arguments);
/// The tags of one file as the real tool prints them, keys in the form "XMP:Title".
QJsonObject exiftoolValues(const QUrl& file);

/// Every metadatum that exiv2 finds, by its key ("Xmp.dc.title"); repeated ones in file order.
QMap<QString, QStringList> exiv2Values(const QUrl& file);

/// Objects printed as ExifTool prints them.
QByteArray toolJson(const QList<QJsonObject>& objects);

/// A stand-in for ExifTool: a Perl script that records its arguments and plays an answer.
class FakeTool {
public:
    struct Answer {
        QByteArray standardOutput{};
        QByteArray standardError{};
        int exitCode = 0;
        int signal = 0;  ///< when not 0, the tool kills itself with it after printing
        qsizetype noiseBytes = 0;  ///< printed to standard error before anything else
        qsizetype pieceSize = 0;  ///< when not 0, standard output comes in pieces of so many bytes
        QString removes{};  ///< a file that is gone when the tool ends
        bool holds = false;  ///< the tool stays, after printing, until release()
        bool deaf = false;  ///< the tool ignores being asked to end
    };

    FakeTool();
    /// Plays the answer in the n-th run from now (the first is 1).
    void answer(int run, const Answer& answer);
    /// Plays the answer in every run without one of its own. Without this call: silence and exit 0.
    void answerAlways(const Answer& answer);
    /// Lets all holding runs end.
    void release();

    ExifToolRunner runner() const;
    QString scriptPath() const { return m_directory.filePath(u"exiftool"_s); }
    /// The arguments of each run so far, in order.
    QList<QStringList> calls() const;
    /// What a file passed with "-config" held in the n-th run (the first is 1): its mode in octal, a line feed, its
    /// text. Empty when there was none.
    QByteArray config(int run) const;

private:
    void store(const QString& name, const Answer& answer);

    QTemporaryDir m_directory;
};

}  // namespace Quorbel::Test
