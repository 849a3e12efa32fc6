// A popover with a field in which one types what to look for, and a list of what was found.
// Thread: the main thread. What is found and what picking means, the classes derived from it know.
#pragma once

#include "ui/controls/attached/Popover.h"

class QListWidget;

namespace Quorbel {

class QBTextField;
class ThemedLabel;

/// The keyboard stays in the field: Up, Down, Page Up and Down go through the rows, Return picks.
class SearchPopover : public Popover {
    Q_OBJECT

public:
    /// `name` is what screen readers hear, `placeholder` stands in the empty field.
    SearchPopover(const QString& name, const QString& placeholder, QWidget* opener);
    /// Said in the place of the rows when nothing is found.
    void setNothingFound(const QString& text);
    QBTextField* field() const { return m_field; }
    QListWidget* list() const { return m_list; }

protected:
    /// Fills the empty list; says which row the keys begin at.
    virtual int find(const QString& typed) = 0;
    virtual void pick(int row) = 0;
    /// How many rows Page Up and Down go.
    virtual int pageRows() const = 0;
    /// Pixels that are left free under the list.
    virtual int roomBelow() const { return 0; }
    /// Finds anew what fits the text that is typed.
    void findAgain();
    /// Of the box, when the rows have this one.
    int heightWith(int rows) const;
    void arrange(const QRect& box) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool useKey(int key);
    void goTo(int row);

    QBTextField* m_field;
    QListWidget* m_list;
    ThemedLabel* m_nothing;
};

}  // namespace Quorbel
