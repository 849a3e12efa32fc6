// Photos with made-up records, a tool that tells its version, and a cache that knows them. Thread: any; one at a time.
#pragma once

#include "app/model/library/cache/RecordCache.h"
#include "tests/support/Support.h"

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

using Records = QHash<QUrl, ImageRecord>;

inline QByteArray localName(const QString& path)
{
    return QFile::encodeName(path);
}

inline QList<PhotoFile> looks(const QList<QUrl>& urls)
{
    QList<PhotoFile> files;
    for (const QUrl& url : urls)
        if (const auto look = PhotoFile::at(url); look.file)
            files.append(*look.file);
    return files;
}

/// As a read gives it.
inline ImageRecord recordOf(const PhotoFile& file, const QString& title)
{
    ImageRecord record = file.unreadRecord();
    record.isUnread = false;
    record.pixelWidth = 8;
    record.values = { { u"title"_s, title } };
    record.lists = { { u"keywords"_s, { u"one"_s, title } } };
    record.custom = { { u"Mood"_s, u"calm"_s } };
    record.camera = { { u"Camera"_s, u"Quorbel 1"_s } };
    return record;
}

/// A folder of photos, a tool that tells its version, and a cache beside them.
struct Setting {
    PhotoFolder photos;
    PhotoFolder beside;
    FakeTool tool;
    QList<QUrl> urls;

    explicit Setting(int count = 0)
    {
        tell("12.57");
        for (int i = 0; i < count; ++i)
            urls.append(photos.add(u"%1.jpg"_s.arg(i)));
    }
    void tell(const QByteArray& version) { tool.answerAlways({ .standardOutput = version + '\n' }); }
    RecordCache::Options options() const { return { .folder = beside.path(u"records"_s) }; }
    QString file() const { return beside.path(u"records/records.db"_s); }
    Records records() const
    {
        Records all;
        const QList<PhotoFile> files = looks(urls);
        for (const PhotoFile& photo : files)
            all.insert(photo.url, recordOf(photo, u"Title of "_s + photo.url.fileName()));
        return all;
    }
    /// Puts what would have been read now.
    void put(RecordCache& cache) const
    {
        const QList<PhotoFile> files = looks(urls);
        const Records all = records();
        QList<RecordCache::Read> reads;
        for (const PhotoFile& photo : files)
            reads.append({ photo, all.value(photo.url) });
        cache.put(cache.begin(files), reads);
        cache.waitUntilWritten();
    }
    void put() const
    {
        RecordCache cache(options(), tool.runner());
        put(cache);
    }
    Records found() const
    {
        RecordCache cache(options(), tool.runner());
        return cache.find(looks(urls));
    }
};

}  // namespace Quorbel::Test
