// The tables of the IPTC Photo Metadata Standard: that they are whole and hang together, that the tool knows every tag
// and every member in them, and what is made of structures as texts.
#include "core/iptc/FieldAdvice.h"
#include "core/iptc/IptcDefinitions.h"
#include "core/iptc/IptcSchema.h"
#include "core/iptc/LocationCards.h"
#include "core/iptc/StructureEdit.h"
#include "core/iptc/StructureText.h"
#include "core/iptc/Vocabularies.h"
#include "core/iptc/VocabularyTexts.h"
#include "core/iptc/WorldRegions.h"
#include "core/schema/FieldSchema.h"
#include "core/tool/ToolOutput.h"
#include "tests/support/Support.h"

#include <QJsonArray>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

const StructureSpec& structure(const QString& name)
{
    const StructureSpec* found = IptcStructures::spec(name);
    if (!found)
        qFatal("no such structure");
    return *found;
}

// JSON, with single quotes for legibility.
QString json(const char* text)
{
    return QString::fromUtf8(text).replace(u'\'', u'"');
}

// A value that the tool's own notation would break, where the member takes any.
QJsonValue filled(const StructureMember& member, int n);

QJsonObject filled(const StructureSpec& structure)
{
    QJsonObject object;
    for (const StructureMember& member : structure.members) {
        object[member.name] =
            member.isSeveral ? QJsonValue(QJsonArray{ filled(member, 1), filled(member, 2) }) : filled(member, 1);
        if (member.hasLanguages)
            object[member.name + u"-de"_s] = u" Ü, "_s + member.name;
    }
    return object;
}

QJsonValue filled(const StructureMember& member, int n)
{
    if (const StructureSpec* inner = IptcStructures::spec(member.structure))
        return filled(*inner);
    if (const Vocabulary* vocabulary = Vocabularies::find(member.vocabulary))
        return vocabulary->terms.constLast().code;
    if (member.name == u"GPSAltitudeRef")
        return u"1"_s;
    if (member.kind == FieldKind::number)
        return member.name == u"GPSLongitude" ? u"-151.25"_s : u"33.5"_s;
    return member.kind == FieldKind::date ? u"1889-06"_s : u"{a|b}, [%1] %2"_s.arg(member.name).arg(n);
}

// What a field is given: as texts, one an assignment.
QStringList filled(const FieldSpec& field)
{
    if (const StructureSpec* of = IptcStructures::spec(field.structure))
        return { StructureText::of(filled(*of)) };
    if (const Vocabulary* vocabulary = Vocabularies::find(field.vocabulary))
        return { vocabulary->terms.constFirst().code };
    if (field.kind == FieldKind::number)
        return { u"17"_s };
    return { field.id == u"iptc.countryCode"_s ? u"CHE"_s : u"of "_s + field.id };
}

// Paths of all members that hold no structure: "RegionBoundary.RbX".
QStringList paths(const StructureSpec& structure, const QString& before = {})
{
    QStringList found;
    for (const StructureMember& member : structure.members) {
        if (const StructureSpec* inner = IptcStructures::spec(member.structure))
            found += paths(*inner, before + member.name + u'.');
        else
            found.append(before + member.name);
    }
    return found;
}

QString kindOf(const FieldSpec& field)
{
    static const QMap<FieldKind, QString> one{ { FieldKind::text, u"one line"_s },
        { FieldKind::multiline, u"several lines"_s }, { FieldKind::keywords, u"list"_s },
        { FieldKind::date, u"date and time"_s }, { FieldKind::rating, u"stars, 0 to 5"_s },
        { FieldKind::number, u"whole number"_s }, { FieldKind::code, u"code"_s },
        { FieldKind::structure, u"structure"_s } };
    const QString kind = field.isSeveral ? u"list of %1s"_s.arg(one[field.kind]) : one[field.kind];
    return field.languageTag().isEmpty() ? kind : kind + u", in languages"_s;
}

}  // namespace

class tst_IptcSchema : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    // All 66, each once, and all that the tables name exists.
    void tablesHangTogether()
    {
        QSet<QString> ids;
        QSet<QString> standard;
        for (const FieldSpec& field : IptcSchema::all()) {
            QVERIFY2(IptcSchema::isId(field.id) && FieldSchema::spec(field.id) == &field, qPrintable(field.id));
            QVERIFY2(!field.label.isEmpty() && !field.addNote.isEmpty(), qPrintable(field.id));
            QCOMPARE(IptcStructures::spec(field.structure) != nullptr, field.kind == FieldKind::structure);
            QCOMPARE(Vocabularies::find(field.vocabulary) != nullptr, field.kind == FieldKind::code);
            ids.insert(field.id);
            standard.insert(IptcSchema::standardName(field));
        }
        QCOMPARE(ids.size(), 43);
        const QMap<QString, QString>& fixed = IptcSchema::inFixedCatalogue();
        for (auto one = fixed.cbegin(); one != fixed.cend(); ++one) {
            QVERIFY2(FieldSchema::spec(*one) && !IptcSchema::isId(*one), qPrintable(one.key()));
            standard.insert(one.key());
        }
        QCOMPARE(standard.size(), 66);
        for (const StructureSpec& of : IptcStructures::all()) {
            for (const QString& name : of.titleMembers)
                QVERIFY2(IptcStructures::member(of, name), qPrintable(of.name + u'.' + name));
            for (const StructureMember& member : of.members) {
                QCOMPARE(IptcStructures::spec(member.structure) != nullptr, member.kind == FieldKind::structure);
                QCOMPARE(Vocabularies::find(member.vocabulary) != nullptr, member.kind == FieldKind::code);
            }
        }
    }

    // Every tag and every member, once each: written by the real tool, read back as they were meant.
    void toolKnowsAll()
    {
        const Test::PhotoFolder folder;
        const QString photo = folder.add(u"a.jpg"_s).toLocalFile();
        Test::writeFile(folder.path(u"config"_s), IptcDefinitions::text().toUtf8());
        const QStringList start{ u"-config"_s, folder.path(u"config"_s), u"-charset"_s, u"iptc=UTF8"_s };
        QStringList write = start;
        for (const FieldSpec& field : IptcSchema::all()) {
            const StructureSpec* of = IptcStructures::spec(field.structure);
            for (const QString& tag : field.writeTags)
                for (const QString& text : filled(field))
                    write.append(u'-' + tag + (IptcSchema::isWrittenByCode(tag) ? u"#="_s : u"="_s)
                        + (of ? StructureText::argument(*of, text) : IptcSchema::storedIn(tag, text)));
        }
        Test::exiftool(write + QStringList{ u"-overwrite_original"_s, photo });
        const auto decoded = ToolOutput::decodeExactly(
            Test::exiftool(start + QStringList{ u"-j"_s, u"-n"_s, u"-G1"_s, u"-a"_s, u"-api"_s, u"struct=2"_s, photo })
                .trimmed());
        QVERIFY(!decoded.error);
        const JSONObject tags = decoded.objects.constFirst();
        for (const FieldSpec& field : IptcSchema::all()) {
            for (const QString& tag : field.writeTags) {
                const JSONValue value = tags.value(tag.startsWith(u"IPTC:") ? tag : field.writeTags.constFirst());
                const StructureSpec* of = IptcStructures::spec(field.structure);
                if (!of) {
                    QCOMPARE(value.stringArray(), QStringList(IptcSchema::storedIn(tag, filled(field).constFirst())));
                    continue;
                }
                const auto* list = std::get_if<JSONValue::Array>(&value.payload);
                QCOMPARE(list != nullptr, field.isSeveral);
                const JSONValue item = list ? list->elements->constFirst() : value;
                const auto* object = std::get_if<JSONValue::Object>(&item.payload);
                QVERIFY2(object, qPrintable(tag));
                const QString found = StructureText::fromRead(*of, *object->members);
                const QString meant = filled(field).constFirst();
                QVERIFY2(StructureText::isSame(*of, found, meant), qPrintable(found + u"\n"_s + meant));
            }
            if (const StructureSpec* of = IptcStructures::spec(field.structure))
                for (const QString& path : paths(*of))
                    if (path != u"GPSAltitudeRef")
                        QVERIFY2(tags.contains(IptcStructures::flatTag(field.id, path)),
                            qPrintable(field.id + u' ' + path + u' ' + IptcStructures::flatTag(field.id, path)));
        }
        QCOMPARE(IptcStructures::flatTag(u"iptc.artworks"_s, u"AOTitle-de"_s), u"XMP-iptcExt:ArtworkTitle-de"_s);
        QCOMPARE(IptcStructures::flatTag(u"iptc.locationsShown"_s, u"GPSAltitudeRef"_s), QString());
    }

    void codesAreFoundInAllForms_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("name");
        const QString iptc = u"http://cv.iptc.org/newscodes/"_s;
        const QString camera = u"Digital capture sampled from real life"_s;
        const auto row = [](const char* title, const char* id, const QString& code, const QString& name) {
            QTest::newRow(title) << QString::fromUtf8(id) << code << name;
        };
        row("address", "digitalSource", iptc + u"digitalsourcetype/digitalCapture"_s, camera);
        row("https", "digitalSource", u"https://cv.iptc.org/newscodes/digitalsourcetype/digitalCapture"_s, camera);
        row("without address", "digitalSource", u"digitalCapture"_s, camera);
        row("code", "dataMining", u"DMI-ALLOWED"_s, u"Allowed"_s);
        row("address of a code", "dataMining", u"http://ns.useplus.org/ldf/vocab/DMI-ALLOWED"_s, u"Allowed"_s);
        row("other case", "boundaryShape", u"Polygon"_s, u"Polygon"_s);
        row("digits", "scene", u"011900"_s, u"action"_s);
        row("older block", "subject", u"IPTC:15000000:SPO::"_s, u"sport"_s);
        row("region by name", "worldRegion", u"Asia"_s, u"Asia"_s);
        row("region by address", "worldRegion", iptc + u"worldregion/r142"_s, u"Asia"_s);
        row("name alone", "genre", u"From the Scene"_s, u"From the Scene"_s);
        for (const char* code : { "MR-XYZ", "http://ns.useplus.org/ldf/vocab/MR-XYZ", "", "https://" })
            row(qPrintable(u"unknown "_s + QString::fromUtf8(code)), "modelRelease", QString::fromUtf8(code),
                QString::fromUtf8(code));
    }
    void codesAreFoundInAllForms()
    {
        QFETCH(QString, id);
        QFETCH(QString, code);
        QTEST(Vocabularies::nameOf(id, code), "name");
        QCOMPARE(
            Vocabularies::term(id, code) == nullptr, QString::fromUtf8(QTest::currentDataTag()).contains(u"unknown"));
    }

    void vocabulariesAreWhole()
    {
        const QMap<QString, qsizetype> sizes{ { u"digitalSource"_s, 20 }, { u"dataMining"_s, 9 },
            { u"modelRelease"_s, 4 }, { u"propertyRelease"_s, 4 }, { u"minorModelAge"_s, 13 },
            { u"telephoneType"_s, 5 }, { u"scene"_s, 24 }, { u"subject"_s, 17 }, { u"mediaTopic"_s, 17 },
            { u"genre"_s, 44 }, { u"worldRegion"_s, 8 }, { u"regionType"_s, 16 }, { u"regionRole"_s, 11 },
            { u"boundaryShape"_s, 3 }, { u"boundaryUnit"_s, 2 } };
        QMap<QString, qsizetype> found;
        const QStringList translated = VocabularyTexts::all();
        for (const Vocabulary& vocabulary : Vocabularies::all()) {
            found.insert(vocabulary.id, vocabulary.terms.size());
            QStringList texts{ vocabulary.title };
            for (const VocabularyTerm& term : vocabulary.terms)
                texts << term.name << term.note;
            for (const QString& text : texts)
                QVERIFY2(text.isEmpty() || translated.contains(text), qPrintable(text));
            QVERIFY2(!vocabulary.title.isEmpty() && !vocabulary.source.isEmpty() && !vocabulary.date.isEmpty(),
                qPrintable(vocabulary.id));
            for (const VocabularyTerm& term : vocabulary.terms) {
                QVERIFY2(!term.name.isEmpty(), qPrintable(term.code));
                QCOMPARE(Vocabularies::term(vocabulary.id, term.code), &term);
            }
        }
        QCOMPARE(found, sizes);
    }

    void searchFinds_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("name first, then note")
            << u"scene"_s << u"two"_s << QStringList{ u"two"_s, u"couple"_s, u"group"_s };
        QTest::newRow("words in any order")
            << u"digitalSource"_s << u"frame multi"_s
            << QStringList{ u"Multi-frame computational capture sampled from real life"_s };
        QTest::newRow("any case") << u"genre"_s << u" OBIT "_s << QStringList{ u"Obituary"_s };
        QTest::newRow("code") << u"modelRelease"_s << u"mr-u"_s << QStringList{ u"Unlimited Model Releases"_s };
        QTest::newRow("retired last") << u"digitalSource"_s << u"digital creation"_s
                                      << QStringList{ u"Digital creation"_s, u"Digital art"_s };
        QTest::newRow("nothing") << u"scene"_s << u"headshot two"_s << QStringList();
        QTest::newRow("no vocabulary") << u"scenery"_s << QString() << QStringList();
    }
    void searchFinds()
    {
        QFETCH(QString, id);
        QFETCH(QString, typed);
        QStringList names;
        for (const VocabularyTerm* term : Vocabularies::search(id, typed))
            names.append(term->name);
        QTEST(names, "names");
        QCOMPARE(Vocabularies::search(u"digitalSource"_s, {}).size(), 20);
        QVERIFY(Vocabularies::search(u"digitalSource"_s, {}).constLast()->isRetired);
    }

    // Qt knows the same countries, and a few codes that are none.
    void countriesHaveRegions()
    {
        const QStringList none = u"AC CP DG EA EU EZ IC QO TA UN"_s.split(u' ');
        int countries = 0;
        for (int one = QLocale::AnyTerritory + 1; one <= QLocale::LastTerritory; ++one) {
            const QString code = QLocale::territoryToCode(static_cast<QLocale::Territory>(one));
            if (code.size() != 2 || !code.at(0).isLetter() || none.contains(code))
                continue;
            QVERIFY2(Vocabularies::term(u"worldRegion"_s, WorldRegions::nameOf(code.toLower())), qPrintable(code));
            ++countries;
        }
        QVERIFY2(countries >= 249, qPrintable(QString::number(countries)));
        QCOMPARE(WorldRegions::nameOf(u"MX"_s), u"North America"_s);
        QCOMPARE(WorldRegions::nameOf(u"CY"_s), u"Asia"_s);
        QCOMPARE(WorldRegions::nameOf(u"ZZ"_s), QString());
    }

    void placesBecomeCards()
    {
        const QMap<QString, QString> fields{ { u"sublocation"_s, u"Miraflores "_s }, { u"place"_s, u"Lima"_s },
            { u"country"_s, u"Peru"_s }, { u"iptc.countryCode"_s, u"PE"_s },
            { u"coords"_s, u"-12.1215, -77.029700"_s } };
        const auto value = [&fields](const QString& id) { return fields.value(id); };
        const QString lima = LocationCards::fromFields(value);
        QCOMPARE(lima,
            json("{'City':'Lima','CountryCode':'PE','CountryName':'Peru','GPSLatitude':'-12.1215',"
                 "'GPSLongitude':'-77.0297','Sublocation':'Miraflores','WorldRegion':'South America'}"));
        QCOMPARE(LocationCards::fromFields([](const QString&) { return QString(); }), QString());
        QCOMPARE(LocationCards::fromPlace(
                     { u"Kinkaku-ji"_s, u"Kyoto"_s, u"Kyoto Prefecture"_s, u"Japan"_s, 35.0394, 135.7292, u"JP"_s }),
            json("{'City':'Kyoto','CountryCode':'JP','CountryName':'Japan','GPSLatitude':'35.0394',"
                 "'GPSLongitude':'135.7292','LocationName':'Kinkaku-ji','ProvinceState':'Kyoto Prefecture',"
                 "'Sublocation':'Kinkaku-ji','WorldRegion':'Asia'}"));
        // There and back nothing changes; another place takes its identifiers with it, but not what nobody knows.
        QCOMPARE(LocationCards::toFields(lima, [&](const QString& id) { return fields.value(id).trimmed(); }),
            (QList<LocationFill::Assignment>{ { u"coords"_s, u"-12.121500, -77.029700"_s } }));
        const QString rome = json("{'City':'Rome','CountryName':'Italy'}");
        const QString known = json("{'City':'Rome','LocationId':['x'],'LocationName-de':'Rom','Mood':'b'}");
        QCOMPARE(LocationCards::moved(known, rome),
            json("{'City':'Rome','CountryName':'Italy','LocationId':['x'],'LocationName-de':'Rom','Mood':'b'}"));
        QCOMPARE(LocationCards::moved(known, json("{'City':'Bern'}")), json("{'City':'Bern','Mood':'b'}"));
        // The town before had a sub-location; what a card does not say of the position stays.
        QCOMPARE(LocationCards::toFields(rome, value),
            (QList<LocationFill::Assignment>{
                { u"sublocation"_s, {} }, { u"place"_s, u"Rome"_s }, { u"country"_s, u"Italy"_s } }));
        QVERIFY(LocationCards::toFields(json("{'LocationId':['x']}"), value).isEmpty());
    }

    void adviceIsGiven_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("isEmpty");  // what it points to
        QTest::addColumn<QString>("note");
        const QString plenty = u"🇨🇭"_s.repeated(250);
        const QString points = u"Points to “%1”, which is empty"_s;
        const QString constraints = u"http://ns.useplus.org/ldf/vocab/DMI-PROHIBITED-SEECONSTRAINT"_s;
        QTest::newRow("flags are one each") << u"iptc.altText"_s << plenty << true << QString();
        QTest::newRow("one more") << u"iptc.altText@de"_s << plenty + u'!' << true
                                  << u"Long to listen to: 251 of 250 characters"_s;
        QTest::newRow("other long texts") << u"iptc.extendedDescription"_s << plenty + u'!' << true << QString();
        QTest::newRow("constraints") << u"iptc.dataMining"_s << constraints << true
                                     << points.arg(u"Other constraints"_s);
        QTest::newRow("constraints given") << u"iptc.dataMining"_s << constraints << false << QString();
        QTest::newRow("embedded") << u"iptc.dataMining"_s << u"DMI-PROHIBITED-SEEEMBEDDEDRIGHTSEXPR"_s << true
                                  << points.arg(u"Embedded rights"_s);
        QTest::newRow("points nowhere") << u"iptc.dataMining"_s << u"DMI-PROHIBITED"_s << true << QString();
    }
    void adviceIsGiven()
    {
        QFETCH(QString, key);
        QFETCH(QString, value);
        QFETCH(bool, isEmpty);
        QTEST(FieldAdvice::note(key, value, [isEmpty](const QString&) { return isEmpty; }), "note");
    }

    void structuresBecomeArguments_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("argument");
        QTest::addColumn<QStringList>("foreign");
        const auto row = [](const char* title, const char* name, const char* text, const char* argument,
                             const QStringList& foreign = {}) {
            QTest::newRow(title) << QString::fromUtf8(name) << json(text) << QString::fromUtf8(argument) << foreign;
        };
        row("signs", "Location", "{'City':' a|b,c}d]e','LocationName':'{x}','Sublocation':'[y'}",
            "{City=| a||b|,c|}d|]e,LocationName=|{x|},Sublocation=|[y}");
        row("list and language", "Location", "{'LocationId':[' a,b','c'],'LocationName-de':'Köln'}",
            "{LocationId=[| a|,b,c],LocationName-de=Köln}");
        row("numbers and words", "Location", "{'GPSAltitude':1000000,'GPSLatitude':-0.00001,'City':true}",
            "{City=true,GPSAltitude=1000000,GPSLatitude=-1e-05}");
        row("codes", "Licensor", "{'LicensorTelephoneType1':'cell'}", "{LicensorTelephoneType1#=cell}");
        row("empty ones", "Location", "{'City':'','LocationId':['',null],'CountryName':'Japan'}",
            "{CountryName=Japan}");
        row("foreign", "Location", "{'City':'a','Mood':'b'}", "{City=a}", { u"Mood"_s });
        row("foreign inside", "ImageRegion", "{'Name':'a','RegionBoundary':{'RbColor':'red'},'RRole':[{'Mood':'b'}]}",
            "{Name=a}", { u"RRole.Mood"_s, u"RegionBoundary.RbColor"_s });
        row("only foreign", "Location", "{'Mood':{'a':'b'}}", "", { u"Mood"_s });
        row("text for a structure", "ImageRegion", "{'Name':'a','RegionBoundary':'b'}", "{Name=a}",
            { u"RegionBoundary"_s });
        row("structure for a text", "Location", "{'City':{'a':'b'}}", "", { u"City"_s });
        row("no object", "Location", "[1]", "");
    }
    void structuresBecomeArguments()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        QTEST(StructureText::argument(structure(name), text), "argument");
        QTEST(StructureText::foreignMembers(structure(name), text), "foreign");
    }

    void structuresHaveTitles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("subtitle");
        const auto row = [](const char* title, const char* name, const char* text, const char* heading,
                             const char* below) {
            QTest::newRow(title) << QString::fromUtf8(name) << json(text) << QString::fromUtf8(heading)
                                 << QString::fromUtf8(below);
        };
        row("place", "Location", "{'City':'Kyoto','CountryName':'Japan','Sublocation':'Gion'}", "Kyoto", "Japan");
        row("no title member", "Location", "{'CountryCode':'JP','Sublocation':'Gion'}", "Gion", "");
        row("language alone", "ArtworkOrObject", "{'AOTitle-de':'Nacht','AOCreator':['V','W']}", "Nacht", "V, W");
        row("first line", "PersonWDetails", "{'PersonId':['','x'],'PersonDescription':'a\\nb'}", "a", "x");
        row("first line without title member", "CreatorContactInfo", "{'CiAdrExtadr':'Lane 1\\nTown'}", "Lane 1", "");
        row("code by its name", "RegionBoundary", "{'RbShape':'circle'}", "Circle", "");
        row("structure inside", "ImageRegion", "{'RCtype':[{'Name':'human'},{'Name':'plant'}]}", "human, plant", "");
        row("foreign", "Location", "{'Mood':'calm'}", "calm", "");
        row("nothing to show", "Location", "{'Mood':[{'a':'b'},{'a':'c'}]}", "", "");
    }
    void structuresHaveTitles()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        QTEST(StructureText::title(structure(name), text), "title");
        QTEST(StructureText::subtitle(structure(name), text), "subtitle");
    }

    void structuresAreSummedUp()
    {
        const QString kyoto = json("{'City':'Kyoto','CountryName':'Japan'}");
        QCOMPARE(StructureText::summary(structure(u"Location"_s), {}), QString());
        QCOMPARE(StructureText::summary(structure(u"Location"_s), { kyoto }), u"Kyoto, Japan"_s);
        QCOMPARE(StructureText::summary(structure(u"Location"_s), { kyoto, kyoto }), u"Kyoto, Japan · 1 more"_s);
    }

    void structuresAreCompared_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<bool>("isSame");
        const auto row = [](const char* title, const char* name, const char* a, const char* b, bool isSame) {
            QTest::newRow(title) << QString::fromUtf8(name) << json(a) << json(b) << isSame;
        };
        row("order", "Location", "{'City':'a','CountryName':'b'}", "{'CountryName':'b','City':'a'}", true);
        row("empty member", "Location", "{'City':'a','CountryName':''}", "{'City':'a'}", true);
        row("other text", "Location", "{'City':'a'}", "{'City':'A'}", false);
        row("text that is a number", "Location", "{'City':'4.10'}", "{'City':'4.1'}", false);
        row("number", "Location", "{'GPSLatitude':'4.10'}", "{'GPSLatitude':'4.1000000002'}", true);
        row("other number", "Location", "{'GPSLatitude':'4.1'}", "{'GPSLatitude':'4.1001'}", false);
        row("number inside", "ImageRegion", "{'RegionBoundary':{'RbX':'0.50'}}", "{'RegionBoundary':{'RbX':'.5'}}",
            true);
        row("one of several", "Location", "{'LocationId':'a'}", "{'LocationId':['a']}", true);
        row("order of several", "Location", "{'LocationId':['a','b']}", "{'LocationId':['b','a']}", false);
        row("day", "ArtworkOrObject", "{'AODateCreated':'1889:06:02'}", "{'AODateCreated':'1889-06-02'}", true);
        row("other day", "ArtworkOrObject", "{'AODateCreated':'1889-06-03'}", "{'AODateCreated':'1889-06-02'}", false);
        row("foreign", "Location", "{'City':'a','Mood':'b'}", "{'City':'a'}", false);
        row("nothing", "Location", "", "{}", true);
    }
    void structuresAreCompared()
    {
        QFETCH(QString, name);
        QFETCH(QString, a);
        QFETCH(QString, b);
        QTEST(StructureText::isSame(structure(name), a, b), "isSame");
        QTEST(StructureText::isSame(structure(name), b, a), "isSame");
    }

    // The page lists all properties, by the standard's names.
    void structuresAreEdited_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("member");
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<QString>("after");
        const auto row = [](const char* title, const char* before, const char* member, const QStringList& items,
                             const char* after) {
            QTest::newRow(title) << json(before) << QString::fromUtf8(member) << items
                                 << StructureText::tidied(json(after));
        };
        row("text", "{'Name':'a','Mood':'b'}", "Name", { u"c"_s }, "{'Name':'c','Mood':'b'}");
        row("language", "{'Name':'a'}", "Name-de", { u"c"_s }, "{'Name':'a','Name-de':'c'}");
        row("emptied", "{'Name':'a','RId':'b'}", "RId", { QString() }, "{'Name':'a'}");
        row("nothing left", "{'Name':'a'}", "Name", { QString() }, "{}");
        row("structures", "{'RRole':[{'Name':'a','Mood':'b'}]}", "RRole",
            { json("{'Mood':'b','Name':'a'}"), json("{'Name':'c'}") },
            "{'RRole':[{'Name':'a','Mood':'b'},{'Name':'c'}]}");
        row("what is no structure stays", "{'RRole':['x',{'Name':'a'}]}", "RRole", {}, "{'RRole':['x']}");
        row("one structure", "{'Name':'a'}", "RegionBoundary", { json("{'RbX':'1'}") },
            "{'Name':'a','RegionBoundary':{'RbX':'1'}}");
        row("one structure removed", "{'Name':'a','RegionBoundary':{'RbX':'1'}}", "RegionBoundary", {}, "{'Name':'a'}");
    }
    void structuresAreEdited()
    {
        QFETCH(QString, before);
        QFETCH(QString, member);
        QFETCH(QStringList, items);
        const StructureMember* of = IptcStructures::member(structure(u"ImageRegion"_s), member);
        QVERIFY(of);
        const bool isInner = of->kind == FieldKind::structure;
        const QString after = isInner ? StructureEdit::withStructures(before, *of, items)
                                      : StructureEdit::with(before, member, items.constFirst());
        QTEST(after, "after");
        if (isInner)
            QCOMPARE(StructureEdit::structures(after, member), items);
        else
            QCOMPARE(StructureEdit::texts(after, member).value(0), items.constFirst());
    }

    void itemsAreFoundAgain_data()
    {
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<QList<qsizetype>>("origins");
        const QString horn = json("{'City':'Horn','CountryName':'Switzerland'}");
        const QString jona = json("{'City':'Jona','CountryName':'Switzerland','Sublocation':'Lake'}");
        const QString hornEdited = json("{'City':'Arbon','CountryName':'Switzerland'}");
        const QString jonaEdited = json("{'City':'Wil','CountryName':'Switzerland','Sublocation':'Lake'}");
        using Places = QList<qsizetype>;
        QTest::newRow("as they were") << QStringList{ horn, jona } << Places{ 0, 1 };
        QTest::newRow("moved") << QStringList{ jona, horn } << Places{ 1, 0 };
        QTest::newRow("moved and edited") << QStringList{ jonaEdited, hornEdited } << Places{ 1, 0 };
        QTest::newRow("the first is gone") << QStringList{ jonaEdited } << Places{ 1 };
        QTest::newRow("another one") << QStringList{ json("{'City':'Uji'}"), horn, jona } << Places{ -1, 0, 1 };
        QTest::newRow("twice") << QStringList{ horn, horn, jona } << Places{ 0, -1, 1 };
        QTest::newRow("nothing in it") << QStringList{ QString(), horn } << Places{ -1, 0 };
    }
    void itemsAreFoundAgain()
    {
        QFETCH(QStringList, items);
        const QStringList held{ json("{'City':'Horn','CountryName':'Switzerland'}"),
            json("{'City':'Jona','CountryName':'Switzerland','Sublocation':'Lake'}") };
        QTEST(StructureEdit::origins(items, held), "origins");
    }

    void membersHaveNotes_data()
    {
        QTest::addColumn<FieldKind>("kind");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("noted");
        QTest::newRow("day") << FieldKind::date << u"1889-06-02"_s << false;
        QTest::newRow("month") << FieldKind::date << u" 1889-06 "_s << false;
        QTest::newRow("year") << FieldKind::date << u"1889"_s << false;
        QTest::newRow("no month") << FieldKind::date << u"1889-13"_s << true;
        QTest::newRow("words") << FieldKind::date << u"in June"_s << true;
        QTest::newRow("number") << FieldKind::number << u"-0.25"_s << false;
        QTest::newRow("no number") << FieldKind::number << u"0,25"_s << true;
        QTest::newRow("anything else") << FieldKind::text << u"in June"_s << false;
    }
    void membersHaveNotes()
    {
        QFETCH(FieldKind, kind);
        QFETCH(QString, text);
        QTEST(!StructureEdit::note({ .kind = kind }, text).isEmpty(), "noted");
    }

    void isWhatThePageSays()
    {
        QMap<QString, const FieldSpec*> fields;
        for (const FieldSpec& field : IptcSchema::all())
            fields.insert(IptcSchema::standardName(field), &field);
        const QMap<QString, QString>& fixed = IptcSchema::inFixedCatalogue();
        for (auto one = fixed.cbegin(); one != fixed.cend(); ++one)
            fields.insert(one.key(), FieldSchema::spec(*one));
        QStringList expected;
        for (auto one = fields.cbegin(); one != fields.cend(); ++one)
            expected.append(u"| %1 | %2 | %3 | `%4` |"_s.arg(
                one.key(), (*one)->label, kindOf(**one), (*one)->writeTags.join(u"`<br>`"_s)));
        expected.sort(Qt::CaseInsensitive);
        const QString page = QString::fromUtf8(Test::readFile(QString::fromUtf8(QUORBEL_FIELDS_PAGE)));
        const QString section = page.section(u"## All 66 properties"_s, 1).section(u"\n## "_s, 0, 0);
        QCOMPARE(section.split(u'\n').filter(QRegularExpression(u"^\\| (?!In the standard)"_s)), expected);
    }
};

QTEST_GUILESS_MAIN(tst_IptcSchema)
#include "tst_IptcSchema.moc"
