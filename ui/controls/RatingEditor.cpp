#include "ui/controls/RatingEditor.h"

#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {
constexpr int stars = 5;
// How far the first cell reaches beyond the left edge, so that its star, and not the cell, is in line with the fields.
constexpr int inset = 6;
constexpr int gapSide = 4;  // within a border
}  // namespace

RatingEditor::RatingEditor(QWidget* parent)
    : QWidget(parent)
{
    installAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setMouseTracking(true);
    setAccessibleName(Texts::tr("Rating"));
    setToolTip(Texts::tr("0 to 5 stars; click the current rating to clear it"));
    onRestyle(this, [this] { updateGeometry(); });
    // Round the cells: the first one begins left of the row, so that its star stands at the row's edge.
    const auto cells = [this] { return cell(1).united(cell(stars)); };
    installFocusRing(this, { RingShape::tight, 6, {}, cells });
}

void RatingEditor::setValue(const QString& value)
{
    if (value == m_value)
        return;
    m_value = value;
    updateGeometry();
    update();
    QAccessibleValueChangeEvent event(this, rating());
    QAccessible::updateAccessibility(&event);
}

void RatingEditor::setEdited(bool edited)
{
    m_edited = edited;
    update();
}

void RatingEditor::setWanted(bool wanted)
{
    m_wanted = wanted;
    updateGeometry();
    update();
}

void RatingEditor::setSmall(bool on)
{
    m_small = on;
    updateGeometry();
}

int RatingEditor::rating() const
{
    return qBound(0, m_value.trimmed().toInt(), stars);
}

QSize RatingEditor::sizeHint() const
{
    if (isGap())
        return { stars * px(26) + 2 * px(gapSide), px(30) };
    return m_small ? QSize(stars * px(20), px(28)) : QSize(stars * px(26) - px(inset), px(30));
}

QRectF RatingEditor::cell(int star) const
{
    const qreal wide = pxF(m_small ? 20 : 26);
    const qreal left = isGap() ? pxF(gapSide) : m_small ? 0 : -pxF(inset);
    return mirrored(QRectF(left + (star - 1) * wide, 0, wide, height()), this);
}

int RatingEditor::starAt(QPointF pos) const
{
    for (int star = 1; star <= stars; ++star) {
        if (cell(star).contains(pos))
            return star;
    }
    return 0;
}

void RatingEditor::choose(int count)
{
    const QString value = QString::number(qBound(0, count, stars));
    if (value == m_value)
        return;
    setValue(value);
    emit valueEdited(value);
}

void RatingEditor::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setOpacity(isEnabled() ? 1 : HighContrast::disabledOpacity(theme));
    if (isGap())
        paintFieldFrame(painter, rect(), { .enabled = isEnabled(), .isGap = true }, theme);
    if (m_hovered > 0 && isEnabled())
        paintBox(painter, cell(m_hovered), pxF(6), m_pressed ? theme.derived.pressed : theme.derived.hover, Qt::NoPen);
    for (int star = 1; star <= stars; ++star) {
        const bool filled = star <= rating();
        const QColor plain = filled ? theme.text : theme.muted;
        const QString icon = filled ? u"star.fill"_s : u"star"_s;
        Icon::paint(painter, cell(star), icon, pxF(m_small ? 14 : 18), m_edited ? theme.amber : plain);
    }
}

void RatingEditor::mouseMoveEvent(QMouseEvent* event)
{
    const int star = starAt(event->position());
    if (star == m_hovered)
        return;
    m_hovered = star;
    update();
}

void RatingEditor::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed = starAt(event->position());
    update();
}

void RatingEditor::mouseReleaseEvent(QMouseEvent* event)
{
    const int star = starAt(event->position());
    // What the photo holds, not the stars shown: beyond five all of them shine, and the fifth is no "clear" yet.
    if (m_pressed > 0 && star == m_pressed)
        choose(star == m_value.trimmed().toInt() ? 0 : star);
    m_pressed = 0;
    update();
}

void RatingEditor::leaveEvent(QEvent*)
{
    m_hovered = 0;
    update();
}

void RatingEditor::keyPressEvent(QKeyEvent* event)
{
    const int key = mirroredKey(event->key(), this);
    const bool plain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (!plain)
        QWidget::keyPressEvent(event);
    else if (key >= Qt::Key_0 && key <= Qt::Key_5)
        choose(key - Qt::Key_0);
    else if (key == Qt::Key_Right || key == Qt::Key_Up)
        choose(rating() + 1);
    else if (key == Qt::Key_Left || key == Qt::Key_Down)
        choose(rating() - 1);
    else if (key == Qt::Key_Home || key == Qt::Key_Delete || key == Qt::Key_Backspace)
        choose(0);
    else if (key == Qt::Key_End)
        choose(stars);
    else
        QWidget::keyPressEvent(event);
}

}  // namespace Quorbel
