#include "ui/controls/pickers/ChoicePicker.h"

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

namespace {

// Points: the sides and the arrows.
constexpr qreal besideTitle = 36;

}  // namespace

ChoicePicker::ChoicePicker(const QString& name, qreal width, QWidget* parent)
    : ThemedButton({}, parent)
    , m_width(width)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(name);
    onRestyle(this, [this] {
        setFont(sansFont(13));
        updateGeometry();
    });
    installFocusRing(this, { RingShape::field, 7, {}, {} });
    connect(this, &QAbstractButton::clicked, this, &ChoicePicker::openList);
}

void ChoicePicker::setTitles(const QStringList& titles)
{
    m_titles = titles;
    updateGeometry();
    setCurrent(m_current);
}

void ChoicePicker::setCurrent(int index)
{
    m_current = index;
    setText(m_titles.value(index));
    update();
}

QSize ChoicePicker::sizeHint() const
{
    qreal titles = 0;
    if (m_widest > m_width)
        for (const QString& title : m_titles)
            titles = qMax(titles, QFontMetricsF(sansFont(13)).horizontalAdvance(title) + pxF(besideTitle));
    return { qBound(px(m_width), int(titles), px(qMax(m_width, m_widest))), px(30) };
}

void ChoicePicker::setWidest(qreal points)
{
    m_widest = points;
    updateGeometry();
}

void ChoicePicker::openList()
{
    auto* list = new ChoiceList(m_titles, m_current, this);
    connect(list, &ChoiceList::picked, this, [this](int row) {
        if (row == m_current)
            return;
        setCurrent(row);
        emit picked(row);
    });
}

void ChoicePicker::keyPressEvent(QKeyEvent* event)
{
    if (PickerFace::isOpenedBy(*event))
        openList();
    else
        ThemedButton::keyPressEvent(event);
}

void ChoicePicker::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setOpacity(opacity());
    PickerFace::paint(painter, rect(), text(), theme.text, { true, hasFocus(), false, fade()->hover() }, theme);
}

}  // namespace Quorbel
