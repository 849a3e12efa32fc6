#include "app/shell/TextCommands.h"

#include "core/language/Texts.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/window/Shortcuts.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

bool isTextEditor(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget);
}

bool hasSelectedText(const QWidget& widget)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->hasSelectedText();
    const auto* area = qobject_cast<const QPlainTextEdit*>(&widget);
    return area && area->textCursor().hasSelection();
}

bool isWritable(const QWidget& widget)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return !line->isReadOnly();
    const auto* area = qobject_cast<const QPlainTextEdit*>(&widget);
    return area && !area->isReadOnly();
}

bool canCut(const QWidget& widget)
{
    return isWritable(widget) && hasSelectedText(widget);
}

bool canUndo(const QWidget& widget)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->isUndoAvailable();
    const auto* area = qobject_cast<const QPlainTextEdit*>(&widget);
    return area && area->document()->isUndoAvailable();
}

bool canRedo(const QWidget& widget)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->isRedoAvailable();
    const auto* area = qobject_cast<const QPlainTextEdit*>(&widget);
    return area && area->document()->isRedoAvailable();
}

bool canPaste(const QWidget& widget)
{
    const QMimeData* data = QApplication::clipboard()->mimeData();
    return isWritable(widget) && data && data->hasText();
}

// Asked whether it is possible when the menu opens.
void add(ThemedMenu& menu, const QString& english, QKeySequence::StandardKey key, const char* slot,
    bool (*isPossible)(const QWidget&))
{
    QAction* action = Shortcuts::addCommand(menu, english, QKeySequence::keyBindings(key).mid(0, 1), [slot] {
        if (QWidget* focus = QApplication::focusWidget(); isTextEditor(focus))
            QMetaObject::invokeMethod(focus, slot);
    });
    QObject::connect(&menu, &QMenu::aboutToShow, action, [action, isPossible] {
        const QWidget* focus = QApplication::focusWidget();
        action->setEnabled(isTextEditor(focus) && isPossible(*focus));
    });
    // A disabled action would keep its keys from working once the menu is closed.
    QObject::connect(
        &menu, &QMenu::aboutToHide, action, [action] { action->setEnabled(true); }, Qt::QueuedConnection);
}

}  // namespace

void TextCommands::addHistory(ThemedMenu& menu)
{
    add(menu, Texts::mark("&Undo"), QKeySequence::Undo, "undo", canUndo);
    add(menu, Texts::mark("&Redo"), QKeySequence::Redo, "redo", canRedo);
}

void TextCommands::addClipboard(ThemedMenu& menu)
{
    add(menu, Texts::mark("Cu&t"), QKeySequence::Cut, "cut", canCut);
    add(menu, Texts::mark("&Copy"), QKeySequence::Copy, "copy", hasSelectedText);
    add(menu, Texts::mark("&Paste"), QKeySequence::Paste, "paste", canPaste);
}

bool TextCommands::selectAll()
{
    QWidget* focus = QApplication::focusWidget();
    return isTextEditor(focus) && QMetaObject::invokeMethod(focus, "selectAll");
}

}  // namespace Quorbel
