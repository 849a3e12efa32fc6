// A small map around a point, with a marker on it.
// Thread: the main thread; the drawing is the renderer's business.
#pragma once

#include "core/text/Coordinates.h"
#include "platform/places/map/MapRenderer.h"

#include <QImage>
#include <QTimer>
#include <QWidget>

namespace Quorbel {

/// 96 points high, as wide as its place. Without a renderer or without map data: a plain panel with the marker.
class MapPreview final : public QWidget {
    Q_OBJECT

public:
    /// The renderer may be null; it is not owned and must outlive this.
    explicit MapPreview(MapRenderer* renderer, QWidget* parent = nullptr);
    ~MapPreview() override;
    void setPoint(const Coordinates::Point& point);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void ask();
    void paintMarker(QPainter& painter, QPointF tip) const;
    void paintAttribution(QPainter& painter) const;

    MapRenderer* m_renderer;
    Coordinates::Point m_point{};
    PlaceToken m_request;
    QTimer m_delay;  ///< gathers the sizes of a window being resized
    MapImage m_map{};
};

}  // namespace Quorbel
