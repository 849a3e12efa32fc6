#include "core/iptc/LocationCards.h"

#include "core/iptc/StructureText.h"
#include "core/iptc/WorldRegions.h"
#include "core/schema/FieldID.h"
#include "core/text/Coordinates.h"
#include "core/text/Text.h"

#include <algorithm>
#include <cmath>

namespace Quorbel::LocationCards {

using namespace Qt::StringLiterals;

namespace {

// The texts of a place: field and member.
const QList<std::pair<QString, QString>>& texts()
{
    static const QList<std::pair<QString, QString>> pairs{ { FieldID::sublocation, u"Sublocation"_s },
        { FieldID::place, u"City"_s }, { FieldID::state, u"ProvinceState"_s }, { FieldID::country, u"CountryName"_s } };
    return pairs;
}

constexpr QLatin1StringView countryCode("iptc.countryCode");

void setRegion(QJsonObject& members)
{
    members[u"WorldRegion"_s] = WorldRegions::nameOf(members[u"CountryCode"_s].toString());
}

void setPoint(QJsonObject& members, const Coordinates::Point& point)
{
    // As precise as the field of the position, and no longer than that.
    const auto text = [](double degrees) { return Text::shortestForm(std::round(degrees * 1e6) / 1e6); };
    members[u"GPSLatitude"_s] = text(point.latitude);
    members[u"GPSLongitude"_s] = text(point.longitude);
}

// What says where a place is; the rest says something about that place.
bool isWhere(const QString& member)
{
    static const QStringList names{ u"Sublocation"_s, u"City"_s, u"ProvinceState"_s, u"CountryName"_s, u"CountryCode"_s,
        u"WorldRegion"_s, u"GPSLatitude"_s, u"GPSLongitude"_s };
    return names.contains(member);
}

bool isAbout(const QString& member)
{
    return member == "LocationId" || member.startsWith(u"LocationName"_s) || member.startsWith(u"GPSAltitude"_s);
}

}  // namespace

QString fromFields(const std::function<QString(const QString& id)>& value)
{
    QJsonObject members;
    for (const auto& [id, member] : texts())
        members[member] = Text::trimmed(value(id));
    members[u"CountryCode"_s] = Text::trimmed(value(countryCode));
    setRegion(members);
    if (const auto point = Coordinates::parse(value(FieldID::coords)))
        setPoint(members, *point);
    return StructureText::of(members);
}

QString fromPlace(const LocationFill::Result& place)
{
    const QString town = place.locality.isEmpty() ? place.name : place.locality;
    QJsonObject members{ { u"City"_s, town }, { u"ProvinceState"_s, place.administrativeArea },
        { u"CountryName"_s, place.country }, { u"CountryCode"_s, place.countryCode } };
    if (place.name != town) {
        members[u"LocationName"_s] = place.name;
        members[u"Sublocation"_s] = place.name;
    }
    setRegion(members);
    setPoint(members, { place.latitude, place.longitude });
    return StructureText::of(members);
}

QString moved(const QString& card, const QString& place)
{
    const QJsonObject before = StructureText::members(card);
    QJsonObject members = StructureText::members(place);
    bool isSame = true;
    for (auto member = before.begin(); member != before.end(); ++member)
        isSame = isSame && (!isWhere(member.key()) || member.value() == members.value(member.key()));
    for (auto member = before.begin(); member != before.end(); ++member)
        if (!isWhere(member.key()) && !members.contains(member.key()) && (isSame || !isAbout(member.key())))
            members.insert(member.key(), member.value());
    return StructureText::of(members);
}

QList<LocationFill::Assignment> toFields(const QString& card, const std::function<QString(const QString& id)>& value)
{
    const QJsonObject members = StructureText::members(card);
    QList<LocationFill::Assignment> wanted;
    const bool hasTexts = std::any_of(
        texts().cbegin(), texts().cend(), [&members](const auto& pair) { return members.contains(pair.second); });
    for (const auto& [id, member] : texts())
        if (hasTexts)
            wanted.append({ id, members[member].toString() });
    if (members.contains(u"CountryCode"_s))
        wanted.append({ countryCode, members[u"CountryCode"_s].toString() });
    if (const auto point =
            Coordinates::parse(members[u"GPSLatitude"_s].toString() + u", "_s + members[u"GPSLongitude"_s].toString()))
        wanted.append({ FieldID::coords, Coordinates::displayString(*point) });
    wanted.removeIf([&value](const LocationFill::Assignment& one) { return one.value == value(one.id); });
    return wanted;
}

}  // namespace Quorbel::LocationCards
