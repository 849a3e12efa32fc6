// Thumbnails and previews of the photos on screen, made in the background, kept within a byte bound.
// Thread: the main thread only. Knows no widget: views ask and are told when an image changed.
#pragma once

#include <QImage>
#include <QList>
#include <QObject>
#include <QUrl>

namespace Quorbel {

struct ThumbnailStoreOptions;

class ThumbnailStore final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ThumbnailStore)

public:
    /// small: sidebar rows and the inspector's header; preview: the preview column (1,400 pixels, long side).
    enum class Kind { small, preview };
    enum class State {
        none,  ///< nothing yet, and nothing asked for
        loading,  ///< asked for; nothing to show yet
        placeholder,  ///< an embedded thumbnail to show until the real image is there
        ready,  ///< the image
        badge,  ///< cannot be decoded: show the file's type instead; not tried again until the file changes
    };
    struct Entry {
        State state = State::none;
        QImage image{};  ///< oriented, sRGB, device pixels; null for none, loading and badge
    };

    /// What is there now. Asks for nothing.
    Entry entry(const QUrl& url, Kind kind) const;
    /// What is there now; when that is not final, makes the image. The newest requests are served first. A second
    /// request for an image that is being made starts no second job.
    Entry request(const QUrl& url, Kind kind);
    /// The rows on screen: requests for small images of other URLs that have not begun are dropped.
    void setVisible(const QList<QUrl>& urls);
    /// Forgets what is known of these files: their content changed.
    void invalidate(const QList<QUrl>& urls);
    /// The pixels of small images follow the screen: 60 points times this ratio, at least 1.
    void setDevicePixelRatio(qreal ratio);

signals:
    /// The entry of this URL changed (placeholder, ready, badge, or forgotten).
    void entryChanged(const QUrl& url, Quorbel::ThumbnailStore::Kind kind);
};

}  // namespace Quorbel
