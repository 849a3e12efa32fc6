#include "ui/sheets/renaming/NumberField.h"

#include "ui/controls/theme/Metrics.h"

#include <QIntValidator>
#include <QKeyEvent>

#include <algorithm>

namespace Quorbel {

namespace {
constexpr qreal fieldWidth = 64;  // points
}  // namespace

NumberField::NumberField(const QString& name, int least, int most, QWidget* parent)
    : QBTextField(parent)
    , m_least(least)
    , m_most(most)
{
    setMono(true);
    setAlignment(Qt::AlignRight);
    setAccessibleName(name);
    setValidator(new QIntValidator(0, most, this));
    onRestyle(this, [this] { setFixedWidth(px(fieldWidth)); });
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
        bool isNumber = false;
        const int number = text.toInt(&isNumber);
        if (!isNumber || number < m_least || number > m_most)
            return;
        m_number = number;
        emit numberEdited(number);
    });
}

void NumberField::setNumber(int number)
{
    const bool isShown = std::exchange(m_number, number) == number && !text().isEmpty();
    if (!isShown || !hasFocus())
        setBoundText(QString::number(number));
}

void NumberField::keyPressEvent(QKeyEvent* event)
{
    const int step = event->key() == Qt::Key_Up ? 1 : event->key() == Qt::Key_Down ? -1 : 0;
    if (step == 0)
        return QBTextField::keyPressEvent(event);
    m_number = std::clamp(m_number + step, m_least, m_most);
    setBoundText(QString::number(m_number));
    emit numberEdited(m_number);
}

// What is no number within the bounds gives way to the last one that was.
void NumberField::focusOutEvent(QFocusEvent* event)
{
    QBTextField::focusOutEvent(event);
    setBoundText(QString::number(m_number));
}

}  // namespace Quorbel
