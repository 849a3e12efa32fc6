// Untouched means untouched: around a save of one field, every other tag of a real photo stays as it is. And photos
// that are broken are refused with a reason, or saved. Both need QUORBEL_TEST_PHOTOS, a folder with "valid" and
// "malformed" photos.
#include "core/MetadataService.h"
#include "core/SaveVerification.h"
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

/// Photos in the normal run; all with QUORBEL_SLOW_TESTS=1.
constexpr qsizetype sample = 40;

QStringList photos(const QString& kind)
{
    const QDir folder(qEnvironmentVariable("QUORBEL_TEST_PHOTOS") + u'/' + kind);
    QStringList paths;
    if (!qEnvironmentVariable("QUORBEL_TEST_PHOTOS").isEmpty())
        for (const QString& name : folder.entryList(QDir::Files))
            if (name != u"xmp-deep-nesting.png")  // keeps the tool busy for half an hour
                paths.append(folder.filePath(name));
    if (qEnvironmentVariableIsSet("QUORBEL_SLOW_TESTS") || paths.size() <= sample)
        return paths;
    QStringList chosen;
    for (qsizetype i = 0; i < sample; ++i)
        chosen.append(paths.at(i * paths.size() / sample));
    return chosen;
}

/// Copies under names that do not collide.
QList<QUrl> copied(const QStringList& paths, const PhotoFolder& folder)
{
    QList<QUrl> copies;
    for (const QString& path : paths)
        copies.append(folder.add(u"%1-%2"_s.arg(copies.size()).arg(QFileInfo(path).fileName()), readFile(path)));
    return copies;
}

/// Every tag of every file, by path, in one run. The tool's exit status says nothing here: odd photos have warnings.
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

/// Tags that a save of the field "place" writes, and what the tool keeps its books with.
bool mayChange(const QString& key)
{
    static const QList<QRegularExpression> allowed{
        // The field itself.
        QRegularExpression(u"^(XMP-photoshop|IPTC\\d*):(Copy\\d+:)?City$"_s),
        // The file's dates, size and inode; how long the tool took.
        QRegularExpression(u"^(System|ExifTool):"_s),
        // Made with the first XMP or IPTC of a file, or counted anew with each change of it.
        QRegularExpression(u"XMPToolkit$|ApplicationRecordVersion$|EnvelopeRecordVersion$|CodedCharacterSet$"_s),
        QRegularExpression(u"IPTCDigest$"_s),
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

/// Whether the field holds the new text; a file may hold the tag more than once.
bool holdsNewPlace(const QJsonObject& tags)
{
    for (const QString& key : { u"XMP-photoshop:City"_s, u"XMP-photoshop:Copy1:City"_s })
        if (tags.value(key).toString() == u"Behind the church")
            return true;
    return false;
}

QStringList unexpectedChanges(const QJsonObject& before, const QJsonObject& after)
{
    QStringList changes;
    for (auto tag = before.begin(); tag != before.end(); ++tag)
        if (after.value(tag.key()) != tag.value() && !mayChange(tag.key()))
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
    void otherTagsStay()
    {
        const QStringList paths = photos(u"valid"_s);
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
        QStringList faults;
        for (const QUrl& copy : copies) {
            const QJsonObject now = after.value(copy.toLocalFile());
            saved += holdsNewPlace(now) ? 1 : 0;
            const QStringList changes = unexpectedChanges(before.value(copy.toLocalFile()), now);
            if (!changes.isEmpty())
                faults.append(copy.fileName() + u": "_s + changes.join(u", "_s));
        }
        qInfo("%d of %d photos were saved", saved, int(copies.size()));
        QVERIFY2(saved > copies.size() / 2, "most real photos can be written");
        QVERIFY2(faults.isEmpty(), qPrintable(u'\n' + faults.join(u'\n')));
    }

    void brokenPhotosAreSavedOrNamed()
    {
        const QStringList paths = photos(u"malformed"_s);
        if (paths.isEmpty())
            QSKIP("no photos: QUORBEL_TEST_PHOTOS is not set");
        const PhotoFolder folder;
        const QList<QUrl> copies = copied(paths, folder);
        const MetadataService service{ realTool() };
        const EditPlan plan{ .scalars = { { u"place"_s, u"Behind the church"_s } } };
        QString messages;
        try {
            service.write(plan, copies, {});
        } catch (const ToolError& error) {
            messages = error.description();
            if (const auto* failed = std::get_if<ToolError::ExecFailed>(&error.payload()))
                messages = failed->standardError;
        }
        const auto failures = writeFailures(messages, copies);
        const auto after = dump(copies);
        for (qsizetype i = 0; i < copies.size(); ++i) {
            const QString path = copies.at(i).toLocalFile();
            const bool isSaved = holdsNewPlace(after.value(path));
            const auto failure = std::find_if(failures.cbegin(), failures.cend(),
                [&](const FileFailure& candidate) { return candidate.file == copies.at(i); });
            const bool isNamed = failure != failures.cend();
            // What the tool passes over in silence, the comparison after the save must notice.
            if (!isSaved && !isNamed) {
                const auto records = service.read({ copies.at(i) });
                QVERIFY2(!SaveVerification::differences(plan, records.constFirst()).isEmpty(), qPrintable(path));
            }
            if (isNamed) {
                QVERIFY2(!failure->reason.isEmpty(), qPrintable(path));
                QVERIFY2(readFile(path) == readFile(paths.at(i)), qPrintable(path + u": refused, and changed"_s));
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_Untouched)
#include "tst_Untouched.moc"
