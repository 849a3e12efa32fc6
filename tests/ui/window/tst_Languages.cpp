// The whole window in one of the languages that the program comes with: nothing is cut off, shortened or covered, at
// the sizes of text that desktops offer. QUORBEL_TEST_LANGUAGE says which: a language holds for a whole run, so each
// has a run of its own.
#include "core/iptc/VocabularyTexts.h"
#include "core/language/Languages.h"
#include "core/language/Texts.h"
#include "tests/ui/window/WindowFixture.h"
#include "tests/ui/window/WindowWalk.h"

#include <QFontDatabase>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// Of the language's file, and notes the ends "…" that belong to texts.
class NotingTranslator final : public QTranslator {
public:
    QString translate(const char* context, const char* text, const char* meaning, int count) const override
    {
        const QString result = QTranslator::translate(context, text, meaning, count);
        // What was translated already may be asked for again.
        if (result.isEmpty() && !told.contains(QString::fromUtf8(text)))
            missing.insert(QString::fromUtf8(text));
        told.insert(result);
        for (qsizetype at = result.indexOf(u'…'); at >= 0; at = result.indexOf(u'…', at + 1))
            ends.insert(endAt(result, at));
        return result;
    }

    // The letters in front of it tell a text from one that was shortened, without the numbers that were put in.
    static QString endAt(const QString& text, qsizetype at)
    {
        // Nor the marks that set values apart, which may come with a "…" of another font.
        static const QRegularExpression numbers(u"[%0-9\u2066-\u2069]"_s);
        const QString before = text.first(at).remove(numbers);
        return before.last(std::min<qsizetype>(before.size(), 6));
    }

    mutable QSet<QString> told;
    mutable QSet<QString> ends;
    mutable QSet<QString> missing;
};

// English ones are shortened there too, and say all in a tool tip: the notes in the list of fields that can be added.
// Of empty fields in a batch the line below says more.
bool mayBeShort(const QString& screen, const QString& text)
{
    static const QString several = Texts::tr("Multiple values — leave unchanged");
    // Terms are as long as their vocabularies made them; the picker of one says all of it.
    static const QStringList terms = VocabularyTexts::all();
    const auto begins = [&](const QString& term) { return Texts::shown(term).startsWith(text.chopped(1)); };
    return screen == u"add a field" || several.startsWith(text.chopped(1))
        || std::any_of(terms.cbegin(), terms.cend(), begins);
}

// Boxes in place of letters have other widths.
bool hasLetters(const QString& code)
{
    static const QMap<QString, QFontDatabase::WritingSystem> systems{ { u"ar"_s, QFontDatabase::Arabic },
        { u"ja"_s, QFontDatabase::Japanese }, { u"zh_CN"_s, QFontDatabase::SimplifiedChinese } };
    return !systems.contains(code) || !QFontDatabase::families(systems.value(code)).isEmpty();
}

QStringList shortened(const QString& screen, const LayoutAudit& scene, const NotingTranslator& texts)
{
    // Of no language.
    static const QSet<QString> ends{ u"A "_s, u" "_s, u"tps://"_s, u"://"_s };
    // Behind a word of another script a text goes on with less.
    const auto isEnd = [&](const QString& end) {
        const auto goesOn = [&](const QString& known) { return known.endsWith(end); };
        return texts.ends.contains(end) || ends.contains(end)
            || (end.front().unicode() >= 0x2e80 && std::any_of(texts.ends.cbegin(), texts.ends.cend(), goesOn));
    };
    QStringList found;
    for (const QString& text : scene.texts)
        // One that begins a text stands where the direction of writing changes.
        for (qsizetype at = text.indexOf(u'…', 1); at >= 0; at = text.indexOf(u'…', at + 1))
            if (const QString end = NotingTranslator::endAt(text, at);
                !end.isEmpty() && !isEnd(end) && !mayBeShort(screen, text))
                found.append(u"shortened: "_s + text);
    return found;
}

}  // namespace

class tst_Languages : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { failOnWarnings(); }
    void cleanup() { setTextSize(10); }
    void everyScreenFits_data();
    void everyScreenFits();

private:
    std::shared_ptr<NotingTranslator> m_texts = std::make_shared<NotingTranslator>();
    std::unique_ptr<WalkedPhotos> m_photos;
};

void tst_Languages::initTestCase()
{
    dropSizeHintMessages();
    const QString code = qEnvironmentVariable("QUORBEL_TEST_LANGUAGE", u"de"_s);
    if (!hasLetters(code))
        QSKIP("no font of this script is installed");
    const QString folder = qEnvironmentVariable("QUORBEL_TEST_SHARE") + u"/translations"_s;
    QVERIFY(m_texts->load(u"quorbel_%1.qm"_s.arg(code), folder));
    Texts::use(m_texts);
    QGuiApplication::setLayoutDirection(QLocale(code).textDirection());
    setTextSize(10);
    m_photos = std::make_unique<WalkedPhotos>();
    QVERIFY(m_photos->open());
}

void tst_Languages::everyScreenFits_data()
{
    QTest::addColumn<qreal>("points");
    QTest::addColumn<QSize>("window");
    const QList<qreal> sizes = isSlowRun() ? QList<qreal>{ 9, 11, 16, 20 } : QList<qreal>{ 11, 16 };
    for (const QSize size : { QSize(900, 600), QSize(1600, 1000) })
        for (const qreal points : sizes)
            if (isSlowRun() || (points > 11) == (size.width() > 1000))
                QTest::addRow("%g pt, %d wide", points, size.width()) << points << size;
}

void tst_Languages::everyScreenFits()
{
    QFETCH(qreal, points);
    QFETCH(QSize, window);
    setTextSize(points);
    WindowWalk walk(*m_photos, window);
    const Scenes seen = walk.scenes();
    QMap<QString, QString> faults;  // and a screen that each is seen on
    for (auto scene = seen.cbegin(); scene != seen.cend(); ++scene)
        for (const QString& fault : scene->faults + shortened(scene.key(), *scene, *m_texts))
            faults.insert(fault, scene.key());
    for (auto fault = faults.cbegin(); fault != faults.cend(); ++fault)
        qInfo().noquote() << fault.value() + u": "_s + fault.key();
    QCOMPARE(m_texts->missing, QSet<QString>());
    QCOMPARE(faults.size(), 0);
}

int main(int argc, char* argv[])
{
    return runOnLargeScreen<tst_Languages>(argc, argv);
}
#include "tst_Languages.moc"
