// The line at the top of a card. Thread: the main thread. Knows no card.
#pragma once

#include "ui/controls/cards/FoldLine.h"

namespace Quorbel {

/// 32 points high. Folded: the summary and a chevron. Open: the title alone; what else stands there is the card's.
class CardLine final : public FoldLine {
    Q_OBJECT

public:
    explicit CardLine(QWidget* parent);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void removeAsked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    QRectF summaryRect() const override;
    QString hiddenText() const override;
};

}  // namespace Quorbel
