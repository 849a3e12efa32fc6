// What is edited beside the values of the records: languages, keyword paths, and what other homes hold, with details
// that come late, change after a save, or never come.
#include "app/model/edits/Editing.h"

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
    SelectedDetails details{ list, selected, [this](const QUrl& url) {
                                const auto found = known.constFind(url);
                                return found == known.cend() ? nullptr : &*found;
                            } };
    LeftBehind left{ announcer, {}, std::chrono::milliseconds(0) };
    Editing editing{ announcer, list, selected, details, left };
};

const PhotoDetails german{ .languages = { { u"title@de"_s, u"See"_s }, { u"title@fr"_s, u"Lac"_s } },
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
    f.know(u"b"_s, { .languages = { { u"title@de"_s, u"See"_s } } });
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
        f.know(u"a"_s, { .languages = { { u"event@de"_s, u"Fest"_s } } });
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

QTEST_GUILESS_MAIN(tst_Editing)
#include "tst_Editing.moc"
