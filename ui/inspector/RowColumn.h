// The rows of one section of the inspector's form, below each other. Thread: the main thread. Knows nothing of what the
// section shows around them.
#pragma once

#include <QList>
#include <QPointer>

class QVBoxLayout;
class QWidget;

namespace Quorbel {

class FieldRow;

/// A row, and the widget below it, may go from one section to another: whoever is given it last has it.
class RowColumn final {
public:
    explicit RowColumn(QWidget& section);

    /// To be put into the section's own layout.
    QVBoxLayout* layout() const { return m_layout; }
    /// Shows these rows, in this order; those shown before and not among them are hidden, unless another section has
    /// them by now. They become children of the section. Whether anything differs.
    bool set(const QList<FieldRow*>& rows);
    const QList<FieldRow*>& rows() const { return m_rows; }
    /// A widget that stands directly under this row whenever the row is shown here.
    void setBelow(FieldRow* row, QWidget* widget);

private:
    bool isHere(const QWidget* widget) const;

    QWidget& m_section;
    QVBoxLayout* m_layout;
    QList<FieldRow*> m_rows;
    FieldRow* m_above = nullptr;  ///< the row over m_below
    QPointer<QWidget> m_below;
};

}  // namespace Quorbel
