#include "core/save/ExternalRefresh.h"
#include "core/schema/RecentItems.h"

#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

class tst_ExternalRefresh : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void modified()
    {
        const QDateTime read(QDate(2024, 5, 6), QTime(14, 30), Qt::UTC);
        const QMap<QString, std::optional<QDateTime>> onDisk{
            { u"later"_s, read.addMSecs(1) },
            { u"earlier"_s, read.addDays(-1) },
            { u"same"_s, read.toOffsetFromUtc(7200) },
            { u"gone"_s, std::nullopt },
            { u"undated"_s, read },
        };
        QList<ImageRecord> records;
        for (const QString& name : { u"later"_s, u"same"_s, u"undated"_s, u"gone"_s, u"earlier"_s }) {
            ImageRecord record;
            record.fileName = name;
            record.url = QUrl::fromLocalFile(u"/p/"_s + name);
            if (name != u"undated"_s)
                record.contentModificationDate = read;
            records.append(record);
        }
        const QList<QUrl> urls = ExternalRefresh::modifiedURLs(
            records, [&onDisk](const ImageRecord& record) { return onDisk.value(record.fileName); });
        QCOMPARE(urls, QList({ QUrl::fromLocalFile(u"/p/later"_s), QUrl::fromLocalFile(u"/p/earlier"_s) }));
    }

    void merging()
    {
        ImageRecord fresh;
        fresh.values = { { u"title"_s, u"theirs"_s }, { u"place"_s, u"theirs"_s }, { u"event"_s, u"theirs"_s } };
        fresh.lists = { { u"keywords"_s, { u"theirs"_s } }, { u"people"_s, { u"theirs"_s } } };
        fresh.custom = { { u"Mood"_s, u"theirs"_s }, { u"Score"_s, u"theirs"_s } };
        const ExternalRefresh::Drafts drafts{
            { { u"title"_s, u"mine"_s }, { u"place"_s, u"mine"_s } },
            { { u"keywords"_s, {} }, { u"people"_s, { u"mine"_s } } },
            { { u"Mood"_s, u"mine"_s }, { u"Zeal"_s, u"mine"_s } },
        };

        QCOMPARE(ExternalRefresh::mergeDrafts(fresh, drafts, {}),
            (ExternalRefresh::Drafts{ fresh.values, fresh.lists, fresh.custom }));

        const ExternalRefresh::Drafts merged = ExternalRefresh::mergeDrafts(fresh, drafts,
            { u"title"_s, u"event"_s, u"keywords"_s, u"custom:Mood"_s, u"custom:Score"_s, u"custom:Zeal"_s,
                u"custom:New"_s });
        const ExternalRefresh::Drafts expected{
            { { u"title"_s, u"mine"_s }, { u"place"_s, u"theirs"_s }, { u"event"_s, QString() } },
            { { u"keywords"_s, {} }, { u"people"_s, { u"theirs"_s } } },
            { { u"Mood"_s, u"mine"_s }, { u"Score"_s, QString() }, { u"New"_s, QString() }, { u"Zeal"_s, u"mine"_s } },
        };
        QCOMPARE(merged.values, expected.values);
        QCOMPARE(merged.lists, expected.lists);
        QCOMPARE(merged.customs, expected.customs);
    }

    void recentItems_data()
    {
        QTest::addColumn<QString>("current");
        QTest::addColumn<QString>("adding");
        QTest::addColumn<int>("limit");
        QTest::addColumn<QString>("updated");
        QTest::newRow("known path moves up") << u"a b c"_s << u"b"_s << 10 << u"b a c"_s;
        QTest::newRow("last one first, cut") << u"a"_s << u"x y"_s << 2 << u"y x"_s;
        QTest::newRow("twice in one batch") << u"a"_s << u"x y x"_s << 10 << u"x y a"_s;
        QTest::newRow("case matters") << u"a"_s << u"A"_s << 10 << u"A a"_s;
        QTest::newRow("nothing to add: only cut") << u"a b c"_s << QString() << 2 << u"a b"_s;
    }
    void recentItems()
    {
        QFETCH(QString, current);
        QFETCH(QString, adding);
        QFETCH(int, limit);
        const QStringList updated =
            RecentItems::updated(current.split(u' '), adding.split(u' ', Qt::SkipEmptyParts), limit);
        QTEST(updated.join(u' '), "updated");
    }
};

QTEST_GUILESS_MAIN(tst_ExternalRefresh)
#include "tst_ExternalRefresh.moc"
