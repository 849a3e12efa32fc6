// Place search by a service on the network that the user named: one that speaks as Photon does.
// Thread: that of the maker, which needs an event loop. Knows nothing of the files here.
//
// What is typed is sent to that address and to no other (redirections elsewhere are refused), and nothing else is:
// positions are never looked up online.
#pragma once

#include "platform/places/search/PlaceProvider.h"

#include <chrono>

namespace Quorbel {

struct OnlinePlaceOptions {
    QUrl endpoint{};  ///< one that placeEndpoint() accepts; "/api" is added when it is missing
    std::chrono::milliseconds pause{ 300 };  ///< after the last letter, before anything is sent
    std::chrono::milliseconds timeout{ 5000 };  ///< for the whole answer
};

class OnlinePlaceProvider final : public PlaceProvider {
public:
    explicit OnlinePlaceProvider(const OnlinePlaceOptions& options);
    ~OnlinePlaceProvider() override;
    Q_DISABLE_COPY_MOVE(OnlinePlaceProvider)

    /// Answers once, later; with nothing, and asking nobody, for fewer than three letters. rateLimited while the
    /// service wants to be left alone, offline when it cannot be reached or is too slow.
    PlaceToken suggest(const PlaceQuery& query, PlaceCallback<QList<PlaceSuggestion>> answer) override;
    /// Suggestions hold all there is; noResult for one that does not.
    PlaceToken resolve(const PlaceSuggestion& suggestion, PlaceCallback<Placemark> answer) override;
    /// Always noResult: see above.
    PlaceToken reverse(const GeoPoint& point, const QLocale& locale, PlaceCallback<Placemark> answer) override;
    QString attribution() const override;

    struct Service;

private:
    std::shared_ptr<Service> m_service;  // shared with the requests under way, which may outlive this
};

}  // namespace Quorbel
