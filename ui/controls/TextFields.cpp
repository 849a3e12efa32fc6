#include "ui/controls/TextFields.h"

#include "core/language/Texts.h"
#include "ui/controls/HoverFade.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QAbstractTextDocumentLayout>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QWheelEvent>

#include <cmath>
#include <memory>

namespace Quorbel {

namespace {

// QLineEdit keeps this much free at both ends, whatever its margins.
constexpr int builtInMargin = 2;

// The ground comes from our own frame, the placeholder from our own drawing.
QPalette textPalette(const Theme& theme)
{
    QPalette colors = paletteFor(theme);
    for (const auto group : { QPalette::Active, QPalette::Inactive, QPalette::Disabled }) {
        colors.setColor(group, QPalette::Base, Qt::transparent);
        colors.setColor(group, QPalette::PlaceholderText, Qt::transparent);
    }
    return colors;
}

bool clipboardHasText()
{
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasText();
}

// One line of the edit menu.
struct EditItem {
    QString title{};  // none: a line between the others
    QKeySequence::StandardKey key{};
    bool enabled = false;
    std::function<void()> run{};
};

// Whether what was typed may finish a code.
bool endsCode(const QString& typed)
{
    return typed.endsWith(u'=');
}

void showEditMenu(QWidget* field, const QPoint& globalPos, const QList<EditItem>& items)
{
    auto* menu = new ThemedMenu(field);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const EditItem& item : items) {
        if (item.title.isEmpty()) {
            menu->addSeparator();
            continue;
        }
        QAction* action = menu->addAction(item.title, field, item.run);
        action->setShortcut(item.key);
        action->setEnabled(item.enabled);
    }
    QList<QAction*> more = field->actions();
    more.removeIf([](const QAction* action) { return !action->isVisible(); });
    if (!more.isEmpty())
        menu->addSeparator();
    menu->addActions(more);
    menu->popup(globalPos);
}

}  // namespace

QBTextField::QBTextField(QWidget* parent)
    : QLineEdit(parent)
    , m_fade(new HoverFade(this))
{
    setFrame(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    onRestyle(this, [this] { restyle(); });
    m_ring = installFocusRing(this, { RingShape::field, 7, [this] { return m_edited; }, {} });
    connect(this, &QLineEdit::textEdited, this, &QBTextField::deselectCode);
}

void QBTextField::restyle()
{
    setPalette(textPalette(Theme::of(this)));
    setFont(m_mono ? verbatimMonoFont(13) : verbatimFont(13));
    const int side = px(m_bare ? 7 : 10) - builtInMargin;
    const int start = m_icon.isEmpty() ? side : px(31) - builtInMargin;
    const int end = qMax(side, m_roomAtEnd);
    setTextMargins(isRightToLeft() ? end : start, 0, isRightToLeft() ? start : end, 0);
    updateGeometry();
}

void QBTextField::setRoomAtEnd(int pixels)
{
    if (pixels == std::exchange(m_roomAtEnd, pixels))
        return;
    restyle();
}

void QBTextField::setBoundText(const QString& text)
{
    if (text != this->text())
        setText(text);
}

void QBTextField::setPlaceholder(const QString& text, bool italic)
{
    m_placeholder = text;
    m_italicPlaceholder = italic;
    // Qt tells screen readers of it as the description; what is seen is drawn by paintEvent().
    setPlaceholderText(text == accessibleName() ? QString() : text);
    update();
}

void QBTextField::setEdited(bool edited)
{
    if (edited == m_edited)
        return;
    m_edited = edited;
    update();
}

void QBTextField::setWanted(bool wanted)
{
    if (wanted == m_wanted)
        return;
    m_wanted = wanted;
    update();
}

void QBTextField::setMono(bool mono)
{
    m_mono = mono;
    restyle();
}

void QBTextField::setLeadingIcon(const QString& icon)
{
    m_icon = icon;
    restyle();
}

void QBTextField::setBare(bool bare)
{
    m_bare = bare;
    // The frame around it has the ring.
    removeEventFilter(m_ring);
    if (!bare)
        installEventFilter(m_ring);
    restyle();
}

QSize QBTextField::sizeHint() const
{
    return { px(160), px(30) };
}

QSize QBTextField::minimumSizeHint() const
{
    return { px(60), px(30) };
}

void QBTextField::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Paste)) {
        pasteText();
        return;
    }
    const QString before = text();
    QLineEdit::keyPressEvent(event);
    if (endsCode(event->text()) && text() != before)
        replaceCode();
}

// Some input methods hand over every letter.
void QBTextField::inputMethodEvent(QInputMethodEvent* event)
{
    const bool wasComposing = std::exchange(m_isComposing, !event->preeditString().isEmpty());
    QLineEdit::inputMethodEvent(event);
    if (wasComposing != m_isComposing)
        update();
    if (endsCode(event->commitString()) && event->preeditString().isEmpty())
        replaceCode();
}

void QBTextField::replaceCode()
{
    if (isReadOnly() || hasSelectedText())
        return;
    const auto code = typedCode(text().left(cursorPosition()), m_codes);
    if (!code)
        return;
    m_replacedCode = text().sliced(code->start, code->length);
    // Over a selection: one step for Undo.
    setSelection(int(code->start), int(code->length));
    insert(code->text);
    // What is typed from here on is another step: only a caret that moved ends one.
    const int end = cursorPosition();
    setCursorPosition(end - 1);
    setCursorPosition(end);
}

// Undo gives the code back as it was replaced: selected. What one types next must not take its place.
void QBTextField::deselectCode()
{
    if (!m_replacedCode.isEmpty() && selectedText() == m_replacedCode)
        setCursorPosition(selectionEnd());
}

QRect QBTextField::textRect() const
{
    const QMargins margins = textMargins();
    return rect().adjusted(margins.left() + builtInMargin, 0, -margins.right() - builtInMargin, 0);
}

void QBTextField::paintEvent(QPaintEvent* event)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    const bool isGap = m_wanted && text().isEmpty();
    if (!m_bare)
        paintFieldFrame(painter, rect(), { isEnabled(), hasFocus(), m_edited, m_fade->hover(), isGap }, theme);
    if (!m_icon.isEmpty()) {
        const QRectF place(pxF(9), 0, pxF(15), height());
        Icon::paint(painter, mirrored(place, this), m_icon, pxF(15), hasFocus() ? theme.text : theme.muted);
    }
    if (text().isEmpty() && !m_isComposing && !placeholder().isEmpty()) {
        QFont font = sansFont(13);
        font.setItalic(m_italicPlaceholder);
        painter.setFont(font);
        painter.setPen(isGap ? theme.derived.label : theme.muted);
        const QRect box = textRect();
        const QString shown = QFontMetrics(font).elidedText(placeholder(), Qt::ElideRight, box.width());
        painter.drawText(
            box, int(Qt::AlignVCenter | Qt::TextSingleLine) | int(alignment() & Qt::AlignHorizontal_Mask), shown);
    }
    painter.end();
    QLineEdit::paintEvent(event);
}

void QBTextField::contextMenuEvent(QContextMenuEvent* event)
{
    const bool writable = !isReadOnly();
    const bool selected = hasSelectedText();
    showEditMenu(this, event->globalPos(),
        {
            { Texts::tr("Undo"), QKeySequence::Undo, writable && isUndoAvailable(), [this] { undo(); } },
            { Texts::tr("Redo"), QKeySequence::Redo, writable && isRedoAvailable(), [this] { redo(); } },
            {},
            { Texts::tr("Cut"), QKeySequence::Cut, writable && selected, [this] { cut(); } },
            { Texts::tr("Copy"), QKeySequence::Copy, selected, [this] { copy(); } },
            { Texts::tr("Paste"), QKeySequence::Paste, writable && clipboardHasText(), [this] { pasteText(); } },
            {},
            { Texts::tr("Select All"), QKeySequence::SelectAll, !text().isEmpty(), [this] { selectAll(); } },
        });
}

QBTextArea::QBTextArea(QWidget* parent)
    : QPlainTextEdit(parent)
    , m_fade(new HoverFade(this))
{
    setFrameShape(QFrame::NoFrame);
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(0);
    onRestyle(this, [this] { restyle(); });
    installFocusRing(this, { RingShape::field, 7, [this] { return m_edited; }, {} });
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        grow();
        viewport()->update();
        if (m_wanted)
            update();
        // What an input method composes changes the document, too, but not yet the text.
        const QString text = toPlainText();
        if (std::exchange(m_told, text) != text && !m_binding)
            emit textEdited(text);
    });
}

void QBTextArea::restyle()
{
    setPalette(textPalette(Theme::of(this)));
    setFont(verbatimFont(13));
    setCursorWidth(1);
    // The border takes one pixel of the padding; the viewport is what is left.
    const int end = qMax(px(10), m_roomAtEnd);
    setViewportMargins(isRightToLeft() ? end : px(10), px(9), isRightToLeft() ? px(10) : end, px(9));
    grow();
}

void QBTextArea::setRoomAtEnd(int pixels)
{
    if (pixels == std::exchange(m_roomAtEnd, pixels))
        return;
    restyle();
}

void QBTextArea::setBoundText(const QString& text)
{
    if (text != toPlainText())
        startText(text);
}

void QBTextArea::startText(const QString& text)
{
    m_binding = true;
    setPlainText(text);
    m_binding = false;
}

void QBTextArea::setPlaceholder(const QString& text, bool italic)
{
    m_italicPlaceholder = italic;
    setPlaceholderText(text);
    viewport()->update();
}

void QBTextArea::setEdited(bool edited)
{
    if (edited == m_edited)
        return;
    m_edited = edited;
    update();
    viewport()->update();
}

void QBTextArea::setWanted(bool wanted)
{
    if (wanted == m_wanted)
        return;
    m_wanted = wanted;
    update();
    viewport()->update();
}

QSize QBTextArea::sizeHint() const
{
    return { px(160), qMax(px(54), height()) };
}

void QBTextArea::grow()
{
    // As laid out: lines are whole pixels high, and higher where another font stands in for missing letters.
    qreal text = 0;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        text += document()->documentLayout()->blockBoundingRect(block).height();
    // One pixel more: without, QPlainTextEdit thinks that its last line is out of sight, and scrolls the first away.
    const int wanted = qMax(px(54), int(std::ceil(text)) + 1 + 2 * px(9));
    if (wanted == height() && wanted == minimumHeight())
        return;
    setFixedHeight(wanted);
    // At once: were it left to the layout, the view would scroll to the new line first.
    resize(width(), wanted);
    updateGeometry();
}

void QBTextArea::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    if (event->oldSize().width() != event->size().width())
        grow();
    // All of the text is in sight; the view must not stay scrolled from before it grew.
    verticalScrollBar()->setValue(0);
}

void QBTextArea::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        viewport()->update();
}

bool QBTextArea::event(QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        DirectedPainter painter(this);
        const bool isGap = m_wanted && document()->isEmpty();
        const FieldState state{ isEnabled(), hasFocus(), m_edited, m_fade->hover(), isGap };
        paintFieldFrame(painter, rect(), state, Theme::of(this));
        return true;
    }
    return QPlainTextEdit::event(event);
}

void QBTextArea::paintEvent(QPaintEvent* event)
{
    QPlainTextEdit::paintEvent(event);
    if (placeholderText().isEmpty() || !document()->isEmpty() || isComposing())
        return;
    DirectedPainter painter(viewport());
    QFont font = sansFont(13);
    font.setItalic(m_italicPlaceholder);
    painter.setFont(font);
    painter.setPen(m_wanted ? Theme::of(this).derived.label : Theme::of(this).muted);
    painter.drawText(viewport()->rect(), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, placeholderText());
}

void QBTextArea::wheelEvent(QWheelEvent* event)
{
    // Nothing to scroll in here: the form behind scrolls.
    event->ignore();
}

void QBTextArea::keyPressEvent(QKeyEvent* event)
{
    const int before = document()->revision();
    QPlainTextEdit::keyPressEvent(event);
    if (endsCode(event->text()) && document()->revision() != before)
        replaceCode();
}

void QBTextArea::inputMethodEvent(QInputMethodEvent* event)
{
    QPlainTextEdit::inputMethodEvent(event);
    if (endsCode(event->commitString()) && event->preeditString().isEmpty())
        replaceCode();
}

bool QBTextArea::isComposing() const
{
    return !textCursor().block().layout()->preeditAreaText().isEmpty();
}

void QBTextArea::replaceCode()
{
    QTextCursor cursor = textCursor();
    if (!isReadOnly() && replaceTypedCode(cursor, m_codes))
        setTextCursor(cursor);
}

void QBTextArea::contextMenuEvent(QContextMenuEvent* event)
{
    const bool writable = !isReadOnly();
    const bool selected = textCursor().hasSelection();
    showEditMenu(this, event->globalPos(),
        {
            { Texts::tr("Undo"), QKeySequence::Undo, writable && document()->isUndoAvailable(), [this] { undo(); } },
            { Texts::tr("Redo"), QKeySequence::Redo, writable && document()->isRedoAvailable(), [this] { redo(); } },
            {},
            { Texts::tr("Cut"), QKeySequence::Cut, writable && selected, [this] { cut(); } },
            { Texts::tr("Copy"), QKeySequence::Copy, selected, [this] { copy(); } },
            { Texts::tr("Paste"), QKeySequence::Paste, writable && clipboardHasText(), [this] { paste(); } },
            {},
            { Texts::tr("Select All"), QKeySequence::SelectAll, !document()->isEmpty(), [this] { selectAll(); } },
        });
}

}  // namespace Quorbel
