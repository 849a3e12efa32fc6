#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "tests/support/Support.h"

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

class tst_FieldSchema : public QObject {
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

    // The page shows every field, in the order of its section, with its name and its tags.
    void isWhatThePageSays()
    {
        static const QRegularExpression row(
            u"^\\| (\\*\\*)?(.+?)(\\*\\*)? \\| ([^|]+) \\| (.+) \\| (.+) \\|$"_s, QRegularExpression::MultilineOption);
        static const QMap<FieldKind, QString> kinds{ { FieldKind::text, u"one line"_s },
            { FieldKind::multiline, u"several lines"_s }, { FieldKind::keywords, u"list"_s },
            { FieldKind::date, u"date and time"_s }, { FieldKind::coordinates, u"position"_s },
            { FieldKind::rating, u"stars, 0 to 5"_s }, { FieldKind::offset, u"time-zone offset"_s } };
        const auto tags = [](const QStringList& names) {
            return names.isEmpty() ? u"the four GPS tags (see below)"_s : u'`' + names.join(u"`<br>`"_s) + u'`';
        };
        QStringList expected;
        for (const FieldSection section : allCases<FieldSection>())
            for (const FieldSpec& field : FieldSchema::all())
                if (field.section == section)
                    expected.append(QStringList{ field.label, field.alwaysShown ? u"always"_s : QString(),
                        kinds[field.kind], tags(field.writeTags), tags(field.readTags) }
                                        .join(u'|'));
        QStringList found;
        const QString page =
            QString::fromUtf8(Test::readFile(QString::fromUtf8(QUORBEL_FIELDS_PAGE))).section(u"\n## All 66 "_s, 0, 0);
        for (auto rows = row.globalMatch(page); rows.hasNext();) {
            const QRegularExpressionMatch match = rows.next();
            if (match.captured(2) != u"Field"_s)
                found.append(QStringList{ match.captured(2), match.captured(1).isEmpty() ? QString() : u"always"_s,
                    match.captured(4), match.captured(5), match.captured(6) }
                                 .join(u'|'));
        }
        QCOMPARE(found, expected);
    }

    void languagesAreSpelledAsTheToolDoes_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("spelling");
        QTest::addColumn<QString>("label");
        QTest::newRow("language") << u"DE"_s << u"de"_s << u"Title (German)"_s;
        QTest::newRow("country") << u"de-ch"_s << u"de-CH"_s << u"Title (German, Switzerland)"_s;
        QTest::newRow("script") << u"zh-Hans"_s << u"zh-hans"_s << u"Title (Chinese, Simplified Han)"_s;
        QTest::newRow("script and country")
            << u"sr-Latn-RS"_s << u"sr-latn-rs"_s << u"Title (Serbian, Latin, Serbia)"_s;
        QTest::newRow("variant") << u"de-at-1996"_s << u"de-AT-1996"_s << u"Title (German, Austria, 1996)"_s;
        QTest::newRow("private") << u"x-Repair"_s << u"x-repair"_s << u"Title (x-repair)"_s;
        QTest::newRow("unknown") << u"qaa"_s << u"qaa"_s << u"Title (qaa)"_s;
        for (const char* code : { "german", "d", "x", "de_CH", "x-default", "X-Default", "de-", "", "dé" })
            QTest::newRow(code) << QString::fromUtf8(code) << QString() << QString();
    }
    void languagesAreSpelledAsTheToolDoes()
    {
        QFETCH(QString, typed);
        QFETCH(QString, spelling);
        QCOMPARE(FieldLanguages::isCode(typed), !spelling.isEmpty());
        const QString key = FieldLanguages::key(u"title"_s, spelling);
        QTEST(FieldLanguages::label(key), "label");
        if (!spelling.isEmpty()) {
            QCOMPARE(FieldLanguages::spelling(typed), spelling);
            QCOMPARE(FieldLanguages::tag(key), u"XMP-dc:Title-"_s + spelling);
        }
        QCOMPARE(FieldLanguages::tag(FieldLanguages::key(u"place"_s, typed)), QString());
    }
};

QTEST_GUILESS_MAIN(tst_FieldSchema)
#include "tst_FieldSchema.moc"
