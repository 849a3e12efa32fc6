// Rows of fields whose places disagree, and of fields with further languages, as a person uses them.
#include "tests/ui/UiSupport.h"
#include "tests/ui/inspector/InspectorFixture.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/SelectableText.h"
#include "ui/controls/Toggles.h"
#include "ui/controls/attached/CodesChip.h"
#include "ui/controls/attached/MarkButton.h"
#include "ui/controls/attached/SearchMenu.h"
#include "ui/inspector/FormSection.h"
#include "ui/inspector/homes/HomeRow.h"
#include "ui/inspector/homes/HomesPopover.h"

#include <QListWidget>
#include <QScrollBar>
#include <QSemaphore>
#include <QSignalSpy>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

const FieldHome rights{ u"XMP-dc:Rights"_s, { u"© 2024 Mara"_s }, true };
const FieldHome notice{ u"IPTC:CopyrightNotice"_s, { u"© 2024 Mara, all rights reserved"_s } };
const FieldHome studio{ u"EXIF:Copyright"_s, { u"(c) Studio 2019"_s } };
const FieldHome author{ u"XMP-pdf:Author"_s, { u"House"_s }, true, true };
const FieldHome subjects{ u"XMP-dc:Subject"_s, { u"lake"_s, u"autumn"_s } };

// A form with a field above and one below the row that is looked at.
class OneRow {
public:
    explicit OneRow(const FieldRowState& state, FieldKind kind = FieldKind::text)
        : section(m_stage.add(new FormSection(u"COMMON"_s)))
        , above(new FieldRow({}, section))
        , row(new FieldRow({ kind }, section))
    {
        row->setState(state, true);
        section->setRows({ above, row });
        m_stage.show();
        settle();
    }

    static void settle()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    template <typename Widget>
    Widget* shown() const
    {
        auto* found = row->findChild<Widget*>();
        return found && found->isVisible() ? found : nullptr;
    }
    HomesPopover* openPlaces() const
    {
        QTest::mouseClick(shown<MarkButton>(), Qt::LeftButton);
        return qobject_cast<HomesPopover*>(QApplication::activePopupWidget());
    }
    QWidget* window() { return m_stage.window(); }

private:
    Stage m_stage;

public:
    FormSection* section;
    FieldRow* above;
    FieldRow* row;
};

FieldRowState copyright(const QList<FieldHome>& homes, bool canAgree = false)
{
    return { .label = u"Copyright"_s, .text = u"© 2024 Mara"_s, .places = { homes, canAgree } };
}

// What has the keyboard, in a popup while one is open.
QWidget* keyboard()
{
    const QWidget* popup = QApplication::activePopupWidget();
    return popup && popup->focusWidget() ? popup->focusWidget() : QApplication::focusWidget();
}

void press(std::initializer_list<Qt::Key> keys)
{
    for (const Qt::Key key : keys)
        QTest::keyClick(keyboard(), key);
}

// Photos in several languages, of which the first has places that disagree, too.
class Photos : public InspectorFixture {
public:
    explicit Photos(const decltype(AppModelServices::details)& details = {})
    {
        photos.lookAtDetails(details);
        add(u"a.jpg"_s,
            { u"-XMP-dc:Title=One"_s, u"-XMP-dc:Title-de=Eins"_s, u"-XMP-dc:Title-fr=Un"_s, u"-XMP-dc:Rights=Mara"_s,
                u"-IPTC:CopyrightNotice=Mara, all rights reserved"_s, u"-EXIF:Copyright=Studio"_s });
        add(u"b.jpg"_s, { u"-XMP-dc:Title=Two"_s, u"-XMP-dc:Title-de=Zwei"_s });
        add(u"c.jpg"_s, {});
    }
    void show(const QString& name)
    {
        model().discardSaveDialog();
        click(name);
        known(name);
    }
    void known(const QString& name) { QTRY_VERIFY(model().details(photos.url(name))); }
    CodesChip* chip(const QString& id = u"title"_s) const
    {
        auto* found = editor<CodesChip>(id);
        return found && found->isVisible() ? found : nullptr;
    }
    QString text(const QString& id) const
    {
        auto* field = editor<QBTextField>(id);
        return field ? field->text() : u"no row"_s;
    }
    bool hasKeyboard(const QString& id) const
    {
        window->activateWindow();  // which the platform off screen does not do where a popup closes
        settle();
        return row(id) && row(id)->input()->hasFocus();
    }
};

const QString de = u"title@de"_s;
const QString fr = u"title@fr"_s;

}  // namespace

class tst_HomesAndLanguages : public QObject {
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void theMarkSaysHowManyDiffer_data();
    void theMarkSaysHowManyDiffer();
    void placesAreChosenByKeys_data();
    void placesAreChosenByKeys();
    void placesAreChosenByMouse();
    void thePopoverStaysInTheWindow_data();
    void thePopoverStaysInTheWindow();
    void aLongValueScrolls();
    void aLongFileNameGivesWay();
    void theMarkGivesTheKeyboardBack();
    void theMarkLeavesTheOtherLinesReadable();
    void anotherPlaceIsUsed();
    void theOwnFileIsNamed();
    void languagesOfOnePhoto();
    void languagesOfSeveralPhotos();
    void theFirstLanguageIsAdded();
    void rowsThatAppearMoveNothingOneTypesIn();
};

void tst_HomesAndLanguages::theMarkSaysHowManyDiffer_data()
{
    QTest::addColumn<QList<FieldHome>>("homes");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QList<FieldHome>() << QString();
    QTest::newRow("one") << QList{ rights, notice } << u"1 of 2 places differs"_s;
    QTest::newRow("two") << QList{ rights, notice, studio } << u"2 of 3 places differ"_s;
    QTest::newRow("of another standard") << QList{ author, studio }
                                         << u"1 of 2 places differs, another standard’s is shown"_s;
}

void tst_HomesAndLanguages::theMarkSaysHowManyDiffer()
{
    QFETCH(QList<FieldHome>, homes);
    QFETCH(QString, text);
    const OneRow form(copyright(homes));
    const auto* mark = form.shown<MarkButton>();
    QCOMPARE(mark != nullptr, !homes.isEmpty());
    if (!mark)
        return;
    QCOMPARE(mark->text(), text);
    const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(const_cast<MarkButton*>(mark));
    QCOMPARE(told->text(QAccessible::Name), u"Copyright: "_s + text);
    QCOMPARE(told->role(), QAccessible::Button);
    QVERIFY(form.row->tabStops().contains(mark));
}

void tst_HomesAndLanguages::placesAreChosenByKeys_data()
{
    QTest::addColumn<QList<Qt::Key>>("keys");
    QTest::addColumn<QString>("used");
    QTest::addColumn<bool>("open");
    QTest::newRow("the first that is not shown") << QList{ Qt::Key_Return } << notice.tag << false;
    QTest::newRow("down") << QList{ Qt::Key_Down, Qt::Key_Return } << studio.tag << false;
    QTest::newRow("not beyond the last") << QList{ Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return }
                                         << studio.tag << false;
    QTest::newRow("the shown one") << QList{ Qt::Key_Up, Qt::Key_Return } << QString() << true;
    QTest::newRow("tab goes on to the foot")
        << QList{ Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return } << u"agree"_s << false;
    QTest::newRow("leave") << QList{ Qt::Key_Down, Qt::Key_Escape } << QString() << false;
}

void tst_HomesAndLanguages::placesAreChosenByKeys()
{
    QFETCH(QList<Qt::Key>, keys);
    const OneRow form(copyright({ rights, notice, studio }, true));
    QString used;
    connect(form.row, &FieldRow::homeUsed, form.row, [&used](const FieldHome& home) { used = home.tag; });
    connect(form.row, &FieldRow::agreeAsked, form.row, [&used] { used = u"agree"_s; });
    auto* mark = form.shown<MarkButton>();
    mark->setFocus(Qt::TabFocusReason);
    QTest::keyClick(mark, Qt::Key_Return);
    QVERIFY(QApplication::activePopupWidget());
    for (const Qt::Key key : keys)
        press({ key });
    QTEST(used, "used");
    QTEST(QApplication::activePopupWidget() != nullptr, "open");
    if (keys.constLast() == Qt::Key_Escape)
        QVERIFY(mark->hasFocus());
    else if (!used.isEmpty() && used != u"agree"_s)
        QVERIFY(form.row->input()->hasFocus());
}

void tst_HomesAndLanguages::placesAreChosenByMouse()
{
    OneRow form(copyright({ rights, author, subjects }));
    QSignalSpy used(form.row, &FieldRow::homeUsed);
    HomesPopover* places = form.openPlaces();
    QVERIFY(places);
    const QStringList texts = labels(places);
    QVERIFY2(
        texts.contains(u"Belongs to another standard: read here, and never written"_s), qPrintable(texts.join(u'|')));
    QCOMPARE(places->rows().at(2)->findChild<SelectableText*>()->toPlainText(), u"lake · autumn"_s);
    QVERIFY(!button(places->rows().at(0), u"Use this one"_s));
    QVERIFY(!button(places->rows().at(1), u"Use this one"_s));
    QVERIFY(!button(places, u"Make them agree"_s));
    const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(places->rows().at(2));
    QCOMPARE(told->role(), QAccessible::ListItem);
    QCOMPARE(told->text(QAccessible::Description), u"lake, autumn, Return uses this one"_s);
    click(button(places->rows().at(2), u"Use this one"_s));
    QCOMPARE(used.size(), 1);
    QCOMPARE(used.at(0).at(0).value<FieldHome>(), subjects);
    // A click beside it closes it.
    places = form.openPlaces();
    QTest::mouseClick(places, Qt::LeftButton, {}, QPoint(-5, -5));
    QVERIFY(!QApplication::activePopupWidget());
    // What is shown may change while it is open, and go.
    places = form.openPlaces();
    form.row->setState(copyright({ rights, studio }), false);
    QCOMPARE(places->rows().size(), 2);
    form.row->setState(copyright({}), false);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_HomesAndLanguages::thePopoverStaysInTheWindow_data()
{
    QTest::addColumn<int>("above");  // pixels over the row
    QTest::addColumn<int>("homes");
    QTest::addColumn<bool>("flips");
    QTest::newRow("below") << 0 << 3 << false;
    QTest::newRow("over") << 250 << 3 << true;
    QTest::newRow("more than there is room for") << 30 << 20 << false;
}

void tst_HomesAndLanguages::thePopoverStaysInTheWindow()
{
    QFETCH(int, above);
    QFETCH(int, homes);
    QFETCH(bool, flips);
    QList<FieldHome> many{ rights };
    while (many.size() < homes)
        many.append({ u"IPTC:Tag%1"_s.arg(many.size()), { u"Something else"_s } });
    OneRow form(copyright(many, true));
    form.above->setFixedHeight(qMax(30, above));
    form.settle();
    HomesPopover* places = form.openPlaces();
    const QRect box = places->box().translated(form.window()->mapFromGlobal(places->pos()));
    QVERIFY2(form.window()->rect().contains(box), qPrintable(u"%1 to %2"_s.arg(box.top()).arg(box.bottom())));
    const QWidget* input = form.row->input();
    QCOMPARE(box.left(), input->mapTo(form.window(), QPoint()).x());
    QCOMPARE(box.width(), input->width());
    const int field = input->mapTo(form.window(), QPoint()).y();
    QCOMPARE(box.bottom() < field, flips);
    QCOMPARE(box.top() > field + input->height(), !flips);
    for (int i = 0; i < homes; ++i)
        press({ Qt::Key_Down });
    const HomeRow* last = places->rows().constLast();
    QVERIFY(last->hasFocus());
    QCOMPARE(last->visibleRegion().boundingRect(), last->rect());
    places->close();
}

void tst_HomesAndLanguages::aLongValueScrolls()
{
    const FieldHome longer{ u"IPTC:CopyrightNotice"_s, { u"All rights reserved, and more. "_s.repeated(20) } };
    const OneRow form(copyright({ rights, longer, studio }));
    HomesPopover* places = form.openPlaces();
    auto* value = places->rows().at(1)->findChild<SelectableText*>();
    const int line = value->fontMetrics().height();
    QVERIFY2(
        value->height() > 3 * line && value->height() < 4 * line + 2, qPrintable(QString::number(value->height())));
    QCOMPARE(value->verticalScrollBar()->value(), 0);
    for (int i = 0; i < 10; ++i)
        press({ Qt::Key_PageDown });
    QVERIFY(value->verticalScrollBar()->value() > 0);
    QCOMPARE(value->verticalScrollBar()->value(), value->verticalScrollBar()->maximum());
    places->close();
}

// The tag is what tells one place from the other.
void tst_HomesAndLanguages::aLongFileNameGivesWay()
{
    const QString name = u"20241012_174800 Lindqvist Horn evening series, the last of them.NEF"_s;
    const FieldHome own{ name + u": IPTC:CopyrightNotice"_s, { u"© 2024"_s }, false, true };
    const OneRow form(copyright({ rights, own }));
    HomesPopover* places = form.openPlaces();
    const auto tags = places->rows().at(1)->findChildren<ThemedLabel*>();
    const auto tag = std::find_if(
        tags.cbegin(), tags.cend(), [](const ThemedLabel* label) { return label->text().contains(u"IPTC:"_s); });
    QVERIFY(tag != tags.cend());
    const QString shown = (*tag)->text();
    QVERIFY2(shown.startsWith(u"2024"_s) && shown.endsWith(u".NEF: IPTC:CopyrightNotice"_s), qPrintable(shown));
    QVERIFY((*tag)->fontMetrics().horizontalAdvance(shown) <= (*tag)->width());
    QCOMPARE((*tag)->toolTip(), own.tag);
    places->close();
}

void tst_HomesAndLanguages::theMarkGivesTheKeyboardBack()
{
    const OneRow form(copyright({ rights, notice }));
    auto* mark = form.shown<MarkButton>();
    // While one types elsewhere, it comes and goes without a word.
    form.above->input()->setFocus();
    form.row->setState(copyright({}), false);
    form.row->setState(copyright({ rights, studio }), false);
    QVERIFY(form.above->input()->hasFocus());
    QVERIFY(mark->isVisible());
    mark->setFocus();
    form.row->setState(copyright({}), false);
    QVERIFY(!mark->isVisible());
    QVERIFY(form.row->input()->hasFocus());
}

void tst_HomesAndLanguages::theMarkLeavesTheOtherLinesReadable()
{
    FieldRowState state = copyright({ rights, notice });
    state.noteLine = u"This is no date"_s;
    state.namespaceLine = u"XMP-dc:Rights"_s;
    state.helpLine = u"Will be written to all 3 photos"_s;
    const OneRow form(state);
    QList<QWidget*> lines{ form.row->input(), form.shown<MarkButton>() };
    for (QLabel* label : form.row->findChildren<QLabel*>())
        if (label->isVisible() && label->text() != u"Copyright"_s)
            lines.append(label);
    QCOMPARE(lines.size(), 5);
    for (qsizetype i = 1; i < lines.size(); ++i)
        QVERIFY2(lines.at(i)->y() > lines.at(i - 1)->geometry().bottom(), qPrintable(QString::number(i)));
    QVERIFY(form.row->height() > lines.constLast()->geometry().bottom());
}

void tst_HomesAndLanguages::anotherPlaceIsUsed()
{
    Photos f;
    QVERIFY(f.open());
    f.known(u"a.jpg"_s);
    auto* mark = f.editor<MarkButton>(u"copyright"_s);
    QVERIFY(mark && mark->isVisible());
    QCOMPARE(mark->text(), u"2 of 3 places differ"_s);
    QVERIFY(!f.editor<MarkButton>(u"title"_s));
    mark->setFocus();
    press({ Qt::Key_Space, Qt::Key_Return });
    QCOMPARE(f.text(u"copyright"_s), u"Mara, all rights reserved"_s);
    QVERIFY(f.row(u"copyright"_s)->state().edited);
    QVERIFY(!mark->isVisible());
    QVERIFY(f.hasKeyboard(u"copyright"_s));
    f.model().discardSaveDialog();
    QVERIFY(mark->isVisible());
    f.model().selectAllPhotos();
    QVERIFY(!mark->isVisible());
}

// Of a photo whose edits go beside it: where each text stands, what is never written, and what "agree" would write.
void tst_HomesAndLanguages::theOwnFileIsNamed()
{
    Photos f;
    f.model().preferences().rawBeside.set(true);
    const QString raw = f.photos.folder.path(u"IMG_1.CR3"_s);
    QVERIFY(QFile::rename(f.photos.folder.path(u"a.jpg"_s), raw));
    exiftool({ u"-q"_s, u"-XMP-dc:Rights=Beside"_s, u"-XMP-photoshop:DateCreated=2024:01:01 10:00:00"_s,
        u"-XMP-exif:DateTimeOriginal=2024:01:02 10:00:00"_s, f.photos.folder.path(u"IMG_1.xmp"_s) });
    QVERIFY(f.open());
    f.show(u"IMG_1.CR3"_s);
    auto* mark = f.editor<MarkButton>(u"copyright"_s);
    QTRY_VERIFY(mark && mark->isVisible());
    QCOMPARE(mark->text(), u"3 of 4 places differ"_s);
    mark->setFocus();
    press({ Qt::Key_Space });
    auto* places = qobject_cast<HomesPopover*>(QApplication::activePopupWidget());
    QVERIFY(places);
    QStringList told;
    for (const HomeRow* row : places->rows())
        told.append(QAccessible::queryAccessibleInterface(const_cast<HomeRow*>(row))->text(QAccessible::Name) + u" = "_s
            + row->findChild<SelectableText*>()->toPlainText());
    QCOMPARE(told,
        (QStringList{ u"XMP-dc:Rights = Beside"_s, u"IMG_1.CR3: XMP-dc:Rights = Mara"_s,
            u"IMG_1.CR3: IPTC:CopyrightNotice = Mara, all rights reserved"_s,
            u"IMG_1.CR3: EXIF:Copyright = Studio"_s }));
    const QString foreign = u"The photo’s own file: read here, and never written"_s;
    QCOMPARE(labels(places).count(foreign), 3);
    const QBTextButton* agree = places->findChild<QBTextButton*>();
    QVERIFY(agree->isVisible());
    QVERIFY2(agree->toolTip().contains(u"in the sidecar"_s), qPrintable(agree->toolTip()));
    // What the file says can be taken all the same, into the sidecar.
    press({ Qt::Key_Return });
    QCOMPARE(f.text(u"copyright"_s), u"Mara"_s);
    f.model().preferences().saveDontAsk.set(true);
    f.model().requestSave();
    QVERIFY(f.photos.waitUntilIdle());
    QCOMPARE(exiftool({ u"-s3"_s, u"-XMP-dc:Rights"_s, f.photos.folder.path(u"IMG_1.xmp"_s) }).trimmed(), "Mara");
}

void tst_HomesAndLanguages::languagesOfOnePhoto()
{
    Photos f;
    QVERIFY(f.open());
    f.known(u"a.jpg"_s);
    QVERIFY(f.chip());
    QCOMPARE(f.chip()->shownText(), u"de fr"_s);
    QVERIFY(!f.row(de));
    click(f.chip());
    QCOMPARE(f.text(de), u"Eins"_s);
    QCOMPARE(f.text(fr), u"Un"_s);
    QVERIFY(f.hasKeyboard(de));
    QTest::keyClicks(keyboard(), u"!"_s);
    QCOMPARE(f.model().draftValues().value(de), f.text(de));
    QVERIFY(f.row(de)->state().edited && f.text(de).contains(u'!'));
    QVERIFY(!f.row(u"title"_s)->state().edited);
    QCOMPARE(f.row(de)->input()->accessibleName(), u"Title (German)"_s);
    // What will be taken away is still there, and comes back.
    click(button(f.row(fr), u"Remove French"_s));
    QVERIFY(f.model().editedSingle().contains(fr));
    QVERIFY(labels(f.row(fr)).contains(u"Will be taken away"_s));
    QVERIFY(f.chip()->accessibleName().contains(u"fr (will be taken away)"_s));
    click(button(f.row(fr), u"Bring French back"_s));
    QCOMPARE(f.text(fr), u"Un"_s);
    QVERIFY(!f.model().editedSingle().contains(fr));
    // Open stays open, with what the next photo has.
    f.show(u"b.jpg"_s);
    QCOMPARE(f.text(de), u"Zwei"_s);
    QVERIFY(!f.row(fr));
    f.show(u"c.jpg"_s);
    QVERIFY(!f.row(de) && !f.chip());
    f.show(u"a.jpg"_s);
    QCOMPARE(f.text(fr), u"Un"_s);
    f.row(fr)->input()->setFocus();
    QTest::keyClick(keyboard(), Qt::Key_Left, Qt::AltModifier);
    QVERIFY(!f.row(de) && !f.row(fr));
    QVERIFY(f.hasKeyboard(u"title"_s));
}

void tst_HomesAndLanguages::languagesOfSeveralPhotos()
{
    Photos f;
    QVERIFY(f.open());
    for (const QString& name : { u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s })
        f.show(name);
    f.model().selectAllPhotos();
    QTRY_VERIFY(f.chip());
    QCOMPARE(f.chip()->shownText(), u"de fr"_s);
    f.row(u"title"_s)->input()->setFocus();
    QTest::keyClick(keyboard(), Qt::Key_Right, Qt::AltModifier);
    QVERIFY(f.hasKeyboard(de));
    QCOMPARE(f.editor<QBTextField>(de)->placeholderText(), u"Multiple values — leave unchanged"_s);
    QTest::keyClicks(keyboard(), u"Alle"_s);
    QCOMPARE(f.model().batchValues().value(de), u"Alle"_s);
    auto* tick = f.editor<QBCheckbox>(de);
    QVERIFY(tick->isVisible() && tick->isChecked());
    QCOMPARE(tick->accessibleName(), u"Write Title (German) to all selected files"_s);
    click(tick);
    QVERIFY(!f.model().batchInclude().contains(de));
    click(button(f.row(fr), u"Remove French"_s));
    QVERIFY(labels(f.row(fr)).contains(u"Will be taken away from all 3 photos"_s));
    QCOMPARE(f.model().batchValues().value(fr, u"-"_s), QString());
    QVERIFY(f.model().batchInclude().contains(fr));
}

void tst_HomesAndLanguages::theFirstLanguageIsAdded()
{
    Photos f;
    QVERIFY(f.open());
    f.show(u"c.jpg"_s);
    const auto menu = [] { return qobject_cast<SearchMenu*>(QApplication::activePopupWidget()); };
    f.row(u"title"_s)->input()->setFocus();
    QVERIFY(button(f.row(u"title"_s), u"Add language"_s));
    QVERIFY(!button(f.row(u"description"_s), u"Add language"_s));
    QTest::keyClick(keyboard(), Qt::Key_Right, Qt::AltModifier);
    QVERIFY(menu());
    QTest::keyClicks(keyboard(), u"germ"_s);
    press({ Qt::Key_Return });
    QVERIFY(f.hasKeyboard(de));
    QTest::keyClicks(keyboard(), u"Titel"_s);
    QCOMPARE(f.model().draftValues().value(de), u"Titel"_s);
    // The next one, which is not in the list; the one that is there is not offered.
    click(button(f.row(de), u"Add language"_s));
    QVERIFY(menu());
    QTest::keyClicks(keyboard(), u"german"_s);
    QCOMPARE(menu()->list()->findItems(u"German"_s, Qt::MatchExactly).size(), 0);
    menu()->field()->clear();
    QTest::keyClicks(keyboard(), u"por"_s);
    QCOMPARE(menu()->list()->findItems(u"Portuguese"_s, Qt::MatchExactly).size(), 1);
    menu()->field()->clear();
    QTest::keyClicks(keyboard(), u"DE-at"_s);
    press({ Qt::Key_Return });
    QVERIFY(f.hasKeyboard(u"title@de-AT"_s));
    QCOMPARE(f.chip()->shownText(), u"de de-AT"_s);
    // What was only added goes at once, and the keyboard stays near.
    click(button(f.row(de), u"Remove German"_s));
    QVERIFY(!f.row(de));
    QVERIFY(f.hasKeyboard(u"title@de-AT"_s));
    click(button(f.row(u"title@de-AT"_s), u"Remove German (Austria)"_s));
    QVERIFY(!f.chip());
    QVERIFY(f.hasKeyboard(u"title"_s));
    QCOMPARE(f.model().unsavedCount(), 0);
}

// What is found out late stands above where one types, in a window that is too low for the form.
void tst_HomesAndLanguages::rowsThatAppearMoveNothingOneTypesIn()
{
    QSemaphore gate;
    Photos f([&gate](const QList<ImageRecord>& records, const ReadControl&) {
        gate.acquire();
        QHash<QUrl, PhotoDetails> found;
        for (const ImageRecord& record : records)
            found.insert(record.url, { .url = record.url, .disagreements = { { u"title"_s, { rights, notice } } } });
        return found;
    });
    QVERIFY(f.open({ 520, 500 }));
    QWidget* input = f.row(u"copyright"_s)->input();
    input->setFocus();
    f.settle();
    const int before = input->mapTo(f.view, QPoint()).y();
    QVERIFY(!f.editor<MarkButton>(u"title"_s));
    gate.release(100);
    f.known(u"a.jpg"_s);
    QTRY_VERIFY(f.editor<MarkButton>(u"title"_s));
    f.settle();
    QCOMPARE(input->mapTo(f.view, QPoint()).y(), before);
    QVERIFY(input->hasFocus());
}

QTEST_MAIN(tst_HomesAndLanguages)
#include "tst_HomesAndLanguages.moc"
