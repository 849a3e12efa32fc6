// A close look at one photo after the other: it fills the window, fitted or pixel by pixel, on a dark ground.
// Thread: the main thread. Shows the model's primary photo and calls it; pictures are decoded elsewhere.
#pragma once

#include "app/model/closeup/WholePictures.h"
#include "ui/closeup/CloseupPlace.h"

#include <QPointer>
#include <QWidget>

#include <optional>

namespace Quorbel {

class AppModel;
class BriefNote;
class CloseupLine;
class ThumbnailStore;
struct CloseupText;

class CloseupView final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CloseupView)

public:
    /// Covers all of `window` and follows its size, under its sheets. The store may be null. Takes the keyboard, and
    /// keeps it from what lies behind.
    CloseupView(AppModel& model, ThumbnailStore* thumbs, WholePicturesOptions options, QWidget* window);

    const CloseupPlace& place() const { return m_place; }
    const WholePictures& pictures() const { return m_pictures; }
    /// What the line says.
    CloseupText text() const;
    /// The picture that is seen, and how many device pixels of the photo it stands for.
    struct Seen {
        QImage image{};
        QSize photo{};
        bool isSharp = false;
    };
    Seen seen() const;

signals:
    /// The user has seen enough, or there is nothing to see any more.
    void closed();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool) override { return true; }
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();
    void look();
    void refresh();
    void step(int places);
    void rate(int stars);
    bool move(const QKeyEvent& event);
    bool zoom(const QKeyEvent& event);
    void setPlace(const CloseupPlace& place);
    void zoomBy(double factor, QPointF at);
    void keepKeyboard(const QWidget* now);
    QSize viewSize() const;
    QPointF devicePoint(QPointF point) const { return point * devicePixelRatioF(); }
    QString noteOf(const WholePicture* picture) const;
    QString sizeNoteOf(const WholePicture& picture) const;
    QString problem() const;
    void paintPhoto(QPainter& painter) const;

    AppModel& m_model;
    QPointer<ThumbnailStore> m_thumbs;
    WholePictures m_pictures;
    CloseupLine* m_line;
    BriefNote* m_note;
    std::optional<QUrl> m_photo;
    CloseupPlace m_place;
    int m_towards = 1;  ///< where the last step led
    std::optional<QPointF> m_pressed;  ///< where the button went down, until it is let go
    bool m_isDragged = false;
};

}  // namespace Quorbel
