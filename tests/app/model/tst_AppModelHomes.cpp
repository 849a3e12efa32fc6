// Fields that live in several homes: what only one of them holds stays through every save, each item as it was spelled,
// and all of them are proved.
#include "core/schema/FieldSchema.h"
#include "tests/app/model/ModelFixture.h"

#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

const QString iptcTag = u"IPTC:Keywords"_s;
const QString xmpTag = u"XMP-dc:Subject"_s;

// The items of one list, as they are stored.
QStringList home(const QUrl& photo, const QString& tag)
{
    const QString text = QString::fromUtf8(exiftool({ u"-s3"_s, u"-sep"_s, u"|"_s, u'-' + tag, photo.toLocalFile() }));
    return text.isEmpty() ? QStringList() : text.chopped(1).split(u'|');
}

QStringList sorted(QStringList items)
{
    items.sort();
    return items;
}

// A model that saves without asking and can take saves back.
struct Photos : ModelFixture {
    explicit Photos(const MetadataService& service = { realTool() })
        : ModelFixture(service)
    {
        services.journalPath = state.filePath(u"undo.json"_s);
        relaunch();
        model->preferences().confirmMassEdit.set(false);
        model->preferences().saveDontAsk.set(true);
        model->preferences().backupOriginals.set(false);
    }
    void add(const QString& name, const QStringList& iptc, const QStringList& xmp) const
    {
        QStringList arguments{ u"-overwrite_original"_s, u"-m"_s, u"-Title=x"_s };
        for (const QString& item : iptc)
            arguments.append(u'-' + iptcTag + u"= "_s + item);  // of the blanks, one belongs to the sign
        for (const QString& item : xmp)
            arguments.append(u'-' + xmpTag + u"= "_s + item);
        exiftool(arguments << folder.add(name).toLocalFile());
    }
    bool save()
    {
        model->setErrorMessage(std::nullopt);
        model->requestSave();
        return waitUntilIdle();
    }
    QString banner() const { return model->errorMessage().value_or(QString()); }

    QTemporaryDir state;
};

// The real tool, which drops what a save assigns to IPTC:City and says nothing.
MetadataService forgetfulService(const PhotoFolder& folder)
{
    QByteArray script = "#!/usr/bin/perl\nexec $^X, 'TOOL', grep { !/^-IPTC:City=/ } @ARGV;\n";
    script.replace("TOOL", realTool().exiftoolURL.toLocalFile().toUtf8());
    return { { folder.add(u"exiftool"_s, script), realTool().perlURL } };
}

}  // namespace

class tst_AppModelHomes : public QObject {
    Q_OBJECT

private slots:
    void appending_data();
    void appending();
    void appendingToMany();
    void replacing_data();
    void replacing();
    void formatWithoutIptc();
    void everyHomeIsProved();
    void noHomeIsMissedWhereThereIsNone_data();
    void noHomeIsMissedWhereThereIsNone();
};

void tst_AppModelHomes::appending_data()
{
    QTest::addColumn<QStringList>("iptc");
    QTest::addColumn<QStringList>("xmp");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<bool>("isJoined");
    const auto row = [](const char* name, const QStringList& iptc, const QStringList& xmp, const QStringList& expected,
                         bool isJoined) { QTest::newRow(name) << iptc << xmp << sorted(expected) << isJoined; };
    row("none", {}, {}, { u"x"_s }, false);
    row("the same", { u"a"_s, u"b"_s }, { u"b"_s, u"a"_s }, { u"a"_s, u"b"_s, u"x"_s }, false);
    row("in XMP alone", {}, { u"a"_s, u"b"_s }, { u"a"_s, u"b"_s, u"x"_s }, true);
    row("each its own", { u"a"_s, u"b"_s }, { u"b"_s, u"c"_s }, { u"a"_s, u"b"_s, u"c"_s, u"x"_s }, true);
    row("the new one is there already", { u"a"_s }, { u"a"_s, u"x"_s }, { u"a"_s, u"x"_s }, false);
    row("texts that look like numbers", { u"1.10"_s, u"-0"_s }, { u"True"_s, u"1e5"_s },
        { u"-0"_s, u"1.10"_s, u"1e5"_s, u"True"_s, u"x"_s }, true);
    row("in a script that IPTC could not hold", { u"Olkhon"_s, u"??????"_s }, { u"Olkhon"_s, u"Хужирт"_s },
        { u"Olkhon"_s, u"x"_s, u"Хужирт"_s }, true);
    row("UTF-8 taken for Latin 1", { u"VÃ½let"_s }, { u"Výlet"_s }, { u"Výlet"_s, u"x"_s }, true);
    row("question marks for either of two", { u"??????"_s }, { u"Хужирт"_s, u"Москва"_s },
        { u"??????"_s, u"x"_s, u"Москва"_s, u"Хужирт"_s }, true);
    row("question marks that mean themselves", { u"???"_s, u"дом"_s }, { u"дом"_s, u"???"_s },
        { u"???"_s, u"x"_s, u"дом"_s }, false);
}

void tst_AppModelHomes::appending()
{
    QFETCH(QStringList, iptc);
    QFETCH(QStringList, xmp);
    QFETCH(QStringList, expected);
    QFETCH(bool, isJoined);
    Photos f;
    // The second script needs IPTC in UTF-8 from the start: the other homes are damaged by others.
    f.add(u"a.jpg"_s, {}, {});
    if (iptc.contains(u"дом"_s))
        exiftool({ u"-overwrite_original"_s, u"-codedcharacterset=utf8"_s, f.url(u"a.jpg"_s).toLocalFile() });
    f.add(u"b.jpg"_s, {}, {});
    QStringList arguments{ u"-overwrite_original"_s };
    for (const QString& item : iptc)
        arguments.append(u'-' + iptcTag + u'=' + item);
    for (const QString& item : xmp)
        arguments.append(u'-' + xmpTag + u'=' + item);
    if (arguments.size() > 1)
        exiftool(arguments << f.url(u"a.jpg"_s).toLocalFile());
    const QStringList iptcBefore = home(f.url(u"a.jpg"_s), iptcTag);
    const QStringList xmpBefore = home(f.url(u"a.jpg"_s), xmpTag);

    QVERIFY(f.open());
    f->selectAllPhotos();
    f->addBatchListItem(u"keywords"_s, u"x"_s);
    QVERIFY(f.save());
    QCOMPARE(sorted(home(f.url(u"a.jpg"_s), iptcTag)), expected);
    QCOMPARE(sorted(home(f.url(u"a.jpg"_s), xmpTag)), expected);
    QCOMPARE(f->unsavedCount(), 0);
    QCOMPARE(f.banner(),
        isJoined ? u"Keywords of 1 photo differed between IPTC and XMP and were brought together: a.jpg"_s : QString());

    // What came after it, on that photo alone, takes nothing away either.
    f.click(u"a.jpg"_s);
    f->addSingleListItem(u"keywords"_s, u"y"_s);
    QVERIFY(f.save());
    QCOMPARE(sorted(home(f.url(u"a.jpg"_s), iptcTag)), sorted(expected + QStringList{ u"y"_s }));
    QCOMPARE(f.banner(), QString());

    f->undoSave();
    QVERIFY(f.waitUntilIdle());
    f->undoSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f.banner(), QString());
    QCOMPARE(home(f.url(u"a.jpg"_s), iptcTag), iptcBefore);
    QCOMPARE(home(f.url(u"a.jpg"_s), xmpTag), xmpBefore);
}

void tst_AppModelHomes::appendingToMany()
{
    Photos f;
    f.add(u"a.jpg"_s, {}, { u"one"_s });
    f.add(u"b.jpg"_s, {}, { u"two"_s });
    f.add(u"c.jpg"_s, { u"three"_s }, {});
    f.add(u"d.jpg"_s, {}, { u"two"_s });
    f.add(u"e.jpg"_s, {}, {});
    QVERIFY(f.open());
    f->selectAllPhotos();
    f->addBatchListItem(u"keywords"_s, u"x"_s);
    f->setBatch(u"title"_s, u"All"_s);
    QVERIFY(f.save());
    QCOMPARE(f.banner(),
        u"Keywords of 4 photos differed between IPTC and XMP and were brought together: a.jpg, b.jpg, c.jpg, d.jpg"_s);
    const QMap<QString, QStringList> expected{ { u"a.jpg"_s, { u"one"_s, u"x"_s } },
        { u"b.jpg"_s, { u"two"_s, u"x"_s } }, { u"c.jpg"_s, { u"three"_s, u"x"_s } },
        { u"d.jpg"_s, { u"two"_s, u"x"_s } }, { u"e.jpg"_s, { u"x"_s } } };
    for (auto photo = expected.cbegin(); photo != expected.cend(); ++photo) {
        QCOMPARE(home(f.url(photo.key()), iptcTag), *photo);
        QCOMPARE(home(f.url(photo.key()), xmpTag), *photo);
        QCOMPARE(f.onDisk(photo.key(), u"XMP:Title"_s), QJsonValue(u"All"_s));
    }
    f->undoSave();
    QVERIFY(f.waitUntilIdle());
    QVERIFY(!f->canUndoSave());
    QCOMPARE(home(f.url(u"a.jpg"_s), iptcTag), QStringList());
    QCOMPARE(home(f.url(u"a.jpg"_s), xmpTag), QStringList{ u"one"_s });
    QCOMPARE(home(f.url(u"c.jpg"_s), iptcTag), QStringList{ u"three"_s });
    QCOMPARE(home(f.url(u"c.jpg"_s), xmpTag), QStringList());
}

void tst_AppModelHomes::replacing_data()
{
    QTest::addColumn<QStringList>("iptc");
    QTest::addColumn<QStringList>("xmp");
    QTest::addColumn<QString>("added");
    QTest::addColumn<QString>("removed");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<bool>("isJoined");
    const auto row = [](const char* name, const QStringList& iptc, const QStringList& xmp, const QString& added,
                         const QString& removed, const QStringList& expected, bool isJoined) {
        QTest::newRow(name) << iptc << xmp << added << removed << expected << isJoined;
    };
    row("an item of XMP alone", { u"a"_s, u"b"_s }, { u"c"_s, u"b"_s }, u"y"_s, {}, { u"a"_s, u"b"_s, u"y"_s, u"c"_s },
        true);
    row("all was seen", {}, { u"a"_s, u"b"_s }, u"y"_s, {}, { u"a"_s, u"b"_s, u"y"_s }, false);
    row("taken away", { u"a"_s, u"b"_s }, { u"b"_s, u"c"_s }, {}, u"b"_s, { u"a"_s, u"c"_s }, true);
    row("the last one taken away", { u"a"_s }, { u"a"_s }, {}, u"a"_s, {}, false);
    row("untouched texts that look otherwise on screen",
        { u"1.10"_s, u"True"_s, u"1e5"_s, u"-0"_s, u" led"_s, u"0.50"_s }, {}, u"y"_s, u"0.5"_s,
        { u"1.10"_s, u"True"_s, u"1e5"_s, u"-0"_s, u" led"_s, u"y"_s }, false);
    row("damaged in IPTC", { u"Olkhon"_s, u"??????"_s }, { u"Хужирт"_s, u"Olkhon"_s }, u"y"_s, {},
        { u"Olkhon"_s, u"Хужирт"_s, u"y"_s }, true);
    row("damaged in IPTC, taken away", { u"Olkhon"_s, u"VÃ½let"_s }, { u"Výlet"_s }, {}, u"VÃ½let"_s, { u"Olkhon"_s },
        false);
    row("of two cases", { u"cat"_s }, { u"Cat"_s }, u"y"_s, {}, { u"cat"_s, u"y"_s, u"Cat"_s }, true);
}

void tst_AppModelHomes::replacing()
{
    QFETCH(QStringList, iptc);
    QFETCH(QStringList, xmp);
    QFETCH(QString, added);
    QFETCH(QString, removed);
    QFETCH(QStringList, expected);
    QFETCH(bool, isJoined);
    Photos f;
    f.add(u"a.jpg"_s, iptc, xmp);
    const QStringList iptcBefore = home(f.url(u"a.jpg"_s), iptcTag);
    QVERIFY(f.open());
    f->addSingleListItem(u"keywords"_s, added);
    f->removeSingleListItem(u"keywords"_s, removed);
    f->setSingle(u"place"_s, u"Kyoto"_s);
    QVERIFY(f.save());
    QCOMPARE(home(f.url(u"a.jpg"_s), iptcTag), expected);
    QCOMPARE(home(f.url(u"a.jpg"_s), xmpTag), expected);
    QCOMPARE(f->unsavedCount(), 0);
    QCOMPARE(f.banner(),
        isJoined ? u"Keywords of 1 photo differed between IPTC and XMP and were brought together: a.jpg"_s : QString());
    f->undoSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(home(f.url(u"a.jpg"_s), iptcTag), iptcBefore);
    QCOMPARE(home(f.url(u"a.jpg"_s), xmpTag), xmp);
}

void tst_AppModelHomes::formatWithoutIptc()
{
    Photos f;
    f.add(u"a.webp"_s, {}, { u"a"_s, u"1.10"_s });
    QVERIFY(f.open());
    f->addSingleListItem(u"keywords"_s, u"y"_s);
    f->setSingle(u"place"_s, u"Kyoto"_s);
    QVERIFY(f.save());
    QCOMPARE(home(f.url(u"a.webp"_s), xmpTag), QStringList({ u"a"_s, u"1.10"_s, u"y"_s }));
    QCOMPARE(home(f.url(u"a.webp"_s), iptcTag), QStringList());
    QCOMPARE(f.banner(), QString());
    QCOMPARE(f->unsavedCount(), 0);
}

void tst_AppModelHomes::everyHomeIsProved()
{
    const PhotoFolder folder;
    Photos f(forgetfulService(folder));
    f.add(u"a.jpg"_s, {}, {});
    QVERIFY(f.open());
    f->setSingle(u"place"_s, u"Kyoto"_s);
    f->setSingle(u"title"_s, u"Gate"_s);
    QVERIFY(f.save());
    QCOMPARE(f.onDisk(u"a.jpg"_s, u"XMP:City"_s), QJsonValue(u"Kyoto"_s));
    QCOMPARE(f.banner(), u"Saved, but 1 field reads back differently: Place"_s);
    QCOMPARE(f->editedSingle(), QSet<QString>{ u"place"_s });
}

void tst_AppModelHomes::noHomeIsMissedWhereThereIsNone_data()
{
    QTest::addColumn<QString>("path");
    for (const QString& name : { u"a.jpg"_s, u"a.png"_s, u"a.tif"_s, u"a.webp"_s })
        QTest::newRow(qPrintable(name)) << name;
    for (const QString& path : realPhotos(u"valid"_s, 5))
        QTest::newRow(qPrintable(path.section(u'/', -1))) << path;
}

// All fields at once, then none of them. Photos that the tool refuses altogether show nothing here.
void tst_AppModelHomes::noHomeIsMissedWhereThereIsNone()
{
    QFETCH(QString, path);
    Photos f;
    const QUrl photo = path.startsWith(u'/') ? copied({ path }, f.folder).constFirst() : f.folder.add(path);
    QVERIFY(f.load({ photo }));
    if (!f->primaryRecord())
        QSKIP("not a photo that opens");
    for (const bool isCleared : { false, true }) {
        for (const FieldSpec& field : FieldSchema::all()) {
            f->addKnownField(field.id);
            if (field.isList() && !isCleared)
                f->addSingleListItem(field.id, u"Zürich, 東京"_s);
            else if (!field.isList() && isCleared)
                f->setSingle(field.id, {});
        }
        if (!isCleared) {
            for (const FieldSpec& field : FieldSchema::all())
                if (field.kind == FieldKind::text || field.kind == FieldKind::multiline)
                    f->setSingle(field.id, u"Émile "_s + field.label + u" "_s);
            f->setSingle(u"date"_s, u"2024-05-06 07:08"_s);
            f->setSingle(u"dateDigitized"_s, u"2024-05-07"_s);
            f->setSingle(u"offsetOriginal"_s, u"+05:45"_s);
            f->setSingle(u"offsetDigitized"_s, u"-03:00"_s);
            f->setSingle(u"rating"_s, u"4"_s);
            f->setSingle(u"urgency"_s, u"5"_s);
            f->setSingle(u"coords"_s, u"-33.856800, 151.215300"_s);
        }
        QVERIFY(f.save());
        if (f.banner().startsWith(u"Could not save"))
            QSKIP("the tool does not write to this photo");
        // A category has no other home: where IPTC has no place, it is not saved.
        if (!f.banner().isEmpty())
            QCOMPARE(f.banner(), u"Saved, but 1 field reads back differently: Category"_s);
        QCOMPARE(f.banner().isEmpty(), isCleared || f->editedSingle().isEmpty());
    }
}

QTEST_GUILESS_MAIN(tst_AppModelHomes)
#include "tst_AppModelHomes.moc"
