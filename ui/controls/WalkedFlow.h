// Small controls side by side, in as many lines as they need: one stop for Tab, and arrows walk among them.
// Thread: the main thread. Knows nothing of what the controls are.
#pragma once

#include <QWidget>

class QAbstractButton;

namespace Quorbel {

class WalkedFlow final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WalkedFlow)

public:
    /// `gap` in points, between controls and between lines.
    explicit WalkedFlow(qreal gap, QWidget* parent = nullptr);

    /// Shows these controls, in this order; those shown before and not among them are hidden. They become children of
    /// this.
    void setItems(const QList<QWidget*>& items);
    const QList<QWidget*>& items() const { return m_items; }
    /// No more lines than this; 0: as many as there are. What does not fit is hidden, and `more`, which stands at the
    /// end then, says how many that are ("9 more"); `beyond` counts such as are not even among the items.
    void setMost(int lines, QAbstractButton* more, int beyond);
    /// Those that are shown, with `more`.
    QList<QWidget*> shown() const { return m_shown; }
    /// In the order of Tab, though only one of them takes Tab at a time; other ones after setItems().
    QList<QWidget*> tabStops() const;
    /// Gives the keyboard to the control at this place, the last one where there are fewer. False where there is none.
    bool focusAt(int place);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int fitting(int available) const;
    void layOut();
    int lineAbove(int place, int step) const;
    bool walk(int place, int key);
    void makeStop(QWidget* stop);

    qreal m_gap;
    QList<QWidget*> m_items;
    QList<QWidget*> m_shown;
    QAbstractButton* m_more = nullptr;
    int m_lines = 0;
    int m_beyond = 0;
    QWidget* m_stop = nullptr;  ///< the one that takes Tab
};

}  // namespace Quorbel
