// Structures of one kind as cards below each other, at most one of them open, and a button that adds one.
// Thread: the main thread. Knows structures as texts only; whose they are, its owner knows.
#pragma once

#include "core/iptc/IptcStructures.h"
#include "ui/controls/text/TypedCode.h"

#include <QWidget>

#include <functional>
#include <optional>

class QVBoxLayout;

namespace Quorbel {

class QBButton;
class StructureCard;

/// Something else to do with a card, at the top of its menu.
struct StructureAction {
    QString text{};
    /// The item's place; behind the last one for a card that is still empty.
    std::function<void(int item)> run{};
    /// Behind its text where it would do nothing to this item: "nothing there". "" where it can be chosen.
    std::function<QString(int item)> whyNot{};
    QString start{};  ///< what a button in a card that is still empty is called; none for ""
};

/// A card that was added, or emptied, is there for as long as the keyboard is in it, and is no item before something is
/// in it. Escape folds the open card; arrows walk the cards' lines.
class StructureList final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StructureList)

public:
    enum class Holds { several, one, always };  ///< the last: one card that is always there, and open

    struct Parts {
        QString name{};  ///< what screen readers hear before an item: "Location shown"
        const StructureSpec* structure = nullptr;
        Holds holds = Holds::several;
        bool isInner = false;  ///< within a card
        CodeTexts codes{};
    };

    explicit StructureList(const Parts& parts, QWidget* parent = nullptr);
    /// As StructureCards::setState().
    void show(const QStringList& items, bool fresh);
    /// Without empty ones.
    QStringList items() const;
    void setActions(const QList<StructureAction>& actions);
    void setReadOnly(bool on);
    /// What the photo holds itself: items that differ from it have the edited dot, their members that do look edited.
    /// Nothing does for none. With `dots` off only members do.
    void setHeld(const std::optional<QStringList>& held, bool dots = true);

    void add();
    void open(int item);
    /// Nothing where there is no such card.
    StructureCard* card(int place) const { return m_cards.value(place); }
    QBButton* addButton() const { return m_add; }
    /// What takes the keyboard when the list is gone to.
    QWidget* input() const;
    QList<QWidget*> tabStops() const;

signals:
    /// All of them; what came with the last show() is only known by them.
    void itemsChanged(const QStringList& items);
    void tabStopsChanged();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    StructureCard* makeCard();
    void addMenu(StructureCard* card);
    int itemOf(const StructureCard* card) const;
    void take(const QStringList& items, bool fresh);
    void setOpen(StructureCard* card, bool open);
    void move(StructureCard* card, int by);
    void remove(StructureCard* card);
    void drop(StructureCard* card);
    void dropLeft(const QWidget* focus);
    bool foldOpen();
    bool walk(QWidget* from, int key);
    void showOrder();
    void showEdited();
    void showCan(StructureCard* card);
    const StructureAction* start() const;
    void tell();

    Parts m_parts;
    QList<StructureAction> m_actions;
    std::optional<QStringList> m_held;
    bool m_hasDots = true;
    QVBoxLayout* m_column;
    QList<StructureCard*> m_cards;
    QBButton* m_add;
    const StructureCard* m_coming = nullptr;  ///< while it is being added
    bool m_readOnly = false;
    bool m_telling = false;
};

}  // namespace Quorbel
