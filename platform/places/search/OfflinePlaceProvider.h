// Places from a file on this machine: search by name, reverse look-up. Every answer comes within the call.
// Thread: the one that made it. Knows nothing of the network.
#pragma once

#include "platform/places/search/PlaceProvider.h"

namespace Quorbel {

class PlaceDatabase;

class OfflinePlaceProvider final : public PlaceProvider {
public:
    /// The folder that holds places.db, which is opened when first asked for something.
    explicit OfflinePlaceProvider(QString dataFolder);
    ~OfflinePlaceProvider() override;
    Q_DISABLE_COPY_MOVE(OfflinePlaceProvider)

    PlaceToken suggest(const PlaceQuery& query, PlaceCallback<QList<PlaceSuggestion>> answer) override;
    PlaceToken resolve(const PlaceSuggestion& suggestion, PlaceCallback<Placemark> answer) override;
    PlaceToken reverse(const GeoPoint& point, const QLocale& locale, PlaceCallback<Placemark> answer) override;
    QString attribution() const override;

private:
    /// Null when the file is missing or not one of ours; looked for again at the next question.
    PlaceDatabase* database();

    QString m_dataFolder;
    std::unique_ptr<PlaceDatabase> m_database;
};

}  // namespace Quorbel
