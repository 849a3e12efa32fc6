// The right column: a large preview of the one selected photo, or a stack of cards for several.
// Thread: the main thread. Shows AppModel; the images are the thumbnail store's.
#pragma once

#include "app/model/thumbnails/ThumbnailStore.h"

#include <QPixmap>
#include <QPointer>
#include <QUrl>
#include <QWidget>

namespace Quorbel {

class AppModel;

class PreviewColumnView final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PreviewColumnView)

public:
    /// The store may be null: placeholders are then shown for ever.
    PreviewColumnView(AppModel& model, ThumbnailStore* thumbs, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    /// An image scaled for where it was last painted.
    struct Scaled {
        qint64 imageKey = 0;
        QSize size{};  ///< device pixels
        QPixmap pixmap{};
    };

    void follow();
    QList<QUrl> shownUrls() const;
    QRect stage() const;
    ThumbnailStore::Entry entryOf(const QUrl& photo) const;
    bool isStandIn() const;
    void paintOne(QPainter& painter);
    void paintCards(QPainter& painter);
    void paintCard(QPainter& painter, const QRectF& card, const QUrl& url, int slot);
    void paintWord(QPainter& painter, const QRectF& photo);
    void paintPlaceholder(QPainter& painter, const QRectF& rect, const QString& text);
    void paintFoot(QPainter& painter);
    const QPixmap& scaled(const QImage& image, QSize devicePixels, int slot);

    AppModel& m_model;
    QPointer<ThumbnailStore> m_thumbs;
    QList<QUrl> m_urls{};  ///< shown, the front one first
    QList<Scaled> m_scaled{ {}, {}, {} };
};

}  // namespace Quorbel
