// Damaged and hostile photos: each is opened, shown, selected, edited and saved. None crashes the program or holds it
// up for ever; what cannot be opened or saved is said, and keeps what was typed.
// Needs QUORBEL_TEST_PHOTOS, a folder with "malformed" photos. A sample; every photo with QUORBEL_SLOW_TESTS=1.
#include "app/model/thumbnails/ThumbnailStore.h"
#include "tests/app/model/ModelFixture.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

const QString place = u"Behind the church"_s;
constexpr int longestWait = 300'000;  // ms; of all photos together, under the sanitizers

QStringList brokenPhotos(qsizetype most)
{
    QStringList paths = realPhotos(u"malformed"_s, most);
    // Keeps the tool busy for half an hour: only to be skipped, after ten seconds.
    if (!isSlowRun())
        paths.removeIf([](const QString& path) { return path.endsWith(u"/xmp-deep-nesting.png"_s); });
    return paths;
}

// The photos that hold the place as the tool reads them, by path. Its exit status says nothing: there are warnings.
QSet<QString> holdingPlace(const QList<QUrl>& files)
{
    QStringList arguments{ realTool().exiftoolURL.toLocalFile(), u"-json"_s, u"-a"_s, u"-G1:4"_s, u"-City"_s };
    for (const QUrl& file : files)
        arguments.append(file.toLocalFile());
    QProcess tool;
    tool.start(realTool().perlURL.toLocalFile(), arguments);
    tool.waitForFinished(-1);
    QSet<QString> paths;
    const QJsonArray objects = QJsonDocument::fromJson(tool.readAllStandardOutput()).array();
    for (const QJsonValue& object : objects)
        for (const QJsonValue& value : object.toObject())
            if (value == place)
                paths.insert(object[u"SourceFile"_s].toString());
    return paths;
}

// Waits for what runs to end, as a user would who skips whatever stalls.
bool waitPatiently(ModelFixture& f)
{
    return QTest::qWaitFor(
        [&f] {
            if (f->stalledFile())
                f->skipStalledFile();
            return !f->isWorking();
        },
        longestWait);
}

bool showsAll(ThumbnailStore& store, const QList<QUrl>& files, ThumbnailStore::Kind kind)
{
    return QTest::qWaitFor(
        [&] {
            return std::all_of(files.cbegin(), files.cend(), [&](const QUrl& file) {
                const auto state = store.request(file, kind).state;
                return state == ThumbnailStore::State::ready || state == ThumbnailStore::State::badge;
            });
        },
        longestWait);
}

ThumbnailStoreOptions withTool()
{
    ThumbnailStoreOptions options;
    options.tool = realTool();
    return options;
}

}  // namespace

class tst_MalformedPhotos : public QObject {
    Q_OBJECT

private slots:
    void together();
    void oneByOne_data();
    void oneByOne();
};

// A folder of them: shown, each selected once, then all given one place.
void tst_MalformedPhotos::together()
{
    const QStringList paths = brokenPhotos(40);
    if (paths.isEmpty())
        QSKIP("no photos: QUORBEL_TEST_PHOTOS is not set");
    ModelFixture f;
    const QList<QUrl> copies = copied(paths, f.folder);
    f->preferences().confirmMassEdit.set(false);
    f->preferences().backupOriginals.set(false);
    f->load({ f.folderURL() });
    QVERIFY(waitPatiently(f));
    QList<QUrl> open;
    for (const ImageRecord& record : f->visibleRecords())
        open.append(record.url);
    QVERIFY2(open.size() > copies.size() / 2, qPrintable(f->errorMessage().value_or(QString())));
    ThumbnailStore store(withTool());
    QVERIFY(showsAll(store, open, ThumbnailStore::Kind::small));
    for (const QUrl& photo : std::as_const(open)) {
        f->tap(photo, false, false);
        QCOMPARE(f->primary(), photo);
    }
    f->selectAllPhotos();
    f->setBatch(u"place"_s, place);
    f->requestSave();
    QVERIFY(waitPatiently(f));

    const QSet<QString> saved = holdingPlace(open);
    qInfo("%d of %d files open, %d saved: %s", int(open.size()), int(copies.size()), int(saved.size()),
        qPrintable(f->errorMessage().value_or(QString())));
    QVERIFY(!saved.isEmpty());
    for (qsizetype i = 0; i < copies.size(); ++i) {
        const QString path = copies.at(i).toLocalFile();
        if (saved.contains(path))
            continue;
        QVERIFY2(f->errorMessage().has_value(), qPrintable(path));
        QVERIFY2(readFile(path) == readFile(paths.at(i)), qPrintable(path + u": not saved, and changed"_s));
        if (open.contains(copies.at(i)))
            QVERIFY2(f->selection().contains(copies.at(i)), qPrintable(path + u": not saved, not selected"_s));
    }
    if (saved.size() < open.size()) {
        QCOMPARE((f->isBatch() ? f->batchValues() : f->draftValues()).value(u"place"_s), place);
        QVERIFY(f->unsavedCount() > 0);
    }
}

void tst_MalformedPhotos::oneByOne_data()
{
    QTest::addColumn<QString>("path");
    const QStringList paths = brokenPhotos(3);
    for (const QString& path : paths)
        QTest::newRow(qPrintable(QFileInfo(path).fileName())) << path;
    if (paths.isEmpty())
        QTest::newRow("none") << QString();
}

void tst_MalformedPhotos::oneByOne()
{
    QFETCH(QString, path);
    if (path.isEmpty())
        QSKIP("no photos: QUORBEL_TEST_PHOTOS is not set");
    ModelFixture f;
    const QUrl photo = f.folder.add(QFileInfo(path).fileName(), readFile(path));
    f->preferences().saveDontAsk.set(true);
    f->load({ photo });
    QVERIFY(waitPatiently(f));
    ThumbnailStore store(withTool());
    QVERIFY(showsAll(store, { photo }, ThumbnailStore::Kind::preview));
    if (f->records().isEmpty()) {
        QVERIFY2(f->errorMessage().has_value(), "not open, and nobody says so");
        return;
    }
    f->setErrorMessage({});
    f->setSingle(u"place"_s, place);
    QCOMPARE(f->unsavedCount(), 1);
    f->requestSave();
    QVERIFY(waitPatiently(f));
    const bool isSaved = holdingPlace({ photo }).contains(photo.toLocalFile());
    // A photo may hold a tag twice, the new text in one place and another in the one that is read: that is said too.
    QVERIFY(isSaved || f->unsavedCount() == 1);
    QCOMPARE(f->errorMessage().has_value(), f->unsavedCount() == 1);
    QCOMPARE(f->draftValues().value(u"place"_s), place);
    const bool isBackedUp = QFile::exists(photo.toLocalFile() + u"_original"_s);
    QCOMPARE(readFile(photo.toLocalFile() + (isBackedUp ? u"_original"_s : QString())) == readFile(path),
        isBackedUp || !isSaved);
}

QTEST_GUILESS_MAIN(tst_MalformedPhotos)
#include "tst_MalformedPhotos.moc"
