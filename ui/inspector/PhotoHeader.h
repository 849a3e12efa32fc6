// What stands above the inspector's form: the photo being edited, or how many are.
// Thread: the main thread.
#pragma once

#include "core/schema/ImageRecord.h"

#include <QWidget>

namespace Quorbel {

class ThemedLabel;
class ThumbnailStore;
class ThumbnailView;

/// Thumbnail, file name, details. 60 points high.
class PhotoHeader final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PhotoHeader)

public:
    /// The store may be null; it is not owned and must outlive this.
    explicit PhotoHeader(ThumbnailStore* thumbs, QWidget* parent = nullptr);
    void setRecord(const ImageRecord& record);

private:
    ThumbnailView* m_thumbnail;
    ThemedLabel* m_name;
    ThemedLabel* m_details;
};

/// Takes the header's place, at the same height, while several photos are edited.
class BatchBanner final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BatchBanner)

public:
    explicit BatchBanner(QWidget* parent = nullptr);
    void setCount(qsizetype photos);
    const QString& title() const { return m_title; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_title;
};

}  // namespace Quorbel
