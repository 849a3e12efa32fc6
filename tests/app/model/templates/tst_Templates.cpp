// Templates: what they make of photos, their files, and filling the photos that are selected.
#include "app/model/templates/Templates.h"

#include "tests/app/model/ModelFixture.h"

#include <QStandardPaths>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

using Mode = TemplateMode;

namespace {

ImageRecord photo(const QString& name, const QMap<QString, QString>& values = {}, const QStringList& keywords = {})
{
    ImageRecord record{ .url = QUrl::fromLocalFile(u"/p/"_s + name), .fileName = name, .values = values };
    if (!keywords.isEmpty())
        record.lists.insert(u"keywords"_s, keywords);
    return record;
}

// Three photos: one with a title, one with a place, one with nothing.
QList<ImageRecord> three()
{
    return { photo(u"a.jpg"_s, { { u"title"_s, u"Lake"_s } }, { u"x"_s, u"old"_s }),
        photo(u"b.jpg"_s, { { u"place"_s, u"Thun"_s } }, { u"x"_s }), photo(u"c.jpg"_s) };
}

Template with(const TemplateField& field)
{
    return { .name = u"T"_s, .fields = { field } };
}

Template regatta()
{
    return { .name = u"Regatta, race day"_s,
        .digit = 1,
        .fields = {
            { .key = u"title"_s, .mode = Mode::setIfEmpty, .text = u"Race %Counter% off %Place|Zürich%"_s },
            { .key = u"title@de"_s, .mode = Mode::append, .text = u"Regatta"_s },
            { .key = u"keywords"_s, .mode = Mode::append, .items = { u"regatta"_s, u"%Place%"_s } },
            { .key = u"custom:Mood"_s, .mode = Mode::prepend, .text = u"100%% %Title%"_s },
        } };
}

// What the photo shows with these edits, "-" where a text is not edited.
QString shown(const Edits& edits, const ImageRecord& photo, const QString& key)
{
    return edits.of(photo.url).edited(key) ? edits.onto(photo).values.value(key) : u"-"_s;
}

}  // namespace

Q_DECLARE_METATYPE(TemplateField)

class tst_Templates : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void textsOfOnePhoto_data();
    void textsOfOnePhoto();
    void itemsOfOnePhoto_data();
    void itemsOfOnePhoto();
    void manyPhotos_data();
    void manyPhotos();
    void listsOfManyPhotos_data();
    void listsOfManyPhotos();
    void whatWasTypedForAllStays();
    void customFieldsAreSpelledAsThePhotosDo();
    void furtherLanguagesWaitForTheDetails();
    void aPhotoBecomesATemplate();
    void filesSayTheSame();
    void filesThatAreNoTemplates_data();
    void filesThatAreNoTemplates();
    void fileNames_data();
    void fileNames();
    void theFolderIsShared();
    void importsAndDigits();
    void fillingTheSelection();
    void unreadPhotosAreWaitedFor();
    void manyPhotosAreFilledInTheBackground();
};

void tst_Templates::textsOfOnePhoto_data()
{
    QTest::addColumn<TemplateField>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("note");
    const auto row = [](const char* name, const TemplateField& field, const QString& text, const QString& note = {}) {
        QTest::newRow(name) << field << text << note;
    };
    row("set", { u"title"_s, Mode::set, u"%Place%: %Title%"_s, {} }, u"Thun: Lake"_s);
    row("kept", { u"title"_s, Mode::setIfEmpty, u"x"_s, {} }, u"Lake"_s, u"kept: not empty"_s);
    row("blanks are empty", { u"event"_s, Mode::setIfEmpty, u"x"_s, {} }, u"x"_s);
    row("append", { u"title"_s, Mode::append, u"at dusk"_s, {} }, u"Lake at dusk"_s);
    row("append a sign", { u"title"_s, Mode::append, u", dusk"_s, {} }, u"Lake, dusk"_s);
    row("append to nothing", { u"headline"_s, Mode::append, u"dusk"_s, {} }, u"dusk"_s);
    row("prepend", { u"title"_s, Mode::prepend, u"Final:"_s, {} }, u"Final: Lake"_s);
    row("not twice", { u"title"_s, Mode::append, u"ake"_s, {} }, u"Lake"_s, u"kept: there already"_s);
    row("values of one line", { u"title"_s, Mode::set, u"%Description%"_s, {} }, u"Two lines"_s);
    row("lines stay in a text of several", { u"description"_s, Mode::append, u"More"_s, {} }, u"Two\nlines More"_s);
    row("a default", { u"title"_s, Mode::set, u"%Title% by %Creator|the crew%"_s, {} }, u"Lake by the crew"_s,
        u"Creator missing: “the crew”"_s);
    row("a gap", { u"title"_s, Mode::set, u"%Creator% %Headline%, %Place%"_s, {} }, u" , Thun"_s,
        u"Creator, Headline missing"_s);
    row("nothing but gaps", { u"title"_s, Mode::set, u"%Creator%"_s, {} }, u"Lake"_s, u"kept: Creator missing"_s);
    row("an empty field clears nothing", { u"title"_s, Mode::set, u"  "_s, {} }, u"Lake"_s,
        u"kept: nothing to fill in"_s);
    row("a date with its time", { u"dateDigitized"_s, Mode::set, u"%Date%"_s, {} }, u"2024-10-02 14:05"_s);
    row("no date", { u"dateDigitized"_s, Mode::set, u"soon"_s, {} }, u"soon"_s, u"Not a date: YYYY-MM-DD HH:MM"_s);
    row("no position", { u"coords"_s, Mode::set, u"91, 0"_s, {} }, u"91, 0"_s, u"Not a position: lat, lon"_s);
    row("no rating", { u"rating"_s, Mode::set, u"6"_s, {} }, u"6"_s, u"Not a rating: 0 to 5"_s);
}

void tst_Templates::textsOfOnePhoto()
{
    QFETCH(const TemplateField, field);
    QFETCH(const QString, note);
    const ImageRecord lake = photo(u"a.jpg"_s,
        { { u"title"_s, u"Lake"_s }, { u"place"_s, u"Bern"_s }, { u"description"_s, u"Two\nlines"_s },
            { u"event"_s, u" "_s }, { u"date"_s, u"2024-10-02 14:05"_s } });
    const Edits unsaved{ .scalars = { { u"place"_s, u"Thun"_s } } };
    const FilledField filled = TemplateFill::fill(with(field), { lake }, unsaved).value(0);
    QTEST(filled.text, "text");
    QCOMPARE(filled.note, note);
    const Edits edits = TemplateFill::edits(with(field), { lake }, unsaved, {}).edits;
    const bool stays = filled.note.startsWith(u"kept"_s) || filled.note.startsWith(u"Not"_s);
    QCOMPARE(shown(edits, lake, field.key), stays ? u"-"_s : filled.text);
}

void tst_Templates::itemsOfOnePhoto_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<QStringList>("now");
    QTest::newRow("append") << Mode::append << QStringList{ u"old"_s, u"new"_s }
                            << QStringList{ u"x"_s, u"old"_s, u"new"_s };
    QTest::newRow("set") << Mode::set << QStringList{ u"new"_s, u"x"_s } << QStringList{ u"x"_s, u"new"_s };
    QTest::newRow("set if empty") << Mode::setIfEmpty << QStringList{ u"new"_s } << QStringList{ u"x"_s, u"old"_s };
    QTest::newRow("tokens, and gaps") << Mode::append << QStringList{ u"%Title%"_s, u"%Place%"_s }
                                      << QStringList{ u"x"_s, u"old"_s, u"Lake"_s };
    QTest::newRow("nothing but gaps") << Mode::set << QStringList{ u"%Place%"_s } << QStringList{ u"x"_s, u"old"_s };
}

void tst_Templates::itemsOfOnePhoto()
{
    QFETCH(const Mode, mode);
    QFETCH(const QStringList, items);
    QFETCH(const QStringList, now);
    const ImageRecord lake = three().first();
    const Template value = with({ u"keywords"_s, mode, {}, items });
    QCOMPARE(TemplateFill::fill(value, { lake }, {}).value(0).items, now);
    QCOMPARE(TemplateFill::edits(value, { lake }, {}, {}).edits.onto(lake).lists.value(u"keywords"_s), now);
}

void tst_Templates::manyPhotos_data()
{
    QTest::addColumn<TemplateField>("field");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<qsizetype>("own");
    QTest::newRow("the same for all") << TemplateField{ u"headline"_s, Mode::set, u"Final"_s, {} }
                                      << QStringList{ u"Final"_s, u"Final"_s, u"Final"_s } << qsizetype(0);
    QTest::newRow("counted") << TemplateField{ u"headline"_s, Mode::set, u"%Counter:09%"_s, {} }
                             << QStringList{ u"09"_s, u"10"_s, u"11"_s } << qsizetype(3);
    QTest::newRow("where it is empty") << TemplateField{ u"title"_s, Mode::setIfEmpty, u"x"_s, {} }
                                       << QStringList{ u"-"_s, u"x"_s, u"x"_s } << qsizetype(2);
    QTest::newRow("what is so already") << TemplateField{ u"title"_s, Mode::set, u"Lake"_s, {} }
                                        << QStringList{ u"-"_s, u"Lake"_s, u"Lake"_s } << qsizetype(2);
    QTest::newRow("only where a value is") << TemplateField{ u"headline"_s, Mode::set, u"%Place%"_s, {} }
                                           << QStringList{ u"-"_s, u"Thun"_s, u"-"_s } << qsizetype(1);
}

void tst_Templates::manyPhotos()
{
    QFETCH(const TemplateField, field);
    QFETCH(const QStringList, texts);
    const Edits edits = TemplateFill::edits(with(field), three(), {}, {}).edits;
    QStringList found;
    for (const ImageRecord& record : three())
        found.append(shown(edits, record, field.key));
    QCOMPARE(found, texts);
    QTEST(edits.own.size(), "own");
}

void tst_Templates::listsOfManyPhotos_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<QList<QStringList>>("now");
    QTest::addColumn<qsizetype>("own");
    using Lists = QList<QStringList>;
    QTest::newRow("append") << Mode::append << QStringList{ u"n"_s, u"x"_s }
                            << Lists{ { u"x"_s, u"old"_s, u"n"_s }, { u"x"_s, u"n"_s }, { u"n"_s, u"x"_s } }
                            << qsizetype(0);
    QTest::newRow("set") << Mode::set << QStringList{ u"n"_s } << Lists{ { u"n"_s }, { u"n"_s }, { u"n"_s } }
                         << qsizetype(2);
    QTest::newRow("if empty") << Mode::setIfEmpty << QStringList{ u"n"_s }
                              << Lists{ { u"x"_s, u"old"_s }, { u"x"_s }, { u"n"_s } } << qsizetype(1);
    QTest::newRow("tokens") << Mode::append << QStringList{ u"n"_s, u"%Place%"_s }
                            << Lists{ { u"x"_s, u"old"_s, u"n"_s }, { u"x"_s, u"n"_s, u"Thun"_s }, { u"n"_s } }
                            << qsizetype(1);
}

// Never a list that replaces: a batch of many only gains and loses items.
void tst_Templates::listsOfManyPhotos()
{
    QFETCH(const Mode, mode);
    QFETCH(const QStringList, items);
    QFETCH(const QList<QStringList>, now);
    const Edits edits = TemplateFill::edits(with({ u"keywords"_s, mode, {}, items }), three(), {}, {}).edits;
    QVERIFY(edits.lists.isEmpty());
    for (qsizetype i = 0; i < 3; ++i)
        QCOMPARE(edits.onto(three().at(i)).lists.value(u"keywords"_s), now.at(i));
    QTEST(edits.own.size(), "own");
}

// Texts of one photo take the place of one that all have; those that keep it are told so.
void tst_Templates::whatWasTypedForAllStays()
{
    const Edits typed{ .scalars = { { u"headline"_s, u"Typed"_s } } };
    const Template value = with({ u"headline"_s, Mode::set, u"%Place%"_s, {} });
    const Edits all = typed.merged(TemplateFill::edits(value, three(), typed, {}).edits);
    QCOMPARE(shown(all, three().at(0), u"headline"_s), u"Typed"_s);
    QCOMPARE(shown(all, three().at(1), u"headline"_s), u"Thun"_s);
}

void tst_Templates::customFieldsAreSpelledAsThePhotosDo()
{
    QList<ImageRecord> photos = three();
    photos[0].custom = { { u"mood"_s, u"calm"_s } };
    const Template value = with({ u"custom:Mood"_s, Mode::append, u"dark"_s, {} });
    const Edits edits = TemplateFill::edits(value, photos, {}, {}).edits;
    QCOMPARE(edits.of(photos[0].url).customs, QList<CustomValue>({ { u"mood"_s, u"calm dark"_s } }));
    QCOMPARE(edits.of(photos[1].url).customs, QList<CustomValue>({ { u"Mood"_s, u"dark"_s } }));
}

void tst_Templates::furtherLanguagesWaitForTheDetails()
{
    const Template value = with({ u"title@de"_s, Mode::setIfEmpty, u"See"_s, {} });
    const QUrl b = three().at(1).url;
    const QUrl c = three().at(2).url;
    const QHash<QUrl, PhotoDetails> details{ { b, { .url = b, .texts = { { u"title@de"_s, u"Fluss"_s } } } },
        { c, { .url = c } } };
    const Edits edits = TemplateFill::edits(value, three(), {}, details).edits;
    QCOMPARE(edits.own.keys(), QList<QUrl>({ c }));
}

void tst_Templates::aPhotoBecomesATemplate()
{
    ImageRecord lake = photo(u"a.jpg"_s,
        { { u"title"_s, u"100% %Date%"_s }, { u"date"_s, u"2024-10-02 14:05"_s }, { u"coords"_s, u"1.0, 2.0"_s } },
        { u"x"_s });
    lake.custom = { { u"Mood"_s, u"calm"_s } };
    const PhotoDetails details{ .url = lake.url,
        .texts = { { u"iptc.jobTitle"_s, u"Editor"_s }, { u"iptc.imageGuid"_s, u"4711"_s },
            { u"iptc.contact"_s, uR"({"CiAdrCity":"Horn"})"_s } },
        .lists = { { u"iptc.organisationNames"_s, { u"UN"_s } } } };
    const Template made = TemplateFill::of(u"N"_s, lake, { .scalars = { { u"creator"_s, u"Ana"_s } } }, &details);
    QStringList keys;
    for (const TemplateField& field : made.fields)
        keys.append(field.key);
    QCOMPARE(keys,
        QStringList({ u"title"_s, u"keywords"_s, u"creator"_s, u"iptc.jobTitle"_s, u"iptc.organisationNames"_s,
            u"custom:Mood"_s }));
    // The texts of the photo are no tokens.
    QCOMPARE(
        shown(TemplateFill::edits(made, { three().at(2) }, {}, {}).edits, three().at(2), u"title"_s), u"100% %Date%"_s);
}

void tst_Templates::filesSayTheSame()
{
    const QByteArray json = TemplateFile::toJson(regatta());
    QCOMPARE(TemplateFile::fromJson(json), regatta());
    for (const char* line : { "\"mode\": \"set if empty\"", "\"text\": \"Race %Counter% off %Place|Zürich%\"",
             "\"language\": \"de\"", "\"custom\": \"Mood\"", "\"shortcut\": 1" })
        QVERIFY2(json.contains(line), line);
}

void tst_Templates::filesThatAreNoTemplates_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* name, const QByteArray& json, const QString& why) {
        QTest::newRow(name) << json << u"“t.json” %1."_s.arg(why);
    };
    const auto field = [](const QByteArray& members) {
        return R"({"quorbelTemplate": 1, "name": "N", "fields": [{)" + members + "}]}";
    };
    row("newer", R"({"quorbelTemplate": 2, "name": "N"})", u"was made by a newer version of Quorbel"_s);
    row("other JSON", R"({"name": "N"})", u"is no template"_s);
    row("a picture", jpegBytes(), u"is no template"_s);
    row("empty", {}, u"is no template"_s);
    row("no name", R"({"quorbelTemplate": 1, "name": " "})", u"has no name"_s);
    row("no such field", field(R"("field": "mood", "text": "x")"), u"names a field that there is not"_s);
    row("no such language", field(R"("field": "place", "language": "de", "text": "x")"),
        u"names a field that there is not"_s);
    row("a custom field that cannot be", field(R"("custom": "All", "text": "x")"),
        u"names a field that there is not"_s);
    row("no such mode", field(R"("field": "title", "mode": "shred", "text": "x")"),
        u"says nothing that can be done to a field"_s);
    row("a list as a text", field(R"("field": "keywords", "text": "x")"), u"has a field without a text"_s);
}

// They are named and stay as they are.
void tst_Templates::filesThatAreNoTemplates()
{
    QFETCH(const QByteArray, json);
    QFETCH(const QString, problem);
    QTemporaryDir folder;
    writeFile(folder.filePath(u"t.json"_s), json);
    const TemplateFile::Listing listing = TemplateFile::list(folder.path());
    QCOMPARE(listing.problems, QStringList({ problem }));
    QVERIFY(listing.templates.isEmpty());
    QCOMPARE(readFile(folder.filePath(u"t.json"_s)), json);
}

void tst_Templates::fileNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("base");
    QTest::newRow("blanks") << u"Regatta,  race day"_s << u"Regatta, race day"_s;
    QTest::newRow("another script") << u"東京 レース"_s << u"東京 レース"_s;
    QTest::newRow("a path") << u"../../etc/passwd"_s << u"etc passwd"_s;
    QTest::newRow("hidden") << u".profile"_s << u"profile"_s;
    QTest::newRow("nothing left") << u"//"_s << u"template"_s;
    QTest::newRow("long") << QString(200, u'é') << QString(60, u'é');
}

void tst_Templates::fileNames()
{
    QFETCH(const QString, name);
    QTEST(TemplateFile::baseName(name), "base");
}

// Two windows over one folder: what one does, the other shows; and nothing is overwritten.
void tst_Templates::theFolderIsShared()
{
    QTemporaryDir folder;
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));  // for the trash
    TemplateStore one(folder.filePath(u"t"_s));
    TemplateStore other(folder.filePath(u"t"_s));
    const auto names = [](const TemplateStore& store) {
        QStringList names;
        for (const TemplateStore::Entry& entry : store.all())
            names.append(entry.value().name);
        return names;
    };
    QTRY_VERIFY(QFileInfo::exists(folder.filePath(u"t"_s)));
    const int id = one.add(regatta());
    QTRY_COMPARE(names(other), QStringList({ regatta().name }));
    Template renamed = regatta();
    renamed.name = u"Final"_s;
    one.change(id, renamed);
    QTRY_COMPARE(names(other), QStringList({ u"Final"_s }));
    QCOMPARE(QDir(folder.filePath(u"t"_s)).entryList(QDir::Files), QStringList({ u"Final.json"_s }));
    QCOMPARE(one.fileOf(id), folder.filePath(u"t/Final.json"_s));
    other.remove(other.all().first().id);
    QTRY_COMPARE(names(one), QStringList());
}

void tst_Templates::importsAndDigits()
{
    QTemporaryDir folder;
    const QString wrong = folder.filePath(u"wrong.json"_s);
    const QString right = folder.filePath(u"right.json"_s);
    writeFile(wrong, "{}");
    writeFile(right, TemplateFile::toJson(regatta()));
    TemplateStore store(folder.filePath(u"t"_s));
    const int first = store.add({ .name = u"A"_s, .digit = 1 });
    store.import({ wrong, right });
    QTRY_COMPARE(store.all().size(), 2);
    QCOMPARE(store.problems(), QStringList({ u"“wrong.json” is no template."_s }));
    // The digit stays with the one that had it, until it is given away.
    QCOMPARE(store.withDigit(1)->id, first);
    Template taken = store.all().at(1).value();
    taken.digit = 1;
    store.change(store.all().at(1).id, taken);
    QCOMPARE(store.withDigit(1)->value().name, regatta().name);
    QCOMPARE(store.find(first)->value().digit, 0);
}

void tst_Templates::fillingTheSelection()
{
    ModelFixture photos;
    photos.services.templatesPath = photos.settings.filePath(u"templates"_s);
    photos.relaunch();
    photos.addTitled(jpgs(u"abc"_s));
    QVERIFY(photos.open());
    Templates& templates = photos->templates();
    templates.store().add({ .name = u"C"_s,
        .digit = 3,
        .fields = { { .key = u"headline"_s, .text = u"%Counter% of %Title%"_s },
            { .key = u"creator"_s, .text = u"Ana"_s }, { .key = u"date"_s, .text = u"soon"_s } } });
    templates.choose(templates.store().all().first().id);
    QVERIFY(!templates.applyDigit(2));

    // One photo.
    photos.select(u"b"_s);
    QVERIFY(templates.applyDigit(3));
    QCOMPARE(photos->draftValues().value(u"headline"_s), u"1 of b.jpg"_s);
    QCOMPARE(photos->unsavedCount(), 2);
    QCOMPARE(photos->errorMessage(), u"Not filled in: Date taken of one photo: Not a date: YYYY-MM-DD HH:MM"_s);

    // Several, counted as the list shows them.
    photos.click(u"c.jpg"_s);
    photos->discardSaveDialog();
    photos.select(u"bca"_s);
    photos->setSortOrder(RecordSortOrder::nameDesc);
    QVERIFY(templates.applyDigit(3));
    QCOMPARE(photos->batchValues().value(u"creator"_s), u"Ana"_s);
    QCOMPARE(photos->unsavedCount(), 2);
    QStringList headlines;
    for (int place = 0; place < 3; ++place)
        headlines.append(templates.photoName(place) + u": "_s + templates.preview(place).value(0).text);
    QCOMPARE(headlines, QStringList({ u"c.jpg: 1 of c.jpg"_s, u"b.jpg: 2 of b.jpg"_s, u"a.jpg: 3 of a.jpg"_s }));

    // None.
    photos->closeFolder();
    QVERIFY(!templates.canApply());
    QVERIFY(templates.preview(0).isEmpty());
}

void tst_Templates::unreadPhotosAreWaitedFor()
{
    GatedTool tool;
    ModelFixture photos(tool.service());
    photos.addTitled(jpgs(u"ab"_s));
    Templates& templates = photos->templates();
    templates.store().add({ .name = u"C"_s, .digit = 1, .fields = { { .key = u"headline"_s, .text = u"%Title%"_s } } });
    tool.shut();
    photos->load({ photos.folderURL() });
    QVERIFY(tool.waitForRun());
    photos->selectAllPhotos();
    QCOMPARE(photos->unreadSelected(), 2);
    QVERIFY(templates.applyDigit(1));
    QCOMPARE(templates.pending(), 2);
    QCOMPARE(photos->unsavedCount(), 0);
    tool.release();
    QTRY_COMPARE(photos->unsavedCount(), 1);
    QCOMPARE(templates.pending(), 0);
}

// Edits that come between are not lost: the fill begins again with them.
void tst_Templates::manyPhotosAreFilledInTheBackground()
{
    FakeTool tool;
    QList<QJsonObject> answers;
    QStringList names;
    PhotoFolder folder;
    for (int i = 0; i < 120; ++i) {
        const QUrl url = folder.add(u"%1.jpg"_s.arg(i, 3, 10, QChar(u'0')));
        answers.append({ { u"SourceFile"_s, url.toLocalFile() }, { u"XMP:Title"_s, u"Title %1"_s.arg(i) } });
    }
    tool.answerAlways({ .standardOutput = toolJson(answers) });
    ModelFixture photos(MetadataService{ tool.runner() });
    QVERIFY(photos.load({ QUrl::fromLocalFile(folder.path()) }));
    photos->selectAllPhotos();
    Templates& templates = photos->templates();
    const int id = templates.store().add(
        { .name = u"C"_s, .digit = 1, .fields = { { .key = u"headline"_s, .text = u"%Place% %Counter%"_s } } });
    templates.choose(id);
    // One sees how far it is. What is given up leaves nothing behind.
    QVERIFY(templates.applyDigit(1));
    QVERIFY(photos->progress() && photos->progress()->isFill);
    QCOMPARE(photos->progress()->total, 120);
    photos->cancelRead();
    QCOMPARE(templates.pending(), 0);
    QVERIFY(templates.canApply());
    QVERIFY(photos.waitUntilIdle());
    QCOMPARE(photos->progress(), std::nullopt);
    QCOMPARE(photos->unsavedCount(), 0);

    QVERIFY(templates.applyDigit(1));
    QCOMPARE(photos->unsavedCount(), 0);
    photos->setBatch(u"place"_s, u"Thun"_s);
    QTRY_COMPARE(templates.pending(), 0);
    QCOMPARE(photos->unsavedCount(), 2);
    photos->toggleBatchInclude(u"place"_s);
    QCOMPARE(templates.preview(119).value(0).text, u" 120"_s);
}

QTEST_GUILESS_MAIN(tst_Templates)
#include "tst_Templates.moc"
