// JSON values, and the reader that makes records of them, as tables of recorded replies.
#include "core/schema/FieldSchema.h"
#include "core/text/JSONValue.h"
#include "core/tool/MetadataReader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

JSONValue value(const QByteArray& json)
{
    const auto document = QJsonDocument::fromJson('[' + json + ']');
    return document.isArray() ? JSONValue::fromJson(document.array().first()) : JSONValue(u"no JSON"_s);
}

JSONObject object(const QByteArray& json)
{
    const auto objects = objectsFromJson({ QJsonDocument::fromJson(json).object() });
    return objects->first();
}

ImageRecord parsed(const QByteArray& main, const QByteArray& custom = "{}")
{
    return MetadataReader::parse(QUrl::fromLocalFile(u"/photos/IMG_1.heic"_s), object(main), object(custom));
}

}  // namespace

class tst_MetadataReader : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void values_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("text");  // null for none
        QTest::addColumn<QStringList>("list");
        const auto row = [](const char* json, const QString& text, const QStringList& list) {
            QTest::addRow("%s", json) << QByteArray(json) << text << list;
        };
        row("\"a\"", "a", { "a" });
        row("\"\"", "", { "" });
        row("4032", "4032", { "4032" });
        row("12.0", "12", { "12" });
        row("-3", "-3", { "-3" });
        row("-0.0", "0", { "0" });
        row("2.8", "2.8", { "2.8" });
        row("0.0125", "0.0125", { "0.0125" });
        row("999999999999999", "999999999999999", { "999999999999999" });
        row("1e15", "1e+15", { "1e+15" });
        row("-1e15", "-1e+15", { "-1e+15" });
        row("true", "true", { "true" });
        row("false", "false", { "false" });
        row("null", QString(), {});
        row("{\"a\": 1}", QString(), {});
        row("[]", "", {});
        row("[\"a\", 1, null, {\"b\": 2}, \"\"]", "a, 1, ", { "a", "1", "" });
        row("[[\"a\", \"b\"], \"c\"]", "a, b, c", { "a, b", "c" });
    }

    void values()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, text);
        QFETCH(QStringList, list);
        const JSONValue v = value(json);
        QCOMPARE(v.stringValue().has_value(), !text.isNull());
        QCOMPARE(v.stringValue().value_or(QString()), text);
        QCOMPARE(v.stringArray(), list);
    }

    void equality()
    {
        const char* const nested = "{\"a\": [1, \"b\", null, true], \"c\": {}}";
        QVERIFY(value(nested) == value(nested));
        QVERIFY(!(value(nested) == value("{\"a\": [1, \"b\", null, false], \"c\": {}}")));
        QVERIFY(!(value("1") == value("\"1\"")));
        QVERIFY(!(value("null") == value("\"\"")));
    }

    void asksForTags()
    {
        const auto tags = MetadataReader::readTags();
        const auto fileTags = tags.indexOf(u"FileType"_s);
        QCOMPARE(tags.first(), u"Composite:GPSPosition"_s);
        QCOMPARE(tags.mid(fileTags, 4), (QStringList{ "FileType", "ImageWidth", "ImageHeight", "FileSize#" }));
        QCOMPARE(tags.mid(0, fileTags), FieldSchema::readTags());
        QCOMPARE(tags.mid(fileTags + 4), FieldSchema::cameraReadTags());
    }

    void fields_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("text");  // null for absent
        const auto row = [](const char* name, const char* json, const char* id, const QString& text) {
            QTest::addRow("%s", name) << QByteArray(json) << id << text;
        };
        row("preferred tag", R"({"XMP:Title": "x", "IPTC:ObjectName": "i"})", "title", "x");
        row("second tag", R"({"IPTC:ObjectName": "i"})", "title", "i");
        row("an empty preferred tag decides", R"({"XMP:Title": "", "IPTC:ObjectName": "i"})", "title", {});
        row("an unusable preferred tag decides", R"({"XMP:Title": {}, "IPTC:ObjectName": "i"})", "title", {});
        row("verbatim", R"({"XMP:Title": "  x "})", "title", "  x ");
        row("a number as title", R"({"XMP:Title": 2024})", "title", "2024");
        row("a list in a scalar field", R"({"XMP:Creator": ["A", "B"]})", "creator", "A, B");
        row("date", R"({"EXIF:DateTimeOriginal": "2023:05:01 14:30:15"})", "date", "2023-05-01 14:30");
        row("date without seconds", R"({"XMP:DateCreated": "2023:05:01 14:30"})", "date", "2023-05-01 14:30");
        row("date of another shape", R"({"EXIF:DateTimeOriginal": " 2016-02- "})", "date", "2016-02-");
        row("empty date", R"({"EXIF:DateTimeOriginal": "", "XMP:DateCreated": "2023:05:01 14:30"})", "date", {});
        row("position", R"({"Composite:GPSPosition": "48.858370 N, 2.294481 W"})", "coords", "48.858370, -2.294481");
        row("no position", R"({"Composite:GPSPosition": "somewhere"})", "coords", {});
    }

    void fields()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, id);
        QFETCH(QString, text);
        const auto record = parsed(json);
        QCOMPARE(record.values.value(id), text);
        QCOMPARE(record.values.size(), text.isNull() ? 0 : 1);
    }

    void lists()
    {
        const auto record =
            parsed(R"({"IPTC:Keywords": ["b", 7, "a", "a"], "XMP:PersonInImage": "Ann", "XMP:Subject": []})");
        QCOMPARE(record.lists,
            (QMap<QString, QStringList>{ { "keywords", { "b", "7", "a", "a" } }, { "people", { "Ann" } } }));
        QVERIFY(parsed(R"({"IPTC:Keywords": [null], "XMP:Subject": ["a"]})").lists.isEmpty());
    }

    void fileFacts()
    {
        const auto record = parsed(
            R"({"File:FileType": "HEIF", "File:ImageWidth": 4032, "File:ImageHeight": "+30", "File:FileSize": 1.5})");
        QCOMPARE(record.fileName, u"IMG_1.heic"_s);
        QCOMPARE(record.fileType, u"HEIF"_s);
        QCOMPARE(record.pixelWidth.value_or(-1), 4032);
        QCOMPARE(record.pixelHeight.value_or(-1), 30);
        QVERIFY(!record.fileSize);
        const auto odd =
            parsed(R"({"File:ImageWidth": 4294967296, "File:ImageHeight": "3 000", "File:FileSize": 14513})");
        QCOMPARE(odd.fileType, u"HEIC"_s);
        QVERIFY(!odd.pixelWidth);
        QVERIFY(!odd.pixelHeight);
        QCOMPARE(odd.fileSize.value_or(-1), 14513);
        QVERIFY(!odd.creationDate && !odd.contentModificationDate);
    }

    void camera()
    {
        const auto record = parsed(R"({"EXIF:Make": "Canon", "EXIF:Model": "Canon EOS R5", "Composite:LensID": "",
            "EXIF:LensInfo": "24-70mm", "EXIF:ISO": 100, "Composite:Aperture": 2.8, "EXIF:FNumber": 3})");
        QCOMPARE(record.camera,
            (QList<CameraRow>{
                { "Camera", "Canon Canon EOS R5" }, { "Lens", "24-70mm" }, { "ISO", "100" }, { "Aperture", "2.8" } }));
        QCOMPARE(parsed(R"({"EXIF:Model": "X100"})").camera, (QList<CameraRow>{ { "Camera", "X100" } }));
        QVERIFY(parsed(R"({"EXIF:Make": ""})").camera.isEmpty());
    }

    void customs()
    {
        const auto record = parsed("{}", R"({"SourceFile": "/x", "XMP-Quorbel:Project": "Alps", "XMP-Quorbel:Empty": "",
            "XMP-Quorbel:Mood": 3, "XMP-Quorbel:Nested": {"a": 1}, "XMP-dc:Title": "no"})");
        QCOMPARE(record.custom, (QList<CustomValue>{ { "Empty", "" }, { "Mood", "3" }, { "Project", "Alps" } }));
    }
};

QTEST_GUILESS_MAIN(tst_MetadataReader)
#include "tst_MetadataReader.moc"
