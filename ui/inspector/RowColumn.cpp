#include "ui/inspector/RowColumn.h"

#include "ui/inspector/FieldRow.h"

#include <QVBoxLayout>

namespace Quorbel {

RowColumn::RowColumn(QWidget& section)
    : m_section(section)
    , m_layout(new QVBoxLayout)
{
}

bool RowColumn::isHere(const QWidget* widget) const
{
    return widget->parentWidget() == &m_section;
}

bool RowColumn::set(const QList<FieldRow*>& rows)
{
    if (rows == m_rows)
        return false;
    for (FieldRow* row : std::as_const(m_rows)) {
        m_layout->removeWidget(row);
        if (!rows.contains(row) && isHere(row))
            row->hide();
    }
    if (m_below) {
        m_layout->removeWidget(m_below);
        if (!rows.contains(m_above) && isHere(m_below))
            m_below->hide();
    }
    m_rows = rows;
    for (FieldRow* row : rows) {
        m_layout->addWidget(row);
        row->show();
        if (m_below && row == m_above)
            m_layout->addWidget(m_below);
    }
    return true;
}

void RowColumn::setBelow(FieldRow* row, QWidget* widget)
{
    m_above = row;
    m_below = widget;
    if (!m_rows.contains(row))
        return;
    widget->setParent(&m_section);
    widget->hide();
    m_layout->insertWidget(m_layout->indexOf(row) + 1, widget);
}

}  // namespace Quorbel
