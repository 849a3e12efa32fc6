// What stands above the inspector's form while several photos are edited: how many they are.
// Thread: the main thread.
#pragma once

#include <QWidget>

namespace Quorbel {

class NoticeLine;
class QBTextButton;

/// Takes the header's place, at the same height, while several photos are edited.
class BatchBanner final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BatchBanner)

public:
    explicit BatchBanner(QWidget* parent = nullptr);
    /// How many they are, and what is said under that; "": what one does here. `after` is said behind
    /// it, or in its place where there is no room for both.
    void setPhotos(qsizetype count, const QString& note, const QString& after = {});
    /// "12 photos have places that differ", with a button that makes them agree; "": nothing of that. What one does
    /// here gives way to it where there is no room for both.
    void setDisagreements(const QString& text, bool canAgree);
    QBTextButton* agree() const;
    /// At the right end, where that leaves room for the text; it becomes a child of this.
    void setAtEnd(QWidget* widget);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();
    bool isEndShown() const { return m_atEnd && !m_end->isHidden() && !m_atEnd->isHidden(); }
    QRect textArea() const;
    QStringList noteLines() const;

    QString m_title;
    QString m_note;
    QString m_after;
    NoticeLine* m_disagreements;
    QWidget* m_atEnd = nullptr;
    QWidget* m_end;  ///< holds it; hidden where there is no room
};

}  // namespace Quorbel
