#include "platform/places/search/CombinedPlaceProvider.h"

#include "platform/places/search/PlaceDatabase.h"
#include "platform/places/search/PlaceText.h"

#include <algorithm>

namespace Quorbel {

namespace {

using Suggestions = QList<PlaceSuggestion>;

// Two services put the middle of a town at different squares.
constexpr double samePlaceDistance = 10;  // km

bool isSamePlace(const PlaceSuggestion& a, const PlaceSuggestion& b)
{
    return a.placemark && b.placemark && foldPlaceName(a.title) == foldPlaceName(b.title)
        && kilometersBetween(a.placemark->point, b.placemark->point) < samePlaceDistance;
}

Suggestions merged(Suggestions places, const Suggestions& others)
{
    for (const auto& other : others) {
        if (std::none_of(places.cbegin(), places.cend(), [&](const auto& place) { return isSamePlace(place, other); }))
            places.append(other);
    }
    return places;
}

// Two questions under way, and what the first has answered so far.
struct CombinedRequest final : PlaceRequest {
    Suggestions found{};
    PlaceToken first{};
    PlaceToken second{};
};

}  // namespace

CombinedPlaceProvider::CombinedPlaceProvider(
    std::unique_ptr<PlaceProvider> first, std::unique_ptr<PlaceProvider> second)
    : m_first(std::move(first))
    , m_second(std::move(second))
{
}

PlaceToken CombinedPlaceProvider::suggest(const PlaceQuery& query, PlaceCallback<QList<PlaceSuggestion>> answer)
{
    auto request = std::make_unique<CombinedRequest>();
    auto* const state = request.get();
    state->first = m_first->suggest(query, [state, answer](const PlaceResult<Suggestions>& result) {
        state->found = result.value;
        answer(result);
    });
    state->second = m_second->suggest(query, [state, answer](const PlaceResult<Suggestions>& result) {
        answer({ merged(state->found, result.value), result.error, result.detail });
    });
    return request;
}

PlaceToken CombinedPlaceProvider::resolve(const PlaceSuggestion& suggestion, PlaceCallback<Placemark> answer)
{
    return (suggestion.placemark ? m_second : m_first)->resolve(suggestion, std::move(answer));
}

PlaceToken CombinedPlaceProvider::reverse(const GeoPoint& point, const QLocale& locale, PlaceCallback<Placemark> answer)
{
    return m_first->reverse(point, locale, std::move(answer));
}

QString CombinedPlaceProvider::attribution() const
{
    return m_first->attribution() + u' ' + m_second->attribution();
}

}  // namespace Quorbel
