// The store as its views use it: who is served first, what is kept, what is forgotten.
#include "app/model/thumbnails/ThumbnailStore.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <array>
#include <atomic>
#include <mutex>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Quorbel;
using namespace Qt::StringLiterals;

using Kind = ThumbnailStore::Kind;
using State = ThumbnailStore::State;

namespace {

constexpr int longest = 20000;  // milliseconds; only a failing test, or a very busy machine, waits that long

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

DecodedImage picture(QSize size, QColor color = Qt::gray)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return { .outcome = DecodedImage::Outcome::decoded, .image = image };
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

// A folder of real files, each of one color, in a store that decodes them itself and counts.
class ColorFolder {
public:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QUrl url(const QString& name) const { return QUrl::fromLocalFile(path(name)); }
    // All files are of one size and one second, as those of a burst may be.
    bool write(const QString& name, QColor color) const
    {
        return picture(QSize(30, 20), color).image.save(path(name), "bmp") && setTime(name);
    }
    bool setTime(const QString& name) const
    {
        const std::array<timespec, 2> times{ timespec{ 1'700'000'000, 5 }, timespec{ 1'700'000'000, 5 } };
        return utimensat(AT_FDCWD, QFile::encodeName(path(name)).constData(), times.data(), 0) == 0;
    }
    bool move(const QString& from, const QString& to) const
    {
        return ::rename(QFile::encodeName(path(from)).constData(), QFile::encodeName(path(to)).constData()) == 0;
    }
    // As a metadata editor saves: a new file takes the place of the old one.
    bool rewrite(const QString& name) const
    {
        QFile file(path(name)), fresh(path(u"fresh"_s));
        return file.open(QIODevice::ReadOnly) && fresh.open(QIODevice::WriteOnly)
            && fresh.write(file.readAll() + "caption") > 0 && (fresh.close(), move(u"fresh"_s, name));
    }
    ThumbnailStoreOptions options()
    {
        ThumbnailStoreOptions options;
        options.workers = 1;
        options.cacheFolder = path(u"cache"_s);
        options.embedded = [](const QString&, const std::stop_token&) { return QImage(); };
        options.decode = [this](const QString& file, int, const std::stop_token&) {
            ++m_decoded;
            const QImage image = QImage(file).convertToFormat(QImage::Format_RGB32);
            return image.isNull() ? DecodedImage{ .outcome = DecodedImage::Outcome::damaged }
                                  : DecodedImage{ .outcome = DecodedImage::Outcome::decoded, .image = image };
        };
        return options;
    }
    int decoded() const { return m_decoded; }
    // Of the pure colors that the files are of: what lay on disk as a JPEG comes back a little off.
    static QColor colorOf(const QImage& image)
    {
        const auto pure = [](int channel) { return channel > 127 ? 255 : 0; };
        const QColor color = image.isNull() ? QColor() : image.pixelColor(5, 5);
        return color.isValid() ? QColor(pure(color.red()), pure(color.green()), pure(color.blue())) : color;
    }
    QSet<QString> onDisk() const
    {
        QSet<QString> names;
        for (QDirIterator it(path(u"cache"_s), QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
            names.insert(it.next());
        return names;
    }
    // What the store comes to show for this name, in both sizes.
    QList<QColor> shown(ThumbnailStore& store, const QString& name) const
    {
        QList<QColor> colors;
        for (const Kind kind : { Kind::small, Kind::preview }) {
            store.request(url(name), kind);
            if (!QTest::qWaitFor([&] { return isSettled(store.request(url(name), kind).state); }, longest))
                return {};
            colors.append(colorOf(store.entry(url(name), kind).image));
        }
        return colors;
    }

private:
    static bool isSettled(State state) { return state == State::ready || state == State::badge; }

    QTemporaryDir m_folder;
    std::atomic<int> m_decoded = 0;
};

QList<QColor> both(QColor color)
{
    return { color, color };
}

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

    void invalidatedPhotoIsMadeAnewFromDisk()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"a.png"_s);
        const QUrl url = QUrl::fromLocalFile(path);
        QVERIFY(picture(QSize(30, 20), Qt::red).image.save(path));
        ThumbnailStoreOptions options;
        options.cacheFolder = folder.filePath(u"cache"_s);
        ThumbnailStore store(options);
        store.request(url, Kind::small);
        QTRY_COMPARE_WITH_TIMEOUT(store.entry(url, Kind::small).state, State::ready, longest);
        QVERIFY(picture(QSize(30, 20), Qt::blue).image.save(path));
        store.invalidate({ url });
        store.request(url, Kind::small);
        QTRY_COMPARE_WITH_TIMEOUT(store.entry(url, Kind::small).state, State::ready, longest);
        QCOMPARE(store.entry(url, Kind::small).image.pixelColor(5, 5), QColor(Qt::blue));
    }

    // Another file under the same name never shows the picture of the one before, however alike the two are.
    void aPictureBelongsToAVersionOfItsFile_data()
    {
        QTest::addColumn<QString>("how");
        QTest::addColumn<bool>("isTold");
        for (const char* how : { "moved", "made anew", "overwritten", "turned into no picture" })
            for (const bool isTold : { false, true })
                QTest::addRow("%s, %s", how, isTold ? "told" : "found") << QString::fromLatin1(how) << isTold;
    }
    void aPictureBelongsToAVersionOfItsFile()
    {
        QFETCH(QString, how);
        QFETCH(bool, isTold);
        ColorFolder folder;
        QVERIFY(folder.write(u"a"_s, Qt::red) && folder.write(u"c"_s, Qt::blue));
        ThumbnailStore store(folder.options());
        QCOMPARE(folder.shown(store, u"a"_s), both(Qt::red));
        QColor expected = Qt::blue;
        if (how == u"moved") {
            QVERIFY(folder.move(u"a"_s, u"z"_s) && folder.move(u"c"_s, u"a"_s));
        } else if (how == u"made anew") {
            QVERIFY(QFile::remove(folder.path(u"a"_s)));
            QVERIFY(picture(QSize(30, 20), Qt::blue).image.save(folder.path(u"a"_s), "bmp"));
        } else if (how == u"overwritten") {
            QFile file(folder.path(u"a"_s)), other(folder.path(u"c"_s));
            QVERIFY(file.open(QIODevice::ReadWrite) && other.open(QIODevice::ReadOnly));
            QVERIFY(file.write(other.readAll()) > 0);
        } else {
            QVERIFY(QFile::remove(folder.path(u"a"_s)));
            QFile file(folder.path(u"a"_s));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("none") == 4);
            expected = QColor();
        }
        if (isTold)
            store.invalidate({ folder.url(u"a"_s) });
        else
            store.lookAgain();
        // Not for a moment, and not as a placeholder either.
        for (const Kind kind : { Kind::small, Kind::preview })
            QVERIFY(store.entry(folder.url(u"a"_s), kind).image.isNull());
        QCOMPARE(folder.shown(store, u"a"_s), both(expected));
        if (how == u"moved")
            QCOMPARE(folder.shown(store, u"z"_s), both(Qt::red));
        // Nor does a later start find it on disk.
        ThumbnailStore later(folder.options());
        QCOMPARE(folder.shown(later, u"a"_s), both(expected));
    }

    void aFileThatIsReplacedWhileItIsDecodedIsDecodedAgain()
    {
        ColorFolder folder;
        QVERIFY(folder.write(u"a"_s, Qt::red) && folder.write(u"c"_s, Qt::blue));
        ThumbnailStoreOptions options = folder.options();
        const auto decode = options.decode;
        std::atomic<bool> isFirst = true;
        options.decode = [&, decode](const QString& path, int longSide, const std::stop_token& stop) {
            const DecodedImage image = decode(path, longSide, stop);
            return isFirst.exchange(false) && !folder.move(u"c"_s, u"a"_s) ? DecodedImage{} : image;
        };
        ThumbnailStore store(options);
        QCOMPARE(folder.shown(store, u"a"_s), both(Qt::blue));
        ThumbnailStore later(folder.options());
        QCOMPARE(folder.shown(later, u"a"_s), both(Qt::blue));
    }

    void aRenamedPhotoTakesItsPicturesAlong()
    {
        ColorFolder folder;
        QVERIFY(folder.write(u"a"_s, Qt::red) && folder.write(u"c"_s, Qt::blue) && folder.write(u"bad"_s, Qt::red));
        QVERIFY(QFile::resize(folder.path(u"bad"_s), 1));
        ThumbnailStore store(folder.options());
        QCOMPARE(folder.shown(store, u"a"_s), both(Qt::red));
        QCOMPARE(folder.shown(store, u"c"_s), both(Qt::blue));
        QCOMPARE(folder.shown(store, u"bad"_s), both(QColor()));
        const int decoded = folder.decoded();
        const QSet<QString> onDisk = folder.onDisk();
        for (const auto& [from, to] :
            { std::pair(u"a"_s, u"z"_s), std::pair(u"c"_s, u"a"_s), std::pair(u"bad"_s, u"c"_s) }) {
            QVERIFY(folder.move(from, to));
            store.rename(folder.url(from), folder.url(to));
            QCOMPARE(store.entry(folder.url(from), Kind::small).state, State::none);
        }
        for (const Kind kind : { Kind::small, Kind::preview }) {
            QCOMPARE(store.request(folder.url(u"z"_s), kind).image.pixelColor(5, 5), QColor(Qt::red));
            QCOMPARE(store.request(folder.url(u"a"_s), kind).image.pixelColor(5, 5), QColor(Qt::blue));
            QCOMPARE(store.request(folder.url(u"c"_s), kind).state, State::badge);
        }
        QCOMPARE(folder.decoded(), decoded);
        // On disk too: those that are kept there, the small ones.
        QTRY_COMPARE_WITH_TIMEOUT((folder.onDisk() - onDisk).size(), 2, longest);
        QCOMPARE(folder.onDisk().size(), onDisk.size());
        ThumbnailStore later(folder.options());
        for (const auto& [name, color] : { std::pair(u"z"_s, QColor(Qt::red)), std::pair(u"a"_s, QColor(Qt::blue)) }) {
            later.request(folder.url(name), Kind::small);
            QTRY_COMPARE_WITH_TIMEOUT(later.entry(folder.url(name), Kind::small).state, State::ready, longest);
            QCOMPARE(ColorFolder::colorOf(later.entry(folder.url(name), Kind::small).image), color);
        }
        QCOMPARE(folder.decoded(), decoded);
    }

    // A save makes another file of the same picture: what is shown stays, all the time, and nothing is decoded again.
    void aSavedPhotoKeepsItsPictures()
    {
        ColorFolder folder;
        QVERIFY(folder.write(u"a"_s, Qt::red) && folder.write(u"b"_s, Qt::blue) && folder.write(u"c"_s, Qt::green));
        ThumbnailStore store(folder.options());
        QCOMPARE(folder.shown(store, u"a"_s), both(Qt::red));
        QCOMPARE(folder.shown(store, u"b"_s), both(Qt::blue));
        int decoded = folder.decoded();
        const QSet<QString> onDisk = folder.onDisk();
        // Another program has replaced b unseen: that is not the picture which the save keeps.
        QVERIFY(folder.move(u"c"_s, u"b"_s));
        QSignalSpy changes(&store, &ThumbnailStore::entryChanged);
        store.beginWriting({ folder.url(u"a"_s), folder.url(u"b"_s) });
        for (const QList<QVariant>& change : std::as_const(changes))
            QCOMPARE(change.first().toUrl(), folder.url(u"b"_s));
        changes.clear();
        QVERIFY(folder.rewrite(u"a"_s) && folder.rewrite(u"b"_s));
        store.lookAgain();
        QCOMPARE(store.request(folder.url(u"a"_s), Kind::small).state, State::ready);
        store.endWriting({ folder.url(u"a"_s), folder.url(u"b"_s) });
        store.lookAgain();
        for (const Kind kind : { Kind::small, Kind::preview }) {
            const ThumbnailStore::Entry entry = store.request(folder.url(u"a"_s), kind);
            QCOMPARE(entry.state, State::ready);
            QCOMPARE(entry.image.pixelColor(5, 5), QColor(Qt::red));
        }
        QCOMPARE(folder.decoded(), decoded);
        QCOMPARE(changes.size(), 0);
        QTRY_VERIFY_WITH_TIMEOUT(!(folder.onDisk() - onDisk).isEmpty(), longest);
        QCOMPARE(folder.shown(store, u"b"_s), both(Qt::green));
        decoded = folder.decoded();
        ThumbnailStore later(folder.options());
        later.request(folder.url(u"a"_s), Kind::small);
        QTRY_COMPARE_WITH_TIMEOUT(later.entry(folder.url(u"a"_s), Kind::small).state, State::ready, longest);
        QCOMPARE(folder.decoded(), decoded);
        // What another program does afterwards counts again.
        QVERIFY(folder.write(u"d"_s, Qt::yellow) && folder.move(u"d"_s, u"a"_s));
        QCOMPARE(folder.shown(store, u"a"_s), both(Qt::yellow));
    }

    // What was shown of a photo stays when the photo itself cannot be decoded; of it alone, not of what it replaced.
    void aThumbnailStandsInForWhatCannotBeDecoded()
    {
        ColorFolder folder;
        QVERIFY(folder.write(u"a"_s, Qt::red));
        ThumbnailStoreOptions options = folder.options();
        std::atomic<bool> hasThumbnail = true;
        options.embedded = [&](const QString&, const std::stop_token&) {
            return hasThumbnail ? picture(QSize(16, 12), Qt::blue).image : QImage();
        };
        const auto decode = options.decode;
        options.decode = [decode](const QString& path, int longSide, const std::stop_token& stop) {
            return longSide < 1000 ? decode(path, longSide, stop)
                                   : DecodedImage{ .outcome = DecodedImage::Outcome::tooLarge };
        };
        ThumbnailStore store(options);
        const QUrl url = folder.url(u"a"_s);
        QCOMPARE(folder.shown(store, u"a"_s), (QList<QColor>{ Qt::red, Qt::red }));
        QVERIFY(!store.entry(url, Kind::small).isStandIn);
        QVERIFY(store.entry(url, Kind::preview).isStandIn);
        ThumbnailStore previewOnly(options);
        previewOnly.request(url, Kind::preview);
        QTRY_COMPARE_WITH_TIMEOUT(previewOnly.entry(url, Kind::preview).state, State::ready, longest);
        QCOMPARE(previewOnly.entry(url, Kind::preview).image.size(), QSize(16, 12));
        QVERIFY(previewOnly.entry(url, Kind::preview).isStandIn);

        hasThumbnail = false;
        QFile file(folder.path(u"a"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("none") == 4);
        file.close();
        QCOMPARE(folder.shown(store, u"a"_s), both(QColor()));
    }

    // Other programs' thumbnails name the second of their photo, in which a camera takes several.
    void aSharedThumbnailIsOfThisFile()
    {
        ColorFolder folder;
        QVERIFY(folder.write(u"a"_s, Qt::red) && folder.write(u"c"_s, Qt::blue));
        ThumbnailStoreOptions options = folder.options();
        options.sharedFolder = folder.path(u"shared"_s);
        options.decode = [](const QString&, int, const std::stop_token&) { return DecodedImage{}; };
        const QByteArray name =
            QCryptographicHash::hash(folder.url(u"a"_s).toEncoded(), QCryptographicHash::Md5).toHex() + ".png";
        QVERIFY(QDir().mkpath(options.sharedFolder + u"/normal"_s));
        QImage thumbnail = picture(QSize(128, 96), Qt::red).image;
        thumbnail.setText(u"Thumb::MTime"_s, u"1700000000"_s);
        QVERIFY(thumbnail.save(options.sharedFolder + u"/normal/"_s + QString::fromLatin1(name)));
        {
            ThumbnailStore store(options);
            store.request(folder.url(u"a"_s), Kind::small);
            QTRY_COMPARE_WITH_TIMEOUT(store.entry(folder.url(u"a"_s), Kind::small).state, State::ready, longest);
        }
        QTest::qWait(20);  // the clock of a file system ticks every few milliseconds
        QVERIFY(folder.move(u"a"_s, u"z"_s) && folder.move(u"c"_s, u"a"_s));
        ThumbnailStore store(options);
        store.request(folder.url(u"a"_s), Kind::small);
        QTRY_COMPARE_WITH_TIMEOUT(store.entry(folder.url(u"a"_s), Kind::small).state, State::badge, longest);
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
