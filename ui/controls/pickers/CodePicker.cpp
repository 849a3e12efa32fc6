#include "ui/controls/pickers/CodePicker.h"

#include "ui/controls/HoverFade.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/pickers/CodePopover.h"
#include "ui/controls/pickers/PickerFace.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>

namespace Quorbel {

CodePicker::CodePicker(const QString& name, QWidget* parent)
    : ThemedButton({}, parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(name);
    onRestyle(this, [this] {
        setFont(verbatimFont(13));
        updateGeometry();
        showToolTip();
    });
    installFocusRing(this, { RingShape::field, 7, [this] { return m_edited; }, {} });
    connect(this, &QAbstractButton::clicked, this, [this] { openList({}); });
}

void CodePicker::setSource(const CodeSource& source)
{
    m_source = source;
    setCode(m_code);
}

void CodePicker::setCode(const QString& code)
{
    const QString name = m_source.shown(code);
    if (code == m_code && name == text())
        return;
    m_code = code;
    setText(name);
    showToolTip();
    update();
    QAccessibleValueChangeEvent event(this, name);
    QAccessible::updateAccessibility(&event);
}

void CodePicker::setPlaceholder(const QString& text, bool italic)
{
    m_placeholder = text;
    m_italicPlaceholder = italic;
    update();
}

void CodePicker::setEdited(bool edited)
{
    m_edited = edited;
    update();
}

void CodePicker::setWanted(bool wanted)
{
    m_wanted = wanted;
    update();
}

QSize CodePicker::sizeHint() const
{
    return { px(200), px(30) };
}

QSize CodePicker::minimumSizeHint() const
{
    return { px(90), px(30) };
}

void CodePicker::setOpen(bool open)
{
    m_open = open;
    QAccessible::State changed;
    changed.expanded = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void CodePicker::openList(const QString& typed)
{
    const QStringList held = m_code.isEmpty() ? QStringList() : QStringList(m_code);
    auto* list = new CodePopover(accessibleName(), m_source, held, true, this);
    connect(list, &CodePopover::picked, this, &CodePicker::take);
    connect(list, &Popover::closed, this, [this] { setOpen(false); });
    list->openAt(*this);
    const bool isText = m_source.takesAnyText && !m_code.isEmpty() && m_source.known(m_code).isEmpty();
    list->field()->setText(typed.isEmpty() && isText ? m_code : typed);
    if (typed.isEmpty())
        list->field()->selectAll();
    setOpen(true);
}

void CodePicker::take(const QString& code)
{
    setCode(code);
    emit picked(code);
}

void CodePicker::keyPressEvent(QKeyEvent* event)
{
    const bool isPlain = !(event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier));
    if (PickerFace::isOpenedBy(*event))
        return openList({});
    if (m_source.takesAnyText && event->matches(QKeySequence::Copy))
        return QGuiApplication::clipboard()->setText(m_code);
    if (m_source.takesAnyText && event->matches(QKeySequence::Paste))
        return openList(QGuiApplication::clipboard()->text().simplified());
    switch (event->key()) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        if (isPlain && !m_code.isEmpty())
            take({});
        return;
    case Qt::Key_Space:
        return ThemedButton::keyPressEvent(event);
    default:
        break;
    }
    if (isPlain && !event->text().isEmpty() && event->text().at(0).isPrint())
        openList(event->text());
    else
        ThemedButton::keyPressEvent(event);
}

void CodePicker::resizeEvent(QResizeEvent* event)
{
    ThemedButton::resizeEvent(event);
    showToolTip();
}

void CodePicker::showToolTip()
{
    setToolTip(fontMetrics().horizontalAdvance(text()) > PickerFace::textRoom(width()) ? text() : QString());
}

void CodePicker::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setOpacity(opacity());
    const bool isEmpty = m_code.isEmpty();
    const bool isGap = isEmpty && m_wanted;
    const FieldState state{ true, hasFocus() || m_open, m_edited, fade()->hover(), isGap };
    QFont shown = isEmpty ? sansFont(13) : font();
    shown.setItalic(isEmpty && m_italicPlaceholder);
    painter.setFont(shown);
    const QColor empty = isGap ? theme.derived.label : theme.muted;
    PickerFace::paint(painter, rect(), isEmpty ? m_placeholder : text(), isEmpty ? empty : theme.text, state, theme);
}

}  // namespace Quorbel
