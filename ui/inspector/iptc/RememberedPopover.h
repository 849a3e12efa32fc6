// What was typed before of its kind, to be picked again: a row each, with a cross that forgets it.
// Thread: the main thread. Knows no model: what it shows comes in, what is chosen goes out.
#pragma once

#include "ui/controls/attached/Popover.h"

#include <QStringList>

class QVBoxLayout;

namespace Quorbel {

class MenuRow;
class ScrollArea;

/// Up and Down go through the rows, Return and Space pick, Delete forgets the row that has the keyboard.
class RememberedPopover final : public Popover {
    Q_OBJECT

public:
    /// `name` is what screen readers hear.
    RememberedPopover(const QString& name, QWidget* opener);
    /// Before it is opened, or while it is open; it closes when nothing is left.
    void setRows(const QStringList& labels);
    const QList<MenuRow*>& rows() const { return m_rows; }

signals:
    /// Places of rows.
    void picked(int row);
    void forgotten(int row);

protected:
    int heightIn(int width) override;
    void arrange(const QRect& box) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addRow(const QString& label, int row);
    void goTo(int row);

    QList<MenuRow*> m_rows;
    ScrollArea* m_scroll;
    QWidget* m_content;
    QVBoxLayout* m_column;
};

}  // namespace Quorbel
