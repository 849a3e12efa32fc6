// A field that shows what is chosen and opens something to choose from. Thread: the main thread. Knows nothing of what
// there is to choose: clicked() tells that it is wanted.
#pragma once

#include "ui/controls/Buttons.h"

namespace Quorbel {

/// 30 points high, as wide as there is room. Up, Down and Return open it, too.
class PickerButton final : public ThemedButton {
    Q_OBJECT

public:
    /// `name` is what screen readers hear before the choice.
    explicit PickerButton(const QString& name, QWidget* parent = nullptr);
    void setChoice(const QString& text);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString m_name;
};

}  // namespace Quorbel
