// The further fields of the IPTC standard in the inspector, as a person uses them: sections that fold, editors of their
// kinds, what is not known yet, several photos.
#include "app/model/fieldsets/FieldSets.h"
#include "app/model/words/CodeReplacements.h"
#include "app/model/words/FieldPasting.h"
#include "core/iptc/IptcSchema.h"
#include "core/iptc/StructureText.h"
#include "core/schema/FieldLanguages.h"
#include "tests/ui/UiSupport.h"
#include "tests/ui/inspector/InspectorFixture.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/cards/FoldingHeading.h"
#include "ui/controls/cards/ItemCard.h"
#include "ui/controls/pickers/CodePicker.h"
#include "ui/controls/pickers/CodePopover.h"
#include "ui/controls/pickers/CodesPicker.h"
#include "ui/controls/text/CountLine.h"
#include "ui/inspector/FieldBlock.h"
#include "ui/inspector/KeptField.h"
#include "ui/inspector/head/UnreadNotice.h"
#include "ui/inspector/iptc/StructureCard.h"
#include "ui/inspector/iptc/StructureCards.h"
#include "ui/inspector/iptc/StructureFields.h"
#include "ui/inspector/keywords/KeywordRows.h"
#include "ui/sheets/SaveDialogView.h"

#include <QAccessible>
#include <QClipboard>
#include <QJsonArray>
#include <QJsonObject>
#include <QScrollArea>
#include <QScrollBar>
#include <QSemaphore>
#include <QWindow>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

QString place(const QString& city)
{
    return StructureText::of(QJsonObject{ { u"City"_s, city }, { u"CountryName"_s, u"Japan"_s } });
}

// A structure with all that there may be in it.
QJsonObject filled(const StructureSpec& structure)
{
    QJsonObject members;
    for (const StructureMember& member : structure.members) {
        const StructureSpec* inner = IptcStructures::spec(member.structure);
        const QJsonValue value = inner ? QJsonValue(filled(*inner)) : QJsonValue(u"1"_s);
        members[member.name] = member.isSeveral ? QJsonValue(QJsonArray{ value }) : value;
        if (member.hasLanguages)
            members[member.name + u"-de"_s] = u"eins"_s;
    }
    return members;
}

PhotoDetails everything()
{
    PhotoDetails all;
    for (const FieldSpec& field : IptcSchema::all()) {
        const StructureSpec* structure = IptcStructures::spec(field.structure);
        const QString text = structure ? StructureText::of(filled(*structure)) : u"1"_s;
        if (field.isList())
            all.lists[field.id] = { text };
        else
            all.texts[field.id] = text;
        if (field.hasLanguages)
            all.texts[FieldLanguages::key(field.id, u"de"_s)] = u"eins"_s;
    }
    return all;
}

// What the keyboard comes to, as a screen reader finds it: in the order of the tree below the widget.
QList<QWidget*> readOut(QAccessibleInterface* from)
{
    QList<QWidget*> found;
    auto* widget = qobject_cast<QWidget*>(from->object());
    if (from->state().invisible)
        return found;
    if (widget && widget->focusPolicy() != Qt::NoFocus)
        found.append(widget);
    for (int i = 0; i < from->childCount(); ++i)
        if (QAccessibleInterface* child = from->child(i))
            found += readOut(child);
    return found;
}

// What is wrong with how it is told; "" for nothing.
QString faultOf(QWidget* widget)
{
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(widget);
    const QString name = told->text(QAccessible::Name);
    const QString what = QString::fromLatin1(widget->metaObject()->className()) + u' ' + name;
    if (name.isEmpty())
        return what + u"has no name"_s;
    if (told->role() == QAccessible::NoRole || told->role() == QAccessible::Client)
        return what + u" has no role"_s;
    if (told->text(QAccessible::Description) == name)
        return what + u" says its name twice"_s;
    if (told->role() == QAccessible::ComboBox && !told->textInterface())
        return what + u" does not tell its value"_s;
    return {};
}

// Whether the parts stand one below the other, or beside each other.
QStringList leaps(const QWidget& form, const QList<QWidget*>& parts)
{
    QStringList found;
    for (qsizetype i = 1; i < parts.size(); ++i) {
        const QWidget* above = parts.at(i - 1);
        const QWidget* below = parts.at(i);
        if (below->mapTo(&form, QPoint(0, below->height())).y() <= above->mapTo(&form, QPoint()).y())
            found.append(u"from %1 up to %2"_s.arg(above->accessibleName(), below->accessibleName()));
    }
    return found;
}

// Three photos: the first holds much, the second some of it, the third nothing. Nobody knows what, before the gate
// lets a look at them through; it stands open at first.
class Photos : public InspectorFixture {
public:
    Photos()
    {
        photos.services.detailsDelay = {};
        photos.lookAtDetails([this](const QList<ImageRecord>& records, const ReadControl&) {
            const QSemaphoreReleaser pass((gate.acquire(), gate));
            QHash<QUrl, PhotoDetails> found;
            for (const ImageRecord& record : records) {
                found.insert(record.url, held.value(record.fileName));
                found[record.url].url = record.url;
            }
            return found;
        });
        held[u"a.jpg"_s].texts = { { u"iptc.altText"_s, u"A lake"_s }, { u"iptc.altText@de"_s, u"Ein See"_s },
            { u"iptc.jobTitle"_s, u"Photographer"_s }, { u"iptc.countryCode"_s, u"JP"_s },
            { u"iptc.modelReleaseStatus"_s, u"MR-UMR"_s }, { u"iptc.maxWidth"_s, u"6000"_s } };
        held[u"a.jpg"_s].lists = { { u"iptc.locationsShown"_s, { place(u"Kyoto"_s), place(u"Nara"_s) } },
            { u"iptc.organisationNames"_s, { u"Lake, Sons & Co."_s } }, { u"iptc.subjectCodes"_s, { u"15054000"_s } } };
        held[u"b.jpg"_s].texts = { { u"iptc.jobTitle"_s, u"Editor"_s } };
        for (const QString& name : jpgs(u"abc"_s))
            add(name, name == "a.jpg" ? QStringList{ u"-XMP-photoshop:Country=Japan"_s } : QStringList());
    }
    void show(const QString& name)
    {
        model().discardSaveDialog();
        click(name);
        known(name);
    }
    void known(const QString& name)
    {
        QTRY_VERIFY(model().details(photos.url(name)));
        settle();
    }
    // The first two are selected, and known; of what they hold one text is the same.
    bool openTwo()
    {
        held[u"b.jpg"_s].texts.insert(u"iptc.modelReleaseStatus"_s, u"MR-UMR"_s);
        if (!open())
            return false;
        photos.select(u"ab"_s);
        known(u"a.jpg"_s);
        known(u"b.jpg"_s);
        return !QTest::currentTestFailed();
    }
    FoldingHeading* heading(const QString& title) const
    {
        for (FoldingHeading* heading : view->findChildren<FoldingHeading*>())
            if (heading->text() == title && heading->isVisible())
                return heading;
        return nullptr;
    }
    QString summary(const QString& title) const
    {
        const FoldingHeading* found = heading(title);
        return found ? found->summary().text() : u"no such section"_s;
    }
    void unfold(const QString& title) const
    {
        QTest::keyClick(heading(title), Qt::Key_Right);
        settle();
    }
    // Of the form that scrolls.
    QRect inView(const QWidget* widget) const
    {
        const QWidget* viewport = view->findChild<QScrollArea*>()->viewport();
        return { widget->mapTo(viewport, QPoint()), widget->size() };
    }
    int room() const { return view->findChild<QScrollArea*>()->viewport()->height(); }
    // So that the widget begins this far above the lower edge.
    void scroll(const QWidget* widget, int above) const
    {
        QScrollBar* bar = view->findChild<QScrollArea*>()->verticalScrollBar();
        bar->setValue(bar->value() + inView(widget).top() - room() + above);
    }
    QString placeholder(const QString& id) const { return row(id)->state().placeholder; }

    QSemaphore gate{ 1 };
    QMap<QString, PhotoDetails> held;
};

}  // namespace

class tst_IptcForm : public QObject {
    Q_OBJECT

private slots:
    void sectionsAreThereWhereAPhotoFillsThem();
    void sectionsFold();
    void addedFieldsUnfoldTheirSection();
    void editorsOfAllKinds();
    void structuresAreCards();
    void allIsReadInItsOrder();
    void whatOpensIsInView_data();
    void whatOpensIsInView();
    void whatIsPressedStays();
    void alternativeTextIsCounted();
    void nothingIsTakenBeforeItIsKnown();
    void whatCannotBeReadSaysSo();
    void severalPhotos();
    void severalPhotosTellHowManyHoldSomething();
    void besideAChosenSet();
    void besideASetInABatch();
    void emptyOnesThatAreWanted();
    void scenesAreCodesOrAnyText_data();
    void scenesAreCodesOrAnyText();
    void whatASaveTells();
    void fieldsAreCopiedToAnotherPhoto();
};

// Nothing is made for a photo that holds nothing of it.
void tst_IptcForm::sectionsAreThereWhereAPhotoFillsThem()
{
    Photos f;
    QVERIFY(f.open());
    f.show(u"c.jpg"_s);
    QVERIFY(f.view->findChildren<FoldingHeading*>().isEmpty());
    QVERIFY(!f.row(u"iptc.altText"_s));

    f.show(u"a.jpg"_s);
    QCOMPARE(f.summary(u"CONTACT"_s), u"Photographer"_s);
    QCOMPARE(f.summary(u"LOCATION SHOWN"_s), u"Kyoto, Japan · 1 more"_s);
    QCOMPARE(f.summary(u"THINGS SHOWN"_s), u"Lake, Sons & Co."_s);
    QCOMPARE(f.summary(u"IMAGE"_s), u"Largest width 6000"_s);
    QVERIFY(!f.summary(u"PEOPLE"_s).contains(u"MR-"));
    QVERIFY(!f.row(u"iptc.jobTitle"_s));
    QVERIFY(f.row(u"description"_s)->geometry().bottom() < f.row(u"iptc.altText"_s)->y());
    QVERIFY(f.row(u"iptc.altText"_s)->y() < f.row(u"keywords"_s)->y());
    QVERIFY(f.row(u"country"_s)->y() < f.row(u"iptc.countryCode"_s)->y());

    f.show(u"c.jpg"_s);
    for (const FoldingHeading* heading : f.view->findChildren<FoldingHeading*>())
        QVERIFY2(!heading->isVisible(), qPrintable(heading->text()));
}

void tst_IptcForm::sectionsFold()
{
    Photos f;
    QVERIFY(f.open());
    f.show(u"a.jpg"_s);
    f.unfold(u"CONTACT"_s);
    auto* job = f.editor<QBTextField>(u"iptc.jobTitle"_s);
    QVERIFY(job);
    QCOMPARE(job->text(), u"Photographer"_s);
    // By keyboard: from the heading into its row.
    f.heading(u"CONTACT"_s)->setFocus();
    QTest::keyClick(f.heading(u"CONTACT"_s), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(job));
    QTest::keyClicks(job, u"!"_s);
    QVERIFY(f.model().editedSingle().contains(u"iptc.jobTitle"_s));
    QVERIFY(f.heading(u"CONTACT"_s)->isEdited());

    QTest::keyClick(f.heading(u"CONTACT"_s), Qt::Key_Left);
    f.settle();
    QVERIFY(!f.row(u"iptc.jobTitle"_s));
    QVERIFY(f.heading(u"CONTACT"_s)->isEdited());
    QCOMPARE(f.heading(u"CONTACT"_s)->accessibleName(), u"CONTACT"_s);
    QVERIFY(f.heading(u"CONTACT"_s)->accessibleDescription().contains(f.summary(u"CONTACT"_s)));
    // It stays as it is from photo to photo, and another photo's text cannot be undone there.
    f.unfold(u"CONTACT"_s);
    f.show(u"b.jpg"_s);
    job = f.editor<QBTextField>(u"iptc.jobTitle"_s);
    QVERIFY(job);
    QCOMPARE(job->text(), u"Editor"_s);
    QVERIFY(!job->isUndoAvailable());
    QVERIFY(!f.heading(u"CONTACT"_s)->isEdited());
}

void tst_IptcForm::addedFieldsUnfoldTheirSection()
{
    Photos f;
    QVERIFY(f.open());
    f.show(u"c.jpg"_s);
    f.model().addKnownField(u"iptc.imageGuid"_s);
    QTRY_VERIFY(f.row(u"iptc.imageGuid"_s) && f.row(u"iptc.imageGuid"_s)->input()->hasFocus());
    QTest::keyClicks(QApplication::focusWidget(), u"4711"_s);
    QCOMPARE(f.model().draftValues().value(u"iptc.imageGuid"_s), u"4711"_s);
    QTest::mouseClick(button(f.row(u"iptc.imageGuid"_s), u"Remove this field"_s), Qt::LeftButton);
    QVERIFY(!f.heading(u"IMAGE"_s));
    QCOMPARE(f.model().unsavedCount(), 0);
}

void tst_IptcForm::editorsOfAllKinds()
{
    Photos f;
    QVERIFY(f.open());
    f.show(u"a.jpg"_s);
    // A number that is none is told, and stays as it was typed.
    f.unfold(u"IMAGE"_s);
    auto* width = f.editor<QBTextField>(u"iptc.maxWidth"_s);
    width->selectAll();
    QTest::keyClicks(width, u"wide"_s);
    QCOMPARE(f.row(u"iptc.maxWidth"_s)->state().noteLine, u"Not a whole number"_s);
    // A code that nobody knows is shown, and kept.
    f.unfold(u"PEOPLE"_s);
    auto* release = f.editor<CodePicker>(u"iptc.modelReleaseStatus"_s);
    QCOMPARE(release->code(), u"MR-UMR"_s);
    emit release->picked(u"MR-NON"_s);
    QCOMPARE(f.model().draftValues().value(u"iptc.modelReleaseStatus"_s), u"MR-NON"_s);
    QCOMPARE(release->code(), u"MR-NON"_s);
    f.model().setSingle(u"iptc.modelReleaseStatus"_s, u"MR-ODD"_s);
    QCOMPARE(release->code(), u"MR-ODD"_s);
    f.unfold(u"SUBJECTS"_s);
    auto* subjects = f.editor<CodesPicker>(u"iptc.subjectCodes"_s);
    emit subjects->added(u"01000000"_s);
    QCOMPARE(subjects->codes(), (QStringList{ u"15054000"_s, u"01000000"_s }));
    // Names may hold commas and bars; lines are several.
    f.unfold(u"THINGS SHOWN"_s);
    auto* names = f.editor<KeywordEditor>(u"iptc.organisationNames"_s);
    QTest::keyClicks(names->entry(), u"Reed | Bank, Inc. > Horn"_s);
    QTest::keyClick(names->entry(), Qt::Key_Return);
    QApplication::clipboard()->setText(u"One, Ltd.\nTwo"_s);
    QTest::keySequence(names->entry(), QKeySequence::Paste);
    QCOMPARE(f.model().draftLists().value(u"iptc.organisationNames"_s),
        (QStringList{ u"Lake, Sons & Co."_s, u"Reed | Bank, Inc. > Horn"_s, u"One, Ltd."_s, u"Two"_s }));
    // Ages are numbers, each of them.
    f.model().addKnownField(u"iptc.modelAges"_s);
    f.settle();
    auto* ages = f.editor<KeywordEditor>(u"iptc.modelAges"_s);
    QTest::keyClicks(ages->entry(), u"old"_s);
    QTest::keyClick(ages->entry(), Qt::Key_Return);
    QCOMPARE(f.row(u"iptc.modelAges"_s)->state().noteLine, u"Not a whole number"_s);
}

void tst_IptcForm::structuresAreCards()
{
    Photos f;
    QVERIFY(f.open());
    f.show(u"a.jpg"_s);
    f.unfold(u"LOCATION SHOWN"_s);
    const auto cards = [&f](const QString& id) { return f.editor<StructureCards>(id); };
    const auto member = [&](const QString& id, const QString& name, int card = 0) {
        return cards(id)->list().card(card)->fields()->input(name);
    };
    const auto type = [](QWidget* into, const QString& text) {
        into->setFocus();
        QTest::keyClicks(into, text);
    };
    QCOMPARE(cards(u"iptc.locationsShown"_s)->list().items(), (QStringList{ place(u"Kyoto"_s), place(u"Nara"_s) }));
    cards(u"iptc.locationsShown"_s)->open(1);
    f.settle();
    // Tab goes through what has just been opened.
    StructureCard* second = cards(u"iptc.locationsShown"_s)->list().card(1);
    second->widget()->input()->setFocus();
    const auto isInFields = [second] { return second->fields()->isAncestorOf(QApplication::focusWidget()); };
    for (int i = 0; i < 2 && !isInFields(); ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(isInFields());
    auto* city = qobject_cast<QBTextField*>(member(u"iptc.locationsShown"_s, u"City"_s, 1));
    city->selectAll();
    type(city, u"Uji"_s);
    QCOMPARE(
        f.model().draftLists().value(u"iptc.locationsShown"_s), (QStringList{ place(u"Kyoto"_s), place(u"Uji"_s) }));
    QCOMPARE(f.heading(u"LOCATION SHOWN"_s)->summary().text(), u"Kyoto, Japan · 1 more"_s);
    QVERIFY(city->hasFocus());
    // Tab goes from the cards on to the next section.
    f.heading(u"SUBJECTS"_s)->setFocus();
    QTest::keyClick(f.heading(u"SUBJECTS"_s), Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), cards(u"iptc.locationsShown"_s)->list().addButton());
    // One structure is a text; several photos gain those that are typed.
    f.model().addKnownField(u"iptc.contact"_s);
    QTRY_VERIFY(cards(u"iptc.contact"_s) && cards(u"iptc.contact"_s)->isAncestorOf(QApplication::focusWidget()));
    type(member(u"iptc.contact"_s, u"CiAdrCity"_s), u"Horn"_s);
    QCOMPARE(f.model().draftValues().value(u"iptc.contact"_s), uR"({"CiAdrCity":"Horn"})"_s);
    f.model().discardSaveDialog();
    f.photos.select(u"ab"_s);
    f.known(u"b.jpg"_s);
    QCOMPARE(cards(u"iptc.locationsShown"_s)->list().items(), QStringList());
    cards(u"iptc.locationsShown"_s)->add();
    type(member(u"iptc.locationsShown"_s, u"City"_s), u"Uji"_s);
    QCOMPARE(f.model().batchLists().value(u"iptc.locationsShown"_s), QStringList{ uR"({"City":"Uji"})"_s });
    QVERIFY(f.row(u"iptc.locationsShown"_s)->state().included);
}

// From end to end, with every field filled, every section and every card open: the tree of a screen reader, and Tab.
void tst_IptcForm::allIsReadInItsOrder()
{
    Photos f;
    f.held[u"a.jpg"_s] = everything();
    QVERIFY(f.open());
    f.show(u"a.jpg"_s);
    for (const FieldSpec& field : FieldSchema::all())
        f.model().addKnownField(field.id);
    f.settle();
    for (const FoldingHeading* heading : f.view->findChildren<FoldingHeading*>())
        f.unfold(heading->text());
    for (const FieldSpec& field : FieldSchema::everyField())
        if (FieldRow* row = f.row(field.id))
            emit row->languagesAsked(true);
    for (int floor = 0; floor < 3; ++floor)
        for (StructureList* list : f.view->findChildren<StructureList*>())
            list->open(0);
    QTest::qWait(50);
    auto* form = f.view->findChild<InspectorForm*>();
    const QList<QWidget*> told = readOut(QAccessible::queryAccessibleInterface(form));
    QStringList faults = leaps(*form, told);
    qsizetype onScreen = 0;
    for (QWidget* widget : form->findChildren<QWidget*>()) {
        const bool isControl = widget->isVisible() && !widget->isWindow() && widget->focusPolicy() != Qt::NoFocus;
        onScreen += isControl ? 1 : 0;
        if (const QString fault = isControl ? faultOf(widget) : QString(); !fault.isEmpty())
            faults.append(fault);
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    QCOMPARE(told.size(), onScreen);
    QVERIFY(onScreen > 250);

    // Tab comes to the same, but for what arrows reach.
    QList<QWidget*> walked;
    form->row(u"title"_s)->input()->setFocus();
    while (form->isAncestorOf(QApplication::focusWidget()) && !walked.contains(QApplication::focusWidget())) {
        walked.append(QApplication::focusWidget());
        QTest::keyClick(walked.constLast(), Qt::Key_Tab);
    }
    faults = leaps(*form, walked);
    for (QWidget* widget : told)
        if (widget->isEnabled() && widget->focusPolicy() & Qt::TabFocus && !walked.contains(widget))
            faults.append(u"Tab does not come to "_s + widget->accessibleName());
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

void tst_IptcForm::whatOpensIsInView_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<QSize>("window");
    for (const QString& how : { u"key"_s, u"mouse"_s, u"add"_s, u"section"_s })
        for (const int height : { 560, 300 })
            QTest::addRow("%s, %d", qPrintable(how), height) << how << QSize(520, height);
    QTest::addRow("key, narrow") << u"key"_s << QSize(330, 800);
}

// All of it where there is room, else its head, whoever opened it at the lower edge.
void tst_IptcForm::whatOpensIsInView()
{
    QFETCH(QString, how);
    QFETCH(QSize, window);
    Photos f;
    QVERIFY(f.open(window));
    f.show(u"a.jpg"_s);
    const QWidget* opened = nullptr;
    if (how == "section") {
        opened = f.heading(u"LOCATION SHOWN"_s)->parentWidget();
        f.heading(u"LOCATION SHOWN"_s)->setFocus();
        f.scroll(opened, 40);
        f.unfold(u"LOCATION SHOWN"_s);
    } else {
        f.unfold(u"LOCATION SHOWN"_s);
        StructureList& list = f.editor<StructureCards>(u"iptc.locationsShown"_s)->list();
        QWidget* line = how == "add" ? static_cast<QWidget*>(list.addButton()) : list.card(1)->widget()->input();
        line->setFocus();
        f.scroll(line, 44);
        if (how == "mouse")
            QTest::mouseClick(line, Qt::LeftButton);
        else
            QTest::keyClick(line, Qt::Key_Space);
        opened = list.card(how == "add" ? 2 : 1)->widget();
    }
    // What is laid out later moves nothing away.
    QTest::qWait(50);
    const QRect seen = f.inView(opened);
    QVERIFY2(seen.height() > 90, qPrintable(QString::number(seen.height())));
    const QString told = u"%1 to %2 of %3"_s.arg(seen.top()).arg(seen.bottom()).arg(f.room());
    if (seen.height() <= f.room())
        QVERIFY2(seen.top() >= 0 && seen.bottom() < f.room(), qPrintable(told));
    else
        QVERIFY2(seen.top() >= 0 && seen.top() < 20, qPrintable(told));
    const QRect focus = f.inView(QApplication::focusWidget());
    QVERIFY2(focus.top() >= 0 && focus.bottom() < f.room(), qPrintable(told));
    // What "More" brings, too.
    QAbstractButton* more = button(opened, u"More fields of this place"_s);
    if (!more)
        return;
    more->setFocus();
    f.scroll(more, 30);
    QTest::keyClick(more, Qt::Key_Space);
    QTest::qWait(50);
    const QWidget* first = QApplication::focusWidget()->parentWidget();
    QVERIFY2(f.inView(first).top() >= 0 && f.inView(first).bottom() < f.room(),
        qPrintable(QString::number(f.inView(first).bottom() - f.room())));
}

// A line that comes under the lower edge is scrolled in when the mouse has let it go: it is clicked.
void tst_IptcForm::whatIsPressedStays()
{
    Photos f;
    QVERIFY(f.open({ 520, 560 }));
    f.show(u"a.jpg"_s);
    f.unfold(u"LOCATION SHOWN"_s);
    const StructureList& list = f.editor<StructureCards>(u"iptc.locationsShown"_s)->list();
    const QWidget* line = list.card(1)->widget()->input();
    f.scroll(line, 12);
    const QPoint at = line->mapTo(f.window.get(), QPoint(40, 6));
    QTest::mousePress(f.window->windowHandle(), Qt::LeftButton, {}, at);
    f.settle();
    QTest::mouseRelease(f.window->windowHandle(), Qt::LeftButton, {}, at);
    QTRY_VERIFY(list.card(1)->isOpen());
    QTest::qWait(100);
    QVERIFY(f.inView(list.card(1)->widget()).bottom() < f.room());
}

void tst_IptcForm::alternativeTextIsCounted()
{
    Photos f;
    QVERIFY(f.open());
    f.show(u"a.jpg"_s);
    auto* count = f.editor<CountLine>(u"iptc.altText"_s);
    QVERIFY(count && count->isVisible());
    QCOMPARE(count->count(), 6);
    auto* area = f.editor<QBTextArea>(u"iptc.altText"_s);
    area->selectAll();
    QTest::keyClicks(area, u"x"_s.repeated(251));
    QVERIFY(count->isBeyond());
    QCOMPARE(f.model().draftValues().value(u"iptc.altText"_s).size(), 251);
    f.model().addKnownField(u"iptc.extendedDescription"_s);
    f.settle();
    QVERIFY(!f.editor<CountLine>(u"iptc.extendedDescription"_s));
    // In a further language, too.
    emit f.row(u"iptc.altText"_s)->languagesAsked(true);
    QVERIFY(f.editor<CountLine>(u"iptc.altText@de"_s));
}

// What is on screen of the photo before stays for a moment, and takes nothing; then it is to be seen that it is read.
void tst_IptcForm::nothingIsTakenBeforeItIsKnown()
{
    Photos f;
    QVERIFY(f.open());
    f.show(u"a.jpg"_s);
    f.unfold(u"CONTACT"_s);
    f.gate.acquire();
    auto* job = f.editor<QBTextField>(u"iptc.jobTitle"_s);
    job->setFocus();
    f.view->keptField().keep();
    f.model().discardSaveDialog();
    f.click(u"b.jpg"_s);
    QVERIFY(!f.model().knowsDetails());
    QVERIFY(job->isVisible());
    QVERIFY(!job->hasFocus());
    emit f.row(u"iptc.jobTitle"_s)->textEdited(u"Other"_s);
    QCOMPARE(f.model().unsavedCount(), 0);
    QTRY_VERIFY(!f.row(u"iptc.jobTitle"_s));
    QVERIFY(!f.row(u"iptc.altText"_s));

    f.gate.release();
    f.known(u"b.jpg"_s);
    QTRY_VERIFY(job->hasFocus());
    QCOMPARE(job->text(), u"Editor"_s);
    QVERIFY(!job->isUndoAvailable());
    // One that was added is on screen in any case.
    f.model().addKnownField(u"iptc.altText"_s);
    QVERIFY(!f.row(u"iptc.altText"_s)->state().unread);
    // A place that is filled in knows nothing of a code that may be there.
    f.gate.acquire();
    f.click(u"c.jpg"_s);
    f.model().addKnownField(u"iptc.countryCode"_s);
    f.model().applyLocation({ .country = u"Japan"_s, .countryCode = u"JP"_s });
    QVERIFY(f.model().editedSingle().contains(u"country"_s));
    QVERIFY(!f.model().editedSingle().contains(u"iptc.countryCode"_s));
    f.gate.release();
}

void tst_IptcForm::whatCannotBeReadSaysSo()
{
    Photos f;
    std::atomic<bool> isBroken = true;
    f.photos.lookAtDetails([&](const QList<ImageRecord>& records, const ReadControl&) {
        const QSemaphoreReleaser pass((f.gate.acquire(), f.gate));
        QHash<QUrl, PhotoDetails> found;
        for (const ImageRecord& record : records)
            if (!isBroken || record.fileName != u"b.jpg")
                found.insert(record.url, { .url = record.url, .texts = { { u"iptc.jobTitle"_s, u"Editor"_s } } });
        return found;
    });
    QVERIFY(f.open());
    f.show(u"a.jpg"_s);
    f.model().fieldSets().choose(u"Press"_s);
    f.unfold(u"CONTACT"_s);
    f.row(u"iptc.altText"_s)->input()->setFocus();
    f.click(u"b.jpg"_s);
    const auto* notice = f.view->findChild<UnreadNotice*>();
    QTRY_VERIFY(notice->isVisible());
    f.settle();
    QCOMPARE(notice->accessibleName(), u"Some fields could not be read (ExifTool told nothing of it)"_s);
    QVERIFY(labels(notice).contains(notice->accessibleName()));
    QVERIFY(
        notice->mapTo(f.view, QPoint(0, notice->height())).y() <= f.row(u"description"_s)->mapTo(f.view, QPoint()).y());
    QAccessibleInterface* block =
        QAccessible::queryAccessibleInterface(f.row(u"iptc.altText"_s)->findChild<FieldBlock*>());
    QCOMPARE(block->text(QAccessible::Name), u"Could not be read (ExifTool told nothing of it)"_s);
    QCOMPARE(block->role(), QAccessible::StaticText);
    QCOMPARE(f.summary(u"CONTACT"_s), block->text(QAccessible::Name));
    // It takes nothing, and nobody is led into what is not seen.
    QVERIFY(!f.row(u"iptc.altText"_s)->input()->isVisible());
    QTest::keyClicks(QApplication::focusWidget(), u"x"_s);
    emit f.row(u"iptc.altText"_s)->textEdited(u"Other"_s);
    QVERIFY(!f.row(u"description"_s)->state().languages.isPossible);
    QCOMPARE(f.model().unsavedCount(), 0);

    // Again, in vain: the keyboard stays at the button.
    f.gate.acquire();
    notice->tryAgain()->setFocus();
    QTest::keyClick(notice->tryAgain(), Qt::Key_Space);
    QTRY_COMPARE(notice->accessibleName(), u"Reading metadata"_s);
    QCOMPARE(f.row(u"iptc.altText"_s)->state().unreadText, QString());
    f.gate.release();
    QTRY_VERIFY(notice->accessibleName().startsWith(u"Some fields"_s));
    QVERIFY(notice->tryAgain()->hasFocus());
    // And with success.
    isBroken = false;
    QTest::keyClick(notice->tryAgain(), Qt::Key_Space);
    f.known(u"b.jpg"_s);
    QVERIFY(!notice->isVisible());
    QVERIFY(f.row(u"iptc.altText"_s)->input()->isVisible() && f.row(u"description"_s)->state().languages.isPossible);
    QCOMPARE(f.summary(u"CONTACT"_s), u"Editor"_s);
    QVERIFY(QApplication::focusWidget() && f.view->isAncestorOf(QApplication::focusWidget()));
}

void tst_IptcForm::severalPhotos()
{
    Photos f;
    QVERIFY(f.openTwo());
    f.unfold(u"CONTACT"_s);
    f.unfold(u"PEOPLE"_s);
    f.unfold(u"THINGS SHOWN"_s);
    QCOMPARE(f.placeholder(u"iptc.jobTitle"_s), u"Multiple values — leave unchanged"_s);
    QCOMPARE(f.editor<CodePicker>(u"iptc.modelReleaseStatus"_s)->code(), u"MR-UMR"_s);
    auto* names = f.editor<KeywordEditor>(u"iptc.organisationNames"_s);
    QCOMPARE(names->chips(), QStringList());
    QTest::keyClicks(names->entry(), u"Boats, Inc."_s);
    QTest::keyClick(names->entry(), Qt::Key_Return);
    QCOMPARE(f.model().batchLists().value(u"iptc.organisationNames"_s), QStringList{ u"Boats, Inc."_s });
    QVERIFY(f.heading(u"THINGS SHOWN"_s)->isEdited());
    f.row(u"iptc.jobTitle"_s)->input()->setFocus();
    QTest::keyClicks(f.row(u"iptc.jobTitle"_s)->input(), u"Staff"_s);
    QCOMPARE(f.model().batchValues().value(u"iptc.jobTitle"_s), u"Staff"_s);
    QTest::mouseClick(f.row(u"iptc.jobTitle"_s)->tabStops().constFirst(), Qt::LeftButton);
    QCOMPARE(f.model().batchInclude(), QSet<QString>());
}

void tst_IptcForm::severalPhotosTellHowManyHoldSomething()
{
    Photos f;
    QVERIFY(f.openTwo());
    QCOMPARE(f.summary(u"LOCATION SHOWN"_s), u"in 1 of 2"_s);
    QCOMPARE(f.summary(u"CONTACT"_s), u"Job title in all 2"_s);
    for (const QString& title : { u"CONTACT"_s, u"PEOPLE"_s, u"LOCATION SHOWN"_s, u"THINGS SHOWN"_s })
        f.unfold(title);
    const auto held = [&f](const QString& id) { return f.row(id)->state().heldLine; };
    QCOMPARE(held(u"iptc.altText"_s), u"in 1 of 2"_s);
    QCOMPARE(held(u"iptc.jobTitle"_s), u"in all 2"_s);
    QCOMPARE(held(u"iptc.locationsShown"_s), u"in 1 of 2"_s);
    QCOMPARE(held(u"iptc.organisationNames"_s), u"in 1 of 2"_s);
    QVERIFY(f.row(u"iptc.organisationNames"_s)->input()->accessibleDescription().contains(u"in 1 of 2"_s));
    // What all of them hold is to be seen.
    QCOMPARE(held(u"iptc.modelReleaseStatus"_s), QString());
    // While one was not looked at.
    f.gate.acquire();
    f.photos.select(u"abc"_s);
    QCOMPARE(held(u"iptc.organisationNames"_s), u"in 1 or more of 3"_s);
    f.gate.release();
    QTRY_COMPARE(held(u"iptc.organisationNames"_s), u"in 1 of 3"_s);
    f.photos.select(u"a"_s);
    f.settle();
    QCOMPARE(held(u"iptc.organisationNames"_s), QString());
}

void tst_IptcForm::besideAChosenSet()
{
    const QString title = u"ALSO IN THIS PHOTO"_s;
    Photos f;
    QVERIFY(f.open());
    f.show(u"a.jpg"_s);
    QVERIFY(!f.heading(title));
    f.unfold(u"LOCATION SHOWN"_s);
    f.model().fieldSets().choose(u"Captions"_s);
    f.settle();
    QCOMPARE(f.summary(title),
        u"Country, Country code, Job title, Model releases, Locations shown, Subject codes, Organisations, "
        "Largest width"_s);
    QVERIFY(!f.row(u"country"_s) && !f.heading(u"LOCATION SHOWN"_s) && f.row(u"iptc.altText"_s));
    QVERIFY(f.heading(title)->mapTo(f.view, QPoint()).y() > f.row(u"headline"_s)->mapTo(f.view, QPoint()).y());

    // By keyboard into its rows, in their order; what is edited stays there.
    f.heading(title)->setFocus();
    QTest::keyClick(f.heading(title), Qt::Key_Return);
    f.settle();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), f.row(u"country"_s)->input());
    QTest::keyClicks(QApplication::focusWidget(), u"!"_s);
    QCOMPARE(f.model().draftValues().value(u"country"_s), u"!"_s);
    QVERIFY(f.heading(title)->isEdited() && f.row(u"country"_s)->input()->hasFocus());
    // Its own section would have named it.
    QVERIFY(f.row(u"iptc.locationsShown"_s)->hasLabel());
    for (int i = 0; i < 40 && QApplication::focusWidget() != f.row(u"iptc.maxWidth"_s)->input(); ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), f.row(u"iptc.maxWidth"_s)->input());

    // Back: each in its own section again, and visible.
    f.model().fieldSets().choose(FieldSets::usual());
    f.settle();
    QVERIFY(!f.heading(title));
    QVERIFY(f.row(u"country"_s)->isVisible() && f.row(u"iptc.locationsShown"_s)->isVisible());
    QVERIFY(!f.row(u"iptc.locationsShown"_s)->hasLabel());
    QCOMPARE(f.row(u"country"_s)->contentsMargins(), QMargins());
    QVERIFY(f.row(u"place"_s)->y() < f.row(u"country"_s)->y());
    // Who asks for one finds it.
    f.model().fieldSets().choose(u"Accessibility"_s);
    f.settle();
    QTest::keyClick(f.heading(title), Qt::Key_Left);
    f.settle();
    QVERIFY(!f.row(u"country"_s));
    QVERIFY(f.view->findChild<InspectorForm*>()->reveal(u"country"_s));
}

// Keywords bring what several photos hold of them along.
void tst_IptcForm::besideASetInABatch()
{
    Photos f;
    f.add(u"d.jpg"_s, { u"-XMP-dc:Subject=pier"_s });
    QVERIFY(f.open());
    f.photos.select(u"ad"_s);
    f.known(u"a.jpg"_s);
    f.known(u"d.jpg"_s);
    f.model().fieldSets().choose(u"Rights"_s);
    f.settle();
    const auto* rows = f.view->findChild<KeywordRows*>();
    QVERIFY(rows && !rows->isVisible());
    QVERIFY(f.summary(u"ALSO IN THESE PHOTOS"_s).startsWith(u"Alternative text, Keywords, Country"_s));
    f.unfold(u"ALSO IN THESE PHOTOS"_s);
    QTRY_VERIFY(rows->isVisible());
    QVERIFY(rows->mapTo(f.view, QPoint()).y() > f.row(u"keywords"_s)->mapTo(f.view, QPoint()).y());
    QTest::keyClicks(f.row(u"keywords"_s)->input(), u"boat"_s);
    QTest::keyClick(f.row(u"keywords"_s)->input(), Qt::Key_Return);
    QCOMPARE(f.model().batchLists().value(u"keywords"_s), QStringList{ u"boat"_s });
    f.model().fieldSets().choose(FieldSets::usual());
    QTRY_VERIFY(rows->isVisible());
    QCOMPARE(rows->parentWidget(), f.row(u"keywords"_s)->parentWidget());
}

// Each has its dashes, and loses them with its first value.
void tst_IptcForm::emptyOnesThatAreWanted()
{
    Photos f;
    QVERIFY(f.open());
    f.show(u"c.jpg"_s);
    const QStringList ids{ u"date"_s, u"rating"_s, u"offsetOriginal"_s, u"iptc.contact"_s, u"iptc.locationsShown"_s };
    FieldSets& sets = f.model().fieldSets();
    sets.edit();
    sets.store({ { {}, { u"Mine"_s, ids, QSet<QString>(ids.cbegin(), ids.cend()) } } }, u"Mine"_s);
    f.unfold(u"CONTACT"_s);
    f.unfold(u"LOCATION SHOWN"_s);
    const auto look = [&f](const QString& id) {
        QWidget* editor = f.row(id)->findChild<StructureCards*>();
        if (!editor)
            editor = f.row(id)->input();
        return editor->grab().toImage();
    };
    QApplication::setActiveWindow(nullptr);
    f.window->setFocus();
    QMap<QString, QImage> wanted;
    for (const QString& id : ids) {
        QVERIFY2(f.row(id) && f.row(id)->state().wanted, qPrintable(id));
        wanted.insert(id, look(id));
    }
    QCOMPARE(f.row(u"rating"_s)->state().helpLine, u"Required by Mine"_s);
    sets.edit();
    sets.store({ { u"Mine"_s, { u"Mine"_s, ids, {} } } }, u"Mine"_s);
    f.settle();
    for (const QString& id : ids)
        QVERIFY2(look(id) != wanted.value(id), qPrintable(id));
}

void tst_IptcForm::scenesAreCodesOrAnyText_data()
{
    QTest::addColumn<QString>("held");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("then");
    QTest::addRow("by name") << u"010100"_s << u"headshot"_s << u"group"_s << u"010900"_s;
    QTest::addRow("by code") << QString() << QString() << u"011900"_s << u"011900"_s;
    QTest::addRow("several") << u"010100, 011900"_s << u"headshot, action"_s << u"close"_s << u"011800"_s;
    QTest::addRow("unknown") << u"019999"_s << u"019999"_s << u"019998"_s << u"019998"_s;
    QTest::addRow("any text") << u"by the sea"_s << u"by the sea"_s << u"At sea, act 2"_s << u"At sea, act 2"_s;
    QTest::addRow("what a code stands for") << QString() << QString() << u"=b="_s << u"on the boat"_s;
}

void tst_IptcForm::scenesAreCodesOrAnyText()
{
    QFETCH(QString, held);
    QFETCH(QString, shown);
    QFETCH(QString, typed);
    QFETCH(QString, then);
    Photos f;
    const QString codes = f.photos.settings.filePath(u"codes.txt"_s);
    writeFile(codes, "b\ton the boat\n");
    f.model().codes().setFile(codes);
    QTRY_COMPARE(f.model().codes().count(), 1);
    f.add(u"d.jpg"_s, held.isEmpty() ? QStringList() : QStringList(u"-XMP-iptcCore:Scene="_s + held));
    QVERIFY(f.open());
    f.show(u"d.jpg"_s);
    f.model().addKnownField(u"scene"_s);
    f.settle();
    auto* picker = f.editor<CodePicker>(u"scene"_s);
    QVERIFY(picker);
    QCOMPARE(picker->code(), held);
    QCOMPARE(picker->text(), shown);
    QCOMPARE(picker->accessibleName(), u"Scene"_s);
    picker->setFocus();
    QTest::keyClick(picker, Qt::Key_Down);
    auto* list = qobject_cast<CodePopover*>(QApplication::activePopupWidget());
    QVERIFY(list);
    QTest::keyClicks(list->field(), typed);
    QTest::keyClick(list->field(), Qt::Key_Return);
    QCOMPARE(f.model().draftValues().value(u"scene"_s), then);
    QCOMPARE(picker->code(), then);
}

void tst_IptcForm::whatASaveTells()
{
    Photos f;
    QVERIFY(f.open());
    f.photos.select(u"ab"_s);
    f.known(u"a.jpg"_s);
    f.known(u"b.jpg"_s);
    f.model().setBatch(u"iptc.modelReleaseStatus"_s, u"MR-NON"_s);
    f.model().setItems(u"iptc.locationsShown"_s, { place(u"Uji"_s) });
    f.model().requestSave();
    const SaveDialogView dialog(f.model());
    QStringList told;
    for (const QLabel* label : dialog.findChildren<QLabel*>())
        told.append(label->text());
    QVERIFY2(told.contains(u"Uji, Japan"_s), qPrintable(told.join(u'\n')));
    QVERIFY2(told.filter(u"MR-NON"_s).isEmpty() && !told.filter(u"None"_s).isEmpty(), qPrintable(told.join(u'\n')));
    f.model().cancelSaveDialog();
}

void tst_IptcForm::fieldsAreCopiedToAnotherPhoto()
{
    Photos f;
    QVERIFY(f.open());
    f.show(u"a.jpg"_s);
    f.model().pasting().copy();
    f.show(u"b.jpg"_s);
    f.model().pasting().ask();
    QStringList values;
    for (const FieldPasting::Row& row : f.model().pasting().rows())
        values.append(row.label + u": "_s + row.value);
    QVERIFY2(values.contains(u"Locations shown: Kyoto, Japan · 1 more"_s), qPrintable(values.join(u'\n')));
    QVERIFY2(values.contains(u"Model releases: Unlimited Model Releases"_s), qPrintable(values.join(u'\n')));
    f.model().pasting().tickAll(true);
    f.model().pasting().paste();
    QCOMPARE(
        f.model().draftLists().value(u"iptc.locationsShown"_s), f.held[u"a.jpg"_s].lists[u"iptc.locationsShown"_s]);
    QCOMPARE(f.model().draftValues().value(u"iptc.modelReleaseStatus"_s), u"MR-UMR"_s);
    QCOMPARE(f.model().draftValues().value(u"iptc.maxWidth"_s), u"6000"_s);
    QVERIFY(f.heading(u"LOCATION SHOWN"_s));
    // Of a photo that nobody has looked at, nobody knows what its list holds: it gains what is pasted.
    f.gate.acquire();
    f.model().discardSaveDialog();
    f.click(u"c.jpg"_s);
    f.model().pasting().pasteAgain();
    f.held[u"c.jpg"_s].lists = { { u"iptc.locationsShown"_s, { place(u"Uji"_s) } } };
    f.gate.release();
    f.known(u"c.jpg"_s);
    QCOMPARE(f.model().draftLists().value(u"iptc.locationsShown"_s),
        (QStringList{ place(u"Uji"_s), place(u"Kyoto"_s), place(u"Nara"_s) }));
}

QTEST_MAIN(tst_IptcForm)
#include "tst_IptcForm.moc"
