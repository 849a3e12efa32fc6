// The picture that is shown is one of this very file: whatever is moved, renamed, overwritten or saved, found on disk
// or left by another program.
#include "tests/app/model/thumbnails/Pictures.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <atomic>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

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

class tst_ThumbnailVersions : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

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
};

QTEST_GUILESS_MAIN(tst_ThumbnailVersions)
#include "tst_ThumbnailVersions.moc"
