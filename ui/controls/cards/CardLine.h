// The line at the top of a card. Thread: the main thread. Knows no card.
#pragma once

#include "ui/controls/cards/FoldLine.h"

namespace Quorbel {

/// Folded it is all of the card: the summary and a chevron. Open it is the title alone, 32 points high; the room around
/// it, and what else stands there, is the card's.
class CardLine final : public FoldLine {
    Q_OBJECT

public:
    /// Points between the edge of a card and its texts.
    static constexpr qreal side = 11;

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

private:
    QRectF ringBox() const;
};

}  // namespace Quorbel
