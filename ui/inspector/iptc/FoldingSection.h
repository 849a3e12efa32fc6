// A section of the inspector's form that is one line while it is folded.
// Thread: the main thread. Knows no model.
#pragma once

#include "ui/inspector/RowColumn.h"

#include <QWidget>

class QVBoxLayout;

namespace Quorbel {

class FoldingHeading;

class FoldingSection final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FoldingSection)

public:
    explicit FoldingSection(const QString& title, QWidget* parent = nullptr);
    FoldingHeading& heading() const { return *m_heading; }
    /// As FormSection::setRows(). Rows of structures begin further left: their cards have room for dots of their own.
    void setRows(const QList<FieldRow*>& rows);
    const QList<FieldRow*>& rows() const { return m_rows.rows(); }
    /// As RowColumn::setBelow().
    void setBelow(FieldRow* row, QWidget* widget) { m_rows.setBelow(row, widget); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void layOut();

    FoldingHeading* m_heading;
    QVBoxLayout* m_column;
    RowColumn m_rows;
};

}  // namespace Quorbel
