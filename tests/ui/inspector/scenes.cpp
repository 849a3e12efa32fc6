// Draws the inspector in many situations into PNG files, for looking at: scenes FOLDER [PIXELS [rows|keywords|iptc]].
// QT_SCALE_FACTOR=2 doubles the pixels; PIXELS is the size of the desktop's font; "rows" draws rare rows alone,
// "keywords" several photos and their keywords, "iptc" the further fields of that standard.
#include "app/model/words/QuickKeywords.h"
#include "core/iptc/IptcSchema.h"
#include "core/iptc/StructureText.h"
#include "tests/ui/UiSupport.h"
#include "tests/ui/inspector/InspectorFixture.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/attached/CodesChip.h"
#include "ui/controls/attached/MarkButton.h"
#include "ui/controls/cards/FoldingHeading.h"
#include "ui/controls/theme/Theme.h"
#include "ui/inspector/FormSection.h"
#include "ui/sheets/AddFieldSheet.h"
#include "ui/sheets/QuickSetSheet.h"
#include "ui/sheets/RenameSheet.h"
#include "ui/sheets/SaveDialogView.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QVBoxLayout>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

void grab(InspectorFixture& f, const QString& folder, const QString& name)
{
    for (const bool dark : { false, true }) {
        setTheme(f.window.get(), dark ? Theme::dark() : Theme::light());
        for (const int width : { 430, 620 }) {
            f.window->resize(width, f.window->height());
            f.settle();
            QTest::qWait(200);
            const qreal scale = f.window->devicePixelRatio();
            f.window->grab().save(
                u"%1/%2-%3-%4-%5x.png"_s.arg(folder, name, dark ? u"dark"_s : u"light"_s).arg(width).arg(scale));
        }
    }
}

// A sheet over an empty window, in both appearances.
void grabSheet(const std::function<SheetBody*()>& make, const QString& folder, const QString& name)
{
    for (const bool dark : { false, true }) {
        QWidget window;
        window.setAutoFillBackground(true);
        window.resize(560, 700);
        setTheme(&window, dark ? Theme::dark() : Theme::light());
        window.show();
        window.activateWindow();
        auto* host = new SheetHost(&window);
        host->present(make());
        QTest::qWait(400);
        window.grab().save(u"%1/sheet-%2-%3-%4x.png"_s.arg(folder, name, dark ? u"dark"_s : u"light"_s)
                               .arg(window.devicePixelRatio()));
    }
}

// The window with what has dropped down in it.
void grabWithPopups(QWidget& window, const QString& file)
{
    QTest::qWait(250);
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    for (QWidget* popup : QApplication::topLevelWidgets())
        if (popup->isVisible() && popup->windowType() == Qt::Popup)
            painter.drawPixmap(window.mapFromGlobal(popup->pos()), popup->grab());
    painter.end();
    picture.save(file);
}

const QString longText =
    u"© 2024 Mara Lindqvist, all rights reserved. Prints on request. Not to be used in print or on "
    "screen without asking, in any language and for any purpose, however small it may seem to "
    "somebody who has not asked; and whoever asks gets an answer within a week."_s;

// Rows as a model would fill them whose photo holds all that is rare.
QList<FieldRow*> rareRows(QWidget* parent)
{
    const auto make = [parent](FieldKind kind, bool isLanguage, const FieldRowState& state) {
        FieldRowParts parts;
        parts.kind = kind;
        parts.isLanguage = isLanguage;
        auto* row = new FieldRow(parts, parent);
        row->setState(state, true);
        return row;
    };
    QList<FieldRow*> rows;
    rows << make(FieldKind::text, false,
        { .label = u"Title"_s,
            .text = u"Last light on the lake, and a title so long that it would run under the codes"_s,
            .languages = { true, { { u"ar"_s }, { u"de"_s }, { u"fr"_s, true } }, true, true } });
    rows << make(FieldKind::text, true,
        { .label = u"Arabic"_s, .text = u"الضوء الأخير على البحيرة"_s, .removable = true, .language = { u"ar"_s } });
    rows << make(FieldKind::text, true,
        { .label = u"German"_s,
            .text = u"Letztes Licht am See"_s,
            .edited = true,
            .removable = true,
            .language = { u"de"_s } });
    rows << make(FieldKind::text, true,
        { .label = u"French"_s,
            .edited = true,
            .removable = true,
            .noteLine = u"Will be taken away"_s,
            .language = { u"fr"_s, u"Title (French)"_s, true, true } });
    rows << make(FieldKind::multiline, false,
        { .label = u"Description"_s,
            .text = u"Still water after a clear October day, looking south from the reed bank at Horn. More text."_s,
            .languages = { true, { { u"de"_s }, { u"en-US"_s }, { u"fr"_s }, { u"zh-Hans"_s } } } });
    rows << make(FieldKind::keywords, false,
        { .label = u"Keywords"_s,
            .items = { u"lake"_s, u"autumn"_s },
            .places = { { { u"XMP-dc:Subject"_s, { u"lake"_s, u"autumn"_s }, true },
                { u"IPTC:Keywords"_s, { u"lake"_s, u"autumn"_s, u"evening"_s } } } } });
    rows << make(FieldKind::text, false,
        { .label = u"Creator"_s,
            .text = u"Publisher House"_s,
            .namespaceLine = u"XMP-dc:Creator"_s,
            .places = { { { u"XMP-pdf:Author"_s, { u"Publisher House"_s }, true, true },
                { u"XMP-dc:Creator"_s, { u"Mara Lindqvist"_s } } } } });
    QList<FieldHome> homes{ { u"XMP-dc:Rights"_s, { u"© 2024 Mara Lindqvist"_s }, true },
        { u"IPTC:CopyrightNotice"_s, { longText } }, { u"EXIF:Copyright"_s, { u"(c) Lindqvist Studio 2019"_s } },
        { u"XMP-xmpRights:OneWithAVeryLongTagNameThatDoesNotFitBesideTheButton"_s, { u"حقوق النشر ٢٠٢٤"_s } } };
    rows << make(FieldKind::text, false,
        { .label = u"Copyright"_s,
            .text = u"© 2024 Mara Lindqvist"_s,
            .languages = { true },
            .places = { homes, true } });
    return rows;
}

QStringList withKeywords(const QStringList& words)
{
    QStringList assignments;
    for (const QString& word : words)
        assignments.append(u"-XMP-dc:Subject="_s + word);
    return assignments;
}

// Five photos that hold many keywords, some of them in all; one is added to all, one taken away, and the title is
// another one for each.
void grabKeywords(const QString& folder)
{
    InspectorFixture f;
    const QStringList words{ u"sailing"_s, u"lake"_s, u"autumn"_s, u"crew"_s, u"regata"_s, u"evening"_s, u"reed bank"_s,
        u"jetty"_s, u"boathouse"_s, u"Obersee"_s, u"windsurfing"_s, u"a rather long keyword"_s, u"Rapperswil-Jona"_s,
        u"committee boat"_s, u"spinnaker"_s, u"tack"_s, u"mark"_s, u"buoy"_s, u"harbour"_s };
    const QStringList names{ u"1.jpg"_s, u"2.jpg"_s, u"3.jpg"_s, u"4.jpg"_s, u"5.jpg"_s };
    for (qsizetype i = 0; i < names.size(); ++i)
        f.add(names.at(i), withKeywords(words.mid(0, words.size() - 3 * i)));
    if (!f.open({ 520, 900 }))
        return;
    f.model().selectAllPhotos();
    f.model().takeBatchItemAway(u"keywords"_s, u"regata"_s);
    f.model().addBatchListItem(u"keywords"_s, u"Zürichsee"_s);
    f.model().addBatchListItem(u"keywords"_s, u"boathouse"_s);
    Edits own;
    for (const QString& name : names)
        own.own[f.photos.url(name)].scalars.insert(u"title"_s, name);
    f.model().layEdits(own);
    QuickKeywords& quick = f.model().quickKeywords();
    quick.beginNew();
    quick.store({ u"Race day"_s,
        { u"finish"_s, u"start"_s, u"committee"_s, u"crowd"_s, u"Places|Rapperswil"_s, u"podium"_s } });
    grab(f, folder, u"keywords"_s);
    f.window->resize(360, 900);
    f.settle();
    QTest::qWait(100);
    f.window->grab().save(folder + u"/keywords-narrow.png"_s);
    grabSheet([&f] { return new SaveDialogView(f.model()); }, folder, u"taken-away"_s);
    quick.beginChange();
    grabSheet([&f] { return new QuickSetSheet(f.model()); }, folder, u"quick-set"_s);
}

void grabRows(const QString& folder)
{
    for (const bool dark : { false, true }) {
        for (const int width : { 300, 520 }) {
            QWidget window;
            window.setAutoFillBackground(true);
            setTheme(&window, dark ? Theme::dark() : Theme::light());
            auto* column = new QVBoxLayout(&window);
            column->setContentsMargins(8, 8, 20, 8);
            auto* section = new FormSection(u"COMMON"_s);
            column->addWidget(section);
            column->addStretch();
            section->setRows(rareRows(section));
            window.resize(width, 700);
            window.show();
            window.activateWindow();
            QTest::qWait(100);
            const QString file = u"%1/rows-%2-%3"_s.arg(folder, dark ? u"dark"_s : u"light"_s).arg(width);
            grabWithPopups(window, file + u".png"_s);
            const QList<MarkButton*> marks = section->findChildren<MarkButton*>();
            for (qsizetype i = 0; i < marks.size(); ++i) {
                marks.at(i)->click();
                grabWithPopups(window, file + u"-places%1.png"_s.arg(i));
                QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
            }
        }
    }
}

void awaitDetails(InspectorFixture& f)
{
    const auto isKnown = [&f] {
        const QSet<QUrl>& selected = f.model().selection();
        return std::all_of(
            selected.cbegin(), selected.cend(), [&f](const QUrl& url) { return f.model().details(url) != nullptr; });
    };
    if (!QTest::qWaitFor(isKnown, 20000))
        qWarning("no details");
    f.settle();
}

// One photo, then three, in several languages and with places that disagree.
void grabLanguages(const QString& folder)
{
    InspectorFixture f;
    f.photos.lookAtDetails();
    const QStringList common{ u"-XMP-dc:Title=Last light on the lake"_s, u"-XMP-dc:Title-de=Letztes Licht am See"_s,
        u"-XMP-dc:Title-fr=Dernière lumière sur le lac"_s, u"-XMP-dc:Title-ar=الضوء الأخير على البحيرة"_s,
        u"-XMP-dc:Title-it=Ultima luce sul lago"_s, u"-XMP-dc:Title-zh-hans=湖上的余晖"_s,
        u"-XMP-dc:Description=Still water after a clear October day, looking south from the reed bank at Horn."_s,
        u"-XMP-dc:Description-de=Stilles Wasser nach einem klaren Oktobertag, Blick vom Schilfufer bei Horn nach "
        u"Süden, "
        u"und noch ein Satz."_s,
        u"-XMP-dc:Subject=lake"_s, u"-XMP-dc:Subject=autumn"_s, u"-IPTC:Keywords=lake"_s, u"-XMP-dc:Creator=Mara"_s };
    f.add(u"IMG_4021.jpg"_s,
        common
            + QStringList{ u"-XMP-dc:Rights=© 2024 Mara Lindqvist"_s,
                u"-IPTC:CopyrightNotice=© 2024 Mara Lindqvist, all rights reserved. Prints on request."_s,
                u"-EXIF:Copyright=(c) Lindqvist Studio 2019"_s });
    f.add(u"IMG_4022.jpg"_s, common);
    f.add(u"IMG_4023.jpg"_s, { u"-XMP-dc:Title=Other"_s, u"-XMP-dc:Title-de=Anderes"_s });
    if (!f.open({ 520, 900 }))
        return;
    awaitDetails(f);
    f.row(u"copyright"_s)->input()->setFocus();
    grab(f, folder, u"homes"_s);
    f.window->resize(520, 700);
    f.editor<MarkButton>(u"copyright"_s)->click();
    grabWithPopups(*f.window, folder + u"/window-places.png"_s);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    f.editor<CodesChip>(u"title"_s)->click();
    f.model().setSingle(u"title@de"_s, u"Letztes Licht am See!"_s);
    f.model().removeLanguage(u"title"_s, u"fr"_s);
    f.settle();
    grab(f, folder, u"languages"_s);
    f.editor<CodesChip>(u"description"_s)->click();
    f.window->resize(520, 1200);
    grab(f, folder, u"languages-more"_s);
    button(f.view, u"Add language"_s)->click();
    QTest::keyClicks(QApplication::activePopupWidget()->focusWidget(), u"por"_s);
    grabWithPopups(*f.window, folder + u"/window-menu.png"_s);
    QApplication::activePopupWidget()->close();
    f.model().discardSaveDialog();
    f.model().selectAllPhotos();
    awaitDetails(f);
    f.model().setBatch(u"title@fr"_s, {});
    f.model().setBatch(u"title@it"_s, u"Tutte"_s);
    grab(f, folder, u"languages-batch"_s);
    f.model().discardSaveDialog();
}

QWidget* heading(const InspectorFixture& f, const QString& title)
{
    for (FoldingHeading* heading : f.view->findChildren<FoldingHeading*>())
        if (heading->text() == title)
            return heading;
    return nullptr;
}

void unfold(const InspectorFixture& f, const QStringList& titles)
{
    for (const QString& title : titles)
        QTest::keyClick(heading(f, title), Qt::Key_Right);
    f.settle();
}

// What a desk fills in; then all fields, empty; then several photos.
void grabIptc(const QString& folder)
{
    InspectorFixture f;
    f.photos.lookAtDetails();
    f.add(u"IMG_4021.jpg"_s,
        { u"-XMP-photoshop:Headline=Autumn regatta ends in a calm"_s,
            u"-XMP-dc:Description=Still water after a clear October day, looking south from the reed bank at Horn."_s,
            u"-XMP-iptcCore:AltTextAccessibility=A lake at dusk between two dark trees; yellow woods on the far bank."_s,
            u"-XMP-photoshop:AuthorsPosition=Staff photographer"_s,
            u"-XMP-iptcCore:CreatorContactInfo={CiEmailWork=mara@lindqvist.example,CiAdrCity=Zürich,"
            u"CiTelWork=+41 44 123 45 67}"_s,
            u"-XMP-iptcCore:CountryCode=CH"_s,
            u"-XMP-iptcExt:PersonInImageWDetails=[{PersonName=Ana Lima},{PersonName=Bo Ek}]"_s,
            u"-XMP-iptcExt:LocationShown=[{Sublocation=Lake promenade,City=Rapperswil-Jona,ProvinceState=St. Gallen,"
            u"CountryName=Switzerland,CountryCode=CH},{City=Horn,ProvinceState=Thurgau,CountryName=Switzerland}]"_s,
            u"-XMP-plus:ModelReleaseStatus#=MR-UMR"_s, u"-XMP-plus:PropertyReleaseStatus#=PR-NAP"_s,
            u"-XMP-iptcCore:SubjectCode=15054000"_s, u"-XMP-iptcCore:SubjectCode=01000000"_s,
            u"-XMP-iptcExt:OrganisationInImageName=Lake, Sons & Co."_s, u"-XMP-iptcExt:MaxAvailWidth=6000"_s,
            u"-XMP-iptcExt:DigitalSourceType=http://cv.iptc.org/newscodes/digitalsourcetype/digitalCapture"_s });
    f.add(u"IMG_4022.jpg"_s,
        { u"-XMP-photoshop:AuthorsPosition=Staff photographer"_s, u"-XMP-plus:ModelReleaseStatus#=MR-NON"_s });
    f.add(u"IMG_4023.jpg"_s, {});
    if (!f.open({ 520, 900 }))
        return;
    awaitDetails(f);
    grab(f, folder, u"iptc-folded"_s);
    unfold(f, { u"LOCATION SHOWN"_s, u"PEOPLE"_s, u"SUBJECTS"_s });
    f.model().setSingle(u"iptc.jobTitle"_s, u"Picture editor"_s);
    f.model().setSingle(u"iptc.modelReleaseStatus"_s, u"MR-LMR"_s);
    f.window->resize(520, 1700);
    f.settle();
    grab(f, folder, u"iptc-open"_s);
    grabSheet([&f] { return new SaveDialogView(f.model()); }, folder, u"iptc-save"_s);
    f.model().discardSaveDialog();
    for (const FieldSpec& field : IptcSchema::all())
        f.model().addKnownField(field.id);
    f.settle();
    unfold(f,
        { u"CONTACT"_s, u"LOCATION CREATED"_s, u"THINGS SHOWN"_s, u"REGIONS"_s, u"RIGHTS"_s, u"LICENSING"_s, u"SOURCE"_s,
            u"IMAGE"_s });
    f.window->resize(520, 3200);
    f.settle();
    grab(f, folder, u"iptc-all"_s);
    f.click(u"IMG_4022.jpg"_s, false, true);
    f.click(u"IMG_4023.jpg"_s, false, true);
    awaitDetails(f);
    f.model().addBatchListItem(u"iptc.organisationNames"_s, u"Boats, Inc."_s);
    f.model().setItems(
        u"iptc.locationsShown"_s, { StructureText::tidied(uR"({"City":"Uji","CountryName":"Japan"})"_s) });
    f.model().setBatch(u"iptc.digitalSource"_s, u"http://cv.iptc.org/newscodes/digitalsourcetype/screenCapture"_s);
    grab(f, folder, u"iptc-batch"_s);
    grabSheet([&f] { return new SaveDialogView(f.model()); }, folder, u"iptc-apply"_s);
    f.model().discardSaveDialog();
}

const QStringList lake{ u"-XMP-dc:Title=Evening by the lake"_s,
    u"-XMP-dc:Description=Still water after a clear October day, looking south from the reed bank at Horn."_s,
    u"-EXIF:DateTimeOriginal=2024:10:12 17:48:00"_s, u"-IPTC:Keywords=lake"_s, u"-IPTC:Keywords=autumn"_s,
    u"-IPTC:Keywords=evening"_s, u"-XMP-dc:Creator=Mara Lindqvist"_s, u"-XMP-photoshop:City=Zürich"_s,
    u"-GPSLatitude=47.3769"_s, u"-GPSLatitudeRef=N"_s, u"-GPSLongitude=8.5417"_s, u"-GPSLongitudeRef=E"_s,
    u"-XMP:Rating=4"_s, u"-EXIF:Model=E-M5MarkIII"_s, u"-EXIF:Make=OLYMPUS"_s,
    u"-EXIF:LensModel=OLYMPUS M.12-40mm F2.8"_s, u"-EXIF:ISO=200"_s, u"-EXIF:ExposureTime=1/60"_s,
    u"-EXIF:FNumber=5.6"_s, u"-EXIF:FocalLength=17"_s, u"-EXIF:ColorSpace=1"_s };

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    const QString folder = app.arguments().value(1, u"."_s);
    QDir().mkpath(folder);
    if (const int pixels = app.arguments().value(2).toInt(); pixels > 0) {
        QFont font = QApplication::font();
        font.setPixelSize(pixels);
        QApplication::setFont(font);
    }
    if (app.arguments().value(3) == u"iptc"_s) {
        grabIptc(folder);
        return 0;
    }
    grabKeywords(folder);
    if (app.arguments().value(3) == u"keywords"_s)
        return 0;
    grabRows(folder);
    grabLanguages(folder);
    if (app.arguments().value(3) == u"rows"_s)
        return 0;
    InspectorFixture f;
    f.add(u"IMG_4021.jpg"_s, lake);
    f.add(u"IMG_4022.jpg"_s, { u"-XMP-dc:Creator=Mara Lindqvist"_s, u"-XMP-dc:Title=Other"_s });
    f.add(u"IMG_4023.jpg"_s,
        { u"-GPSLatitude=47.3769"_s, u"-GPSLatitudeRef=N"_s, u"-GPSLongitude=8.5417"_s, u"-GPSLongitudeRef=E"_s });
    QStringList many{
        u"-XMP-dc:Title=A title that goes on far beyond what the narrow column of the inspector can show at once"_s,
        u"-XMP-dc:Description=One\nTwo\nThree\nFour lines, the last of which is long enough to be broken over several lines of the area, whatever its width may be."_s
    };
    for (int i = 0; i < 24; ++i)
        many << u"-IPTC:Keywords=keyword%1"_s.arg(QString(u"x"_s).repeated(i % 9)) + QString::number(i);
    many << u"-XMP-photoshop:State=Mecklenburg-Vorpommern"_s << u"-XMP-photoshop:Country=Deutschland"_s
         << u"-EXIF:OffsetTimeOriginal=+02:00"_s << u"-EXIF:OffsetTimeDigitized=+02:00"_s
         << u"-EXIF:CreateDate=2024:10:12 17:48:00"_s << u"-XMP-photoshop:CaptionWriter=Somebody"_s
         << u"-EXIF:LensModel=A lens with a name that is far longer than the column it is in, 12-40mm F2.8 PRO"_s;
    f.add(u"IMG_4024 with a very long file name that does not fit into the header.jpg"_s, many);
    if (!f.open({ 520, 900 }))
        return 1;
    f.model().setSingle(u"title"_s, u"Last light on the lake"_s);
    f.model().setSingle(u"copyright"_s, u"© 2024 Mara Lindqvist"_s);
    grabSheet([&f] { return new SaveDialogView(f.model()); }, folder, u"save"_s);
    grabSheet([&f] { return new RenameSheet(f.model()); }, folder, u"rename"_s);
    grabSheet([&f] { return new AddFieldSheet(f.model()); }, folder, u"add"_s);
    const auto judged = [&f] {
        auto* sheet = new AddFieldSheet(f.model());
        sheet->findChildren<QBTextField*>().at(1)->setText(u"Größe"_s);
        return sheet;
    };
    grabSheet(judged, folder, u"add-refused"_s);
    grab(f, folder, u"single"_s);
    f.model().preferences().showNamespace.set(true);
    grab(f, folder, u"namespaces"_s);
    f.model().preferences().showNamespace.set(false);
    f.model().discardSaveDialog();
    f.model().preferences().saveDontAsk.set(true);
    f.model().requestSave();
    f.photos.waitUntilIdle();
    f.click(u"IMG_4023.jpg"_s);
    grab(f, folder, u"fill"_s);
    f.click(u"IMG_4024 with a very long file name that does not fit into the header.jpg"_s);
    f.model().addCustomField(u"Arbeitsauftragsnummer"_s, u"42"_s);
    f.model().addCustomField(u"Rindfleischetikettierungsüberwachung"_s, u"ja"_s);
    f.window->resize(520, 1500);
    grab(f, folder, u"long"_s);
    f.model().preferences().saveDontAsk.set(true);
    f.model().requestSave();
    f.photos.waitUntilIdle();
    f.window->resize(520, 900);
    f.model().selectAllPhotos();
    f.model().addBatchListItem(u"keywords"_s, u"Zürichsee"_s);
    f.model().addBatchListItem(u"keywords"_s, u"autumn"_s);
    f.model().setBatch(u"copyright"_s, u"© 2024 Mara Lindqvist"_s);
    f.model().addKnownField(u"headline"_s);
    grab(f, folder, u"batch"_s);
    grabSheet([&f] { return new SaveDialogView(f.model()); }, folder, u"apply"_s);
    const QStringList more{ u"title"_s, u"description"_s, u"creator"_s, u"place"_s, u"credit"_s, u"source"_s,
        u"event"_s };
    for (const QString& id : more)
        f.model().setBatch(id, u"A value that is long enough to need more than one line of the list of changes"_s);
    grabSheet([&f] { return new SaveDialogView(f.model()); }, folder, u"apply-many"_s);
    f.model().preferences().showNamespace.set(true);
    f.window->resize(520, 1500);
    grab(f, folder, u"batch-namespaces"_s);
    f.window->resize(520, 700);
    f.click(u"IMG_4022.jpg"_s);
    grab(f, folder, u"left"_s);
    f.click(u"IMG_4023.jpg"_s, false, true);
    grab(f, folder, u"left-batch"_s);
    return 0;
}
