#include "ui/controls/cards/FoldLine.h"

#include "core/language/Texts.h"
#include "ui/controls/HoverFade.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {
constexpr qreal chevronStroke = 2.1;  // at this size the drawing's own would be faint
}

FoldLine::FoldLine(const QString& title, QWidget* parent)
    : ThemedButton(title, parent)
    , m_turn(this, Duration::marking, QEasingCurve::OutCubic)
{
    setAccessibleName(title);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::clicked, this, [this] { emit openAsked(!m_open); });
}

void FoldLine::setTitle(const QString& title)
{
    if (title == text())
        return;
    setText(title);
    setAccessibleName(title);
    showToolTip();
    updateGeometry();
}

void FoldLine::setSummary(const Summary& summary)
{
    if (summary == m_summary)
        return;
    m_summary = summary;
    describe();
    showToolTip();
    update();
}

void FoldLine::setOpen(bool open)
{
    if (open == m_open)
        return;
    m_open = open;
    m_turn.moveTo(open ? 1 : 0);
    showToolTip();
    update();
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void FoldLine::setEdited(bool edited)
{
    if (edited == m_edited)
        return;
    m_edited = edited;
    describe();
    update();
}

void FoldLine::describe()
{
    QStringList told;
    if (m_edited)
        told.append(Texts::tr("edited"));
    if (const QString text = m_summary.text(); !text.isEmpty())
        told.append(text);
    setAccessibleDescription(told.join(u", "_s));
}

void FoldLine::showToolTip()
{
    setToolTip(hiddenText());
}

QString FoldLine::hiddenText() const
{
    return !m_open && m_summary.width() > summaryRect().width() ? m_summary.text() : QString();
}

void FoldLine::resizeEvent(QResizeEvent* event)
{
    ThemedButton::resizeEvent(event);
    showToolTip();
}

void FoldLine::showEvent(QShowEvent* event)
{
    ThemedButton::showEvent(event);
    showToolTip();
}

void FoldLine::keyPressEvent(QKeyEvent* event)
{
    const int key = mirroredKey(event->key(), this);
    const bool opens = key == Qt::Key_Right;
    const bool folds = key == Qt::Key_Left;
    // With Alt, Control or Shift they are another's.
    if ((!opens && !folds) || (event->modifiers() & ~Qt::KeypadModifier))
        return ThemedButton::keyPressEvent(event);
    if (opens != m_open)
        emit openAsked(opens);
}

void FoldLine::paintChevron(QPainter& painter, const QRectF& place) const
{
    const Theme& theme = Theme::of(this);
    const QColor ink = mixed(theme.derived.label, theme.text, qMax(fade()->hover(), fade()->pressed()));
    const qreal turn = m_turn.value();
    if (turn == 0 || turn == 1)
        return Icon::paint(
            painter, place, turn == 0 ? u"chevron.right"_s : u"chevron.down"_s, place.width(), ink, chevronStroke);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(place.center());
    painter.rotate((isRightToLeft() ? -90 : 90) * turn);
    painter.translate(-place.center());
    Icon::paint(painter, place, u"chevron.right"_s, place.width(), ink, chevronStroke);
    painter.restore();
}

}  // namespace Quorbel
