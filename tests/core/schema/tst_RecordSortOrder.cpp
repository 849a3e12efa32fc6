#include "core/schema/RecordSortOrder.h"

#include <QRegularExpression>
#include <QTest>

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

}  // namespace

class TestRecordSortOrder : public QObject {
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
        for (const ImageRecord& one : sorted(order, records))
            names.append(one.fileType);
        QTEST(names.join(u' '), "after");
    }
};

QTEST_GUILESS_MAIN(TestRecordSortOrder)
#include "tst_RecordSortOrder.moc"
