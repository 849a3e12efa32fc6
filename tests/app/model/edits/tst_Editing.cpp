// What is edited beside the values of the records: languages, keyword paths, and what other homes hold, with details
// that come late, change after a save, or never come.
#include "app/model/edits/Editing.h"
#include "app/model/selection/SelectedKeywords.h"

#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

QUrl photo(const QString& letter)
{
    return QUrl::fromLocalFile(u"/p/%1.jpg"_s.arg(letter));
}

// Three photos that are read, and details that come when the test says so.
struct Photos {
    Photos()
    {
        QList<ImageRecord> records;
        for (const QString& letter : { u"a"_s, u"b"_s, u"c"_s })
            records.append({ .url = photo(letter),
                .fileName = letter,
                .values = { { u"title"_s, u"T"_s }, { u"copyright"_s, u"X"_s } },
                .lists = { { u"keywords"_s, { u"Paris"_s, u"sky"_s } } } });
        list.open(OpenPhotos::of(records, RecordSortOrder::nameAsc, false));
    }
    void select(const QString& letters)
    {
        QSet<QUrl> urls;
        for (const QChar letter : letters)
            urls.insert(photo(letter));
        editing.select({ urls, photo(letters.first(1)), photo(letters.first(1)) });
    }
    void know(const QString& letter, PhotoDetails found)
    {
        found.url = photo(letter);
        known.insert(found.url, found);
        details.forget();
        editing.takeDetails();
    }
    void forget(const QString& letter)
    {
        known.remove(photo(letter));
        details.forget();
        editing.takeDetails();
    }
    QString text(const QString& key) const { return editing.draft().shown.values.value(key, u"none"_s); }
    // A save of all that is unsaved, which went well.
    void save()
    {
        editing.send();
        editing.takeSaved({}, {}, {});
    }

    Announcer announcer{ [](Change) {} };
    PhotoList list{ announcer, RecordSortOrder::nameAsc };
    QHash<QUrl, PhotoDetails> known;
    SelectedPhotos selected{ announcer, list };
    SelectedDetails details{ list, selected,
        { [this](const QUrl& url) {
             const auto found = known.constFind(url);
             return found == known.cend() ? nullptr : &*found;
         },
            [this] { return known.size(); }, [](const QUrl&) { return false; } } };
    LeftBehind left{ announcer, {}, std::chrono::milliseconds(0) };
    Editing editing{ announcer, list, selected, details, left };
};

const PhotoDetails german{ .texts = { { u"title@de"_s, u"See"_s }, { u"title@fr"_s, u"Lac"_s } },
    .paths = { u"Places|France|Paris"_s } };

}  // namespace

class tst_Editing : public QObject {
    Q_OBJECT

private slots:
    void lateDetails();
    void removedLanguages();
    void afterASave();
    void languagesOfSeveral();
    void languageOfAFieldThatIsNotShown();
    void leftBehind();
    void paths();
    void pathsOfSeveral();
    void useHome();
    void useHomeOfAList();
    void laidOverADraft();
    void laidOverABatch();
    void textsOfTheirOwn();
    void fewerPhotosOfTheirOwn();
    void keywordsOfMany_data();
    void keywordsOfMany();
};

void tst_Editing::lateDetails()
{
    Photos f;
    f.select(u"a"_s);
    QCOMPARE(f.editing.languages(u"title"_s), QStringList());
    f.editing.addLanguage(u"title"_s, u"DE"_s);
    f.editing.addLanguage(u"title"_s, u"x-default"_s);
    f.editing.addLanguage(u"headline"_s, u"de"_s);
    QCOMPARE(f.editing.languages(u"title"_s), QStringList{ u"de"_s });
    QCOMPARE(f.editing.unsavedCount(), 0);
    f.editing.setSingle(u"title@de"_s, u"Teich"_s);
    f.know(u"a"_s, german);
    // What was typed stays; what was not is seen.
    QCOMPARE(f.text(u"title@de"_s), u"Teich"_s);
    QCOMPARE(f.text(u"title@fr"_s), u"Lac"_s);
    QCOMPARE(f.editing.editedSingle(), QSet<QString>{ u"title@de"_s });
    QCOMPARE(f.editing.languages(u"title"_s), QStringList({ u"de"_s, u"fr"_s }));
    f.editing.setSingle(u"title@fr"_s, u"Lac"_s);
    QCOMPARE(f.editing.unsavedCount(), 1);
    f.editing.setSingle(u"title@de"_s, u"See"_s);
    QCOMPARE(f.editing.unsavedCount(), 1);
    QCOMPARE(f.editing.visibleFieldIDs(FieldSection::common).size(), 6);
}

void tst_Editing::removedLanguages()
{
    Photos f;
    f.know(u"a"_s, german);
    f.select(u"a"_s);
    f.editing.removeLanguage(u"title"_s, u"de"_s);
    QCOMPARE(f.editing.languages(u"title"_s), QStringList{ u"fr"_s });
    QCOMPARE(f.editing.unsaved().scalars, (QMap<QString, QString>{ { u"title@de"_s, {} } }));
    f.forget(u"a"_s);
    f.editing.rebase();
    QCOMPARE(f.editing.unsavedCount(), 1);
    f.editing.addLanguage(u"title"_s, u"de"_s);
    QCOMPARE(f.editing.unsavedCount(), 0);
    QCOMPARE(f.text(u"title@de"_s), u"See"_s);
    // One that was only added goes at once, with what was typed in it; a row that was cleared stays.
    f.editing.addLanguage(u"title"_s, u"it"_s);
    f.editing.setSingle(u"title@it"_s, u"Lago"_s);
    f.editing.removeLanguage(u"title"_s, u"it"_s);
    QCOMPARE(f.editing.unsavedCount(), 0);
    QCOMPARE(f.text(u"title@it"_s), u"none"_s);
    f.editing.setSingle(u"title@de"_s, {});
    QCOMPARE(f.editing.languages(u"title"_s), QStringList({ u"de"_s, u"fr"_s }));
}

void tst_Editing::afterASave()
{
    Photos f;
    f.know(u"a"_s, german);
    f.select(u"a"_s);
    f.editing.setSingle(u"title@de"_s, u"Teich"_s);
    f.editing.removeLanguage(u"title"_s, u"fr"_s);
    f.editing.addSingleListItem(u"keywords"_s, u"Air > sky"_s);
    f.save();
    // Before anybody looked at the photo again, with what was known and without.
    for (const bool isKnown : { true, false }) {
        if (!isKnown)
            f.forget(u"a"_s);
        QCOMPARE(f.editing.unsavedCount(), 0);
        QCOMPARE(f.text(u"title@de"_s), u"Teich"_s);
        QCOMPARE(f.text(u"title@fr"_s), u"none"_s);
        QCOMPARE(f.editing.languages(u"title"_s), QStringList{ u"de"_s });
        QCOMPARE(f.editing.pathsOf(u"sky"_s), QStringList{ u"Air|sky"_s });
    }
    // Undone, the photo is what it was.
    f.editing.rebase();
    f.know(u"a"_s, german);
    QCOMPARE(f.text(u"title@de"_s), u"See"_s);
    QCOMPARE(f.editing.languages(u"title"_s), QStringList({ u"de"_s, u"fr"_s }));
    QCOMPARE(f.editing.pathsOf(u"sky"_s), QStringList());
    // What the file holds otherwise stays an edit.
    f.editing.removeLanguage(u"title"_s, u"de"_s);
    f.editing.send();
    f.editing.takeSaved(f.editing.unsaved(), {}, { u"title@de"_s });
    QCOMPARE(f.editing.unsaved().scalars, (QMap<QString, QString>{ { u"title@de"_s, {} } }));
}

void tst_Editing::languagesOfSeveral()
{
    Photos f;
    f.know(u"a"_s, german);
    f.select(u"ab"_s);
    QCOMPARE(f.editing.languages(u"title"_s), QStringList({ u"de"_s, u"fr"_s }));
    QCOMPARE(f.details.sharedValue(u"title@de"_s), std::nullopt);
    f.know(u"b"_s, { .texts = { { u"title@de"_s, u"See"_s } } });
    QCOMPARE(f.details.sharedValue(u"title@de"_s), u"See"_s);
    QCOMPARE(f.details.sharedValue(u"title@fr"_s), std::nullopt);
    QCOMPARE(f.details.sharedValue(u"title@it"_s), QString());
    QCOMPARE(f.details.sharedValue(u"title"_s), u"T"_s);
    f.editing.setBatch(u"title@de"_s, u"See"_s);
    f.editing.setBatch(u"title@fr"_s, {});
    QCOMPARE(f.editing.unsavedCount(), 0);
    f.editing.toggleBatchInclude(u"title@de"_s);
    QCOMPARE(f.editing.unsaved().scalars, (QMap<QString, QString>{ { u"title@de"_s, u"See"_s } }));
    f.editing.removeLanguage(u"title"_s, u"fr"_s);
    f.editing.addLanguage(u"title"_s, u"it"_s);
    QCOMPARE(f.editing.languages(u"title"_s), QStringList({ u"de"_s, u"it"_s }));
    QCOMPARE(f.editing.unsavedCount(), 2);
    f.editing.addLanguage(u"title"_s, u"fr"_s);
    f.editing.removeLanguage(u"title"_s, u"it"_s);
    QCOMPARE(f.editing.languages(u"title"_s), QStringList({ u"de"_s, u"fr"_s }));
    QCOMPARE(f.editing.batchInclude(), QSet<QString>{ u"title@de"_s });
    // One photo is left, which holds just that.
    f.editing.follow({ { photo(u"a"_s) }, photo(u"a"_s), photo(u"a"_s) });
    QCOMPARE(f.editing.unsavedCount(), 0);
}

void tst_Editing::languageOfAFieldThatIsNotShown()
{
    Photos f;
    for (const QString& letters : { u"a"_s, u"ab"_s }) {
        f.forget(u"a"_s);
        f.select(letters);
        f.editing.addKnownField(u"event"_s);
        QVERIFY(f.editing.isRemovableAddedField(u"event"_s));
        f.editing.addLanguage(u"event"_s, u"it"_s);
        letters.size() > 1 ? f.editing.setBatch(u"event@it"_s, u"Festa"_s)
                           : f.editing.setSingle(u"event@it"_s, u"Festa"_s);
        f.editing.removeAddedField(u"event"_s);
        QCOMPARE(f.editing.unsavedCount(), 0);
        QVERIFY(!f.editing.visibleFieldIDs(FieldSection::additional).contains(u"event"_s));
        f.know(u"a"_s, { .texts = { { u"event@de"_s, u"Fest"_s } } });
        QVERIFY(f.editing.visibleFieldIDs(FieldSection::additional).contains(u"event"_s));
        f.editing.addKnownField(u"event"_s);
        QVERIFY(!f.editing.isRemovableAddedField(u"event"_s));
    }
}

void tst_Editing::leftBehind()
{
    Photos f;
    f.know(u"a"_s, german);
    f.select(u"a"_s);
    f.editing.removeLanguage(u"title"_s, u"de"_s);
    f.editing.setSingle(u"event@it"_s, u"Festa"_s);
    f.editing.addSingleListItem(u"keywords"_s, u"Air|sky"_s);
    f.editing.useHome(u"copyright"_s, { .values = { u"X"_s } });
    const Edits before = f.editing.unsaved();
    QCOMPARE(before.count(), 4);
    f.editing.leave();
    f.select(u"b"_s);
    f.forget(u"a"_s);
    const LeftEdits left = f.left.kept().constFirst();
    f.editing.bringBack(left);
    QCOMPARE(f.editing.unsaved(), before);
    QCOMPARE(f.editing.languages(u"title"_s), QStringList());
    QVERIFY(f.editing.visibleFieldIDs(FieldSection::additional).contains(u"event"_s));
    f.know(u"a"_s, german);
    QCOMPARE(f.editing.languages(u"title"_s), QStringList{ u"fr"_s });
}

void tst_Editing::paths()
{
    Photos f;
    f.know(u"a"_s, german);
    f.select(u"a"_s);
    f.editing.addSingleListItem(u"people"_s, u"Places|Ana"_s);
    f.editing.addSingleListItem(u"keywords"_s, u"Places|France|Paris"_s);
    QCOMPARE(f.editing.editedSingle(), QSet<QString>{ u"people"_s });
    QCOMPARE(f.editing.draft().shown.lists.value(u"people"_s), QStringList{ u"Places|Ana"_s });
    f.editing.addSingleListItem(u"keywords"_s, u"Places > Italy > Roma"_s);
    f.editing.addSingleListItem(u"keywords"_s, u"Cities|Paris"_s);
    QCOMPARE(f.editing.draft().shown.lists.value(u"keywords"_s), QStringList({ u"Paris"_s, u"sky"_s, u"Roma"_s }));
    QCOMPARE(f.editing.pathsOf(u"Paris"_s), QStringList({ u"Places|France|Paris"_s, u"Cities|Paris"_s }));
    QCOMPARE(f.editing.unsaved().paths, QStringList({ u"Places|Italy|Roma"_s, u"Cities|Paris"_s }));
    f.editing.removeSingleListItem(u"keywords"_s, u"Paris"_s);
    QCOMPARE(f.editing.pathsOf(u"Paris"_s), QStringList());
    QCOMPARE(f.editing.unsaved().paths, QStringList{ u"Places|Italy|Roma"_s });
    f.editing.removeSingleListItem(u"keywords"_s, u"Roma"_s);
    QCOMPARE(f.editing.unsaved().paths, QStringList());
    f.select(u"c"_s);
    f.editing.addSingleListItem(u"keywords"_s, u"Air|sky"_s);
    QCOMPARE(f.editing.unsaved().lists, (QMap<QString, QStringList>()));
    QCOMPARE(f.editing.unsavedCount(), 1);
}

void tst_Editing::pathsOfSeveral()
{
    Photos f;
    f.know(u"a"_s, german);
    f.select(u"ab"_s);
    f.editing.addBatchListItem(u"keywords"_s, u"Cities > Paris"_s);
    f.editing.addBatchListItem(u"keywords"_s, u"Air|wind"_s);
    QCOMPARE(f.editing.unsaved().added.value(u"keywords"_s), QStringList({ u"Paris"_s, u"wind"_s }));
    QCOMPARE(f.editing.pathsOf(u"Paris"_s), QStringList({ u"Places|France|Paris"_s, u"Cities|Paris"_s }));
    QCOMPARE(f.editing.unsavedCount(), 1);
    f.editing.removeBatchListItem(u"keywords"_s, u"Paris"_s);
    QCOMPARE(f.editing.unsaved().paths, QStringList{ u"Air|wind"_s });
    f.editing.clearBatchList(u"keywords"_s);
    QCOMPARE(f.editing.unsavedCount(), 0);
}

void tst_Editing::useHome()
{
    const FieldHome shown{ .tag = u"XMP-dc:Rights"_s, .values = { u"X"_s }, .isShown = true };
    const FieldHome other{ .tag = u"EXIF:Copyright"_s, .values = { u"Y"_s } };
    Photos f;
    f.know(u"a"_s, { .disagreements = { { u"copyright"_s, { shown, other } } } });
    f.select(u"a"_s);
    QCOMPARE(f.details.disagreeing(), 1);
    QCOMPARE(f.editing.differingHomes(u"copyright"_s), (QList<FieldHome>{ shown, other }));
    for (const FieldHome& home : { other, shown }) {
        f.editing.useHome(u"copyright"_s, home);
        QCOMPARE(f.text(u"copyright"_s), home.values.constFirst());
        QCOMPARE(
            f.editing.unsaved().plan().scalars, (QMap<QString, QString>{ { u"copyright"_s, f.text(u"copyright"_s) } }));
        QCOMPARE(f.editing.differingHomes(u"copyright"_s), QList<FieldHome>());
    }
    f.editing.rebase();
    QCOMPARE(f.editing.unsavedCount(), 1);
    f.save();
    QCOMPARE(f.editing.unsavedCount(), 0);
    QCOMPARE(f.editing.differingHomes(u"copyright"_s), QList<FieldHome>());
    f.select(u"ab"_s);
    QCOMPARE(f.editing.differingHomes(u"copyright"_s), QList<FieldHome>());
}

void tst_Editing::useHomeOfAList()
{
    const FieldHome iptc{ .tag = u"IPTC:Keywords"_s, .values = { u"Paris"_s, u"sky"_s }, .isShown = true };
    const FieldHome xmp{ .tag = u"XMP-dc:Subject"_s, .values = { u"sky"_s, u"1.10"_s } };
    Photos f;
    f.know(u"a"_s, { .disagreements = { { u"keywords"_s, { iptc, xmp } } } });
    f.select(u"a"_s);
    f.editing.addSingleListItem(u"keywords"_s, u"Air|Paris"_s);
    f.editing.useHome(u"keywords"_s, xmp);
    QCOMPARE(f.editing.draft().shown.lists.value(u"keywords"_s), QStringList({ u"sky"_s, u"1.1"_s }));
    QCOMPARE(f.editing.unsaved().givenUp.value(u"keywords"_s), QStringList{ u"Paris"_s });
    QCOMPARE(f.editing.unsaved().paths, QStringList());
    f.editing.useHome(u"keywords"_s, iptc);
    QCOMPARE(f.editing.unsaved().givenUp.value(u"keywords"_s), QStringList{ u"1.1"_s });
    QCOMPARE(f.editing.unsavedCount(), 1);
    f.save();
    QVERIFY(f.editing.unsaved().isEmpty() && f.editing.unsaved().givenUp.isEmpty());
}

// What was confirmed, typed or given up before stays: nothing but what is laid changes.
void tst_Editing::laidOverADraft()
{
    Photos f;
    f.know(u"a"_s,
        { .paths = { u"Places|France|Paris"_s },
            .disagreements = { { u"title"_s, { { .values = { u"T"_s }, .isShown = true }, { .values = { u"U"_s } } } },
                { u"keywords"_s,
                    { { .values = { u"Paris"_s, u"sky"_s }, .isShown = true }, { .values = { u"old"_s } } } } } });
    f.select(u"a"_s);
    f.editing.useHome(u"title"_s, { .values = { u"T"_s }, .isShown = true });
    f.editing.useHome(u"keywords"_s, { .values = { u"Paris"_s, u"sky"_s }, .isShown = true });
    f.editing.addSingleListItem(u"keywords"_s, u"typed"_s);
    Edits laid{ .scalars = { { u"copyright"_s, u"X"_s }, { u"event"_s, u"Regatta"_s }, { u"title@de"_s, u"See"_s } },
        .added = { { u"keywords"_s, { u"sky"_s, u"crew"_s } } },
        .paths = { u"Places|France|Paris"_s, u"Sport|crew"_s } };
    laid.own[photo(u"a"_s)].scalars.insert(u"creator"_s, u"Ana"_s);
    laid.own[photo(u"b"_s)].scalars.insert(u"creator"_s, u"Eva"_s);
    f.editing.lay(laid);
    const QMap<QString, QString> texts{ { u"creator"_s, u"Ana"_s }, { u"event"_s, u"Regatta"_s },
        { u"title"_s, u"T"_s }, { u"title@de"_s, u"See"_s } };
    QCOMPARE(f.editing.unsaved().scalars, texts);
    QCOMPARE(
        f.editing.unsaved().lists.value(u"keywords"_s), QStringList({ u"Paris"_s, u"sky"_s, u"typed"_s, u"crew"_s }));
    QCOMPARE(f.editing.unsaved().givenUp.value(u"keywords"_s), QStringList{ u"old"_s });
    QCOMPARE(f.editing.unsaved().paths, QStringList{ u"Sport|crew"_s });
    QVERIFY(f.editing.unsaved().own.isEmpty());
    QVERIFY(f.editing.visibleFieldIDs(FieldSection::common).contains(u"event"_s)
        || f.editing.sessionAddedKnownIDs().contains(u"event"_s));
    f.editing.lay({ .removed = { { u"keywords"_s, { u"crew"_s, u"never"_s } } } });
    QVERIFY(f.editing.unsaved().paths.isEmpty());
    QCOMPARE(f.editing.unsaved().lists.value(u"keywords"_s), QStringList({ u"Paris"_s, u"sky"_s, u"typed"_s }));
    // A photo that holds all of it has no edit.
    f.select(u"b"_s);
    f.editing.lay({ .scalars = { { u"title"_s, u"T"_s } }, .added = { { u"keywords"_s, { u"sky"_s } } } });
    QCOMPARE(f.editing.unsavedCount(), 0);
    // Whether it holds this text nobody knows yet.
    f.editing.lay({ .scalars = { { u"title@de"_s, {} } } });
    QCOMPARE(f.editing.unsavedCount(), 1);
}

void tst_Editing::laidOverABatch()
{
    Photos f;
    f.select(u"abc"_s);
    f.editing.setBatch(u"title"_s, u"Typed"_s);
    f.editing.setCustom(u"Mood"_s, u"calm"_s);
    f.editing.addBatchListItem(u"keywords"_s, u"mine"_s);
    // Where a text is laid for some, the others keep what was typed for all; a whole list is what each gains and loses.
    Edits laid{ .lists = { { u"keywords"_s, { u"sky"_s, u"new"_s } } } };
    laid.own[photo(u"a"_s)] = { .scalars = { { u"title"_s, u"A"_s } }, .customs = { { u"Mood"_s, u"wild"_s } } };
    laid.own[photo(u"z"_s)].scalars.insert(u"title"_s, u"of no selected photo"_s);
    f.editing.lay(laid);
    const Edits now = f.editing.unsaved();
    QVERIFY(now.lists.isEmpty() && now.scalars.isEmpty() && now.customs.isEmpty());
    QCOMPARE(now.own.size(), 3);
    QCOMPARE(now.of(photo(u"a"_s)).scalars.value(u"title"_s), u"A"_s);
    QCOMPARE(now.of(photo(u"b"_s)).scalars.value(u"title"_s), u"Typed"_s);
    QCOMPARE(now.of(photo(u"c"_s)).customs, (QList<CustomValue>{ { u"Mood"_s, u"calm"_s } }));
    QCOMPARE(now.added.value(u"keywords"_s), QStringList({ u"mine"_s, u"sky"_s, u"new"_s }));
    QCOMPARE(now.of(photo(u"c"_s)).removed.value(u"keywords"_s), QStringList{ u"Paris"_s });
    QCOMPARE(f.editing.unsavedCount(), 3);
    // The same for all of them is one text, seen in its field.
    Edits same;
    for (const QString& letter : { u"a"_s, u"b"_s, u"c"_s })
        same.own[photo(letter)].scalars.insert(u"title"_s, u"Same"_s);
    f.editing.lay(same);
    QCOMPARE(f.editing.batchValues().value(u"title"_s), u"Same"_s);
    QVERIFY(!f.editing.batchOwn().contains(u"title"_s));
    f.editing.lay({ .scalars = { { u"event"_s, u"Regatta"_s } } });
    QVERIFY(f.editing.sessionAddedKnownIDs().contains(u"event"_s));
}

void tst_Editing::textsOfTheirOwn()
{
    Photos f;
    f.select(u"abc"_s);
    Edits laid;
    laid.own[photo(u"a"_s)] = { .scalars = { { u"title"_s, u"A"_s }, { u"title@de"_s, u"Ah"_s } },
        .added = { { u"keywords"_s, { u"x"_s } } } };
    laid.own[photo(u"b"_s)] = { .scalars = { { u"title"_s, u"B"_s } }, .removed = { { u"keywords"_s, { u"sky"_s } } } };
    f.editing.lay(laid);
    // A field counts once, however many texts it has.
    QCOMPARE(f.editing.unsavedCount(), 3);
    QCOMPARE(f.editing.batchInclude(), QSet<QString>({ u"title"_s, u"title@de"_s }));
    QCOMPARE(f.editing.batchOwn().value(u"title"_s), (OwnSummary{ .photos = 2, .texts = 2 }));
    QCOMPARE(f.editing.batchOwn().value(u"keywords"_s), OwnSummary{ .photos = 2 });
    QCOMPARE(f.editing.languages(u"title"_s), QStringList{ u"de"_s });
    QVERIFY(!f.editing.isFieldEmpty(u"title"_s));
    // Typed over; emptied again, they come back.
    f.editing.setBatch(u"title"_s, u"C"_s);
    QCOMPARE(f.editing.unsaved().of(photo(u"a"_s)).scalars.value(u"title"_s), u"C"_s);
    f.editing.setBatch(u"title"_s, {});
    QCOMPARE(f.editing.batchOwn().value(u"title"_s).texts, 2);
    f.editing.toggleBatchInclude(u"title"_s);
    QVERIFY(!f.editing.batchInclude().contains(u"title"_s));
    f.editing.toggleBatchInclude(u"title"_s);
    QCOMPARE(f.editing.unsaved().own, laid.own);
    // Of a field that was only to be taken away, and is again what it was.
    f.editing.clearBatchList(u"keywords"_s);
    f.editing.takeBatchItemAway(u"keywords"_s, u"sky"_s);
    QCOMPARE(f.editing.unsavedCount(), 3);
    f.editing.keepBatchItem(u"keywords"_s, u"sky"_s);
    QCOMPARE(f.editing.unsavedCount(), 2);
}

// What becomes of them when only some of the photos are left to be edited.
void tst_Editing::fewerPhotosOfTheirOwn()
{
    Photos f;
    f.select(u"abc"_s);
    Edits laid;
    for (const QString& letter : { u"a"_s, u"b"_s, u"c"_s })
        laid.own[photo(letter)].scalars.insert(u"title"_s, letter.toUpper());
    f.editing.lay(laid);
    // One disappears: its text is left behind with it.
    f.editing.leave({ photo(u"a"_s) });
    QCOMPARE(f.left.kept().constFirst().edits.scalars, (QMap<QString, QString>{ { u"title"_s, u"A"_s } }));
    QVERIFY(f.left.kept().constFirst().edits.own.isEmpty());
    f.editing.follow({ { photo(u"b"_s), photo(u"c"_s) }, photo(u"b"_s), photo(u"b"_s) });
    QCOMPARE(f.editing.unsaved().own.size(), 2);
    // Of two that were saved one failed: its text alone is an edit of that photo.
    f.editing.send();
    f.editing.takeSaved(f.editing.unsaved().onlyOf({ photo(u"c"_s) }), { photo(u"c"_s) }, {});
    QCOMPARE(f.selected.selection().photos, QSet<QUrl>{ photo(u"c"_s) });
    QCOMPARE(f.editing.unsaved().scalars, (QMap<QString, QString>{ { u"title"_s, u"C"_s } }));
    QVERIFY(f.editing.unsaved().own.isEmpty());
    // Left behind whole, and brought back over what was typed since.
    f.select(u"abc"_s);
    f.editing.lay(laid);
    f.editing.leave();
    const LeftEdits left = f.left.kept().constFirst();
    f.select(u"abc"_s);
    f.editing.bringBack(left);
    QCOMPARE(f.editing.unsaved().own, laid.own);
    // Those that a save gives back lie under what was typed meanwhile.
    f.editing.send();
    f.editing.setBatch(u"title"_s, u"Z"_s);
    f.editing.takeSaved(f.editing.unsaved(), { photo(u"a"_s), photo(u"b"_s), photo(u"c"_s) }, {});
    QCOMPARE(f.editing.unsaved().scalars.value(u"title"_s), u"Z"_s);
}

void tst_Editing::keywordsOfMany_data()
{
    QTest::addColumn<int>("photos");
    QTest::newRow("few, counted at once") << 12;
    QTest::newRow("many, counted in the background") << 1200;
}

void tst_Editing::keywordsOfMany()
{
    QFETCH(int, photos);
    int announced = 0;
    Announcer announcer([&announced](Change change) { announced += change == Change::selectedKeywords ? 1 : 0; });
    PhotoList list(announcer, RecordSortOrder::nameAsc);
    SelectedPhotos selected(announcer, list);
    SelectedKeywords keywords(announcer, list, selected);
    QList<ImageRecord> records;
    QSet<QUrl> urls;
    for (int i = 0; i < photos; ++i) {
        const QUrl url = photo(QString::number(i));
        urls.insert(url);
        records.append({ .url = url, .fileName = url.fileName() });
        records.last().isUnread = i % 4 == 0;
        if (i % 4 != 0)
            records.last().lists.insert(u"keywords"_s,
                i % 4 == 1 ? QStringList{ u"b"_s, u"all"_s, u"B"_s } : QStringList{ u"all"_s, u"all"_s, u"a"_s });
    }
    list.open(OpenPhotos::of(records, RecordSortOrder::nameAsc, false));
    selected.set({ urls, records.constFirst().url, records.constFirst().url });
    keywords.update();
    const int quarter = photos / 4;
    const QList<KeywordCount> wanted{ { u"all"_s, 3 * quarter }, { u"a"_s, 2 * quarter }, { u"B"_s, quarter },
        { u"b"_s, quarter } };
    QTRY_COMPARE(keywords.list(), wanted);
    QCOMPARE(keywords.photos(), 3 * quarter);
    QCOMPARE(announced, 1);
    // The others are read in slices; nothing is counted twice where nothing changed.
    keywords.update();
    QList<ImageRecord> read;
    for (const ImageRecord& record : std::as_const(records))
        if (record.isUnread)
            read.append({ .url = record.url, .fileName = record.fileName, .lists = { { u"keywords"_s, { u"b"_s } } } });
    list.fill(read.mid(0, quarter / 2));
    keywords.update();
    list.fill(read.mid(quarter / 2));
    keywords.update();
    QTRY_COMPARE(keywords.list().value(1), (KeywordCount{ u"a"_s, 2 * quarter }));
    QTRY_COMPARE(keywords.photos(), photos);
    QCOMPARE(keywords.list().constFirst(), (KeywordCount{ u"all"_s, 3 * quarter }));
    QVERIFY(keywords.list().contains(KeywordCount{ u"b"_s, 2 * quarter }));
    // Of another selection nothing old is told, however late it is counted.
    keywords.update();
    selected.set(Selection::of(records.constFirst().url));
    keywords.update();
    QVERIFY(keywords.list().isEmpty());
    QTest::qWait(50);
    QVERIFY(keywords.list().isEmpty());
}

QTEST_GUILESS_MAIN(tst_Editing)
#include "tst_Editing.moc"
