#include "core/schema/LocationFill.h"
#include "core/text/Coordinates.h"
#include "tests/support/Rows.h"

#include <QRegularExpression>

using namespace Quorbel;
using namespace Qt::StringLiterals;

class tst_Coordinates : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void parsing_data()
    {
        const QString tower = u"48.858400, 2.294500"_s;
        Test::addRows({ { u"48.8584, 2.2945"_s, tower }, { u" 48.8584 N,2.2945E "_s, tower },
            { u"48.8584 s, 2.2945 w"_s, u"-48.858400, -2.294500"_s },
            { u"-33.5 S, +1e2"_s, u"33.500000, 100.000000"_s }, { u"120, 400"_s, u"120.000000, 400.000000"_s },
            { u",1,,2,"_s, u"1.000000, 2.000000"_s } });
        Test::addRows({ u""_s, u"48.8584"_s, u"1, 2, 3"_s, u"1, ,2"_s, u"1 2"_s, u"N, E"_s, u"1 E, 2 N"_s, u"1 NN, 2"_s,
                          u"48°51'30\" N, 2°17'40\" E"_s, u"nan, 2"_s, u"1, inf"_s, u", -0.000000 E"_s, u"abc"_s },
            u"refused"_s);
    }
    void parsing()
    {
        QFETCH(QString, text);
        const std::optional<Coordinates::Point> point = Coordinates::parse(text);
        QTEST(point ? Coordinates::displayString(*point) : u"refused"_s, "expected");
    }

    void assignments_data()
    {
        Test::addRows({ { u" \t"_s, u"-GPSLatitude= -GPSLatitudeRef= -GPSLongitude= -GPSLongitudeRef="_s },
            { u"abc"_s, QString() },
            { u"40.7128, -74.006"_s,
                u"-GPSLatitude=40.712800 -GPSLatitudeRef=N -GPSLongitude=74.006000 -GPSLongitudeRef=W"_s },
            { u"-0.0, 0 W"_s,
                u"-GPSLatitude=0.000000 -GPSLatitudeRef=N -GPSLongitude=0.000000 -GPSLongitudeRef=E"_s } });
    }
    void assignments()
    {
        QFETCH(QString, text);
        QTEST(arguments(Coordinates::writeArgs(text)).join(u' '), "expected");
    }

    void locationFill_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("locality");
        QTest::addColumn<QString>("filledFields");
        QTest::addColumn<QString>("assigned");
        QTest::newRow("all empty") << u"Grossmünster"_s << u"Zürich"_s << QString()
                                   << u"coords=47.370000, 8.544000;place=Zürich;sublocation=Grossmünster;"
                                      "state=Canton of Zürich;country=Switzerland"_s;
        QTest::newRow("typed fields stay, the town does not")
            << u"Grossmünster"_s << u"Zürich"_s << u"place sublocation state country"_s
            << u"coords=47.370000, 8.544000;place=Zürich"_s;
        QTest::newRow("a town by its own name")
            << u"Zürich"_s << u"Zürich"_s << u"state country"_s << u"coords=47.370000, 8.544000;place=Zürich"_s;
        QTest::newRow("no town: the name stands in")
            << u"Matterhorn"_s << QString() << u"state country"_s << u"coords=47.370000, 8.544000;place=Matterhorn"_s;
        QTest::newRow("no names") << QString() << QString() << u"state country"_s << u"coords=47.370000, 8.544000"_s;
    }
    void locationFill()
    {
        QFETCH(QString, name);
        QFETCH(QString, locality);
        QFETCH(QString, filledFields);
        const QStringList filled = filledFields.split(u' ');
        const LocationFill::Result result{ name, locality, u"Canton of Zürich"_s, u"Switzerland"_s, 47.37, 8.544 };
        QStringList assigned;
        for (const LocationFill::Assignment& assignment :
            LocationFill::assignments(result, [&filled](const QString& id) { return !filled.contains(id); }))
            assigned.append(assignment.id + u'=' + assignment.value);
        QTEST(assigned.join(u';'), "assigned");
    }
};

QTEST_GUILESS_MAIN(tst_Coordinates)
#include "tst_Coordinates.moc"
