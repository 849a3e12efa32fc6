// A list of choices that drops down from a button, as high as ten rows, and scrolls.
// Thread: the main thread.
#pragma once

#include <QListWidget>

namespace Quorbel {

/// A popup in the look of a menu: the current choice has a check mark and stands in the middle of what is shown.
/// Arrows, Page Up and Down, Home, End and the first letters go through the rows, Return picks, Escape leaves it as it
/// was. Deletes itself when closed.
class ChoiceList final : public QWidget {
    Q_OBJECT

public:
    static constexpr int mostRows = 10;

    /// Opens under the anchor, at least as wide. `current` is the row of the value, -1 for none.
    ChoiceList(const QStringList& titles, int current, QWidget* anchor);
    QListWidget* rows() const { return m_rows; }

signals:
    void picked(int row);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void open();
    void pick(const QListWidgetItem* item);
    QRect box() const;

    QWidget* m_anchor;
    QListWidget* m_rows;
    int m_chosen;
};

}  // namespace Quorbel
