// One structure as a card: a line while it is folded, its members while it is open.
// Thread: the main thread. Knows the structure as a text only.
#pragma once

#include "ui/controls/cards/ItemCard.h"
#include "ui/controls/text/TypedCode.h"

#include <QObject>
#include <QPointer>

#include <optional>

class QWidget;

namespace Quorbel {

class StructureFields;
struct StructureSpec;

/// The members are made when the card is opened first.
class StructureCard final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StructureCard)

public:
    /// `parent` is that of the widget, too, which goes with this.
    StructureCard(const StructureSpec& structure, const CodeTexts& codes, QWidget* parent);
    ~StructureCard() override;
    ItemCard* widget() const { return m_widget; }

    /// "" is an empty one. As StructureCards::setState().
    void setText(const QString& text, bool fresh);
    const QString& text() const { return m_text; }
    /// Screen readers hear `spoken` before its title: "Location shown, place 1 of 2".
    void setSpoken(const QString& spoken);
    /// What heads it while nothing is in it; "New place" unless set here.
    void setUntitled(const QString& title);
    void setOpen(bool open);
    bool isOpen() const;
    void setReadOnly(bool on);
    /// As those of its fields, which it may not have yet.
    void setOrigin(const std::optional<QString>& origin);
    const std::optional<QString>& origin() const { return m_origin; }
    void setStart(const QString& title);
    /// Nothing while it was never open.
    StructureFields* fields() const { return m_fields; }
    /// Whether the keyboard is in it, or in something that was opened from it.
    bool holds(const QWidget* focus) const;
    QList<QWidget*> tabStops() const;

signals:
    void textChanged();
    void startAsked();
    void tabStopsChanged();

private:
    void makeFields();
    void showSummary();

    const StructureSpec& m_structure;
    CodeTexts m_codes;
    QString m_text;
    QString m_spoken;
    QString m_untitled;
    QString m_start;
    std::optional<QString> m_origin;
    QPointer<ItemCard> m_widget;
    StructureFields* m_fields = nullptr;
    bool m_readOnly = false;
};

}  // namespace Quorbel
