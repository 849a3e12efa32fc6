#include "core/schema/FieldCheck.h"
#include "core/schema/FieldSchema.h"

#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

class tst_FieldCheck : public QObject {
    Q_OBJECT

private slots:
    void notes_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("note");
        const auto rows = [](const QString& id, const QString& note, const QStringList& texts) {
            for (const QString& text : texts)
                QTest::addRow("%s: \"%s\"", qPrintable(id), qPrintable(text)) << id << text << note;
        };
        const QString noDate = u"Not a date: YYYY-MM-DD HH:MM"_s;
        rows(u"date"_s, noDate,
            { u"Harbour at dawn"_s, u"2021-02-30"_s, u"2021-13-01 10:00"_s, u"06/05/2024"_s, u"2024-05-06T14:30"_s,
                u"2024-05-06 25:00"_s, u"2024"_s });
        rows(u"dateDigitized"_s, noDate, { u"yesterday"_s });
        rows(u"date"_s, {},
            { {}, u"  "_s, u"2021-02-28"_s, u"2020:02:29"_s, u" 2024-05-06 14:30 "_s, u"2024:05:06 14:30:15"_s });
        rows(u"coords"_s, u"Not a position: lat, lon"_s,
            { u"somewhere"_s, u"48.85"_s, u"1, 2, 3"_s, u"48°51'30\" N, 2°17'40\" E"_s, u"120, 400"_s, u"91, 0"_s });
        rows(u"coords"_s, {}, { {}, u"48.8584, 2.2945"_s, u"33.9 S, 18.4 E"_s, u"-90, 180"_s });
        rows(u"offsetOriginal"_s, u"Not an offset: +HH:MM"_s, { u"+5"_s, u"UTC"_s, u"+25:00"_s, u"+05:75"_s });
        rows(u"offsetDigitized"_s, {}, QStringList{ QString(), u"Z"_s } + FieldSchema::timeZoneOffsets());
        rows(u"title"_s, {}, { u"Harbour at dawn"_s });
        rows(u"rating"_s, {}, { u"five"_s });
    }
    void notes()
    {
        QFETCH(QString, id);
        QFETCH(QString, text);
        const FieldSpec* field = FieldSchema::spec(id);
        QVERIFY(field);
        QTEST(FieldCheck::note(*field, text), "note");
    }
};

QTEST_APPLESS_MAIN(tst_FieldCheck)
#include "tst_FieldCheck.moc"
