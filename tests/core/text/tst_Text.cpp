#include "core/text/Text.h"
#include "tests/support/Rows.h"

#include <QLocale>
#include <QRegularExpression>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace Quorbel;
using namespace Qt::StringLiterals;

class tst_Text : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void trimming()
    {
        QCOMPARE(Text::trimmed(u"\t\u00a0\u3000 a b \u2003"_s), u"a b"_s);
        QCOMPARE(Text::trimmed(u" \n a \n "_s), u"\n a \n"_s);
        QCOMPARE(Text::trimmed(u" \t "_s), QString());
        QCOMPARE(Text::trimmedWithNewlines(u" \r\n\u2028a\n "_s), u"a"_s);
    }

    void naturalOrder()
    {
        const QStringList expected = u"a9.jpg A10.jpg b.jpg émile.jpg Zoë.jpg"_s.split(u' ');
        QStringList names = u"Zoë.jpg A10.jpg émile.jpg a9.jpg b.jpg"_s.split(u' ');
        std::sort(names.begin(), names.end(),
            [](const QString& a, const QString& b) { return Text::naturalCompare(a, b) < 0; });
        QCOMPARE(names, expected);
        std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
            return Text::naturalSortKey(a).compare(Text::naturalSortKey(b)) > 0;
        });
        QCOMPARE(names, QStringList(expected.crbegin(), expected.crend()));
        QCOMPARE(Text::naturalCompare(u"IMG_2.JPG"_s, u"img_2.jpg"_s), 0);
    }

    // The Swedish alphabet ends in å, ä, ö. A thread of its own, because each one reads the locale once.
    void naturalOrderIsTheUsers()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::Swedish, QLocale::Sweden));
        int swedish = 0;
        const std::unique_ptr<QThread> thread(
            QThread::create([&swedish] { swedish = Text::naturalCompare(u"öl"_s, u"zoo"_s); }));
        thread->start();
        thread->wait();
        QLocale::setDefault(before);
        QVERIFY(swedish > 0);
        QVERIFY(Text::naturalCompare(u"öl"_s, u"zoo"_s) < 0);
    }

    void folding_data()
    {
        Test::addRows({ { u"Zürich, Việt Nam"_s, u"Zurich, Viet Nam"_s }, { u"Cafe\u0301"_s, u"Cafe"_s },
            { u"ø ß ł"_s, u"ø ß ł"_s }, { u"서울"_s, u"서울"_s }, { u"\U0001F4F7é"_s, u"\U0001F4F7e"_s } });
    }
    void folding()
    {
        QFETCH(QString, text);
        QTEST(Text::foldingDiacritics(text), "expected");
    }

    // Numbers are shown in shortest form, which has a table of its own in passing.
    void doubles_data()
    {
        Test::addRows({ { u"48.8584"_s, u"48.8584"_s }, { u"+.5"_s, u"0.5"_s }, { u"-1.5e2"_s, u"-150"_s },
            { u"0"_s, u"0"_s }, { u"-inf"_s, u"-inf"_s }, { u"nan"_s, u"nan"_s }, { u"1e-4"_s, u"0.0001"_s },
            { u"0.00000015"_s, u"1.5e-07"_s }, { u"0.30000000000000004"_s, u"0.30000000000000004"_s },
            { u"-123456789012345.5"_s, u"-123456789012345.5"_s }, { u"1000000000000000"_s, u"1e+15"_s } });
        Test::addRows({ u""_s, u"+"_s, u"+-1"_s, u"++1"_s, u" 1"_s, u"1 "_s, u"1e"_s, u"0x10"_s, u"1,5"_s, u"1.5.2"_s,
                          u"٣"_s, u"1e999"_s, u"five"_s },
            u"refused"_s);
    }
    void doubles()
    {
        QFETCH(QString, text);
        const std::optional<double> number = Text::parseDouble(text);
        QTEST(number ? Text::shortestForm(*number) : u"refused"_s, "expected");
    }

    void integers_data()
    {
        Test::addRows({ { u"+4032"_s, u"4032"_s }, { u"-9223372036854775808"_s, u"-9223372036854775808"_s } });
        Test::addRows(
            { u"9223372036854775808"_s, u""_s, u"-"_s, u"+-3"_s, u"12.0"_s, u"1 "_s, u"0x1"_s }, u"refused"_s);
    }
    void integers()
    {
        QFETCH(QString, text);
        const std::optional<qint64> number = Text::parseInteger(text);
        QTEST(number ? QString::number(*number) : u"refused"_s, "expected");
    }
};

QTEST_GUILESS_MAIN(tst_Text)
#include "tst_Text.moc"
