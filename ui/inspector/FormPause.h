// What a scrolled form keeps while its rows give way to something else for a moment: where it is scrolled to, and who
// had the keyboard. Thread: the main thread. Knows no rows and no model.
#pragma once

#include <QPointer>
#include <QWidget>

namespace Quorbel {

class FormPause final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormPause)

public:
    /// The form is what scrolls, and this belongs to it.
    explicit FormPause(QWidget* form);
    bool isOn() const { return m_isOn; }
    /// In pixels: what is scrolled past, and what is in sight. The form is to be no lower. 0 while this is off.
    int leastHeight() const { return m_leastHeight; }
    /// The form itself takes the keyboard from the control in it that has it, so that no key reaches what is not
    /// there.
    void begin();
    /// The keyboard goes back, unless the user took it elsewhere; to `fallback` (or to nobody where it is null) if the
    /// control is gone.
    void end(QWidget* fallback);

private:
    QWidget* m_form;
    QPointer<QWidget> m_keyboard;
    bool m_isOn = false;
    int m_leastHeight = 0;
};

}  // namespace Quorbel
