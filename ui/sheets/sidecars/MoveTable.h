// The table of what moving over does: a field a line, and how many photos gain, change or lose it.
// Thread: the main thread. Knows no model.
#pragma once

#include "app/model/sidecars/MovePreview.h"
#include "ui/controls/scrolling/ScrollArea.h"

namespace Quorbel {

class MoveLine;

/// As high as its lines, within bounds; beyond them it scrolls, by the keyboard too.
class MoveTable final : public ScrollArea {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MoveTable)

public:
    static constexpr qreal columnWidth = 62;  ///< points, of a column of numbers
    static constexpr qreal side = 13;

    /// `columns`: names of the columns of numbers.
    explicit MoveTable(const QStringList& columns, QWidget* parent = nullptr);
    /// `note`: stands there when there are no rows.
    void setRows(const QList<MovePreview::Row>& rows, const QString& note);
    QSize sizeHint() const override;

private:
    void fit();

    int m_columns;
    QList<MoveLine*> m_lines;
    int m_shown = 0;
};

}  // namespace Quorbel
