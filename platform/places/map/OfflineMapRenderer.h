// Maps from the files on this machine, drawn on a thread of its own.
// Thread: the main thread; only the drawing happens elsewhere.
#pragma once

#include "platform/places/map/MapData.h"
#include "platform/places/map/MapRenderer.h"

#include <QObject>
#include <QThreadPool>

namespace Quorbel {

class OfflineMapRenderer final : public MapRenderer {
public:
    explicit OfflineMapRenderer(const QString& dataFolder);
    /// Waits for the map being drawn; no answer comes after that.
    ~OfflineMapRenderer() override;
    Q_DISABLE_COPY_MOVE(OfflineMapRenderer)

    PlaceToken render(const MapRequest& request, PlaceCallback<MapImage> answer) override;

private:
    std::shared_ptr<const MapData> m_data;  ///< null: there is none
    std::shared_ptr<std::atomic<bool>> m_isClosing;
    std::unique_ptr<QObject> m_desk;  ///< lives in the main thread; answers pass over it
    QThreadPool m_worker;  ///< of one thread
};

}  // namespace Quorbel
