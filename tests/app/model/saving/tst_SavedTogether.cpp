// What belongs together changes together, and nothing else does: photos as other programs leave them, saved by each
// kind of edit, all their tags compared before and after; and Undo Save gives every one of them back.
#include "app/model/TaskProgress.h"
#include "app/model/saving/SaveJob.h"
#include "core/save/TagHomes.h"
#include "core/save/together/PathHomes.h"
#include "tests/app/model/Dumps.h"
#include "tests/support/RealService.h"
#include "tests/support/RecordedTool.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

struct Made {
    const char* name;
    QStringList tags;  // as the tool gets them; "\xHH" for bytes
};

const QStringList allPaths{ "-XMP-lr:HierarchicalSubject=Places|France|Paris",
    "-XMP-lr:HierarchicalSubject=Places|Paris|Louvre", "-XMP-digiKam:TagsList=Places/France/Paris",
    "-XMP-digiKam:TagsList=Paris", "-XMP-microsoft:LastKeywordXMP=Places/France/Paris",
    "-XMP-mediapro:CatalogSets=Places|France|Paris", "-XMP-mediapro:CatalogSets= Sets | Paris " };
const QStringList bothKeywords{ "-IPTC:Keywords=Paris", "-IPTC:Keywords=old", "-XMP-dc:Subject=Paris",
    "-XMP-dc:Subject=old" };
const QStringList languages{ "-XMP-dc:Title=One", "-XMP-dc:Title-de=Eins", "-XMP-dc:Title-fr=Un",
    "-XMP-dc:Title-en-US=Won", "-XMP-dc:Title-zh-Hans=\u4e00", "-XMP-dc:Description-de=Zwei\nDrei ", "-XMP-dc:Rights=R",
    "-XMP-dc:Rights-it=Di", "-XMP-iptcExt:Event-de=Feier", "-XMP-xmpRights:UsageTerms-fr=Non" };
const QStringList dates{ "-EXIF:DateTimeOriginal=2020:01:02 10:11:12", "-EXIF:SubSecTimeOriginal=50",
    "-EXIF:OffsetTimeOriginal=+05:30", "-IPTC:DateCreated=2020:01:02", "-IPTC:TimeCreated=10:11:12+05:30",
    "-XMP-exif:DateTimeOriginal=2020:01:02 10:11:12.5+05:30", "-XMP-photoshop:DateCreated=2020:01:02 10:11:12" };
const QStringList digitized{ "-EXIF:CreateDate=2019:01:02 10:11:12", "-EXIF:SubSecTimeDigitized=5",
    "-IPTC:DigitalCreationDate=2019:01:02", "-IPTC:DigitalCreationTime=10:11:12-08:00",
    "-XMP-exif:DateTimeDigitized=2019:01:02 10:11:12" };

const QList<Made>& photos()
{
    // A day that is none, and a time without a zone.
    const QString oddIptc = u"-IPTC:IPTC=\\x1c\\x02\\x37\\x00\\x0820200000\\x1c\\x02\\x3c\\x00\\x06101112"_s;
    static const QList<Made> all{
        { "nothing.jpg", {} },
        { "xmp title.jpg", { "-XMP-dc:Title=One" } },
        { "iptc title.jpg", { "-IPTC:ObjectName=Two" } },
        { "same titles.jpg", { "-XMP-dc:Title=One", "-IPTC:ObjectName=One" } },
        { "two titles.jpg", { "-XMP-dc:Title=One", "-IPTC:ObjectName=Two", "-IPTC:Headline=Kept" } },
        { "languages.jpg", languages },
        { "german alone.jpg", { "-XMP-dc:Title-de=Eins", "-IPTC:ObjectName=Two" } },
        { "empty language.jpg", { "-XMP-dc:Title=One", "-XMP-dc:Title-de^=", "-XMP-dc:Title-fr= a &amp; <b>" } },
        { "three descriptions.jpg",
            { "-XMP-dc:Description=A", "-IPTC:Caption-Abstract=B", "-EXIF:ImageDescription=C",
                "-XMP-dc:Description-de=D" } },
        { "exif description.jpg", { "-EXIF:ImageDescription=C", "-EXIF:Artist=A; B", "-EXIF:UserComment=u" } },
        { "creators.jpg", { "-XMP-dc:Creator=A", "-XMP-dc:Creator=B", "-IPTC:By-line=A", "-XMP-dc:Contributor=C" } },
        { "cut off.jpg",
            { "-XMP-dc:Description=" + QString(80, u'x'), "-IPTC:Caption-Abstract=" + QString(64, u'x') } },
        { "keywords.jpg", bothKeywords },
        { "iptc keywords.jpg", { "-IPTC:Keywords=Paris", "-XMP-lr:HierarchicalSubject=Places|France|Paris" } },
        { "xmp keywords.jpg", { "-XMP-dc:Subject=Paris", "-XMP-digiKam:TagsList=Places/France/Paris" } },
        { "two keywords.jpg",
            { "-IPTC:Keywords=Paris", "-IPTC:Keywords=a", "-XMP-dc:Subject=Paris", "-XMP-dc:Subject=b" } },
        { "all paths.jpg", bothKeywords + allPaths },
        { "two paths.jpg",
            bothKeywords + QStringList{ "-XMP-lr:HierarchicalSubject=A|Paris", "-XMP-digiKam:TagsList=B/Paris" } },
        { "inner path.jpg", bothKeywords + QStringList{ "-XMP-lr:HierarchicalSubject=Places|Paris|Louvre" } },
        { "other case.jpg", bothKeywords + QStringList{ "-XMP-lr:HierarchicalSubject=Places|paris" } },
        { "microsoft.jpg", bothKeywords + QStringList{ "-XMP-microsoft:LastKeywordXMP=Places/Paris" } },
        { "mediapro.jpg", bothKeywords + QStringList{ "-XMP-mediapro:CatalogSets=Places|Paris" } },
        { "categories.jpg",
            bothKeywords
                + QStringList{ "-XMP-acdsee:Categories=<Categories><Category "
                               "Assigned=\"1\">Paris</Category></Categories>" } },
        { "path alone.jpg", { "-XMP-lr:HierarchicalSubject=Places|France|Paris" } },
        { "dates.jpg", dates },
        { "digitized.jpg", digitized },
        { "all dates.jpg", dates + digitized },
        { "iptc day.jpg", { "-IPTC:DateCreated=2020:01:02", "-EXIF:DateTimeOriginal=2021:01:02 03:04:05" } },
        { "iptc zone.jpg", { "-IPTC:DateCreated=2020:01:02", "-IPTC:TimeCreated=10:11:12-03:00" } },
        { "odd iptc.jpg", { oddIptc } },
        { "xmp date.jpg", { "-XMP-exif:DateTimeOriginal=2020:01:02 10:11:12", "-EXIF:OffsetTimeOriginal=+01:00" } },
        { "fraction.jpg", { "-EXIF:SubSecTimeOriginal=123", "-EXIF:SubSecTime=4" } },
        { "latin.jpg", { "-IPTC:City=Z\\xfcrich", "-IPTC:Keywords=Paris", "-IPTC:TimeCreated=10:11:12+01:00" } },
        { "declared.jpg", { "-IPTC:CodedCharacterSet=UTF8", "-IPTC:City=\u6771\u4eac", "-IPTC:Keywords=Paris" } },
        { "all.tif", languages + bothKeywords + allPaths + dates },
        { "nothing.tif", {} },
        { "all.png", languages + bothKeywords + allPaths + dates },
        { "two titles.png", { "-XMP-dc:Title=One", "-IPTC:ObjectName=Two" } },
        { "all.webp", languages + bothKeywords + allPaths + dates },
        { "nothing.webp", {} },
    };
    return all;
}

// Made once, copied for each edit.
class Master {
public:
    Master()
    {
        for (const Made& made : photos())
            put(m_folder.add(QString::fromLatin1(made.name)), made.tags);
        // A property of somebody's own called Error: the tool takes it for one of its own.
        const QString errors = m_folder.add(u"error.jpg"_s).toLocalFile();
        writeFile(m_folder.path(u"error.xmp"_s),
            "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
            "<rdf:Description xmlns:zz='http://zz/' zz:Error='none'/></rdf:RDF></x:xmpmeta>");
        exiftool({ u"-q"_s, u"-overwrite_original"_s, u"-XMP<="_s + m_folder.path(u"error.xmp"_s), errors });
        QFile::remove(m_folder.path(u"error.xmp"_s));
        const QString real = qEnvironmentVariable("QUORBEL_TEST_PHOTOS") + u"/valid/"_s;
        for (const QString& name : { u"testHEIF.heic"_s, u"1x1_exif_xmp.jxl"_s, u"testDNG.dng"_s })
            if (QFile::exists(real + name))
                put(m_folder.add(name, readFile(real + name)), languages + allPaths + bothKeywords + dates);
    }
    QList<QUrl> copyTo(const PhotoFolder& folder) const { return copied(m_folder, folder); }

private:
    static void put(const QUrl& photo, const QStringList& tags)
    {
        if (!tags.isEmpty())
            exiftool(QStringList{ u"-q"_s, u"-m"_s, u"-ec"_s, u"-overwrite_original"_s } + tags
                + QStringList{ photo.toLocalFile() });
    }

    PhotoFolder m_folder;
};

const Master& master()
{
    static const Master made;
    return made;
}

// What the tool puts beside the first value of a standard, and what says where things lie in the file.
bool isFrame(const QString& tag)
{
    static const QRegularExpression frame(
        uR"(^(System|File|Composite|ExifTool|XMP-x|JFIF):|:(X|Y)Resolution$|:ResolutionUnit$|:YCbCrPositioning$|)"
        uR"(^ExifIFD:(ExifVersion|ComponentsConfiguration|FlashpixVersion|ColorSpace)$|:EnvelopeRecordVersion$|)"
        uR"(:ApplicationRecordVersion$|:IPTCDigest$|Offsets?$|ImageStart$|^IPTC:CodedCharacterSet$|^RIFF:|^Quicktime:|:Warning$)"_s,
        QRegularExpression::CaseInsensitiveOption);
    return frame.match(tag).hasMatch();
}

// `types`: gains the tool's name for the type of each.
Dump dump(const PhotoFolder& folder, QMap<QString, QString>* types = nullptr)
{
    Dump files;
    const auto read = TagDump::parse(realTool().readDump(TagDump::options(), { QUrl::fromLocalFile(folder.path()) }));
    for (auto it = read.cbegin(); it != read.cend(); ++it) {
        const QString name = QString::fromUtf8(it.key()).section(u'/', -1);
        FileTags& tags = files[name];
        tags = *it;
        if (types)
            types->insert(name, QString::fromUtf8(tags.value(u"File:FileType"_s).value(0)));
        tags.removeIf([](const auto& tag) { return isFrame(tag.key()); });
    }
    return files;
}

// A photo's tags, as an edit is to leave them.
struct Tags {
    FileTags tags;
    bool hasIptc = false;

    void put(const QString& tag, const QString& value)
    {
        if (tag.startsWith(u"IPTC:"_s) && !hasIptc)
            return;
        if (value.isEmpty())
            tags.remove(tag);
        else
            tags[tag] = { value.toUtf8() };
    }
    void putWhereItIs(const QString& tag, const QString& value)
    {
        if (tags.contains(tag))
            put(tag, value);
    }
    QString of(const QString& tag) const { return QString::fromUtf8(tags.value(tag).value(0)); }
    QStringList items(const QString& tag) const
    {
        QStringList items;
        for (const QByteArray& item : tags.value(tag))
            items.append(QString::fromUtf8(item));
        return items;
    }
    void putItems(const QString& tag, const QStringList& items)
    {
        put(tag, items.value(0));
        if (items.size() > 1 && tags.contains(tag)) {
            tags[tag].clear();
            for (const QString& item : items)
                tags[tag].append(item.toUtf8());
        }
    }
};

const QList<std::pair<QString, QChar>> pathHomes{ { u"XMP-lr:HierarchicalSubject"_s, u'|' },
    { u"XMP-digiKam:TagsList"_s, u'/' }, { u"XMP-microsoft:LastKeywordXMP"_s, u'/' },
    { u"XMP-mediapro:CatalogSets"_s, u'|' } };

void takeAwayParis(Tags& photo)
{
    const QStringList iptc = photo.items(u"IPTC:Keywords"_s);
    const QStringList xmp = photo.items(u"XMP-dc:Subject"_s);
    if (iptc.isEmpty() && xmp.isEmpty())
        return;
    QStringList all = iptc + xmp;
    all.removeDuplicates();
    const bool isTaken = all.removeOne(u"Paris"_s);
    photo.putItems(u"IPTC:Keywords"_s, all);
    photo.putItems(u"XMP-dc:Subject"_s, all);
    for (const auto& [tag, separator] : pathHomes) {
        QStringList kept = photo.items(tag);
        kept.removeIf([&, mark = separator](
                          const QString& path) { return isTaken && path.section(mark, -1).trimmed() == u"Paris"; });
        photo.putItems(tag, kept);
    }
}

// Nothing but Paris goes, and every path to it.
void loseParis(Tags& photo)
{
    for (const QString& home : { u"IPTC:Keywords"_s, u"XMP-dc:Subject"_s }) {
        QStringList rest = photo.items(home);
        rest.removeAll(u"Paris"_s);
        photo.putItems(home, rest);
    }
    for (const auto& [tag, separator] : pathHomes) {
        QStringList kept = photo.items(tag);
        kept.removeIf([mark = separator](const QString& path) { return path.section(mark, -1).trimmed() == u"Paris"; });
        photo.putItems(tag, kept);
    }
}

// `item` behind the others of both homes, and its path, in each home's form, behind those that the photo has.
void append(Tags& photo, const QString& item, const QStringList& path)
{
    QStringList all = photo.items(u"IPTC:Keywords"_s) + photo.items(u"XMP-dc:Subject"_s);
    all.removeDuplicates();
    for (const QString& home : { u"IPTC:Keywords"_s, u"XMP-dc:Subject"_s }) {
        QStringList own = photo.items(home);
        for (const QString& other : std::as_const(all))
            if (!own.contains(other))
                own.append(other);
        photo.putItems(home, own + QStringList{ item });
    }
    const bool isFirst = std::none_of(
        pathHomes.cbegin(), pathHomes.cend(), [&](const auto& home) { return photo.tags.contains(home.first); });
    for (const auto& [tag, separator] : isFirst ? pathHomes.first(2) : pathHomes)
        if (isFirst || photo.tags.contains(tag))
            photo.putItems(tag, photo.items(tag) + QStringList{ path.join(separator) });
}

void putTitle(Tags& photo, const QString& text)
{
    photo.put(u"XMP-dc:Title"_s, text);
    photo.put(u"IPTC:ObjectName"_s, text);
}

void putDate(Tags& photo, const QString& day, const QString& time, const QString& offset)
{
    const auto zone = [&](const QString& own) { return !offset.isEmpty() ? offset : own; };
    const QString own = photo.of(u"IPTC:TimeCreated"_s).sliced(qMin(8, photo.of(u"IPTC:TimeCreated"_s).size()));
    const bool hasZone = photo.of(u"XMP-exif:DateTimeOriginal"_s).contains(u'+');
    const QString both = day.isEmpty() ? QString() : day + u' ' + time;
    photo.put(u"ExifIFD:DateTimeOriginal"_s, both);
    photo.put(u"XMP-photoshop:DateCreated"_s, both);
    photo.putWhereItIs(u"IPTC:DateCreated"_s, day);
    photo.putWhereItIs(
        u"IPTC:TimeCreated"_s, day.isEmpty() ? QString() : time + zone(own.isEmpty() ? u"+00:00"_s : own));
    photo.putWhereItIs(
        u"XMP-exif:DateTimeOriginal"_s, day.isEmpty() ? QString() : both + (hasZone ? zone(u"+05:30"_s) : QString()));
    photo.put(u"ExifIFD:SubSecTimeOriginal"_s, {});
}

using Change = std::function<void(Tags& photo)>;
using Texts = QMap<QString, QString>;
using Runs = QList<QStringList>;  // what each is given

QUrl made(const PhotoFolder& folder, const QString& name, const QStringList& tags)
{
    const QUrl photo = folder.add(name);
    if (!tags.isEmpty())
        exiftool(QStringList{ u"-q"_s, u"-m"_s, u"-overwrite_original"_s } + tags + QStringList{ photo.toLocalFile() });
    return photo;
}

}  // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(EditPlan)

class tst_SavedTogether : public QObject {
    Q_OBJECT

private slots:
    void nothingElseChangesAndUndoGivesAllBack_data();
    void nothingElseChangesAndUndoGivesAllBack();
    void costsNoFurtherRuns_data();
    void costsNoFurtherRuns();
    void sidecarsHoldTheSame();
    void pathsTakenAwayAndGainedAtOnce();
};

void tst_SavedTogether::nothingElseChangesAndUndoGivesAllBack_data()
{
    QTest::addColumn<EditPlan>("plan");
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("isUndone");  // each photo takes a run then
    const auto appended = [](const QString& item, const QString& path) {
        return EditPlan{
            .lists = { { u"keywords"_s, { item } } }, .listMode = MetadataWriter::ListMode::append, .paths = { path }
        };
    };

    // Two of the six hold the most; the others come with the slow tests.
    const bool isSlow = isSlowRun();
    if (isSlow)
        QTest::newRow("a title, and a date digitized")
            << EditPlan{ .scalars = { { "title", "New" }, { "dateDigitized", "2024-05-06 07:08:09" } } }
            << Change([](Tags& photo) {
                   putTitle(photo, u"New"_s);
                   const QString both = u"2024:05:06 07:08:09"_s;
                   photo.put(u"ExifIFD:CreateDate"_s, both);
                   photo.put(u"XMP-xmp:CreateDate"_s, both);
                   photo.putWhereItIs(u"IPTC:DigitalCreationDate"_s, u"2024:05:06"_s);
                   photo.putWhereItIs(u"IPTC:DigitalCreationTime"_s, u"07:08:09-08:00"_s);
                   photo.putWhereItIs(u"XMP-exif:DateTimeDigitized"_s, both);
                   photo.put(u"ExifIFD:SubSecTimeDigitized"_s, {});
               })
            << false;
    if (isSlow)
        QTest::newRow("no title, and a date")
            << EditPlan{ .scalars = { { "title", "" }, { "date", "2024-05-06 07:08" } } } << Change([](Tags& photo) {
                   putTitle(photo, {});
                   putDate(photo, u"2024:05:06"_s, u"07:08:00"_s, photo.of(u"ExifIFD:OffsetTimeOriginal"_s));
               })
            << false;
    QTest::newRow("languages of a title, and a date with its offset")
        << EditPlan{ .scalars = { { "title", "New" }, { "title@de", "Neu" }, { "title@fr", "" },
                         { "title@en-us", "Noo" }, { "date", "2024-05-06" }, { "offsetOriginal", "-02:00" } } }
        << Change([](Tags& photo) {
               putTitle(photo, u"New"_s);
               photo.put(u"XMP-dc:Title-de"_s, u"Neu"_s);
               photo.put(u"XMP-dc:Title-fr"_s, {});
               photo.put(u"XMP-dc:Title-en-US"_s, u"Noo"_s);
               putDate(photo, u"2024:05:06"_s, u"00:00:00"_s, u"-02:00"_s);
               photo.put(u"ExifIFD:OffsetTimeOriginal"_s, u"-02:00"_s);
           })
        << true;
    if (isSlow)
        QTest::newRow("languages alone, other fields that have some, 東京, and no date")
            << EditPlan{ .scalars = { { "title@de", "Neu" }, { "description@de", "" }, { "copyright", "C" },
                             { "event", "" }, { "usageTerms", "U" }, { "place", "東京" }, { "date", "" } } }
            << Change([](Tags& photo) {
                   photo.put(u"XMP-dc:Title-de"_s, u"Neu"_s);
                   photo.put(u"XMP-dc:Description-de"_s, {});
                   for (const char* tag : { "XMP-dc:Rights", "IPTC:CopyrightNotice", "IFD0:Copyright" })
                       photo.put(QString::fromLatin1(tag), u"C"_s);
                   photo.put(u"XMP-iptcExt:Event"_s, {});
                   photo.put(u"XMP-xmpRights:UsageTerms"_s, u"U"_s);
                   photo.put(u"XMP-photoshop:City"_s, u"東京"_s);
                   photo.put(u"IPTC:City"_s, u"東京"_s);
                   putDate(photo, {}, {}, {});
               })
            << false;
    QTest::newRow("Paris taken away") << EditPlan{} << Change(takeAwayParis) << true;
    QTest::newRow("Paris taken away from all at once")
        << EditPlan{ .listMode = MetadataWriter::ListMode::append, .removed = { { u"keywords"_s, { u"Paris"_s } } } }
        << Change(loseParis) << true;
    if (isSlow)
        QTest::newRow("a path in another script") << appended(u"東京"_s, u"地名|東京"_s) << Change([](Tags& photo) {
            append(photo, u"東京"_s, { u"地名"_s, u"東京"_s });
        }) << false;
}

void tst_SavedTogether::nothingElseChangesAndUndoGivesAllBack()
{
    QFETCH(EditPlan, plan);
    QFETCH(Change, change);
    QFETCH(bool, isUndone);
    const PhotoFolder folder;
    const QList<QUrl> urls = master().copyTo(folder);
    const QTemporaryDir state;
    const auto history = std::make_shared<SaveHistory>(state.filePath(u"undo"_s));
    const MetadataService service = realService();
    QMap<QString, QString> types;
    const Dump before = dump(folder, &types);
    QCOMPARE(before.size(), urls.size());
    SaveJob::Order order{ .plan = plan, .targets = urls };
    for (const ImageRecord& record : service.readEach(plan.isEmpty() ? urls : QList<QUrl>()).records) {
        // Each photo loses one keyword of its own list.
        QStringList rest = record.lists.value(u"keywords"_s);
        EditPlan& own = order.own[record.url];
        if (rest.removeAll(u"Paris"_s) > 0)
            own.lists.insert(u"keywords"_s, rest);
        order.seen.insert(record.url, record.lists);
    }
    Dump expected = before;
    for (auto file = expected.begin(); file != expected.end(); ++file) {
        Tags photo{ *file, TagHomes::holds(types.value(file.key()), u"IPTC:City"_s) };
        change(photo);
        *file = photo.tags;
    }

    TaskProgress progress;
    const SaveJob::Written written = SaveJob::run(service, order, history, progress);
    QCOMPARE(written.error.value_or(QString()), QString());
    const SaveJob::Checked checked = SaveJob::check(service, order, written, {}, progress, {});
    const QStringList wrong = differences(expected, dump(folder));
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
    QCOMPARE(checked.differences, QStringList());
    QVERIFY(checked.failures.isEmpty() && !checked.error);

    if (!isUndone)
        return;
    const SaveHistory::Undone undone = history->undo(service, written.undoable.get().number, {}, progress);
    QCOMPARE(SaveHistory::text(undone).value_or(QString()), QString());
    const QStringList lost = differences(before, dump(folder));
    QVERIFY2(lost.isEmpty(), qPrintable(lost.join(u'\n')));
}

void tst_SavedTogether::costsNoFurtherRuns_data()
{
    QTest::addColumn<Texts>("scalars");
    QTest::addColumn<Runs>("tags");
    QTest::addColumn<bool>("hasJournal");
    QTest::addColumn<int>("looks");
    QTest::addColumn<Runs>("writes");
    const QStringList title{ u"-XMP-dc:Title=New"_s, u"-IPTC:ObjectName=New"_s };
    const QStringList copied{ u"-tagsfromfile"_s, u"@"_s, u"-XMP-dc:Title-*"_s };
    const QStringList day{ u"-EXIF:DateTimeOriginal=2024:05:06 00:00:00"_s,
        u"-XMP-photoshop:DateCreated=2024:05:06 00:00:00"_s };
    const QStringList plain{ u"-IPTC:ObjectName=Two"_s };
    const QStringList german{ u"-XMP-dc:Title-de=Eins"_s };
    QTest::newRow("nothing belongs to it")
        << Texts{ { u"headline"_s, u"H"_s } } << Runs{ plain, german } << false << 0
        << Runs{ QStringList{ u"-XMP-photoshop:Headline=H"_s, u"-IPTC:Headline=H"_s } };
    QTest::newRow("no languages") << Texts{ { u"title"_s, u"New"_s } } << Runs{ plain, plain } << true << 1
                                  << Runs{ title };
    QTest::newRow("languages in one of two")
        << Texts{ { u"title"_s, u"New"_s } } << Runs{ plain, german } << false << 1 << Runs{ title + copied };
    QTest::newRow("an edited one behind")
        << Texts{ { u"title"_s, u"New"_s }, { u"title@de"_s, u""_s } } << Runs{ german } << true << 1
        << Runs{ title + copied + QStringList{ u"-XMP-dc:Title-de="_s } };
    QTest::newRow("a language alone") << Texts{ { u"title@de"_s, u"Neu"_s } } << Runs{ german } << true << 1
                                      << Runs{ QStringList{ u"-XMP-dc:Title-de=Neu"_s } };
    QTest::newRow("dates, one of them with more")
        << Texts{ { u"date"_s, u"2024-05-06"_s } } << Runs{ plain, { u"-EXIF:SubSecTimeOriginal=5"_s }, plain } << true
        << 1 << Runs{ day, day + QStringList{ u"-EXIF:SubSecTimeOriginal="_s } };
    QTest::newRow("no date") << Texts{ { u"date"_s, u"soon"_s } }
                             << Runs{ QStringList{ u"-EXIF:SubSecTimeOriginal=5"_s } } << true << 1
                             << Runs{ QStringList{
                                    u"-EXIF:DateTimeOriginal=soon"_s, u"-XMP-photoshop:DateCreated=soon"_s } };
}

void tst_SavedTogether::costsNoFurtherRuns()
{
    QFETCH(Texts, scalars);
    QFETCH(Runs, tags);
    QFETCH(bool, hasJournal);
    QFETCH(Runs, writes);
    const RecordedTool tool;
    const PhotoFolder folder;
    SaveJob::Order order{ .plan = { .scalars = scalars } };
    for (const QStringList& one : std::as_const(tags))
        order.targets.append(made(folder, u"%1.jpg"_s.arg(order.targets.size()), one));
    const QTemporaryDir state;
    const auto history = std::make_shared<SaveHistory>(state.filePath(u"undo"_s));
    TaskProgress progress;
    SaveJob::run(tool.service(), order, hasJournal ? history : nullptr, progress);
    int looks = 0;
    int starts = 0;
    Runs written;
    for (QStringList run : tool.runs()) {
        looks += run.contains(u"-php"_s) ? 1 : 0;
        if (run.removeAll(u"-overwrite_original"_s) == 0 || run.removeAll(u"-m"_s) == 0)
            continue;
        ++starts;
        run.removeIf([&folder](const QString& argument) { return argument.startsWith(folder.path()); });
        // Commands that share a start each say which they are first.
        for (; run.contains(u"-execute"_s); run.remove(0, run.indexOf(u"-execute"_s) + 1))
            written.append(run.mid(2, run.indexOf(u"-execute"_s) - 2));
        written.append(run.value(0) == u"-echo4" ? run.mid(2) : run);
    }
    QTEST(looks, "looks");
    QTEST(written, "writes");
    QCOMPARE(starts, 1);
}

// What is taken away in a photo does not live on beside it, and what stays there stays here.
void tst_SavedTogether::sidecarsHoldTheSame()
{
    const PhotoFolder folder;
    const MetadataService service = realService();
    const QUrl photo = made(folder, u"a.jpg"_s, languages + bothKeywords + allPaths + dates);
    const QUrl sidecar = folder.url(u"a.xmp"_s);
    exiftool({ u"-q"_s, u"-tagsfromfile"_s, photo.toLocalFile(), u"-xmp"_s, sidecar.toLocalFile() });
    const QByteArray before = readFile(sidecar.toLocalFile());
    const SaveJob::Order order{ .plan = { .scalars = { { "title", "" }, { "title@fr", "" }, { "date", "" } },
                                    .lists = { { "keywords", { "old" } } } },
        .targets = { photo },
        .options = { .writeSidecar = true },
        .seen = { { photo, { { u"keywords"_s, { u"Paris"_s, u"old"_s } } } } } };
    const QTemporaryDir state;
    const auto history = std::make_shared<SaveHistory>(state.filePath(u"undo"_s));
    TaskProgress progress;
    const SaveJob::Written written = SaveJob::run(service, order, history, progress);
    const SaveJob::Checked checked = SaveJob::check(service, order, written, {}, progress, {});
    QVERIFY(checked.differences.isEmpty() && checked.failures.isEmpty());
    const Dump files = dump(folder);
    FileTags inPhoto = files.value(u"a.jpg"_s);
    inPhoto.removeIf([](const auto& tag) { return !tag.key().startsWith(u"XMP-"_s); });
    QCOMPARE(differences({ { u"a.xmp"_s, inPhoto } }, files), QStringList());
    QVERIFY(inPhoto.contains(u"XMP-dc:Title-de"_s) && !inPhoto.contains(u"XMP-dc:Title-fr"_s));
    QCOMPARE(inPhoto.value(u"XMP-lr:HierarchicalSubject"_s), QList<QByteArray>{ "Places|Paris|Louvre" });

    // An independent reader finds the same.
    const auto found = exiv2Values(photo);
    QVERIFY(found.value(u"Xmp.dc.title"_s).join(u' ').contains(u"lang=\"de\" Eins"_s));
    QVERIFY(!found.contains(u"Exif.Photo.SubSecTimeOriginal"_s) && !found.contains(u"Iptc.Application2.DateCreated"_s));

    history->undo(service, written.undoable.get().number, {}, progress);
    QCOMPARE(readFile(sidecar.toLocalFile()), before);
}

// A keyword that is taken away and typed again elsewhere; and a path that not every home can hold.
void tst_SavedTogether::pathsTakenAwayAndGainedAtOnce()
{
    const auto change = [](const QStringList& gained, const FileTags& held) {
        return arguments(PathHomes::change({ u"Paris"_s }, gained, held));
    };
    const FileTags held{ { u"XMP-lr:HierarchicalSubject"_s, { "Places|France|Paris", "Places|Texas|Paris" } },
        { u"XMP-digiKam:TagsList"_s, { "Places/France/Paris" } } };
    QCOMPARE(change({ u"Places|Texas|Paris"_s, u"A/B|C"_s }, held),
        QStringList(
            { u"-XMP-digiKam:TagsList-=Places/France/Paris"_s, u"-XMP-lr:HierarchicalSubject-=Places|France|Paris"_s,
                u"-XMP-digiKam:TagsList-=Places/Texas/Paris"_s, u"-XMP-digiKam:TagsList+=Places/Texas/Paris"_s,
                u"-XMP-lr:HierarchicalSubject-=A/B|C"_s, u"-XMP-lr:HierarchicalSubject+=A/B|C"_s }));
    QCOMPARE(change({ u"A/B|C"_s }, { { u"XMP-digiKam:TagsList"_s, { "x" } } }),
        QStringList({ u"-XMP-lr:HierarchicalSubject-=A/B|C"_s, u"-XMP-lr:HierarchicalSubject+=A/B|C"_s }));
}

QTEST_GUILESS_MAIN(tst_SavedTogether)
#include "tst_SavedTogether.moc"
