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

// What the two homes of the keywords hold, as it is stored.
struct Keywords {
    QStringList iptc{};
    QStringList xmp{};
    bool operator==(const Keywords&) const = default;
};

// Of all photos of a folder, by their names.
QMap<QString, Keywords> keywordsIn(const QString& folder)
{
    const auto items = [](const QString& text) { return text == u"-"_s ? QStringList() : text.split(u'|'); };
    QMap<QString, Keywords> found;
    const QString lines = QString::fromUtf8(exiftool(
        { u"-q"_s, u"-f"_s, u"-sep"_s, u"|"_s, u"-p"_s, u"$FileName\t${%1}\t${%2}"_s.arg(iptcTag, xmpTag), folder }));
    for (const QString& line : lines.split(u'\n', Qt::SkipEmptyParts))
        found.insert(line.section(u'\t', 0, 0), { items(line.section(u'\t', 1, 1)), items(line.section(u'\t', 2)) });
    return found;
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
    // The items as they stand.
    void hold(const QString& name, const Keywords& keywords) const
    {
        QStringList arguments{ u"-overwrite_original"_s };
        for (const QString& item : keywords.iptc)
            arguments.append(u'-' + iptcTag + u'=' + item);
        for (const QString& item : keywords.xmp)
            arguments.append(u'-' + xmpTag + u'=' + item);
        if (arguments.size() > 1)
            exiftool(arguments << url(name).toLocalFile());
    }
    QMap<QString, Keywords> keywords() const { return keywordsIn(folder.path()); }
    bool undo()
    {
        model->undoSave();
        return waitUntilIdle();
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
    QByteArray script = "#!/usr/bin/perl\nexec TOOL, grep { !/^-IPTC:City=/ } @ARGV;\n";
    script.replace("TOOL", toolForPerl());
    return { { folder.add(u"exiftool"_s, script), realTool().perlURL } };
}

}  // namespace

class tst_AppModelHomes : public QObject {
    Q_OBJECT

private slots:
    void appending();
    void replacing();
    void formatWithoutIptc();
    void everyHomeIsProved();
    void noHomeIsMissedWhereThereIsNone_data();
    void noHomeIsMissedWhereThereIsNone();
};

// What each photo holds, and what both of its homes hold once x was added.
void tst_AppModelHomes::appending()
{
    struct Row {
        Keywords before{};
        QStringList after{};
        bool isJoined = false;
    };
    const QMap<QString, Row> rows{
        { u"none.jpg"_s, { {}, { u"x"_s }, false } },
        { u"the same.jpg"_s, { { { u"a"_s, u"b"_s }, { u"b"_s, u"a"_s } }, { u"a"_s, u"b"_s, u"x"_s }, false } },
        { u"in XMP alone.jpg"_s, { { {}, { u"a"_s, u"b"_s } }, { u"a"_s, u"b"_s, u"x"_s }, true } },
        { u"in IPTC alone.jpg"_s, { { { u"three"_s }, {} }, { u"three"_s, u"x"_s }, true } },
        { u"each its own.jpg"_s,
            { { { u"a"_s, u"b"_s }, { u"b"_s, u"c"_s } }, { u"a"_s, u"b"_s, u"c"_s, u"x"_s }, true } },
        { u"the new one is there already.jpg"_s, { { { u"a"_s }, { u"a"_s, u"x"_s } }, { u"a"_s, u"x"_s }, false } },
        { u"texts that look like numbers.jpg"_s,
            { { { u"1.10"_s, u"-0"_s }, { u"True"_s, u"1e5"_s } }, { u"-0"_s, u"1.10"_s, u"1e5"_s, u"True"_s, u"x"_s },
                true } },
        { u"in a script that IPTC could not hold.jpg"_s,
            { { { u"Olkhon"_s, u"??????"_s }, { u"Olkhon"_s, u"Хужирт"_s } }, { u"Olkhon"_s, u"x"_s, u"Хужирт"_s },
                true } },
        { u"UTF-8 taken for Latin 1.jpg"_s, { { { u"VÃ½let"_s }, { u"Výlet"_s } }, { u"Výlet"_s, u"x"_s }, true } },
        { u"question marks for either of two.jpg"_s,
            { { { u"??????"_s }, { u"Хужирт"_s, u"Москва"_s } }, { u"??????"_s, u"x"_s, u"Москва"_s, u"Хужирт"_s },
                true } },
        { u"question marks that mean themselves.jpg"_s,
            { { { u"???"_s, u"дом"_s }, { u"дом"_s, u"???"_s } }, { u"???"_s, u"x"_s, u"дом"_s }, false } },
    };
    Photos f;
    for (auto row = rows.cbegin(); row != rows.cend(); ++row) {
        const QString path = f.folder.add(row.key()).toLocalFile();
        // This script needs IPTC in UTF-8 from the start: the other homes are damaged by others.
        if (row->before.iptc.contains(u"дом"_s))
            exiftool({ u"-overwrite_original"_s, u"-codedcharacterset=utf8"_s, path });
        f.hold(row.key(), row->before);
    }
    const QMap<QString, Keywords> before = f.keywords();
    QVERIFY(f.open());
    f->selectAllPhotos();
    f->addBatchListItem(u"keywords"_s, u"x"_s);
    f->setBatch(u"title"_s, u"All"_s);
    QVERIFY(f.save());
    QVERIFY2(f.banner().startsWith(u"Keywords of 7 photos differed between IPTC and XMP and were brought together: "_s),
        qPrintable(f.banner()));
    QMap<QString, Keywords> after = f.keywords();
    for (auto row = rows.cbegin(); row != rows.cend(); ++row) {
        QVERIFY(row->isJoined || !f.banner().contains(row.key()));
        QCOMPARE(sorted(after[row.key()].iptc), sorted(row->after));
        QCOMPARE(sorted(after[row.key()].xmp), sorted(row->after));
        QCOMPARE(f->record(f.url(row.key()))->values.value(u"title"_s), u"All"_s);
    }
    QCOMPARE(f->unsavedCount(), 0);

    // What comes after it, on one photo alone, takes nothing away either.
    for (const QString& name : { u"UTF-8 taken for Latin 1.jpg"_s, u"texts that look like numbers.jpg"_s }) {
        f.click(name);
        f->addSingleListItem(u"keywords"_s, u"y"_s);
        QVERIFY(f.save());
        after = f.keywords();
        QCOMPARE(sorted(after[name].iptc), sorted(rows[name].after + QStringList{ u"y"_s }));
        QCOMPARE(f.banner(), QString());
    }
    for (int save = 0; save < 3; ++save)
        QVERIFY(f.undo());
    QCOMPARE(f.banner(), QString());
    QVERIFY(!f->canUndoSave());
    QCOMPARE(f.keywords(), before);
}

// One item is typed, or one taken away, and what both homes hold then.
void tst_AppModelHomes::replacing()
{
    struct Row {
        Keywords before{};
        QString added{};
        QString removed{};
        QStringList after{};
        bool isJoined = false;
    };
    const QMap<QString, Row> rows{
        { u"an item of XMP alone.jpg"_s,
            { { { u"a"_s, u"b"_s }, { u"c"_s, u"b"_s } }, u"y"_s, {}, { u"a"_s, u"b"_s, u"y"_s, u"c"_s }, true } },
        { u"all was seen.jpg"_s, { { {}, { u"a"_s, u"b"_s } }, u"y"_s, {}, { u"a"_s, u"b"_s, u"y"_s }, false } },
        { u"taken away.jpg"_s, { { { u"a"_s, u"b"_s }, { u"b"_s, u"c"_s } }, {}, u"b"_s, { u"a"_s, u"c"_s }, true } },
        { u"the last one taken away.jpg"_s, { { { u"a"_s }, { u"a"_s } }, {}, u"a"_s, {}, false } },
        { u"untouched texts that look otherwise on screen.jpg"_s,
            { { { u"1.10"_s, u"True"_s, u"1e5"_s, u"-0"_s, u"  led"_s, u"0.50"_s }, {} }, u"y"_s, u"0.5"_s,
                { u"1.10"_s, u"True"_s, u"1e5"_s, u"-0"_s, u" led"_s, u"y"_s }, false } },
        { u"damaged in IPTC.jpg"_s,
            { { { u"Olkhon"_s, u"??????"_s }, { u"Хужирт"_s, u"Olkhon"_s } }, u"y"_s, {},
                { u"Olkhon"_s, u"Хужирт"_s, u"y"_s }, true } },
        { u"damaged in IPTC, taken away.jpg"_s,
            { { { u"Olkhon"_s, u"VÃ½let"_s }, { u"Výlet"_s } }, {}, u"VÃ½let"_s, { u"Olkhon"_s }, false } },
        { u"of two cases.jpg"_s, { { { u"cat"_s }, { u"Cat"_s } }, u"y"_s, {}, { u"cat"_s, u"y"_s, u"Cat"_s }, true } },
    };
    Photos f;
    for (auto row = rows.cbegin(); row != rows.cend(); ++row) {
        f.folder.add(row.key());
        f.hold(row.key(), row->before);
    }
    const QMap<QString, Keywords> before = f.keywords();
    QVERIFY(f.open());
    for (auto row = rows.cbegin(); row != rows.cend(); ++row) {
        f.click(row.key());
        f->addSingleListItem(u"keywords"_s, row->added);
        f->removeSingleListItem(u"keywords"_s, row->removed);
        f->setSingle(u"place"_s, u"Kyoto"_s);
        QVERIFY(f.save());
        QCOMPARE(f->unsavedCount(), 0);
        QCOMPARE(f.banner(),
            row->isJoined
                ? u"Keywords of 1 photo differed between IPTC and XMP and were brought together: "_s + row.key()
                : QString());
    }
    const QMap<QString, Keywords> after = f.keywords();
    for (auto row = rows.cbegin(); row != rows.cend(); ++row)
        QCOMPARE(after[row.key()], (Keywords{ row->after, row->after }));
    for (qsizetype save = 0; save < rows.size(); ++save)
        QVERIFY(f.undo());
    QCOMPARE(f.keywords(), before);
}

void tst_AppModelHomes::formatWithoutIptc()
{
    Photos f;
    f.folder.add(u"a.webp"_s);
    f.hold(u"a.webp"_s, { {}, { u"a"_s, u"1.10"_s } });
    QVERIFY(f.open());
    f->addSingleListItem(u"keywords"_s, u"y"_s);
    f->setSingle(u"place"_s, u"Kyoto"_s);
    QVERIFY(f.save());
    QCOMPARE(f.keywords()[u"a.webp"_s], (Keywords{ {}, { u"a"_s, u"1.10"_s, u"y"_s } }));
    QCOMPARE(f.banner(), QString());
    QCOMPARE(f->unsavedCount(), 0);
}

void tst_AppModelHomes::everyHomeIsProved()
{
    const PhotoFolder folder;
    Photos f(forgetfulService(folder));
    f.folder.add(u"a.jpg"_s);
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
    for (const QString& name : { u"a.png"_s, u"a.webp"_s })
        QTest::newRow(qPrintable(name)) << name;
    for (const QString& path : isSlowRun() ? realPhotos(u"valid"_s, 1) : QStringList())
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
