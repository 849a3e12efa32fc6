// What edits come to as a plan, over a photo, in one photo of many, and after a save.
#include "core/save/Edits.h"

#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

using Mode = MetadataWriter::ListMode;
using Names = QHash<QUrl, QUrl>;

namespace {

ImageRecord lake()
{
    return { .url = QUrl::fromLocalFile(u"/lake.jpg"_s),
        .values = { { u"title"_s, u"Lake"_s }, { u"event"_s, u"Tour"_s } },
        .lists = { { u"keywords"_s, { u"water"_s, u"blue"_s } } },
        .custom = { { u"Mood"_s, u"calm"_s } } };
}

PhotoDetails lakeDetails()
{
    return { .url = lake().url,
        .texts = { { u"title@de"_s, u"See"_s }, { u"title@fr"_s, u"Lac"_s } },
        .paths = { u"Nature|water"_s } };
}

QUrl photo(const QString& name)
{
    return QUrl::fromLocalFile(u'/' + name);
}

// Edits of two photos, of which only the first has some of its own.
Edits differing()
{
    return { .scalars = { { u"event"_s, u"Tour"_s } },
        .added = { { u"keywords"_s, { u"all"_s, u"off"_s } } },
        .removed = { { u"keywords"_s, { u"old"_s, u"kept"_s } } },
        .customs = { { u"Mood"_s, u"gay"_s } },
        .own = { { photo(u"a"_s),
            { .scalars = { { u"title"_s, u"A"_s } },
                .added = { { u"keywords"_s, { u"kept"_s, u"mine"_s } } },
                .removed = { { u"keywords"_s, { u"off"_s } } },
                .customs = { { u"Hue"_s, u"red"_s } } } } },
        .subjects = { photo(u"a"_s), photo(u"b"_s) } };
}

// What a save was given.
Edits sent()
{
    return { .scalars = { { u"title"_s, u"X"_s }, { u"title@de"_s, {} } },
        .lists = { { u"people"_s, { u"Ana"_s } } },
        .added = { { u"keywords"_s, { u"a"_s, u"b"_s } } },
        .removed = { { u"keywords"_s, { u"x"_s, u"y"_s } } },
        .paths = { u"A|b"_s },
        .givenUp = { { u"people"_s, { u"Eva"_s } } },
        .customs = { { u"Mood"_s, u"gay"_s } } };
}

// What of the edits one photo can have of its own.
Edits ownOf(const Edits& edits, const QString& name = u"lake.jpg"_s)
{
    const OwnEdits one{ edits.scalars, edits.added, edits.removed, edits.customs };
    return { .own = one.isEmpty() ? QHash<QUrl, OwnEdits>() : QHash<QUrl, OwnEdits>{ { photo(name), one } } };
}

}  // namespace

Q_DECLARE_METATYPE(EditPlan)
Q_DECLARE_METATYPE(Edits)

class tst_Edits : public QObject {
    Q_OBJECT

private slots:
    void counting_data();
    void counting();
    void plans_data();
    void plans();
    void afterASave_data();
    void afterASave();
    void folding_data();
    void folding();
    void overAPhoto();
    void merging();
    void mergingInto_data();
    void mergingInto();
    void ofOnePhoto_data();
    void ofOnePhoto();
    void newNames_data();
    void newNames();
};

void tst_Edits::counting_data()
{
    QTest::addColumn<Edits>("edits");
    QTest::addColumn<QStringList>("keys");
    QTest::addRow("none") << Edits{} << QStringList();
    QTest::addRow("photos alone are no edit") << Edits{ .subjects = { lake().url } } << QStringList();
    QTest::addRow("cleared fields are edits") << Edits{ .scalars = { { u"title"_s, {} } },
        .lists = { { u"people"_s, {} } } } << QStringList({ u"people"_s, u"title"_s });
    QTest::addRow("nothing added is no edit")
        << Edits{ .added = { { u"keywords"_s, {} }, { u"people"_s, { u"Ana"_s } } } } << QStringList{ u"people"_s };
    QTest::addRow("each language is a field") << Edits{ .scalars = { { u"title@de"_s, {} }, { u"title"_s, u"a"_s } } }
                                              << QStringList({ u"title"_s, u"title@de"_s });
    QTest::addRow("a path is an edit of the keywords")
        << Edits{ .paths = { u"A|b"_s } } << QStringList{ u"keywords"_s };
    QTest::addRow("keywords and their paths are one field")
        << Edits{ .added = { { u"keywords"_s, { u"b"_s } } }, .paths = { u"A|b"_s } } << QStringList{ u"keywords"_s };
    QTest::addRow("taken away and added is one field") << Edits{ .added = { { u"keywords"_s, { u"b"_s } } },
        .removed = { { u"keywords"_s, { u"a"_s } } } } << QStringList{ u"keywords"_s };
    QTest::addRow("nothing taken away is no edit") << Edits{ .removed = { { u"people"_s, {} } } } << QStringList();
    QTest::addRow("a field of some photos counts once") << Edits{ .removed = { { u"people"_s, { u"Ana"_s } } },
        .own = { { photo(u"a"_s),
                     { .scalars = { { u"title"_s, u"A"_s } }, .removed = { { u"people"_s, { u"B"_s } } } } },
            { photo(u"b"_s), { .scalars = { { u"title"_s, {} } }, .customs = { { u"title"_s, u"x"_s } } } } } }
                                                        << QStringList({ u"custom:title"_s, u"people"_s, u"title"_s });
    QTest::addRow("a custom field is not the field of its name") << Edits{ .scalars = { { u"title"_s, u"a"_s } },
        .customs = { { u"title"_s, u"b"_s } } } << QStringList({ u"custom:title"_s, u"title"_s });
}

void tst_Edits::counting()
{
    QFETCH(Edits, edits);
    QFETCH(QStringList, keys);
    QStringList found = edits.keys().values();
    found.sort();
    QCOMPARE(found, keys);
    QCOMPARE(edits.count(), int(keys.size()));
    QCOMPARE(edits.isEmpty(), keys.isEmpty());
    for (const QString& key : { u"title"_s, u"people"_s, u"keywords"_s, u"custom:title"_s })
        QCOMPARE(edits.edited(key), keys.contains(key));
}

void tst_Edits::plans_data()
{
    QTest::addColumn<Edits>("edits");
    QTest::addColumn<EditPlan>("plan");
    const QMap<QString, QString> title{ { u"title"_s, u"X"_s } };
    const QList<CustomValue> mood{ { u"Mood"_s, u"gay"_s } };
    QTest::addRow("one photo") << Edits{ .scalars = title, .lists = { { u"keywords"_s, {} } }, .customs = mood }
                               << EditPlan{ title, { { u"keywords"_s, {} } }, mood, Mode::replace };
    QTest::addRow("several photos") << Edits{
        .scalars = title, .added = { { u"keywords"_s, { u"a"_s } }, { u"people"_s, {} } }, .customs = mood
    } << EditPlan{ title, { { u"keywords"_s, { u"a"_s } } }, mood, Mode::append };
    QTest::addRow("taken away from several photos")
        << Edits{ .added = { { u"people"_s, { u"Ana"_s } } }, .removed = { { u"keywords"_s, { u"a"_s } } } }
        << EditPlan{ .lists = { { u"people"_s, { u"Ana"_s } } },
               .listMode = Mode::append,
               .removed = { { u"keywords"_s, { u"a"_s } } } };
    QTest::addRow("only taken away") << Edits{ .removed = { { u"keywords"_s, { u"a"_s } }, { u"people"_s, {} } } }
                                     << EditPlan{ .listMode = Mode::append,
                                            .removed = { { u"keywords"_s, { u"a"_s } } } };
    QTest::addRow("a path alone") << Edits{ .paths = { u"A|b"_s } } << EditPlan{ .paths = { u"A|b"_s } };
}

void tst_Edits::plans()
{
    QFETCH(Edits, edits);
    QFETCH(EditPlan, plan);
    QCOMPARE(edits.plan(), plan);
}

void tst_Edits::afterASave_data()
{
    QTest::addColumn<Edits>("now");
    QTest::addColumn<QStringList>("differing");
    QTest::addColumn<Edits>("rest");
    const Edits saved = sent();
    QTest::addRow("nothing typed since") << saved << QStringList() << Edits{};
    QTest::addRow("all read back differently")
        << saved << QStringList({ u"title"_s, u"title@de"_s, u"people"_s, u"keywords"_s, u"custom:Mood"_s }) << saved;
    QTest::addRow("one field read back differently")
        << saved << QStringList{ u"keywords"_s }
        << Edits{ .added = saved.added, .removed = saved.removed, .paths = saved.paths };
    QTest::addRow("a language read back differently")
        << saved << QStringList{ u"title@de"_s } << Edits{ .scalars = { { u"title@de"_s, {} } } };
    const Edits typed{ .scalars = { { u"title"_s, u"Y"_s }, { u"title@fr"_s, u"E"_s } },
        .lists = { { u"people"_s, { u"Ana"_s, u"Ben"_s } } },
        .added = { { u"keywords"_s, { u"b"_s, u"c"_s } } },
        .removed = { { u"keywords"_s, { u"y"_s, u"z"_s } } },
        .paths = { u"A|b"_s, u"A|c"_s },
        .customs = { { u"Mood"_s, u"sad"_s } } };
    Edits rest = typed;
    rest.added = { { u"keywords"_s, { u"c"_s } } };
    rest.removed = { { u"keywords"_s, { u"z"_s } } };
    rest.paths = { u"A|c"_s };
    QTest::addRow("typed since") << typed << QStringList() << rest;
}

void tst_Edits::afterASave()
{
    QFETCH(Edits, now);
    QFETCH(QStringList, differing);
    QFETCH(Edits, rest);
    QCOMPARE(now.minus(sent(), QSet<QString>(differing.cbegin(), differing.cend())), rest);
    // Of one photo's own edits the same becomes.
    const Edits lone = ownOf(now);
    QCOMPARE(lone.minus(ownOf(sent()), QSet<QString>(differing.cbegin(), differing.cend())), ownOf(rest));
    // Of another photo nothing was saved.
    QCOMPARE(lone.minus(ownOf(sent(), u"other"_s), {}), lone);
}

void tst_Edits::folding_data()
{
    QTest::addColumn<Edits>("edits");
    QTest::addColumn<Edits>("folded");
    QTest::addColumn<bool>("areDetailsKnown");
    QTest::addRow("items join the photo's own")
        << Edits{ .added = { { u"keywords"_s, { u"sky"_s, u"water"_s } }, { u"people"_s, { u"Ana"_s } } } }
        << Edits{ .lists = { { u"keywords"_s, { u"water"_s, u"blue"_s, u"sky"_s } }, { u"people"_s, { u"Ana"_s } } } }
        << true;
    QTest::addRow("items that it lost are gone, with their paths")
        << Edits{ .added = { { u"keywords"_s, { u"sky"_s } } },
               .removed = { { u"keywords"_s, { u"water"_s, u"fire"_s } } },
               .paths = { u"Sea|water"_s } }
        << Edits{ .lists = { { u"keywords"_s, { u"blue"_s, u"sky"_s } } } } << true;
    QTest::addRow("what it does not hold cannot be lost")
        << Edits{ .removed = { { u"keywords"_s, { u"fire"_s } }, { u"people"_s, { u"Ana"_s } } } } << Edits{} << true;
    QTest::addRow("a list that is replaced and gains")
        << Edits{ .lists = { { u"keywords"_s, { u"red"_s } } }, .added = { { u"keywords"_s, { u"sky"_s } } } }
        << Edits{ .lists = { { u"keywords"_s, { u"red"_s, u"sky"_s } } } } << true;
    QTest::addRow("its own among those of all") << Edits{ .scalars = { { u"event"_s, u"Race"_s } },
        .added = { { u"keywords"_s, { u"sky"_s } } },
        .own = { { lake().url,
                     { .scalars = { { u"title"_s, u"Pond"_s } },
                         .removed = { { u"keywords"_s, { u"blue"_s, u"sky"_s } } } } },
            { photo(u"other.jpg"_s), { .scalars = { { u"title"_s, u"Other"_s }, { u"place"_s, u"Bern"_s } } } } } }
                                                << Edits{ .scalars = { { u"event"_s, u"Race"_s },
                                                              { u"title"_s, u"Pond"_s } },
                                                       .lists = { { u"keywords"_s, { u"water"_s } } } }
                                                << true;
    QTest::addRow("what it holds is no edit") << Edits{ .scalars = { { u"title"_s, u"Lake"_s }, { u"place"_s, {} } },
        .added = { { u"keywords"_s, { u"blue"_s } } },
        .customs = { { u"Mood"_s, u"calm"_s }, { u"Hue"_s, {} } } }
                                              << Edits{} << true;
    QTest::addRow("cleared fields stay edits") << Edits{ .scalars = { { u"title"_s, {} } },
        .lists = { { u"keywords"_s, {} } },
        .customs = { { u"Mood"_s, {} } } }
                                               << Edits{ .scalars = { { u"title"_s, {} } },
                                                      .lists = { { u"keywords"_s, {} } },
                                                      .customs = { { u"Mood"_s, {} } } }
                                               << true;
    const Edits languages{ .scalars = { { u"title@de"_s, u"See"_s }, { u"title@fr"_s, {} }, { u"title@it"_s, {} } } };
    QTest::addRow("languages that it holds, and lacks, are no edits")
        << languages << Edits{ .scalars = { { u"title@fr"_s, {} } } } << true;
    QTest::addRow("languages of a photo that was not looked at stay edits") << languages << languages << false;
    const Edits paths{ .paths = { u"Nature|water"_s, u"Sea|water"_s } };
    QTest::addRow("of paths those that it lacks") << paths << Edits{ .paths = { u"Sea|water"_s } } << true;
    QTest::addRow("all paths, when that is not known") << paths << paths << false;
    QTest::addRow("a path brings its keyword along")
        << Edits{ .paths = { u"Sea|foam"_s } }
        << Edits{ .lists = { { u"keywords"_s, { u"water"_s, u"blue"_s, u"foam"_s } } }, .paths = { u"Sea|foam"_s } }
        << true;
    QTest::addRow("and goes with it") << Edits{ .lists = { { u"keywords"_s, { u"blue"_s } } },
        .paths = { u"Sea|water"_s } } << Edits{ .lists = { { u"keywords"_s, { u"blue"_s } } } }
                                      << true;
    // All homes are to hold what this one shows.
    const Edits chosen{ .lists = { { u"keywords"_s, { u"water"_s, u"blue"_s } } },
        .givenUp = { { u"keywords"_s, { u"red"_s } } } };
    QTest::addRow("a list that other homes do not hold stays an edit") << chosen << chosen << true;
}

void tst_Edits::folding()
{
    QFETCH(Edits, edits);
    QFETCH(Edits, folded);
    QFETCH(bool, areDetailsKnown);
    edits.subjects = { QUrl::fromLocalFile(u"/other.jpg"_s), lake().url };
    folded.subjects = { lake().url };
    const PhotoDetails details = lakeDetails();
    QCOMPARE(edits.foldedInto(lake(), areDetailsKnown ? &details : nullptr), folded);
}

void tst_Edits::overAPhoto()
{
    const Edits edits{ .scalars = { { u"title"_s, {} }, { u"place"_s, u"Bern"_s }, { u"title@fr"_s, {} } },
        .lists = { { u"people"_s, { u"Ana"_s } } },
        .added = { { u"keywords"_s, { u"sky"_s, u"blue"_s } } },
        .paths = { u"Nature|sky"_s },
        .customs = { { u"Hue"_s, u"red"_s }, { u"Mood"_s, u"gay"_s } } };
    const ExternalRefresh::Drafts seen = edits.onto(lake(), lakeDetails());
    QCOMPARE(seen.values,
        (QMap<QString, QString>{ { u"title"_s, {} }, { u"event"_s, u"Tour"_s }, { u"place"_s, u"Bern"_s },
            { u"title@de"_s, u"See"_s }, { u"title@fr"_s, {} } }));
    // A path alone leaves the list as it is.
    const Edits path{ .paths = { u"Nature|water"_s } };
    const Edits lost{ .removed = { { u"keywords"_s, { u"blue"_s } } },
        .own = { { lake().url,
            { .scalars = { { u"title"_s, u"Pond"_s } }, .added = { { u"keywords"_s, { u"sky"_s } } } } } } };
    QCOMPARE(lost.onto(lake()).values.value(u"title"_s), u"Pond"_s);
    QCOMPARE(lost.onto(lake()).lists.value(u"keywords"_s), QStringList({ u"water"_s, u"sky"_s }));
    QCOMPARE(path.onto(lake()), Edits().onto(lake()));
    QCOMPARE(seen.lists,
        (QMap<QString, QStringList>{
            { u"keywords"_s, { u"water"_s, u"blue"_s, u"sky"_s } }, { u"people"_s, { u"Ana"_s } } }));
    QCOMPARE(seen.customs, (QList<CustomValue>{ { u"Mood"_s, u"gay"_s }, { u"Hue"_s, u"red"_s } }));
}

void tst_Edits::merging()
{
    const Edits below{ .scalars = { { u"title"_s, u"X"_s }, { u"event"_s, u"E"_s } },
        .added = { { u"keywords"_s, { u"a"_s, u"b"_s } } },
        .customs = { { u"Mood"_s, u"gay"_s }, { u"Hue"_s, u"red"_s } },
        .subjects = { lake().url } };
    const Edits above{ .scalars = { { u"title"_s, u"Y"_s } },
        .lists = { { u"people"_s, { u"Ana"_s } } },
        .added = { { u"keywords"_s, { u"b"_s, u"c"_s } } },
        .customs = { { u"Mood"_s, u"sad"_s } } };
    QCOMPARE(below.merged(above),
        (Edits{ .scalars = { { u"title"_s, u"Y"_s }, { u"event"_s, u"E"_s } },
            .lists = { { u"people"_s, { u"Ana"_s } } },
            .added = { { u"keywords"_s, { u"a"_s, u"b"_s, u"c"_s } } },
            .customs = { { u"Mood"_s, u"sad"_s }, { u"Hue"_s, u"red"_s } },
            .subjects = { lake().url } }));
    // The list above decides which paths are left, and what is given up.
    const Edits chosen{
        .lists = { { u"keywords"_s, { u"a"_s } } }, .paths = { u"A|a"_s }, .givenUp = { { u"keywords"_s, { u"x"_s } } }
    };
    const Edits replaced{ .lists = { { u"keywords"_s, { u"b"_s } } }, .paths = { u"B|b"_s } };
    QCOMPARE(chosen.merged(replaced), replaced);
    QCOMPARE(replaced.merged(chosen), chosen);
    QCOMPARE(chosen.merged({ .paths = { u"C|a"_s } }).paths, QStringList({ u"A|a"_s, u"C|a"_s }));
}

void tst_Edits::mergingInto_data()
{
    QTest::addColumn<Edits>("below");
    QTest::addColumn<Edits>("above");
    QTest::addColumn<Edits>("merged");
    const auto ownTitles = [](const QString& a, const QString& b) {
        return QHash<QUrl, OwnEdits>{ { photo(u"a"_s), { .scalars = { { u"title"_s, a } } } },
            { photo(u"b"_s), { .scalars = { { u"title"_s, b } } } } };
    };
    QTest::addRow("a text of all goes before those of each")
        << Edits{ .own = ownTitles(u"A"_s, u"B"_s) } << Edits{ .scalars = { { u"title"_s, u"X"_s } } }
        << Edits{ .scalars = { { u"title"_s, u"X"_s } } };
    QTest::addRow("texts of each go before that of all")
        << Edits{ .scalars = { { u"title"_s, u"X"_s } } } << Edits{ .own = ownTitles(u"A"_s, u"B"_s) }
        << Edits{ .own = ownTitles(u"A"_s, u"B"_s) };
    QTest::addRow("the text of all stays where there is none of its own")
        << Edits{ .scalars = { { u"title"_s, u"X"_s } }, .customs = { { u"Hue"_s, u"red"_s } } }
        << Edits{ .own = { { photo(u"b"_s), { .scalars = { { u"title"_s, u"B"_s } } } } } }
        << Edits{ .customs = { { u"Hue"_s, u"red"_s } }, .own = ownTitles(u"X"_s, u"B"_s) };
    QTest::addRow("so do custom values")
        << Edits{ .customs = { { u"Hue"_s, u"red"_s } } }
        << Edits{ .own = { { photo(u"b"_s), { .customs = { { u"Hue"_s, u"blue"_s } } } } } }
        << Edits{ .own = { { photo(u"a"_s), { .customs = { { u"Hue"_s, u"red"_s } } } },
                      { photo(u"b"_s), { .customs = { { u"Hue"_s, u"blue"_s } } } } } };
    const QMap<QString, QStringList> k{ { u"keywords"_s, { u"k"_s } } };
    const QMap<QString, QStringList> kl{ { u"keywords"_s, { u"k"_s, u"l"_s } } };
    const QMap<QString, QStringList> l{ { u"keywords"_s, { u"l"_s } } };
    QTest::addRow("added later") << Edits{ .removed = kl } << Edits{ .added = k } << Edits{ .added = k, .removed = l };
    QTest::addRow("taken away later") << Edits{ .added = kl, .paths = { u"A|k"_s, u"A|l"_s } } << Edits{ .removed = k }
                                      << Edits{ .added = l, .removed = k, .paths = { u"A|l"_s } };
    QTest::addRow("a path that is gained later brings its keyword back")
        << Edits{ .removed = kl } << Edits{ .paths = { u"A|k"_s } } << Edits{ .removed = l, .paths = { u"A|k"_s } };
    QTest::addRow("added to all that each had lost, and the reverse")
        << Edits{ .own = { { photo(u"a"_s), { .removed = kl } }, { photo(u"b"_s), { .added = l } } } }
        << Edits{ .added = k, .removed = l } << Edits{ .added = k, .removed = l };
    QTest::addRow("a list that is replaced loses and gains itself")
        << Edits{ .lists = kl, .paths = { u"A|k"_s } }
        << Edits{ .added = { { u"keywords"_s, { u"m"_s } } }, .removed = k }
        << Edits{ .lists = { { u"keywords"_s, { u"l"_s, u"m"_s } } } };
    QTest::addRow("a list that replaces goes before items")
        << Edits{ .added = k, .removed = l, .own = { { photo(u"a"_s), { .added = l } } } } << Edits{ .lists = l }
        << Edits{ .lists = l };
}

void tst_Edits::mergingInto()
{
    QFETCH(Edits, below);
    QFETCH(Edits, above);
    QTEST(below.merged(above, { photo(u"a"_s), photo(u"b"_s) }), "merged");
}

void tst_Edits::ofOnePhoto_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Edits>("expected");
    const Edits all = differing();
    Edits mine{ .scalars = { { u"event"_s, u"Tour"_s }, { u"title"_s, u"A"_s } },
        .added = { { u"keywords"_s, { u"all"_s, u"kept"_s, u"mine"_s } } },
        .removed = { { u"keywords"_s, { u"old"_s, u"off"_s } } },
        .customs = { { u"Mood"_s, u"gay"_s }, { u"Hue"_s, u"red"_s } },
        .subjects = { photo(u"a"_s) } };
    QTest::addRow("with its own") << u"a"_s << mine;
    Edits common = all;
    common.own.clear();
    common.subjects = { photo(u"b"_s) };
    QTest::addRow("without") << u"b"_s << common;
}

void tst_Edits::ofOnePhoto()
{
    QFETCH(QString, name);
    QFETCH(Edits, expected);
    QCOMPARE(differing().of(photo(name)), expected);
    // Of no other photo anything is left.
    QCOMPARE(differing().onlyOf({ photo(name) }).of(photo(name)), expected);
    QCOMPARE(differing().onlyOf({ photo(name) }).own.contains(photo(u"a"_s)), name == u"a"_s);
}

void tst_Edits::newNames_data()
{
    QTest::addColumn<Names>("names");
    QTest::addColumn<QString>("subjects");
    QTest::addColumn<QString>("ofTitle");
    const QUrl a = photo(u"a"_s);
    const QUrl b = photo(u"b"_s);
    QTest::addRow("another") << Names{ { a, photo(u"c"_s) } } << u"/c /b"_s << u"/c"_s;
    QTest::addRow("that of one that is gone") << Names{ { a, b } } << u"/b"_s << u"/b"_s;
    QTest::addRow("over it") << Names{ { b, a } } << u"/a"_s << QString();
    QTest::addRow("swapped") << Names{ { a, b }, { b, a } } << u"/b /a"_s << u"/b"_s;
}

void tst_Edits::newNames()
{
    QFETCH(const Names, names);
    Edits edits = differing();
    edits.rename(names);
    QStringList subjects;
    for (const QUrl& subject : std::as_const(edits.subjects))
        subjects.append(subject.path());
    QTEST(subjects.join(u' '), "subjects");
    QTEST(edits.own.isEmpty() ? QString() : edits.own.constBegin().key().path(), "ofTitle");
}

QTEST_GUILESS_MAIN(tst_Edits)
#include "tst_Edits.moc"
