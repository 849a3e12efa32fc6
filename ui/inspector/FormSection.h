// A section of the inspector's form: its title, its rows, and what belongs under them.
// Thread: the main thread.
#pragma once

#include <QWidget>

class QVBoxLayout;

namespace Quorbel {

class FieldRow;
class SectionHeader;
class ThemedLabel;

class FormSection final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormSection)

public:
    explicit FormSection(const QString& title, const QString& note = {}, QWidget* parent = nullptr);
    /// Points left free at the left of everything, for the edited dots.
    static constexpr qreal dotRoom = 12;

    /// Shows these rows, in this order; those shown before and not among them are hidden. The rows stay the caller's,
    /// and become children of this.
    void setRows(const QList<FieldRow*>& rows);
    const QList<FieldRow*>& rows() const { return m_rows; }
    /// A widget that stands directly under this row whenever the row is shown. It becomes a child of this.
    void setBelow(FieldRow* row, QWidget* widget);
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
    QVBoxLayout* m_rowColumn;
    ThemedLabel* m_reading = nullptr;  ///< until it was needed
    QList<FieldRow*> m_rows;
    FieldRow* m_above = nullptr;  ///< the row over m_below
    QWidget* m_below = nullptr;
};

}  // namespace Quorbel
