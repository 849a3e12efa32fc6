// The list of fields that may be added: a row a field, each a button.
// Thread: the main thread. Knows nothing of the model.
#pragma once

#include "core/schema/FieldSchema.h"
#include "ui/controls/scrolling/ScrollArea.h"

#include <QHash>

class QVBoxLayout;

namespace Quorbel {

class AddableFieldRow;
class ThemedLabel;

/// 240 points high where there is room. Up and Down go from row to row, Tab stops at one row only.
class AddableFieldList final : public ScrollArea {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AddableFieldList)

public:
    explicit AddableFieldList(QWidget* parent = nullptr);
    /// Shows these fields, or the text when there are none. Those of the IPTC standard have a small heading over each
    /// section, the others only where they stand behind such.
    void setFields(const QList<FieldSpec>& fields, const QString& textWhenEmpty);
    /// Ids of the fields shown, from the top.
    QStringList shownIds() const;
    void focusFirst();
    /// Puts the rows behind this widget in the tab order, now and whenever they change.
    void setTabPredecessor(QWidget* widget);
    QSize sizeHint() const override;

signals:
    void picked(const QString& id);
    /// Up in the topmost row.
    void leftUpwards();

private:
    AddableFieldRow* rowOf(const FieldSpec& field);
    QWidget* headingOf(const FieldSpec& field);
    void move(int from, int step);
    void orderTabStops();

    QWidget* m_tabPredecessor = nullptr;
    QVBoxLayout* m_column;
    ThemedLabel* m_empty;
    QHash<QString, AddableFieldRow*> m_pool;
    QHash<int, QWidget*> m_headings;  ///< by section; -1: of those that are not of the IPTC standard
    QList<AddableFieldRow*> m_rows;
};

}  // namespace Quorbel
