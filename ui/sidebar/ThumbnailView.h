// The square thumbnail of one photo.
// Thread: the main thread. Asks the store when it is painted, so that only what is on screen is made.
#pragma once

#include "app/model/thumbnails/ThumbnailStore.h"

#include <QPointer>
#include <QWidget>

namespace Quorbel {

/// Fills a square with the cached thumbnail, clipped to rounded corners; an empty placeholder until there is one, the
/// file's type where none can be made.
class ThumbnailView final : public QWidget {
    Q_OBJECT

public:
    /// `size` and `corner` in points. The store may be null (nothing is then shown) and is not owned.
    ThumbnailView(ThumbnailStore* thumbs, qreal size, qreal corner, QWidget* parent = nullptr);
    void setUrl(const QUrl& url);
    const QUrl& url() const { return m_url; }
    QSize sizeHint() const override;

    /// The same drawing for item delegates: `rect` in device-independent pixels, corner in pixels.
    static void paint(QPainter& painter, const QRectF& rect, qreal corner, const ThumbnailStore::Entry& entry,
        const QUrl& url, const struct Theme& theme);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPointer<ThumbnailStore> m_thumbs;
    qreal m_size;
    qreal m_corner;
    QUrl m_url;
};

}  // namespace Quorbel
