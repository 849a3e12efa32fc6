#include "tests/ui/window/WindowWalk.h"

#include "app/model/iptc/RememberedCards.h"
#include "app/model/renaming/PhotosRenaming.h"
#include "app/model/sidecars/MovingOver.h"
#include "app/model/templates/Templates.h"
#include "app/model/timeshift/TimeShifting.h"
#include "app/model/words/FieldPasting.h"
#include "core/iptc/StructureText.h"
#include "core/language/Texts.h"
#include "tests/ui/window/WindowFixture.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/ThemedMenuBar.h"
#include "ui/controls/attached/CodesChip.h"
#include "ui/controls/attached/MarkButton.h"
#include "ui/controls/cards/FoldingHeading.h"
#include "ui/controls/cards/ItemCard.h"
#include "ui/controls/scrolling/ScrollArea.h"
#include "ui/inspector/head/UnreadNotice.h"
#include "ui/inspector/iptc/StructureCard.h"
#include "ui/inspector/iptc/StructureList.h"
#include "ui/sheets/AddFieldSheet.h"
#include "ui/sheets/MessageSheet.h"
#include "ui/sheets/PasteFieldsSheet.h"
#include "ui/sheets/QuickSetSheet.h"
#include "ui/sheets/RenameSheet.h"
#include "ui/sheets/SaveDialogView.h"
#include "ui/sheets/ShiftTimeSheet.h"
#include "ui/sheets/ShortcutsSheet.h"
#include "ui/sheets/fieldsets/FieldSetsSheet.h"
#include "ui/sheets/renaming/RenamePhotosSheet.h"
#include "ui/sheets/sidecars/MoveOverSheet.h"
#include "ui/sidebar/FilterTexts.h"
#include "ui/templates/TemplatesSheet.h"
#include "ui/window/HelpView.h"
#include "ui/window/SettingsView.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QListWidget>
#include <QMenu>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

namespace {

const QString copiedFields =
    u"{\"format\":\"quorbel-fields\",\"version\":1,\"photo\":\"/p/2x2.jpg\",\"fields\":{\"title\":\"4x4 light\","
    "\"rating\":\"3\",\"keywords\":[\"3x3\",\"lake\"],\"copyright\":\"© 2024 Mara Lindqvist\",\"date\":\"2024-10-12 17:48\"}}"_s;

// A window of the program over the photos of a fixture.
std::unique_ptr<QMainWindow> makeWindow(InspectorFixture& f, SystemScheme& scheme, QSize size)
{
    auto window = std::make_unique<QMainWindow>();
    ContentFactories factories;
    factories.inspector = [&f](QWidget* parent) {
        return new InspectorView(f.model(), nullptr, &f.places, &f.maps, parent);
    };
    factories.addField = [&f] { return new AddFieldSheet(f.model()); };
    factories.save = [&f] { return new SaveDialogView(f.model()); };
    factories.rename = [&f] { return new RenameSheet(f.model()); };
    factories.pasteFields = [&f] { return new PasteFieldsSheet(f.model(), nullptr); };
    factories.renamePhotos = [&f] { return new RenamePhotosSheet(f.model()); };
    factories.shiftTime = [&f] { return new ShiftTimeSheet(f.model(), nullptr); };
    factories.moveOver = [&f] { return new MoveOverSheet(f.model().movingOver()); };
    factories.templates = [&f] { return new TemplatesSheet(f.model()); };
    factories.fieldSets = [&f] { return new FieldSetsSheet(f.model()); };
    factories.setInspectorInset = [](QWidget* inspector, int pixels) {
        static_cast<InspectorView*>(inspector)->setBottomInset(pixels);
    };
    auto* content = new ContentView(f.model(), nullptr, scheme, window.get(), factories);
    window->setMenuWidget(content->bar());
    window->setCentralWidget(content);
    for (const QString& title : { Texts::tr("&File"), Texts::tr("&Edit"), Texts::tr("&View"), Texts::tr("&Help") })
        content->bar()->menuBar()->addMenu(new QMenu(title, content->bar()));
    window->resize(size);
    return window;
}

// For whoever looks at the pictures.
std::optional<ColorScheme> askedColors()
{
    static const QMap<QString, ColorScheme> schemes{ { u"dark"_s, ColorScheme::dark },
        { u"contrast"_s, ColorScheme::highContrast } };
    const auto asked = schemes.constFind(qEnvironmentVariable("QUORBEL_TEST_COLORS"));
    return asked == schemes.cend() ? ColorScheme::light : *asked;
}

}  // namespace

bool WalkedPhotos::open()
{
    for (const QString& name : { u"Alps/2x2 Lake/a.jpg"_s, u"Alps/Pass/b.jpg"_s, u"Zoo/c.jpg"_s, u"Zoo/d.jpg"_s }) {
        if (!QDir(folders.photos.folder.path()).mkpath(QFileInfo(name).path()))
            return false;
        folders.photos.folder.add(name);
    }
    folders.model().preferences().openSubfolders.set(true);
    if (!folders.photos.open())
        return false;
    folders.model().setFolded(folders.photos.url(u"Alps/Pass"_s), true);
    photos.photos.lookAtDetails();
    photos.add(u"1x1_a.jpg"_s,
        { u"-XMP-dc:Title-de=Abend am 1x1 See"_s, u"-XMP-dc:Title-fr=Soir au bord du lac"_s, u"-XMP-dc:Rights=Mara"_s,
            u"-EXIF:Copyright=(c) Mara Lindqvist 9x13, all rights reserved. Prints on request."_s,
            u"-XMP-dc:Title=Evening by the lake"_s, u"-EXIF:DateTimeOriginal=2024:10:12 17:48:00"_s,
            u"-EXIF:OffsetTimeOriginal=+02:00"_s, u"-IPTC:Keywords=lake"_s, u"-IPTC:Keywords=13x18"_s,
            u"-XMP-dc:Creator=Mara Lindqvist"_s, u"-XMP-photoshop:City=Zürich"_s, u"-GPSLatitude=47.3769"_s,
            u"-GPSLatitudeRef=N"_s, u"-GPSLongitude=8.5417"_s, u"-GPSLongitudeRef=E"_s, u"-XMP:Rating=4"_s,
            u"-EXIF:Model=E-M5MarkIII"_s, u"-EXIF:Make=OLYMPUS"_s, u"-EXIF:LensModel=M.12-40mm F2.8"_s,
            u"-EXIF:ISO=200"_s, u"-EXIF:ExposureTime=1/60"_s, u"-EXIF:FNumber=5.6"_s, u"-EXIF:FocalLength=17"_s });
    photos.add(u"2x3_b.jpg"_s,
        { u"-XMP-dc:Creator=Mara Lindqvist"_s, u"-XMP-iptcCore:AltTextAccessibility=Evening by the lake"_s,
            u"-XMP-iptcCore:CreatorCity=Zürich"_s, u"-XMP-iptcCore:CountryCode=CH"_s,
            u"-XMP-iptcExt:LocationShown=[{City=Zürich,CountryName=Alps},{City=Zoo}]"_s,
            u"-XMP-iptcExt:DigitalSourceType=http://cv.iptc.org/newscodes/digitalsourcetype/compositeSynthetic"_s,
            u"-XMP-plus:ModelReleaseStatus#=http://ns.useplus.org/ldf/vocab/MR-UMR"_s,
            u"-XMP-plus:Licensor=[{LicensorName=Mara}]"_s, u"-XMP-iptcExt:MaxAvailWidth=6000"_s });
    photos.add(u"3x4_c.jpg"_s, { u"-XMP-dc:Title=Other"_s });
    if (!photos.photos.open())
        return false;
    photos.model().selectAllPhotos();
    for (const ImageRecord& record : photos.model().selectedRecords())
        if (!QTest::qWaitFor([&] { return photos.model().details(record.url) != nullptr; }))
            return false;
    photos.model().addKnownField(u"headline"_s);
    untold.photos.services.detailsDelay = {};
    untold.photos.lookAtDetails(
        [](const QList<ImageRecord>&, const ReadControl&) { return QHash<QUrl, PhotoDetails>(); });
    untold.add(u"4x5_d.jpg"_s, { u"-XMP-dc:Title=Other"_s });
    if (!untold.open()
        || !QTest::qWaitFor([this] { return untold.view->findChild<UnreadNotice*>()->isVisible(); }, 30'000))
        return false;
    return half.openHalf();
}

// The screen that the test brings along says this at every change of every window.
void dropSizeHintMessages()
{
    static QtMessageHandler next = nullptr;
    next = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& message) {
        if (message != u"This plugin does not support propagateSizeHints()"_s)
            next(type, context, message);
    });
}

void setTextSize(qreal points)
{
    QFont font = QApplication::font();
    font.setPointSizeF(points);
    QApplication::setFont(font);
}

WindowWalk::WindowWalk(WalkedPhotos& over, QSize size)
    : m_photos(over.photos)
    , m_half(over.half)
    , m_size(size)
    , m_window(makeWindow(over.photos, m_scheme, size))
    , m_folders(makeWindow(over.folders, m_scheme, size))
    , m_empty(makeWindow(over.none, m_scheme, size))
    , m_reading(makeWindow(over.half, m_scheme, size))
    , m_untold(makeWindow(over.untold, m_scheme, size))
    , m_settings(new SettingsView(over.photos.model(), Languages::in({})))
    , m_help(new HelpView)
{
    for (QWidget* shown : QList<QWidget*>{ m_window.get(), m_folders.get(), m_empty.get(), m_reading.get(),
             m_untold.get(), m_settings.get(), m_help.get() })
        shown->show();
    for (InspectorFixture* photos :
        QList<InspectorFixture*>{ &over.photos, &over.folders, &over.none, &over.half, &over.untold })
        photos->model().preferences().colorOverride.set(askedColors());
    for (QWidget* second : QList<QWidget*>{ m_settings.get(), m_help.get() })
        setTheme(second, Theme::of(m_window.get()));
    settle();
}

WindowWalk::~WindowWalk() = default;

QString WindowWalk::message()
{
    return u"Saved 2 of 3 photos. 2x3_b.jpg: Error: Not a valid JPG (looks more like a TXT). The "
           "other photos hold what you typed, and nothing was lost."_s;
}

Scenes WindowWalk::scenes(const Witness& witness)
{
    m_witness = witness;
    Scenes seen;
    settle();
    look(seen, u"empty"_s, *m_empty);
    look(seen, u"subfolders"_s, *m_folders);
    look(seen, u"not told"_s, *m_untold);
    see(seen, u"settings"_s, m_settings.get());
    auto* topics = m_help->findChild<QListWidget*>();
    for (int row = 0; row < topics->count(); ++row) {
        topics->setCurrentRow(row);
        settle();
        see(seen, u"help: "_s + topics->item(row)->text(), m_help.get());
    }
    single(seen);
    batch(seen);
    reading(seen);
    return seen;
}

void WindowWalk::see(Scenes& seen, const QString& name, QWidget* shown)
{
    if (const QString folder = qEnvironmentVariable("QUORBEL_TEST_PICTURES"); !folder.isEmpty())
        shown->grab().save(
            u"%1/%2-%3-%4pt.png"_s.arg(folder, name).arg(m_size.width()).arg(QApplication::font().pointSizeF()));
    seen.insert(name, audit(shown));
    if (m_witness)
        m_witness(name, shown);
}

// A window that grew for larger text is looked at in the size that is asked for.
void WindowWalk::settle() const
{
    for (QMainWindow* window : { m_window.get(), m_folders.get(), m_empty.get(), m_reading.get(), m_untold.get() }) {
        window->setMinimumSize(0, 0);
        window->resize(m_size);
    }
    for (int i = 0; i < 4; ++i)
        InspectorFixture::settle();
}

void WindowWalk::look(Scenes& seen, const QString& name)
{
    look(seen, name, *m_window);
}

void WindowWalk::look(Scenes& seen, const QString& name, QMainWindow& window)
{
    settle();
    see(seen, name, &window);
}

void WindowWalk::single(Scenes& seen)
{
    AppModel& model = m_photos.model();
    m_photos.click(u"1x1_a.jpg"_s);
    look(seen, u"one photo"_s);
    const auto row = [this](const QString& id) { return m_window->findChild<InspectorForm*>()->row(id); };
    row(u"title"_s)->findChild<CodesChip*>()->click();
    look(seen, u"languages"_s);
    row(u"copyright"_s)->findChild<MarkButton*>()->click();
    settle();
    see(seen, u"places"_s, QApplication::activePopupWidget());
    QApplication::activePopupWidget()->close();
    row(u"title"_s)->findChild<CodesChip*>()->click();
    model.setSingle(u"title"_s, u"Last 5x7 light"_s);
    model.setSingle(u"creator"_s, u"Mara"_s);
    look(seen, u"edited"_s);
    model.setErrorMessage(message());
    look(seen, u"banner"_s);
    model.setErrorMessage(std::nullopt);
    model.setAddOpen(true);
    look(seen, u"add a field"_s);
    model.setAddOpen(false);
    model.requestSave();
    look(seen, u"save"_s);
    model.discardSaveDialog();
    model.setRenameOpen(true);
    look(seen, u"rename"_s);
    model.setRenameOpen(false);
    model.preferences().showNamespace.set(true);
    look(seen, u"tags"_s);
    model.preferences().showNamespace.set(false);
    auto* host = m_window->findChild<SheetHost*>();
    presentMessage(
        *host, u"tag"_s, u"Replace the file?"_s, message(), { u"Keep both"_s, u"Replace"_s, u"Cancel"_s }, {});
    look(seen, u"message"_s);
    host->dismiss(host->current());
    host->present(new ShortcutsSheet(Shortcuts::inPlaces()));
    look(seen, u"shortcuts"_s);
    host->dismiss(host->current());
    host->present(new QuickSetSheet(model));
    look(seen, u"quick keywords"_s);
    host->dismiss(host->current());
    fieldSets(seen);
    cards(seen);
    filterMenu(seen);
}

void WindowWalk::fieldSets(Scenes& seen)
{
    FieldSets& sets = m_photos.model().fieldSets();
    sets.choose(u"Press"_s);
    look(seen, u"a field set"_s);
    m_photos.model().selectAllPhotos();
    look(seen, u"a field set, batch"_s);
    m_photos.click(u"1x1_a.jpg"_s);
    sets.edit();
    look(seen, u"field sets"_s);
    sets.cancel();
    sets.choose(FieldSets::usual());
}

// What the standard's further fields bring: sections, cards, and what opens from their menus.
void WindowWalk::cards(Scenes& seen)
{
    AppModel& model = m_photos.model();
    m_photos.click(u"2x3_b.jpg"_s);
    look(seen, u"sections"_s);
    for (FoldingHeading* heading : m_window->findChildren<FoldingHeading*>())
        if (heading->isVisible())
            emit heading->openAsked(true);
    settle();
    for (StructureList* list : m_window->findChildren<StructureList*>())
        list->open(0);
    settle();
    const auto* places = m_window->findChild<InspectorForm*>()->row(u"iptc.locationsShown"_s);
    ScrollArea::around(*places)->reveal(*places);
    look(seen, u"cards"_s);
    const QString contact = StructureText::of({ { u"CiAdrCity"_s, u"Zürich"_s } });
    model.rememberedCards().noteSaving(
        { .scalars = { { u"iptc.contact"_s, contact } }, .subjects = { m_photos.photos.url(u"2x3_b.jpg"_s) } });
    model.rememberedCards().noteSaved({ *model.primaryRecord() }, {}, {});
    openFromMenu(seen, u"remembered"_s, u"iptc.contact"_s, Texts::tr("Use Remembered Contact…"));
    model.setItems(u"iptc.locationsShown"_s, { StructureText::of({ { u"City"_s, u"Zoo"_s } }) });
    look(seen, u"cards, edited"_s);
    openFromMenu(seen, u"found places"_s, u"iptc.locationsShown"_s, Texts::tr("Search Place…"));
    model.requestSave();
    model.discardSaveDialog();
}

void WindowWalk::openFromMenu(Scenes& seen, const QString& name, const QString& id, const QString& command)
{
    const FieldRow* row = m_window->findChild<InspectorForm*>()->row(id);
    QVERIFY2(row, qPrintable(id));
    auto* card = row->findChild<ItemCard*>();
    const auto choose = [&] {
        emit card->menuAsked();
        for (QAction* action : card->actions())
            if (action->text() == command)
                action->trigger();
        return QApplication::activePopupWidget() != nullptr;
    };
    QTRY_VERIFY2(choose(), qPrintable(command));  // what is remembered is written down in the background
    QWidget* popover = QApplication::activePopupWidget();
    if (auto* field = popover->findChild<QBTextField*>()) {
        QTest::keyClicks(field, u"Z"_s);
        QTRY_VERIFY(popover->findChild<QListWidget*>()->count() > 0);
    }
    settle();
    see(seen, name, popover);
    popover->close();
}

void WindowWalk::filterMenu(Scenes& seen)
{
    for (auto* button : m_window->findChildren<QBIconButton*>())
        if (button->accessibleName() == FilterTexts::name())
            button->click();
    settle();
    QVERIFY(QApplication::activePopupWidget());
    see(seen, u"filters"_s, QApplication::activePopupWidget());
    QApplication::activePopupWidget()->close();
}

void WindowWalk::batch(Scenes& seen)
{
    AppModel& model = m_photos.model();
    model.selectAllPhotos();
    look(seen, u"batch"_s);
    model.renaming().open();
    look(seen, u"rename many"_s);
    model.renaming().close();
    model.timeShifting().request();
    look(seen, u"shift times"_s);
    model.timeShifting().close();
    model.movingOver().request(MoveWay::intoPhotos);
    look(seen, u"move over"_s);
    model.movingOver().close();
    model.setBatch(u"copyright"_s, u"© 2024 Mara Lindqvist"_s);
    model.setBatch(u"description"_s, u"A 6x6 of still water after a clear October day, looking south from the bank."_s);
    model.addBatchListItem(u"keywords"_s, u"9x9"_s);
    look(seen, u"batch, edited"_s);
    model.requestSave();
    look(seen, u"apply"_s);
    model.cancelSaveDialog();
    QApplication::clipboard()->setText(copiedFields);
    model.pasting().ask();
    look(seen, u"paste"_s);
    model.pasting().close();
    model.templates().store().add({ .name = u"Regatta, race day"_s,
        .digit = 1,
        .fields = { { .key = u"title"_s, .text = u"Race %Counter% off %Place|Zürich%"_s },
            { .key = u"keywords"_s, .mode = TemplateMode::append, .items = { u"sailing"_s } } } });
    model.templates().setOpen(true);
    look(seen, u"templates"_s);
    model.templates().setOpen(false);
    model.toggleBatchInclude(u"copyright"_s);
    model.toggleBatchInclude(u"description"_s);
    model.clearBatchList(u"keywords"_s);
    m_photos.click(u"1x1_a.jpg"_s);
}

void WindowWalk::reading(Scenes& seen)
{
    AppModel& model = m_half.model();
    model.tap(m_half.photos.url(u"a.jpg"_s), false, false);
    QTest::qWait(250);  // the blocks do not come at once
    look(seen, u"reading"_s, *m_reading);
    model.selectAllPhotos();
    look(seen, u"batch, reading"_s, *m_reading);
    model.setBatch(u"creator"_s, u"Mara"_s);
    model.setBatchDontAskSession(true);
    model.requestSave();
    look(seen, u"apply, reading"_s, *m_reading);
    model.cancelRead();
    settle();
    model.toggleBatchInclude(u"creator"_s);
}

}  // namespace Quorbel::Test
