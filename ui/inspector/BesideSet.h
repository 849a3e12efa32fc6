// What photos hold of fields that the chosen field set leaves out: under a heading of its own at the end of the form,
// one line that names them until it is unfolded. Thread: the main thread. Shows the model; the rows are the form's.
#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>

namespace Quorbel {

class AppModel;
class FieldRow;
class FoldingSection;

/// Nothing is made before a set leaves something out.
class BesideSet final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BesideSet)

public:
    /// As IptcSections::Rows.
    using Rows = std::function<QList<FieldRow*>(const QStringList& ids, bool fresh)>;

    BesideSet(const AppModel& model, Rows rows, QWidget* parent = nullptr);
    /// Shows these fields. Whether the order of Tab may be another one now.
    bool refresh(const QStringList& ids, bool fresh);
    bool holds(const QString& id) const { return m_ids.contains(id); }
    /// Unfolded, and said with changed().
    void unfold() { setOpen(true); }
    /// As RowColumn::setBelow().
    void setBelow(FieldRow* row, QWidget* widget);
    /// The heading, and what is below it.
    QWidget* heading() const;
    QList<FieldRow*> rows() const;

signals:
    /// The form is to be shown again.
    void changed();

private:
    FoldingSection& section();
    void setOpen(bool open);

    const AppModel& m_model;
    Rows m_rows;
    FoldingSection* m_section = nullptr;  ///< until it was needed
    QStringList m_ids;
    bool m_isOpen = false;  ///< stays so from one photo to the next
    FieldRow* m_above = nullptr;
    QPointer<QWidget> m_below;
};

}  // namespace Quorbel
