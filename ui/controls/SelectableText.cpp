#include "ui/controls/SelectableText.h"

#include "core/language/Texts.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/TextLines.h"
#include "ui/controls/theme/Theme.h"

#include <QContextMenuEvent>
#include <QTextDocument>
#include <QTextLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

SelectableText::SelectableText(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setFrameShape(QFrame::NoFrame);
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(0);
    OverlayScrollBar::attach(this);
    installFocusRing(this, { RingShape::tight, 4, {}, {} });
    onRestyle(this, [this] {
        QPalette colors = paletteFor(Theme::of(this));
        colors.setColor(QPalette::Base, Qt::transparent);
        setPalette(colors);
        setFont(verbatimFont(13));
        const QMargins margins = mirrored(QMargins(0, 0, OverlayScrollBar::room(), 0));
        setViewportMargins(margins.left(), margins.top(), margins.right(), margins.bottom());
    });
}

int SelectableText::heightFor(int width, int mostLines) const
{
    // Of the lines as they are laid out: they are higher than the font's whole pixels, and more so with other scripts.
    qreal height = 0;
    int lines = 0;
    forEachLine(toPlainText(), font(), width - OverlayScrollBar::room(), QTextOption::WrapAtWordBoundaryOrAnywhere,
        [&](const QTextLine& line) {
            height += line.height();
            return ++lines < mostLines;
        });
    // One pixel more: without, QPlainTextEdit thinks that its last line is out of sight.
    return qCeil(height) + 1;
}

void SelectableText::contextMenuEvent(QContextMenuEvent* event)
{
    auto* menu = new ThemedMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* copying = menu->addAction(Texts::tr("Copy"), this, &QPlainTextEdit::copy);
    copying->setShortcut(QKeySequence::Copy);
    copying->setEnabled(textCursor().hasSelection());
    menu->addAction(Texts::tr("Select All"), this, &QPlainTextEdit::selectAll)->setShortcut(QKeySequence::SelectAll);
    menu->popup(event->globalPos());
}

}  // namespace Quorbel
