// One place in which a field stands: its tag, what it holds, and a button to take that.
// Thread: the main thread. Knows no model.
#pragma once

#include "core/schema/PhotoDetails.h"

#include <QWidget>

namespace Quorbel {

class SelectableText;
class ThemedLabel;

/// Takes the keyboard; has a ground while it has it. Return uses what it holds, Page Up and Down scroll a long text.
class HomeRow final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(HomeRow)

public:
    explicit HomeRow(const FieldHome& home, QWidget* parent = nullptr);
    const FieldHome& home() const { return m_home; }
    /// Lays itself out in this many pixels; the height is fixed then.
    void setRowWidth(int width);

signals:
    void used();
    /// Up (-1) or Down (1).
    void stepped(int by);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* makeHead();
    void restyle();
    void scroll(int by);

    FieldHome m_home;
    int m_width = 0;  ///< that it was laid out in
    SelectableText* m_value;
    ThemedLabel* m_foreign = nullptr;  ///< of a tag of another standard
};

}  // namespace Quorbel
