// Untouched means untouched: around a save of one field, every other tag of a real photo stays as it is, and so do its
// pixels. Needs QUORBEL_TEST_PHOTOS, a folder with "valid" photos.
#include "core/MetadataService.h"
#include "platform/images/ImageDecoder.h"
#include "tests/support/Support.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

// Photos in the normal run; all with QUORBEL_SLOW_TESTS=1.
constexpr qsizetype sample = 24;

// Every tag of every file, by path, in one run. The tool's exit status says nothing here: odd photos have warnings.
QMap<QString, QJsonObject> dump(const QList<QUrl>& files)
{
    QStringList arguments{ realTool().exiftoolURL.toLocalFile(), u"-j"_s, u"-a"_s, u"-G1:4"_s, u"-s"_s, u"-n"_s,
        u"-U"_s, u"-struct"_s };
    for (const QUrl& file : files)
        arguments.append(file.toLocalFile());
    QProcess tool;
    tool.start(realTool().perlURL.toLocalFile(), arguments);
    tool.waitForFinished(-1);
    QMap<QString, QJsonObject> tags;
    const QJsonArray objects = QJsonDocument::fromJson(tool.readAllStandardOutput()).array();
    for (const QJsonValue& object : objects)
        tags.insert(object[u"SourceFile"_s].toString(), object.toObject());
    return tags;
}

// Tags that a save of the field "place" writes, and what the tool keeps its books with.
bool mayChange(const QString& key)
{
    static const QList<QRegularExpression> allowed{
        // The field itself.
        QRegularExpression(u"^(XMP-photoshop|IPTC\\d*):(Copy\\d+:)?City$"_s),
        // The file's dates, size and inode; how long the tool took.
        QRegularExpression(u"^(System|ExifTool):"_s),
        // Made with the first XMP or IPTC of a file, or counted anew with each change of it.
        QRegularExpression(u"XMPToolkit$|ApplicationRecordVersion$|EnvelopeRecordVersion$|CodedCharacterSet$"_s),
        QRegularExpression(u"IPTCDigest$|^XMP-xmpNote:HasExtendedXMP$"_s),
        // Where things lie in the file: they move when a block before them grows.
        QRegularExpression(
            u"(Offset|Start|Offsets|Length|ByteCounts?|ImageStart|Pointer|FreeBytes|FreeOffsets)\\d*$"_s),
        // Where a container keeps its metadata: HEIF and CR3 among the media data, WebP announced by a flag, a bare
        // JPEG
        // XL stream wrapped into a file of boxes.
        QRegularExpression(u"^QuickTime:(Copy\\d+:)?(MediaData|MediaDataSize|Wide)$|^RIFF:WebP_Flags$|^File:FileType$|"
                           "^Jpeg2000:(MajorBrand|MinorVersion|CompatibleBrands)$"_s),
        // A first Exif block in formats that need one to hold IPTC, and its mandatory tags.
        QRegularExpression(u"(ExifByteOrder|ResolutionUnit|[XY]Resolution|YCbCrPositioning|ExifVersion|"
                           "ComponentsConfiguration|FlashpixVersion|ColorSpace)$"_s),
    };
    return std::any_of(allowed.cbegin(), allowed.cend(),
        [&key](const QRegularExpression& pattern) { return pattern.match(key).hasMatch(); });
}

// A property that a block holds twice, the second time without a value: the tool writes it once.
bool isEmptyDouble(const QString& key, const QJsonValue& value)
{
    return key.contains(u":Copy"_s) && value.toString(u"-"_s).isEmpty();
}

// Whether the field holds the new text; a file may hold the tag more than once.
bool holdsNewPlace(const QJsonObject& tags)
{
    for (const QString& key : { u"XMP-photoshop:City"_s, u"XMP-photoshop:Copy1:City"_s })
        if (tags.value(key).toString() == u"Behind the church")
            return true;
    return false;
}

// The whole picture; null where no library here decodes it.
QImage pixels(const QString& path)
{
    constexpr int longerThanAnySide = 100'000;
    return ImageDecoder::decode(path, longerThanAnySide).image;
}

// What is left of a file without its metadata, as far as the tool can take them out.
QByteArray bareBytes(const QString& path)
{
    const PhotoFolder folder;
    const QString bare = folder.path(u"bare."_s + QFileInfo(path).suffix());
    QProcess tool;
    tool.start(realTool().perlURL.toLocalFile(),
        { realTool().exiftoolURL.toLocalFile(), u"-q"_s, u"-q"_s, u"-m"_s, u"-all="_s, u"-o"_s, bare, path });
    tool.waitForFinished(-1);
    return QFile::exists(bare) ? readFile(bare) : QByteArray();
}

QStringList unexpectedChanges(const QJsonObject& before, const QJsonObject& after)
{
    QStringList changes;
    for (auto tag = before.begin(); tag != before.end(); ++tag)
        if (after.value(tag.key()) != tag.value() && !mayChange(tag.key()) && !isEmptyDouble(tag.key(), tag.value()))
            changes.append(tag.key());
    for (auto tag = after.begin(); tag != after.end(); ++tag)
        if (!before.contains(tag.key()) && !mayChange(tag.key()))
            changes.append(u'+' + tag.key());
    return changes;
}

}  // namespace

class tst_Untouched : public QObject {
    Q_OBJECT

private slots:
    void otherTagsAndPixelsStay()
    {
        const QStringList paths = realPhotos(u"valid"_s, sample);
        if (paths.isEmpty())
            QSKIP("no photos: QUORBEL_TEST_PHOTOS is not set");
        const PhotoFolder folder;
        const QList<QUrl> copies = copied(paths, folder);
        const auto before = dump(copies);
        const MetadataService service{ realTool() };
        try {
            service.write({ .scalars = { { u"place"_s, u"Behind the church"_s } } }, copies, {});
        } catch (const ToolError&) {
            // Formats that the tool does not write stay as they are, which the comparison proves too.
        }
        const auto after = dump(copies);
        int saved = 0;
        int decoded = 0;
        QStringList faults;
        for (qsizetype i = 0; i < copies.size(); ++i) {
            const QUrl& copy = copies.at(i);
            const QJsonObject now = after.value(copy.toLocalFile());
            if (holdsNewPlace(now)) {
                ++saved;
                const QImage picture = pixels(paths.at(i));
                decoded += picture.isNull() ? 0 : 1;
                const QByteArray bare = picture.isNull() ? bareBytes(paths.at(i)) : QByteArray();
                if (picture.isNull() && (bare.isEmpty() || bareBytes(copy.toLocalFile()) != bare))
                    faults.append(copy.fileName() + u": other bytes"_s);
                else if (pixels(copy.toLocalFile()) != picture)
                    faults.append(copy.fileName() + u": other pixels"_s);
            }
            const QStringList changes = unexpectedChanges(before.value(copy.toLocalFile()), now);
            if (!changes.isEmpty())
                faults.append(copy.fileName() + u": "_s + changes.join(u", "_s));
        }
        qInfo("%d of %d photos were saved, %d of them decode", saved, int(copies.size()), decoded);
        QVERIFY2(saved > copies.size() / 2, "most real photos can be written");
        QVERIFY2(faults.isEmpty(), qPrintable(u'\n' + faults.join(u'\n')));
    }
};

QTEST_GUILESS_MAIN(tst_Untouched)
#include "tst_Untouched.moc"
