// A label and an editor in a card.
// Thread: the main thread. Knows nothing of the editor but its shape.
#pragma once

#include <QWidget>

class QHBoxLayout;
class QVBoxLayout;

namespace Quorbel {

class TwoLineLabel;

/// As the rows of a form: in a narrow card the label stands over the editor.
class CardRow final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CardRow)

public:
    /// `editor` may be several in a line of their own; `input` takes the keyboard.
    CardRow(const QString& label, QWidget* editor, QWidget* input, QWidget* parent = nullptr);
    /// Under the editor, below what is there already.
    void addBelow(QWidget* widget);
    /// A small button at the end of the label, over it. It becomes a child of the row.
    void setAtLabel(QWidget* button);
    QWidget* input() const { return m_input; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void setStacked(bool stacked);
    void restyle();
    void placeAtLabel();

    QWidget* m_input;
    QHBoxLayout* m_line;
    QVBoxLayout* m_column;
    TwoLineLabel* m_label;
    QWidget* m_atLabel = nullptr;
    bool m_stacked = false;
};

}  // namespace Quorbel
