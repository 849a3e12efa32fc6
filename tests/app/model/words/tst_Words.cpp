// Words for other photos: fields that are copied and pasted, and codes that stand for texts.
#include "app/model/words/CodeReplacements.h"
#include "app/model/words/FieldPasting.h"
#include "tests/app/model/ModelFixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QMimeData>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

using Refusal = CopiedFields::Refusal;
using Texts = QMap<QString, QString>;
using Lists = QMap<QString, QStringList>;

constexpr int patience = 30'000;  // ms

const QString ours = u"application/x-quorbel-fields+json"_s;

CopiedFields someFields()
{
    const ExternalRefresh::Drafts shown{
        { { u"title"_s, u"Last light\n“on” the lake"_s }, { u"title@de"_s, u"Letztes Licht"_s },
            { u"rating"_s, u"4"_s }, { u"creator"_s, QString() } },
        { { u"keywords"_s, { u"lake"_s, u"Paris"_s } }, { u"people"_s, { u"Zoë"_s } } },
        { { u"Mood"_s, u"calm"_s } },
    };
    CopiedFields fields = CopiedFields::of(u"/p/IMG 1.jpg"_s, shown, { u"Places|Paris"_s, u"Animals|Cow"_s });
    fields.copiedAt = QDateTime(QDate(2026, 5, 9), QTime(17, 42));
    return fields;
}

QByteArray json(const QByteArray& fields, const QByteArray& more = {}, const QByteArray& version = "1")
{
    return R"({"format":"quorbel-fields","version":)" + version + R"(,"fields":{)" + fields + "}" + more + "}";
}

// A photo of this letter that holds this.
PasteSummary::Photo photo(const QString& letter, const Texts& values, const Lists& lists = {})
{
    return { { .url = QUrl::fromLocalFile(u"/p/"_s + letter), .values = values, .lists = lists }, PhotoDetails() };
}

// "Label: note" of each row of the sheet, an asterisk in front of those that are ticked.
QStringList told(const FieldPasting& pasting)
{
    QStringList lines;
    for (const FieldPasting::Row& row : pasting.rows())
        lines.append((row.isTicked ? u"*"_s : QString()) + row.label + u": "_s + row.note);
    return lines;
}

}  // namespace

class tst_Words : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase() { m_pair.reset(); }
    void fieldsAreText();
    void textsThatAreNoFields_data();
    void textsThatAreNoFields();
    void nonsenseIsLeftOut();
    void linesTellWhatIsLost_data();
    void linesTellWhatIsLost();
    void unsavedEditsCount();
    void fieldsAreCopiedAndPasted();
    void onePhotoKeepsWhatWasTyped();
    void lateLanguagesJoinTheCopy();
    void clipboardsWithoutFields_data();
    void clipboardsWithoutFields();
    void codeFiles_data();
    void codeFiles();
    void codesFollowTheirFile();

private:
    ModelFixture& pair();
    std::unique_ptr<ModelFixture> m_pair;
};

// Two photos, a with nothing but its title, for tests that leave no edits behind.
ModelFixture& tst_Words::pair()
{
    if (m_pair)
        return *m_pair;
    m_pair = std::make_unique<ModelFixture>();
    m_pair->addTitled(jpgs(u"ab"_s));
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Subject=old"_s, u"-IPTC:Keywords=old"_s, u"-XMP-dc:Subject=gone"_s,
        u"-IPTC:Keywords=gone"_s, m_pair->folder.path(u"b.jpg"_s) });
    if (!m_pair->open())
        qFatal("the photos could not be opened");
    return *m_pair;
}

void tst_Words::init()
{
    QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
    QGuiApplication::clipboard()->clear();
}

// --- The text of copied fields ---

void tst_Words::fieldsAreText()
{
    const CopiedFields fields = someFields();
    QCOMPARE(fields.keys(),
        (QStringList{ u"title"_s, u"title@de"_s, u"keywords"_s, u"rating"_s, u"people"_s, u"custom:Mood"_s }));
    QCOMPARE(fields.edits.paths, QStringList{ u"Places|Paris"_s });
    const auto read = CopiedFields::fromJson(fields.toJson());
    QVERIFY(std::holds_alternative<CopiedFields>(read));
    QCOMPARE(std::get<CopiedFields>(read), fields);
    const Edits some = fields.chosen({ u"title@de"_s, u"people"_s });
    QCOMPARE(some.keys(), (QSet<QString>{ u"title@de"_s, u"people"_s }));
    QVERIFY(some.paths.isEmpty());
}

void tst_Words::textsThatAreNoFields_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<Refusal>("refusal");
    const QByteArray title = R"("title":"x")";
    QTest::newRow("nothing") << QByteArray() << Refusal::foreign;
    QTest::newRow("prose") << QByteArray("Title: {x}") << Refusal::foreign;
    QTest::newRow("foreign") << QByteArray(R"({"fields":{"title":"x"},"version":1})") << Refusal::foreign;
    QTest::newRow("a list") << QByteArray("[1]") << Refusal::foreign;
    QTest::newRow("cut off") << someFields().toJson().chopped(9) << Refusal::foreign;
    QTest::newRow("no version") << QByteArray(R"({"format":"quorbel-fields","fields":{"title":"x"}})")
                                << Refusal::foreign;
    QTest::newRow("version of words") << json(title, {}, R"("one")") << Refusal::foreign;
    QTest::newRow("version 0") << json(title, {}, "0") << Refusal::foreign;
    QTest::newRow("newer") << json(title, {}, "2") << Refusal::newer;
    QTest::newRow("far newer") << json(title, {}, "1e300") << Refusal::newer;
    QTest::newRow("huge") << json(R"("title":")" + QByteArray(CopiedFields::largest, 'x') + '"') << Refusal::tooLarge;
    QTest::newRow("no known field") << json(R"("nonsense":"x","title":"")") << Refusal::empty;
}

void tst_Words::textsThatAreNoFields()
{
    QFETCH(QByteArray, text);
    const auto read = CopiedFields::fromJson(text);
    QVERIFY(std::holds_alternative<Refusal>(read));
    QTEST(std::get<Refusal>(read), "refusal");
}

void tst_Words::nonsenseIsLeftOut()
{
    const auto read = CopiedFields::fromJson(json(
        R"("title":"a\u0000b\u001b","creator":7,"keywords":["sky",3," sky ","",null],"people":"Ann","place":["x"],)"
        R"("copyright@":"x","title@x-default":"x","creator@de":"x","custom:XMP":"x","custom:A b":"x","custom:Ok":"y")",
        R"(,"keywordPaths":["Nature|sky","Nature|sea","sky",4],"photo":5,"copied":"soon","more":{})"));
    QVERIFY(std::holds_alternative<CopiedFields>(read));
    Edits expected{ .scalars = { { u"title"_s, u"ab"_s } }, .paths = { u"Nature|sky"_s } };
    expected.added = { { u"keywords"_s, { u"sky"_s } } };
    expected.customs = { { u"Ok"_s, u"y"_s } };
    QCOMPARE(std::get<CopiedFields>(read), (CopiedFields{ .edits = expected }));
}

// --- What pasting would do ---

void tst_Words::linesTellWhatIsLost_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<PasteCount>("count");
    QTest::addColumn<QString>("ticked");
    QTest::addColumn<QString>("unticked");
    const auto row = [](const char* name, const QString& key, const PasteCount& count, const QString& ticked,
                         const QString& unticked) { QTest::newRow(name) << key << count << ticked << unticked; };
    const QString old = u"© 2023 Mara"_s;
    row("several", u"title"_s, { .replaced = 4, .filled = 8 }, u"Replaces 4 titles, fills 8"_s,
        u"Would replace 4 titles, fill 8"_s);
    row("all are empty", u"description"_s, { .filled = 12 }, u"Fills 12"_s, u"Would fill 12"_s);
    row("the same old text", u"copyright"_s, { .replaced = 12, .old = old }, u"Replaces “© 2023 Mara” in 12"_s,
        u"Would replace “© 2023 Mara” in 12"_s);
    row("dates", u"date"_s, { .replaced = 12 }, u"Replaces 12 dates"_s, u"Would replace 12 dates"_s);
    row("no plural", u"coords"_s, { .replaced = 9, .filled = 3 }, u"Replaces 9, fills 3"_s,
        u"Would replace 9, fill 3"_s);
    row("the same old number", u"rating"_s, { .replaced = 2, .filled = 10, .old = u"3"_s }, u"Replaces 2, fills 10"_s,
        u"Would replace 2, fill 10"_s);
    row("same", u"creator"_s, { .same = 12 }, u"Same in 12"_s, u"Same in 12"_s);
    row("some of each", u"title@de"_s, { .replaced = 2, .filled = 3, .same = 4, .unknown = 5 },
        u"Replaces 2 titles, fills 3, same in 4, 5 not looked at yet"_s,
        u"Would replace 2 titles, fill 3, same in 4, 5 not looked at yet"_s);
    row("list", u"keywords"_s, { .filled = 2, .same = 1, .gained = 10 }, u"Adds to the keywords of 12, same in 1"_s,
        u"Would add to the keywords of 12, same in 1"_s);
    row("one photo", u"title"_s, { .replaced = 1, .old = u"Old\none"_s }, u"Replaces “Old one”"_s,
        u"Would replace “Old one”"_s);
    row("one photo that nobody looked at", u"title@de"_s, { .unknown = 1 }, u"Not looked at yet"_s,
        u"Not looked at yet"_s);
    row("one empty photo", u"title"_s, { .filled = 1 }, u"Fills the empty field"_s, u"Would fill the empty field"_s);
    row("one photo's list", u"people"_s, { .gained = 1, .old = u"Ann, Zoë"_s }, u"Adds to “Ann, Zoë”"_s,
        u"Would add to “Ann, Zoë”"_s);
    row("one photo that has it", u"people"_s, { .same = 1 }, u"The same already"_s, u"The same already"_s);
}

void tst_Words::linesTellWhatIsLost()
{
    QFETCH(QString, key);
    QFETCH(PasteCount, count);
    QTEST(PasteSummary::line(key, count, true), "ticked");
    QTEST(PasteSummary::line(key, count, false), "unticked");
}

// What pasting replaces is what one sees of a photo, saved or not.
void tst_Words::unsavedEditsCount()
{
    const QList<PasteSummary::Photo> photos{ photo(
                                                 u"a"_s, { { u"title"_s, u"A"_s } }, { { u"people"_s, { u"Zoë"_s } } }),
        photo(u"b"_s, {}, { { u"keywords"_s, { u"lake"_s, u"Paris"_s } } }), photo(u"c"_s, {}) };
    Edits unsaved{ .scalars = { { u"rating"_s, u"4"_s } } };
    unsaved.added = { { u"people"_s, { u"Ann"_s } } };
    unsaved.removed = { { u"keywords"_s, { u"Paris"_s } } };
    unsaved.own[photos.at(1).record.url] = { .scalars = { { u"title"_s, u"B"_s } },
        .customs = { { u"Mood"_s, u"calm"_s } } };
    const auto counts = PasteSummary::counts(someFields(), unsaved, photos);
    QCOMPARE(counts.value(u"title"_s), (PasteCount{ .replaced = 2, .filled = 1 }));
    QCOMPARE(counts.value(u"title@de"_s), (PasteCount{ .filled = 3 }));
    QCOMPARE(counts.value(u"rating"_s), (PasteCount{ .same = 3 }));
    QCOMPARE(counts.value(u"keywords"_s), (PasteCount{ .filled = 2, .gained = 1 }));
    QCOMPARE(counts.value(u"people"_s), (PasteCount{ .same = 1, .gained = 2 }));
    QCOMPARE(counts.value(u"custom:Mood"_s), (PasteCount{ .filled = 2, .same = 1 }));
}

// --- Copying and pasting in the program ---

void tst_Words::fieldsAreCopiedAndPasted()
{
    ModelFixture f;
    f.services.leftEditsPath = f.settings.filePath(u"unsaved.json"_s);
    f.services.now = [] { return QDateTime(QDate(2026, 5, 9), QTime(17, 42)); };
    f.relaunch();
    f.addTitled(jpgs(u"abcd"_s));
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Subject=lake"_s, u"-IPTC:Keywords=lake"_s, u"-XMP:Rating=4"_s,
        u"-EXIF:DateTimeOriginal=2024:10:12 17:48:00"_s, u"-XMP-photoshop:City=Bern"_s, f.folder.path(u"a.jpg"_s) });
    QVERIFY(f.open());
    FieldPasting* pasting = &f->pasting();
    f.select(u"a"_s);
    f->setSingle(u"title"_s, u"Typed"_s);
    f->setCustom(u"Mood"_s, u"calm"_s);
    f->addSingleListItem(u"keywords"_s, u"dusk"_s);
    pasting->copy();
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(data->data(ours), data->text().toUtf8());
    QVERIFY(data->text().contains(u"\"title\": \"Typed\""_s));
    f.click(u"b.jpg"_s);
    f->discardSaveDialog();
    f.select(u"bcd"_s);
    QCOMPARE(f.selected(), jpgs(u"bcd"_s));
    pasting->ask();
    QVERIFY(pasting->isOpen());
    QCOMPARE(told(*pasting),
        (QStringList{ u"*Title: Replaces 3 titles"_s, u"*Keywords: Adds to the keywords of 3"_s, u"*Place: Fills 3"_s,
            u"Date taken: Would fill 3"_s, u"*Rating: Fills 3"_s, u"*Mood: Fills 3"_s }));
    QVERIFY(pasting->rows().at(0).losesText && !pasting->rows().at(1).losesText);
    pasting->setTicked(u"rating"_s, false);
    pasting->setTicked(u"custom:Mood"_s, false);
    pasting->setTicked(u"date"_s, true);
    QCOMPARE(pasting->tickedCount(), 4);
    pasting->paste();
    QVERIFY(!pasting->isOpen());
    QCOMPARE(f->batchValues(),
        (Texts{ { u"date"_s, u"2024-10-12 17:48"_s }, { u"place"_s, u"Bern"_s }, { u"title"_s, u"Typed"_s } }));
    QCOMPARE(f->batchLists(), (Lists{ { u"keywords"_s, { u"lake"_s, u"dusk"_s } } }));
    QCOMPARE(f->unsavedCount(), 4);

    // The clipboard went with the program that copied; ticks and fields did not.
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(f.settings.filePath(u"copied.json"_s)), patience);
    QGuiApplication::clipboard()->setText(u"Something else"_s);
    f.relaunch();
    QVERIFY(f.open());
    f.select(u"cd"_s);
    pasting = &f->pasting();
    pasting->pasteAgain();
    QVERIFY(!pasting->isOpen());
    QCOMPARE(f->batchInclude(), (QSet<QString>{ u"date"_s, u"place"_s, u"title"_s }));
    QCOMPARE(f->batchLists().keys(), QStringList{ u"keywords"_s });
    pasting->ask();
    QCOMPARE(told(*pasting).first(4).last(2), (QStringList{ u"*Place: Same in 2"_s, u"*Date taken: Same in 2"_s }));
    // Where nothing is ticked, the sheet asks.
    pasting->tickAll(false);
    pasting->paste();
    QVERIFY(pasting->isOpen());
    pasting->close();
    f->closeFolder();
    QVERIFY(!pasting->canCopy() && !pasting->canPaste());
    pasting->ask();
    QVERIFY(!pasting->isOpen());
}

void tst_Words::onePhotoKeepsWhatWasTyped()
{
    ModelFixture& f = pair();
    f.select(u"b"_s);
    f->addSingleListItem(u"keywords"_s, u"typed"_s);
    f->removeSingleListItem(u"keywords"_s, u"gone"_s);
    QGuiApplication::clipboard()->setText(
        QString::fromUtf8(json(R"("keywords":["new","old"],"title":"b.jpg","creator":"Ann","custom:mOOD":"x")")));
    f->setCustom(u"Mood"_s, u"calm"_s);
    f->pasting().ask();
    QCOMPARE(told(f->pasting()),
        (QStringList{ u"*Title: The same already"_s, u"*Keywords: Adds to “old, typed”"_s,
            u"*Creator: Fills the empty field"_s, u"*mOOD: Replaces “calm”"_s }));
    f->pasting().paste();
    QCOMPARE(f->draftLists().value(u"keywords"_s), (QStringList{ u"old"_s, u"typed"_s, u"new"_s }));
    QCOMPARE(f->draftCustoms(), (QList<CustomValue>{ { u"Mood"_s, u"x"_s } }));
    QCOMPARE(f->editedSingle(), (QSet<QString>{ u"keywords"_s, u"creator"_s, u"custom:Mood"_s }));
    f.click(u"a.jpg"_s);
    f->discardSaveDialog();
}

// Right after a photo was selected nobody has looked yet for what else it holds.
void tst_Words::lateLanguagesJoinTheCopy()
{
    ModelFixture f;
    f.addTitled(jpgs(u"ab"_s));
    exiftool({ u"-overwrite_original"_s, u"-XMP-dc:Subject=Paris"_s, f.folder.path(u"a.jpg"_s) });
    std::atomic<bool> isShut = true;
    f.lookAtDetails([&isShut](const QList<ImageRecord>& photos, const ReadControl&) {
        while (isShut)
            QThread::msleep(1);
        QHash<QUrl, PhotoDetails> found;
        for (const ImageRecord& record : photos)
            found.insert(record.url,
                { .url = record.url, .texts = { { u"title@de"_s, u"Titel"_s } }, .paths = { u"Places|Paris"_s } });
        return found;
    });
    QVERIFY(f.open());
    f.select(u"a"_s);
    f->pasting().copy();
    const auto copied = [] {
        const auto read = CopiedFields::fromJson(QGuiApplication::clipboard()->mimeData()->data(ours));
        return std::get<CopiedFields>(read).edits;
    };
    QVERIFY(!copied().scalars.contains(u"title@de"_s));
    isShut = false;
    QTRY_COMPARE_WITH_TIMEOUT(copied().scalars.value(u"title@de"_s), u"Titel"_s, patience);
    QCOMPARE(copied().paths, QStringList{ u"Places|Paris"_s });
    QCOMPARE(copied().scalars.value(u"title"_s), u"a.jpg"_s);
}

void tst_Words::clipboardsWithoutFields_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    const QString none = u"No fields were copied yet. Edit ▸ Copy Fields takes those of the selected photo."_s;
    QTest::newRow("nothing") << QString() << none;
    QTest::newRow("prose") << u"Just a text"_s << none;
    QTest::newRow("huge") << QString(CopiedFields::largest + 1, u'{') << none;
    QTest::newRow("newer") << QString::fromUtf8(json(R"("title":"x")", {}, "7"))
                           << u"These fields were copied by a newer version of Quorbel."_s;
}

void tst_Words::clipboardsWithoutFields()
{
    QFETCH(QString, text);
    ModelFixture& f = pair();
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
    for (const bool again : { false, true }) {
        f->setErrorMessage(std::nullopt);
        again ? f->pasting().pasteAgain() : f->pasting().ask();
        QVERIFY(!f->pasting().isOpen());
        QTEST(f->errorMessage().value_or(QString()), "message");
    }
    QCOMPARE(f->unsavedCount(), 0);
}

// --- Codes ---

void tst_Words::codeFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Texts>("texts");  // none: such a code is not known
    QTest::addColumn<QStringList>("notes");
    const auto row = [](const char* name, const QByteArray& bytes, const Texts& texts, const QStringList& notes = {}) {
        QTest::newRow(name) << bytes << texts << notes;
    };
    row("plain", "js\tJane Smith, goalkeeper\nab\tA\n",
        { { u"js"_s, u"Jane Smith, goalkeeper"_s }, { u"ab"_s, u"A"_s }, { u"a"_s, QString() } });
    row("byte order mark, CRLF, empty lines", "\xEF\xBB\xBFjs\tZo\xC3\xAB\r\n\r\n  \r\nab\tB\r\n\r\n",
        { { u"js"_s, u"Zoë"_s }, { u"ab"_s, u"B"_s } });
    row("old line ends", "js\tJane\rab\tB", { { u"js"_s, u"Jane"_s }, { u"ab"_s, u"B"_s } });
    row("columns and blanks", " js \t Jane \t9\tx\n", { { u"js"_s, u"Jane"_s } });
    row("comments", "# the home team\n#7\tJane\n", { { u"#7"_s, u"Jane"_s } });
    row("case", "js\tJane\nAB\tone\nab\ttwo\n",
        { { u"JS"_s, u"Jane"_s }, { u"AB"_s, u"one"_s }, { u"ab"_s, u"two"_s }, { u"Ab"_s, QString() } });
    row("Latin 1", "js\tZo\xEB \x93M\x94\n", { { u"js"_s, u"Zoë “M”"_s } },
        { u"The file is not UTF-8: it was read as Windows Latin 1."_s });
    row("UTF-16",
        QByteArray("\xFF\xFE"
                   "j\0s\0\t\0Z\0\xEB\0\n\0",
            14),
        { { u"js"_s, u"Zë"_s } });
    row("twice", "js\tone\nx\ty\njs\ttwo\n", { { u"js"_s, u"two"_s } },
        { u"“js” is there twice, in lines 1 and 3: the last one counts."_s });
    row("what is wrong", "js Jane\n\tx\na=b\tx\nempty\t\nok\tfine\n",
        { { u"ok"_s, u"fine"_s }, { u"empty"_s, QString() } },
        { u"Line 1 has no tab: “js Jane”"_s, u"Line 2 has no code in front of its tab."_s,
            u"Line 3: nobody can type a code with “=” in it: “a=b”"_s, u"Line 4 has no text for “empty”."_s });
    row("much is wrong", QByteArray("x\n").repeated(9), {},
        { u"Line 1 has no tab: “x”"_s, u"Line 2 has no tab: “x”"_s, u"Line 3 has no tab: “x”"_s,
            u"Line 4 has no tab: “x”"_s, u"Line 5 has no tab: “x”"_s, u"4 more lines like these."_s });
    QByteArray many;
    for (int i = 0; i < 10'000; ++i)
        many += "c" + QByteArray::number(i) + "\tNumber " + QByteArray::number(i) + '\n';
    row("ten thousand lines", many, { { u"c0"_s, u"Number 0"_s }, { u"c9999"_s, u"Number 9999"_s } });
}

void tst_Words::codeFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(Texts, texts);
    const CodeList list = CodeList::parse(bytes);
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        QCOMPARE(list.text(text.key()), text->isEmpty() ? std::nullopt : std::optional(*text));
    QTEST(list.notes(), "notes");
}

void tst_Words::codesFollowTheirFile()
{
    ModelFixture f;
    const PhotoFolder folder;
    const QString path = folder.path(u"codes.txt"_s);
    const auto codes = [&f]() -> CodeReplacements& { return f->codes(); };
    const auto becomes = [&](const QString& text) {
        return QTest::qWaitFor([&] { return codes().text(u"js"_s).value_or(QString()) == text; }, patience);
    };
    writeFile(path, "js\tone\n");
    codes().setChooser([&path](const auto& chosen) { chosen(path); });
    codes().choose();
    QCOMPARE(codes().file(), path);
    QVERIFY(becomes(u"one"_s));
    QCOMPARE(codes().count(), 1);
    writeFile(path, "js\ttwo\n");
    QVERIFY(becomes(u"two"_s));
    // As editors save: another file takes its place.
    writeFile(folder.path(u"new"_s), "js\tthree\n");
    QCOMPARE(::rename(qPrintable(folder.path(u"new"_s)), qPrintable(path)), 0);
    QVERIFY(becomes(u"three"_s));
    const auto texts = codes().texts();
    QCOMPARE(texts(u"js"_s), u"three"_s);
    QVERIFY(QFile::remove(path));
    QVERIFY(becomes({}));
    QCOMPARE(codes().problem(), u"“codes.txt” is not there any more."_s);
    writeFile(path, "js\tfour\n");
    QVERIFY(becomes(u"four"_s));
    QCOMPARE(codes().problem(), QString());
    f.relaunch();
    QVERIFY(becomes(u"four"_s));
    QCOMPARE(texts(u"js"_s), std::nullopt);  // of a model that is gone
    codes().setFile({});
    QVERIFY(becomes({}));
    f.relaunch();
    QCOMPARE(codes().file(), QString());
}

QTEST_MAIN(tst_Words)
#include "tst_Words.moc"
