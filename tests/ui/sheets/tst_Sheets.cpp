// The add-field sheet, the save dialog, the rename sheet, templates and shifts, presented over a window and used.
#include "app/model/AppModel.h"
#include "app/model/fieldsets/FieldSets.h"
#include "app/model/renaming/PhotosRenaming.h"
#include "app/model/sidecars/MovingOver.h"
#include "app/model/templates/Templates.h"
#include "app/model/timeshift/TimeShifting.h"
#include "app/model/words/FieldPasting.h"
#include "tests/app/model/ModelFixture.h"
#include "tests/support/OtherLanguage.h"
#include "tests/ui/UiSupport.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/Toggles.h"
#include "ui/controls/attached/SearchMenu.h"
#include "ui/controls/pickers/ChoicePicker.h"
#include "ui/controls/pickers/PickerButton.h"
#include "ui/controls/pickers/SegmentedPicker.h"
#include "ui/controls/tokens/TokenEdit.h"
#include "ui/sheets/AddFieldSheet.h"
#include "ui/sheets/AddableFieldList.h"
#include "ui/sheets/PasteFieldRow.h"
#include "ui/sheets/PasteFieldsSheet.h"
#include "ui/sheets/RenameSheet.h"
#include "ui/sheets/SaveDialogView.h"
#include "ui/sheets/ShiftTimeSheet.h"
#include "ui/sheets/fieldsets/FieldSetsSheet.h"
#include "ui/sheets/fieldsets/FieldTicks.h"
#include "ui/sheets/renaming/NumberField.h"
#include "ui/sheets/renaming/RenameList.h"
#include "ui/sheets/renaming/RenamePhotosSheet.h"
#include "ui/sheets/sidecars/MoveOverSheet.h"
#include "ui/sheets/sidecars/MoveTable.h"
#include "ui/templates/PreviewRow.h"
#include "ui/templates/TemplateList.h"
#include "ui/templates/TemplatesSheet.h"
#include "ui/templates/TokenPopover.h"

#include <QAccessible>
#include <QClipboard>
#include <QLabel>
#include <QMimeData>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// A model with photos in its folder, and a window for its sheets.
struct SheetFixture {
    explicit SheetFixture(const QStringList& names)
    {
        photos.addTitled(names);
        window.resize(700, 800);
        window.show();
        window.activateWindow();
    }

    bool open() { return QTest::qWaitForWindowActive(&window) && photos.open(); }

    template <typename Sheet>
    Sheet* present()
    {
        auto* sheet = new Sheet(*photos.model);
        host->present(sheet);
        return sheet;
    }

    AppModel& model() { return *photos.model; }

    ModelFixture photos;
    QWidget window;
    SheetHost* host = new SheetHost(&window);
};

QStringList titles(const QWidget* sheet)
{
    QStringList found;
    for (const auto* candidate : sheet->findChildren<QBButton*>())
        if (candidate->isVisible())
            found.append(candidate->text());
    return found;
}

QBTextField* field(const QWidget* sheet, const QString& name)
{
    for (auto* candidate : sheet->findChildren<QBTextField*>())
        if (candidate->accessibleName() == name)
            return candidate;
    return nullptr;
}

void press(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
}

// The sheet over three photos, with this template chosen.
struct TemplatesFixture : SheetFixture {
    explicit TemplatesFixture(const Template& value)
        : SheetFixture(jpgs(u"abc"_s))
    {
        window.resize(960, 800);
        photos.services.templatesPath = photos.settings.filePath(u"templates"_s);
        photos.relaunch();
        if (!value.name.isEmpty())
            templates().store().add(value);
    }
    Templates& templates() { return model().templates(); }
    TemplatesSheet* show()
    {
        if (!open())
            return nullptr;
        model().selectAllPhotos();
        templates().choose(templates().store().all().isEmpty() ? 0 : templates().store().all().first().id);
        return present<TemplatesSheet>();
    }
    const Template& value() { return templates().store().find(templates().current())->value(); }
};

TokenEdit* text(const QWidget* sheet, const QString& name)
{
    for (auto* candidate : sheet->findChildren<TokenEdit*>())
        if (candidate->accessibleName() == name)
            return candidate;
    return nullptr;
}

// What the preview says, a line a field: "Title: Race 1 (kept: not empty)".
QStringList preview(const QWidget* sheet)
{
    QStringList lines;
    for (const auto* row : sheet->findChildren<PreviewRow*>())
        if (row->isVisible())
            lines.append(row->accessibleName()
                + (row->accessibleDescription().isEmpty() ? QString() : u" ("_s + row->accessibleDescription() + u')'));
    return lines;
}

}  // namespace

class tst_Sheets : public QObject {
    Q_OBJECT

private slots:
    void init();
    void saveDialogOfOnePhoto_data();
    void saveDialogOfOnePhoto();
    void saveDialogRepeatsNotes_data();
    void saveDialogRepeatsNotes();
    void saveDialogOfSeveral_data();
    void saveDialogOfSeveral();
    void saveDialogAboutHomes();
    void saveDialogAboutSeals();
    void saveDialogAnswers_data();
    void saveDialogAnswers();
    void saveDialogRemembersNotToAsk();
    void pastingIsAskedAbout();
    void pastingByKeys();
    void renameBuildsAPattern();
    void renameAnswers_data();
    void renameAnswers();
    void renameManyShowsWhatToLookAt();
    void renameManyCounts();
    void ownFieldSets();
    void addFieldFilters_data();
    void addFieldFilters();
    void fieldsAreFoundInBothLanguages_data();
    void fieldsAreFoundInBothLanguages();
    void addFieldWithoutAnyLeft();
    void addFieldByMouseAndKeys_data();
    void addFieldByMouseAndKeys();
    void customNames_data();
    void customNames();
    void customNameThatThePhotoSpellsOtherwise();
    void customFieldIsAdded();
    void tokensInAText();
    void tokensAreSpokenByName();
    void aTemplateIsMadeAndFilled();
    void templatesAsFiles();
    void shiftTimeInThreeWays();
    void moveOverByKeyboard();
};

void tst_Sheets::init()
{
    failOnWarnings();
    qputenv("QUORBEL_REDUCE_MOTION", "1");
}

void tst_Sheets::saveDialogOfOnePhoto_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QString>("message");
    QTest::addRow("one field") << QStringList{ u"title"_s }
                               << u"You edited 1 field. Your changes will be lost if you don’t save them."_s;
    QTest::addRow("two fields") << QStringList{ u"title"_s, u"creator"_s }
                                << u"You edited 2 fields. Your changes will be lost if you don’t save them."_s;
}

void tst_Sheets::saveDialogOfOnePhoto()
{
    QFETCH(const QStringList, fields);
    QFETCH(const QString, message);
    SheetFixture desk({ u"a.jpg"_s });
    QVERIFY(desk.open());
    for (const QString& id : fields)
        desk.model().setSingle(id, u"x"_s);
    const auto* sheet = desk.present<SaveDialogView>();
    QCOMPARE(labels(sheet), QStringList({ u"Save changes to “a.jpg”?"_s, message }));
    QCOMPARE(titles(sheet), QStringList({ u"Don't Save"_s, u"Cancel"_s, u"Save"_s }));
    QVERIFY(button(sheet, u"Save and don’t ask again"_s));
    QCOMPARE(QApplication::focusWidget(), button(sheet, u"Save"_s));
    const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(sheet->parentWidget());
    QCOMPARE(told->role(), QAccessible::Dialog);
    QCOMPARE(told->text(QAccessible::Name), u"Save changes to “a.jpg”?"_s);
    QCOMPARE(told->text(QAccessible::Description), message);
}

void tst_Sheets::saveDialogRepeatsNotes_data()
{
    QTest::addColumn<bool>("several");
    QTest::addRow("one photo") << false;
    QTest::addRow("several photos") << true;
}

void tst_Sheets::saveDialogRepeatsNotes()
{
    QFETCH(const bool, several);
    const QString longText = u"word "_s.repeated(50) + u'!';
    SheetFixture desk({ u"a.jpg"_s, u"b.jpg"_s });
    QVERIFY(desk.open());
    if (several)
        desk.model().selectAllPhotos();
    for (const auto& [id, text] : QMap<QString, QString>{ { u"date"_s, u"2021-02-30"_s },
             { u"iptc.altText"_s, longText },
             { u"title"_s, u"x"_s } }.asKeyValueRange())
        several ? desk.model().setBatch(id, text) : desk.model().setSingle(id, text);
    const auto* sheet = desk.present<SaveDialogView>();
    const QStringList note{ u"Date taken"_s, u"“2021-02-30”"_s, u"Not a date: YYYY-MM-DD HH:MM"_s,
        u"Alternative text"_s, u'“' + longText + u'”', u"Long to listen to: 251 of 250 characters"_s };
    const QStringList title{ u"Title"_s, u"“x”"_s };
    QCOMPARE(labels(sheet).mid(2), several ? note + title : note);
    QVERIFY(sheet->accessibleDescription().endsWith(u" Date taken: Not a date: YYYY-MM-DD HH:MM"
                                                    " Alternative text: Long to listen to: 251 of 250 characters"_s));
    QVERIFY(button(sheet, several ? u"Apply to 2 Photos"_s : u"Save"_s)->isEnabled());
}

void tst_Sheets::saveDialogOfSeveral_data()
{
    QTest::addColumn<QMap<QString, QString>>("values");
    QTest::addColumn<QStringList>("keywords");
    QTest::addColumn<QStringList>("texts");
    const auto title = u"Apply changes to 2 photos?"_s;
    using Values = QMap<QString, QString>;
    QTest::addRow("nothing") << Values() << QStringList()
                             << QStringList{ title,
                                    u"This will modify the selected fields on 2 files. This can’t be undone."_s };
    QTest::addRow("keywords only") << Values() << QStringList{ u"sky"_s, u"sea"_s }
                                   << QStringList{ title,
                                          u"This will modify Keywords on 2 files. This can’t be undone."_s,
                                          u"Keywords"_s, u"sky, sea"_s };
    QTest::addRow("fields by id, then lists")
        << Values{ { u"title"_s, u"T"_s }, { u"copyright"_s, QString() } } << QStringList{ u"sky"_s }
        << QStringList{ title, u"This will modify Copyright, Title, Keywords on 2 files. This can’t be undone."_s,
               u"Copyright"_s, u"“”"_s, u"Title"_s, u"“T”"_s, u"Keywords"_s, u"sky"_s };
    QTest::addRow("languages and parents of keywords")
        << Values{ { u"title@de"_s, u"See"_s } } << QStringList{ u"sky"_s, u"Places > Paris"_s }
        << QStringList{ title, u"This will modify Title (German), Keywords on 2 files. This can’t be undone."_s,
               u"Title (German)"_s, u"“See”"_s, u"Keywords"_s, u"sky, Places ▸ Paris"_s };
}

void tst_Sheets::saveDialogOfSeveral()
{
    using Values = QMap<QString, QString>;
    QFETCH(const Values, values);
    QFETCH(const QStringList, keywords);
    QFETCH(const QStringList, texts);
    SheetFixture desk({ u"a.jpg"_s, u"b.jpg"_s });
    QVERIFY(desk.open());
    desk.model().selectAllPhotos();
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        desk.model().toggleBatchInclude(value.key());
        desk.model().setBatch(value.key(), value.value());
    }
    for (const QString& keyword : keywords)
        desk.model().addBatchListItem(u"keywords"_s, keyword);
    const auto* sheet = desk.present<SaveDialogView>();
    QCOMPARE(labels(sheet), texts);
    QCOMPARE(titles(sheet), QStringList({ u"Cancel"_s, u"Apply to 2 Photos"_s }));
    QVERIFY(button(sheet, u"Don’t ask again this session"_s));
}

void tst_Sheets::saveDialogAboutHomes()
{
    SheetFixture desk({ u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s });
    for (const QString& name : { u"a.jpg"_s, u"b.jpg"_s })
        exiftool({ u"-overwrite_original"_s, u"-IPTC:ObjectName=x"_s, desk.photos.url(name).toLocalFile() });
    QVERIFY(desk.open());
    desk.model().selectAllPhotos();
    desk.model().requestMakeAgree();
    QVERIFY(QTest::qWaitFor([&desk] { return desk.model().saveOpen(); }, 30000));
    const auto* sheet = desk.present<SaveDialogView>();
    QCOMPARE(labels(sheet),
        QStringList({ u"Make 2 photos agree?"_s,
            u"Where the places of a field differ, all of them will hold what is shown of it. Lists are brought together."_s,
            u"Title"_s, u"2 photos"_s }));
    QCOMPARE(titles(sheet), QStringList({ u"Cancel"_s, u"Make Them Agree"_s }));
}

// Calmly, and only of photos that have one.
void tst_Sheets::saveDialogAboutSeals()
{
    SheetFixture desk(jpgs(u"ab"_s));
    desk.photos.lookAtDetails([](const QList<ImageRecord>& asked, const ReadControl&) {
        QHash<QUrl, PhotoDetails> found;
        for (const ImageRecord& photo : asked)
            found.insert(photo.url, { .url = photo.url, .hasCredentials = photo.fileName == "a.jpg" });
        return found;
    });
    QVERIFY(desk.open());
    const QString text = u"1 photo has Content Credentials: other programs will report it as changed."_s;
    for (const QString& letters : { u"a"_s, u"ab"_s, u"b"_s }) {
        desk.photos.select(letters);
        QTRY_VERIFY_WITH_TIMEOUT(desk.model().details(desk.photos.url(letters.last(1) + u".jpg"_s)), 20000);
        const auto* sheet = desk.present<SaveDialogView>();
        QCOMPARE(labels(sheet).mid(2), letters == "b" ? QStringList() : QStringList{ text });
        QCOMPARE(sheet->accessibleDescription().endsWith(u' ' + text), letters != "b");
    }
}

void tst_Sheets::saveDialogAnswers_data()
{
    QTest::addColumn<QString>("pressed");  // the title of a button, or a key
    QTest::addColumn<QString>("titleAfter");
    QTest::addColumn<QString>("primaryAfter");
    QTest::addRow("save goes on") << u"Save"_s << u"Edited"_s << u"b.jpg"_s;
    QTest::addRow("Return saves") << u"Return"_s << u"Edited"_s << u"b.jpg"_s;
    QTest::addRow("don't save goes on") << u"Don't Save"_s << u"a.jpg"_s << u"b.jpg"_s;
    QTest::addRow("cancel stays") << u"Cancel"_s << u"a.jpg"_s << u"a.jpg"_s;
    QTest::addRow("Escape stays") << u"Escape"_s << u"a.jpg"_s << u"a.jpg"_s;
}

void tst_Sheets::saveDialogAnswers()
{
    QFETCH(const QString, pressed);
    QFETCH(const QString, titleAfter);
    QFETCH(const QString, primaryAfter);
    SheetFixture desk({ u"a.jpg"_s, u"b.jpg"_s });
    QVERIFY(desk.open());
    desk.model().setSingle(u"title"_s, u"Edited"_s);
    desk.photos.click(u"b.jpg"_s);
    QVERIFY(desk.model().saveOpen());
    const auto* sheet = desk.present<SaveDialogView>();
    if (pressed == u"Return"_s || pressed == u"Escape"_s)
        press(pressed == u"Return"_s ? Qt::Key_Return : Qt::Key_Escape);
    else
        click(button(sheet, pressed));
    QVERIFY(desk.photos.waitUntilIdle());
    QVERIFY(!desk.model().saveOpen());
    QCOMPARE(desk.photos.onDisk(u"a.jpg"_s, u"XMP:Title"_s).toString(), titleAfter);
    QCOMPARE(desk.photos.primary(), primaryAfter);
    QCOMPARE(desk.model().unsavedCount(), primaryAfter == u"a.jpg"_s ? 1 : 0);
}

void tst_Sheets::saveDialogRemembersNotToAsk()
{
    SheetFixture desk({ u"a.jpg"_s, u"b.jpg"_s });
    QVERIFY(desk.open());
    auto* one = qobject_cast<QBCheckbox*>(button(desk.present<SaveDialogView>(), u"Save and don’t ask again"_s));
    QVERIFY(one && !one->isChecked());
    click(one);
    QVERIFY(one->isChecked());
    QVERIFY(desk.model().preferences().saveDontAsk());
    click(one);
    QVERIFY(!desk.model().preferences().saveDontAsk());
    desk.model().selectAllPhotos();
    auto* several =
        qobject_cast<QBCheckbox*>(button(desk.present<SaveDialogView>(), u"Don’t ask again this session"_s));
    QVERIFY(several && !several->isChecked());
    QTest::keyClick(several, Qt::Key_Space);
    QVERIFY(several->isChecked());
    QVERIFY(desk.model().batchDontAskSession());
    QVERIFY(!desk.model().preferences().saveDontAsk());
}

// What the sheet tells of three photos, one of which has a title, and then of one.
void tst_Sheets::pastingIsAskedAbout()
{
    SheetFixture desk(jpgs(u"abc"_s));
    desk.photos.services.now = [] { return QDateTime(QDate(2026, 5, 9), QTime(18, 0)); };
    desk.photos.relaunch();
    QVERIFY(desk.open());
    const auto copied = [](const QByteArray& day, const QByteArray& fields) {
        const QByteArray text = R"({"format":"quorbel-fields","version":1,"photo":"/p/IMG_4021.jpg","copied":")" + day
            + R"(T17:42:00","fields":{)" + fields + "}}";
        QApplication::clipboard()->setText(QString::fromUtf8(text));
    };
    copied("2026-05-09", R"("title":"Last\nlight","rating":"4","date":"2024-10-12 17:48","keywords":["lake","dusk"])");
    desk.model().selectAllPhotos();
    FieldPasting& pasting = desk.model().pasting();
    pasting.ask();
    auto* sheet = new PasteFieldsSheet(desk.model(), nullptr);
    desk.host->present(sheet);
    QCOMPARE(sheet->title(), u"Paste Fields to 3 Photos"_s);
    QCOMPARE(labels(sheet),
        (QStringList{ u"From IMG_4021.jpg"_s, u"Copied today, 17:42"_s, u"Title"_s, u"Last light"_s,
            u"Replaces 3 titles"_s, u"Keywords"_s, u"lake, dusk"_s, u"Adds to the keywords of 3"_s, u"Date taken"_s,
            u"2024-10-12 17:48"_s, u"Would fill 3"_s, u"Rating"_s, u"Fills 3"_s,
            u"Nothing is written before Apply."_s }));
    const auto* tick = sheet->findChild<QBCheckbox*>();
    QCOMPARE(tick->accessibleName(), u"Title"_s);
    QCOMPARE(tick->accessibleDescription(), u"Last light. Replaces 3 titles"_s);
    QCOMPARE(QAccessible::queryAccessibleInterface(sheet->findChild<QBCheckbox*>())->role(), QAccessible::CheckBox);
    click(button(sheet, u"None"_s));
    QVERIFY(!button(sheet, u"Paste Fields"_s)->isEnabled());
    sheet->confirm();
    QVERIFY(pasting.isOpen());
    click(button(sheet, u"All"_s));
    QVERIFY(labels(sheet).contains(u"Fills 3"_s));
    click(button(sheet, u"Paste 4 Fields"_s));
    QVERIFY(!pasting.isOpen());
    QCOMPARE(desk.model().unsavedCount(), 4);
    desk.host->dismiss(sheet);
    desk.model().discardSaveDialog();

    desk.photos.click(u"b.jpg"_s);
    if (desk.model().saveOpen())
        desk.model().discardSaveDialog();
    copied("2026-05-08", R"("title":"Lake","custom:Mood":"calm")");
    pasting.ask();
    auto* ofOne = new PasteFieldsSheet(desk.model(), nullptr);
    desk.host->present(ofOne);
    QCOMPARE(ofOne->title(), u"Paste Fields to b.jpg"_s);
    QCOMPARE(labels(ofOne).mid(1),
        (QStringList{ u"Copied yesterday, 17:42"_s, u"Title"_s, u"Lake"_s, u"Replaces “b.jpg”"_s, u"Mood"_s, u"calm"_s,
            u"Fills the empty field"_s, u"Nothing is written before Save."_s }));
}

// Space ticks, the arrows go from row to row, Return pastes, Escape does not.
void tst_Sheets::pastingByKeys()
{
    SheetFixture desk(jpgs(u"ab"_s));
    QVERIFY(desk.open());
    QApplication::clipboard()->setText(
        u"{\"format\":\"quorbel-fields\",\"version\":1,\"fields\":{\"title\":\"T\",\"place\":\"P\"}}"_s);
    desk.model().selectAllPhotos();
    FieldPasting& pasting = desk.model().pasting();
    for (const Qt::Key last : { Qt::Key_Escape, Qt::Key_Return }) {
        pasting.ask();
        auto* sheet = new PasteFieldsSheet(desk.model(), nullptr);
        desk.host->present(sheet);
        QCOMPARE(QApplication::focusWidget(), sheet->findChild<QBCheckbox*>());
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        press(Qt::Key_Space);
        QCOMPARE(pasting.tickedCount(), 1);
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), button(sheet, u"Cancel"_s));
        press(Qt::Key_Backtab);
        auto* row = sheet->findChildren<PasteFieldRow*>().at(1);
        QCOMPARE(QApplication::focusWidget(), row->tick());
        QTest::mouseClick(row, Qt::LeftButton, {}, QPoint(row->width() / 2, row->height() / 2));
        QCOMPARE(pasting.tickedCount(), 2);
        press(Qt::Key_Space);
        press(last);
        QVERIFY(!pasting.isOpen());
        desk.host->dismiss(sheet);
        QCOMPARE(desk.model().batchInclude(), last == Qt::Key_Return ? QSet<QString>{ u"title"_s } : QSet<QString>());
    }
}

void tst_Sheets::renameBuildsAPattern()
{
    SheetFixture desk({ u"a.jpg"_s });
    QVERIFY(desk.open());
    desk.model().setSingle(u"title"_s, u"Last light"_s);
    desk.model().setSingle(u"creator"_s, u"Mara"_s);
    auto* sheet = desk.present<RenameSheet>();
    auto* pattern = field(sheet, u"Pattern"_s);
    QCOMPARE(pattern->text(), u"%Date%_%Title%"_s);
    QCOMPARE(QApplication::focusWidget(), pattern);
    QStringList chips;
    for (const auto* chip : sheet->findChildren<TokenChip*>())
        chips.append(chip->text());
    QCOMPARE(
        chips, QStringList({ u"Date taken"_s, u"Time"_s, u"Title"_s, u"Creator"_s, u"Place"_s, u"Original name"_s }));
    pattern->selectAll();
    QTest::keyClicks(pattern, u"trip"_s);
    QCOMPARE(desk.model().preferences().renamePattern(), u"trip"_s);
    QVERIFY(labels(sheet).contains(u"trip.jpg"_s));
    click(button(sheet, u"Creator"_s));
    QCOMPARE(pattern->text(), u"trip_%Creator%"_s);
    QVERIFY(labels(sheet).contains(u"trip_Mara.jpg"_s));
    QCOMPARE(QApplication::focusWidget(), pattern);
    pattern->selectAll();
    press(Qt::Key_Backspace);
    QVERIFY(labels(sheet).contains(u"untitled.jpg"_s));
    QVERIFY(!button(sheet, u"Rename"_s)->isEnabled());
    QTest::keyClicks(pattern, u"trip/%Creator%"_s);
    QVERIFY(!button(sheet, u"Rename"_s)->isEnabled());
    QVERIFY(labels(sheet).contains(u"A file name cannot hold “/”."_s));
    QCOMPARE(pattern->accessibleDescription(), u"A file name cannot hold “/”."_s);
    press(Qt::Key_Return);
    QVERIFY(desk.photos.folder.names().contains(u"a.jpg"_s));
}

namespace {

// The sheet over three photos, of which one has no headline.
RenamePhotosSheet* presentMany(SheetFixture& desk)
{
    for (const QString& name : { u"a"_s, u"c"_s })
        exiftool({ u"-overwrite_original"_s, u"-XMP-photoshop:Headline="_s + name.toUpper(),
            desk.photos.folder.path(name + u".jpg"_s) });
    if (!desk.open())
        return nullptr;
    desk.photos.select(u"abc"_s);
    desk.model().renaming().open();
    return desk.present<RenamePhotosSheet>();
}

bool waitForNames(SheetFixture& desk)
{
    return QTest::qWaitFor([&desk] { return desk.model().renaming().isCurrent(); }, 10000);
}

QStringList spokenRows(const RenamePhotosSheet* sheet)
{
    const auto* list = sheet->findChild<RenameList*>();
    QStringList rows;
    for (int row = 0; row < list->model()->rowCount(); ++row)
        rows.append(list->model()->index(row, 0).data(Qt::AccessibleTextRole).toString());
    return rows;
}

}  // namespace

void tst_Sheets::renameManyShowsWhatToLookAt()
{
    SheetFixture desk(jpgs(u"abc"_s));
    RenamePhotosSheet* sheet = presentMany(desk);
    QVERIFY(sheet);
    QCOMPARE(sheet->title(), u"Rename 3 Files"_s);
    QBTextField* pattern = field(sheet, u"Pattern"_s);
    QCOMPARE(pattern->text(), u"%Date%_%Title%_%Counter%"_s);
    pattern->clear();
    QTest::keyClicks(pattern, u"%Headline%"_s);
    QVERIFY(waitForNames(desk));
    QCOMPARE(spokenRows(sheet),
        QStringList({ u"a.jpg to A.jpg"_s, u"b.jpg to untitled.jpg, no headline, becomes untitled.jpg"_s,
            u"c.jpg to C.jpg"_s }));
    QVERIFY(labels(sheet).contains(u"1 to look at"_s));
    auto* list = sheet->findChild<RenameList*>();
    QCOMPARE(list->currentIndex().row(), 0);
    click(button(sheet, u"Next"_s));
    QCOMPARE(list->currentIndex().row(), 1);
    QVERIFY(pixelsLike(list->grab().toImage(), Theme::light().amberBg) > 1000);
    QVERIFY(button(sheet, u"Rename 3"_s)->isEnabled());
    // What cannot be a name turns it off.
    QTest::keyClicks(pattern, u"/"_s);
    QVERIFY(waitForNames(desk));
    QVERIFY(!button(sheet, u"Rename 3"_s)->isEnabled());
    QCOMPARE(spokenRows(sheet).constFirst(), u"a.jpg keeps its name, a file name cannot hold “/”"_s);
    QTest::keyClick(pattern, Qt::Key_Backspace);
    // The missing one has something else in its place now.
    pattern->setText(QString());
    QTest::keyClicks(pattern, u"%Headline|x%"_s);
    QVERIFY(waitForNames(desk));
    QVERIFY(!labels(sheet).contains(u"1 to look at"_s));
    QVERIFY(!button(sheet, u"Next"_s));
    // Asked for while a save runs: it waits, says so, and takes the names from what was saved.
    desk.model().preferences().confirmMassEdit.set(false);
    desk.model().setBatch(u"headline"_s, u"Final"_s);
    desk.model().requestSave();
    QVERIFY(desk.model().isSaving());
    pattern->setFocus();
    press(Qt::Key_Return);
    QVERIFY(labels(sheet).contains(u"Renames them as soon as the save has ended…"_s));
    QVERIFY(!button(sheet, u"Rename 3"_s)->isEnabled());
    QVERIFY(QTest::qWaitFor([&desk] { return !desk.model().renaming().isOpen(); }, 10000));
    QCOMPARE(desk.photos.visible(), QStringList({ u"Final-2.jpg"_s, u"Final-3.jpg"_s, u"Final.jpg"_s }));
}

// The fields of the counter are there for a pattern that counts.
void tst_Sheets::renameManyCounts()
{
    SheetFixture desk(jpgs(u"abc"_s));
    RenamePhotosSheet* sheet = presentMany(desk);
    QVERIFY(sheet);
    QBTextField* pattern = field(sheet, u"Pattern"_s);
    QBTextField* start = field(sheet, u"Counter from"_s);
    QVERIFY(start->isVisible());
    pattern->setFocus();
    pattern->clear();
    QTest::keyClicks(pattern, u"n"_s);
    QVERIFY(!start->isVisible());
    click(button(sheet, u"Counter"_s));
    QCOMPARE(desk.model().renaming().pattern(), u"n_%Counter%"_s);
    QVERIFY(start->isVisible());
    QCOMPARE(start->text(), u"1"_s);
    QTest::keyClick(start, Qt::Key_Up);
    start->selectAll();
    QTest::keyClicks(start, u"7"_s);
    QTest::keyClick(field(sheet, u"Step"_s), Qt::Key_Up);
    QBTextField* digits = field(sheet, u"Digits"_s);
    digits->selectAll();
    QTest::keyClicks(digits, u"3"_s);
    for (int i = 0; i < 20; ++i)
        QTest::keyClick(digits, Qt::Key_Down);
    QTest::keyClick(digits, Qt::Key_Up);
    QVERIFY(waitForNames(desk));
    QCOMPARE(
        spokenRows(sheet), QStringList({ u"a.jpg to n_07.jpg"_s, u"b.jpg to n_09.jpg"_s, u"c.jpg to n_11.jpg"_s }));
    press(Qt::Key_Escape);
    QVERIFY(!desk.model().renaming().isOpen());
    QCOMPARE(desk.photos.folder.names(), jpgs(u"abc"_s));
}

void tst_Sheets::renameAnswers_data()
{
    QTest::addColumn<QString>("pressed");
    QTest::addColumn<QString>("fileName");
    QTest::addRow("rename") << u"Rename"_s << u"dusk.jpg"_s;
    QTest::addRow("Return renames") << u"Return"_s << u"dusk.jpg"_s;
    QTest::addRow("cancel") << u"Cancel"_s << u"a.jpg"_s;
    QTest::addRow("Escape") << u"Escape"_s << u"a.jpg"_s;
}

void tst_Sheets::renameAnswers()
{
    QFETCH(const QString, pressed);
    QFETCH(const QString, fileName);
    SheetFixture desk({ u"a.jpg"_s });
    QVERIFY(desk.open());
    desk.model().preferences().renamePattern.set(u"dusk"_s);
    desk.model().setRenameOpen(true);
    const auto* sheet = desk.present<RenameSheet>();
    if (pressed == u"Return"_s || pressed == u"Escape"_s)
        press(pressed == u"Return"_s ? Qt::Key_Return : Qt::Key_Escape);
    else
        click(button(sheet, pressed));
    QVERIFY(!desk.model().renameOpen());
    QCOMPARE(desk.photos.folder.names(), QStringList{ fileName });
}

void tst_Sheets::addFieldFilters_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QStringList>("ids");
    QTest::addRow("a label") << u"Headl"_s << QStringList{ u"headline"_s };
    QTest::addRow("any case, blanks around") << u"  hEADL "_s << QStringList{ u"headline"_s };
    QTest::addRow("a note") << u"neighborhood"_s << QStringList{ u"sublocation"_s };
    QTest::addRow("a tag") << u"TransmissionReference"_s << QStringList{ u"jobId"_s };
    QTest::addRow("a label before a tag")
        << u"alt"_s << QStringList{ u"iptc.altText"_s, u"jobId"_s };  // OriginalTransmission
    QTest::addRow("a label before a note")
        << u"owner"_s << QStringList{ u"iptc.copyrightOwners"_s, u"iptc.artworks"_s };
    QTest::addRow("under another name") << u"Ext 1.9"_s
                                        << QStringList{ u"iptc.aiSystem"_s, u"iptc.aiSystemVersion"_s,
                                               u"iptc.aiPrompt"_s, u"iptc.aiPromptWriter"_s };
    QTest::addRow("none") << u"qqq"_s << QStringList();
}

QList<FieldSpec> addable(const AppModel& model)
{
    return model.addableKnownFields() + model.addableIptcFields();
}

void tst_Sheets::addFieldFilters()
{
    QFETCH(const QString, query);
    QFETCH(const QStringList, ids);
    SheetFixture desk({ u"a.jpg"_s });
    QVERIFY(desk.open());
    auto* sheet = desk.present<AddFieldSheet>();
    const auto* list = sheet->findChild<AddableFieldList*>();
    QCOMPARE(list->shownIds().size(), addable(desk.model()).size());
    QCOMPARE(QApplication::focusWidget(), field(sheet, u"Search fields"_s));
    QTest::keyClicks(QApplication::focusWidget(), query);
    QCOMPARE(list->shownIds(), ids);
    QCOMPARE(labels(list), ids.isEmpty() ? QStringList{ u"No matching fields."_s } : QStringList());
    field(sheet, u"Search fields"_s)->setText(u"   "_s);
    QCOMPARE(list->shownIds().size(), addable(desk.model()).size());
}

void tst_Sheets::fieldsAreFoundInBothLanguages_data()
{
    QTest::addColumn<QString>("query");
    QTest::addRow("the label") << u"schlagz"_s;
    QTest::addRow("the English one") << u"headl"_s;
    QTest::addRow("the beginning of a word") << u"foto"_s;
}

void tst_Sheets::fieldsAreFoundInBothLanguages()
{
    QFETCH(const QString, query);
    const OtherLanguage german({ { "Headline", u"Schlagzeile zum Foto"_s }, { "DETAILS", u"EINZELHEITEN"_s } });
    SheetFixture desk({ u"a.jpg"_s });
    QVERIFY(desk.open());
    auto* sheet = desk.present<AddFieldSheet>();
    QTest::keyClicks(QApplication::focusWidget(), query);
    const auto* list = sheet->findChild<AddableFieldList*>();
    QCOMPARE(list->shownIds().value(0), u"headline"_s);
    QVERIFY(button(sheet, u"Schlagzeile zum Foto"_s));
    desk.model().fieldSets().edit();
    auto* sets = desk.present<FieldSetsSheet>();
    field(sets, u"Search fields"_s)->setText(query);
    QStringList listed;
    const auto* ticks = sets->findChild<FieldTicks*>();
    for (int i = 0; i < ticks->topLevelItemCount(); ++i)
        if (const QTreeWidgetItem* item = ticks->topLevelItem(i); !item->isHidden())
            listed.append(item->text(0));
    QCOMPARE(listed.mid(0, 2), QStringList({ u"EINZELHEITEN"_s, u"Schlagzeile zum Foto"_s }));
}

void tst_Sheets::addFieldWithoutAnyLeft()
{
    SheetFixture desk({ u"a.jpg"_s });
    QVERIFY(desk.open());
    for (const FieldSpec& spec : addable(desk.model()))
        desk.model().addKnownField(spec.id);
    auto* sheet = desk.present<AddFieldSheet>();
    const auto* list = sheet->findChild<AddableFieldList*>();
    QCOMPARE(labels(list), QStringList{ u"All recommended fields are already shown."_s });
    QTest::keyClicks(QApplication::focusWidget(), u"x"_s);
    QCOMPARE(labels(list), QStringList{ u"No matching fields."_s });
}

void tst_Sheets::addFieldByMouseAndKeys_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<QString>("added");
    QTest::addRow("click") << QString() << QList<int>() << u"rating"_s;
    QTest::addRow("down, Return") << QString() << QList<int>{ Qt::Key_Down, Qt::Key_Return } << u"rating"_s;
    QTest::addRow("down twice, up, down, Space")
        << QString() << QList<int>{ Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Down, Qt::Key_Space }
        << u"headline"_s;
    QTest::addRow("Tab into the list") << QString() << QList<int>{ Qt::Key_Tab, Qt::Key_Down, Qt::Key_Return }
                                       << u"headline"_s;
    QTest::addRow("Return on the only one left") << u"urgency"_s << QList<int>{ Qt::Key_Return } << u"urgency"_s;
    QTest::addRow("Return on several adds none") << u"date"_s << QList<int>{ Qt::Key_Return } << QString();
    QTest::addRow("Escape adds none") << u"urgency"_s << QList<int>{ Qt::Key_Escape } << QString();
}

void tst_Sheets::addFieldByMouseAndKeys()
{
    QFETCH(const QString, query);
    QFETCH(const QList<int>, keys);
    QFETCH(const QString, added);
    SheetFixture desk({ u"a.jpg"_s });
    QVERIFY(desk.open());
    desk.model().setAddOpen(true);
    auto* sheet = desk.present<AddFieldSheet>();
    QTest::keyClicks(QApplication::focusWidget(), query);
    for (const int key : keys)
        press(Qt::Key(key));
    if (keys.isEmpty())
        click(button(sheet, u"Rating"_s));
    QCOMPARE(desk.model().sessionAddedKnownIDs(), added.isEmpty() ? QSet<QString>() : QSet<QString>{ added });
    const bool closed = !added.isEmpty() || keys.contains(int(Qt::Key_Escape));
    QCOMPARE(desk.model().addOpen(), !closed);
}

void tst_Sheets::customNames_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("said");  // begins so; "" for nothing
    QTest::addRow("empty") << QString() << false << QString();
    QTest::addRow("nothing left") << u"-- 12 !"_s << false << QString();
    QTest::addRow("as it is") << u"Project"_s << true << QString();
    QTest::addRow("cleaned") << u"Project code"_s << true << u"Will be stored as “Projectcode”"_s;
    QTest::addRow("one letter") << u"P"_s << false << u"A name needs"_s;
    QTest::addRow("beyond ASCII") << u"Größe"_s << false << u"Only the letters"_s;
    QTest::addRow("reserved") << u"NOTES"_s << false << u"“NOTES” is a reserved word"_s;
    QTest::addRow("stands for them all") << u"All"_s << false << u"“All” is a reserved word"_s;
    QTest::addRow("a field of the schema") << u"city"_s << false << u"That is the field Place"_s;
}

void tst_Sheets::customNameThatThePhotoSpellsOtherwise()
{
    SheetFixture desk({ u"a.jpg"_s });
    QVERIFY(desk.open());
    desk.model().addCustomField(u"Mood"_s, u"calm"_s);
    auto* sheet = desk.present<AddFieldSheet>();
    auto* name = field(sheet, u"Name"_s);
    name->setFocus();
    name->insert(u"mood"_s);
    QVERIFY(labels(sheet).contains(u"Will be stored as “Mood”"_s));
    field(sheet, u"Value"_s)->setText(u"wild"_s);
    press(Qt::Key_Return);
    QCOMPARE(desk.model().draftCustoms(), QList<CustomValue>({ { u"Mood"_s, u"wild"_s } }));
}

void tst_Sheets::customNames()
{
    QFETCH(const QString, typed);
    QFETCH(const bool, accepted);
    QFETCH(const QString, said);
    SheetFixture desk({ u"a.jpg"_s });
    QVERIFY(desk.open());
    auto* sheet = desk.present<AddFieldSheet>();
    auto* name = field(sheet, u"Name"_s);
    const int height = sheet->height();
    name->setFocus();
    name->insert(typed);
    QCOMPARE(button(sheet, u"Add Field"_s)->isEnabled(), accepted);
    QStringList answers = labels(sheet);
    answers.removeIf([&said](const QString& text) { return said.isEmpty() || !text.startsWith(said); });
    QCOMPARE(answers.size(), said.isEmpty() ? 0 : 1);
    QCOMPARE(sheet->height(), height);
    field(sheet, u"Value"_s)->setText(u"v"_s);
    press(Qt::Key_Return);
    QCOMPARE(desk.model().draftCustoms().size(), accepted ? 1 : 0);
}

void tst_Sheets::customFieldIsAdded()
{
    SheetFixture desk({ u"a.jpg"_s });
    QVERIFY(desk.open());
    desk.model().setAddOpen(true);
    auto* sheet = desk.present<AddFieldSheet>();
    field(sheet, u"Name"_s)->setFocus();
    QTest::keyClicks(QApplication::focusWidget(), u"Project code"_s);
    press(Qt::Key_Tab);
    QTest::keyClicks(QApplication::focusWidget(), u"Q-7"_s);
    click(button(sheet, u"Add Field"_s));
    QCOMPARE(desk.model().draftCustoms(), QList<CustomValue>({ { u"Projectcode"_s, u"Q-7"_s } }));
    QVERIFY(!desk.model().addOpen());
}

// A token counts as one letter: chosen by the first Backspace, gone with the second.
void tst_Sheets::tokensInAText()
{
    TemplatesFixture desk({ .name = u"T"_s, .fields = { { .key = u"title"_s, .text = u"Race %Counter% x"_s } } });
    const auto* sheet = desk.show();
    QVERIFY(sheet);
    TokenEdit* edit = text(sheet, u"Title"_s);
    const auto stored = [&desk] { return desk.value().fields.first().text; };
    QTest::mouseClick(edit->viewport(), Qt::LeftButton);
    press(Qt::Key_End);
    for (int i = 0; i < 2; ++i)
        press(Qt::Key_Backspace);
    press(Qt::Key_Backspace);
    QCOMPARE(stored(), u"Race %Counter%"_s);
    QCOMPARE(edit->selectedToken(), 5);
    press(Qt::Key_Backspace);
    QCOMPARE(stored(), u"Race "_s);
    press(Qt::Key_Z);
    QTest::keySequence(edit, QKeySequence::Undo);
    QTest::keySequence(edit, QKeySequence::Undo);
    QCOMPARE(stored(), u"Race %Counter%"_s);

    // A code that is typed is a token; a percent sign is one.
    press(Qt::Key_End);
    QTest::keyClicks(edit, u" 50% %place%"_s);
    QCOMPARE(stored(), u"Race %Counter% 50%% %Place%"_s);
    QVERIFY(edit->tokenAt(edit->length() - 1));
    QTest::keyClicks(edit, u" %Foo%"_s);
    QCOMPARE(stored(), u"Race %Counter% 50%% %Place% %%Foo%%"_s);

    // Copied and pasted it stays a token.
    QTest::keySequence(edit, QKeySequence::SelectAll);
    QTest::keySequence(edit, QKeySequence::Cut);
    QCOMPARE(stored(), QString());
    click(button(sheet, u"Insert Creator"_s));
    QCOMPARE(QApplication::focusWidget(), edit);
    QCOMPARE(stored(), u"%Creator%"_s);
    QTest::keySequence(edit, QKeySequence::Copy);
    press(Qt::Key_Backspace);
    QTest::keySequence(edit, QKeySequence::Copy);
    press(Qt::Key_End);
    QTest::keySequence(edit, QKeySequence::Paste);
    QCOMPARE(stored(), u"%Creator%%Creator%"_s);

    // Its default and form.
    press(Qt::Key_Backspace);
    press(Qt::Key_Return);
    auto* popover = edit->findChild<TokenPopover*>();
    QVERIFY(popover);
    QTest::keyClicks(field(popover, u"If missing"_s), u"Ana"_s);
    QTest::keyClick(field(popover, u"If missing"_s), Qt::Key_Return);
    QCOMPARE(stored(), u"%Creator%%Creator|Ana%"_s);
    QCOMPARE(edit->tokenAt(1)->detail, u"or Ana"_s);
}

void tst_Sheets::tokensAreSpokenByName()
{
    TemplatesFixture desk({ .name = u"T"_s,
        .fields = { { .key = u"title"_s, .text = u"off %Place|Zürich% now"_s },
            { .key = u"keywords"_s, .mode = TemplateMode::append, .items = { u"sailing"_s } } } });
    const auto* sheet = desk.show();
    QVERIFY(sheet);
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(text(sheet, u"Title"_s));
    QCOMPARE(told->role(), QAccessible::EditableText);
    QCOMPARE(told->text(QAccessible::Name), u"Title"_s);
    QCOMPARE(told->text(QAccessible::Value), u"off [Place or Zürich] now"_s);
    int start = 0;
    int end = 0;
    QCOMPARE(told->textInterface()->textAtOffset(4, QAccessible::CharBoundary, &start, &end), u"[Place or Zürich]"_s);
    QCOMPARE(start, 4);
    QCOMPARE(end, 5);
    QCOMPARE(told->textInterface()->textAfterOffset(4, QAccessible::WordBoundary, &start, &end), u" "_s);
    auto* mode = qobject_cast<ChoicePicker*>(button(sheet, u"What happens to Keywords"_s));
    QVERIFY(mode);
    const QAccessibleInterface* picker = QAccessible::queryAccessibleInterface(mode);
    QCOMPARE(picker->role(), QAccessible::ComboBox);
    QCOMPARE(picker->text(QAccessible::Value), u"Append"_s);
    QCOMPARE(mode->titles(), QStringList({ u"Set"_s, u"Set if empty"_s, u"Append"_s }));
}

void tst_Sheets::aTemplateIsMadeAndFilled()
{
    TemplatesFixture desk({});
    auto* sheet = desk.show();
    QVERIFY(sheet);
    QVERIFY(!button(sheet, u"Fill 3 Photos"_s)->isEnabled());
    click(button(sheet, u"New template"_s));
    QTest::keyClicks(QApplication::focusWidget(), u"Regatta"_s);
    QCOMPARE(desk.value().name, u"Regatta"_s);
    QCOMPARE(desk.value().digit, 1);
    click(button(sheet, u"Add field"_s));
    auto* menu = sheet->findChild<SearchMenu*>();
    QVERIFY(menu);
    QTest::keyClicks(menu->field(), u"headl"_s);
    QTest::keyClick(menu->field(), Qt::Key_Return);
    TokenEdit* edit = text(sheet, u"Headline"_s);
    QTRY_COMPARE(QApplication::focusWidget(), edit);
    QTest::keyClicks(edit, u"%Title% off %Place%"_s);
    QCOMPARE(preview(sheet), QStringList({ u"Headline: a.jpg off no place (Place missing)"_s }));
    click(button(sheet, u"Next photo"_s));
    QCOMPARE(preview(sheet), QStringList({ u"Headline: b.jpg off no place (Place missing)"_s }));
    // The tokens stay under the text that had the keyboard last.
    QVERIFY(button(sheet, u"Insert Creator"_s));
    desk.templates().setOpen(true);
    click(button(sheet, u"Fill 3 Photos"_s));
    QVERIFY(!desk.templates().isOpen());
    QCOMPARE(desk.model().unsavedCount(), 1);
    QCOMPARE(desk.templates().preview(2).value(0).text, u"c.jpg off "_s);
}

void tst_Sheets::templatesAsFiles()
{
    TemplatesFixture desk({ .name = u"One"_s, .fields = { { .key = u"title"_s, .text = u"x"_s } } });
    const auto* sheet = desk.show();
    QVERIFY(sheet);
    auto* list = sheet->findChild<TemplateList*>();
    const std::unique_ptr<QMimeData> dragged(list->model()->mimeData({ list->model()->index(0, 0) }));
    QCOMPARE(dragged->urls().value(0).fileName(), u"One.json"_s);
    QVERIFY(TemplateFile::read(dragged->urls().value(0).toLocalFile()));

    const QString other = desk.photos.folder.path(u"newer.json"_s);
    writeFile(other, R"({"quorbelTemplate": 9, "name": "N"})");
    const QString good = desk.photos.folder.path(u"Two.json"_s);
    writeFile(good, TemplateFile::toJson({ .name = u"Two"_s }));
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile(other), QUrl::fromLocalFile(good) });
    QDragEnterEvent enter(QPoint(20, 20), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(20, 20), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &drop);
    QTRY_COMPARE(desk.value().name, u"Two"_s);
    QVERIFY(labels(sheet).contains(u"“newer.json” was made by a newer version of Quorbel."_s));
    QCOMPARE(list->count(), 2);
    press(Qt::Key_Tab);
    list->setFocus();
    press(Qt::Key_Up);
    QCOMPARE(desk.value().name, u"One"_s);
}

// As a person uses it: every way to shift is typed or picked, and the button says what it will do.
void tst_Sheets::shiftTimeInThreeWays()
{
    SheetFixture desk({ u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s });
    exiftool({ u"-q"_s, u"-overwrite_original"_s, u"-EXIF:DateTimeOriginal=2024:10:12 23:10:30"_s,
        desk.photos.url(u"a.jpg"_s).toLocalFile(), desk.photos.url(u"b.jpg"_s).toLocalFile() });
    QVERIFY(desk.open());
    desk.photos.select(u"abc"_s);
    TimeShifting& shifting = desk.model().timeShifting();
    shifting.setPlaceData(qEnvironmentVariable("QUORBEL_TEST_SHARE") + u"/places"_s);
    shifting.request();
    auto* sheet = new ShiftTimeSheet(desk.model(), nullptr);
    desk.host->present(sheet);
    connect(&shifting, &TimeShifting::openChanged, desk.host, [&] { desk.host->dismiss(sheet); });
    QCOMPARE(sheet->title(), u"Shift Time of 3 Photos"_s);
    auto* way = sheet->findChild<SegmentedPicker*>();
    const auto main = [sheet] { return sheet->findChildren<QBButton*>().last(); };

    QCOMPARE(QApplication::focusWidget(), field(sheet, u"Days"_s));
    QTRY_COMPARE(main()->text(), u"Shift 2 Photos"_s);
    QVERIFY(!main()->isEnabled());
    press(Qt::Key_Tab);
    QTest::keyClicks(QApplication::focusWidget(), u"1"_s);
    QTRY_VERIFY(main()->isEnabled());
    QTRY_VERIFY(labels(sheet).contains(u"2 on a new day"_s));
    QVERIFY(labels(sheet).contains(u"2024-10-13 00:10"_s));
    QVERIFY(labels(sheet).contains(u"1 photo has no date and is left alone: c.jpg"_s));
    QTest::keyClicks(field(sheet, u"Seconds"_s), u"x"_s);
    QVERIFY(labels(sheet).contains(u"Whole numbers, of a hundred years at most."_s));
    QVERIFY(!main()->isEnabled());

    QTest::keyClick(way, Qt::Key_Right);
    QTRY_VERIFY(labels(sheet).contains(u"2024-10-12 23:10:30"_s));
    QTest::keyClicks(field(sheet, u"Was taken at"_s), u"2024-10-12 22:08:00"_s);
    QTRY_VERIFY(labels(sheet).contains(u"All others by the same amount: 1 h 02 min 30 s earlier."_s));
    QTRY_VERIFY(main()->isEnabled());

    QTest::keyClick(way, Qt::Key_Right);
    shifting.setZone({ .minutes = 120 });
    QTRY_COMPARE(main()->text(), u"Set Zone of 2"_s);
    QCOMPARE(sheet->findChild<PickerButton*>()->text(), u"+02:00"_s);
    QTRY_VERIFY(labels(sheet).contains(u"2024-10-12 23:10+02:00"_s));
    QTest::mouseClick(sheet->findChild<QBCheckbox*>(), Qt::LeftButton);
    QTRY_VERIFY(labels(sheet).contains(u"1 photo has no date and is left alone: c.jpg. "
                                       "2 photos have no time zone to come from and are left alone: a.jpg, b.jpg"_s));
    QVERIFY(!main()->isEnabled());
    QTest::mouseClick(sheet->findChild<QBCheckbox*>(), Qt::LeftButton);
    QTRY_VERIFY(main()->isEnabled());
    QTest::mouseClick(main(), Qt::LeftButton);
    QVERIFY(!shifting.isOpen() && desk.model().isWorking());
    QVERIFY(desk.photos.waitUntilIdle());
    QCOMPARE(desk.photos.onDisk(u"a.jpg"_s, u"EXIF:OffsetTimeOriginal"_s).toString(), u"+02:00"_s);
}

// What sidecars would do to the photos is told in numbers and names; Return in the table writes it.
void tst_Sheets::moveOverByKeyboard()
{
    SheetFixture desk({ u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s });
    for (const QString& name : { u"a"_s, u"b"_s })
        exiftool({ u"-q"_s, u"-XMP-dc:Title=Beside"_s, u"-XMP-photoshop:City=Rome"_s,
            desk.photos.folder.path(name + u".xmp"_s) });
    QVERIFY(desk.open());
    desk.photos.select(u"abc"_s);
    MovingOver& moving = desk.model().movingOver();
    moving.request(MoveWay::intoPhotos);
    auto* sheet = new MoveOverSheet(moving);
    desk.host->present(sheet);
    connect(&moving, &MovingOver::openChanged, desk.host, [&] { desk.host->dismiss(sheet); });
    QCOMPARE(sheet->title(), u"Write Sidecars Into Photos"_s);
    QVERIFY(labels(sheet).contains(u"Looking into the files…"_s));
    auto* write = sheet->findChildren<QBButton*>().last();
    QVERIFY(!write->isEnabled());
    QTRY_COMPARE(write->text(), u"Write Into 2 Photos"_s);
    QVERIFY(write->isEnabled());
    QVERIFY(labels(sheet).contains(u"1 photo has no sidecar: c.jpg"_s));
    const auto lines = sheet->findChild<MoveTable*>()->widget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    QCOMPARE(lines.value(0)->accessibleName(), u"Title: 2 photos change it"_s);
    QCOMPARE(lines.value(1)->accessibleName(), u"Place: 2 photos gain it"_s);
    QVERIFY(qobject_cast<MoveTable*>(QApplication::focusWidget()));
    press(Qt::Key_Return);
    QVERIFY(!moving.isOpen() && desk.model().isWorking());
    QVERIFY(desk.photos.waitUntilIdle());
    QCOMPARE(desk.photos.onDisk(u"b.jpg"_s, u"XMP:City"_s).toString(), u"Rome"_s);
    // Nothing is left to do: there is nothing to press.
    moving.request(MoveWay::intoPhotos);
    QTRY_COMPARE(moving.looked(), 3);
    auto* again = new MoveOverSheet(moving);
    desk.host->present(again);
    QVERIFY(labels(again).contains(u"There is nothing to write."_s));
    QVERIFY(!again->findChildren<QBButton*>().last()->isEnabled());
}

// By keyboard alone: a set of what is on screen, one more field in it, and what it wants.
void tst_Sheets::ownFieldSets()
{
    SheetFixture desk({ u"a.jpg"_s });
    QVERIFY(desk.open());
    FieldSets& sets = desk.model().fieldSets();
    sets.editWhatIsShown();
    auto* sheet = desk.present<FieldSetsSheet>();
    auto* ticks = sheet->findChild<FieldTicks*>();
    auto* save = button(sheet, u"Save"_s);
    QCOMPARE(QApplication::focusWidget(), field(sheet, u"Name of the set"_s));
    QVERIFY(!save->isEnabled());
    QTest::keyClicks(QApplication::focusWidget(), u"Press"_s);
    QCOMPARE(QApplication::focusWidget()->accessibleDescription(), u"There are two sets named “Press”"_s);
    QTest::keyClicks(QApplication::focusWidget(), u" 2"_s);
    QVERIFY(save->isEnabled());
    field(sheet, u"Search fields"_s)->setText(u"alternative"_s);
    int listed = 0;
    for (int i = 0; i < ticks->topLevelItemCount(); ++i)
        if (QTreeWidgetItem* item = ticks->topLevelItem(i); !item->isHidden() && ++listed == 2)
            ticks->setCurrentItem(item, 2);
    QCOMPARE(listed, 2);  // its heading, too
    ticks->setFocus();
    press(Qt::Key_Space);
    press(Qt::Key_Return);
    QVERIFY(!sets.isEditing());
    QCOMPARE(sets.current(), u"Press 2"_s);
    const FieldSet* made = sets.find(u"Press 2"_s);
    QVERIFY(made && made->fields.contains(u"iptc.altText"_s) && made->fields.contains(u"title"_s));
    QCOMPARE(made->wanted, QSet<QString>{ u"iptc.altText"_s });
    // Those that come with the program stay as they are; the own one goes.
    sets.edit();
    sheet = desk.present<FieldSetsSheet>();
    ticks = sheet->findChild<FieldTicks*>();
    auto* list = sheet->findChild<QListWidget*>();
    list->setCurrentRow(1);
    ticks->setCurrentItem(ticks->topLevelItem(1), 1);
    ticks->setFocus();
    press(Qt::Key_Space);
    QVERIFY(!button(sheet, u"Delete this set"_s)->isEnabled());
    list->setCurrentRow(list->count() - 1);
    click(button(sheet, u"Delete this set"_s));
    click(button(sheet, u"Save"_s));
    QVERIFY(sets.own().isEmpty());
    QCOMPARE(sets.find(u"Press"_s)->fields.size(), 27);
    QCOMPARE(sets.current(), FieldSets::usual());
}

QTEST_MAIN(tst_Sheets)
#include "tst_Sheets.moc"
