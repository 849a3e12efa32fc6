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
};

QTEST_GUILESS_MAIN(tst_RecordIndex)
#include "tst_RecordIndex.moc"
