// Places from two providers: the first answers within the call, the second later, adding below what is new.
// Thread: the one that made it. Knows neither files nor network.
#pragma once

#include "platform/places/search/PlaceProvider.h"

namespace Quorbel {

class CombinedPlaceProvider final : public PlaceProvider {
public:
    /// Looking up a position, and what the second does not know, is the first one's.
    CombinedPlaceProvider(std::unique_ptr<PlaceProvider> first, std::unique_ptr<PlaceProvider> second);

    /// Calls back for each provider, the limit being that of each. Where the second fails, its error comes with the
    /// list of the first.
    PlaceToken suggest(const PlaceQuery& query, PlaceCallback<QList<PlaceSuggestion>> answer) override;
    PlaceToken resolve(const PlaceSuggestion& suggestion, PlaceCallback<Placemark> answer) override;
    PlaceToken reverse(const GeoPoint& point, const QLocale& locale, PlaceCallback<Placemark> answer) override;
    QString attribution() const override;

private:
    std::unique_ptr<PlaceProvider> m_first;
    std::unique_ptr<PlaceProvider> m_second;
};

}  // namespace Quorbel
