// What stands under the place fields: a map of the coordinates, and a link that looks up what lies there.
// Thread: the main thread. Asks a place provider; knows nothing of the model.
#pragma once

#include "core/schema/LocationFill.h"
#include "core/text/Coordinates.h"
#include "platform/places/map/MapRenderer.h"

#include <QWidget>

#include <optional>

namespace Quorbel {

class MapPreview;
class QBTextButton;
class ThemedLabel;

class LocationMap final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LocationMap)

public:
    /// Both may be null; they are not owned and must outlive this.
    LocationMap(PlaceProvider* places, MapRenderer* maps, QWidget* parent = nullptr);
    /// Hidden without a point. `offersFill`: the place fields are empty, so the link shows.
    void setPoint(const std::optional<Coordinates::Point>& point, bool offersFill);
    /// Drops a look-up under way and what the last one said: the form shows another photo now.
    void abandon();
    QBTextButton* fillLink() const { return m_link; }

signals:
    void found(const Quorbel::LocationFill::Result& result);

private:
    void lookUp();
    void finish(const PlaceResult<Placemark>& answer);

    PlaceProvider* m_places;
    MapPreview* m_map;
    QWidget* m_line;
    QBTextButton* m_link;
    ThemedLabel* m_failure;
    std::optional<Coordinates::Point> m_point;
    PlaceToken m_request;
};

}  // namespace Quorbel
