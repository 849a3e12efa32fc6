#include "ui/controls/pickers/PickerButton.h"

#include "core/language/Texts.h"
#include "ui/controls/HoverFade.h"
#include "ui/controls/pickers/PickerFace.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

PickerButton::PickerButton(const QString& name, QWidget* parent)
    : ThemedButton({}, parent)
    , m_name(name)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(name);
    onRestyle(this, [this] {
        setFont(sansFont(13));
        updateGeometry();
    });
    installFocusRing(this, { RingShape::field, 7, {}, {} });
}

void PickerButton::setChoice(const QString& text)
{
    setText(text);
    setAccessibleName(Texts::tr("%1: %2").arg(m_name, text));
    update();
}

QSize PickerButton::sizeHint() const
{
    return { px(200), px(30) };
}

QSize PickerButton::minimumSizeHint() const
{
    return { px(90), px(30) };
}

void PickerButton::keyPressEvent(QKeyEvent* event)
{
    if (PickerFace::isOpenedBy(*event))
        click();
    else
        ThemedButton::keyPressEvent(event);
}

void PickerButton::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setOpacity(opacity());
    PickerFace::paint(painter, rect(), text(), theme.text, { true, hasFocus(), false, fade()->hover() }, theme);
}

}  // namespace Quorbel
