#include "core/schema/KeywordPath.h"

#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

class tst_KeywordPath : public QObject {
    Q_OBJECT

private slots:
    void isTyped_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("path");
        QTest::newRow("signs") << u"Places > France >  Paris "_s << u"Places|France|Paris"_s;
        QTest::newRow("bars") << u"Places| France |Paris"_s << u"Places|France|Paris"_s;
        QTest::newRow("no blanks round the sign") << u"a>b"_s << QString();
        QTest::newRow("a keyword") << u"Paris"_s << QString();
        QTest::newRow("one element") << u"|Paris | "_s << QString();
        QTest::newRow("a slash is a letter") << u"AC/DC > live"_s << u"AC/DC|live"_s;
    }
    void isTyped()
    {
        QFETCH(QString, typed);
        QTEST(KeywordPath::fromTyped(typed).value_or(QString()), "path");
    }

    void comesInEachForm_data()
    {
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("stored");
        const QString bars = u"XMP-lr:HierarchicalSubject"_s;
        const QString slashes = u"XMP-digiKam:TagsList"_s;
        QTest::newRow("bars") << bars << u"Places|France|Paris"_s << u"Places|France|Paris"_s
                              << u"Places|France|Paris"_s;
        QTest::newRow("slashes") << slashes << u"Places/France"_s << u"Places|France"_s << u"Places/France"_s;
        QTest::newRow("loose") << bars << u"| Places |\nFrance|"_s << u"Places|France"_s << u"Places|France"_s;
        QTest::newRow("a slash in an element") << bars << u"Bands|AC/DC"_s << u"Bands|AC/DC"_s << u"Bands|AC/DC"_s;
        QTest::newRow("a bar in an element") << slashes << u"a|b/c"_s << QString() << QString();
        QTest::newRow("nothing") << slashes << u" / "_s << QString() << QString();
    }
    void comesInEachForm()
    {
        QFETCH(QString, tag);
        QFETCH(QString, item);
        const auto& homes = KeywordPath::homes();
        const auto home =
            std::find_if(homes.cbegin(), homes.cend(), [&](const KeywordPath::Home& one) { return one.tag == tag; });
        QVERIFY(home != homes.cend());
        const QString path = KeywordPath::fromStored(*home, item);
        QTEST(path, "path");
        QTEST(KeywordPath::stored(*home, path).value_or(QString()), "stored");
    }

    void isNotStoredWhereItsSeparatorIsALetter()
    {
        for (const auto& home : KeywordPath::homes())
            QCOMPARE(KeywordPath::stored(home, u"Bands|AC/DC"_s).has_value(), home.separator == u'|');
    }

    void isInATree_data()
    {
        QTest::addColumn<QString>("tree");
        QTest::addColumn<QStringList>("paths");
        QTest::newRow("assigned ones")
            << uR"(<Categories><Category Assigned="0">Places<Category Assigned="1">France</Category></Category>)"
               uR"(<Category Assigned="1">A &amp; B</Category></Categories>)"_s
            << QStringList{ u"Places|France"_s, u"A & B"_s };
        QTest::newRow("in lines") << u"<Categories>\n <Category Assigned=\"1\">Places\n  <Category Assigned=\"1\">"
                                     "France\n  </Category>\n </Category>\n</Categories>"_s
                                  << QStringList{ u"Places|France"_s, u"Places"_s };
        QTest::newRow("a bar in an element")
            << uR"(<Categories><Category Assigned="1">a|b</Category></Categories>)"_s << QStringList();
        QTest::newRow("broken off") << uR"(<Categories><Category Assigned="1">a</Category><Category Assi)"_s
                                    << QStringList{ u"a"_s };
        QTest::newRow("no tree") << u"plain"_s << QStringList();
    }
    void isInATree()
    {
        QFETCH(QString, tree);
        QTEST(KeywordPath::inTree(tree), "paths");
    }

    void isTakenApart()
    {
        QCOMPARE(KeywordPath::keyword(u"Places|France|Paris"_s), u"Paris"_s);
        QCOMPARE(KeywordPath::parents(u"Places|France|Paris"_s), u"Places|France"_s);
        QCOMPARE(KeywordPath::keyword(u"Paris"_s), u"Paris"_s);
        QCOMPARE(KeywordPath::parents(u"Paris"_s), QString());
        QCOMPARE(KeywordPath::shown(u"Places|Paris"_s), u"Places ▸ Paris"_s);
    }
};

QTEST_GUILESS_MAIN(tst_KeywordPath)
#include "tst_KeywordPath.moc"
