// Draws the inspector in many situations into PNG files, for looking at: scenes FOLDER [PIXELS].
// QT_SCALE_FACTOR=2 doubles the pixels; PIXELS is the size of the desktop's font.
#include "tests/ui/inspector/InspectorFixture.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/theme/Theme.h"
#include "ui/sheets/AddFieldSheet.h"
#include "ui/sheets/RenameSheet.h"
#include "ui/sheets/SaveDialogView.h"

#include <QApplication>
#include <QDir>
#include <QPainter>

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
