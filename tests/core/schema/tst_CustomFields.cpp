#include "core/schema/CustomFields.h"
#include "core/tool/MetadataWriter.h"
#include "tests/support/Rows.h"

#include <QRegularExpression>

using namespace Quorbel;
using namespace Qt::StringLiterals;

class tst_CustomFields : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void sanitizesNames_data()
    {
        Test::addRows(
            { { u"Project code"_s, u"Projectcode"_s }, { u"3D-Score 2"_s, u"DScore2"_s }, { u"2024"_s, QString() },
                { u"!_:-!"_s, QString() }, { u"Café"_s, u"Café"_s }, { u"Cafe\u0301"_s, u"Cafe\u0301"_s },
                { u"٣Ⅳ½x"_s, u"x"_s }, { u"\U0001F4F7\U00010400\U0001D7D9"_s, u"\U00010400\U0001D7D9"_s } });
    }
    void sanitizesNames()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(MetadataWriter::sanitizeCustomName(text).has_value(), !expected.isEmpty());
        QCOMPARE(MetadataWriter::sanitizeCustomName(text).value_or(QString()), expected);
    }

    void judgesNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("problem");  // how it begins; none for a name that is taken
        QTest::addColumn<bool>("writable");  // where a photo holds it already
        QTest::addRow("plain") << "Project"
                               << "" << true;
        QTest::addRow("two characters") << "a1"
                                        << "" << true;
        QTest::addRow("to be cleaned") << "Project code"
                                       << "" << false;
        QTest::addRow("nothing left") << "!!!"
                                      << "" << false;
        QTest::addRow("one character") << "X"
                                       << "A name needs" << false;
        QTest::addRow("accent") << u"Café"_s << "Only the letters" << false;
        QTest::addRow("word of the tables") << "GROUPS" << u"“GROUPS” is a reserved word"_s << false;
        QTest::addRow("the same after cleaning") << "NOTES!" << u"“NOTES” is a reserved word"_s << false;
        QTest::addRow("the same in another case") << "Groups"
                                                  << "" << true;
        QTest::addRow("the whole group") << "All" << u"“All” is a reserved word"_s << false;
        QTest::addRow("the whole group in another case") << "aLL" << u"“aLL” is a reserved word"_s << false;
        QTest::addRow("an error") << "Error" << u"“Error” is a reserved word"_s << true;
        QTest::addRow("not stored") << "XMP" << u"“XMP” is a reserved word"_s << false;
        QTest::addRow("read for a field") << "City"
                                          << "That is the field Place" << true;
        QTest::addRow("in another case") << "LOCATION"
                                         << "That is the field Sub-location" << true;
        QTest::addRow("named like a field") << "Title"
                                            << "That is the field Title" << true;
        QTest::addRow("read from IPTC alone") << "ObjectName"
                                              << "That is the field Title" << true;
        QTest::addRow("begins like a field") << "Cityscape"
                                             << "" << true;
    }
    void judgesNames()
    {
        QFETCH(QString, name);
        QFETCH(QString, problem);
        const auto found = CustomFields::nameProblem(name);
        QCOMPARE(found.has_value(), !problem.isEmpty());
        QVERIFY2(!found || found->startsWith(problem), qPrintable(found.value_or(QString())));
        QTEST(CustomFields::isWritable(name), "writable");
    }

    void spelling()
    {
        const QStringList held{ u"Mood"_s, u"MOOD"_s };
        QCOMPARE(CustomFields::spelling(u"mood"_s, held), u"Mood"_s);
        QCOMPARE(CustomFields::spelling(u"MOOD"_s, held), u"MOOD"_s);
        QCOMPARE(CustomFields::spelling(u"Moody"_s, held), u"Moody"_s);
    }
};

QTEST_GUILESS_MAIN(tst_CustomFields)
#include "tst_CustomFields.moc"
