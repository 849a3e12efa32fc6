// The texts of the program: plural forms, languages that there are, and which one is spoken.
#include "core/language/Languages.h"
#include "core/language/Texts.h"

#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

// Knows one text, and says under which context and meaning it was asked for.
class OneText final : public QTranslator {
public:
    QString translate(const char* context, const char* text, const char* meaning, int count) const override
    {
        if (QByteArrayView(text) != "Keywords")
            return {};
        return u"%1/%2/%3"_s.arg(QString::fromUtf8(context), QString::fromUtf8(meaning)).arg(count);
    }
    bool isEmpty() const override { return false; }
};

}  // namespace

class tst_Texts : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { Texts::use(nullptr); }
    void englishCounts_data();
    void englishCounts();
    void anotherLanguage();
    void withinSentences();
    void valuesKeepTheirOrder();
    void languageToSpeak_data();
    void languageToSpeak();
    void filesOfLanguages();
};

void tst_Texts::englishCounts_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("told");
    QTest::newRow("none") << 0 << u"0 photos (raw) are read-only, %1"_s;
    QTest::newRow("one") << 1 << u"1 photo (raw) is read-only, %1"_s;
    QTest::newRow("several") << 12345 << u"12345 photos (raw) are read-only, %1"_s;
    QTest::newRow("no count") << -1 << u"%n photo(s) (raw) (is|are) read-only, %1"_s;
}

void tst_Texts::englishCounts()
{
    QFETCH(int, count);
    QTEST(Texts::tr("%n photo(s) (raw) (is|are) read-only, %1", nullptr, count), "told");
}

void tst_Texts::anotherLanguage()
{
    QCOMPARE(Texts::shown(u"Keywords"_s), u"Keywords"_s);
    Texts::use(std::make_shared<OneText>());
    QCOMPARE(Texts::tr("Keywords", "of a photo"), u"Quorbel::Texts/of a photo/-1"_s);
    QCOMPARE(Texts::shown(u"Keywords"_s), u"Quorbel::Texts//-1"_s);
    QCOMPARE(Texts::mark("Keywords"), u"Keywords"_s);
    // What nobody translated stays English, with the count's own form.
    QCOMPARE(Texts::tr("%n edit(s)", nullptr, 1), u"1 edit"_s);
    QCOMPARE(Texts::shown(u"My own field"_s), u"My own field"_s);
}

void tst_Texts::withinSentences()
{
    QCOMPARE(Texts::inSentence(u"Keywords"_s), u"keywords"_s);
    QCOMPARE(Texts::continued(u"It is not TIFF"_s), u"it is not TIFF"_s);
    QCOMPARE(Texts::continued(u"XMP format error"_s), u"XMP format error"_s);
    Texts::use(std::make_shared<OneText>());
    QCOMPARE(Texts::inSentence(u"Keywords"_s), u"Quorbel::Texts//-1"_s);
    QCOMPARE(Texts::inSentence(u"Artist"_s), u"Artist"_s);
    QCOMPARE(Texts::continued(u"Es fehlt"_s), u"Es fehlt"_s);
}

// Else “0002.jpg” would stand as “jpg.0002” in a sentence that runs from right to left.
void tst_Texts::valuesKeepTheirOrder()
{
    const QString value = u"\u2068%1\u2069"_s;
    for (const QString& code : { u"ar"_s, u"de"_s }) {
        auto language = std::make_shared<QTranslator>();
        QVERIFY(language->load(
            u"quorbel_%1.qm"_s.arg(code), qEnvironmentVariable("QUORBEL_TEST_SHARE") + u"/translations"_s));
        Texts::use(language);
        const QString text = Texts::tr("“%1” could no longer be found.");
        QVERIFY(text.contains(u"%1") && text != u"“%1” could no longer be found.");
        QCOMPARE(text.contains(value), code == u"ar");
    }
}

void tst_Texts::languageToSpeak_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QStringList>("desktop");
    QTest::addColumn<QString>("spoken");
    QTest::newRow("the choice, over the desktop's") << u"ja"_s << QStringList{ u"de-CH"_s } << u"ja"_s;
    QTest::newRow("English, over the desktop's") << u"en"_s << QStringList{ u"de-CH"_s } << u"en"_s;
    QTest::newRow("another country") << QString() << QStringList{ u"de-CH"_s, u"de"_s } << u"de"_s;
    QTest::newRow("the second of the desktop's") << QString() << QStringList{ u"rm-CH"_s, u"fr-CH"_s } << u"fr"_s;
    QTest::newRow("English before others") << QString() << QStringList{ u"en-GB"_s, u"de"_s } << u"en"_s;
    QTest::newRow("simplified Chinese") << QString() << QStringList{ u"zh-Hans-SG"_s } << u"zh_CN"_s;
    QTest::newRow("traditional Chinese is another") << QString() << QStringList{ u"zh-Hant-TW"_s } << u"en"_s;
    QTest::newRow("none of them") << QString() << QStringList{ u"pl-PL"_s } << u"en"_s;
    QTest::newRow("no language") << QString() << QStringList{ u"C"_s } << u"en"_s;
    QTest::newRow("a choice that went") << u"xx"_s << QStringList{ u"ar-EG"_s } << u"ar"_s;
}

void tst_Texts::languageToSpeak()
{
    QFETCH(QString, choice);
    QFETCH(QStringList, desktop);
    const QStringList there{ u"en"_s, u"ar"_s, u"de"_s, u"fr"_s, u"ja"_s, u"zh_CN"_s };
    QTEST(Languages::wanted(choice, desktop, there), "spoken");
}

void tst_Texts::filesOfLanguages()
{
    const QTemporaryDir folder;
    QFile broken(folder.filePath(u"quorbel_xx.qm"_s));
    QVERIFY(broken.open(QFile::WriteOnly));
    broken.write("no translation");
    broken.close();
    const QList<Languages::Language> found = Languages::in(folder.path());
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.constFirst().code, u"en"_s);
    QVERIFY(!Languages::use(u"xx"_s, folder.path()));
    QVERIFY(!Languages::use(u"yy"_s, folder.path()));
    QVERIFY(Languages::use(u"en"_s, folder.path()));
}

QTEST_APPLESS_MAIN(tst_Texts)
#include "tst_Texts.moc"
