// What sheets share that have a list at the side and, beside it, an editor for the chosen one of it.
// Thread: the main thread. Knows nothing of what is listed.
#pragma once

#include "ui/sheets/Sheet.h"

class QHBoxLayout;

namespace Quorbel {

class QBIconButton;

class ListSheet : public SheetBody {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ListSheet)

public:
    struct Widths {
        qreal sheet = 0;  ///< points, all of them
        qreal side = 0;
        qreal narrowSide = 0;  ///< in a sheet that has to be narrower than `narrowBelow`
        qreal narrowBelow = 0;
    };

protected:
    ListSheet(const Widths& widths, QWidget* parent);
    /// Once. The list takes the height that the parts below it and the buttons at the foot leave.
    void setParts(
        QWidget* list, const QList<QWidget*>& belowList, const QList<QBIconButton*>& buttons, QWidget* editor);
    bool isNarrow() const;
    /// Also for what gives way in a narrow sheet beside the list; called when the width or the size of texts changed.
    virtual void fit();
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    Widths m_widths;
    QHBoxLayout* m_columns;
    QWidget* m_side;
};

}  // namespace Quorbel
