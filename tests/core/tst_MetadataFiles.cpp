// What a save really puts into files, as the real ExifTool and, independently of it, exiv2 find it there.
#include "core/MetadataService.h"
#include "core/schema/FieldSchema.h"
#include "tests/support/Support.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>

#include <cmath>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

const MetadataService& service()
{
    static const MetadataService theService{ realTool() };
    return theService;
}

ImageRecord readOne(const QUrl& photo)
{
    return service().read({ photo }).first();
}

void write(const EditPlan& plan, const QUrl& photo, const WriteOptions& options = {})
{
    service().write(plan, { photo }, options);
}

// "XMP-dc:Title" as the key under which ExifTool prints it with group-0 names.
QString printedKey(QString tag)
{
    return tag.replace(QRegularExpression(u"^XMP-[^:]+"_s), u"XMP"_s);
}

// exiv2's name for a write tag.
QString exiv2Key(const QString& tag)
{
    static const QMap<QString, QString> names{ { "EXIF:ImageDescription", "Exif.Image.ImageDescription" },
        { "EXIF:Artist", "Exif.Image.Artist" }, { "EXIF:Copyright", "Exif.Image.Copyright" },
        { "EXIF:Software", "Exif.Image.Software" }, { "EXIF:DateTimeOriginal", "Exif.Photo.DateTimeOriginal" },
        { "EXIF:CreateDate", "Exif.Photo.DateTimeDigitized" },
        { "EXIF:OffsetTimeOriginal", "Exif.Photo.OffsetTimeOriginal" },
        { "EXIF:OffsetTimeDigitized", "Exif.Photo.OffsetTimeDigitized" }, { "IPTC:Caption-Abstract", "Caption" },
        { "IPTC:By-line", "Byline" }, { "IPTC:CopyrightNotice", "Copyright" },
        { "IPTC:Province-State", "ProvinceState" }, { "IPTC:Country-PrimaryLocationName", "CountryName" },
        { "IPTC:Sub-location", "SubLocation" }, { "IPTC:Writer-Editor", "Writer" },
        { "IPTC:OriginalTransmissionReference", "TransmissionReference" } };
    const QString group = tag.section(u':', 0, 0);
    QString name = tag.section(u':', 1);
    if (group == QLatin1String("EXIF"))
        return names.value(tag);
    if (group == QLatin1String("IPTC"))
        return u"Iptc.Application2."_s + names.value(tag, name);
    const QString prefix = group == QLatin1String("XMP") ? u"xmp"_s
        : group == QLatin1String("XMP-iptcCore")         ? u"iptc"_s
                                                         : group.mid(4);
    if (prefix == QLatin1String("dc"))
        name[0] = name[0].toLower();
    return u"Xmp."_s + prefix + u'.' + name;
}

// A value of its own for each scalar field, in the form in which it is typed.
QString typedValue(const FieldSpec& field)
{
    switch (field.kind) {
    case FieldKind::date:
        return field.id == QLatin1String("date") ? u"2023-05-01 14:30"_s : u"2024-02-29 08:05"_s;
    case FieldKind::rating:
        return u"4"_s;
    case FieldKind::offset:
        return field.id == QLatin1String("offsetOriginal") ? u"+05:45"_s : u"-03:30"_s;
    case FieldKind::multiline:
        return u"First \"line\", $HOME\nsecond & <last>"_s;
    default:
        break;
    }
    static const QMap<QString, QString> fixed{ { "coords", "48.858370, 2.294481" }, { "category", "SPO" },
        { "urgency", "3" }, { "scene", "011221" } };
    return fixed.value(field.id, field.label + u" \\ 'of' the = photo"_s);
}

// What ExifTool stores for a typed value.
QString storedValue(const FieldSpec& field)
{
    const QString typed = typedValue(field);
    return field.kind == FieldKind::date ? QString(typed).replace(u'-', u':') + u":00"_s : typed;
}

QString exiv2Text(const QMap<QString, QStringList>& values, const QString& key)
{
    QString text = values.value(key).join(u", "_s);
    return text.remove(u"lang=\"x-default\" "_s);
}

double degrees(const QString& rationals)
{
    double value = 0;
    double unit = 1;
    for (const auto& part : rationals.split(u' ')) {
        value += part.section(u'/', 0, 0).toDouble() / part.section(u'/', 1).toDouble() / unit;
        unit *= 60;
    }
    return value;
}

EditPlan planOfAllFields()
{
    EditPlan plan;
    for (const auto& field : FieldSchema::all()) {
        if (field.isList())
            plan.lists[field.id] = QStringList{ field.id + u" one"_s, u"two's"_s, u"3"_s };
        else
            plan.scalars[field.id] = typedValue(field);
    }
    return plan;
}

}  // namespace

class tst_MetadataFiles : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void everyField_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("holdsIptc");
        QTest::addRow("JPEG") << "a.jpg" << true;
        QTest::addRow("PNG") << "a.png" << true;
        QTest::addRow("TIFF") << "a.tif" << true;
        QTest::addRow("WebP") << "a.webp" << false;
    }

    void everyField()
    {
        QFETCH(QString, name);
        QFETCH(bool, holdsIptc);
        const PhotoFolder folder;
        const QUrl photo = folder.add(name);
        const EditPlan plan = planOfAllFields();
        write(plan, photo);
        const auto byExifTool = exiftoolValues(photo);
        const auto byExiv2 = exiv2Values(photo);
        const auto record = readOne(photo);
        QCOMPARE(folder.names(), QStringList{ name });
        int tagsSeen = 0;
        for (const auto& field : FieldSchema::all()) {
            if (field.kind == FieldKind::coordinates)
                continue;  // a test of its own
            for (const auto& tag : field.writeTags) {
                const bool held = holdsIptc || !tag.startsWith(QLatin1String("IPTC:"));
                const auto stored = JSONValue::fromJson(byExifTool.value(printedKey(tag)));
                QString other = exiv2Text(byExiv2, exiv2Key(tag));
                const QString expected = !held ? QString()
                    : field.isList()           ? plan.lists[field.id].join(u", "_s)
                                               : storedValue(field);
                if (field.kind == FieldKind::date && tag.startsWith(QLatin1String("XMP")))
                    other.replace(u'-', u':').replace(u'T', u' ');  // XMP's own form
                QVERIFY2(stored.stringValue().value_or(QString()) == expected,
                    qPrintable(tag + u" is, for ExifTool: "_s + stored.stringValue().value_or(QString())));
                QVERIFY2(other == expected, qPrintable(tag + u" is, for exiv2: "_s + other));
                tagsSeen += held;
            }
            const bool readable = field.id != QLatin1String("category") || holdsIptc;  // in IPTC alone
            if (field.isList())
                QCOMPARE(record.lists.value(field.id), plan.lists[field.id]);
            else
                QCOMPARE(record.values.value(field.id), readable ? typedValue(field) : QString());
        }
        QCOMPARE(tagsSeen, holdsIptc ? 52 : 35);
    }

    void deletesWhatIsEmptied()
    {
        const PhotoFolder folder;
        const QUrl photo = folder.add(u"a.jpg"_s);
        EditPlan plan = planOfAllFields();
        write(plan, photo);
        for (auto& value : plan.scalars)
            value.clear();
        for (auto& items : plan.lists)
            items = QStringList{ u"  "_s };
        write(plan, photo);
        const auto record = readOne(photo);
        QVERIFY(record.values.isEmpty());
        QVERIFY(record.lists.isEmpty());
        const auto left = exiv2Values(photo);
        for (const auto& field : FieldSchema::all())
            for (const auto& tag : field.writeTags)
                QVERIFY2(!left.contains(exiv2Key(tag)), qPrintable(tag));
        QVERIFY(!left.contains(u"Exif.GPSInfo.GPSLatitude"_s));
    }

    void positions()
    {
        struct Position {
            double latitude;
            double longitude;
        };
        // All four quarters of the world, its origin and a corner.
        const QList<Position> positions{ { 48.85837, 2.294481 }, { 40.689247, -74.044502 }, { -33.856784, 151.215297 },
            { -22.951916, -43.210487 }, { 0, 0 }, { -90, 180 } };
        const PhotoFolder folder;
        QList<QUrl> photos;
        QStringList texts;
        for (const auto& [latitude, longitude] : positions) {
            photos.append(folder.add(QString::number(photos.size())));
            texts.append(QString::asprintf("%.6f, %.6f", latitude, longitude));
            write({ .scalars = { { "coords", texts.last() } } }, photos.last());
        }
        const auto records = service().read(photos);
        for (qsizetype i = 0; i < photos.size(); ++i) {
            QCOMPARE(records[i].values.value(u"coords"_s), texts[i]);
            const auto values = exiv2Values(photos[i]);
            const auto value = [&](const char* name) {
                return values.value(u"Exif.GPSInfo.GPS"_s + QLatin1String(name)).value(0);
            };
            const auto [latitude, longitude] = positions[i];
            QCOMPARE(value("LatitudeRef"), latitude < 0 ? u"S"_s : u"N"_s);
            QCOMPARE(value("LongitudeRef"), longitude < 0 ? u"W"_s : u"E"_s);
            QVERIFY(std::abs(degrees(value("Latitude")) - std::abs(latitude)) < 1e-6);
            QVERIFY(std::abs(degrees(value("Longitude")) - std::abs(longitude)) < 1e-6);
        }
    }

    void lists()
    {
        const PhotoFolder folder;
        const QUrl photo = folder.add(u"a.jpg"_s);
        const auto keywords = [&] { return readOne(photo).lists.value(u"keywords"_s); };
        const auto save = [&](const QStringList& items, MetadataWriter::ListMode mode) {
            write({ .lists = { { "keywords", items } }, .listMode = mode }, photo);
        };
        save({ "cat", "dog" }, MetadataWriter::ListMode::replace);
        save({ "dog", "Cat", " owl " }, MetadataWriter::ListMode::append);
        QStringList expected{ "cat", "dog", "Cat", "owl" };
        auto found = keywords();
        found.sort();
        expected.sort();
        QCOMPARE(found, expected);
        save({}, MetadataWriter::ListMode::append);
        QCOMPARE(keywords().size(), 4);
        save({ "z", "a" }, MetadataWriter::ListMode::replace);
        QCOMPARE(keywords(), (QStringList{ "z", "a" }));
        QCOMPARE(exiv2Values(photo).value(u"Iptc.Application2.Keywords"_s), (QStringList{ "z", "a" }));
        QCOMPARE(exiv2Values(photo).value(u"Xmp.dc.subject"_s), QStringList{ "z, a" });
    }

    void customs()
    {
        const TemporaryFilesProbe temporary;
        const PhotoFolder folder;
        const QUrl photo = folder.add(u"a.png"_s);
        write({ .customs = { { "Project code", "Zürich 東京" }, { "Mood", "= calm" }, { "!!!", "nowhere" } } }, photo);
        QCOMPARE(readOne(photo).custom, (QList<CustomValue>{ { "Mood", "= calm" }, { "Projectcode", "Zürich 東京" } }));
        QVERIFY(readFile(photo.toLocalFile()).contains("http://quorbel.app/ns/1.0/"));
        QCOMPARE(exiv2Values(photo).value(u"Xmp.Quorbel.Projectcode"_s), QStringList{ "Zürich 東京" });
        write({ .customs = { { "Mood", "" } } }, photo);
        QCOMPARE(readOne(photo).custom, (QList<CustomValue>{ { "Projectcode", "Zürich 東京" } }));
        QCOMPARE(temporary.names(), QStringList{ folder.path().section(u'/', -1) });
    }

    void backupAndSidecar()
    {
        const PhotoFolder folder;
        const QByteArray original = jpegBytes(300, 200);
        const QUrl photo = folder.add(u"IMG %d1.JPG"_s, original);
        write({ .scalars = { { "headline", "Alps" } } }, photo, { .backupOriginals = true, .writeSidecar = true });
        QCOMPARE(folder.names(), (QStringList{ "IMG %d1.JPG", "IMG %d1.JPG_original", "IMG %d1.xmp" }));
        QCOMPARE(readFile(folder.path(u"IMG %d1.JPG_original"_s)), original);
        write({ .scalars = { { "headline", "Andes" } } }, photo, { .backupOriginals = false, .writeSidecar = true });
        QCOMPARE(exiftoolValues(folder.url(u"IMG %d1.xmp"_s)).value(u"XMP:Headline"_s).toString(), u"Andes"_s);
        service().renameFile(photo, folder.url(u"b.jpg"_s));
        QCOMPARE(folder.names(), (QStringList{ "b.jpg", "b.jpg_original", "b.xmp" }));
        const auto record = readOne(folder.url(u"b.jpg"_s));
        QCOMPARE(record.sidebarLine().section(u' ', 0, 0), u"300×200"_s);
        QCOMPARE(record.fileSize.value_or(-1), QFileInfo(folder.path(u"b.jpg"_s)).size());
        QCOMPARE(
            record.contentModificationDate.value_or(QDateTime()), QFileInfo(folder.path(u"b.jpg"_s)).lastModified());
    }

    // Where the photo's edits lie beside it, all of its sidecars go along; else those with its whole name, and the one
    // that mirrors it, unless it is another photo's.
    void sidecarsInARename_data()
    {
        QTest::addColumn<QString>("photo");
        QTest::addColumn<bool>("areBeside");
        QTest::addColumn<QStringList>("moved");
        QTest::newRow("edits in it") << u"a.CR3"_s << false << QStringList{ "b.CR3", "b.CR3.xmp", "b.xmp" };
        QTest::newRow("edits beside it") << u"a.CR3"_s << true << QStringList{ "b.CR3", "b.CR3.xmp", "b.XMP", "b.xmp" };
        QTest::newRow("edits of the raw file beside it") << u"a.jpg"_s << true << QStringList{ "b.jpg" };
    }
    void sidecarsInARename()
    {
        QFETCH(QString, photo);
        QFETCH(bool, areBeside);
        const PhotoFolder folder;
        for (const QString& name : { u"a.CR3"_s, u"a.jpg"_s, u"a.xmp"_s, u"a.XMP"_s, u"a.CR3.xmp"_s, u"aa.xmp"_s })
            writeFile(folder.path(name), "x");
        MetadataService service{ realTool() };
        service.sidecars.isRawBeside = areBeside;
        service.renameFile(folder.url(photo), folder.url(u"b"_s + photo.sliced(1)));
        QStringList moved = folder.names();
        QCOMPARE(moved.size(), 6);
        moved.removeIf([](const QString& name) { return name.startsWith(u'a'); });
        QTEST(moved, "moved");
    }

    void oddNamesAndTexts()
    {
        const PhotoFolder folder;
        const QStringList names{ "a b.jpg", "it's \"it\".jpg", "$HOME `x` \\n;.jpg", "line\nbreak.jpg", "%d@-x.jpg",
            "日本 é.jpg" };
        QList<QUrl> photos;
        for (const auto& name : names)
            photos.append(folder.add(name));
        // Texts that JSON takes for numbers, some of which no number type holds.
        const QString title = u"1e999"_s;
        const QString description = u"\\\"1e999\": -1E-999, \\"_s;
        service().write({ .scalars = { { "title", title }, { "description", description } } }, photos, {});
        const auto records = service().read(photos);
        for (qsizetype i = 0; i < photos.size(); ++i) {
            QCOMPARE(records[i].fileName, names[i]);
            QCOMPARE(records[i].values.value(u"title"_s), title);
            QCOMPARE(records[i].values.value(u"description"_s), description);
        }
        QCOMPARE(folder.names().size(), names.size());
    }

    void perlSettingsOfTheUser_data()
    {
        QTest::addColumn<QByteArray>("variable");
        QTest::addColumn<QByteArray>("value");
        QTest::addRow("all streams and arguments are decoded") << QByteArray("PERL_UNICODE") << QByteArray("SDA");
        QTest::addRow("a module is loaded first") << QByteArray("PERL5OPT") << QByteArray("-Mopen=:std,:utf8");
        QTest::addRow("streams get a layer") << QByteArray("PERLIO") << QByteArray(":utf8");
    }

    void perlSettingsOfTheUser()
    {
        QFETCH(QByteArray, variable);
        QFETCH(QByteArray, value);
        const PhotoFolder folder;
        const QUrl photo = folder.add(u"Zürich 東京.jpg"_s);
        const QString text = u"Zürich 東京 – ü"_s;
        qputenv(variable.constData(), value);
        const auto restored = qScopeGuard([&variable] { qunsetenv(variable.constData()); });
        service().write({ .scalars = { { "description", text } }, .customs = { { "Mood", text } } }, { photo }, {});
        const ImageRecord record = readOne(photo);
        QCOMPARE(record.values.value(u"description"_s), text);
        QCOMPARE(record.custom, (QList<CustomValue>{ { "Mood", text } }));
    }

    void failuresKeepFiles()
    {
        const PhotoFolder folder;
        const QUrl good = folder.add(u"good.jpg"_s);
        const QUrl empty = folder.add(u"empty.jpg"_s, {});
        const QUrl text = folder.add(u"text.jpg"_s, "not an image");
        QVERIFY_THROWS_EXCEPTION(ToolError, service().read({ good, empty }));
        QVERIFY_THROWS_EXCEPTION(ToolError, service().write({ .scalars = { { "title", "x" } } }, { good, text }, {}));
        QCOMPARE(readFile(text.toLocalFile()), QByteArray("not an image"));
        QCOMPARE(readOne(good).values.value(u"title"_s), u"x"_s);
        QCOMPARE(folder.names().size(), 3);
        // The photo goes away between the two runs.
        const auto vanish = [&](qsizetype) { QFile::remove(good.toLocalFile()); };
        QVERIFY_THROWS_EXCEPTION(ToolError, service().read({ good }, { .progress = vanish }));
    }
};

QTEST_GUILESS_MAIN(tst_MetadataFiles)
#include "tst_MetadataFiles.moc"
