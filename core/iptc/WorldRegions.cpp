#include "core/iptc/WorldRegions.h"

#include <QHash>

namespace Quorbel::WorldRegions {

using namespace Qt::StringLiterals;

namespace {

QHash<QString, QString> byCountry()
{
    static const QList<std::pair<QString, QString>> regions{
        { u"Africa"_s,
            u"AO BF BI BJ BW CD CF CG CI CM CV DJ DZ EG EH ER ET GA GH GM GN GQ GW IO KE KM LR LS LY MA MG ML MR MU MW "
            "MZ NA NE NG RE RW SC SD SH SL SN SO SS ST SZ TD TF TG TN TZ UG YT ZA ZM ZW"_s },
        { u"Antarctica"_s, u"AQ"_s },
        { u"Asia"_s,
            u"AE AF AM AZ BD BH BN BT CN CY GE HK ID IL IN IQ IR JO JP KG KH KP KR KW KZ LA LB LK MM MN MO MV MY NP OM "
            "PH PK PS QA SA SG SY TH TJ TL TM TR TW UZ VN YE"_s },
        { u"Europe"_s,
            u"AD AL AT AX BA BE BG BY CH CZ DE DK EE ES FI FO FR GB GG GI GR HR HU IE IM IS IT JE LI LT LU LV MC MD ME "
            "MK MT NL NO PL PT RO RS RU SE SI SJ SK SM UA VA XK"_s },
        { u"North America"_s,
            u"AG AI AW BB BL BM BQ BS BZ CA CR CU CW DM DO GD GL GP GT HN HT JM KN KY LC MF MQ MS MX NI PA PM PR SV SX "
            "TC TT US VC VG VI"_s },
        { u"Oceania"_s, u"AS AU CC CK CX FJ FM GU HM KI MH MP NC NF NR NU NZ PF PG PN PW SB TK TO TV UM VU WF WS"_s },
        { u"South America"_s, u"AR BO BR BV CL CO EC FK GF GS GY PE PY SR UY VE"_s },
    };
    QHash<QString, QString> known;
    for (const auto& [region, countries] : regions)
        for (const QString& country : countries.split(u' '))
            known.insert(country, region);
    return known;
}

}  // namespace

QString nameOf(const QString& countryCode)
{
    static const QHash<QString, QString> known = byCountry();
    return known.value(countryCode.toUpper());
}

}  // namespace Quorbel::WorldRegions
