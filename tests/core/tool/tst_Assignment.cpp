// Assignments as the tool's arguments, and which of them may not go into one run.
#include "core/tool/Assignment.h"
#include "tests/support/Support.h"

#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;

using Operation = Assignment::Operation;

class tst_Assignment : public QObject {
    Q_OBJECT

private slots:
    void becomesAnArgument_data()
    {
        QTest::addColumn<Operation>("operation");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("expected");
        QTest::addRow("set") << Operation::set << u" a=b+=c\n"_s << u"-T= a=b+=c\n"_s;
        QTest::addRow("delete") << Operation::set << QString() << u"-T="_s;
        QTest::addRow("add") << Operation::add << u"=a"_s << u"-T+==a"_s;
        QTest::addRow("remove") << Operation::remove << u"a"_s << u"-T-=a"_s;
        QTest::addRow("restore") << Operation::restore << u"1.10"_s << u"-T#=1.10"_s;
        QTest::addRow("restore a text without characters") << Operation::restore << QString() << u"-T#^="_s;
    }
    void becomesAnArgument()
    {
        QFETCH(Operation, operation);
        QFETCH(QString, value);
        QFETCH(QString, expected);
        QCOMPARE(arguments({ { u"T"_s, operation, value } }), QStringList(expected));
    }

    void goesOneWay_data()
    {
        QTest::addColumn<QList<Assignment>>("assignments");
        QTest::addColumn<QString>("refused");  // the tag; empty: none
        const QString keywords = u"IPTC:Keywords"_s;
        const Assignment set{ keywords, Operation::set, u"a"_s };
        const Assignment add{ keywords, Operation::add, u"b"_s };
        const Assignment remove{ keywords, Operation::remove, u"b"_s };
        const Assignment restore{ keywords, Operation::restore, u"c"_s };
        const Assignment other{ u"XMP-dc:Subject"_s, Operation::set, u"a"_s };
        const Assignment otherCase{ u"iptc:KEYWORDS"_s, Operation::add, u"b"_s };
        QTest::addRow("nothing") << QList<Assignment>() << QString();
        QTest::addRow("a list replaced") << QList{ set, set } << QString();
        QTest::addRow("taken out and added") << QList{ remove, add, remove, add } << QString();
        QTest::addRow("emptied and put back") << QList{ set, restore, restore } << QString();
        QTest::addRow("one tag each way") << QList{ other, remove, add } << QString();
        QTest::addRow("set, then added") << QList{ set, other, add } << keywords;
        QTest::addRow("taken out, then set") << QList{ remove, set } << keywords;
        QTest::addRow("put back and added") << QList{ restore, add } << keywords;
        QTest::addRow("in another case") << QList{ set, otherCase } << otherCase.tag;
    }
    void goesOneWay()
    {
        QFETCH(QList<Assignment>, assignments);
        QFETCH(QString, refused);
        FakeTool tool;
        QString said;
        try {
            tool.runner().write({ .assignments = assignments }, { QUrl::fromLocalFile(u"/p/a.jpg"_s) }, false);
        } catch (const AssignmentConflict& conflict) {
            said = conflict.description();
        }
        QCOMPARE(said.isEmpty(), refused.isEmpty());
        QVERIFY2(said.contains(refused), qPrintable(said));
        QCOMPARE(tool.calls().size(), refused.isEmpty() && !assignments.isEmpty() ? 1 : 0);
    }
};

QTEST_GUILESS_MAIN(tst_Assignment)
#include "tst_Assignment.moc"
