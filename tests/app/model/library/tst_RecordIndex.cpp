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
};

QTEST_GUILESS_MAIN(tst_RecordIndex)
#include "tst_RecordIndex.moc"
