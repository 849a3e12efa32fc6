// The store as its views use it: who is served first, what is kept, what is forgotten.
#include "tests/app/model/thumbnails/Pictures.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <atomic>
#include <mutex>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

QUrl photo(int number)
{
    return QUrl::fromLocalFile(u"/photos/%1.jpg"_s.arg(number));
}

QList<QUrl> photos(int from, int to)
{
    QList<QUrl> urls;
    for (int number = from; number < to; ++number)
        urls.append(photo(number));
    return urls;
}

// QTRY_ looks ten milliseconds apart, which is long for thousands of small jobs.
bool becomesReady(const ThumbnailStore& store, const QUrl& url, Kind kind)
{
    const QDeadlineTimer end(20000);
    while (store.entry(url, kind).state != State::ready && !end.hasExpired()) {
        QCoreApplication::processEvents();
        QThread::usleep(50);
    }
    return store.entry(url, kind).state == State::ready;
}

// Stands in for decoding: notes who was decoded, in order, and waits at a gate.
class FakeDecoder {
public:
    ThumbnailStoreOptions options()
    {
        ThumbnailStoreOptions options;
        options.workers = 1;
        options.embedded = [](const QString&, const std::stop_token&) { return QImage(); };
        options.decode = [this](const QString& path, int longSide, const std::stop_token& stop) {
            ++m_entered;
            while (m_closed && !stop.stop_requested())
                QThread::msleep(1);
            const std::scoped_lock lock(m_mutex);
            m_decoded.append(QUrl::fromLocalFile(path));
            return picture(QSize(longSide, longSide * 2 / 3));
        };
        return options;
    }
    void setClosed(bool closed) { m_closed = closed; }
    // Lets the store come as far as its first decoding, at the closed gate.
    bool waitForEntry() const
    {
        const bool entered = QTest::qWaitFor([this] { return m_entered > 0; }, 20000);
        QCoreApplication::processEvents();
        return entered;
    }
    QList<QUrl> decoded()
    {
        const std::scoped_lock lock(m_mutex);
        return m_decoded;
    }

private:
    std::atomic<bool> m_closed = false;
    std::atomic<int> m_entered = 0;
    std::mutex m_mutex;
    QList<QUrl> m_decoded;
};

}  // namespace

class tst_ThumbnailStore : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void showsAPhotoFromDisk()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"a.jpg"_s);
        QVERIFY(picture(QSize(600, 400), Qt::red).image.save(path));
        ThumbnailStore store;
        const QUrl url = QUrl::fromLocalFile(path);
        QCOMPARE(store.entry(url, Kind::small).state, State::none);
        QCOMPARE(store.request(url, Kind::small).state, State::loading);
        store.request(url, Kind::preview);
        QTRY_COMPARE_WITH_TIMEOUT(store.entry(url, Kind::small).state, State::ready, longest);
        QTRY_COMPARE_WITH_TIMEOUT(store.entry(url, Kind::preview).state, State::ready, longest);
        QCOMPARE(store.entry(url, Kind::small).image.size(), QSize(90, 60));
        QCOMPARE(store.entry(url, Kind::preview).image.size(), QSize(600, 400));
    }

    void asksOnceForTwoRequests()
    {
        FakeDecoder fake;
        fake.setClosed(true);
        ThumbnailStore store(fake.options());
        for (int i = 0; i < 5; ++i) {
            store.request(photo(1), Kind::small);
            QTest::qWait(2);
        }
        fake.setClosed(false);
        QTRY_COMPARE_WITH_TIMEOUT(store.entry(photo(1), Kind::small).state, State::ready, longest);
        QCOMPARE(fake.decoded().size(), 1);
    }

    // A folder of 20,000: every row is asked for, then the list jumps to its end.
    void jumpToTheEndServesTheVisibleRows()
    {
        FakeDecoder fake;
        fake.setClosed(true);
        ThumbnailStoreOptions options = fake.options();
        options.smallBytes = 1024 * 1024;
        ThumbnailStore store(options);
        const int count = 20000, rows = 20;
        QHash<QUrl, int> painted;
        connect(&store, &ThumbnailStore::entryChanged, this, [&](const QUrl& url, Kind kind) {
            if (store.entry(url, kind).state == State::ready)
                ++painted[url];
        });
        const QList<QUrl> all = photos(0, count), last = all.last(rows);
        for (const QUrl& url : all)
            store.request(url, Kind::small);
        store.setVisible(last, photos(count - 2 * rows, count - rows));
        for (const QUrl& url : last)
            store.request(url, Kind::small);
        fake.setClosed(false);
        QTRY_COMPARE_WITH_TIMEOUT(painted.size(), 2 * rows, longest);
        QTest::qWait(20);

        QList<QUrl> shown = fake.decoded();
        shown.removeIf([&](const QUrl& url) { return !painted.contains(url); });
        QCOMPARE(QSet<QUrl>(shown.cbegin(), shown.cbegin() + rows), QSet<QUrl>(last.cbegin(), last.cend()));
        // What was dropped stays dropped: not made, not announced, and free to be asked for again.
        QCOMPARE(painted.size(), 2 * rows);
        QVERIFY(fake.decoded().size() < 3 * rows);
        QCOMPARE(store.entry(photo(0), Kind::small).state, State::none);
    }

    void memoryStaysUnderItsBounds()
    {
        FakeDecoder fake;
        ThumbnailStoreOptions options = fake.options();
        options.smallBytes = 1024 * 1024;
        options.previewBytes = 16 * 1024 * 1024;
        ThumbnailStore store(options);
        const QList<QUrl> all = photos(0, 20000);
        qsizetype most = 0, mostPreviews = 0;
        for (qsizetype from = 0; from < all.size(); from += 500) {
            const QList<QUrl> page = all.sliced(from, 500);
            store.setVisible(page);
            for (const QUrl& url : page.first(60))
                store.request(url, Kind::small);
            store.request(page.first(), Kind::preview);
            QVERIFY(becomesReady(store, page.first(), Kind::preview));
            QVERIFY(becomesReady(store, page.first(), Kind::small));
            most = qMax(most, store.bytesHeld(Kind::small));
            mostPreviews = qMax(mostPreviews, store.bytesHeld(Kind::preview));
        }
        QVERIFY(most <= options.smallBytes && most > options.smallBytes / 2);
        QVERIFY(mostPreviews <= options.previewBytes && mostPreviews > options.previewBytes / 2);
        // The least recently used went first.
        QCOMPARE(store.entry(all.first(), Kind::small).state, State::none);
        QCOMPARE(store.entry(all.at(19500), Kind::small).state, State::ready);
    }

    void newestRequestsAndPreviewsFirst()
    {
        FakeDecoder fake;
        fake.setClosed(true);
        ThumbnailStore store(fake.options());
        store.request(photo(0), Kind::small);
        store.request(photo(1), Kind::small);
        QVERIFY(fake.waitForEntry());  // now the one worker and its reserve hold both
        for (const QUrl& url : photos(2, 6))
            store.request(url, Kind::small);
        store.request(photo(9), Kind::preview);
        fake.setClosed(false);
        QTRY_COMPARE_WITH_TIMEOUT(fake.decoded().size(), 7, longest);
        QCOMPARE(fake.decoded().sliced(2), (QList<QUrl>{ photo(9), photo(5), photo(4), photo(3), photo(2) }));
    }

    void embeddedThumbnailIsOnlyAPlaceholder()
    {
        FakeDecoder fake;
        fake.setClosed(true);
        ThumbnailStoreOptions options = fake.options();
        options.embedded = [](const QString&, const std::stop_token&) { return picture(QSize(16, 12), Qt::red).image; };
        ThumbnailStore store(options);
        store.request(photo(1), Kind::small);
        QTRY_COMPARE_WITH_TIMEOUT(store.entry(photo(1), Kind::small).state, State::placeholder, longest);
        QCOMPARE(store.entry(photo(1), Kind::small).image.size(), QSize(16, 12));
        fake.setClosed(false);
        QTRY_COMPARE_WITH_TIMEOUT(store.entry(photo(1), Kind::small).state, State::ready, longest);
        QCOMPARE(store.entry(photo(1), Kind::small).image.size(), QSize(90, 60));
    }

    void undecodableIsABadgeUntilTheFileChanges()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"a.jpg"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("not a picture") > 0);
        file.close();
        const QUrl url = QUrl::fromLocalFile(path);
        ThumbnailStore store;
        QSignalSpy changes(&store, &ThumbnailStore::entryChanged);
        store.request(url, Kind::small);
        QTRY_COMPARE_WITH_TIMEOUT(store.entry(url, Kind::small).state, State::badge, longest);
        QCOMPARE(store.request(url, Kind::small).state, State::badge);
        QTest::qWait(20);
        QCOMPARE(changes.size(), 1);

        QVERIFY(picture(QSize(30, 20)).image.save(path));
        store.invalidate({ url });
        QCOMPARE(store.entry(url, Kind::small).state, State::none);
        store.request(url, Kind::small);
        QTRY_COMPARE_WITH_TIMEOUT(store.entry(url, Kind::small).state, State::ready, longest);
    }

    void resultsOfTheOldContentAreDropped()
    {
        FakeDecoder fake;
        fake.setClosed(true);
        ThumbnailStore store(fake.options());
        QSignalSpy changes(&store, &ThumbnailStore::entryChanged);
        store.request(photo(1), Kind::small);
        QVERIFY(fake.waitForEntry());
        store.invalidate({ photo(1) });
        fake.setClosed(false);
        QTRY_VERIFY_WITH_TIMEOUT(!fake.decoded().isEmpty(), longest);
        QTest::qWait(20);
        QCOMPARE(store.entry(photo(1), Kind::small).state, State::none);
        QCOMPARE(changes.size(), 1);
    }

    void sizesFollowTheScreen()
    {
        FakeDecoder fake;
        ThumbnailStore store(fake.options());
        store.request(photo(1), Kind::small);
        QTRY_COMPARE_WITH_TIMEOUT(store.entry(photo(1), Kind::small).state, State::ready, longest);
        store.setDevicePixelRatio(2);
        QCOMPARE(store.entry(photo(1), Kind::small).state, State::placeholder);
        store.request(photo(1), Kind::small);
        QTRY_COMPARE_WITH_TIMEOUT(store.entry(photo(1), Kind::small).image.width(), 180, longest);
        // The rows on screen are made anew without being asked for.
        store.setVisible({ photo(1) });
        store.setDevicePixelRatio(3);
        QTRY_COMPARE_WITH_TIMEOUT(store.entry(photo(1), Kind::small).image.width(), 270, longest);
    }

    void secondStoreReadsTheDiskCache()
    {
        QTemporaryDir folder;
        FakeDecoder fake;
        ThumbnailStoreOptions options = fake.options();
        options.cacheFolder = folder.filePath(u"cache"_s);
        const QString path = folder.filePath(u"a.jpg"_s);
        QVERIFY(picture(QSize(30, 20)).image.save(path));
        const QUrl url = QUrl::fromLocalFile(path);
        for (int run = 0; run < 2; ++run) {
            ThumbnailStore store(options);
            store.request(url, Kind::small);
            QTRY_COMPARE_WITH_TIMEOUT(store.entry(url, Kind::small).state, State::ready, longest);
            QCOMPARE(store.entry(url, Kind::small).image.size(), QSize(90, 60));
        }
        QCOMPARE(fake.decoded().size(), 1);
        const auto others = QFile::ReadGroup | QFile::ReadOther | QFile::ExeGroup | QFile::ExeOther;
        QVERIFY(!(QFile::permissions(options.cacheFolder) & others));
    }

    // What the libraries refuse is asked of the tool: in one run for both sizes, one file after the other, last in
    // the queue. A file in which it finds nothing is left alone from then on.
    void rawPreviewComesFromTheTool()
    {
        QTemporaryDir folder;
        const auto path = [&](const char* name) { return folder.filePath(QString::fromLatin1(name)); };
        const auto url = [&](const char* name) { return QUrl::fromLocalFile(path(name)); };
        const auto write = [](const QString& file, const QByteArray& bytes) {
            QFile out(file);
            return out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size();
        };
        QVERIFY(picture(QSize(60, 40), Qt::red).image.save(path("small.jpg")));
        QVERIFY(picture(QSize(600, 400), Qt::red).image.save(path("large.jpg")));
        QVERIFY(write(path("tool"), R"(
            use MIME::Base64;
            my $folder = $0 =~ s{/[^/]*$}{}r;
            my $name = $ARGV[-1] =~ s{.+/}{}r;
            my $note = sub { open my $log, '>>', "$folder/log"; print $log @_; close $log };
            my $value = sub { open my $in, '<:raw', "$folder/$_[0]"; local $/; 'base64:' . encode_base64(<$in>, '') };
            $note->("begins $name: ", join(' ', @ARGV[0 .. $#ARGV - 1]), "\n");
            if ($name eq 'none.cr3') { print '[{"ThumbnailImage": "no picture"}]' }
            else { printf '[{"PreviewImage": "%s", "JpgFromRaw": "%s", "Orientation": 6}]',
                $value->('small.jpg'), $value->('large.jpg') }
            $note->("ends $name\n");
        )"));
        for (const char* name : { "a.cr3", "b.jpg", "c.cr3", "none.cr3" })
            QVERIFY(write(path(name), "bytes"));
        FakeDecoder fake;
        ThumbnailStoreOptions options = fake.options();
        options.cacheFolder = path("cache");
        options.tool = ExifToolRunner{ url("tool"), QUrl::fromLocalFile(u"/usr/bin/perl"_s) };
        const auto decode = options.decode;
        options.decode = [decode](const QString& file, int longSide, const std::stop_token& stop) {
            return file.endsWith(u".cr3") ? DecodedImage{ DecodedImage::Outcome::needsTool, {} }
                                          : decode(file, longSide, stop);
        };
        ThumbnailStore store(options);
        QList<QUrl> finished;
        connect(&store, &ThumbnailStore::entryChanged, this, [&](const QUrl& changed) { finished.append(changed); });
        store.request(url("none.cr3"), Kind::preview);
        store.request(url("none.cr3"), Kind::small);
        store.request(url("c.cr3"), Kind::preview);
        store.request(url("b.jpg"), Kind::small);
        store.request(url("a.cr3"), Kind::preview);
        store.request(url("a.cr3"), Kind::small);
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 6, longest);
        QCOMPARE(finished.first(), url("b.jpg"));
        QCOMPARE(store.entry(url("a.cr3"), Kind::preview).image.size(), QSize(400, 600));
        QCOMPARE(store.entry(url("a.cr3"), Kind::small).image.size(), QSize(60, 90));
        QCOMPARE(store.request(url("none.cr3"), Kind::preview).state, State::badge);
        QCOMPARE(store.request(url("none.cr3"), Kind::small).state, State::badge);
        QFile log(path("log"));
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QByteArray selection =
            "-json -b -n -PreviewImage -JpgFromRaw -ThumbnailImage -EXIF:Orientation -Composite:ImageSize";
        QByteArray expected;
        for (const char* name : { "a.cr3", "c.cr3", "none.cr3" })
            expected += QByteArray("begins ") + name + ": " + selection + "\nends " + name + '\n';
        QCOMPARE(log.readAll(), expected);
    }

    void destroyedStoreEndsItsWork()
    {
        FakeDecoder fake;
        fake.setClosed(true);
        {
            ThumbnailStore store(fake.options());
            for (const QUrl& url : photos(0, 100))
                store.request(url, Kind::small);
            QVERIFY(fake.waitForEntry());
        }
        // Nothing is left that waits at the gate: the fake may go too.
        QVERIFY(fake.decoded().size() <= 2);
    }
};

QTEST_GUILESS_MAIN(tst_ThumbnailStore)
#include "tst_ThumbnailStore.moc"
