// Drafts of one photo and edits of several: what is shown, what counts as unsaved.
#include "core/tool/TemporaryConfig.h"
#include "tests/app/model/ModelFixture.h"

#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

QByteArray tagged(const QStringList& arguments)
{
    const PhotoFolder folder;
    const QString path = folder.add(u"x.jpg"_s).toLocalFile();
    exiftool(QStringList{ u"-overwrite_original"_s } + arguments + QStringList{ path });
    return readFile(path);
}

QList<QByteArray> tagged()
{
    const QStringList shared{ u"-XMP-dc:Creator=Ana"_s, u"-XMP-photoshop:City=Bern"_s, u"-XMP-dc:Subject=sea"_s,
        u"-XMP-dc:Subject=sky"_s };
    return { tagged(
                 shared + QStringList{ u"-XMP-dc:Title=A"_s, u"-XMP-iptcExt:PersonInImage=Eva"_s, u"-XMP:Rating=4"_s }),
        tagged(shared + QStringList{ u"-XMP-dc:Title=B"_s, u"-XMP-dc:Subject=Sea"_s }),
        tagged({ u"-XMP-dc:Subject=sky"_s }) };
}

// Three photos: "a" and "b" share creator and place, "c" holds neither; "a" alone has custom fields and people.
struct ThreePhotos : ModelFixture {
    ThreePhotos()
    {
        static const QList<QByteArray> photos = tagged();
        for (int i = 0; i < 3; ++i)
            folder.add(QChar(u'a' + i) + u".jpg"_s, photos.at(i));
    }
    // Opens and selects these photos, the first one first.
    bool select(const QString& letters)
    {
        const bool isRead = open();
        ModelFixture::select(letters);
        return isRead;
    }
};

}  // namespace

class tst_AppModelEditing : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void singleEdits();
    void listItems();
    void customFields();
    void refusedCustomNames_data();
    void refusedCustomNames();
    void customNameInAnotherCase();
    void photoThatHoldsRefusedNames();
    void visibleAndAddableFields();
    void addedFieldsAreRemovable();
    void sharedValues();
    void batchEdits();
    void batchCustomFields();
    void location_data();
    void location();
    void keywordCompletions();
    void stars();
    void sameAsBefore();
};

void tst_AppModelEditing::singleEdits()
{
    ThreePhotos f;
    QVERIFY(f.select(u"a"_s));
    QCOMPARE(f->unsavedCount(), 0);
    const Announcements announced(*f.model);
    f->setSingle(u"title"_s, u"A"_s);
    f->setSingle(u"headline"_s, {});
    QCOMPARE(announced.counts(), (QMap<QString, int>()));
    f->setSingle(u"title"_s, u"AB"_s);
    QCOMPARE(announced.counts(), (QMap<QString, int>{ { u"editsChanged"_s, 1 }, { u"unsavedCountChanged"_s, 1 } }));
    // Typed back: still an edit, so that it is written again.
    f->setSingle(u"title"_s, u"A"_s);
    QCOMPARE(f->unsavedCount(), 1);
    f->setCustom(u"title"_s, u"own"_s);
    QCOMPARE(f->editedSingle(), (QSet<QString>{ u"title"_s, u"custom:title"_s }));
    f.click(u"b.jpg"_s);
    f->discardSaveDialog();
    QCOMPARE(f->unsavedCount(), 0);
    QCOMPARE(f->draftValues().value(u"title"_s), u"B"_s);
}

void tst_AppModelEditing::listItems()
{
    ThreePhotos f;
    QVERIFY(f.select(u"a"_s));
    f->addSingleListItem(u"keywords"_s, u"sky"_s);
    f->removeSingleListItem(u"keywords"_s, u"Sky"_s);
    QCOMPARE(f->unsavedCount(), 0);
    f->addSingleListItem(u"keywords"_s, u"Sky"_s);
    f->removeSingleListItem(u"keywords"_s, u"sea"_s);
    QCOMPARE(f->draftLists().value(u"keywords"_s), QStringList({ u"sky"_s, u"Sky"_s }));
    QCOMPARE(f->editedSingle(), QSet<QString>{ u"keywords"_s });
}

void tst_AppModelEditing::customFields()
{
    ThreePhotos f;
    QVERIFY(f.select(u"a"_s));
    f->setAddOpen(true);
    f->addCustomField(u"2024!"_s, u"x"_s);
    QVERIFY(f->addOpen());
    QCOMPARE(f->unsavedCount(), 0);
    f->addCustomField(u"Project code"_s, u"x"_s);
    QVERIFY(!f->addOpen());
    f->addCustomField(u"Mood"_s, u"calm"_s);
    f->setCustom(u"Projectcode"_s, u"y"_s);
    QCOMPARE(f->visibleCustomFields(), (QList<CustomValue>{ { u"Projectcode"_s, u"y"_s }, { u"Mood"_s, u"calm"_s } }));
    QCOMPARE(f->editedSingle(), (QSet<QString>{ u"custom:Projectcode"_s, u"custom:Mood"_s }));
}

void tst_AppModelEditing::refusedCustomNames_data()
{
    QTest::addColumn<QString>("photos");
    QTest::addColumn<QString>("name");
    for (const QString& photos : { u"a"_s, u"ab"_s })
        for (const QString& name : { u"All"_s, u"Error"_s, u"XMP"_s, u"City"_s, u"rating"_s })
            QTest::addRow("%s, of %s", qPrintable(name), qPrintable(photos)) << photos << name;
}

void tst_AppModelEditing::refusedCustomNames()
{
    QFETCH(QString, photos);
    QFETCH(QString, name);
    ThreePhotos f;
    QVERIFY(f.select(photos));
    f->setAddOpen(true);
    f->addCustomField(name, u"x"_s);
    QVERIFY(f->addOpen());
    QCOMPARE(f->unsavedCount(), 0);
}

void tst_AppModelEditing::customNameInAnotherCase()
{
    ThreePhotos f;
    QVERIFY(f.select(u"a"_s));
    f->preferences().saveDontAsk.set(true);
    f->addCustomField(u"Mood"_s, u"calm"_s);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    f->addCustomField(u"mood"_s, u"wild"_s);
    QCOMPARE(f->visibleCustomFields(), (QList<CustomValue>{ { u"Mood"_s, u"wild"_s } }));
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->visibleCustomFields(), (QList<CustomValue>{ { u"Mood"_s, u"wild"_s } }));
    QCOMPARE(f->unsavedCount(), 0);
    f.select(u"ab"_s);
    f->addCustomField(u"mOOd"_s, u"mild"_s);
    QCOMPARE(f->visibleCustomFields(), (QList<CustomValue>{ { u"Mood"_s, u"mild"_s } }));
    QCOMPARE(f->unsavedCount(), 1);
}

// Such fields may come from elsewhere: they are shown, and whatever is done beside them leaves them alone.
void tst_AppModelEditing::photoThatHoldsRefusedNames()
{
    const QMap<QString, QString> held{ { u"All"_s, u"a"_s }, { u"City"_s, u"c"_s }, { u"Error"_s, u"e"_s },
        { u"Mood"_s, u"m"_s } };
    ModelFixture f;
    f.services.journalPath = f.settings.filePath(u"state/undo"_s);
    f.relaunch();
    const QUrl photo = f.folder.add(u"a.jpg"_s);
    const TemporaryConfig config(held.keys());
    WriteCommand command;
    QList<CustomValue> shown;
    for (auto field = held.cbegin(); field != held.cend(); ++field) {
        command.assignments.append({ .tag = u"XMP-Quorbel:"_s + field.key(), .value = field.value() });
        shown.append({ field.key(), field.value() });
    }
    realTool().write(command, { photo }, false, config.url());
    f->preferences().saveDontAsk.set(true);
    const auto saves = [&f] {
        f->requestSave();
        return f.waitUntilIdle() && f->unsavedCount() == 0 && !f->errorMessage();
    };
    QVERIFY(f.open());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f->visibleCustomFields(), shown);
    QVERIFY(!f->draftValues().contains(u"place"_s));  // the custom one does not pose as it
    // The one that would take all others away cannot be changed.
    f->setCustom(u"All"_s, {});
    QCOMPARE(f->unsavedCount(), 0);
    for (const QString& place : { u"Bern"_s, QString() }) {
        f->setSingle(u"place"_s, place);
        f->setCustom(u"Mood"_s, u"of "_s + place);
        QVERIFY2(saves(), qPrintable(f->errorMessage().value_or(QString())));
        QCOMPARE(f->draftValues().value(u"place"_s), place);
        shown.last().value = u"of "_s + place;
        QCOMPARE(f->visibleCustomFields(), shown);
    }
    f->undoSave();
    QVERIFY(f.waitUntilIdle());
    shown.last().value = u"of Bern"_s;
    QCOMPARE(f->visibleCustomFields(), shown);
    QCOMPARE(f->draftValues().value(u"place"_s), u"Bern"_s);
    // The others can be, and be taken out.
    f->setCustom(u"City"_s, u"other"_s);
    f->setCustom(u"Error"_s, {});
    QVERIFY2(saves(), qPrintable(f->errorMessage().value_or(QString())));
    QCOMPARE(f->draftValues().value(u"place"_s), u"Bern"_s);
    QCOMPARE(f->visibleCustomFields(),
        (QList<CustomValue>{ { u"All"_s, u"a"_s }, { u"City"_s, u"other"_s }, { u"Mood"_s, u"of Bern"_s } }));
}

void tst_AppModelEditing::visibleAndAddableFields()
{
    ThreePhotos f;
    QVERIFY(f.select(u"a"_s));
    const QStringList always{ u"title"_s, u"description"_s, u"date"_s, u"keywords"_s, u"creator"_s, u"copyright"_s };
    const auto addable = [&f] {
        QStringList ids;
        for (const FieldSpec& field : f->addableKnownFields())
            ids.append(field.id);
        return ids;
    };
    QCOMPARE(f->visibleFieldIDs(FieldSection::common), always);
    QCOMPARE(f->visibleFieldIDs(FieldSection::location), QStringList({ u"place"_s, u"coords"_s }));
    QCOMPARE(f->visibleFieldIDs(FieldSection::additional), QStringList({ u"rating"_s, u"people"_s }));
    QCOMPARE(addable().size(), 21);
    f->setAddOpen(true);
    f->addKnownField(u"event"_s);
    f->addKnownField(u"state"_s);
    QVERIFY(!f->addOpen());
    QCOMPARE(f->visibleFieldIDs(FieldSection::location), QStringList({ u"place"_s, u"coords"_s, u"state"_s }));
    QCOMPARE(f->visibleFieldIDs(FieldSection::additional), QStringList({ u"rating"_s, u"people"_s, u"event"_s }));
    QCOMPARE(addable().first(2), QStringList({ u"headline"_s, u"country"_s }));
    QCOMPARE(addable().size(), 19);
    // Several photos: what any of them holds. What was added is forgotten with the selection.
    f.click(u"c.jpg"_s, false, true);
    QCOMPARE(f->visibleFieldIDs(FieldSection::additional), QStringList({ u"rating"_s, u"people"_s }));
    f.click(u"c.jpg"_s);
    QCOMPARE(f->visibleFieldIDs(FieldSection::additional), QStringList());
    QCOMPARE(f->visibleFieldIDs(FieldSection::common), always);
}

void tst_AppModelEditing::addedFieldsAreRemovable()
{
    ThreePhotos f;
    QVERIFY(f.select(u"a"_s));
    f->addKnownField(u"event"_s);
    f->addKnownField(u"rating"_s);
    QVERIFY(f->isRemovableAddedField(u"event"_s));
    QVERIFY(!f->isRemovableAddedField(u"rating"_s));
    QVERIFY(!f->isRemovableAddedField(u"title"_s));
    f->setSingle(u"event"_s, u"Fair"_s);
    f->removeAddedField(u"event"_s);
    QCOMPARE(f->unsavedCount(), 0);
    QVERIFY(!f->draftValues().contains(u"event"_s));
    f.click(u"b.jpg"_s, false, true);
    f->addKnownField(u"people"_s);
    f->addKnownField(u"event"_s);
    f->setBatch(u"event"_s, u"Fair"_s);
    QVERIFY(!f->isRemovableAddedField(u"people"_s));
    QVERIFY(f->isRemovableAddedField(u"event"_s));
    f->removeAddedField(u"event"_s);
    QCOMPARE(f->unsavedCount(), 0);
    QVERIFY(f->batchValues().isEmpty());
}

void tst_AppModelEditing::sharedValues()
{
    ThreePhotos f;
    QVERIFY(f.select(u"abc"_s));
    QCOMPARE(f->sharedValue(u"title"_s), std::nullopt);
    QCOMPARE(f->sharedValue(u"creator"_s), std::nullopt);
    QCOMPARE(f->sharedValue(u"rating"_s), std::nullopt);
    QCOMPARE(f->sharedValue(u"headline"_s), QString());
    f.click(u"c.jpg"_s, false, true);
    QCOMPARE(f->sharedValue(u"creator"_s), u"Ana"_s);
    QCOMPARE(f->sharedValue(u"title"_s), std::nullopt);
    f->closeFolder();
    QCOMPARE(f->sharedValue(u"creator"_s), std::nullopt);
}

void tst_AppModelEditing::batchEdits()
{
    ThreePhotos f;
    QVERIFY(f.select(u"ab"_s));
    f->setBatch(u"creator"_s, u"Ana"_s);
    f->setBatch(u"title"_s, {});
    QCOMPARE(f->unsavedCount(), 0);
    f->setBatch(u"title"_s, u"X"_s);
    f->setBatch(u"creator"_s, {});
    QCOMPARE(f->unsavedCount(), 2);
    f->setBatch(u"creator"_s, u"Ana"_s);
    QCOMPARE(f->unsavedCount(), 2);
    f->toggleBatchInclude(u"title"_s);
    QCOMPARE(f->batchInclude(), QSet<QString>{ u"creator"_s });
    QCOMPARE(f->batchValues().value(u"title"_s), u"X"_s);
    f->toggleBatchInclude(u"title"_s);
    for (const QString& item : { u"snow"_s, u"snow"_s, u"Snow"_s })
        f->addBatchListItem(u"keywords"_s, item);
    f->addBatchListItem(u"people"_s, u"Eva"_s);
    f->removeBatchListItem(u"people"_s, u"Eva"_s);
    QCOMPARE(f->nonEmptyBatchLists(), (QMap<QString, QStringList>{ { u"keywords"_s, { u"snow"_s, u"Snow"_s } } }));
    QCOMPARE(f->unsavedCount(), 3);
    f->clearBatchList(u"keywords"_s);
    QCOMPARE(f->unsavedCount(), 2);
    // Another selection drops it all, without a question.
    f.click(u"c.jpg"_s);
    QVERIFY(!f->saveOpen() && f->batchInclude().isEmpty() && f->batchValues().isEmpty());
    QCOMPARE(f->unsavedCount(), 0);
}

void tst_AppModelEditing::batchCustomFields()
{
    ThreePhotos f;
    QVERIFY(f.select(u"a"_s));
    f->preferences().saveDontAsk.set(true);
    f->addCustomField(u"Mood"_s, u"calm"_s);
    f->addCustomField(u"Score"_s, u"7"_s);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    f.click(u"b.jpg"_s, false, true);
    QCOMPARE(f->visibleCustomFields(), (QList<CustomValue>{ { u"Mood"_s, {} }, { u"Score"_s, {} } }));
    f->setCustom(u"Mood"_s, {});
    QCOMPARE(f->unsavedCount(), 0);
    f->setCustom(u"Mood"_s, u"wild"_s);
    f->toggleBatchCustom(u"Mood"_s);
    QCOMPARE(f->visibleCustomFields(), (QList<CustomValue>{ { u"Mood"_s, u"wild"_s }, { u"Score"_s, {} } }));
    QCOMPARE(f->unsavedCount(), 0);
    f->setCustom(u"Score"_s, u"8"_s);
    f->addCustomField(u"Zone"_s, u"1"_s);
    f->addCustomField(u"Area"_s, u"2"_s);
    f->addCustomField(u"Zone"_s, u"3"_s);
    QCOMPARE(f->batchCustoms(),
        (QList<CustomValue>{ { u"Score"_s, u"8"_s }, { u"Area"_s, u"2"_s }, { u"Zone"_s, u"3"_s } }));
    QCOMPARE(f->visibleCustomFields(),
        (QList<CustomValue>{
            { u"Mood"_s, u"wild"_s }, { u"Score"_s, u"8"_s }, { u"Area"_s, u"2"_s }, { u"Zone"_s, u"3"_s } }));
    QCOMPARE(f->unsavedCount(), 3);
    QVERIFY(f->editedSingle().isEmpty());
}

void tst_AppModelEditing::location_data()
{
    QTest::addColumn<QString>("selection");
    QTest::addColumn<QString>("typedState");
    QTest::addColumn<QStringList>("filled");  // place, sublocation, state, country
    QTest::addRow("one photo") << u"c"_s << QString()
                               << QStringList{ u"Paris"_s, u"Louvre"_s, u"Île-de-France"_s, u"France"_s };
    QTest::addRow("the user's state stays")
        << u"c"_s << u"own"_s << QStringList{ u"Paris"_s, u"Louvre"_s, u"own"_s, u"France"_s };
    QTest::addRow("several, differing towns")
        << u"ac"_s << QString() << QStringList{ u"Paris"_s, u"Louvre"_s, u"Île-de-France"_s, u"France"_s };
    QTest::addRow("several, the user's state stays")
        << u"ab"_s << u"own"_s << QStringList{ u"Paris"_s, u"Louvre"_s, u"own"_s, u"France"_s };
}

void tst_AppModelEditing::location()
{
    QFETCH(QString, selection);
    QFETCH(QString, typedState);
    QFETCH(QStringList, filled);
    ThreePhotos f;
    QVERIFY(f.select(selection));
    if (!typedState.isEmpty())
        f->isBatch() ? f->setBatch(u"state"_s, typedState) : f->setSingle(u"state"_s, typedState);
    f->applyLocation({ u"Louvre"_s, u"Paris"_s, u"Île-de-France"_s, u"France"_s, 48.8606, 2.3376 });
    const auto& values = f->isBatch() ? f->batchValues() : f->draftValues();
    QCOMPARE(values.value(u"coords"_s), u"48.860600, 2.337600"_s);
    QCOMPARE(QStringList({ values.value(u"place"_s), values.value(u"sublocation"_s), values.value(u"state"_s),
                 values.value(u"country"_s) }),
        filled);
    QCOMPARE(f->unsavedCount(), 5);
}

void tst_AppModelEditing::keywordCompletions()
{
    ThreePhotos f;
    QVERIFY(f.select(u"a"_s));
    QCOMPARE(f->keywordCompletions(u"s"_s, 9), QStringList({ u"sky"_s, u"sea"_s, u"Sea"_s }));
    QCOMPARE(f->keywordCompletions(u"SE"_s, 1).size(), 1);
    QCOMPARE(f->keywordCompletions(u"x"_s, 9), QStringList());
}

void tst_AppModelEditing::stars()
{
    ThreePhotos f;
    QVERIFY(f.select(u"a"_s));
    const auto rating = [&f] { return f->draftValues().value(u"rating"_s); };
    f->rate(4);
    QCOMPARE(f->unsavedCount(), 0);
    f->rate(5);
    QCOMPARE(rating(), u"5"_s);
    f->rate(0);
    QCOMPARE(rating(), u"0"_s);
    f->discardSaveDialog();
    // None where there are none, for one photo or for many, is nothing to write.
    f.ModelFixture::select(u"b"_s);
    f->rate(0);
    QCOMPARE(f->unsavedCount(), 0);
    f.ModelFixture::select(u"bc"_s);
    f->rate(0);
    QCOMPARE(f->unsavedCount(), 0);
    f->rate(3);
    QCOMPARE(f->batchValues().value(u"rating"_s), u"3"_s);
    QVERIFY(f->visibleFieldIDs(FieldSection::additional).contains(u"rating"_s));
    f->rate(0);
    QCOMPARE(f->batchValues().value(u"rating"_s), u"0"_s);
    f.ModelFixture::select(u"abc"_s);
    f->rate(0);
    QCOMPARE(f->batchInclude(), QSet<QString>{ u"rating"_s });
}

void tst_AppModelEditing::sameAsBefore()
{
    ThreePhotos f;
    f.lookAtDetails([](const QList<ImageRecord>& photos, const ReadControl&) {
        QHash<QUrl, PhotoDetails> found;
        for (const ImageRecord& photo : photos) {
            found.insert(photo.url, { .url = photo.url });
            if (photo.fileName == u"a.jpg"_s) {
                found[photo.url].texts.insert(u"title@de"_s, u"Eins"_s);
                found[photo.url].paths = { u"Water|sea"_s, u"Birds|gull"_s };
            }
        }
        return found;
    });
    QVERIFY(f.select(u"a"_s));
    f->addCustomField(u"Mood"_s, u"calm"_s);
    f->preferences().saveDontAsk.set(true);
    f->requestSave();
    QVERIFY(f.waitUntilIdle());
    QTRY_VERIFY(f->details(f.url(u"a.jpg"_s)));
    // What is left unsaved there does not count.
    f->setSingle(u"title"_s, u"unsaved"_s);
    f->discardSaveDialog();
    struct Row {
        QString selected;
        QString key;
        QString shown;  // of the field afterwards
    };
    const QList<Row> rows{ { u"b"_s, u"title"_s, u"A"_s }, { u"bc"_s, u"title"_s, u"A"_s },
        { u"b"_s, u"rating"_s, u"4"_s }, { u"b"_s, u"custom:Mood"_s, u"calm"_s },
        { u"bc"_s, u"custom:Mood"_s, u"calm"_s }, { u"b"_s, u"title@de"_s, u"Eins"_s },
        { u"b"_s, u"people"_s, u"Eva"_s }, { u"bc"_s, u"people"_s, u"Eva"_s },
        // A list is replaced, and what its keywords' paths are comes with it.
        { u"b"_s, u"keywords"_s, u"sea,sky,Water|sea"_s },
        // What is empty there takes nothing away; before the first there is none.
        { u"c"_s, u"rating"_s, u"2"_s }, { u"a"_s, u"title"_s, u"A"_s } };
    for (const Row& row : rows) {
        f.ModelFixture::select(row.selected);
        QCOMPARE(f->hasPhotoBefore(), row.selected != u"a"_s);
        if (row.selected == u"c"_s)
            f->setSingle(u"rating"_s, u"2"_s);
        f->takeFromPhotoBefore(row.key);
        const bool isBatch = f->isBatch();
        const auto customs = isBatch ? f->batchCustoms() : f->draftCustoms();
        QStringList now = isBatch ? f->batchLists().value(row.key) : f->draftLists().value(row.key);
        if (row.key.startsWith(u"custom:"_s))
            now.append(customs.isEmpty() ? QString() : customs.constFirst().value);
        else if (now.isEmpty())
            now.append(isBatch ? f->batchValues().value(row.key) : f->draftValues().value(row.key));
        QCOMPARE(row.key + u": "_s + (now + f->typedPaths()).join(u','), row.key + u": "_s + row.shown);
        f->discardSaveDialog();
    }
}

QTEST_GUILESS_MAIN(tst_AppModelEditing)
#include "tst_AppModelEditing.moc"
