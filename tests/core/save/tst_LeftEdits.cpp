// Edits that were left behind: what becomes of them on photos that changed, how they are told, and the file in which
// they survive the program.
#include "core/save/LeftEditsFile.h"
#include "tests/support/Support.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

QList<QUrl> photos(const QStringList& paths)
{
    QList<QUrl> urls;
    for (const QString& path : paths)
        urls.append(QUrl::fromLocalFile(path));
    return urls;
}

LeftEdits titled(const QString& title, const QStringList& paths = { u"/p/a.jpg"_s })
{
    return { .edits = { .scalars = { { u"title"_s, title } }, .subjects = photos(paths) } };
}

QStringList titles(const QList<LeftEdits>& list)
{
    QStringList titles;
    for (const LeftEdits& left : list)
        titles.append(left.edits.scalars.value(u"title"_s));
    return titles;
}

// A folder for the file of left edits, and a first program that has ended.
struct State {
    QTemporaryDir folder{};
    QString path = folder.filePath(u"state/unsaved.json"_s);
    explicit State(const QList<LeftEdits>& list = {})
    {
        if (!list.isEmpty())
            QVERIFY(LeftEditsFile(path).store(list, 1));
    }
    QStringList names() const { return QDir(QFileInfo(path).path()).entryList(QDir::Files, QDir::Name); }
};

}  // namespace

class tst_LeftEdits : public QObject {
    Q_OBJECT

private slots:
    void onAChangedPhoto_data();
    void onAChangedPhoto();
    void texts_data();
    void texts();
    void newestTen();
    void everythingSurvives();
    void manyPhotosTakeTheirNames();
    void damagedFile_data();
    void damagedFile();
    void severalPrograms();
    void lateWriteDoesNotWin();
    void folderThatCannotBe();
};

void tst_LeftEdits::onAChangedPhoto_data()
{
    QTest::addColumn<QStringList>("held");
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QStringList>("now");
    QTest::addColumn<std::optional<QStringList>>("expected");
    const QStringList xy{ u"x"_s, u"y"_s };
    using Expected = std::optional<QStringList>;
    QTest::newRow("unchanged") << xy << QStringList{ u"mine"_s, u"x"_s } << xy
                               << Expected(QStringList{ u"mine"_s, u"x"_s });
    QTest::newRow("an item came") << xy << QStringList{ u"x"_s, u"y"_s, u"mine"_s }
                                  << QStringList{ u"x"_s, u"y"_s, u"batch"_s }
                                  << Expected(QStringList{ u"x"_s, u"y"_s, u"batch"_s, u"mine"_s });
    QTest::newRow("an item went") << xy << QStringList{ u"x"_s, u"y"_s, u"mine"_s } << QStringList{ u"y"_s }
                                  << Expected(QStringList{ u"y"_s, u"mine"_s });
    QTest::newRow("an item was taken away") << xy << QStringList{ u"y"_s } << QStringList{ u"z"_s, u"x"_s, u"y"_s }
                                            << Expected(QStringList{ u"z"_s, u"y"_s });
    QTest::newRow("somebody did the same") << xy << QStringList{ u"x"_s } << QStringList{ u"x"_s } << Expected();
}

void tst_LeftEdits::onAChangedPhoto()
{
    QFETCH(QStringList, held);
    QFETCH(QStringList, wanted);
    QFETCH(QStringList, now);
    QFETCH(std::optional<QStringList>, expected);
    LeftEdits left = titled(u"T"_s);
    left.edits.lists.insert(u"keywords"_s, wanted);
    left.heldLists.insert(u"keywords"_s, held);
    ImageRecord photo{ .url = left.edits.subjects.constFirst() };
    photo.lists.insert(u"keywords"_s, now);
    const Edits rebased = left.rebasedOnto(photo);
    QCOMPARE(rebased.lists.contains(u"keywords"_s), expected.has_value());
    QCOMPARE(rebased.lists.value(u"keywords"_s), expected.value_or(QStringList()));
    QCOMPARE(rebased.scalars.value(u"title"_s), u"T"_s);
    photo.values.insert(u"title"_s, u"T"_s);
    QVERIFY(!left.rebasedOnto(photo).edited(u"title"_s));
    // Somebody said that what the photo shows is right.
    left.confirmed = { u"title"_s };
    QCOMPARE(left.rebasedOnto(photo).scalars.value(u"title"_s), u"T"_s);
}

void tst_LeftEdits::texts_data()
{
    QTest::addColumn<LeftEdits>("left");
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("fields");
    LeftEdits left = titled(u"T"_s);
    QTest::newRow("one") << left << u"a.jpg"_s << u"Title"_s;
    left.edits.subjects = photos({ u"/p/a.jpg"_s, u"/p/b.jpg"_s });
    left.edits.added.insert(u"keywords"_s, { u"k"_s });
    QTest::newRow("two") << left << u"a.jpg and b.jpg"_s << u"Title and Keywords"_s;
    left.edits.subjects = photos({ u"/p/a.jpg"_s, u"/p/b.jpg"_s, u"/p/c.jpg"_s, u"/p/d.jpg"_s });
    left.edits.customs = { { u"Film"_s, u"HP5"_s }, { u"Mood"_s, u"calm"_s } };
    QTest::newRow("more") << left << u"a.jpg, b.jpg and 2 more"_s << u"Title, Keywords, Film and 1 more"_s;
    left.edits = { .scalars = { { u"title@de"_s, {} }, { u"event@fr"_s, u"E"_s } },
        .paths = { u"A|b"_s },
        .subjects = photos({ u"/p/a.jpg"_s }) };
    const LeftEdits differing{
        .edits = { .removed = { { u"keywords"_s, { u"k"_s } } },
            .own = { { photos({ u"/p/b.jpg"_s }).constFirst(),
                { .scalars = { { u"title@de"_s, u"See"_s } }, .customs = { { u"Mood"_s, u"calm"_s } } } } },
            .subjects = photos({ u"/p/a.jpg"_s, u"/p/b.jpg"_s }) }
    };
    QTest::newRow("taken away, and of one photo alone")
        << differing << u"a.jpg and b.jpg"_s << u"Title (German), Keywords and Mood"_s;
    QTest::newRow("languages and a path") << left << u"a.jpg"_s << u"Title (German), Keywords and Event (French)"_s;
}

void tst_LeftEdits::texts()
{
    QFETCH(LeftEdits, left);
    QTEST(left.names(), "names");
    QTEST(left.fields(), "fields");
}

void tst_LeftEdits::newestTen()
{
    QList<LeftEdits> list;
    for (int i = 1; i <= 12; ++i)
        LeftEditsList::keep(list, titled(QString::number(i)));
    LeftEditsList::keep(list, titled(u"8"_s));
    QCOMPARE(titles(list).join(u' '), u"8 12 11 10 9 7 6 5 4 3"_s);
    LeftEditsList::rename(list, photos({ u"/p/a.jpg"_s }).constFirst(), photos({ u"/p/z.jpg"_s }).constFirst());
    QCOMPARE(list.constLast().names(), u"z.jpg"_s);
    LeftEditsList::keep(list, titled(u"of the photo that is gone"_s, { u"/p/y.jpg"_s }));
    LeftEditsList::rename(list, photos({ u"/p/z.jpg"_s }).constFirst(), photos({ u"/p/y.jpg"_s }).constFirst());
    QCOMPARE(titles(list).join(u' '), u"8 12 11 10 9 7 6 5 4"_s);
    // Edits of its own go with their photo.
    QList<LeftEdits> own{
        { .edits = { .own = { { photos({ u"/p/a.jpg"_s }).constFirst(), { .scalars = { { u"title"_s, u"A"_s } } } } },
              .subjects = photos({ u"/p/a.jpg"_s, u"/p/b.jpg"_s }) } }
    };
    LeftEditsList::rename(own, photos({ u"/p/a.jpg"_s }).constFirst(), photos({ u"/p/z.jpg"_s }).constFirst());
    QCOMPARE(own.constFirst().names(), u"z.jpg and b.jpg"_s);
    QCOMPARE(own.constFirst().edits.of(photos({ u"/p/z.jpg"_s }).constFirst()).scalars.value(u"title"_s), u"A"_s);
    // With the photo that had all of them, all of them are gone.
    LeftEditsList::rename(own, photos({ u"/p/b.jpg"_s }).constFirst(), photos({ u"/p/z.jpg"_s }).constFirst());
    QVERIFY(own.isEmpty());
}

void tst_LeftEdits::everythingSurvives()
{
    LeftEdits one{
        .heldLists = { { u"keywords"_s, { u"a,b"_s, u"Zürich"_s } } }, .confirmed = { u"description"_s }, .leftAt = 20
    };
    one.edits = { .scalars = { { u"title"_s, u"“quoted” \\ \n second line 🌊"_s }, { u"description"_s, QString() },
                      { u"title@zh-Hans"_s, QString() } },
        .lists = { { u"keywords"_s, { u"Zürich"_s } }, { u"people"_s, {} } },
        .paths = { u"Orte|Schweiz|Zürich"_s },
        .givenUp = { { u"people"_s, { u"Ana"_s } } },
        .customs = { { u"Film"_s, u"HP5"_s }, { u"Empty"_s, QString() } },
        .subjects = photos({ u"/p/Größe #1 100%.jpg"_s }) };
    LeftEdits many{ .leftAt = 10 };
    many.edits = { .scalars = { { u"creator"_s, u"Ana"_s } },
        .added = { { u"keywords"_s, { u"x"_s, u"y"_s } } },
        .removed = { { u"keywords"_s, { u"z"_s } } },
        .own = { { photos({ u"/q/a.jpg"_s }).constFirst(),
                     { .scalars = { { u"title"_s, QString() }, { u"title@de"_s, u"Zürich 🌊"_s } },
                         .added = { { u"people"_s, { u"Ana"_s } } },
                         .removed = { { u"keywords"_s, { u"x"_s } } },
                         .customs = { { u"Film"_s, QString() } } } },
            { photos({ u"/p/b.jpg"_s }).constFirst(), { .scalars = { { u"title"_s, u"B"_s } } } } },
        .subjects = photos({ u"/p/a.jpg"_s, u"/p/b.jpg"_s, u"/q/a.jpg"_s }) };
    const State state({ one, many });
    QVERIFY(!QFileInfo(state.path).permission(QFile::ReadGroup | QFile::ReadOther));
    QVERIFY(QFileInfo(state.path).permission(QFile::ReadOwner | QFile::WriteOwner));
    LeftEditsFile file(state.path);
    QCOMPARE(file.found(), (QList<LeftEdits>{ one, many }));
    QVERIFY(file.store({}, 1));
    QVERIFY(!QFile::exists(state.path));
}

void tst_LeftEdits::manyPhotosTakeTheirNames()
{
    LeftEdits left = titled(u"T"_s, {});
    const QString folder = u"/home/somebody/Pictures/2024/A journey of many days"_s;
    for (int i = 0; i < 50'000; ++i)
        left.edits.subjects.append(QUrl::fromLocalFile(u"%1/IMG_%2.jpg"_s.arg(folder).arg(i, 5, 10, QLatin1Char('0'))));
    const QByteArray text = LeftEditsList::toJson({ left });
    QVERIFY2(text.size() < 50'000 * 20, qPrintable(QString::number(text.size())));
    QCOMPARE(LeftEditsList::fromJson(text), QList<LeftEdits>{ left });
}

void tst_LeftEdits::damagedFile_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<bool>("isPutAside");
    const QByteArray whole = LeftEditsList::toJson({ titled(u"T"_s) });
    const QByteArray photo = R"("photos":{"/p/":["a.jpg"]})";
    QTest::newRow("empty") << QByteArray() << QStringList() << true;
    QTest::newRow("no JSON") << QByteArray("\xff\x00garbage") << QStringList() << true;
    QTest::newRow("cut off") << whole.left(whole.size() / 2) << QStringList() << true;
    QTest::newRow("another form") << QByteArray("[1]") << QStringList() << true;
    QTest::newRow("a later form") << QByteArray(whole).replace("\"version\":1", "\"version\":2") << QStringList()
                                  << true;
    QTest::newRow("own edits of no photo of theirs, and odd ones") << QByteArray(R"({"version":1,"left":[{)" + photo
        + R"(,"own":{"/p/":{"x.jpg":{"scalars":{"title":"lost"}}}}},{)" + photo
        + R"(,"scalars":{"title":"T"},"own":{"/p/":{"a.jpg":{"scalars":7,"added":{}}},"/q/":3}}]})")
                                                                   << QStringList{ u"T"_s } << false;
    QTest::newRow("odd members") << QByteArray(R"({"version":1,"left":[1,null,{},{"scalars":{"title":"no photo"}},{)"
        + photo + R"(},{)" + photo + R"(,"scalars":{"title":7,"x":[]}},{)" + photo
        + R"(,"scalars":{"title":"T"},"lists":5,"customs":[{"value":"x"},3]}]})")
                                 << QStringList{ u"T"_s } << false;
}

void tst_LeftEdits::damagedFile()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isPutAside);
    const State state({ titled(u"old"_s) });
    writeFile(state.path, text);
    LeftEditsFile file(state.path);
    QTEST(titles(file.found()), "expected");
    QCOMPARE(QFile::exists(state.path + u".damaged"_s), isPutAside);
    if (isPutAside)
        QCOMPARE(readFile(state.path + u".damaged"_s), text);
    QVERIFY(file.store({ titled(u"new"_s) }, 1));
    file.close();
    QCOMPARE(titles(LeftEditsFile(state.path).found()), QStringList{ u"new"_s });
}

// Two displays, or a first program that hangs: each has its own, and the next start finds both.
void tst_LeftEdits::severalPrograms()
{
    const State state({ titled(u"before"_s) });
    LeftEditsFile first(state.path);
    QCOMPARE(titles(first.found()), QStringList{ u"before"_s });
    {
        LeftEditsFile second(state.path);
        QVERIFY(second.found().isEmpty());
        LeftEdits late = titled(u"second"_s);
        late.leftAt = 20;
        QVERIFY(second.store({ late }, 1));
        LeftEdits early = titled(u"first"_s);
        early.leftAt = 10;
        QVERIFY(first.store({ early }, 1));
        QCOMPARE(state.names().filter(QRegularExpression(u"json$"_s)),
            (QStringList{ u"unsaved-2.json"_s, u"unsaved.json"_s }));
    }
    first.close();
    QVERIFY(!first.store({}, 2));
    LeftEditsFile next(state.path);
    QCOMPARE(titles(next.found()), (QStringList{ u"second"_s, u"first"_s }));
    QCOMPARE(state.names().filter(QRegularExpression(u"json$"_s)), QStringList{ u"unsaved.json"_s });
    // A program that ends right after it took them over has lost nothing either.
    next.close();
    QCOMPARE(titles(LeftEditsFile(state.path).found()), (QStringList{ u"second"_s, u"first"_s }));
}

void tst_LeftEdits::lateWriteDoesNotWin()
{
    const State state;
    LeftEditsFile file(state.path);
    QVERIFY(file.store({ titled(u"new"_s) }, 2));
    QVERIFY(file.store({ titled(u"old"_s) }, 1));
    file.close();
    QCOMPARE(titles(LeftEditsFile(state.path).found()), QStringList{ u"new"_s });
}

void tst_LeftEdits::folderThatCannotBe()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"state"_s), "a file");
    LeftEditsFile file(folder.filePath(u"state/unsaved.json"_s));
    QVERIFY(file.found().isEmpty());
    QVERIFY(!file.store({ titled(u"T"_s) }, 1));
}

QTEST_GUILESS_MAIN(tst_LeftEdits)
#include "tst_LeftEdits.moc"
