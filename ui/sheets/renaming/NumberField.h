// A small field for a whole number within bounds; Up and Down count. Thread: the main thread.
#pragma once

#include "ui/controls/TextFields.h"

namespace Quorbel {

class NumberField final : public QBTextField {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(NumberField)

public:
    NumberField(const QString& name, int least, int most, QWidget* parent = nullptr);
    /// Shows it, unless the field holds just this number in another form.
    void setNumber(int number);

signals:
    /// The user made it this one.
    void numberEdited(int number);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    int m_least;
    int m_most;
    int m_number = 0;
};

}  // namespace Quorbel
