// A field that may be pasted: its tick, its name, its value, and what pasting it would do.
// Thread: the main thread. Shows a row of the model's; knows nothing of the model itself.
#pragma once

#include "app/model/words/FieldPasting.h"

#include <QWidget>

namespace Quorbel {

class QBCheckbox;
class StarsLine;
class ThemedLabel;

/// 46 points high. All of it is the tick's click area; Up and Down leave it, Return asks for what the sheet does.
class PasteFieldRow final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PasteFieldRow)

public:
    explicit PasteFieldRow(bool isFirst, QWidget* parent = nullptr);
    /// Of every row.
    static int fixedHeight();
    void setRow(const FieldPasting::Row& row);
    /// What takes the keyboard.
    QBCheckbox* tick() const { return m_tick; }

signals:
    void toggled();
    void moved(int step);
    void confirmed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void build();

    bool m_isFirst;
    QBCheckbox* m_tick;
    ThemedLabel* m_label;
    ThemedLabel* m_value;
    StarsLine* m_stars;
    ThemedLabel* m_note;
};

}  // namespace Quorbel
