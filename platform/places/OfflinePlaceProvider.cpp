#include "platform/places/OfflinePlaceProvider.h"

namespace Quorbel {

namespace {

template <typename T>
PlaceResult<T> noData()
{
    return { {}, PlaceError::noData, QStringLiteral("Place search is not installed") };
}

}  // namespace

OfflinePlaceProvider::OfflinePlaceProvider(QString dataFolder)
    : m_dataFolder(std::move(dataFolder))
{
}

PlaceToken OfflinePlaceProvider::suggest(const PlaceQuery&, PlaceCallback<QList<PlaceSuggestion>> answer)
{
    answer(noData<QList<PlaceSuggestion>>());
    return nullptr;
}

PlaceToken OfflinePlaceProvider::resolve(const PlaceSuggestion& suggestion, PlaceCallback<Placemark> answer)
{
    if (suggestion.placemark)
        answer({ *suggestion.placemark, PlaceError::none, {} });
    else
        answer(noData<Placemark>());
    return nullptr;
}

PlaceToken OfflinePlaceProvider::reverse(const GeoPoint&, const QLocale&, PlaceCallback<Placemark> answer)
{
    answer(noData<Placemark>());
    return nullptr;
}

QString OfflinePlaceProvider::attribution() const
{
    return QStringLiteral("Places: GeoNames (CC BY 4.0, modified), OurAirports, Natural Earth, "
                          "i18n-iso-countries (MIT). Map: GSHHG by Wessel & Smith (LGPL 3 or later), Natural Earth.");
}

}  // namespace Quorbel
