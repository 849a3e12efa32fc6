// Thumbnails and previews of the photos on screen, made in the background, kept within a byte bound. Each belongs to
// one version of its file: another file under the same name never shows it. Thread: the main thread only. Work runs in
// a pool of its own; results come back as queued calls, and a destroyed store receives none. Knows no widget: views ask
// and are told when an image changed.
#pragma once

#include "app/model/thumbnails/FileVersion.h"
#include "core/renaming/NewNames.h"
#include "core/tool/ExifToolRunner.h"
#include "platform/images/DecodedImage.h"

#include <QCache>
#include <QHash>
#include <QImage>
#include <QList>
#include <QObject>
#include <QSet>
#include <QUrl>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stop_token>
#include <tuple>

class QThreadPool;

namespace Quorbel {

struct ThumbnailStoreOptions {
    using Decode = std::function<DecodedImage(const QString& path, int longSide, const std::stop_token& stop)>;
    using Embedded = std::function<QImage(const QString& path, const std::stop_token& stop)>;

    qsizetype smallBytes = 64LL * 1024 * 1024;  ///< bound of the small images in memory
    qsizetype previewBytes = 48LL * 1024 * 1024;  ///< bound of the previews in memory
    QString cacheFolder{};  ///< the store's own folder on disk, made when missing; empty: none
    qint64 cacheFolderBytes = 512LL * 1024 * 1024;  ///< pruneDisk() removes the oldest files beyond this
    QString sharedFolder{};  ///< thumbnails that other programs share (~/.cache/thumbnails): read, never written
    int workers = 0;  ///< threads that decode; 0: one less than the processor has cores, at least one
    qreal devicePixelRatio = 1;
    std::optional<ExifToolRunner> tool{};  ///< takes previews out of raw files that the libraries refuse
    Decode decode{};  ///< the decoders of ImageModule when empty
    Embedded embedded{};  ///< the same

    /// The defaults with this user's folders.
    static ThumbnailStoreOptions forUser();
};

class ThumbnailStore final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ThumbnailStore)

public:
    /// small: sidebar rows and the inspector's header; preview: the preview column (1,400 pixels, long side).
    enum class Kind { small, preview };
    enum class State {
        none,  ///< nothing yet, and nothing asked for
        loading,  ///< asked for; nothing to show yet
        placeholder,  ///< something to show until the real image is there
        ready,  ///< the image
        badge,  ///< nothing to show: show the file's type instead; not tried again until the file changes
    };
    struct Entry {
        State state = State::none;
        /// Oriented, sRGB, device pixels; null for none, loading and badge. Transparent pictures stay transparent:
        /// they are painted over the panel's colour.
        QImage image{};
        /// The photo itself cannot be decoded, and nothing better than this thumbnail of it will come.
        bool isStandIn = false;
    };

    explicit ThumbnailStore(ThumbnailStoreOptions options = {}, QObject* parent = nullptr);
    /// Ends what runs; waits a moment for it, never for ever.
    ~ThumbnailStore() override;

    /// What is there now. Asks for nothing, and looks at the file only once after each lookAgain().
    Entry entry(const QUrl& url, Kind kind) const;
    /// What is there now, of the file as it is now; when that is not final, makes the image. The newest requests are
    /// served first. A second request for an image that is being made starts no second job.
    Entry request(const QUrl& url, Kind kind);
    /// The rows on screen, and those near them, which are served next. Requests for small images of other URLs are
    /// dropped: entryChanged tells whoever still shows one of them to ask again.
    void setVisible(const QList<QUrl>& urls, const QList<QUrl>& near = {});
    /// Another program changed these files: what belongs to their old content is forgotten. Images of the rows on
    /// screen are made anew at once, others on request.
    void invalidate(const QList<QUrl>& urls);
    /// Other files may lie under the same names from now on: each is looked at when its entry is next asked for.
    void lookAgain() { ++m_looks; }
    /// A file has another name, in this program: its pictures go with it, and what the new name stood for is forgotten.
    void rename(const QUrl& source, const QUrl& destination) { rename(NewNames(source, destination)); }
    /// The same for many, all at once.
    void rename(const NewNames& names);
    /// We are about to write metadata into these files. Until endWriting what is held of them stays.
    void beginWriting(const QList<QUrl>& urls);
    /// The write is over. `written`: those whose metadata alone changed, so that their pictures stay theirs.
    void endWriting(const QList<QUrl>& written);
    /// The pixels of small images follow the screen: their long side is 90 points times this ratio (at least 1), so
    /// that an ordinary photo fills a square of 60.
    void setDevicePixelRatio(qreal ratio);
    /// Takes the disk cache back to its bound, in the background.
    void pruneDisk();
    /// Bytes of pixels in memory.
    qsizetype bytesHeld(Kind kind) const;

signals:
    /// The entry of this URL changed (placeholder, ready, badge, or forgotten).
    void entryChanged(const QUrl& url, Quorbel::ThumbnailStore::Kind kind);

private:
    /// What is done for one image, in this order.
    enum class Step {
        look,  ///< the disk cache, or something to show meanwhile
        decode,
        tool,  ///< one run of ExifTool for a raw file's preview
    };
    enum class Band { visible, near, rest };  ///< who is served first
    struct Key {
        QUrl url{};
        Kind kind = Kind::small;
        bool operator==(const Key&) const = default;
        friend size_t qHash(const Key& key, size_t seed = 0) { return qHashMulti(seed, key.url, int(key.kind)); }
    };
    /// Smallest first: not the tool, band, step, previews before small images, newest request.
    using Rank = std::tuple<bool, Band, Step, bool, qint64>;
    struct Job {
        Step step = Step::look;
        Band band = Band::rest;
        qint64 ticket = 0;
        bool running = false;
        QImage impression{};  ///< what was found first, kept in case that nothing else can be made
        std::stop_source stop{};
    };
    /// Which file something belongs to, and when that was last found true.
    struct Seen {
        FileVersion version{};
        int look = 0;
    };
    struct Held {
        QImage image{};
        bool final = false;
        bool isStandIn = false;
        Seen seen{};
    };
    struct Outcome {
        QImage image{};
        bool final = false;  ///< nothing better will come
        bool isDecoded = false;  ///< the photo's own pixels, or the disk cache's
        bool needsTool = false;  ///< the libraries refuse this file
        bool fromTool = false;
        FileVersion version{};  ///< of the file that the image was made of
        bool isOutdated = false;  ///< the file changed meanwhile
    };
    struct PictureMaker;
    struct Mailbox;

    QCache<QUrl, Held>& cache(Kind kind) { return kind == Kind::small ? m_small : m_previews; }
    const QCache<QUrl, Held>& cache(Kind kind) const { return kind == Kind::small ? m_small : m_previews; }
    int longSide(Kind kind) const;
    bool isCurrent(const QUrl& url, Seen& seen, bool looks) const;
    bool forgetStale(const Key& key);
    Band bandOf(const Key& key) const;
    Rank rankOf(const Key& key, const Job& job) const;
    void enqueue(const Key& key, Job& job);
    bool drop(const Key& key);
    void dropOldPreviews();
    void announceStale(const QList<Key>& keys);
    void dispatch();
    void start(const Key& key, const Job& job);
    void finish(const Key& key, qint64 ticket, const Outcome& outcome);
    bool showMeanwhile(const Key& key, const Outcome& outcome);
    QList<Key> settleWithout(const Key& key, const Outcome& outcome);
    void keep(const Key& key, Held held);
    QList<Key> carry(const QList<std::pair<QUrl, QUrl>>& files, Kind kind);
    void carryOnDisk(const QList<std::pair<QUrl, QUrl>>& files, std::optional<FileVersion> version) const;

    ThumbnailStoreOptions m_options;
    std::shared_ptr<const PictureMaker> m_pictureMaker;
    std::shared_ptr<Mailbox> m_mailbox;
    std::unique_ptr<QThreadPool> m_pool;
    std::unique_ptr<QThreadPool> m_toolPool;
    int m_lanes = 1;
    int m_running = 0;
    bool m_toolRunning = false;
    qint64 m_lastTicket = 0;
    std::optional<QSet<QUrl>> m_visible;  ///< nothing until the first setVisible: all requests count as visible
    QSet<QUrl> m_near;
    QHash<Key, Job> m_jobs;  ///< every image that is being made
    std::map<Rank, Key> m_queue;
    int m_looks = 0;
    QSet<QUrl> m_beingWritten;
    mutable QHash<Key, Seen> m_badges;
    QCache<QUrl, Held> m_small;
    QCache<QUrl, Held> m_previews;
};

}  // namespace Quorbel
