#include "ui/controls/tokens/TokenEditAccess.h"

#include "ui/controls/tokens/TokenEdit.h"

#include <QTextCursor>

namespace Quorbel {

namespace {

using Boundary = QAccessible::TextBoundaryType;

struct Range {
    int from = 0;
    int to = 0;
};

// The letter, word or line at this position; the whole text for all else.
Range rangeAt(const TokenEdit& edit, int offset, Boundary boundary)
{
    const int at = qBound(0, offset, edit.length());
    if (boundary == QAccessible::CharBoundary || edit.tokenAt(at))
        return { at, qMin(at + 1, edit.length()) };
    QTextCursor from(edit.document());
    from.setPosition(at);
    QTextCursor to = from;
    if (boundary == QAccessible::WordBoundary) {
        if (edit.document()->characterAt(at).isSpace())
            return { at, qMin(at + 1, edit.length()) };
        from.select(QTextCursor::WordUnderCursor);
        return { from.selectionStart(), from.selectionEnd() };
    }
    if (boundary == QAccessible::LineBoundary) {
        from.movePosition(QTextCursor::StartOfLine);
        to.movePosition(QTextCursor::EndOfLine);
        return { from.position(), to.position() };
    }
    return { 0, edit.length() };
}

}  // namespace

TokenEditAccess::TokenEditAccess(TokenEdit* edit)
    : QAccessibleWidget(edit, QAccessible::EditableText)
    , m_edit(edit)
{
}

void* TokenEditAccess::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString TokenEditAccess::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? m_edit->spoken(0, m_edit->length()) : QAccessibleWidget::text(kind);
}

QAccessible::State TokenEditAccess::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = true;
    state.selectableText = true;
    state.multiLine = true;
    return state;
}

void TokenEditAccess::selection(int index, int* start, int* end) const
{
    const QTextCursor cursor = m_edit->textCursor();
    *start = index == 0 ? cursor.selectionStart() : 0;
    *end = index == 0 ? cursor.selectionEnd() : 0;
}

int TokenEditAccess::selectionCount() const
{
    return m_edit->textCursor().hasSelection() ? 1 : 0;
}

void TokenEditAccess::addSelection(int start, int end)
{
    setSelection(0, start, end);
}

void TokenEditAccess::removeSelection(int)
{
    setCursorPosition(cursorPosition());
}

void TokenEditAccess::setSelection(int, int start, int end)
{
    QTextCursor cursor = m_edit->textCursor();
    cursor.setPosition(qBound(0, start, m_edit->length()));
    cursor.setPosition(qBound(0, end, m_edit->length()), QTextCursor::KeepAnchor);
    m_edit->setTextCursor(cursor);
}

int TokenEditAccess::cursorPosition() const
{
    return m_edit->textCursor().position();
}

void TokenEditAccess::setCursorPosition(int position)
{
    setSelection(0, position, position);
}

QString TokenEditAccess::text(int start, int end) const
{
    return m_edit->spoken(start, end);
}

QString TokenEditAccess::part(int from, int to, int* start, int* end) const
{
    *start = from;
    *end = to;
    return m_edit->spoken(from, to);
}

QString TokenEditAccess::textBeforeOffset(int offset, Boundary boundary, int* start, int* end) const
{
    const Range now = rangeAt(*m_edit, offset, boundary);
    if (now.from == 0)
        return part(0, 0, start, end);
    const Range before = rangeAt(*m_edit, now.from - 1, boundary);
    return part(before.from, qMin(before.to, now.from), start, end);
}

QString TokenEditAccess::textAfterOffset(int offset, Boundary boundary, int* start, int* end) const
{
    const Range now = rangeAt(*m_edit, offset, boundary);
    if (now.to >= m_edit->length())
        return part(now.to, now.to, start, end);
    const Range after = rangeAt(*m_edit, qMax(now.to, offset + 1), boundary);
    return part(after.from, after.to, start, end);
}

QString TokenEditAccess::textAtOffset(int offset, Boundary boundary, int* start, int* end) const
{
    const Range now = rangeAt(*m_edit, offset, boundary);
    return part(now.from, now.to, start, end);
}

int TokenEditAccess::characterCount() const
{
    return m_edit->length();
}

QRect TokenEditAccess::characterRect(int offset) const
{
    const QRect local = m_edit->rectOf(qBound(0, offset, m_edit->length()));
    return { m_edit->mapToGlobal(local.topLeft()), local.size() };
}

int TokenEditAccess::offsetAtPoint(const QPoint& point) const
{
    return m_edit->cursorForPosition(m_edit->viewport()->mapFromGlobal(point)).position();
}

void TokenEditAccess::scrollToSubstring(int, int)
{
    m_edit->ensureCursorVisible();
}

QString TokenEditAccess::attributes(int offset, int* start, int* end) const
{
    *start = offset;
    *end = qMin(offset + 1, m_edit->length());
    return {};
}

}  // namespace Quorbel
