// Raw photos whose edits go beside them, before a model that keeps a journal and asks for nothing; and whether their
// own files are what they were. Thread: the test's.
#pragma once

#include "tests/app/model/ModelFixture.h"

#include <QFileInfo>

#include <sys/stat.h>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

inline QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

struct RawPhotos : ModelFixture {
    RawPhotos()
        : ModelFixture(MetadataService{ realTool() })
    {
        services.journalPath = journal.filePath(u"undo.json"_s);
        model->preferences().confirmMassEdit.set(false);
        model->preferences().saveDontAsk.set(true);
        model->preferences().backupOriginals.set(false);
        model->preferences().rawBeside.set(true);
        relaunch();
    }
    // A photo with these tags in its own file, of long ago.
    QString addRaw(const QString& name, const QStringList& assignments = {})
    {
        const QString path = folder.path(name);
        const QString tiff = folder.add(name + u".tif"_s).toLocalFile();
        if (!assignments.isEmpty())
            exiftool(QStringList{ u"-overwrite_original"_s, u"-q"_s } + assignments << tiff);
        QFile::rename(tiff, path);
        QFile file(path);
        if (file.open(QIODevice::ReadWrite))
            file.setFileTime(QDateTime::fromSecsSinceEpoch(1500000000), QFileDevice::FileModificationTime);
        file.close();
        untouched.insert(path, state(path));
        return path;
    }
    bool isUntouched() const
    {
        return std::all_of(untouched.keyBegin(), untouched.keyEnd(),
            [&](const QString& path) { return state(path) == untouched[path]; });
    }
    bool save()
    {
        model->setErrorMessage(std::nullopt);
        model->requestSave();
        return waitUntilIdle();
    }
    bool undo()
    {
        model->setErrorMessage(std::nullopt);
        model->undoSave();
        return waitUntilIdle();
    }
    bool reopen()
    {
        relaunch();
        return open();
    }
    QString shown(const QString& name, const QString& id) const { return model->record(url(name))->values.value(id); }
    QStringList items(const QString& name, const QString& id) const
    {
        return model->record(url(name))->lists.value(id);
    }
    // As the tool prints it alone.
    QString stored(const QString& name, const QString& tag) const
    {
        return QString::fromUtf8(exiftool({ u"-s3"_s, u"-sep"_s, u"; "_s, u'-' + tag, folder.path(name) })).trimmed();
    }
    QString banner() const { return model->errorMessage().value_or(QString()); }
    QByteArray sidecar(const QString& name) const { return contentOf(folder.path(name)); }

    QTemporaryDir journal;
    QMap<QString, QByteArray> untouched;

private:
    // Bytes, inode, and when it was changed, which no program can turn back.
    static QByteArray state(const QString& path)
    {
        struct stat status { };
        stat(QFile::encodeName(path).constData(), &status);
        return contentOf(path) + QByteArray::number(qint64(status.st_ino)) + '/'
            + QByteArray::number(qint64(status.st_ctim.tv_sec)) + '.'
            + QByteArray::number(qint64(status.st_ctim.tv_nsec));
    }
};

}  // namespace Quorbel::Test
