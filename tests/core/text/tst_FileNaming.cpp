#include "core/text/FileNaming.h"

#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

class tst_FileNaming : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void rendering_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("name");
        const QString date = u"2024-05-06"_s;
        const auto row = [](const char* rowName, const QString& pattern, const QString& title, const QString& value,
                             const QString& name) { QTest::newRow(rowName) << pattern << title << value << name; };
        row("two values", u"%Date%_%Title%"_s, u"Sunset"_s, date, u"2024-05-06_Sunset"_s);
        row("one empty", u"%Date%_%Title%"_s, QString(), date, u"2024-05-06"_s);
        row("empty in between", u"%Date%_%Title%_x"_s, QString(), date, u"2024-05-06_x"_s);
        row("all empty", u"%Date%_%Title%. "_s, QString(), QString(), u"untitled"_s);
        row("no placeholder", u" -my___photo:1.-"_s, QString(), QString(), u"my_photo:1"_s);
        row("unknown, and wrong case", u"%Foo%%title%"_s, u"a"_s, QString(), u"%Foo%%title%"_s);
        row("every occurrence", u"%Title%+%Title%"_s, u"a"_s, QString(), u"a+a"_s);
        row("a later token in a value", u"%Date%"_s, u"a"_s, u"%Title%"_s, u"a"_s);
        row("an earlier token in a value", u"%Title%"_s, u"%Date%"_s, date, u"%Date%"_s);
    }
    void rendering()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, title);
        QFETCH(QString, date);
        QTEST(FileNaming::render(pattern, { { u"%Title%"_s, title }, { u"%Date%"_s, date } }, false), "name");
    }

    void everyTokenIsFilled()
    {
        QMap<QString, QString> values;
        QString pattern;
        for (const FileNaming::Token& token : FileNaming::tokens()) {
            values.insert(token.placeholder, u"ö"_s);
            pattern += token.placeholder;
        }
        QCOMPARE(FileNaming::render(pattern, values, false), u"öööööö"_s);
        QCOMPARE(FileNaming::render(pattern, values, true), u"oooooo"_s);
    }

    void components_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("relaxed");
        QTest::addColumn<QString>("strict");
        const auto row = [](const char* rowName, const QString& value, const QString& relaxed, const QString& strict) {
            QTest::newRow(rowName) << value << relaxed << strict;
        };
        row("accents, runs of blanks", u"\n Lake  Zürich: sunset! "_s, u"Lake-Zürich-sunset!"_s,
            u"Lake-Zurich-sunset"_s);
        row("forbidden", u"a/b\\c:d*e?f\"g<h>i|j"_s, u"abcdefghij"_s, u"abcdefghij"_s);
        row("symbols alone", u"(!)"_s, u"(!)"_s, QString());
        row("ends are kept, or not", u"-a:-"_s, u"-a-"_s, u"a"_s);
        row("underscores", u"a__b - c"_s, u"a__b---c"_s, u"a__b-c"_s);
        row("other scripts", u"東京 2024 Øre"_s, u"東京-2024-Øre"_s, u"2024-re"_s);
        row("unusual blanks", u"a\u3000\u2003b"_s, u"a-b"_s, u"a-b"_s);
        row("controls", u"a\tb\u0001\u202ec"_s, u"abc"_s, u"a-bc"_s);
        row("emoji", u"a\U0001F4F7b"_s, u"a\U0001F4F7b"_s, u"ab"_s);
        row("key cap goes whole", u"No 1\ufe0f\u20e3"_s, u"No-1\ufe0f\u20e3"_s, u"No"_s);
        row("decomposed", u"Cafe\u0301"_s, u"Cafe\u0301"_s, u"Cafe"_s);
    }
    void components()
    {
        QFETCH(QString, value);
        QTEST(FileNaming::sanitizeComponent(value, false), "relaxed");
        QTEST(FileNaming::sanitizeComponent(value, true), "strict");
    }

    void freeNames()
    {
        QStringList taken;
        const auto isTaken = [&taken](const QString& name) { return taken.contains(name); };
        QCOMPARE(FileNaming::uniqueFileName(u"photo"_s, u"jpg"_s, isTaken), u"photo.jpg"_s);
        taken = { u"photo"_s, u"photo.jpg"_s, u"photo-2.jpg"_s };
        QCOMPARE(FileNaming::uniqueFileName(u"photo"_s, u"jpg"_s, isTaken), u"photo-3.jpg"_s);
        QCOMPARE(FileNaming::uniqueFileName(u"photo"_s, QString(), isTaken), u"photo-2"_s);
    }
};

QTEST_GUILESS_MAIN(tst_FileNaming)
#include "tst_FileNaming.moc"
