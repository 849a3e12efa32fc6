// Which files count as photos, held against what the image module takes for raw and what the desktop is told.
#include "core/schema/ImageTypes.h"
#include "platform/images/formats/ImageFormat.h"
#include "tests/support/Rows.h"
#include "tests/support/Support.h"

#include <QMimeDatabase>
#include <QRegularExpression>

using namespace Quorbel;
using namespace Quorbel::Test;

namespace {

QStringList listedMimeTypes()
{
    static const QRegularExpression line(u"^MimeType=(.*)$"_s, QRegularExpression::MultilineOption);
    const QString entry = QString::fromUtf8(readFile(QString::fromUtf8(QUORBEL_DESKTOP_ENTRY)));
    return line.match(entry).captured(1).split(u';', Qt::SkipEmptyParts);
}

}  // namespace

class tst_ImageTypes : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void images_data()
    {
        Test::addRows({ { u"/p/photo.HEIC"_s, u"yes"_s }, { u"/p.mov/holiday.2024.jpg"_s, u"yes"_s },
            { u"/p/50% #1?.jpeg"_s, u"yes"_s } });
        Test::addRows(
            { u"/p/photo.mov"_s, u"/p.jpg/photo"_s, u"/p/photo."_s, u"/p/.jpg"_s, u"/p/photo.jpg_original"_s },
            u"no"_s);
    }
    void images()
    {
        QFETCH(QString, text);
        QTEST(ImageTypes::isImage(QUrl::fromLocalFile(text)) ? u"yes"_s : u"no"_s, "expected");
    }

    // A supported format is either one that any program knows or one that the module takes for a camera's.
    void rawFormatsAreKnownAsSuch()
    {
        const QStringList ordinary =
            u"jpg jpeg png tif tiff gif webp heic heif hif avif jxl jxr hdp wdp jp2 j2k jpf jpx "
            "jpm jph mpo jps psd psb"_s.split(u' ');
        for (const QString& extension : ImageTypes::extensions())
            QVERIFY2(hasRawExtension(u"/p/a."_s + extension) != ordinary.contains(extension), qPrintable(extension));
        for (const QString& extension : ordinary)
            QVERIFY2(ImageTypes::extensions().contains(extension), qPrintable(extension));
    }

    // Files that the desktop can tell apart open with the program. (It has no type at all for some cameras' files.)
    void desktopKnowsEveryExtension()
    {
        const QStringList listed = listedMimeTypes();
        QVERIFY(!listed.isEmpty());
        for (const QString& extension : ImageTypes::extensions()) {
            const QList<QMimeType> types = QMimeDatabase().mimeTypesForFileName(u"a."_s + extension);
            const bool isListed = std::any_of(types.cbegin(), types.cend(), [&listed](const QMimeType& type) {
                const QStringList names = QStringList(type.name()) + type.aliases();
                return std::any_of(names.cbegin(), names.cend(), [&](const QString& n) { return listed.contains(n); });
            });
            QVERIFY2(isListed || types.isEmpty(), qPrintable(extension));
        }
    }

    void everyListedTypeIsSupported()
    {
        // Registered or usual, but unknown to the database.
        const QMap<QString, QString> others{ { u"image/jxr"_s, u"jxr"_s }, { u"image/vnd.ms-photo"_s, u"wdp"_s },
            { u"image/x-samsung-srw"_s, u"srw"_s }, { u"image/x-epson-erf"_s, u"erf"_s },
            { u"image/x-mamiya-mef"_s, u"mef"_s } };
        for (const QString& name : listedMimeTypes()) {
            const QStringList suffixes =
                QMimeDatabase().mimeTypeForName(name).suffixes() + QStringList(others.value(name, u"none"_s));
            const bool isSupported = std::any_of(suffixes.cbegin(), suffixes.cend(),
                [](const QString& suffix) { return ImageTypes::extensions().contains(suffix); });
            QVERIFY2(isSupported || name == QLatin1String("inode/directory"), qPrintable(name));
        }
    }
};

QTEST_GUILESS_MAIN(tst_ImageTypes)
#include "tst_ImageTypes.moc"
