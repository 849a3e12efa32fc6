// The structures of one field of the standard as cards: the places shown, the people, the contact.
// Thread: the main thread. Knows the field and its structures as texts; nothing of the model.
#pragma once

#include "core/schema/FieldSpec.h"
#include "ui/inspector/iptc/StructureList.h"

namespace Quorbel {

class WrappedLine;

/// All that the cards of a field show.
struct StructureCardsState {
    QStringList items{};  ///< in the form of StructureText; of a batch what all photos are to gain
    QStringList held{};  ///< what the photo itself holds: cards that differ from it have the edited dot, their members
                         ///< that do look it
    bool edited = false;
    bool batch = false;
    bool wanted = false;  ///< as QBTextField::setWanted()
    QString readOnlyReason{};  ///< shown, and nothing can be changed; "" where it can
    bool unread = false;  ///< not known yet: a block in the place of the cards
    bool operator==(const StructureCardsState&) const = default;
};

/// What is typed goes out as the whole list, and the list that comes back with setState() is what is shown, except in
/// the card that somebody types in while it answers itemsChanged(). A field of one structure has a list of at most one.
class StructureCards final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StructureCards)

public:
    /// `codes` are what short codes in texts stand for.
    explicit StructureCards(const FieldSpec& field, const CodeTexts& codes = {}, QWidget* parent = nullptr);
    /// `fresh`: these are another photo's, so that cards are folded (a single one is open) and the undo history of
    /// texts is gone.
    void setState(const StructureCardsState& state, bool fresh);
    const StructureCardsState& state() const { return m_state; }
    /// For the menu of each card, above its own.
    void setActions(const QList<StructureAction>& actions) { m_list->setActions(actions); }

    /// As the button below the cards.
    void add() { m_list->add(); }
    /// Opens the card of an item, and folds the others.
    void open(int item) { m_list->open(item); }
    StructureList& list() { return *m_list; }
    QWidget* input() const { return m_list->input(); }
    /// In the order of Tab, hidden ones too; others after tabStopsChanged().
    QList<QWidget*> tabStops() const { return m_list->tabStops(); }

signals:
    void itemsChanged(const QStringList& items);
    void tabStopsChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool isGap() const;
    void showGap();

    StructureCardsState m_state;
    QVBoxLayout* m_column;
    WrappedLine* m_reason;
    StructureList* m_list;
    QWidget* m_block;  ///< the room of what is not known yet
};

}  // namespace Quorbel
