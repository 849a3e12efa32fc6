// What the inspector shows of several photos beside one text for all: the keywords that they hold, quick keywords, and
// texts that differ from photo to photo; and what the save dialog says of it.
#include "app/model/words/QuickKeywords.h"
#include "tests/ui/UiSupport.h"
#include "tests/ui/inspector/InspectorFixture.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/WalkedFlow.h"
#include "ui/controls/keywords/HeldKeywordChip.h"
#include "ui/inspector/keywords/SubRow.h"
#include "ui/sheets/QuickSetSheet.h"
#include "ui/sheets/SaveDialogView.h"

#include <QApplication>
#include <QLabel>

#include <memory>

using namespace Quorbel;
using namespace Quorbel::Test;

namespace {

QStringList subjects(const QString& words)
{
    QStringList assignments;
    for (const QString& word : words.split(u' ', Qt::SkipEmptyParts))
        assignments << u"-XMP-dc:Subject="_s + word << u"-IPTC:Keywords="_s + word;
    return assignments;
}

QList<HeldKeywordChip*> chips(const InspectorFixture& f)
{
    QList<HeldKeywordChip*> found;
    for (const auto* flow : f.view->findChildren<WalkedFlow*>())
        for (QWidget* shown : flow->shown())
            if (auto* chip = qobject_cast<HeldKeywordChip*>(shown); chip && chip->isVisible())
                found.append(chip);
    return found;
}

QStringList spoken(const InspectorFixture& f)
{
    QStringList texts;
    for (const HeldKeywordChip* chip : chips(f))
        texts.append(chip->accessibleName());
    return texts;
}

HeldKeywordChip* chip(const InspectorFixture& f, const QString& keyword)
{
    for (HeldKeywordChip* found : chips(f))
        if (found->held().keyword == keyword)
            return found;
    return nullptr;
}

QAbstractButton* button(const QWidget& in, const QString& text)
{
    for (auto* found : in.findChildren<QAbstractButton*>())
        if (found->text() == text && found->isVisible())
            return found;
    return nullptr;
}

QStringList pills(const InspectorFixture& f)
{
    QStringList texts;
    for (const auto* pill : f.view->findChildren<TokenChip*>())
        if (pill->isVisible())
            texts.append(pill->text());
    return texts;
}

QString dialogText(AppModel& model)
{
    const auto dialog = std::make_unique<SaveDialogView>(model);
    QStringList texts;
    for (const auto* label : dialog->findChildren<QLabel*>())
        texts.append(label->accessibleName().isEmpty() ? label->text() : label->accessibleName());
    return texts.join(u'\n');
}

void press(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
    InspectorFixture::settle();
}

}  // namespace

class tst_BatchKeywords : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void chipsOfWhatIsHeld();
    void takenAway();
    void byKeyboard();
    void savedAndRemembered();
    void textsOfTheirOwn();
    void moreThanFourLines();
    void setsOfQuickKeywords();
    void quickSets();

private:
    void selectAll();
    QString help() const { return m_f->row(u"keywords"_s)->state().helpLine; }

    std::unique_ptr<InspectorFixture> m_f;
};

void tst_BatchKeywords::initTestCase()
{
    m_f = std::make_unique<InspectorFixture>();
    m_f->add(u"a.jpg"_s, subjects(u"sky lake crew"_s));
    m_f->add(u"b.jpg"_s, subjects(u"sky lake"_s));
    m_f->add(u"c.jpg"_s, subjects(u"sky boat"_s));
    QString many;
    for (int i = 100; i < 200; ++i)
        many += u" keyword%1"_s.arg(i);
    m_f->add(u"y.jpg"_s, subjects(many));
    m_f->add(u"z.jpg"_s, subjects(many));
    QVERIFY(m_f->open({ 520, 900 }));
}

// Without any edit of before.
void tst_BatchKeywords::selectAll()
{
    m_f->photos.select(u"y"_s);
    m_f->model().discardSaveDialog();
    m_f->photos.select(u"abc"_s);
    m_f->settle();
    QCOMPARE(m_f->model().unsavedCount(), 0);
}

void tst_BatchKeywords::chipsOfWhatIsHeld()
{
    InspectorFixture& f = *m_f;
    QVERIFY(chips(f).isEmpty());
    selectAll();
    QCOMPARE(spoken(f),
        QStringList({ u"sky, in all 3"_s, u"lake, in 2 of 3"_s, u"boat, in 1 of 3"_s, u"crew, in 1 of 3"_s }));
    QCOMPARE(chip(f, u"sky"_s)->held().count, QString());
    QCOMPARE(chip(f, u"lake"_s)->held().count, u"2 of 3"_s);
    QVERIFY(f.view->findChild<SubRow*>()->findChild<QLabel*>()->text() == u"In these 3"_s);
    // Two photos have other counts.
    f.photos.select(u"bc"_s);
    f.settle();
    QCOMPARE(spoken(f), QStringList({ u"sky, in all 2"_s, u"boat, in 1 of 2"_s, u"lake, in 1 of 2"_s }));
    selectAll();
    // A click moves one up into the field; there it is taken out again.
    QTest::mouseClick(chip(f, u"sky"_s), Qt::LeftButton, {}, { 10, 14 });
    QCOMPARE(f.model().unsavedCount(), 0);
    QTest::mouseClick(chip(f, u"lake"_s), Qt::LeftButton, {}, { 10, 14 });
    f.settle();
    QVERIFY(!chip(f, u"lake"_s));
    QCOMPARE(f.editor<KeywordEditor>(u"keywords"_s)->chips(), QStringList{ u"lake"_s });
    QCOMPARE(help(), u"appends — existing values kept"_s);
    emit f.editor<KeywordEditor>(u"keywords"_s)->removed(u"lake"_s);
    QVERIFY(chip(f, u"lake"_s));
    QVERIFY(!f.row(u"keywords"_s)->state().included);
}

void tst_BatchKeywords::takenAway()
{
    InspectorFixture& f = *m_f;
    selectAll();
    HeldKeywordChip* crew = chip(f, u"crew"_s);
    QTest::mouseClick(crew->findChild<QBIconButton*>(), Qt::LeftButton);
    f.settle();
    QCOMPARE(f.model().batchRemoved().value(u"keywords"_s), QStringList{ u"crew"_s });
    QCOMPARE(chip(f, u"crew"_s)->accessibleName(), u"crew, in 1 of 3, to be taken away"_s);
    QCOMPARE(help(), u"1 taken away"_s);
    QVERIFY(f.row(u"keywords"_s)->state().included);
    QCOMPARE(f.model().unsavedCount(), 1);
    f.model().addBatchListItem(u"keywords"_s, u"new"_s);
    QCOMPARE(help(), u"appends — existing values kept · 1 taken away"_s);
    QCOMPARE(f.model().unsavedCount(), 1);
    const QString said = dialogText(f.model());
    QVERIFY2(said.contains(u"This will modify Keywords on 3 files. This can’t be undone."_s), qPrintable(said));
    QVERIFY2(said.contains(u"\nKeywords\nnew\ntaken away: crew (1 of 3)"_s), qPrintable(said));
    // Again brings it back; without removals nothing differs from what was there before.
    QTest::mouseClick(chip(f, u"crew"_s)->findChild<QBIconButton*>(), Qt::LeftButton);
    f.settle();
    QCOMPARE(help(), u"appends — existing values kept"_s);
    QVERIFY(!dialogText(f.model()).contains(u"taken away"_s));
    // The tick takes all of it out; one that nobody holds is shown as long as it is to be taken away.
    f.model().takeBatchItemAway(u"keywords"_s, u"ghost"_s);
    QCOMPARE(chip(f, u"ghost"_s)->accessibleName(), u"ghost, in 0 of 3, to be taken away"_s);
    emit f.row(u"keywords"_s)->tickClicked();
    QCOMPARE(f.model().unsavedCount(), 0);
    QVERIFY(!chip(f, u"ghost"_s));
}

void tst_BatchKeywords::byKeyboard()
{
    InspectorFixture& f = *m_f;
    selectAll();
    f.editor<KeywordEditor>(u"keywords"_s)->entry()->setFocus();
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), chip(f, u"sky"_s));
    press(Qt::Key_Left);
    press(Qt::Key_Right);
    QCOMPARE(QApplication::focusWidget(), chip(f, u"lake"_s));
    // The keyboard stays in the row, at the neighbour of what left it.
    press(Qt::Key_Return);
    QCOMPARE(f.model().batchLists().value(u"keywords"_s), QStringList{ u"lake"_s });
    QCOMPARE(QApplication::focusWidget(), chip(f, u"boat"_s));
    press(Qt::Key_Delete);
    QCOMPARE(f.model().batchRemoved().value(u"keywords"_s), QStringList{ u"boat"_s });
    press(Qt::Key_Backspace);
    QVERIFY(f.model().batchRemoved().isEmpty());
    press(Qt::Key_End);
    QCOMPARE(QApplication::focusWidget(), chip(f, u"crew"_s));
    press(Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), chip(f, u"boat"_s));
    // One Tab stop a row: the next is the strip, then the next field; and back.
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), button(*f.view, u"Last used"_s));
    press(Qt::Key_Tab);
    QVERIFY(!QApplication::focusWidget()->parentWidget()->inherits("Quorbel::WalkedFlow"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), chip(f, u"boat"_s));
}

// What a save gave to photos is at hand for the next ones.
void tst_BatchKeywords::savedAndRemembered()
{
    InspectorFixture& f = *m_f;
    selectAll();
    QVERIFY(pills(f).isEmpty());
    f.model().addBatchListItem(u"keywords"_s, u"finish"_s);
    f.model().addBatchListItem(u"keywords"_s, u"Places > start"_s);
    f.model().setBatchDontAskSession(true);
    f.model().requestSave();
    QVERIFY(f.photos.waitUntilIdle());
    QCOMPARE(f.model().errorMessage().value_or(QString()), QString());
    QCOMPARE(f.model().unsavedCount(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(spoken(f).join(u'|'),
        QStringList({ u"finish, in all 3"_s, u"sky, in all 3"_s, u"start, in all 3"_s, u"lake, in 2 of 3"_s,
                        u"boat, in 1 of 3"_s, u"crew, in 1 of 3"_s })
            .join(u'|'),
        5000);
    QCOMPARE(pills(f), QStringList({ u"start"_s, u"finish"_s }));
    // One press gives it to all, the path with it; of one photo, too.
    f.photos.select(u"yz"_s);
    QTest::mouseClick(button(*f.view, u"start"_s), Qt::LeftButton);
    QCOMPARE(f.model().batchLists().value(u"keywords"_s), QStringList{ u"start"_s });
    QCOMPARE(f.model().typedPaths(), QStringList{ u"Places|start"_s });
    f.photos.select(u"y"_s);
    f.model().quickKeywords().give(1);
    QVERIFY(f.model().draftLists().value(u"keywords"_s).contains(u"finish"_s));
    f.model().quickKeywords().give(7);
    QCOMPARE(f.model().unsavedCount(), 1);
}

void tst_BatchKeywords::textsOfTheirOwn()
{
    InspectorFixture& f = *m_f;
    selectAll();
    Edits laid;
    for (const QString& name : { u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s })
        laid.own[f.photos.url(name)] = { .scalars = { { u"title"_s, name },
                                             { u"rating"_s, name == u"a.jpg" ? u"1"_s : u"2"_s } } };
    laid.own[f.photos.url(u"a.jpg"_s)].scalars.insert(u"creator"_s, u"Ana %1"_s);
    f.model().layEdits(laid);
    f.settle();
    const FieldRowState title = f.row(u"title"_s)->state();
    QVERIFY(title.included && title.edited && title.text.isEmpty());
    QCOMPARE(title.placeholder, u"3 different texts"_s);
    QCOMPARE(title.helpLine, u"Will be written to all 3 photos"_s);
    QVERIFY(f.row(u"title"_s)->input()->accessibleDescription().contains(u"3 different texts"_s));
    const FieldRowState creator = f.row(u"creator"_s)->state();
    QCOMPARE(creator.placeholder, u"“Ana %1” in 1 of 3"_s);
    QCOMPARE(creator.helpLine, u"Will be written to 1 of 3 photos"_s);
    QCOMPARE(f.row(u"rating"_s)->state().helpLine, u"2 different texts · Will be written to all 3 photos"_s);
    QCOMPARE(f.model().unsavedCount(), 3);
    const QString said = dialogText(f.model());
    QVERIFY2(said.contains(u"Title\n3 different texts"_s), qPrintable(said));
    QVERIFY2(said.contains(u"Creator\n“Ana %1” in 1 of 3"_s), qPrintable(said));
    // Typed over, and emptied again.
    QWidget* input = f.row(u"title"_s)->input();
    input->setFocus();
    QTest::keyClicks(input, u"x"_s);
    QCOMPARE(f.model().batchValues().value(u"title"_s), u"x"_s);
    QTest::keyClick(input, Qt::Key_Backspace);
    QCOMPARE(f.row(u"title"_s)->state().placeholder, u"3 different texts"_s);
    emit f.row(u"title"_s)->tickClicked();
    QVERIFY(!f.row(u"title"_s)->state().included);
    emit f.row(u"title"_s)->tickClicked();
    QCOMPARE(f.row(u"title"_s)->state().placeholder, u"3 different texts"_s);
}

void tst_BatchKeywords::moreThanFourLines()
{
    InspectorFixture& f = *m_f;
    selectAll();
    f.photos.select(u"yz"_s);
    f.settle();
    const auto lines = [&f] {
        QSet<int> tops;
        for (const HeldKeywordChip* shown : chips(f))
            tops.insert(shown->y());
        return int(tops.size());
    };
    QCOMPARE(lines(), 4);
    const qsizetype few = chips(f).size();
    QAbstractButton* more = button(*f.view, u"%1 more"_s.arg(100 - few));
    QVERIFY(more);
    // Its own line is one of the four, and the row is no higher.
    QVERIFY(more->geometry().center().y() <= chips(f).constLast()->geometry().bottom());
    more->click();
    f.settle();
    QCOMPARE(chips(f).size(), 100);
    QVERIFY(!more->isVisible());
    // Elsewhere it is closed again.
    f.photos.select(u"abc"_s);
    f.photos.select(u"yz"_s);
    f.settle();
    QCOMPARE(chips(f).size(), few);
}

void tst_BatchKeywords::setsOfQuickKeywords()
{
    InspectorFixture& f = *m_f;
    selectAll();
    QuickKeywords& quick = f.model().quickKeywords();
    SheetHost host(f.window.get());
    const auto present = [&] {
        auto* sheet = new QuickSetSheet(f.model());
        host.present(sheet);
        return sheet;
    };
    quick.beginNew();
    QuickSetSheet* sheet = present();
    sheet->confirm();
    QVERIFY(quick.sets().isEmpty());
    auto* name = qobject_cast<QLineEdit*>(sheet->initialFocus());
    QTest::keyClicks(name, u" Race day "_s);
    QLineEdit* entry = sheet->findChild<KeywordEditor*>()->entry();
    QTest::keyClicks(entry, u"podium"_s);
    QTest::keyClick(entry, Qt::Key_Return);
    QTest::keyClicks(entry, u"Sport > crowd"_s);
    sheet->confirm();
    host.dismiss(sheet);
    // What was used last is where a new set begins.
    const QStringList keywords{ u"Places|start"_s, u"finish"_s, u"podium"_s, u"Sport|crowd"_s };
    QCOMPARE(quick.sets(), (QList<QuickSet>{ { u"Race day"_s, keywords } }));
    f.settle();
    QCOMPARE(pills(f), QStringList({ u"start"_s, u"finish"_s, u"podium"_s, u"crowd"_s }));
    quick.give(2);
    QCOMPARE(f.model().batchLists().value(u"keywords"_s), QStringList{ u"podium"_s });
    // A second one needs another name; the first is renamed, and survives the program.
    quick.beginNew();
    QCOMPARE(quick.problem(u"Race day"_s), u"There is a set of this name already"_s);
    quick.store({ u"Empty"_s, {} });
    QCOMPARE(quick.current(), u"Empty"_s);
    quick.show(u"Race day"_s);
    quick.beginChange();
    QVERIFY(!quick.problem(u"Race day"_s));
    quick.store({ u"Regatta"_s, keywords.mid(0, 1) });
    f.model().clearBatchList(u"keywords"_s);
    {
        const QuickKeywords again(f.model());
        QCOMPARE(again.current(), u"Regatta"_s);
        QCOMPARE(again.sets(), (QList<QuickSet>{ { u"Regatta"_s, { u"Places|start"_s } }, { u"Empty"_s } }));
    }
    quick.beginChange();
    sheet = present();
    QTest::mouseClick(button(*sheet, u"Delete Set"_s), Qt::LeftButton);
    QVERIFY(!quick.edited());
    host.dismiss(sheet);
    QCOMPARE(quick.current(), QString());
    QCOMPARE(pills(f), QStringList({ u"start"_s, u"finish"_s }));
}

void tst_BatchKeywords::quickSets()
{
    using namespace QuickSets;
    const QList<QuickSet> sets{ { u"A"_s, { u"x"_s, u"P|y"_s } }, { u"B"_s } };
    QCOMPARE(fromText(toText(sets)), sets);
    QCOMPARE(fromText(u"[{\"name\":\"\"},7,{\"name\":\"A\",\"keywords\":[\"x\",\"\",\"x\"]},{\"name\":\"A\"}]"_s),
        (QList<QuickSet>{ { u"A"_s, { u"x"_s } } }));
    QCOMPARE(fromText(u"{"_s), QList<QuickSet>());
    QCOMPARE(used({ u"c"_s, u"a"_s }, { u"a"_s, u"b"_s, u"d"_s }, 3), QStringList({ u"c"_s, u"a"_s, u"b"_s }));
    // Those that stay keep their digits as far as they can.
    QCOMPARE(placed({ u"b"_s, u"c"_s, u"a"_s }, { u"a"_s, u"b"_s, u"d"_s }), QStringList({ u"c"_s, u"a"_s, u"b"_s }));
}

QTEST_MAIN(tst_BatchKeywords)
#include "tst_BatchKeywords.moc"
