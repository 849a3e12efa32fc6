#include "core/schema/ImageRecord.h"
#include "tests/support/Rows.h"

#include <QRegularExpression>

using namespace Quorbel;
using namespace Qt::StringLiterals;

class tst_ImageRecord : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void lines()
    {
        ImageRecord record;
        QCOMPARE(record.detailLine(), QString());
        record.fileType = u"JPEG"_s;
        record.pixelWidth = 4000;
        QCOMPARE(record.detailLine(), u"JPEG"_s);
        QCOMPARE(record.sidebarLine(), QString());
        record.pixelHeight = 3000;
        record.fileSize = 2'400'000;
        QCOMPARE(record.detailLine(), u"JPEG · 4000×3000 · 2.4 MB"_s);
        QCOMPARE(record.sidebarLine(), u"4000×3000 · 2.4 MB"_s);
        record.fileType.clear();
        record.pixelWidth.reset();
        QCOMPARE(record.detailLine(), u"2.4 MB"_s);
    }

    void sizes_data()
    {
        Test::addRows({ { u"0"_s, u"Zero KB"_s }, { u"1"_s, u"0.001 KB"_s }, { u"45"_s, u"0.05 KB"_s },
            { u"500"_s, u"0.5 KB"_s }, { u"949"_s, u"0.9 KB"_s }, { u"950"_s, u"1 KB"_s }, { u"9400"_s, u"9 KB"_s },
            { u"999499"_s, u"999 KB"_s }, { u"999500"_s, u"1 MB"_s }, { u"10960000"_s, u"11 MB"_s },
            { u"999949999"_s, u"999.9 MB"_s }, { u"999950000"_s, u"1 GB"_s }, { u"1250000000"_s, u"1.25 GB"_s },
            { u"5000000000000"_s, u"5000 GB"_s }, { u"9223372036854775807"_s, u"9223372036.85 GB"_s } });
    }
    void sizes()
    {
        QFETCH(QString, text);
        QTEST(ImageRecord{ .fileSize = text.toLongLong() }.sidebarLine(), "expected");
    }
};

QTEST_GUILESS_MAIN(tst_ImageRecord)
#include "tst_ImageRecord.moc"
