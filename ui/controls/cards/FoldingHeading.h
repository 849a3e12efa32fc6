// The heading of a group of fields that is one line while the group is folded.
// Thread: the main thread. Knows nothing of the group.
#pragma once

#include "ui/controls/cards/FoldLine.h"

namespace Quorbel {

/// 34 points high, with a line below. Folded: the title, and the summary where the fields' column begins. Open: the
/// title and at the right how many things are in the group. EditedDot::room is kept free at its left.
class FoldingHeading final : public FoldLine {
    Q_OBJECT

public:
    explicit FoldingHeading(const QString& title, QWidget* parent = nullptr);
    /// "2 places"; at the right while it is open.
    void setCount(const QString& text);
    /// Points from the titles of sections to where the fields' editors begin.
    void setColumn(qreal points);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    QRectF summaryRect() const override;

private:
    QRectF line() const;
    QRectF titleRect() const;

    QString m_count;
    qreal m_column = 111;
};

}  // namespace Quorbel
