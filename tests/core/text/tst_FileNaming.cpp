// File names, and texts with tokens in them.
#include "core/text/FileNaming.h"

#include "core/save/Edits.h"
#include "core/schema/FieldSchema.h"
#include "core/tokens/DateForm.h"
#include "core/tokens/TokenText.h"

#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

ImageRecord lake()
{
    return { .url = QUrl::fromLocalFile(u"/p/IMG_4021.final.jpg"_s),
        .fileName = u"IMG_4021.final.jpg"_s,
        .values = { { u"date"_s, u"2024-10-02 14:05"_s }, { u"title"_s, u" Lake %Creator%\n"_s },
            { u"dateDigitized"_s, u"2024-11"_s }, { u"event"_s, u"  "_s } },
        .lists = { { u"people"_s, { u"Ana"_s, u"Bo"_s } } },
        .camera = { { u"Focal length"_s, u"50.0 mm"_s } } };
}

// The text for the lake, as the third photo.
RenderedText forLake(const QString& pattern)
{
    PhotoTokens photo = PhotoTokens::of(lake());
    photo.position = 2;
    return TokenText::parse(pattern).render(photo);
}

}  // namespace

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

    void tokensInTexts_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("missing");
        const auto row = [](const char* rowName, const QString& pattern, const QString& text,
                             const QStringList& missing = {}) { QTest::newRow(rowName) << pattern << text << missing; };
        row("as in renaming", u"%Date%_%Time%_%Original%"_s, u"2024-10-02_1405_IMG_4021.final"_s);
        row("side by side", u"%Date%%Time%"_s, u"2024-10-021405"_s);
        row("a value is not looked through", u"%Title%!"_s, u"Lake %Creator%!"_s);
        row("forms of a date", u"%Date:d MMMM yyyy%, %time:h:mm ap%"_s, u"2 October 2024, 2:05 pm"_s);
        row("less than the form asks for", u"%DateDigitized:MMM yyyy% %DateDigitized:d MMM|soon%"_s,
            u"Nov 2024 soon"_s);
        row("missing", u"%Place% %Event%, %Place%"_s, u" , "_s, { u"Place"_s, u"Event"_s });
        row("defaults", u"%Place|Zürich|See%%Creator|%."_s, u"Zürich|See."_s);
        row("lists, and case", u"%People:UPPER% %FILENAME:lower%"_s, u"ANA, BO img_4021.final.jpg"_s);
        row("what the camera noted", u"%FocalLength%"_s, u"50.0 mm"_s);
        row("counters", u"%Counter%, %Counter:008%, %Counter:10+5%"_s, u"3, 010, 20"_s);
        row("an odd form is passed over", u"%Counter:x% %Original:x%"_s, u"3 IMG_4021.final"_s);
        row("percent signs", u"%%Date%% 50% of 100%"_s, u"%Date% 50% of 100%"_s);
        row("before a token", u"50%%%Counter%, 5%Counter%"_s, u"50%3, 53"_s);
        row("no token", u"%Foo%, %%, % Date%, %Date"_s, u"%Foo%, %, % Date%, %Date"_s);
        row("nothing", {}, {});
    }
    // And back: a text that is taken apart and put together says the same.
    void tokensInTexts()
    {
        QFETCH(QString, pattern);
        QTEST(forLake(pattern).text(), "text");
        QTEST(forLake(pattern).missing(), "missing");
        const TokenText text = TokenText::parse(pattern);
        QCOMPARE(TokenText::parse(text.pattern()).pieces, text.pieces);
    }

    void unknownTokensAreNamed()
    {
        QCOMPARE(TokenText::parse(u"%Foo% %Title% %bar:x|y% 5% or 6%"_s).unknown, QStringList({ u"Foo"_s, u"bar"_s }));
    }

    // Every piece keeps its place, so that a view can mark the gap; what is done to values is not done to the text.
    void piecesOfARenderedText()
    {
        using Kind = RenderedPiece::Kind;
        const auto text = TokenText::parse(u"a b_%Place%_%Creator|no one%"_s);
        const RenderedText rendered =
            text.render(PhotoTokens::of(lake()), [](QString value) { return value.replace(u' ', u'-'); });
        const QList<RenderedPiece> pieces{ { Kind::text, u"a b_"_s, {} }, { Kind::missing, {}, u"Place"_s },
            { Kind::text, u"_"_s, {} }, { Kind::otherwise, u"no-one"_s, u"Creator"_s } };
        QCOMPARE(rendered.pieces, pieces);
        QCOMPARE(rendered.withoutValue(), QStringList({ u"Place"_s, u"Creator"_s }));
    }

    void editsLieOverTheSavedValues()
    {
        Edits edits{ .scalars = { { u"title"_s, {} }, { u"place"_s, u"Thun"_s } } };
        edits.addItems(u"people"_s, { u"Cy"_s });
        edits.own[lake().url].scalars.insert(u"place"_s, u"Bern"_s);
        const PhotoTokens tokens = PhotoTokens::of(lake(), edits);
        QCOMPARE(
            TokenText::parse(u"%Title|none% %Place% %People%"_s).render(tokens).text(), u"none Bern Ana, Bo, Cy"_s);
    }

    void datesOfAnyPrecision_data()
    {
        QTest::addColumn<QString>("held");
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* rowName, const QString& held, const QString& form, const QString& text) {
            QTest::newRow(rowName) << held << form << text;
        };
        row("the day's name", u"2024:02:29 00:07:09"_s, u"dddd ddd dd.MM.yy H:m:s"_s, u"Thursday Thu 29.02.24 0:7:9"_s);
        row("fraction and offset", u"2024-02-29T23:07:09.123+02:00"_s, u"yyyyMMdd HHmmss"_s, u"20240229 230709"_s);
        row("midnight and noon", u"2024-02-29 00:07"_s, u"hh AP"_s, u"12 AM"_s);
        row("words stay", u"2024-05-06"_s, u"d. MMMM 'my' Sunday"_s, u"6. May my Sunday"_s);
        row("a year", u"2024"_s, u"© yyyy"_s, u"© 2024"_s);
        row("a month cut short", u"2016-02-"_s, u"MMMM yyyy"_s, u"February 2016"_s);
        row("no day in it", u"2016-02"_s, u"d MMMM"_s, u"-"_s);
        row("no time in it", u"2016-02-03"_s, u"HH:mm"_s, u"-"_s);
        row("no such day", u"2023-02-29"_s, u"yyyy"_s, u"-"_s);
        row("no such month", u"2023-13"_s, u"yyyy"_s, u"-"_s);
        row("no date", u"last summer"_s, u"yyyy"_s, u"-"_s);
        row("blanks with colons", u"    :  :     "_s, u"yyyy"_s, u"-"_s);
    }
    void datesOfAnyPrecision()
    {
        QFETCH(QString, held);
        QFETCH(QString, form);
        const std::optional<PhotoDate> date = PhotoDate::parse(held);
        QTEST(date ? DateForm::apply(form, *date).value_or(u"-"_s) : u"-"_s, "text");
    }

    void counterForms_data()
    {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("again");
        QTest::addColumn<QString>("hundredth");
        QTest::newRow("from 1") << u"1"_s << QString() << u"100"_s;
        QTest::newRow("digits") << u"0001"_s << u"0001"_s << u"0100"_s;
        QTest::newRow("step") << u" 05 + 10 "_s << u"05+10"_s << u"995"_s;
        QTest::newRow("none") << u"1-4"_s << u"-"_s << u"-"_s;
        QTest::newRow("too long") << u"0000000000001"_s << u"-"_s << u"-"_s;
    }
    void counterForms()
    {
        QFETCH(QString, form);
        const std::optional<CounterForm> counter = CounterForm::parse(form);
        QTEST(counter ? counter->text() : u"-"_s, "again");
        QTEST(counter ? counter->number(99) : u"-"_s, "hundredth");
    }

    // Each field and each row of the camera has one, under a name that a text can hold.
    void theCatalogIsWhole()
    {
        static const QRegularExpression name(u"^[A-Za-z][A-Za-z0-9]*$"_s);
        QSet<QString> names;
        for (const TokenSpec& token : TokenCatalog::all()) {
            QVERIFY2(name.match(token.name).hasMatch(), qPrintable(token.name));
            QVERIFY2(!names.contains(token.name.toLower()), qPrintable(token.name));
            names.insert(token.name.toLower());
        }
        for (const FieldSpec& field : FieldSchema::all())
            QVERIFY2(TokenCatalog::ofField(field.id), qPrintable(field.id));
        QCOMPARE(names.size(), FieldSchema::all().size() + FieldSchema::cameraRows().size() - 1 + 4);
        for (qsizetype i = 0; i < FileNaming::tokens().size(); ++i)
            QCOMPARE(u'%' + TokenCatalog::all().at(i).name + u'%', FileNaming::tokens().at(i).placeholder);
    }
};

QTEST_GUILESS_MAIN(tst_FileNaming)
#include "tst_FileNaming.moc"
