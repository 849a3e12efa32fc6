// What limits the list beside the search, a chip each: "No title ×". Two lines at most; what has no room there is
// behind a "+2" that opens the menu. Thread: the main thread. Shows Filtering and calls it.
#pragma once

#include <QList>
#include <QWidget>

#include <functional>

namespace Quorbel {

class Filtering;
class KeywordChip;
class QBTextButton;

/// One stop of Tab; Left and Right, Home and End go through the chips, Delete and Backspace take one away.
class FilterChips final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FilterChips)

public:
    explicit FilterChips(Filtering& filtering, QWidget* parent = nullptr);
    bool isEmpty() const { return m_chips.isEmpty(); }

signals:
    /// Chips came or went.
    void changed();
    /// Somebody wants to see all filters.
    void menuAsked();
    /// The chip that had the keyboard is gone, and no other is left.
    void keyboardLeft();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Item {
        int key = 0;  ///< the trait; below 0: stars, text
        QString text{};
    };
    struct Chip {
        int key = 0;
        KeywordChip* widget = nullptr;
    };

    QList<Item> items() const;
    void follow();
    Chip make(int key);
    void remove(int key);
    void place();
    bool useKey(qsizetype at, int key);
    void goTo(qsizetype at);

    Filtering& m_filtering;
    QList<Chip> m_chips;
    qsizetype m_shown = 0;  ///< those with room
    QBTextButton* m_more;
};

}  // namespace Quorbel
