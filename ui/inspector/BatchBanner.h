// What stands above the inspector's form while several photos are edited: how many they are.
// Thread: the main thread.
#pragma once

#include <QWidget>

namespace Quorbel {

/// Takes the header's place, at the same height, while several photos are edited.
class BatchBanner final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BatchBanner)

public:
    explicit BatchBanner(QWidget* parent = nullptr);
    /// How many they are, and what is said under that; "": what one does here.
    void setPhotos(qsizetype count, const QString& note);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_title;
    QString m_note;
};

}  // namespace Quorbel
