#include "platform/places/search/PhotonAnswer.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// It comes from elsewhere and may end up in a photo: one line, of a name's length.
QString oneLine(const QJsonValue& value)
{
    constexpr qsizetype longestName = 200;
    return value.toString().simplified().left(longestName);
}

QString firstOf(const QJsonObject& properties, std::initializer_list<QStringView> keys)
{
    for (const auto key : keys) {
        if (const auto text = oneLine(properties[key]); !text.isEmpty())
            return text;
    }
    return {};
}

std::optional<PlaceSuggestion> readFeature(const QJsonObject& feature)
{
    const auto properties = feature[u"properties"].toObject();
    const auto position = feature[u"geometry"][u"coordinates"].toArray();
    Placemark place;
    place.name = oneLine(properties[u"name"]);
    if (place.name.isEmpty())
        place.name = (oneLine(properties[u"street"]) + u' ' + oneLine(properties[u"housenumber"])).trimmed();
    place.point = { position[1].toDouble(999), position[0].toDouble(999) };
    if (place.name.isEmpty() || !place.point.isValid())
        return std::nullopt;
    place.locality =
        properties[u"type"] == u"city"_s ? place.name : firstOf(properties, { u"city", u"locality", u"district" });
    place.administrativeArea = firstOf(properties, { u"state", u"county" });
    place.country = oneLine(properties[u"country"]);
    place.countryCode = oneLine(properties[u"countrycode"]).toUpper();
    QStringList where;
    for (const auto& part : { place.locality, place.administrativeArea, place.country }) {
        if (!part.isEmpty() && part != place.name && !where.contains(part))
            where << part;
    }
    const auto id =
        u"photon:"_s + oneLine(properties[u"osm_type"]) + QString::number(properties[u"osm_id"].toInteger());
    return PlaceSuggestion{ place.name, where.join(u", "_s), id, place };
}

}  // namespace

std::optional<QList<PlaceSuggestion>> readPhotonAnswer(const QByteArray& json)
{
    const auto features = QJsonDocument::fromJson(json)[u"features"];
    if (!features.isArray())
        return std::nullopt;
    QList<PlaceSuggestion> places;
    for (const QJsonValue feature : features.toArray()) {
        if (const auto place = readFeature(feature.toObject()))
            places.append(*place);
    }
    return places;
}

int secondsToWait(const QByteArray& retryAfter, int refusals, const QDateTime& now)
{
    constexpr int firstWait = 30;
    constexpr qint64 longestWait = 3600;
    bool isNumber = false;
    qint64 seconds = retryAfter.trimmed().toLongLong(&isNumber);
    if (!isNumber) {
        // HTTP names the zone, which Qt does not read.
        const auto text = QString::fromLatin1(retryAfter.trimmed()).replace(u"GMT"_s, u"+0000"_s);
        const auto date = QDateTime::fromString(text, Qt::RFC2822Date);
        seconds = date.isValid() ? now.secsTo(date) : firstWait * (qint64(1) << std::clamp(refusals - 1, 0, 10));
    }
    return int(std::clamp<qint64>(seconds, 1, longestWait));
}

}  // namespace Quorbel
