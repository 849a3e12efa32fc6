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

    void saysWhichNamesCannotBeStored_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("stored");
        QTest::addRow("plain") << "Project code" << true;
        QTest::addRow("two characters") << "a1" << true;
        QTest::addRow("nothing left") << "!!!" << true;
        QTest::addRow("one character") << "9 X" << false;
        QTest::addRow("accent") << u"Café"_s << false;
        QTest::addRow("reserved") << "GROUPS" << false;
        QTest::addRow("reserved after cleaning") << "NOTES!" << false;
        QTest::addRow("reserved in another case") << "Groups" << true;
    }
    void saysWhichNamesCannotBeStored()
    {
        QFETCH(QString, name);
        QTEST(!CustomFields::nameProblem(name), "stored");
    }
};

QTEST_GUILESS_MAIN(tst_CustomFields)
#include "tst_CustomFields.moc"
