// What the details run finds in photos that the real tool made: one run reads all of them.
#include "core/details/Disagreements.h"
#include "core/details/HomeComparison.h"
#include "core/schema/FieldSchema.h"
#include "tests/support/RealService.h"

#include <QTest>
#include <QtEndian>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

struct Photo {
    QString name{};
    QStringList assignments{};  ///< as the tool takes them, without their hyphens
    QMap<QString, QString> languages{};
    QStringList paths{};
};

QList<Photo> languagePhotos()
{
    return {
        { u"none.jpg"_s, { u"XMP-dc:Title=One"_s } },
        { u"codes.jpg"_s,
            { u"XMP-dc:Title=One"_s, u"XMP-dc:Title-DE=Eins"_s, u"XMP-dc:Title-en-us=First"_s,
                u"XMP-dc:Title-zh-Hans-CN=一"_s, u"XMP-dc:Title-x-Repair=1"_s, u"XMP-dc:Description-fr=Un"_s,
                u"XMP-dc:Rights-de=Alle"_s, u"XMP-iptcExt:Event-de=Fest"_s, u"XMP-xmpRights:UsageTerms-de=Keine"_s },
            { { u"title@de"_s, u"Eins"_s }, { u"title@en-US"_s, u"First"_s }, { u"title@zh-hans-cn"_s, u"一"_s },
                { u"title@x-repair"_s, u"1"_s }, { u"description@fr"_s, u"Un"_s }, { u"copyright@de"_s, u"Alle"_s },
                { u"event@de"_s, u"Fest"_s }, { u"usageTerms@de"_s, u"Keine"_s } } },
        { u"numbers.jpg"_s,
            { u"XMP-dc:Title-de=1.10"_s, u"XMP-dc:Title-fr=1e5"_s, u"XMP-dc:Title-it=-0"_s, u"XMP-dc:Title-es=007"_s,
                u"XMP-dc:Title-pt=1e999"_s, u"XMP-dc:Title-en=say \"5\" \\\\ 6"_s },
            { { u"title@de"_s, u"1.10"_s }, { u"title@fr"_s, u"1e5"_s }, { u"title@it"_s, u"-0"_s },
                { u"title@es"_s, u"007"_s }, { u"title@pt"_s, u"1e999"_s }, { u"title@en"_s, u"say \"5\" \\ 6"_s } } },
    };
}

QList<Photo> pathPhotos()
{
    const QString tree = u"XMP-acdsee:Categories=<Categories><Category Assigned=\"0\">Places<Category Assigned=\"1\">"
                         "Rome</Category></Category></Categories>"_s;
    return {
        { u"one home.jpg"_s,
            { u"XMP-lr:HierarchicalSubject=Places|France|Paris"_s, u"XMP-lr:HierarchicalSubject=Years|2024"_s }, {},
            { u"Places|France|Paris"_s, u"Years|2024"_s } },
        { u"two homes.png"_s,
            { u"XMP-digiKam:TagsList=Places/Paris"_s, u"XMP-digiKam:TagsList=plain"_s,
                u"XMP-lr:HierarchicalSubject=Bands|AC/DC"_s, u"XMP-lr:HierarchicalSubject=Places|Paris"_s },
            {}, { u"Places|Paris"_s, u"Bands|AC/DC"_s } },
        { u"all homes.tif"_s,
            { u"XMP-digiKam:TagsList=a/b"_s, u"XMP-lr:HierarchicalSubject=a|c"_s, u"XMP-microsoft:LastKeywordXMP=a/d"_s,
                u"XMP-mediapro:CatalogSets=a|e"_s, tree },
            {}, { u"a|b"_s, u"a|c"_s, u"a|d"_s, u"a|e"_s, u"Places|Rome"_s } },
    };
}

// Photos and the field that they are about. "*" stands before the tags that hold what is shown, "F" before another
// standard's.
struct Row {
    const char* name = "";
    const char* field = "";
    QStringList assignments{};
    QStringList places{};  ///< none where the homes agree
};

QList<Row> textRows()
{
    const QString longTitle = u"A title of more than sixty-four characters, which IPTC cuts off before its end"_s;
    return {
        { "two texts", "title", { u"XMP-dc:Title=A"_s, u"IPTC:ObjectName=B"_s },
            { u"*XMP-dc:Title=A"_s, u"IPTC:ObjectName=B"_s } },
        { "one of three", "description",
            { u"XMP-dc:Description=A"_s, u"IPTC:Caption-Abstract=B"_s, u"EXIF:ImageDescription=A"_s },
            { u"*XMP-dc:Description=A"_s, u"*EXIF:ImageDescription=A"_s, u"IPTC:Caption-Abstract=B"_s } },
        { "absent", "title", { u"IPTC:ObjectName=B"_s } },
        { "line ends and blanks", "description",
            { u"XMP-dc:Description=a\nb"_s, u"IPTC:Caption-Abstract=a\\r\\nb \\r\\n"_s } },
        { "empty and shown", "title", { u"XMP-dc:Title^="_s, u"IPTC:ObjectName=B"_s },
            { u"*XMP-dc:Title="_s, u"IPTC:ObjectName=B"_s } },
        { "empty and not shown", "title", { u"XMP-dc:Title=A"_s, u"IPTC:ObjectName^="_s } },
        { "numbers", "title", { u"XMP-dc:Title=1.10"_s, u"IPTC:ObjectName=1.1"_s },
            { u"*XMP-dc:Title=1.10"_s, u"IPTC:ObjectName=1.1"_s } },
        { "one number", "title", { u"XMP-dc:Title=1e5"_s, u"IPTC:ObjectName=1e5"_s } },
        { "cut off", "title", { u"XMP-dc:Title="_s + longTitle, u"IPTC:ObjectName="_s + longTitle.first(64) } },
        { "shorter", "title", { u"XMP-dc:Title="_s + longTitle, u"IPTC:ObjectName=A title"_s },
            { u"*XMP-dc:Title="_s + longTitle, u"IPTC:ObjectName=A title"_s } },
        { "languages", "title", { u"XMP-dc:Title=A"_s, u"XMP-dc:Title-de=B"_s, u"IPTC:ObjectName=A"_s } },
        { "a thumbnail's", "description", { u"IFD0:ImageDescription=A"_s, u"IFD1:ImageDescription=B"_s } },
        { "undeclared UTF-8", "place", { u"XMP-photoshop:City=Zürich"_s, u"IPTC:City=ZÃ¼rich"_s } },
        { "declared, and wrong", "place",
            { u"XMP-photoshop:City=Zürich"_s, u"IPTC:City=ZÃ¼rich"_s, u"IPTC:CodedCharacterSet=UTF8"_s },
            { u"*XMP-photoshop:City=Zürich"_s, u"IPTC:City=ZÃ¼rich"_s } },
        { "an old Mac's", "place", { u"XMP-photoshop:City=Zürich"_s, u"IPTC:City=ZŸrich"_s } },
        { "what Latin 1 lacks", "place", { u"XMP-photoshop:City=東京 (Tōkyō)"_s, u"IPTC:City=東京 (Tōkyō)"_s } },
        { "another letter", "place", { u"XMP-photoshop:City=Zürich"_s, u"IPTC:City=Zurich"_s },
            { u"*XMP-photoshop:City=Zürich"_s, u"IPTC:City=Zurich"_s } },
        { "EXIF in Latin 1", "creator",
            { u"XMP-dc:Creator=Jürg Müller"_s, u"charset"_s, u"exif=latin"_s, u"EXIF:Artist=Jürg Müller"_s } },
        { "a number with a name", "urgency", { u"XMP-photoshop:Urgency=5"_s, u"IPTC:Urgency=3"_s },
            { u"*XMP-photoshop:Urgency=5 (normal urgency)"_s, u"IPTC:Urgency=3"_s } },
        { "one number with a name", "urgency", { u"XMP-photoshop:Urgency=5"_s, u"IPTC:Urgency=5"_s } },
    };
}

QList<Row> creatorRows()
{
    const QStringList both{ u"XMP-dc:Creator=Ann"_s, u"XMP-dc:Creator=Ben"_s };
    return {
        { "creators", "creator",
            both + QStringList{ u"IPTC:By-line=Ann"_s, u"IPTC:By-line=Ben"_s, u"EXIF:Artist=Ann; Ben"_s } },
        { "creators in one text", "creator", both + QStringList{ u"IPTC:By-line=Ann, Ben"_s } },
        { "a creator more", "creator", both + QStringList{ u"EXIF:Artist=Ann"_s },
            { u"*XMP-dc:Creator=Ann, Ben"_s, u"EXIF:Artist=Ann"_s } },
        { "two notices", "copyright", { u"XMP-dc:Rights=Ann"_s, u"EXIF:Copyright=Ann\nThe Paper"_s } },
        { "other notices", "copyright", { u"XMP-dc:Rights=Ben"_s, u"EXIF:Copyright=Ann\nThe Paper"_s },
            { u"*XMP-dc:Rights=Ben"_s, u"EXIF:Copyright=Ann\nThe Paper"_s } },
        { "hidden by a structure", "creator",
            { u"XMP-iptcExt:CreatorName=Ann"_s, u"XMP-dc:Creator=Ben"_s, u"IPTC:By-line=Ben"_s },
            { u"*F XMP-iptcExt:Creator=Ann"_s, u"XMP-dc:Creator=Ben"_s, u"IPTC:By-line=Ben"_s } },
        { "hidden, and the same", "creator", { u"XMP-iptcExt:CreatorName=Ann"_s, u"XMP-dc:Creator=Ann"_s },
            { u"*F XMP-iptcExt:Creator=Ann"_s, u"XMP-dc:Creator=Ann"_s } },
        { "a structure alone", "creator", { u"XMP-iptcExt:CreatorName=Ann"_s } },
        { "hidden stars", "rating", { u"XMP-iptcExt:RatingValue=3"_s, u"XMP-xmp:Rating=5"_s },
            { u"*F XMP-iptcExt:Rating=3"_s, u"XMP-xmp:Rating=5"_s } },
        { "another standard's is shown", "title", { u"XMP-pdf:Title=A"_s, u"IPTC:ObjectName=B"_s },
            { u"*F XMP-pdf:Title=A"_s, u"IPTC:ObjectName=B"_s } },
        { "another standard's is not shown", "title",
            { u"XMP-pdf:Title=A"_s, u"XMP-dc:Title=B"_s, u"IPTC:ObjectName=B"_s } },
        { "lists in another order", "keywords",
            { u"IPTC:Keywords=a"_s, u"IPTC:Keywords=b"_s, u"XMP-dc:Subject=b"_s, u"XMP-dc:Subject=a"_s } },
        { "a damaged item", "keywords",
            { u"IPTC:Keywords=a"_s, u"IPTC:Keywords=VÃ½let"_s, u"XMP-dc:Subject=a"_s, u"XMP-dc:Subject=Výlet"_s } },
        { "an item more", "keywords", { u"IPTC:Keywords=a"_s, u"XMP-dc:Subject=a"_s, u"XMP-dc:Subject=1.10"_s },
            { u"*IPTC:Keywords=a"_s, u"XMP-dc:Subject=a|1.10"_s } },
    };
}

QList<Row> dateAndPositionRows()
{
    const QString taken = u"EXIF:DateTimeOriginal=2024:05:06 14:30:15"_s;
    const QStringList here{ u"EXIF:GPSLatitude=33.500001"_s, u"EXIF:GPSLatitudeRef=S"_s, u"EXIF:GPSLongitude=70.25"_s,
        u"EXIF:GPSLongitudeRef=W"_s };
    return {
        { "dates of all kinds", "date",
            { taken, u"XMP-photoshop:DateCreated=2024:05:06 14:30+02:00"_s, u"IPTC:DateCreated=2024:05:06"_s,
                u"IPTC:TimeCreated=14:30:15-07:00"_s, u"XMP-exif:DateTimeOriginal=2024:05:06 14:30:15.25Z"_s } },
        { "days and months", "date",
            { taken, u"XMP-photoshop:DateCreated=2024-05"_s, u"IPTC:DateCreated=2024:05:06"_s } },
        { "an old companion", "date",
            { taken, u"XMP-photoshop:DateCreated=2024:05:06 14:30:15.5"_s, u"IPTC:DateCreated=2024:05:05"_s,
                u"IPTC:TimeCreated=14:30:15+00:00"_s },
            { u"*EXIF:DateTimeOriginal=2024-05-06 14:30"_s, u"*XMP-photoshop:DateCreated=2024-05-06 14:30"_s,
                u"IPTC:DateCreated=2024-05-05 14:30"_s } },
        { "companions alone", "date",
            { u"IPTC:DateCreated=2024:05:05"_s, u"XMP-exif:DateTimeOriginal=2023:05:05 10:00:00"_s } },
        { "digitized", "dateDigitized",
            { u"EXIF:CreateDate=2024:05:06 14:30:15"_s, u"XMP-exif:DateTimeDigitized=2024:05:06 15:30:15"_s },
            { u"*EXIF:CreateDate=2024-05-06 14:30"_s, u"XMP-exif:DateTimeDigitized=2024-05-06 15:30"_s } },
        { "one position", "coords",
            here + QStringList{ u"XMP-exif:GPSLatitude=33.5 S"_s, u"XMP-exif:GPSLongitude=70.25 W"_s } },
        { "hidden by an aircraft's", "coords",
            { u"XMP-drone-dji:GPSLatitude=10"_s, u"XMP-drone-dji:GPSLongitude=20"_s, u"XMP-exif:GPSLatitude=33.5 S"_s,
                u"XMP-exif:GPSLongitude=70.25 W"_s },
            { u"*F XMP-drone-dji:GPSLatitude · GPSLongitude=10.000000, 20.000000"_s,
                u"XMP-exif:GPSLatitude · GPSLongitude=-33.500000, -70.250000"_s } },
        { "a lost sign", "coords",
            here + QStringList{ u"XMP-exif:GPSLatitude=33.5 S"_s, u"XMP-exif:GPSLongitude=70.25 E"_s },
            { u"*EXIF:GPSLatitude · GPSLongitude=-33.500001, -70.250000"_s,
                u"XMP-exif:GPSLatitude · GPSLongitude=-33.500000, 70.250000"_s } },
    };
}

QList<Row> rows()
{
    return textRows() + creatorRows() + dateAndPositionRows();
}

QString fileName(const Row& row)
{
    return QString::fromUtf8(row.name) + u".jpg"_s;
}

QStringList texts(const QList<FieldHome>& homes)
{
    QStringList lines;
    for (const FieldHome& home : homes)
        lines.append((home.isShown ? u"*"_s : QString()) + (home.isForeign ? u"F "_s : QString()) + home.tag + u'='
            + home.values.join(u'|'));
    return lines;
}

// Makes the photos in one run of the tool.
template <typename Photos, typename Name>
void make(const PhotoFolder& folder, const Photos& photos, Name nameOf)
{
    QStringList arguments;
    for (const auto& photo : photos) {
        arguments << u"-q"_s << u"-m"_s << u"-ec"_s << u"-overwrite_original"_s;
        for (const QString& assignment : photo.assignments)
            arguments.append(assignment.startsWith(u"exif="_s) ? assignment : u'-' + assignment);
        arguments << folder.add(nameOf(photo)).toLocalFile() << u"-execute"_s;
    }
    exiftool(arguments);
}

// A box of JUMBF in the form in which a seal of the C2PA lies in a file: its own label, and boxes in it.
QByteArray box(const QByteArray& type, const QByteArray& content)
{
    QByteArray length(4, Qt::Uninitialized);
    qToBigEndian(quint32(8 + content.size()), length.data());
    return length + type + content;
}

QByteArray labelled(const QByteArray& type, const QByteArray& label, const QByteArray& content)
{
    return box(
        "jumb", box("jumd", type + QByteArray::fromHex("00110010800000aa00389b71") + '\x03' + label + '\0') + content);
}

QByteArray inJpeg(const QByteArray& boxes)
{
    QByteArray length(2, Qt::Uninitialized);
    qToBigEndian(quint16(10 + boxes.size()), length.data());
    const QByteArray segment = QByteArray("\xff\xeb") + length + QByteArray("JP\0\1\0\0\0\1", 8) + boxes;
    return jpegBytes().insert(2, segment);
}

// Behind the header of 33 bytes. The tool does not mind a sum of zero.
QByteArray inPng(const QByteArray& boxes)
{
    QByteArray length(4, Qt::Uninitialized);
    qToBigEndian(quint32(boxes.size()), length.data());
    return pngBytes().insert(33, length + "caBX" + boxes + QByteArray(4, '\0'));
}

// Two segments, each with boxes of its own.
QByteArray inJpeg(const QByteArray& boxes, const QByteArray& others)
{
    QByteArray segment = inJpeg(boxes).mid(2, 12 + boxes.size());
    segment[7] = '\2';
    return inJpeg(others).insert(2, segment);
}

QByteArray inWebp(const QByteArray& type, const QByteArray& boxes)
{
    QByteArray length(4, Qt::Uninitialized);
    qToLittleEndian(quint32(boxes.size()), length.data());
    QByteArray webp = webpBytes() + type + length + boxes + QByteArray(boxes.size() % 2, '\0');
    qToLittleEndian(quint32(webp.size() - 8), webp.data() + 4);
    return webp;
}

// One entry, with the bytes behind it.
QByteArray inTiff(quint16 tag, const QByteArray& boxes)
{
    QByteArray tiff = QByteArray::fromHex("49492a0008000000"
                                          "0100"
                                          "0000"
                                          "0700"
                                          "00000000"
                                          "1a000000"
                                          "00000000");
    qToLittleEndian(tag, tiff.data() + 10);
    qToLittleEndian(quint32(boxes.size()), tiff.data() + 14);
    return tiff + boxes;
}

QByteArray inHeif(const QByteArray& identifier, const QByteArray& boxes)
{
    return box("ftyp", QByteArray("heic\0\0\0\0mif1heic", 16)) + box("uuid", QByteArray::fromHex(identifier) + boxes);
}

// The record that a read would make of it.
ImageRecord recordOf(const QUrl& url)
{
    ImageRecord record;
    record.url = url;
    return record;
}

}  // namespace

class tst_PhotoDetails : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        make(m_folder, rows(), fileName);
        QList<QUrl> urls;
        for (const Row& row : rows())
            urls.append(m_folder.url(fileName(row)));
        // Read as the city of the photo where it holds no other one, and as a failure of the tool.
        const QUrl own = m_folder.add(u"own.jpg"_s);
        exiftool({ u"-q"_s, u"-overwrite_original"_s, u"-IPTC:City=Rome"_s, own.toLocalFile() });
        realService().write({ .customs = { { u"City"_s, u"Mine"_s }, { u"Error"_s, u"Mine"_s } } }, { own }, {});
        m_details = realService().details(realService().readEach(urls << own).records);
    }

    void differencesAreReal_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QStringList>("places");
        for (const Row& row : rows())
            QTest::newRow(row.name) << fileName(row) << QString::fromUtf8(row.field) << row.places;
        QTest::newRow("a field of one's own") << u"own.jpg"_s << u"place"_s << QStringList();
    }
    void differencesAreReal()
    {
        QFETCH(QString, file);
        QFETCH(QString, field);
        QVERIFY(m_details.contains(m_folder.url(file)));
        const auto found = m_details.value(m_folder.url(file)).disagreements;
        QTEST(texts(found.value(field)), "places");
        QCOMPARE(found.size(), found.contains(field) ? 1 : 0);
    }

    void formsOfOneValue_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("held");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("isSame");
        const auto row = [](const char* name, const char* field, const char* tag, const QString& held,
                             const QString& shown, bool isSame) {
            QTest::newRow(name) << QString::fromUtf8(field) << QString::fromUtf8(tag) << held << shown << isSame;
        };
        const QString letters = u"東京"_s.repeated(20);
        row("cut off within a letter", "headline", "IPTC:By-line", letters.first(10), letters, true);
        row("cut off by letters", "headline", "IPTC:By-line", letters.first(32), letters, true);
        row("cut off too early", "headline", "IPTC:By-line", letters.first(5), letters, false);
        row("XMP cuts nothing off", "headline", "XMP-dc:Creator", letters.first(10), letters, false);
        // Bytes of undeclared UTF-8, read as Latin 1, of which the limit took the last one.
        row("cut off and undeclared", "headline", "IPTC:By-line",
            QString::fromLatin1(u"ü"_s.repeated(16).toUtf8().first(31)), u"ü"_s.repeated(20), true);
        row("marks for letters", "headline", "EXIF:Artist", u"(c) ?????? ?rg"_s, u"(c) Максим Jrg"_s, false);
        row("marks and letters", "headline", "EXIF:Artist", u"(c) ?????? J?rg?"_s, u"(c) Максим Jürg?"_s, true);
        row("marks in XMP", "headline", "XMP-dc:Title", u"J?rg"_s, u"Jürg"_s, false);
        row("a question", "headline", "EXIF:Artist", u"Who?"_s, u"Who"_s, false);
        row("stars", "rating", "XMP-xmp:Rating", u"4.0"_s, u"4"_s, true);
        row("near", "coords", "EXIF:GPS", u"36.9634805555, 1"_s, u"36.9634816667, 1"_s, true);
        row("not near", "coords", "EXIF:GPS", u"36.96347, 1"_s, u"36.96348, 1"_s, false);
        row("a year", "date", "XMP-photoshop:DateCreated", u"2024"_s, u"2024:05:06 10:00:00"_s, true);
        row("month and day left out", "date", "IPTC:DateCreated", u"2024:00:00"_s, u"2024:05:06"_s, true);
        row("another minute", "date", "XMP-photoshop:DateCreated", u"2024:05:06 10:01"_s, u"2024:05:06 10:00:59"_s,
            false);
        row("a zone by name", "date", "XMP-photoshop:DateCreated", u"2024:05:06 10:00:09.526GMT+02:00"_s,
            u"2024:05:06 10:00:09"_s, true);
        row("broken off", "date", "XMP-photoshop:DateCreated", u"2024-05-"_s, u"2024:05:06 10:00:09"_s, true);
        row("no date", "date", "EXIF:CreateDate", u"unknown"_s, u"2024:05:06"_s, false);
    }
    void formsOfOneValue()
    {
        QFETCH(QString, field);
        QFETCH(QString, tag);
        QFETCH(QString, held);
        QFETCH(QString, shown);
        const FieldSpec* spec = FieldSchema::spec(field);
        const HomeComparison::Held home{
            .tag = tag, .items = { held }, .declaresEncoding = !tag.startsWith(u"IPTC"_s)
        };
        const HomeComparison::Held other{ .tag = u"XMP-photoshop:Headline"_s, .items = { shown } };
        QTEST(HomeComparison::isSame(*spec, home, other), "isSame");
        QTEST(HomeComparison::isSame(*spec, other, home), "isSame");
    }

    // What a save writes to all homes is one value, whatever the standards make of it.
    void aSaveLeavesNoDifference()
    {
        const QList<QUrl> photos{ m_folder.add(u"saved.jpg"_s), m_folder.add(u"saved.tif"_s),
            m_folder.add(u"saved.png"_s), m_folder.add(u"saved.webp"_s) };
        EditPlan plan;
        for (const FieldSpec& field : FieldSchema::all()) {
            if (field.isList())
                plan.lists.insert(field.id, { u"Zürich; 東京"_s, u"1.10"_s, u"a, b"_s });
            else if (field.kind == FieldKind::text || field.kind == FieldKind::multiline)
                plan.scalars.insert(field.id, u"Zürich; 東京 (“a”, b),\n? of "_s + u"many words "_s.repeated(20));
        }
        plan.scalars.insert({ { u"date"_s, u"2024-05-06 14:30"_s }, { u"dateDigitized"_s, u"2024-05-07"_s },
            { u"offsetOriginal"_s, u"+02:00"_s }, { u"coords"_s, u"-33.5000004, -70.2500006"_s },
            { u"rating"_s, u"4"_s }, { u"urgency"_s, u"5"_s }, { u"category"_s, u"abc"_s } });
        realService().write(plan, photos, {});
        const auto found = realService().details(realService().read(photos));
        for (const QUrl& photo : photos)
            for (auto it = found[photo].disagreements.cbegin(); it != found[photo].disagreements.cend(); ++it)
                QFAIL(qPrintable(photo.fileName() + u' ' + it.key() + u": "_s + texts(*it).join(u" / "_s)));
        QCOMPARE(found.size(), photos.size());
    }

    // What a photo of another type cannot hold, or what was read before, is none of its homes.
    void theRecordTellsWhatIsShown_data()
    {
        QTest::addColumn<QString>("fileType");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("places");
        const QString xmp = u"XMP-dc:Title=A"_s;
        const QString iptc = u"IPTC:ObjectName=B"_s;
        QTest::newRow("a JPEG") << u"JPEG"_s << u"A"_s << QStringList{ u"*"_s + xmp, iptc };
        QTest::newRow("no room for IPTC") << u"Extended WEBP"_s << u"A"_s << QStringList();
        QTest::newRow("an older record") << u"JPEG"_s << u"C"_s << QStringList{ u"*"_s + xmp, iptc };
        QTest::newRow("a namesake's") << u"JPEG"_s << u"D"_s << QStringList{ u"*F XMP-nine:Title=D"_s, xmp, iptc };
    }
    void theRecordTellsWhatIsShown()
    {
        QFETCH(QString, fileType);
        QFETCH(QString, title);
        ImageRecord record;
        record.fileType = fileType;
        record.values.insert(u"title"_s, title);
        const JSONObject tags{ { u"XMP-dc:Title"_s, u"A"_s }, { u"XMP-nine:Title"_s, u"D"_s },
            { u"IPTC:ObjectName"_s, u"B"_s } };
        QTEST(texts(Disagreements::of(record, tags).value(u"title"_s)), "places");
    }

    void languagesAndPathsAreFound()
    {
        const PhotoFolder folder;
        const QList<Photo> photos = languagePhotos() + pathPhotos();
        QList<ImageRecord> records;
        make(folder, photos, [](const Photo& photo) { return photo.name; });
        for (const Photo& photo : photos)
            records.append(recordOf(folder.url(photo.name)));
        records.append(recordOf(folder.add(u"empty.jpg"_s, {})));
        records.append(recordOf(folder.url(u"gone.jpg"_s)));
        qsizetype progress = 0;
        const auto found = realService().details(
            records, { .progress = [&](qsizetype done) { progress = done; }, .stop = {}, .started = {} });
        QCOMPARE(found.size(), photos.size());
        QVERIFY(progress >= photos.size());
        for (const Photo& photo : photos) {
            const PhotoDetails details = found.value(folder.url(photo.name));
            QVERIFY2(details.texts == photo.languages, qPrintable(photo.name));
            QVERIFY2(details.paths == photo.paths, qPrintable(photo.name));
        }
    }

    // A save leaves the seal where it is, and breaks it.
    void sealedPhotosAreTold()
    {
        const QByteArray seal = labelled("c2pa", "c2pa", labelled("c2ma", "urn:uuid:1", {}));
        const PhotoFolder folder;
        const QMap<QString, bool> isSealed{ { folder.add(u"a.jpg"_s, inJpeg(seal)).fileName(), true },
            { folder.add(u"b.png"_s, inPng(seal)).fileName(), true },
            { folder.add(u"other.jpg"_s, inJpeg(labelled("json", "notes", box("json", "{\"c2pa\":1}")))).fileName(),
                false },
            { folder.add(u"inner.jpg"_s, inJpeg(labelled("json", "notes", labelled("json", "c2pa", {})))).fileName(),
                false },
            { folder.add(u"second.jpg"_s, inJpeg(labelled("json", "notes", {}), seal)).fileName(), true },
            { folder.add(u"c.webp"_s, inWebp("C2PA", seal)).fileName(), true },
            { folder.add(u"other.webp"_s, inWebp("D2PA", seal)).fileName(), false },
            { folder.add(u"d.tif"_s, inTiff(0xcd41, seal)).fileName(), true },
            { folder.add(u"other.tif"_s, inTiff(0xcd42, seal)).fileName(), false },
            { folder.add(u"e.heic"_s, inHeif("d8fec3d61b0e483c92975828877ec481", seal)).fileName(), true },
            { folder.add(u"other.heic"_s, inHeif("d8fec3d61b0e483c92975828877ec4ff", seal)).fileName(), false },
            { folder.add(u"none.jpg"_s).fileName(), false } };
        QList<QUrl> photos;
        for (const QString& name : isSealed.keys())
            photos.append(folder.url(name));
        realService().write({ .scalars = { { u"title"_s, u"Edited"_s } } }, { photos.constFirst() }, {});
        const auto found = realService().details(realService().read(photos));
        for (const QUrl& photo : photos)
            QVERIFY2(
                found.value(photo).hasCredentials == isSealed.value(photo.fileName()), qPrintable(photo.fileName()));
    }

private:
    const PhotoFolder m_folder;
    QHash<QUrl, PhotoDetails> m_details;
};

QTEST_GUILESS_MAIN(tst_PhotoDetails)
#include "tst_PhotoDetails.moc"
