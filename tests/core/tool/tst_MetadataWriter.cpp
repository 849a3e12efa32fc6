#include "core/save/EditPlan.h"
#include "core/schema/FieldSchema.h"
#include "core/tool/MetadataWriter.h"
#include "tests/support/Rows.h"

#include <QRegularExpression>

using namespace Quorbel;
using namespace Qt::StringLiterals;

using MetadataWriter::ListMode;
Q_DECLARE_METATYPE(Quorbel::MetadataWriter::ListMode)

class tst_MetadataWriter : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void scalars_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("args");
        const auto row = [](const char* name, const QString& id, const QString& value, const QString& args) {
            QTest::newRow(name) << id << value << args;
        };
        row("every home, value untouched", u"title"_s, u" -a=\"b\" "_s,
            u"-XMP-dc:Title= -a=\"b\" |-IPTC:ObjectName= -a=\"b\" "_s);
        row("empty deletes", u"title"_s, QString(), u"-XMP-dc:Title=|-IPTC:ObjectName="_s);
        row("date", u"date"_s, u" 2024-05-06 14:30 "_s,
            u"-EXIF:DateTimeOriginal=2024:05:06 14:30:00|-XMP-photoshop:DateCreated=2024:05:06 14:30:00"_s);
        row("rating", u"rating"_s, u"7"_s, u"-XMP:Rating=5"_s);
        row("offset as typed", u"offsetOriginal"_s, u"+5"_s, u"-EXIF:OffsetTimeOriginal=+5"_s);
        row("position", u"coords"_s, u"-33.5, 151"_s,
            u"-GPSLatitude=33.500000|-GPSLatitudeRef=S|-GPSLongitude=151.000000|-GPSLongitudeRef=E"_s);
        row("unreadable position", u"coords"_s, u"here"_s, QString());
    }
    void scalars()
    {
        QFETCH(QString, id);
        QFETCH(QString, value);
        QTEST(arguments(MetadataWriter::scalarArgs(*FieldSchema::spec(id), value)).join(u'|'), "args");
    }

    // A position has four tags of its own, whatever the field says.
    void positionIgnoresWriteTags()
    {
        FieldSpec field = *FieldSchema::spec(u"coords"_s);
        field.writeTags = { u"XMP:Location"_s };
        QVERIFY(MetadataWriter::scalarArgs(field, u"x"_s).isEmpty());
    }

    void lists_data()
    {
        QTest::addColumn<QString>("items");
        QTest::addColumn<ListMode>("mode");
        QTest::addColumn<QString>("args");
        const auto row = [](const char* name, const QString& items, ListMode mode, const QString& args) {
            QTest::newRow(name) << items << mode << args;
        };
        row("replace clears first", u" a ||b"_s, ListMode::replace, u"-T= -T=a -T=b -U= -U=a -U=b"_s);
        row("append never doubles", u" a ||b"_s, ListMode::append,
            u"-T-=a -T+=a -T-=b -T+=b -U-=a -U+=a -U-=b -U+=b"_s);
        row("replace by nothing", u" "_s, ListMode::replace, u"-T= -U="_s);
        row("append of nothing", u" "_s, ListMode::append, QString());
        row("case and repeats are kept", u"A|a|a"_s, ListMode::replace, u"-T= -T=A -T=a -T=a -U= -U=A -U=a -U=a"_s);
    }
    void lists()
    {
        QFETCH(QString, items);
        QFETCH(ListMode, mode);
        FieldSpec field = *FieldSchema::spec(u"keywords"_s);
        field.writeTags = { u"T"_s, u"U"_s };
        QTEST(arguments(MetadataWriter::listArgs(field, items.split(u'|'), mode)).join(u' '), "args");
    }

    // Behind what is added, by themselves; as the files spell them.
    void itemsTakenAway()
    {
        EditPlan plan{ .lists = { { u"keywords"_s, { u" a "_s } } },
            .listMode = ListMode::append,
            .removed = { { u"keywords"_s, { u" b"_s, QString(), u"c"_s } }, { u"none"_s, { u"x"_s } } } };
        QCOMPARE(arguments(MetadataWriter::assignments(plan)).join(u'|'),
            u"-IPTC:Keywords-=a|-IPTC:Keywords+=a|-XMP-dc:Subject-=a|-XMP-dc:Subject+=a|"
            "-IPTC:Keywords-= b|-IPTC:Keywords-=c|-XMP-dc:Subject-= b|-XMP-dc:Subject-=c"_s);
        plan.lists.clear();
        plan.leftOut = { u"IPTC"_s };
        QCOMPARE(arguments(MetadataWriter::assignments(plan)).join(u'|'), u"-XMP-dc:Subject-= b|-XMP-dc:Subject-=c"_s);
    }

    void customs()
    {
        QCOMPARE(
            arguments(MetadataWriter::customArgs(u"3D score"_s, u" v "_s)), QStringList(u"-XMP-Quorbel:Dscore= v "_s));
        QVERIFY(MetadataWriter::customArgs(u"2024"_s, u"v"_s).isEmpty());
    }

    void configuration_data()
    {
        const QString end = u" => { Writable => 'string' },"_s;
        Test::addRows(
            { { QString(), QString() }, { u"b|a| a|9|B"_s, u"  B"_s + end + u"\n  a"_s + end + u"\n  b"_s + end },
                { u"\U00010400|\ufb01"_s, u"  \ufb01"_s + end + u"\n  \U00010400"_s + end } });
    }
    void configuration()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        const QString head = u"%Image::ExifTool::UserDefined = (\n"
                             "  'Image::ExifTool::XMP::Main' => {\n"
                             "    Quorbel => { SubDirectory => { TagTable => "
                             "'Image::ExifTool::UserDefined::Quorbel' } },\n"
                             "  },\n);\n"
                             "%Image::ExifTool::UserDefined::Quorbel = (\n"
                             "  GROUPS => { 0 => 'XMP', 1 => 'XMP-Quorbel', 2 => 'Image' },\n"
                             "  NAMESPACE => { 'Quorbel' => 'http://quorbel.app/ns/1.0/' },\n"
                             "  WRITABLE => 'string',\n"_s;
        QCOMPARE(MetadataWriter::customConfig(text.split(u'|')), head + expected + u"\n);\n1;"_s);
    }

    void dates_data()
    {
        const QString day = u"2024:05:06 00:00:00"_s;
        Test::addRows({ { u"2024:05:06 14:30:15"_s, u"2024:05:06 14:30:15"_s },
            { u"2024-05-06 14:30:15"_s, u"2024:05:06 14:30:15"_s }, { u"2024:05:06 14:30"_s, u"2024:05:06 14:30:00"_s },
            { u"\t2024-5-6 4:3 "_s, u"2024:05:06 04:03:00"_s }, { u"2024-05-06"_s, day }, { u"2024:5:06"_s, day },
            { u"2024:02:29"_s, u"2024:02:29 00:00:00"_s }, { u" "_s, QString() } });
        // An hour that the change to summer time skips in the zone of the tests.
        Test::addRows({ u"2024-03-31 02:30"_s }, u"2024:03:31 02:30:00"_s);
        for (const QString& passed : { u"06/05/2024"_s, u"2023-02-29"_s, u"2024-05:06"_s, u"2024-13-01"_s,
                 u"2024-05-06 24:00"_s, u"2024-05-06 23:59:60"_s, u"2024-05-06 14"_s, u"2024-05-06T14:30"_s,
                 u"2024-05-06  14:30"_s, u"2024:05:06 14:30:15.5"_s, u"2024:05:06 14:30:15+02:00"_s, u"12024-05-06"_s,
                 u"2024-005-06"_s, u"0000:00:00 00:00:00"_s, u"2024-05-0٦"_s, u"2024-05-"_s, u"-2024-05-06"_s })
            Test::addRows({ u' ' + passed }, passed);
    }
    void dates()
    {
        QFETCH(QString, text);
        QTEST(MetadataWriter::normalizeDate(text), "expected");
    }

    void datesShown_data()
    {
        Test::addRows({ { u"2023:05:01 14:30:15"_s, u"2023-05-01 14:30"_s },
            { u" 2023:05:01 14:30"_s, u"2023-05-01 14:30"_s }, { u" "_s, QString() } });
        for (const QString& kept : { u"2023:05:01"_s, u"2023-05-01 14:30"_s, u"2023:05:01 14:30:15+02:00"_s,
                 u"2023:05:01 14:30:15.25"_s, u":  :     :  :"_s, u"2016-02-"_s })
            Test::addRows({ kept + u' ' }, kept);
    }
    void datesShown()
    {
        QFETCH(QString, text);
        QTEST(MetadataWriter::displayDate(text), "expected");
    }

    void ratings_data()
    {
        Test::addRows({ { u" 4 "_s, u"4"_s }, { u"3.9"_s, u"3"_s }, { u"-2"_s, u"0"_s }, { u"-0.5"_s, u"0"_s },
            { u"1e300"_s, u"5"_s }, { u" "_s, QString() }, { u"five "_s, u"five"_s }, { u"nan "_s, u"nan"_s },
            { u"-inf "_s, u"-inf"_s }, { u"4 stars "_s, u"4 stars"_s }, { u"0x3 "_s, u"0x3"_s } });
    }
    void ratings()
    {
        QFETCH(QString, text);
        QTEST(MetadataWriter::normalizeRating(text), "expected");
    }

    void emptyPlan()
    {
        EditPlan plan;
        plan.listMode = ListMode::append;
        QVERIFY(plan.isEmpty());
        plan.lists.insert(u"keywords"_s, {});
        QVERIFY(!plan.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_MetadataWriter)
#include "tst_MetadataWriter.moc"
