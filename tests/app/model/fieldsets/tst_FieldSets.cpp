// Sets of fields: what a chosen one brings on screen, which of its wanted fields are empty, the way from one of these
// to the next, and the user's own.
#include "app/model/fieldsets/FieldSets.h"
#include "app/model/library/filter/Filtering.h"
#include "tests/app/model/ModelFixture.h"

#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

using Count = FieldSets::Count;
using Edited = FieldSets::Edited;
constexpr auto next = Filtering::Way::next;

struct Photos : ModelFixture {
    Photos()
        : ModelFixture(MetadataService{ realTool() })
    {
        lookAtDetails();
        connectFilters();
    }
    void connectFilters()
    {
        QObject::connect(&model->filtering(), &Filtering::fieldAsked, model.get(),
            [this](const QString& id) { asked = primary() + u' ' + id; });
        QObject::connect(
            &model->filtering(), &Filtering::noted, model.get(), [this](const QString& text) { note = text; });
    }
    bool knows(const QString& name)
    {
        return QTest::qWaitFor([&] { return model->details(url(name)) != nullptr; }, 20000);
    }
    void add(const QString& name, const QStringList& tags)
    {
        const QString path = folder.add(name).toLocalFile();
        if (!tags.isEmpty())
            exiftool(QStringList{ u"-overwrite_original"_s } + tags + QStringList{ path });
    }
    FieldSets& sets() { return model->fieldSets(); }
    QStringList onScreen() const
    {
        QStringList ids;
        for (const FieldSection section : allCases<FieldSection>())
            ids += model->fieldSets().visible(section);
        return ids;
    }
    // Where the next gap is, and what is said of it.
    QString goOn()
    {
        asked.clear();
        note.clear();
        model->filtering().goToGap(next);
        [[maybe_unused]] const bool arrived =
            QTest::qWaitFor([this] { return !asked.isEmpty() || !note.isEmpty(); }, 20000);
        const QString to = asked.isEmpty() ? note : note.isEmpty() ? asked : asked + u" · "_s + note;
        model->filtering().focusedField = [field = asked.section(u' ', 1)] { return field; };
        return to;
    }

    QString asked;
    QString note;
};

FieldSet set(const QString& name, const QStringList& fields, const QStringList& wanted = {})
{
    return { name, fields, QSet<QString>(wanted.cbegin(), wanted.cend()) };
}

}  // namespace

class tst_FieldSets : public QObject {
    Q_OBJECT

private slots:
    void comesWithSets_data();
    void comesWithSets();
    void readsItsSetting_data();
    void readsItsSetting();
    void showsTheFieldsOfASet();
    void countsWhatIsWanted();
    void leadsFromGapToGap();
    void keepsOwnSets();
    void refusesSets_data();
    void refusesSets();
};

// An id that no schema knows would not be among them.
void tst_FieldSets::comesWithSets_data()
{
    QTest::addColumn<int>("fields");
    QTest::addColumn<int>("wanted");
    QTest::newRow("Captions") << 9 << 3;
    QTest::newRow("Press") << 27 << 9;
    QTest::newRow("Museum") << 17 << 5;
    QTest::newRow("Stock") << 26 << 8;
    QTest::newRow("Rights") << 24 << 6;
    QTest::newRow("Accessibility") << 6 << 2;
}

void tst_FieldSets::comesWithSets()
{
    QFETCH(int, fields);
    QFETCH(int, wanted);
    for (const FieldSet& one : FieldSetTexts::builtIn()) {
        if (one.name != QLatin1StringView(QTest::currentDataTag()))
            continue;
        QCOMPARE(one.fields.size(), fields);
        QCOMPARE(one.wanted.size(), wanted);
        QCOMPARE(FieldSetTexts::fromText(FieldSetTexts::toText({ one })), QList<FieldSet>{ one });
        return;
    }
    QFAIL("no such set");
}

void tst_FieldSets::readsItsSetting_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("none") << u"[{"_s << QStringList();
    QTest::newRow("not a list") << u"{\"name\":\"A\"}"_s << QStringList();
    QTest::newRow("no fields") << u"[{\"name\":\"A\",\"fields\":[\"nothing\"]},7]"_s << QStringList();
    QTest::newRow("names of others")
        << uR"([{"name":"Press","fields":["title"]},{"name":"Default","fields":["title"]},{"name":"","fields":["date"]}])"_s
        << QStringList();
    QTest::newRow("twice") << uR"([{"name":"A","fields":["title"]},{"name":"A","fields":["date"]}])"_s
                           << QStringList{ u"A"_s };
}

void tst_FieldSets::readsItsSetting()
{
    QFETCH(QString, text);
    QFETCH(QStringList, names);
    ModelFixture f(std::nullopt);
    f->preferences().store().setValue(u"fieldSets"_s, text);
    f->preferences().store().setValue(u"fieldSet"_s, u"Gone"_s);
    f.relaunch();
    QStringList own;
    for (const FieldSet& one : f->fieldSets().own())
        own.append(one.name);
    QCOMPARE(own, names);
    QCOMPARE(f->fieldSets().current(), FieldSets::usual());
    QCOMPARE(f->fieldSets().isOffered(), !names.isEmpty());
}

void tst_FieldSets::showsTheFieldsOfASet()
{
    Photos f;
    f.add(u"a.jpg"_s, { u"-XMP-photoshop:Headline=Late light"_s, u"-XMP-plus:DataMining#=DMI-PROHIBITED"_s });
    QVERIFY(f.open());
    f.select(u"a"_s);
    QVERIFY(f.knows(u"a.jpg"_s));
    const QStringList usual = f.onScreen();
    f->setSingle(u"creator"_s, u"Mara"_s);
    f.sets().choose(u"Accessibility"_s);
    const QStringList shown{ u"title"_s, u"description"_s, u"iptc.altText"_s, u"keywords"_s,
        u"iptc.extendedDescription"_s, u"people"_s };
    QCOMPARE(f.onScreen(), shown);
    // Beside it what holds something, and what is edited; both at once, too.
    const QStringList beside{ u"creator"_s, u"headline"_s };
    QCOMPARE(f.sets().beside(), beside);
    f->setSingle(u"headline"_s, u"Later light"_s);
    QCOMPARE(f.sets().beside(), beside);
    const auto isAddable = [&](const QString& id) {
        const QList<FieldSpec> fields = f->addableKnownFields() + f->addableIptcFields();
        return std::any_of(fields.cbegin(), fields.cend(), [&](const FieldSpec& field) { return field.id == id; });
    };
    QVERIFY(isAddable(u"copyright"_s) && !isAddable(u"iptc.altText"_s));
    f->addKnownField(u"copyright"_s);
    f->addKnownField(u"iptc.altText"_s);
    QVERIFY(f->isRemovableAddedField(u"copyright"_s));
    QVERIFY(!f->isRemovableAddedField(u"iptc.altText"_s));
    QVERIFY(f.onScreen().contains(u"copyright"_s));
    QCOMPARE(f.sets().beside(), beside);
    f->removeAddedField(u"copyright"_s);
    QCOMPARE(f.onScreen(), shown);
    f.sets().editWhatIsShown();
    QCOMPARE(f.sets().started()->fields, shown);
    f.sets().cancel();
    // As it was left, and back.
    f.relaunch();
    QCOMPARE(f->fieldSets().current(), u"Accessibility"_s);
    QVERIFY(f->fieldSets().isOffered());
    f->fieldSets().choose(FieldSets::usual());
    QVERIFY(f.open());
    f.select(u"a"_s);
    QVERIFY(f.knows(u"a.jpg"_s));
    QCOMPARE(f.onScreen(), usual);
    QCOMPARE(f.sets().beside(), QStringList());
    QVERIFY(f->fieldSets().gaps().isEmpty());
}

void tst_FieldSets::countsWhatIsWanted()
{
    Photos f;
    f.add(u"a.jpg"_s, { u"-XMP-dc:Creator=Mara"_s, u"-XMP-iptcCore:CreatorWorkEmail=m@example.org"_s });
    f.add(u"b.jpg"_s, { u"-XMP-dc:Rights=2026"_s });
    QVERIFY(f.open());
    f.sets().choose(u"Rights"_s);
    f.select(u"a"_s);
    // Not before it is known what is beside the record.
    QVERIFY(f->details(f.url(u"a.jpg"_s)) || !f.sets().count(FieldSection::contact));
    QVERIFY(f.knows(u"a.jpg"_s));
    QCOMPARE(f.sets().count(FieldSection::common), (Count{ 1, 2 }));
    QCOMPARE(f.sets().count(FieldSection::contact), (Count{ 1, 1 }));
    QCOMPARE(f.sets().count(FieldSection::people), std::nullopt);
    f->setSingle(u"copyright"_s, u"Mara"_s);
    f->setSingle(u"creator"_s, u"  "_s);
    QVERIFY(f.sets().isGap(u"creator"_s) && !f.sets().isGap(u"copyright"_s) && !f.sets().isGap(u"source"_s));
    f->discardSaveDialog();
    f.select(u"ab"_s);
    QVERIFY(f.knows(u"b.jpg"_s));
    QCOMPARE(f.sets().gaps(), (QStringList{ u"credit"_s, u"usageTerms"_s, u"iptc.dataMining"_s }));
    f->setBatch(u"credit"_s, u"Agency"_s);
    QCOMPARE(f.sets().gaps(), (QStringList{ u"usageTerms"_s, u"iptc.dataMining"_s }));
    f->setBatch(u"creator"_s, u"Mara"_s);
    f->setBatch(u"creator"_s, QString());
    QVERIFY(f.sets().isGap(u"creator"_s));
}

void tst_FieldSets::leadsFromGapToGap()
{
    Photos f;
    const QStringList full{ u"-XMP-dc:Description=D"_s, u"-XMP-iptcCore:AltTextAccessibility=A"_s };
    f.add(u"a.jpg"_s, full);
    f.add(u"b.jpg"_s, full.mid(0, 1));
    f.add(u"c.jpg"_s, full);
    f.add(u"d.jpg"_s, {});
    QVERIFY(f.open());
    f.sets().choose(u"Accessibility"_s);
    f.select(u"a"_s);
    // The photos behind were not looked at: that is done on the way.
    QCOMPARE(f.goOn(), u"b.jpg iptc.altText"_s);
    QCOMPARE(f.goOn(), u"d.jpg description"_s);
    QCOMPARE(f.goOn(), u"d.jpg iptc.altText"_s);
    QCOMPARE(f.goOn(), u"b.jpg iptc.altText · Started again at the top"_s);
    // The gaps of the filters lead again.
    f.sets().choose(FieldSets::usual());
    QCOMPARE(f.goOn(), u"b.jpg title"_s);
    // Without a gap.
    f.sets().edit();
    f.sets().store({ Edited{ {}, set(u"Formal"_s, { u"description"_s }, { u"description"_s }) } }, u"Formal"_s);
    f.select(u"d"_s);
    QVERIFY(f.knows(u"d.jpg"_s));
    f->setSingle(u"description"_s, u"D"_s);
    QCOMPARE(f.goOn(), u"No gaps left"_s);
}

void tst_FieldSets::keepsOwnSets()
{
    Photos f;
    f.add(u"a.jpg"_s, { u"-XMP-photoshop:Headline=Late light"_s });
    QVERIFY(f.open());
    f.select(u"a"_s);
    QVERIFY(f.knows(u"a.jpg"_s));
    f.sets().choose(u"Captions"_s);
    const QSignalSpy editing(&f.sets(), &FieldSets::editingChanged);
    f.sets().editWhatIsShown();
    QVERIFY(f.sets().started());
    FieldSet mine = *f.sets().started();
    QVERIFY(mine.fields.contains(u"headline"_s) && mine.wanted.contains(u"title"_s));
    mine.name = u" Mine "_s;
    f.sets().store({ Edited{ {}, mine } }, u"Mine"_s);
    QCOMPARE(editing.size(), 2);
    QCOMPARE(f.sets().current(), u"Mine"_s);
    // Under another name, beside a further one, after the next start.
    mine.name = u"Ours"_s;
    f.sets().edit();
    QVERIFY(!f.sets().started());
    f.sets().store({ Edited{ {}, set(u"New"_s, { u"date"_s, u"title"_s, u"date"_s }, { u"place"_s }) },
        Edited{ u"Mine"_s, mine } });
    QCOMPARE(f.sets().current(), u"Ours"_s);
    f.relaunch();
    QCOMPARE(f.sets().names().mid(7), (QStringList{ u"New"_s, u"Ours"_s }));
    QCOMPARE(*f.sets().find(u"New"_s), set(u"New"_s, { u"title"_s, u"date"_s }));
    QCOMPARE(f.sets().current(), u"Ours"_s);
    // Nothing happens on the way, nor when it was given up.
    f.sets().edit();
    f.sets().cancel();
    f.sets().store({});
    QCOMPARE(f.sets().own().size(), 2);
    f.sets().edit();
    f.sets().store({});
    QCOMPARE(f.sets().current(), FieldSets::usual());
}

void tst_FieldSets::refusesSets_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("problem");
    QTest::newRow("none") << u"  "_s << u"A set needs a name"_s;
    QTest::newRow("of one that comes with it") << u"Press"_s << u"There are two sets named “Press”"_s;
    QTest::newRow("of the usual form") << u"Default "_s << u"There are two sets named “Default”"_s;
    QTest::newRow("of another") << u"Other"_s << u"There are two sets named “Other”"_s;
    QTest::newRow("fine") << u"press"_s << QString();
}

void tst_FieldSets::refusesSets()
{
    QFETCH(QString, name);
    QFETCH(QString, problem);
    const QList<Edited> sets{ { {}, set(u"Other"_s, { u"title"_s }) }, { {}, set(name, { u"title"_s }) } };
    QCOMPARE(FieldSets::problem(sets).value_or(QString()), problem);
}

QTEST_GUILESS_MAIN(tst_FieldSets)
#include "tst_FieldSets.moc"
