// What stands above the inspector's form: the photo being edited.
// Thread: the main thread.
#pragma once

#include <QUrl>
#include <QWidget>

namespace Quorbel {

class ThemedLabel;
class ThumbnailStore;
class ThumbnailView;
struct ImageRecord;

/// Thumbnail, file name, details, and where edits go that do not go into the file.
class PhotoHeader final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PhotoHeader)

public:
    static constexpr qreal heightInPoints = 60;

    /// The store may be null; it is not owned and must outlive this.
    explicit PhotoHeader(ThumbnailStore* thumbs, QWidget* parent = nullptr);
    /// What is shown of the photo where that is not what its record says: a shot of two files.
    struct Shot {
        QUrl picture{};  ///< the file whose thumbnail is shown
        QString details{};
        QString names{};  ///< of all files, for the tool tip
    };
    void setRecord(const ImageRecord& record, const Shot& shot);
    /// The text, and the whole path; "": nothing of that.
    void setSidecar(const QString& text, const QString& path);
    /// At the right end, where that leaves room for the texts; it becomes a child of this.
    void setAtEnd(QWidget* widget);

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showEnd();
    void elideSidecar();

    ThumbnailView* m_thumbnail;
    ThemedLabel* m_name;
    ThemedLabel* m_details;
    ThemedLabel* m_sidecar;
    QString m_sidecarText;  ///< as long as it is
    QString m_sidecarName;
    QString m_pictureName;  ///< of the file whose pixels are shown
    QWidget* m_atEnd = nullptr;
    QWidget* m_end;  ///< holds what is at the end; hidden where there is no room
};

}  // namespace Quorbel
