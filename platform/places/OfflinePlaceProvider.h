// Places from a file on this machine: search by name, reverse look-up. Answers within the call.
// Thread: the one that made it. Knows nothing of the network.
#pragma once

#include "platform/places/PlaceProvider.h"

namespace Quorbel {

class OfflinePlaceProvider final : public PlaceProvider {
public:
    /// The folder that holds places.db.
    explicit OfflinePlaceProvider(QString dataFolder);

    PlaceToken suggest(const PlaceQuery& query, PlaceCallback<QList<PlaceSuggestion>> answer) override;
    PlaceToken resolve(const PlaceSuggestion& suggestion, PlaceCallback<Placemark> answer) override;
    PlaceToken reverse(const GeoPoint& point, const QLocale& locale, PlaceCallback<Placemark> answer) override;
    QString attribution() const override;

private:
    QString m_dataFolder;
};

}  // namespace Quorbel
