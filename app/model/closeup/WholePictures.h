// Photos with all their pixels, for a close look: the one that is looked at and those that may come next, decoded in
// the background and kept within a bound of bytes. Thread: the main thread only. Work runs in threads of its own; what
// nobody looks at any more is cancelled. Knows no widget.
#pragma once

#include "app/model/thumbnails/FileVersion.h"
#include "core/tool/ExifToolRunner.h"
#include "platform/images/DecodedImage.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

class QThreadPool;

namespace Quorbel {

struct WholePicture {
    /// The picture, upright and sRGB, and then each time half of the one before; none where it cannot be shown.
    QList<QImage> levels{};
    QSize photo{};  ///< how large the photo itself is, where the picture is smaller or another one
    bool isPreview = false;  ///< out of a camera's raw file
    bool isIncomplete = false;  ///< some of it could not be read
    DecodedImage::Outcome outcome = DecodedImage::Outcome::decoded;

    QSize size() const { return levels.isEmpty() ? QSize() : levels.constFirst().size(); }
    qsizetype bytes() const;
};

struct WholePicturesOptions {
    using Decode = std::function<DecodedImage(const QString& path, qint64 mostPixels, const std::stop_token& stop)>;

    qint64 mostPixels = 100'000'000;  ///< of one picture; what has more is shown reduced
    qsizetype mostBytes = 0;  ///< of all; the one that is looked at may be larger. 0: an eighth of the machine's memory
    std::optional<ExifToolRunner> tool{};  ///< takes previews out of raw files that the libraries refuse
    Decode decode{};  ///< that of ImageModule when empty
};

class WholePictures final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WholePictures)

public:
    explicit WholePictures(WholePicturesOptions options = {}, QObject* parent = nullptr);
    /// Ends what runs; waits a moment for it, never for ever.
    ~WholePictures() override;

    /// This photo is looked at now: of its file as it is now. `ahead`: those that may come next, the likeliest first;
    /// they are decoded once this one is there, as far as the bound lets. All else that is being decoded is cancelled.
    void look(const QUrl& photo, const QList<QUrl>& ahead);
    /// Nobody looks any more: everything is forgotten.
    void clear();
    /// What is there of the photo; null while nothing is. Valid until the next call, and until changed().
    const WholePicture* picture(const QUrl& photo) const;
    qsizetype bytesHeld() const;
    /// How many are being decoded, cancelled ones that have not let go yet among them.
    int running() const { return m_running; }

signals:
    void changed(const QUrl& photo);

private:
    struct Job {
        std::stop_source stop{};
        int ticket = 0;
    };
    struct Held {
        WholePicture picture{};
        FileVersion version{};
        int seen = 0;  ///< when it was last looked at
    };
    struct Decoder;

    void pump();
    void start(const QUrl& photo, bool isAhead);
    void finish(const QUrl& photo, int ticket, Held made);
    void cancelAllBut(const QList<QUrl>& photos);
    void makeRoom();

    std::shared_ptr<const Decoder> m_decoder;
    qsizetype m_mostBytes;
    std::unique_ptr<QThreadPool> m_pool;
    std::unique_ptr<QThreadPool> m_aheadPool;
    QList<QUrl> m_wanted;  ///< the one that is looked at, then those ahead
    QList<QUrl> m_tooMuch;  ///< ahead, for which there is no room beside the others
    QHash<QUrl, Job> m_jobs;
    QHash<QUrl, Held> m_held;
    int m_looks = 0;
    int m_tickets = 0;
    int m_running = 0;
};

}  // namespace Quorbel
