// The whole window in a language that nobody speaks: every letter of the program's own texts has an accent, and each
// text is longer. A text that still has plain letters was never given to translation; one that is cut off would be cut
// off in a real language, too.
#include "core/language/Texts.h"
#include "tests/ui/window/WindowFixture.h"
#include "tests/ui/window/WindowWalk.h"

#include <QAccessible>
#include <QAction>
#include <QRegularExpression>
#include <QTranslator>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

QString accented(const QString& text)
{
    static const QString plain = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"_s;
    static const QString marked = u"ÀƁČĎÉƑĜĤÍĴĶĹṀÑÓṔɊŔŠŤÚṼŴẊÝŽàƀčďéƒĝĥíĵķĺṁñóṕɋŕšťúṽŵẋýž"_s;
    QString result;
    for (const QChar letter : text) {
        const qsizetype at = plain.indexOf(letter);
        result += at < 0 ? letter : marked.at(at);
    }
    return result;
}

// Leaves what is no words: placeholders, tokens, tags of rich text.
class PseudoLanguage final : public QTranslator {
public:
    QString translate(const char*, const char* text, const char*, int) const override
    {
        static const QRegularExpression kept(u"%[0-9n]|%[A-Za-z]+%|<[^>]+>|\\([^()|]*\\|[^()|]*\\)|\\(s\\)"_s);
        const QString english = QString::fromUtf8(text);
        QString result;
        qsizetype end = 0;
        for (const auto& match : kept.globalMatch(english)) {
            result += accented(english.sliced(end, match.capturedStart() - end));
            result += match.captured().startsWith(u'(') ? QString() : match.captured();
            end = match.capturedEnd();
        }
        return result + accented(english.sliced(end));
    }
    bool isEmpty() const override { return false; }
};

// What the photos and the walk's own edits say, and the form in which positions are typed.
const QStringList& wordsOfPhotos()
{
    static const QStringList texts{ u"Mara Lindqvist · Zürich"_s,
        u"(c) Mara Lindqvist 9x13, all rights reserved. Prints on request."_s, u"Evening by the lake"_s,
        u"Abend am 1x1 See"_s, u"Soir au bord du lac"_s, u"© 2024 Mara Lindqvist"_s, u"Last 5x7 light"_s,
        u"4x4 light"_s, u"Mara"_s, u"Other"_s, u"Zürich"_s, u"OLYMPUS E-M5MarkIII"_s, u"M.12-40mm F2.8"_s,
        u"A 6x6 of still water after a clear October day, looking south from the bank."_s, u"3x3, lake"_s,
        u"lake, 13x18, 9x9"_s, u"lake"_s, u"sailing"_s, u"Race 1 off Zürich"_s, u"Race "_s, u" off "_s, u"off"_s,
        u"lat, lon"_s, u"Regatta, race day"_s, u"Alps / 2x2 Lake"_s, u"Zoo"_s, u"Pass"_s, u"First"_s, u"Two"_s,
        u"second"_s, u"third"_s, u"fourth"_s, u"fifth"_s, u"Uncalibrated"_s, u"Zürich · Alps"_s, u"Zürich, Alps"_s,
        u"Alps / Pass"_s, u"Alps"_s, u"CH"_s, u"Paradeplatz, Switzerland"_s, WindowWalk::message(),
        u"Replace the file?"_s, u"Keep both"_s, u"Replace"_s, u"Cancel"_s };
    return texts;
}

// What is not the program's: the photos' own words, names of files, tags, codes, keys and units.
bool isForeign(const QString& text)
{
    static const QRegularExpression plain(u"[A-Za-z]{2,}"_s);
    static const QRegularExpression foreign(
        u"([A-Za-z]+-)?[A-Za-z]+:[A-Za-z:-]+|[\\w/"
        u"~.<>-]*\\.(jpg|xmp|CR3|tsv|json)|https?:\\S*|tst_\\w+-\\w+|EXIF|IPTC|XMP|GPS|ISO|JPEG|"
        "YYYY-MM-DD|HH:MM(:SS)?|ExifTool|Quorbel|[KMGĶṀĜ][BƁ]|mm|%[A-Za-z|ü]+%|<name>|\\b(de|fr)\\b|"
        "\\b(Ctrl|Alt|Shift|Tab|Esc|Del|Return|Left|Right|Up|Down|Home|End|PgUp|PgDown|Space|Backspace)\\b"_s);
    QString rest = text.trimmed();
    rest.remove(u'“').remove(u'”');
    for (const QString& known : wordsOfPhotos()) {
        if (rest.size() > 3 && known.contains(rest))
            return true;
        rest.remove(known);
    }
    return !rest.remove(foreign).contains(plain);
}

// What a screen reader is told, and what it should be told and is not.
struct Told {
    QStringList texts{};
    QStringList faults{};
};

void listen(QAccessibleInterface* from, Told& told)
{
    if (from->state().invisible)
        return;
    for (const QAccessible::Text kind :
        { QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help })
        told.texts << from->text(kind);
    if (const QAccessibleTextInterface* text = from->textInterface())
        told.texts << text->text(0, text->characterCount());
    const QString name = from->text(QAccessible::Name);
    const QString kind = QString::fromLatin1(from->object() ? from->object()->metaObject()->className() : "part");
    if (!name.isEmpty() && from->text(QAccessible::Description) == name)
        told.faults << u"%1 “%2” says its name twice"_s.arg(kind, name);
    if (from->role() == QAccessible::StaticText && name.isEmpty())
        told.faults << kind + u" says nothing"_s;
    if (from->state().focusable) {
        if (name.isEmpty())
            told.faults << kind + u" has no name"_s;
        if (from->role() == QAccessible::NoRole || from->role() == QAccessible::Client)
            told.faults << u"%1 “%2” has no role"_s.arg(kind, name);
        if (from->role() == QAccessible::ComboBox && !from->textInterface() && from->text(QAccessible::Value).isEmpty())
            told.faults << u"%1 “%2” does not tell its value"_s.arg(kind, name);
    }
    for (int i = 0; i < from->childCount(); ++i)
        if (QAccessibleInterface* part = from->child(i))
            listen(part, told);
}

// All that a widget says without drawing it.
Told spoken(QWidget* root)
{
    Told told;
    listen(QAccessible::queryAccessibleInterface(root), told);
    QList<const QWidget*> all{ root };
    for (const QWidget* child : root->findChildren<QWidget*>())
        if (child->isVisibleTo(root))
            all.append(child);
    for (const QWidget* widget : all) {
        told.texts << widget->toolTip();
        for (const QAction* action : widget->actions())
            told.texts << action->text() << action->toolTip();
        if (const auto* field = qobject_cast<const QBTextField*>(widget))
            told.texts << field->placeholder();
    }
    return told;
}

}  // namespace

class tst_PseudoLanguage : public QObject {
    Q_OBJECT

private slots:
    void everyTextIsTranslated();
};

void tst_PseudoLanguage::everyTextIsTranslated()
{
    Texts::use(std::make_shared<PseudoLanguage>());
    WalkedPhotos photos;
    QVERIFY(photos.open());
    WindowWalk walk(photos, { 1600, 1000 });
    QMap<QString, QString> plain;  // and a screen that each is seen on
    int seen = 0;
    const auto look = [&](const QString& screen, const QString& text) {
        ++seen;
        if (!isForeign(text))
            plain.insert(text, screen);
    };
    QMap<QString, QString> faults;
    const Scenes scenes = walk.scenes([&](const QString& screen, QWidget* shown) {
        const Told told = spoken(shown);
        for (const QString& text : told.texts)
            look(screen, text);
        for (const QString& fault : told.faults)
            faults.insert(fault, screen);
    });
    for (auto scene = scenes.cbegin(); scene != scenes.cend(); ++scene)
        for (const QString& text : scene->texts)
            look(scene.key(), text);
    for (const QMap<QString, QString>& list : { plain, faults })
        for (auto text = list.cbegin(); text != list.cend(); ++text)
            qInfo().noquote() << text.value() + u": "_s + text.key();
    QVERIFY(seen > 3000);
    QCOMPARE(plain.size(), 0);
    QCOMPARE(faults.size(), 0);
}

int main(int argc, char* argv[])
{
    return runOnLargeScreen<tst_PseudoLanguage>(argc, argv);
}
#include "tst_PseudoLanguage.moc"
