#include "platform/places/search/OfflinePlaceProvider.h"

#include "platform/places/search/PlaceDatabase.h"
#include "platform/places/search/PlaceSearch.h"

#include <QDir>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

const QString idPrefix = u"place:"_s;

template <typename T>
PlaceResult<T> noData()
{
    return { {}, PlaceError::noData, u"Place search is not installed"_s };
}

// The other name that was found, if it was one; then state and country. An airport's or landmark's town comes first.
QString subtitleOf(const PlaceHit& hit, const Placemark& place)
{
    QStringList parts;
    for (const auto& part : { place.locality, place.administrativeArea, place.country }) {
        if (!part.isEmpty() && part != place.name && !parts.contains(part))
            parts << part;
    }
    const auto where = parts.join(u", "_s);
    return hit.matched.isEmpty() ? where : hit.matched + u" · "_s + where;
}

PlaceSuggestion suggestionOf(const PlaceDatabase& database, const PlaceHit& hit)
{
    const auto place = placemarkOf(database, hit.row);
    return { place.name, subtitleOf(hit, place), idPrefix + QString::number(hit.row.id), place };
}

}  // namespace

OfflinePlaceProvider::OfflinePlaceProvider(QString dataFolder)
    : m_dataFolder(std::move(dataFolder))
{
}

OfflinePlaceProvider::~OfflinePlaceProvider() = default;

PlaceDatabase* OfflinePlaceProvider::database()
{
    if (!m_database || !m_database->isOpen())
        m_database = std::make_unique<PlaceDatabase>(QDir(m_dataFolder).filePath(u"places.db"_s));
    return m_database->isOpen() ? m_database.get() : nullptr;
}

PlaceToken OfflinePlaceProvider::suggest(const PlaceQuery& query, PlaceCallback<QList<PlaceSuggestion>> answer)
{
    auto* const places = database();
    if (!places) {
        answer(noData<QList<PlaceSuggestion>>());
        return nullptr;
    }
    PlaceResult<QList<PlaceSuggestion>> result;
    for (const auto& hit : findPlaces(*places, query))
        result.value.append(suggestionOf(*places, hit));
    answer(result);
    return nullptr;
}

PlaceToken OfflinePlaceProvider::resolve(const PlaceSuggestion& suggestion, PlaceCallback<Placemark> answer)
{
    if (suggestion.placemark) {
        answer({ *suggestion.placemark, PlaceError::none, {} });
        return nullptr;
    }
    auto* const places = database();
    const auto row = places && suggestion.id.startsWith(idPrefix)
        ? places->place(suggestion.id.mid(idPrefix.size()).toInt())
        : std::nullopt;
    if (row)
        answer({ placemarkOf(*places, *row), PlaceError::none, {} });
    else
        answer({ {}, PlaceError::noResult, {} });
    return nullptr;
}

PlaceToken OfflinePlaceProvider::reverse(const GeoPoint& point, const QLocale&, PlaceCallback<Placemark> answer)
{
    auto* const places = database();
    if (!places) {
        answer(noData<Placemark>());
        return nullptr;
    }
    const auto place = point.isValid() ? placeAt(*places, point) : std::nullopt;
    if (place)
        answer({ *place, PlaceError::none, {} });
    else
        answer({ {}, PlaceError::noResult, {} });
    return nullptr;
}

QString OfflinePlaceProvider::attribution() const
{
    return u"Places: GeoNames (CC BY 4.0, modified), OurAirports, Natural Earth, i18n-iso-countries (MIT). "
           "Map: GSHHG by Wessel & Smith (LGPL 3 or later), Natural Earth. "
           "Time zones: © OpenStreetMap contributors (ODbL)."_s;
}

}  // namespace Quorbel
