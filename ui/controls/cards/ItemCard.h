// One of several things that have fields of their own, as a card: folded to a line, or open with its fields.
// Thread: the main thread. Knows nothing of the thing: what it shows is said, what it asks for is a signal.
#pragma once

#include "ui/controls/cards/Summary.h"

#include <QWidget>

class QAction;
class QHBoxLayout;
class QVBoxLayout;

namespace Quorbel {

class CardLine;
class QBIconButton;
class ThemedMenu;

/// Its edge stands where the labels of a form begin, behind EditedDot::room; labels of `labelWidth` in its content have
/// their editors in line with the form's. Actions that are added to the card stand at the top of its menu.
/// Ctrl+Shift+Up and Down move the card that has the keyboard, Delete on the line of a folded one removes it.
class ItemCard final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ItemCard)

public:
    /// Points, of the labels of its content.
    static constexpr qreal labelWidth = 93;

    /// `item` is what one is called: "place".
    explicit ItemCard(const QString& item, QWidget* parent = nullptr);

    /// The first part is its title.
    void setSummary(const Summary& summary);
    /// What is seen while it is open; becomes a child of the card, in the place of the one before, which is deleted
    /// later. Nothing for null.
    void setContent(QWidget* content);
    QWidget* content() const { return m_content; }
    /// Emits nothing.
    void setOpen(bool open);
    bool isOpen() const;
    void setEdited(bool edited);
    /// As QBTextField::setWanted().
    void setWanted(bool wanted);
    /// Where there is another one to change places with.
    void setCanMove(bool up, bool down);
    void setCanRemove(bool can);
    /// There is never another one; `removing` is what its menu calls taking it away: "Clear".
    void setAlone(const QString& removing);
    /// Its edge stands where editors begin, in the content of another card. There is no room for the dot: while it is
    /// folded, all of it looks edited.
    void setInner();
    /// It can be read only, and has no menu.
    void setFixed(bool on);
    /// What takes the keyboard when the card is gone to: its line.
    QWidget* input() const;
    /// In the order of Tab, without the content's.
    QList<QWidget*> tabStops() const;

signals:
    void openAsked(bool open);
    /// Its menu is about to be made of its actions.
    void menuAsked();
    /// -1: before the one that is in front of it, 1: behind the next.
    void moveAsked(int by);
    void removeAsked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    int dotRoom() const;
    void layOut();
    void addMoving();
    void moveFocused(int by);
    ThemedMenu* makeMenu();

    QString m_item;
    QVBoxLayout* m_column;
    QHBoxLayout* m_body;  ///< around the content
    CardLine* m_line;
    QBIconButton* m_more;
    QWidget* m_content = nullptr;
    QAction* m_up = nullptr;
    QAction* m_down = nullptr;
    QAction* m_remove = nullptr;
    bool m_fixed = false;
    bool m_inner = false;
    bool m_wanted = false;
};

}  // namespace Quorbel
