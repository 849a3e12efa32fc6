#include "core/schema/FieldSchema.h"

#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

QStringList ids(const QList<FieldSpec>& fields)
{
    QStringList result;
    for (const FieldSpec& field : fields)
        result.append(field.id);
    return result;
}

// "XMP-dc:Title" is read back as "XMP:Title".
QString groupZero(QString tag)
{
    static const QRegularExpression family(u"^XMP-[^:]+:"_s);
    return tag.replace(family, u"XMP:"_s);
}

}  // namespace

class TestFieldSchema : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void fieldsAreDistinct()
    {
        const QStringList all = ids(FieldSchema::all());
        QCOMPARE(all.size(), 31);
        QCOMPARE(QSet<QString>(all.cbegin(), all.cend()).size(), 31);
        QCOMPARE(ids(FieldSchema::defaultFields()),
            u"title description date keywords creator copyright place coords"_s.split(u' '));
        QCOMPARE(FieldSchema::addableFields().size(), 23);
        for (const FieldSpec& field : FieldSchema::all())
            QVERIFY2(!field.label.isEmpty() && !field.addNote.isEmpty() && !field.namespaceHint.isEmpty(),
                qPrintable(field.id));
    }

    // A tag that is written but not read, or the reverse, would be a value that a save loses.
    void whatIsWrittenIsWhatIsRead()
    {
        for (const FieldSpec& field : FieldSchema::all()) {
            QStringList written;
            for (const QString& tag : field.writeTags)
                written.append(groupZero(tag));
            QCOMPARE(written, field.id == u"coords"_s ? QStringList() : field.readTags);
        }
    }

    void lookUp()
    {
        QCOMPARE(FieldSchema::spec(u"title"_s), &FieldSchema::all().first());
        QCOMPARE(FieldSchema::spec(u"offsetDigitized"_s), &FieldSchema::all().last());
        QCOMPARE(FieldSchema::spec(u"Title"_s), nullptr);
        QCOMPARE(fromRawValue<FieldSection>(u"DETAILS"_s), FieldSection::additional);
        QCOMPARE(fromRawValue<FieldSection>(u"details"_s), std::nullopt);
    }

    void tagListsAreSortedSets()
    {
        const QStringList tags = FieldSchema::readTags();
        QVERIFY(std::is_sorted(tags.cbegin(), tags.cend()));
        QCOMPARE(tags.first(), u"Composite:GPSPosition"_s);
        QCOMPARE(QSet<QString>(tags.cbegin(), tags.cend()).size(), tags.size());
        const QStringList camera = FieldSchema::cameraReadTags();
        QVERIFY(std::is_sorted(camera.cbegin(), camera.cend()));
        QCOMPARE(camera.size(), 12);
    }

    void offsetsAscend()
    {
        static const QRegularExpression form(u"^([+-])([01]\\d):([034][05])$"_s);
        int previous = -24 * 60;
        for (const QString& offset : FieldSchema::timeZoneOffsets()) {
            const QRegularExpressionMatch match = form.match(offset);
            QVERIFY2(match.hasMatch(), qPrintable(offset));
            const int minutes =
                (match.captured(2).toInt() * 60 + match.captured(3).toInt()) * (match.captured(1) == u"-"_s ? -1 : 1);
            QVERIFY2(minutes > previous, qPrintable(offset));
            previous = minutes;
        }
        QCOMPARE(FieldSchema::timeZoneOffsets().size(), 38);
    }
};

QTEST_GUILESS_MAIN(TestFieldSchema)
#include "tst_FieldSchema.moc"
