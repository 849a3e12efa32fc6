// The further properties of the IPTC standard from the model's side: all of them typed, saved, read again and taken
// back; structures that hold what nobody here knows; the same for several photos.
#include "app/model/iptc/FieldNotes.h"
#include "app/model/iptc/RememberedCards.h"
#include "app/model/sidecars/MovingOver.h"
#include "core/iptc/IptcSchema.h"
#include "core/iptc/StructureText.h"
#include "core/schema/FieldLanguages.h"
#include "tests/app/model/ModelFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

QString item(const QByteArray& json)
{
    return StructureText::tidied(QString::fromUtf8(json));
}

// With every member, and what an argument of the tool has to escape.
QString filled(const QString& structure, int depth = 0)
{
    QJsonObject object;
    for (const StructureMember& member : IptcStructures::spec(structure)->members) {
        QJsonValue value;
        if (!member.structure.isEmpty())
            value = StructureText::members(filled(member.structure, depth + 1));
        else if (member.kind == FieldKind::number)
            value = member.name == "GPSAltitudeRef" ? u"1"_s : u"12.5"_s;
        else if (member.kind == FieldKind::date)
            value = u"1889-06"_s;
        else if (member.kind == FieldKind::code)
            value = member.vocabulary == "telephoneType" ? u"work"_s
                : member.vocabulary == "boundaryShape"   ? u"polygon"_s
                : member.vocabulary == "boundaryUnit"    ? u"relative"_s
                                                         : u"Asia"_s;
        else
            value = u"{%1, [a|b] é東"_s.arg(member.name);
        object.insert(member.name, member.isSeveral ? QJsonValue(QJsonArray{ value, value }) : value);
        if (member.hasLanguages)
            object.insert(member.name + u"-de"_s, u"auf Deutsch"_s);
    }
    return StructureText::of(object);
}

struct Photos : ModelFixture {
    Photos()
        : ModelFixture(MetadataService{ realTool() })
    {
        services.journalPath = state.filePath(u"undo.json"_s);
        lookAtDetails();
        model->preferences().confirmMassEdit.set(false);
        model->preferences().saveDontAsk.set(true);
        model->preferences().backupOriginals.set(false);
    }
    bool knows(const QString& letters)
    {
        return QTest::qWaitFor(
            [&] {
                const QStringList names = jpgs(letters);
                return std::all_of(
                    names.cbegin(), names.cend(), [&](const QString& name) { return model->details(url(name)); });
            },
            20000);
    }
    bool save()
    {
        model->setErrorMessage(std::nullopt);
        model->requestSave();
        return waitUntilIdle();
    }
    bool undo()
    {
        model->undoSave();
        return waitUntilIdle();
    }
    // Nothing while it is being looked at again.
    QStringList held(const QString& name, const QString& id) const
    {
        const PhotoDetails* details = model->details(url(name));
        return details ? details->lists.value(id) : QStringList();
    }
    QByteArray xmp(const QString& name) const { return exiftool({ u"-b"_s, u"-XMP"_s, url(name).toLocalFile() }); }
    QString banner() const { return model->errorMessage().value_or(QString()); }

    QTemporaryDir state;
};

// What a user may have typed into every field.
void fill(AppModel& model)
{
    const QMap<QString, QString> codes{ { u"digitalSource"_s,
                                            u"http://cv.iptc.org/newscodes/digitalsourcetype/digitalCapture"_s },
        { u"dataMining"_s, u"DMI-PROHIBITED"_s }, { u"modelRelease"_s, u"MR-UMR"_s },
        { u"propertyRelease"_s, u"PR-LPR"_s }, { u"minorModelAge"_s, u"AG-A25"_s }, { u"subject"_s, u"15054000"_s } };
    for (const FieldSpec& field : IptcSchema::all()) {
        const QString text = field.kind == FieldKind::structure ? filled(field.structure)
            : field.kind == FieldKind::code                     ? codes.value(field.vocabulary)
            : field.kind == FieldKind::number                   ? u"4711"_s
            : field.id == "iptc.countryCode"                    ? u"CH"_s
                                                                : u"%1, ünïcode"_s.arg(field.label.left(15));
        const QString german = FieldLanguages::key(field.id, u"de"_s);
        if (field.isList())
            model.setItems(field.id, { text });
        else
            model.isBatch() ? model.setBatch(field.id, text) : model.setSingle(field.id, text);
        if (field.hasLanguages)
            model.isBatch() ? model.setBatch(german, u"auf Deutsch"_s) : model.setSingle(german, u"auf Deutsch"_s);
    }
}

}  // namespace

class tst_AppModelIptc : public QObject {
    Q_OBJECT

private slots:
    void everyFieldIsSavedAndTakenBack();
    void everyFormat();
    void referenceFile();
    void structuresOfOthers();
    void severalPhotosGainStructures();
    void whatIsNoNumberStaysOut();
    void sealsAreTold();
    void cardsAreRemembered();
    void whatBelongsTogether();
};

void tst_AppModelIptc::everyFieldIsSavedAndTakenBack()
{
    Photos photos;
    photos.addTitled(jpgs(u"a"_s));
    exiftool({ u"-overwrite_original"_s, u"-XMP-iptcExt:LocationShown={City=Rome}"_s, u"-XMP-dc:Title-fr=Un"_s,
        u"-XMP-iptcCore:AltTextAccessibility-it=Qui"_s, photos.url(u"a.jpg"_s).toLocalFile() });
    const QByteArray before = photos.xmp(u"a.jpg"_s);
    QVERIFY(photos.open());
    photos.select(u"a"_s);
    QVERIFY(photos.knows(u"a"_s));
    QCOMPARE(photos->draftLists().value(u"iptc.locationsShown"_s), QStringList{ item(R"({"City":"Rome"})") });
    fill(*photos.model);
    const auto values = photos->draftValues();
    const auto lists = photos->draftLists();
    QVERIFY(photos.save());
    for (const QString& id : { u"iptc.contact"_s, u"iptc.licensors"_s })
        QCOMPARE(photos->rememberedCards().of(id).size(), 1);
    QCOMPARE(photos.banner(), QString());
    QCOMPARE(photos->unsavedCount(), 0);

    photos.relaunch();
    QVERIFY(photos.open());
    photos.select(u"a"_s);
    QVERIFY(photos.knows(u"a"_s));
    for (const FieldSpec& field : IptcSchema::all()) {
        const StructureSpec* structure = IptcStructures::spec(field.structure);
        const QStringList saved = field.isList() ? lists.value(field.id) : QStringList(values.value(field.id));
        const QStringList read =
            field.isList() ? photos->draftLists().value(field.id) : QStringList(photos->draftValues().value(field.id));
        if (structure)
            QVERIFY2(StructureText::areSame(*structure, read, saved),
                qPrintable(field.id + u'\n' + saved.join(u' ') + u'\n' + read.join(u' ')));
        else
            QCOMPARE(read, saved);
    }
    QCOMPARE(photos->draftValues().value(u"iptc.altText@it"_s), u"Qui"_s);

    QVERIFY(photos.undo());
    QCOMPARE(photos.banner(), QString());
    QCOMPARE(photos.xmp(u"a.jpg"_s), before);
}

// One save over five formats; what each holds then is read by the tool, and by exiv2 where it knows the property.
void tst_AppModelIptc::everyFormat()
{
    const QString real = qEnvironmentVariable("QUORBEL_TEST_PHOTOS");
    if (real.isEmpty())
        QSKIP("no photos: QUORBEL_TEST_PHOTOS is not set");
    Photos photos;
    photos.addTitled({ u"a.jpg"_s });
    QStringList names{ u"a.jpg"_s };
    for (const QString& name : { u"quad-jpeg.tif"_s, u"star180.png"_s, u"flower.webp"_s, u"testDNG.dng"_s }) {
        QVERIFY(QFile::copy(real + u"/valid/"_s + name, photos.folder.path() + u'/' + name));
        QFile::setPermissions(photos.folder.path() + u'/' + name, QFile::ReadOwner | QFile::WriteOwner);
        names.append(name);
    }
    QVERIFY(photos.open());
    photos->selectAllPhotos();
    const auto isKnown = [&](const QString& name) { return photos->details(photos.url(name)) != nullptr; };
    QVERIFY(QTest::qWaitFor([&] { return std::all_of(names.cbegin(), names.cend(), isKnown); }, 30000));
    fill(*photos.model);
    const auto values = photos->batchValues();
    const auto lists = photos->batchLists();
    QVERIFY(photos.save());
    QCOMPARE(photos.banner(), QString());
    QVERIFY(QTest::qWaitFor([&] { return std::all_of(names.cbegin(), names.cend(), isKnown); }, 30000));
    for (const QString& name : std::as_const(names)) {
        const PhotoDetails details = *photos->details(photos.url(name));
        for (const FieldSpec& field : IptcSchema::all()) {
            const StructureSpec* structure = IptcStructures::spec(field.structure);
            const QStringList saved = field.isList() ? lists.value(field.id) : QStringList(values.value(field.id));
            const QStringList read =
                field.isList() ? details.lists.value(field.id) : QStringList(details.texts.value(field.id));
            const bool isSame = structure ? StructureText::areSame(*structure, read, saved) : read == saved;
            QVERIFY2(isSame && !saved.join(QString()).isEmpty(), qPrintable(name + u' ' + field.id));
        }
        const auto found = exiv2Values(photos.url(name));
        QCOMPARE(found.value(u"Xmp.iptc.CountryCode"_s), QStringList{ u"CH"_s });
        QCOMPARE(found.value(u"Xmp.iptcExt.MaxAvailWidth"_s), QStringList{ u"4711"_s });
        QCOMPARE(
            found.value(u"Xmp.plus.ModelReleaseStatus"_s), QStringList{ u"http://ns.useplus.org/ldf/vocab/MR-UMR"_s });
        QCOMPARE(found.value(u"Xmp.iptc.CreatorContactInfo/Iptc4xmpCore:CiAdrCity"_s),
            QStringList{ u"{CiAdrCity, [a|b] é東"_s });
        QCOMPARE(found.value(u"Xmp.iptcExt.LocationShown[1]/Iptc4xmpExt:City"_s), QStringList{ u"{City, [a|b] é東"_s });
    }
}

// A file with every property, written from the published list by hand (iptc-reference.xmp): all of them in place, and
// after an edit of two of them all others as they were.
void tst_AppModelIptc::referenceFile()
{
    Photos photos;
    photos.addTitled(jpgs(u"a"_s));
    const QString path = photos.url(u"a.jpg"_s).toLocalFile();
    exiftool({ u"-overwrite_original"_s, u"-XMP<=" QUORBEL_IPTC_REFERENCE ""_s, path });
    QVERIFY(photos.open());
    photos.select(u"a"_s);
    QVERIFY(photos.knows(u"a"_s));
    const PhotoDetails details = *photos->details(photos.url(u"a.jpg"_s));
    QCOMPARE(details.texts.value(u"iptc.dataMining"_s), u"DMI-PROHIBITED"_s);
    for (const FieldSpec& field : IptcSchema::all()) {
        const QStringList held =
            field.isList() ? details.lists.value(field.id) : QStringList(details.texts.value(field.id));
        QVERIFY2(!held.isEmpty() && !held.contains(QString()), qPrintable(field.id));
        if (field.hasLanguages)
            QVERIFY2(details.texts.value(FieldLanguages::key(field.id, u"de"_s)).endsWith(u"auf Deutsch"_s),
                qPrintable(field.id));
        const StructureSpec* structure = IptcStructures::spec(field.structure);
        for (const QString& text : structure ? held : QStringList()) {
            QCOMPARE(StructureText::foreignMembers(*structure, text), QStringList());
            for (const StructureMember& member : structure->members)
                QVERIFY2(StructureText::members(text).contains(member.name), qPrintable(field.id + member.name));
        }
    }
    const auto all = [&] {
        return QJsonDocument::fromJson(exiftool({ u"-json"_s, u"-struct"_s, u"-G1"_s, u"-n"_s, u"-XMP:all"_s, path }))
            .array()
            .at(0)
            .toObject();
    };
    QJsonObject before = all();
    QVERIFY(before.size() > 70);
    QStringList places = details.lists.value(u"iptc.locationsShown"_s);
    places[1].replace(u"\"City 2 (ref)\""_s, u"\"Chur\""_s);
    photos->setItems(u"iptc.locationsShown"_s, places);
    photos->setSingle(u"iptc.jobTitle"_s, u"Editor"_s);
    QVERIFY(photos.save());
    QCOMPARE(photos.banner(), QString());
    QJsonObject after = all();
    QJsonArray shown = before[u"XMP-iptcExt:LocationShown"_s].toArray();
    QJsonObject second = shown.at(1).toObject();
    second[u"City"_s] = u"Chur"_s;
    shown[1] = second;
    before[u"XMP-iptcExt:LocationShown"_s] = shown;
    before[u"XMP-photoshop:AuthorsPosition"_s] = u"Editor"_s;
    after[u"XMP-x:XMPToolkit"_s] = before[u"XMP-x:XMPToolkit"_s];
    for (const QString& tag : before.keys() + after.keys())
        QVERIFY2(before[tag] == after[tag], qPrintable(tag));
}

// A program that knows more than the standard: what it put into a structure is either kept, or the photo is left alone.
void tst_AppModelIptc::structuresOfOthers()
{
    const QByteArray foreign = "<x:xmpmeta xmlns:x='adobe:ns:meta/'>"
                               "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description "
                               "rdf:about='' xmlns:e='http://iptc.org/std/Iptc4xmpExt/2008-02-29/' "
                               "xmlns:o='http://example.org/o/'><e:LocationShown><rdf:Bag>"
                               "<rdf:li rdf:parseType='Resource'><e:City>Rome</e:City><o:Mood>calm</o:Mood></rdf:li>"
                               "<rdf:li rdf:parseType='Resource'><e:City>Bern</e:City></rdf:li>"
                               "</rdf:Bag></e:LocationShown></rdf:Description></rdf:RDF></x:xmpmeta>";
    Photos photos;
    photos.addTitled(jpgs(u"a"_s));
    const QUrl other = QUrl::fromLocalFile(photos.state.filePath(u"other.xmp"_s));
    QFile file(other.toLocalFile());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(foreign) == foreign.size());
    file.close();
    exiftool(
        { u"-overwrite_original"_s, u"-XMP<=%1"_s.arg(other.toLocalFile()), photos.url(u"a.jpg"_s).toLocalFile() });
    QVERIFY(photos.open());
    photos.select(u"a"_s);
    QVERIFY(photos.knows(u"a"_s));
    const QString id = u"iptc.locationsShown"_s;
    QStringList items = photos->draftLists().value(id);
    QCOMPARE(items.size(), 2);
    QVERIFY2(items.constFirst().contains(u"calm"_s), qPrintable(items.constFirst()));

    // Another one beside it, and one more.
    items[1] = item(R"({"City":"Basel"})");
    photos->setItems(id, items);
    QVERIFY(photos.save());
    QCOMPARE(photos.banner(), QString());
    QVERIFY(photos.knows(u"a"_s));
    items.append(item(R"({"City":"Chur"})"));
    photos->setItems(id, items);
    QVERIFY(photos.save());
    QCOMPARE(photos.banner(), QString());
    const QByteArray xmp = photos.xmp(u"a.jpg"_s);
    QVERIFY(xmp.contains("calm") && xmp.contains("Basel") && xmp.contains("Chur") && !xmp.contains("Bern"));

    // The one that holds it.
    items[0].replace(u"Rome"_s, u"Roma"_s);
    photos->setItems(id, items);
    QVERIFY(photos.save());
    QVERIFY2(photos.banner().contains(u"Mood"_s), qPrintable(photos.banner()));
    QCOMPARE(photos->unsavedCount(), 1);
    QCOMPARE(photos.xmp(u"a.jpg"_s), xmp);

    // Where it is the only one, its members can be written one by one.
    photos->setItems(id, { items.at(0) });
    photos->discardSaveDialog();
    exiftool({ u"-overwrite_original"_s, u"-XMP-iptcExt:LocationShown-={City=Basel}"_s,
        u"-XMP-iptcExt:LocationShown-={City=Chur}"_s, photos.url(u"a.jpg"_s).toLocalFile() });
    photos.relaunch();
    QVERIFY(photos.open());
    photos.select(u"a"_s);
    QVERIFY(photos.knows(u"a"_s));
    QString only = photos->draftLists().value(id).value(0);
    QVERIFY2(only.contains(u"Rome"_s) && only.contains(u"calm"_s), qPrintable(only));
    only.replace(u"Rome"_s, u"Roma"_s);
    only.insert(1, uR"("LocationName":"Forum","LocationName-de":"Markt",)"_s);
    photos->setItems(id, { only });
    QVERIFY(photos.save());
    QCOMPARE(photos.banner(), QString());
    QVERIFY(photos.xmp(u"a.jpg"_s).contains("calm"));
    QCOMPARE(photos->unsavedCount(), 0);
    QTRY_COMPARE(photos.held(u"a.jpg"_s, id), QStringList{ StructureText::tidied(only) });
    only.replace(u"Forum"_s, u"Foro"_s);
    photos->setItems(id, { only });
    QVERIFY(photos.save());
    QCOMPARE(photos.banner(), QString());
    QTRY_COMPARE(photos.held(u"a.jpg"_s, id), QStringList{ StructureText::tidied(only) });
}

void tst_AppModelIptc::severalPhotosGainStructures()
{
    Photos photos;
    photos.addTitled(jpgs(u"abc"_s));
    const auto hold = [&](const QString& name, const QStringList& tags) {
        exiftool(QStringList{ u"-overwrite_original"_s } + tags << photos.url(name).toLocalFile());
    };
    hold(u"a.jpg"_s, { u"-XMP-iptcExt:LocationShown={City=Rome}"_s, u"-XMP-iptcExt:LocationShown={City=Bern}"_s });
    hold(u"b.jpg"_s, { u"-XMP-iptcExt:LocationShown={City=Bern,CountryName=Schweiz}"_s });
    QVERIFY(photos.open());
    photos.select(u"abc"_s);
    QVERIFY(photos.knows(u"abc"_s));
    photos->setItems(u"iptc.locationsShown"_s, { item(R"({"City":"Bern"})") });
    photos->setBatch(u"iptc.contact"_s, item(R"({"CiEmailWork":"a@b.example, c@d.example"})"));
    photos->addBatchListItem(u"iptc.organisationNames"_s, u"UN"_s);
    photos->setBatch(u"iptc.dataMining"_s, u"DMI-PROHIBITED"_s);
    QVERIFY(photos.save());
    QCOMPARE(photos.banner(), QString());
    QCOMPARE(photos->unsavedCount(), 0);
    QVERIFY(photos.knows(u"abc"_s));
    const QString bern = item(R"({"City":"Bern"})");
    const QMap<QString, QStringList> expected{ { u"a.jpg"_s, { item(R"({"City":"Rome"})"), bern } },
        { u"b.jpg"_s, { item(R"({"City":"Bern","CountryName":"Schweiz"})"), bern } }, { u"c.jpg"_s, { bern } } };
    for (auto photo = expected.cbegin(); photo != expected.cend(); ++photo) {
        QTRY_COMPARE(photos.held(photo.key(), u"iptc.locationsShown"_s), *photo);
        const PhotoDetails details = *photos->details(photos.url(photo.key()));
        QCOMPARE(details.texts.value(u"iptc.dataMining"_s), u"DMI-PROHIBITED"_s);
        QCOMPARE(details.texts.value(u"iptc.contact"_s), item(R"({"CiEmailWork":"a@b.example, c@d.example"})"));
        QCOMPARE(details.lists.value(u"iptc.organisationNames"_s), QStringList{ u"UN"_s });
    }
}

// The tool would store 2748 for "abc", and take a member away whose new value it cannot use.
void tst_AppModelIptc::whatIsNoNumberStaysOut()
{
    Photos photos;
    photos.addTitled(jpgs(u"ab"_s));
    exiftool({ u"-overwrite_original"_s, u"-XMP-iptcExt:MaxAvailWidth=800"_s, u"-XMP-iptcExt:ModelAge=30"_s,
        u"-XMP-iptcExt:LocationShown={City=Rome,GPSLatitude=41.9}"_s, photos.url(u"a.jpg"_s).toLocalFile() });
    QVERIFY(photos.open());
    photos.select(u"a"_s);
    QVERIFY(photos.knows(u"a"_s));
    photos->setSingle(u"iptc.maxWidth"_s, u"abc"_s);
    photos->setSingle(u"headline"_s, u"Forum"_s);
    photos->addSingleListItem(u"iptc.modelAges"_s, u"bad"_s);
    photos->setItems(u"iptc.locationsShown"_s, { item(R"({"City":"Roma","GPSLatitude":"north"})") });
    QVERIFY(photos.save());
    QCOMPARE(photos.banner(),
        u"Saved, but 3 fields read back differently: Model ages (not a whole number: “bad”), "
        "Locations shown (Latitude is not a number: “north”), Largest width (not a whole number: “abc”)"_s);
    QCOMPARE(
        photos->editedSingle(), QSet<QString>({ u"iptc.maxWidth"_s, u"iptc.modelAges"_s, u"iptc.locationsShown"_s }));
    const QByteArray xmp = photos.xmp(u"a.jpg"_s);
    QVERIFY(xmp.contains("<Iptc4xmpExt:MaxAvailWidth>800<") && xmp.contains("Rome") && xmp.contains("Forum"));
    QVERIFY(!xmp.contains("Roma") && !xmp.contains("2748") && !xmp.contains("2989"));

    // Of several photos those are named that it concerns.
    photos.select(u"ab"_s);
    photos->discardSaveDialog();
    QVERIFY(photos.knows(u"ab"_s));
    photos->layEdits({ .own = { { photos.url(u"a.jpg"_s), { .scalars = { { u"iptc.maxWidth"_s, u"900"_s } } } },
                           { photos.url(u"b.jpg"_s), { .scalars = { { u"iptc.maxWidth"_s, u"abc"_s } } } } } });
    QVERIFY(photos.save());
    QCOMPARE(photos.banner(),
        u"Saved, but 1 field reads back differently: Largest width (not a whole number: “abc” in b.jpg)"_s);
    QCOMPARE(photos->unsavedCount(), 1);
    QVERIFY(photos.xmp(u"a.jpg"_s).contains("<Iptc4xmpExt:MaxAvailWidth>900<"));
}

// Before a save where one is asked, else behind the first one.
void tst_AppModelIptc::sealsAreTold()
{
    Photos photos;
    const auto isShut = std::make_shared<std::atomic<bool>>(false);
    photos.addTitled(jpgs(u"abc"_s));
    photos.lookAtDetails([isShut](const QList<ImageRecord>& asked, const ReadControl& control) {
        while (*isShut && !control.stop.stop_requested())
            QThread::msleep(1);
        QHash<QUrl, PhotoDetails> found;
        for (const ImageRecord& photo : asked)
            found.insert(photo.url, { .url = photo.url, .hasCredentials = photo.fileName != "c.jpg" });
        return found;
    });
    QVERIFY(photos.open());
    const auto save = [&](const QString& letters, const QString& title) {
        photos.select(letters);
        if (!*isShut)
            QVERIFY(photos.knows(letters));
        letters.size() > 1 ? photos->setBatch(u"title"_s, title) : photos->setSingle(u"title"_s, title);
        QVERIFY(photos.save());
    };
    save(u"c"_s, u"1"_s);
    QCOMPARE(photos.banner(), QString());
    *isShut = true;
    save(u"abc"_s, u"2"_s);
    QCOMPARE(photos.banner(), QString());
    *isShut = false;
    const QString told = u"2 photos have Content Credentials: other programs will report them as changed."_s;
    QTRY_COMPARE_WITH_TIMEOUT(photos.banner(), told, 20000);
    save(u"a"_s, u"3"_s);
    QCOMPARE(photos.banner(), QString());

    photos.relaunch();
    QVERIFY(photos.open());
    photos->preferences().saveDontAsk.set(false);
    photos.select(u"b"_s);
    QVERIFY(photos.knows(u"b"_s));
    QCOMPARE(photos->credentialsAtStake(), 1);
    photos->setSingle(u"title"_s, u"4"_s);
    photos->requestSave();
    QVERIFY(photos->saveOpen());
    photos->confirmSaveDialog();
    QVERIFY(photos.waitUntilIdle() && photos.knows(u"b"_s));
    QCOMPARE(photos.banner(), QString());

    // A file that is not written to keeps its seal.
    const QUrl raw = photos.url(u"d.NEF"_s);
    QVERIFY(QFile::copy(photos.url(u"b.jpg"_s).toLocalFile(), raw.toLocalFile()));
    QVERIFY(photos.open());
    photos.click(u"d.NEF"_s);
    QTRY_VERIFY_WITH_TIMEOUT(photos->details(raw) != nullptr, 20000);
    QCOMPARE(photos->credentialsAtStake(), 1);
    photos->preferences().rawBeside.set(true);
    QVERIFY(photos.waitUntilIdle());
    QTRY_VERIFY_WITH_TIMEOUT(photos->details(raw) != nullptr, 20000);
    QCOMPARE(photos->credentialsAtStake(), 0);

    // Nor does one whose words move beside it, whatever the settings say of edits.
    photos->preferences().rawBeside.set(false);
    photos.relaunch();
    QVERIFY(photos.open());
    photos.click(u"d.NEF"_s);
    QTRY_VERIFY_WITH_TIMEOUT(photos->details(raw) != nullptr, 20000);
    MovingOver& moving = photos->movingOver();
    moving.request(MoveWay::intoSidecars);
    QTRY_VERIFY_WITH_TIMEOUT(moving.canMove(), 20000);
    moving.move();
    QVERIFY(photos.waitUntilIdle() && QFile::exists(photos.folder.path(u"d.xmp"_s)));
    QTRY_VERIFY_WITH_TIMEOUT(photos->details(raw) != nullptr, 20000);
    QCOMPARE(photos.banner(), QString());
}

// What a save brought into a photo, the last first; no more than one can look through.
void tst_AppModelIptc::cardsAreRemembered()
{
    const ModelFixture model(std::nullopt);
    const QString id = u"iptc.contact"_s;
    RememberedCards& cards = model.model->rememberedCards();
    const QUrl photo = QUrl::fromLocalFile(u"/a.jpg"_s);
    ImageRecord record;
    record.url = photo;
    const auto save = [&](const QString& city, const QString& creator, const QSet<QUrl>& failed = {},
                          const QSet<QString>& refused = {}) {
        record.values[u"creator"_s] = creator;
        cards.noteSaving(
            { .scalars = { { id, item("{\"CiAdrCity\":\"" + city.toUtf8() + "\"}") } }, .subjects = { photo } });
        cards.noteSaved({ record }, failed, refused);
    };
    const auto labels = [&id](const RememberedCards& held) {
        QStringList texts;
        for (const RememberedCard& card : held.of(id))
            texts.append(RememberedCards::label(id, card));
        return texts;
    };
    save(u"Zürich"_s, u"Mara Lindqvist"_s);
    save(u"Bern"_s, {});
    save(u"Basel"_s, {}, { photo });
    save(u"Chur"_s, {}, {}, { id });
    save(QString(), {});
    QCOMPARE(labels(cards), QStringList({ u"Bern"_s, u"Mara Lindqvist · Zürich"_s }));
    save(u"Zürich"_s, u"M. Lindqvist"_s);
    QCOMPARE(labels(cards), QStringList({ u"M. Lindqvist · Zürich"_s, u"Bern"_s }));
    cards.noteSaving(
        { .added = { { u"iptc.licensors"_s, { item(R"({"LicensorName":"A"})"), item(R"({"LicensorName":"B"})") } } },
            .subjects = { photo } });
    cards.noteSaved({ record }, {}, {});
    QCOMPARE(RememberedCards::label(u"iptc.licensors"_s, cards.of(u"iptc.licensors"_s).constFirst()), u"A"_s);
    const RememberedCards later(*model.model);
    QCOMPARE(later.of(u"iptc.licensors"_s), cards.of(u"iptc.licensors"_s));
    QCOMPARE(labels(later), labels(cards));
    cards.forget(id, cards.of(id).constFirst().card);
    QCOMPARE(labels(cards), QStringList{ u"Bern"_s });
    for (int i = 0; i < RememberedCards::most; ++i)
        save(QString::number(i), {});
    QCOMPARE(cards.of(id).size(), RememberedCards::most);
    QCOMPARE(labels(cards).constLast(), u"0"_s);
    cards.forgetAll(id);
    QCOMPARE(labels(RememberedCards(*model.model)), QStringList());
    QCOMPARE(cards.of(u"iptc.licensors"_s).size(), 2);
}

// What made a picture is on screen beside a source that says that an AI did; the code of a country is filled where it
// is on screen; what a value points to should be there.
void tst_AppModelIptc::whatBelongsTogether()
{
    Photos photos;
    photos.addTitled(jpgs(u"ab"_s));
    QVERIFY(photos.open());
    const auto seen = [&] { return photos->visibleFieldIDs(FieldSection::source).size(); };
    const QString generated = u"http://cv.iptc.org/newscodes/digitalsourcetype/trainedAlgorithmicMedia"_s;
    const LocationFill::Result bern{ u"Bern"_s, {}, {}, u"Switzerland"_s, 46.9, 7.4, u"CH"_s };
    photos.select(u"a"_s);
    QVERIFY(photos.knows(u"a"_s));
    photos->setSingle(u"iptc.digitalSource"_s, u"http://cv.iptc.org/newscodes/digitalsourcetype/digitalCapture"_s);
    QCOMPARE(seen(), 1);
    photos->setSingle(u"iptc.digitalSource"_s, generated);
    QCOMPARE(seen(), 5);
    QCOMPARE(photos->unsavedCount(), 1);
    photos->applyLocation(bern);
    QVERIFY(!photos->editedSingle().contains(u"iptc.countryCode"_s));
    photos->addKnownField(u"iptc.countryCode"_s);
    photos->applyLocation(bern);
    QCOMPARE(photos->draftValues().value(u"iptc.countryCode"_s), u"CH"_s);
    photos->setSingle(u"iptc.dataMining"_s, u"DMI-PROHIBITED-SEELINKEDRIGHTSEXPR"_s);
    QCOMPARE(FieldNotes::of(*photos.model, u"iptc.dataMining"_s), u"Points to “Linked rights”, which is empty"_s);
    photos->setItems(u"iptc.linkedRights"_s, { item(R"({"LinkedRightsExpr":"https://a"})") });
    QCOMPARE(FieldNotes::of(*photos.model, u"iptc.dataMining"_s), QString());
    photos->requestSave();
    QVERIFY(photos.waitUntilIdle());
    photos.select(u"b"_s);
    QVERIFY(photos.knows(u"b"_s));
    QCOMPARE(seen(), 0);
    photos.select(u"ab"_s);
    QVERIFY(photos.knows(u"ab"_s));
    photos->setBatch(u"iptc.digitalSource"_s, generated);
    QCOMPARE(seen(), 5);
}

QTEST_GUILESS_MAIN(tst_AppModelIptc)
#include "tst_AppModelIptc.moc"
