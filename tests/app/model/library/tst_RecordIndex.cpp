#include "app/model/library/RecordIndex.h"
#include "core/text/Text.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace Quorbel;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Quorbel::RecordSortOrder)

namespace {

// "b.jpg@3": a file created on the third day; "b.jpg": one without a creation date.
ImageRecord record(const QString& text)
{
    const QStringList parts = text.split(u'@');
    ImageRecord made;
    made.fileName = parts[0];
    made.fileType = text;
    if (parts.size() > 1)
        made.creationDate = QDateTime(QDate(2024, 1, parts[1].toInt()), QTime(), Qt::UTC);
    return made;
}

QList<ImageRecord> inOrder(const QList<ImageRecord>& records, RecordSortOrder order)
{
    RecordIndex index;
    index.reset(records, order);
    QList<ImageRecord> listed;
    for (const int row : index.rows({}, order))
        listed.append(records.at(row));
    return listed;
}

}  // namespace

class tst_RecordIndex : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void groups_data()
    {
        QTest::addColumn<QString>("tops");
        QTest::addColumn<QString>("photos");
        QTest::addColumn<QString>("groups");
        QTest::newRow("no order, no groups") << u""_s << u"/t/b/1.jpg /t/a/1.jpg"_s << u""_s;
        QTest::newRow("the top's own first, then depth first")
            << u"/t"_s << u"/t/b/1 /t/a/x/1 /t/a/1 /t/b/2 /t/1"_s << u"t 1 | a 1 | a / x 1 | b 2"_s;
        QTest::newRow("a folder is no prefix of its neighbors")
            << u"/t"_s << u"/t/a-b/1 /t/a/x/1 /t/a/1 /t/aa/1"_s << u"a 1 | a / x 1 | a-b 1 | aa 1"_s;
        QTest::newRow("natural order at each level")
            << u"/t"_s << u"/t/10/b/1 /t/9/b/1 /t/10/A/1"_s << u"9 / b 1 | 10 / A 1 | 10 / b 1"_s;
        QTest::newRow("names that differ in case alone do not mix")
            << u"/t"_s << u"/t/a/y/1 /t/A/x/1 /t/a/x/1 /t/A/y/1"_s << u"A / x 1 | A / y 1 | a / x 1 | a / y 1"_s;
        QTest::newRow("several tops") << u"/m/b /n/a"_s << u"/m/b/1 /n/a/x/1 /n/a/1 /o/9/1"_s
                                      << u"9 1 | a 1 | a / x 1 | b 1"_s;
        QTest::newRow("tops of one name") << u"/m/a /n/a"_s << u"/m/a/1 /n/a/1 /m/a/2"_s << u"a 2 | a 1"_s;
        QTest::newRow("a top in another") << u"/m/a/b /m/a"_s << u"/m/a/b/1 /m/a/1"_s << u"a 1 | a / b 1"_s;
        QTest::newRow("the whole computer") << u"/"_s << u"/t/1 /1"_s << u"/ 1 | t 1"_s;
        QTest::newRow("names with signs of URLs") << u"/t"_s << u"/t/100%25/1 /t/a#b/1"_s << u"100%25 1 | a#b 1"_s;
    }
    void groups()
    {
        QFETCH(QString, tops);
        const QStringList paths = tops.split(u' ', Qt::SkipEmptyParts);
        QList<ImageRecord> records;
        QFETCH(QString, photos);
        for (const QString& path : photos.split(u' ')) {
            ImageRecord made;
            made.url = QUrl::fromLocalFile(path);
            made.fileName = made.url.fileName();
            records.append(made);
        }
        RecordIndex index;
        index.reset(records, RecordSortOrder::nameAsc, FolderOrder(paths, paths.size() > 1));
        const QList<int> rows = index.rows({}, RecordSortOrder::nameAsc);
        QStringList found;
        qsizetype next = 0;
        for (const FolderGroup& group : index.groups(rows)) {
            QCOMPARE(group.first, next);
            next += group.count;
            for (qsizetype row = group.first; row < next; ++row)
                QCOMPARE(records.at(rows.at(row)).url.adjusted(QUrl::RemoveFilename | QUrl::StripTrailingSlash),
                    group.folder.adjusted(QUrl::StripTrailingSlash));
            const QString parents = group.parents.isEmpty() ? QString() : group.parents + u" / "_s;
            found.append(u"%1%2 %3"_s.arg(parents, group.name).arg(group.count));
        }
        QTEST(found.join(u" | "_s), "groups");
        QCOMPARE(index.folders().holding(), int(found.size()));
    }

    void sorting_data()
    {
        QTest::addColumn<RecordSortOrder>("order");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        using enum RecordSortOrder;
        QTest::newRow("names") << nameAsc << u"b.jpg A.jpg a10.jpg a9.jpg"_s << u"A.jpg a9.jpg a10.jpg b.jpg"_s;
        QTest::newRow("names, backwards")
            << nameDesc << u"b.jpg A.jpg a10.jpg a9.jpg"_s << u"b.jpg a10.jpg a9.jpg A.jpg"_s;
        QTest::newRow("equal names stay put") << nameAsc << u"b a@2 A@1 a@3"_s << u"a@2 A@1 a@3 b"_s;
        QTest::newRow("equal names stay put, backwards too") << nameDesc << u"a@2 A@1 a@3 b"_s << u"b a@2 A@1 a@3"_s;
        QTest::newRow("newest") << dateNewest << u"z b@1 c@2 a10@1 a9@1 y"_s << u"c@2 a9@1 a10@1 b@1 y z"_s;
        QTest::newRow("oldest") << dateOldest << u"z c@2 b@1 a10@1 a9@1 y"_s << u"a9@1 a10@1 b@1 c@2 y z"_s;
        QTest::newRow("equal throughout") << dateNewest << u"A@1 a@1 a A"_s << u"A@1 a@1 a A"_s;
    }
    void sorting()
    {
        QFETCH(RecordSortOrder, order);
        QFETCH(QString, before);
        QList<ImageRecord> records;
        for (const QString& text : before.split(u' '))
            records.append(record(text));
        QStringList names;
        for (const ImageRecord& one : inOrder(records, order))
            names.append(one.fileType);
        QTEST(names.join(u' '), "after");
    }

    // Like the plain stable sort that one would write without keys and ranks.
    void sortsAnything()
    {
        auto random = QRandomGenerator(20240506);
        for (int round = 0; round < 200; ++round) {
            QList<ImageRecord> records;
            for (int i = random.bounded(40); i > 0; --i) {
                const QString name = u"aAbB"_s.at(random.bounded(4)) + QString::number(random.bounded(12)) + u".jpg"_s;
                const int day = random.bounded(4);
                records.append(record(day == 0 ? name : name + u'@' + QString::number(day)));
                records.last().url = QUrl::fromLocalFile(u"/p/"_s + QString::number(i));
            }
            for (const bool forwards : { true, false }) {
                QList<ImageRecord> byName = records;
                std::stable_sort(byName.begin(), byName.end(), [forwards](const ImageRecord& a, const ImageRecord& b) {
                    const int order = Text::naturalCompare(a.fileName, b.fileName);
                    return forwards ? order < 0 : order > 0;
                });
                using enum RecordSortOrder;
                QCOMPARE(inOrder(records, forwards ? nameAsc : nameDesc), byName);
                QList<ImageRecord> byDate = inOrder(records, nameAsc);
                std::stable_sort(byDate.begin(), byDate.end(), [forwards](const ImageRecord& a, const ImageRecord& b) {
                    if (!a.creationDate || !b.creationDate)
                        return a.creationDate.has_value() && !b.creationDate;
                    return forwards ? *a.creationDate < *b.creationDate : *a.creationDate > *b.creationDate;
                });
                QCOMPARE(inOrder(records, forwards ? dateOldest : dateNewest), byDate);
            }
        }
    }

    void pairs_data()
    {
        QTest::addColumn<QString>("photos");
        QTest::addColumn<QString>("shown");
        QTest::newRow("raw and JPEG, in any case")
            << u"a/1.CR3 a/1.jpg a/2.nef a/2.JPEG"_s << u"1.CR3+1.jpg 2.nef+2.JPEG"_s;
        QTest::newRow("HEIC") << u"a/1.HIF a/1.cr3 a/2.heic a/2.DNG"_s << u"1.cr3+1.HIF 2.DNG+2.heic"_s;
        QTest::newRow("another folder") << u"a/1.CR3 b/1.jpg"_s << u"1.CR3 1.jpg"_s;
        QTest::newRow("another name") << u"a/I.CR3 a/i.jpg a/I.x.jpg a/I.CR3.jpg a/.jpg a/.cr3"_s
                                      << u".cr3 .jpg I.CR3 I.CR3.jpg I.x.jpg i.jpg"_s;
        QTest::newRow("no raw file") << u"a/1.jpg a/1.heic a/1.tif"_s << u"1.heic 1.jpg 1.tif"_s;
        QTest::newRow("no picture") << u"a/1.CR3 a/1.DNG a/1.tif"_s << u"1.CR3 1.DNG 1.tif"_s;
        QTest::newRow("several raw files") << u"a/1.dng a/1.CR3 a/1.jpg"_s << u"1.CR3+1.jpg 1.dng"_s;
        QTest::newRow("several pictures") << u"a/1.heic a/1.jpg a/1.CR3"_s << u"1.CR3+1.jpg 1.heic"_s;
        QTest::newRow("two shots") << u"a/1.heic a/1.jpg a/1.CR3 a/1.dng"_s << u"1.CR3+1.jpg 1.dng 1.heic"_s;
    }
    // Whatever comes first, comes again under another name, or goes.
    void pairs()
    {
        QFETCH(QString, photos);
        QFETCH(QString, shown);
        const auto order = RecordSortOrder::nameAsc;
        const auto listed = [&](RecordIndex& index, const QList<ImageRecord>& records) {
            QStringList rows;
            for (const int row : index.rows({}, order)) {
                const int picture = index.hiddenBehind(row);
                if (picture >= 0 && index.standingFor(picture) != row)
                    rows.append(u"?"_s);
                rows.append(records.at(row).fileName + (picture < 0 ? QString() : u'+' + records.at(picture).fileName));
            }
            rows.sort();
            return rows.join(u' ');
        };
        QList<ImageRecord> records;
        for (const QString& path : photos.split(u' ')) {
            records.append(record(path.sliced(2)));
            records.last().url = QUrl::fromLocalFile(u"/t/"_s + path);
            records.last().isUnread = true;
        }
        RecordIndex whole;
        whole.setPairing(true);
        whole.reset(records, order);
        QCOMPARE(listed(whole, records), shown);
        const qsizetype rows = shown.count(u' ') + 1;
        QCOMPARE(whole.count(PhotoTrait::unread), rows);
        whole.setPairing(false);
        QCOMPARE(whole.rows({}, order).size(), records.size());
        QCOMPARE(whole.count(PhotoTrait::unread), records.size());

        std::reverse(records.begin(), records.end());
        RecordIndex grown;
        grown.reset({}, order);
        grown.setPairing(true);
        QList<ImageRecord> some;
        for (const ImageRecord& photo : std::as_const(records)) {
            some.append(photo);
            some.last().url = QUrl::fromLocalFile(u"/t/a/new.jpg"_s);
            grown.append(some);
            some.last() = photo;
            grown.rename({ int(some.size()) - 1 }, some);
        }
        QCOMPARE(listed(grown, some), shown);
        while (!some.isEmpty()) {
            some.removeFirst();
            grown.remove({ 0 });
            RecordIndex fresh;
            fresh.setPairing(true);
            fresh.reset(some, order);
            QCOMPARE(listed(grown, some), listed(fresh, some));
            QCOMPARE(grown.count(PhotoTrait::unread), fresh.count(PhotoTrait::unread));
        }
    }

    // Found by either name; a picture that is edited for itself stands for itself.
    void pairsInSearch()
    {
        QList<ImageRecord> records{ record(u"1.CR3"_s), record(u"1.jpg"_s) };
        for (ImageRecord& photo : records)
            photo.url = QUrl::fromLocalFile(u"/t/"_s + photo.fileName);
        RecordIndex index;
        index.setPairing(true);
        index.reset(records, RecordSortOrder::nameAsc);
        for (const QString& needle : { u"cr3"_s, u"jpg"_s, u"1"_s })
            QCOMPARE(index.rows({ .needle = needle }, RecordSortOrder::nameAsc), QList<int>{ 0 });
        QCOMPARE(index.rows({ .needle = u"2"_s }, RecordSortOrder::nameAsc), QList<int>());
        QVERIFY(index.setTrait(1, PhotoTrait::held, true));
        QCOMPARE(index.rows({}, RecordSortOrder::nameAsc), (QList<int>{ 0, 1 }));
        QCOMPARE(index.rows({ .needle = u"jpg"_s }, RecordSortOrder::nameAsc), QList<int>{ 1 });
        QCOMPARE(index.hiddenBehind(0), -1);
        QCOMPARE(index.count(PhotoTrait::noTitle), 2);
        QVERIFY(index.setTrait(1, PhotoTrait::held, false));
        QCOMPARE(index.hiddenBehind(0), 1);
        QCOMPARE(index.count(PhotoTrait::noTitle), 1);
    }

    // Kept up through whatever happens, it counts and lists as one that is made anew; what records say nothing about
    // stays with the photo.
    void keepsTraits()
    {
        auto random = QRandomGenerator(20260509);
        const auto fill = [&random](ImageRecord& photo) {
            photo.isUnread = random.bounded(4) == 0;
            photo.values = { { u"title"_s, random.bounded(2) == 0 ? u"A title"_s : u" "_s },
                { u"rating"_s, QString::number(random.bounded(8) - 1) } };
        };
        QList<ImageRecord> records;
        RecordIndex index;
        index.reset(records, RecordSortOrder::nameAsc);
        QSet<QUrl> edited;
        for (int round = 0; round < 300; ++round) {
            const int at = records.isEmpty() ? 0 : random.bounded(int(records.size()));
            const int kind = records.isEmpty() ? 0 : random.bounded(4);
            if (kind == 0) {
                records.append(record(u"%1.jpg"_s.arg(round)));
                records.last().url = QUrl::fromLocalFile(u"/p/%1"_s.arg(round));
                fill(records.last());
                index.append(records);
            } else if (kind == 1) {
                fill(records[at]);
                index.replace({ at }, records);
            } else if (kind == 2) {
                index.setTrait(at, PhotoTrait::edited, true);
                edited.insert(records.at(at).url);
            } else {
                edited.remove(records.takeAt(at).url);
                index.remove({ at });
            }
            RecordIndex fresh;
            fresh.reset(records, RecordSortOrder::nameAsc);
            for (const PhotoTrait trait : { PhotoTrait::noTitle, PhotoTrait::unrated, PhotoTrait::unread }) {
                QCOMPARE(index.count(trait), fresh.count(trait));
                const PhotoFilter filter{ .traits = trait, .stars = random.bounded(3) };
                QCOMPARE(index.rows(filter, RecordSortOrder::nameAsc), fresh.rows(filter, RecordSortOrder::nameAsc));
            }
            for (int stars = 0; stars <= 5; ++stars)
                QCOMPARE(index.countOfStars(stars), fresh.countOfStars(stars));
            QCOMPARE(index.count(PhotoTrait::edited), edited.size());
            for (int i = 0; i < records.size(); ++i)
                QCOMPARE(index.traits(i).testFlag(PhotoTrait::edited), edited.contains(records.at(i).url));
        }
    }

    void sortOrders_data()
    {
        QTest::addColumn<RecordSortOrder>("order");
        QTest::addColumn<bool>("byFolder");
        for (const RecordSortOrder order : allCases<RecordSortOrder>()) {
            QTest::addRow("%s", qPrintable(rawValue(order))) << order << false;
            QTest::addRow("%s, by folder", qPrintable(rawValue(order))) << order << true;
        }
    }

    // The index keeps the order that a new one would find, through every way in which the list of photos changes.
    void sortOrders()
    {
        QFETCH(RecordSortOrder, order);
        QFETCH(bool, byFolder);
        QList<ImageRecord> records;
        const FolderOrder folders = byFolder ? FolderOrder({ u"/photos"_s }, false) : FolderOrder();
        const auto make = [](int i) {
            ImageRecord record;
            // Folders come up one after the other, and not in their order.
            const int depth = i % 3;
            const QString folder = u"/photos"_s + u"/%1"_s.arg(1000 - i / 40).repeated(depth);
            record.url = QUrl::fromLocalFile(u"%1/%2"_s.arg(folder).arg(i));
            const QStringList patterns{ u"IMG_%1.jpg"_s, u"img_%1.JPG"_s, u"b%1.jpg"_s };
            record.fileName = patterns.at(i % 3).arg(i % 3 == 2 ? 0 : i / 5 % 7);
            if (i % 4 != 0)
                record.creationDate = QDateTime::fromMSecsSinceEpoch(qint64(i % 5) * 1000);
            return record;
        };
        RecordIndex index;
        const auto compare = [&] {
            RecordIndex fresh;
            fresh.reset(records, order, folders);
            QCOMPARE(index.rows({}, order), fresh.rows({}, order));
            QCOMPARE(index.groups(index.rows({}, order)), fresh.groups(fresh.rows({}, order)));
            QCOMPARE(index.folders().holding(), fresh.folders().holding());
            for (int i = 0; i < records.size(); ++i)
                QCOMPARE(index.position(records.at(i).url), i);
        };
        QRandomGenerator random(20261122);
        for (int i = 0; i < 60; ++i)
            records.append(make(i));
        index.reset(records, order, folders);
        compare();
        for (int step = 100; step < 400; step += 4) {
            const int at = random.bounded(int(records.size()));
            switch (random.bounded(4)) {
            case 0: {
                QList<int> read{ at };
                records[at].creationDate = QDateTime::fromMSecsSinceEpoch(random.bounded(-3, 3) * 1000);
                if (const int other = at / 2; other != at) {
                    records[other].creationDate.reset();
                    read.append(other);
                }
                index.replace(read, records);
                break;
            }
            case 1:
                records[at] = make(step);
                index.replace({ at }, records);
                break;
            case 2:
                for (int i = 0; i < 4; ++i)
                    records.append(make(step + i));
                index.append(records);
                break;
            default:
                const int before = at / 2;
                const QList<int> gone = before == at ? QList<int>{ at } : QList<int>{ before, at };
                index.remove(gone);
                for (auto i = gone.crbegin(); i != gone.crend(); ++i)
                    records.removeAt(*i);
            }
            compare();
        }
        QCOMPARE(index.position(QUrl::fromLocalFile(u"/photos/none"_s)), -1);
    }
};

QTEST_GUILESS_MAIN(tst_RecordIndex)
#include "tst_RecordIndex.moc"
