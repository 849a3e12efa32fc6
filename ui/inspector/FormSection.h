// A section of the inspector's form: its title, its rows, and what belongs under them.
// Thread: the main thread.
#pragma once

#include "ui/inspector/RowColumn.h"

#include <QWidget>

class QVBoxLayout;

namespace Quorbel {

class SectionHeader;
class ThemedLabel;

class FormSection : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormSection)

public:
    explicit FormSection(const QString& title, const QString& note = {}, QWidget* parent = nullptr);
    /// Points left free at the left of everything, for the edited dots.
    static constexpr qreal dotRoom = 12;

    /// Shows these rows, in this order; those shown before and not among them are hidden. The rows stay the caller's,
    /// and become children of this.
    void setRows(const QList<FieldRow*>& rows);
    const QList<FieldRow*>& rows() const { return m_rows.rows(); }
    /// As RowColumn::setBelow().
    void setBelow(FieldRow* row, QWidget* widget) { m_rows.setBelow(row, widget); }
    void setUnderRows(QWidget* widget);
    /// A word at the right of the title; "": none.
    void setNote(const QString& text);
    /// Says at the right of the title that the rows are being read.
    void setReading(bool on);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QVBoxLayout* m_column;
    SectionHeader* m_header;
    RowColumn m_rows;
    ThemedLabel* m_reading = nullptr;  ///< until it was needed
};

}  // namespace Quorbel
