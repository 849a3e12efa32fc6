#include "ui/controls/pickers/OffsetPicker.h"

#include "core/language/Texts.h"
#include "ui/controls/HoverFade.h"
#include "ui/controls/pickers/ChoiceList.h"
#include "ui/controls/pickers/PickerFace.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

OffsetPicker::OffsetPicker(const QStringList& offsets, const QString& blank, QWidget* parent)
    : ThemedButton(blank, parent)
    , m_offsets(offsets)
    , m_blank(blank)
{
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setAccessibleName(Texts::tr("Time-zone offset"));
    onRestyle(this, [this] {
        setFont(sansFont(13));
        updateGeometry();
    });
    installFocusRing(this, { RingShape::field, 7, [this] { return m_edited; }, {} });
    connect(this, &QAbstractButton::clicked, this, &OffsetPicker::openList);
}

void OffsetPicker::setValue(const QString& value)
{
    m_value = value;
    setText(value.isEmpty() ? m_blank : value);
    update();
}

void OffsetPicker::setEdited(bool edited)
{
    m_edited = edited;
    update();
}

void OffsetPicker::setWanted(bool wanted)
{
    m_wanted = wanted;
    update();
}

QSize OffsetPicker::sizeHint() const
{
    return { px(150), px(30) };
}

void OffsetPicker::choose(const QString& value)
{
    if (value == m_value)
        return;
    setValue(value);
    emit valueEdited(value);
}

void OffsetPicker::openList()
{
    const QStringList values = QStringList(QString()) + m_offsets;
    QStringList titles = values;
    titles.first() = m_blank;
    auto* list = new ChoiceList(titles, int(values.indexOf(m_value)), this);
    connect(list, &ChoiceList::picked, this, [this, values](int row) { choose(values.at(row)); });
}

void OffsetPicker::keyPressEvent(QKeyEvent* event)
{
    if (PickerFace::isOpenedBy(*event))
        openList();
    else if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace)
        choose(QString());
    else
        ThemedButton::keyPressEvent(event);
}

QSize OffsetPicker::minimumSizeHint() const
{
    return { px(90), px(30) };
}

void OffsetPicker::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setOpacity(opacity());
    const FieldState state{ true, hasFocus(), m_edited, fade()->hover(), m_wanted && m_value.isEmpty() };
    PickerFace::paint(painter, rect(), text(), theme.text, state, theme);
}

}  // namespace Quorbel
