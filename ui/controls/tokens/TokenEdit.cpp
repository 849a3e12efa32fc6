#include "ui/controls/tokens/TokenEdit.h"

#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/HoverFade.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QAbstractTextDocumentLayout>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextObjectInterface>

#include <cmath>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr int tokenType = QTextFormat::UserObject + 1;
constexpr int labelProperty = QTextFormat::UserProperty + 1;
constexpr int detailProperty = QTextFormat::UserProperty + 2;
constexpr int codeProperty = QTextFormat::UserProperty + 3;

// Points.
constexpr qreal lineHeight = 24;
constexpr qreal chipHeight = 20;
constexpr qreal chipPadding = 6;
constexpr qreal detailGap = 4;
constexpr qreal chipMargin = 1;

InlineToken tokenIn(const QTextFormat& format)
{
    return { format.stringProperty(labelProperty), format.stringProperty(detailProperty),
        format.stringProperty(codeProperty) };
}

// Draws tokens among the letters.
class TokenPainter final : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    explicit TokenPainter(TokenEdit* edit)
        : QObject(edit)
        , m_edit(edit)
    {
    }

    QSizeF intrinsicSize(QTextDocument*, int, const QTextFormat& format) override
    {
        const InlineToken token = tokenIn(format);
        const QFontMetricsF metrics(sansFont(12));
        qreal width = 2 * (pxF(chipPadding) + pxF(chipMargin)) + 2 + metrics.horizontalAdvance(token.label);
        if (!token.detail.isEmpty())
            width += pxF(detailGap) + metrics.horizontalAdvance(token.detail);
        // In a narrow field it is cut short rather than cut off.
        // Stands on the letters' foot line; what is below that belongs to the line.
        return { qMin(std::ceil(width), qMax(pxF(60), m_edit->viewport()->width() - 1.0)),
            px(lineHeight) - belowFoot() };
    }

    void drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document, int position,
        const QTextFormat& format) override
    {
        const InlineToken token = tokenIn(format);
        const Theme& theme = Theme::of(m_edit);
        const bool isSelected = m_edit->selectedToken() == position;
        const qreal lineEnd = rect.bottom() + qMin(belowFoot(), belowFoot(*document, position));
        const QRectF chip(rect.left() + pxF(chipMargin), lineEnd - pxF(chipHeight), rect.width() - 2 * pxF(chipMargin),
            pxF(chipHeight));
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        paintBox(*painter, chip, pxF(6), isSelected ? theme.sel : theme.btn,
            QPen(isSelected ? theme.sel : theme.btnLine, 1));
        painter->setFont(sansFont(12));
        const QFontMetricsF metrics(painter->font());
        QRectF text = chip.adjusted(pxF(chipPadding), 0, -pxF(chipPadding), 0);
        const auto draw = [&](const QString& words, const QColor& color) {
            painter->setPen(color);
            painter->drawText(mirrored(text, chip, painter->layoutDirection()),
                Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                metrics.elidedText(words, Qt::ElideRight, text.width() + 1));
            text.setLeft(text.left() + metrics.horizontalAdvance(words) + pxF(detailGap));
        };
        draw(token.label, isSelected ? theme.selText : theme.text);
        if (text.width() > pxF(12))
            draw(token.detail, isSelected ? theme.selSub : theme.derived.label);
        painter->restore();
    }

private:
    static qreal belowFoot() { return std::ceil(QFontMetricsF(verbatimFont(13)).descent()); }
    // Of the line in which this stands: nothing where there is no letter beside it.
    static qreal belowFoot(const QTextDocument& document, int position)
    {
        const QTextBlock block = document.findBlock(position);
        return std::ceil(block.layout()->lineForTextPosition(position - block.position()).descent());
    }

    TokenEdit* m_edit;
};

QTextCharFormat formatOf(const InlineToken& token)
{
    QTextCharFormat format;
    format.setObjectType(tokenType);
    format.setProperty(labelProperty, token.label);
    format.setProperty(detailProperty, token.detail);
    format.setProperty(codeProperty, token.code);
    return format;
}

QString flattened(QString text)
{
    return text.replace(u'\n', u' ');
}

}  // namespace

TokenEdit::TokenEdit(bool hasSeveralLines, QWidget* parent)
    : QTextEdit(parent)
    , m_fade(new HoverFade(this))
    , m_hasSeveralLines(hasSeveralLines)
{
    installAccessibility();
    setFrameShape(QFrame::NoFrame);
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(0);
    document()->documentLayout()->registerHandler(tokenType, new TokenPainter(this));
    installFocusRing(this, { RingShape::field, 7, {}, {} });
    onRestyle(this, [this] { restyle(); });
    connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this, &TokenEdit::grow);
    connect(this, &QTextEdit::textChanged, this, [this] {
        // What an input method composes changes the document, too, but not yet the text.
        const QList<TokenEditPiece> now = pieces();
        if (std::exchange(m_told, now) != now && !m_isBinding)
            emit edited();
    });
    connect(this, &QTextEdit::selectionChanged, this, &TokenEdit::showSelection);
}

void TokenEdit::restyle()
{
    showSelection();
    setFont(verbatimFont(13));
    document()->setDefaultFont(verbatimFont(13));
    setCursorWidth(1);
    // Lines have their letters at the foot: less room above them, so that one line is in the middle.
    const int around = m_hasSeveralLines ? px(60) - 2 * px(lineHeight) : px(30) - px(lineHeight);
    const int above = (around - px(lineHeight - chipHeight)) / 2;
    setViewportMargins(px(9), above, px(9), around - above);
    const QSignalBlocker quiet(this);
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    QTextBlockFormat lines;
    lines.setLineHeight(px(lineHeight), QTextBlockFormat::MinimumHeight);
    all.mergeBlockFormat(lines);
    grow();
}

// A token that alone is selected is drawn so itself.
void TokenEdit::showSelection()
{
    QPalette colors = paletteFor(Theme::of(this));
    for (const auto group : { QPalette::Active, QPalette::Inactive, QPalette::Disabled }) {
        colors.setColor(group, QPalette::Base, Qt::transparent);
        if (selectedToken() >= 0)
            colors.setBrush(group, QPalette::Highlight, Qt::NoBrush);
    }
    if (colors != palette())
        setPalette(colors);
    viewport()->update();
}

void TokenEdit::grow()
{
    const QMargins margins = viewportMargins();
    const int lines = qMax(int(std::ceil(document()->size().height())), px(lineHeight) * (m_hasSeveralLines ? 2 : 1));
    const int wanted = lines + margins.top() + margins.bottom();
    if (wanted == height() && wanted == minimumHeight())
        return;
    setFixedHeight(wanted);
    resize(width(), wanted);
    updateGeometry();
}

QSize TokenEdit::sizeHint() const
{
    return { px(160), height() };
}

QSize TokenEdit::minimumSizeHint() const
{
    return { px(80), height() };
}

void TokenEdit::resizeEvent(QResizeEvent* event)
{
    QTextEdit::resizeEvent(event);
    verticalScrollBar()->setValue(0);
}

// --- What is in it ---

int TokenEdit::length() const
{
    return document()->characterCount() - 1;
}

std::optional<InlineToken> TokenEdit::tokenAt(int position) const
{
    if (position < 0 || position >= length() || document()->characterAt(position) != QChar::ObjectReplacementCharacter)
        return std::nullopt;
    QTextCursor cursor(document());
    cursor.setPosition(position);
    cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
    const QTextCharFormat format = cursor.charFormat();
    return format.objectType() == tokenType ? std::optional(tokenIn(format)) : std::nullopt;
}

QList<TokenEditPiece> TokenEdit::pieces() const
{
    QList<TokenEditPiece> pieces;
    QString text;
    const auto endText = [&] {
        if (!text.isEmpty())
            pieces.append({ .text = std::exchange(text, {}) });
    };
    for (int i = 0; i < length(); ++i) {
        if (const auto token = tokenAt(i)) {
            endText();
            pieces.append({ .token = token });
        } else {
            const QChar letter = document()->characterAt(i);
            text += letter == QChar::ParagraphSeparator || letter == QChar::LineSeparator ? QChar(u'\n') : letter;
        }
    }
    endText();
    return pieces;
}

void TokenEdit::setPieces(const QList<TokenEditPiece>& shown)
{
    if (shown == pieces())
        return;
    m_isBinding = true;
    clear();
    QTextCursor cursor(document());
    insertPieces(cursor, shown);
    document()->clearUndoRedoStacks();
    restyle();
    m_isBinding = false;
}

void TokenEdit::insertPieces(QTextCursor& cursor, const QList<TokenEditPiece>& pieces) const
{
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    for (const TokenEditPiece& piece : pieces) {
        if (piece.token)
            cursor.insertText(QString(QChar::ObjectReplacementCharacter), formatOf(*piece.token));
        else
            cursor.insertText(m_hasSeveralLines ? piece.text : flattened(piece.text), QTextCharFormat());
    }
    cursor.endEditBlock();
}

void TokenEdit::insertToken(const InlineToken& token)
{
    QTextCursor cursor = textCursor();
    insertPieces(cursor, { { .token = token } });
    cursor.setCharFormat({});
    setTextCursor(cursor);
}

void TokenEdit::replaceToken(int position, const InlineToken& token)
{
    const auto before = tokenAt(position);
    if (!before || *before == token)
        return;
    QTextCursor cursor(document());
    cursor.setPosition(position);
    cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
    insertPieces(cursor, { { .token = token } });
    cursor.setPosition(position);
    cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

int TokenEdit::selectedToken() const
{
    const QTextCursor cursor = textCursor();
    const int from = cursor.selectionStart();
    return cursor.selectionEnd() == from + 1 && tokenAt(from) ? from : -1;
}

QRect TokenEdit::rectOf(int position) const
{
    QTextCursor cursor(document());
    cursor.setPosition(position);
    const QRect from = cursorRect(cursor);
    cursor.setPosition(qMin(position + 1, length()));
    const QRect to = cursorRect(cursor);
    const bool isOneLine = to.top() == from.top();
    const QRect rect(from.left(), from.top(), isOneLine ? to.left() - from.left() : from.width(), from.height());
    return rect.translated(viewport()->pos());
}

QString TokenEdit::spoken(int from, int to) const
{
    QString text;
    for (int i = from; i < qMin(to, length()); ++i) {
        if (const auto token = tokenAt(i))
            text += u'[' + (token->detail.isEmpty() ? token->label : token->label + u' ' + token->detail) + u']';
        else
            text += document()->characterAt(i) == QChar::ParagraphSeparator ? QChar(u'\n') : document()->characterAt(i);
    }
    return text;
}

// --- Hands ---

bool TokenEdit::selectTokenBeside(bool before)
{
    QTextCursor cursor = textCursor();
    const int position = before ? cursor.position() - 1 : cursor.position();
    if (cursor.hasSelection() || !tokenAt(position))
        return false;
    cursor.setPosition(before ? position + 1 : position);
    cursor.setPosition(before ? position : position + 1, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    return true;
}

void TokenEdit::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (isReturn && selectedToken() >= 0) {
        emit tokenOpened(selectedToken());
        return;
    }
    if (isReturn && !m_hasSeveralLines) {
        event->ignore();
        return;
    }
    const bool isPlain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (isPlain && (key == Qt::Key_Backspace || key == Qt::Key_Delete) && selectTokenBeside(key == Qt::Key_Backspace))
        return;
    const int before = document()->revision();
    QTextEdit::keyPressEvent(event);
    if (event->text() == u"%")
        recognizeTyped();
    else if (event->text() == u"=" && document()->revision() != before)
        replaceCode();
}

void TokenEdit::inputMethodEvent(QInputMethodEvent* event)
{
    QTextEdit::inputMethodEvent(event);
    if (event->preeditString().isEmpty() && event->commitString().endsWith(u'='))
        replaceCode();
}

void TokenEdit::replaceCode()
{
    QTextCursor cursor = textCursor();
    if (replaceTypedCode(cursor, m_codes))
        setTextCursor(cursor);
}

// The percent sign that was just typed may end a code.
void TokenEdit::recognizeTyped()
{
    const QTextCursor now = textCursor();
    const QTextBlock block = now.block();
    const QString line = block.text().left(now.positionInBlock());
    const qsizetype start = line.size() < 2 ? -1 : line.lastIndexOf(u'%', line.size() - 2);
    if (!m_parse || start < 0)
        return;
    const QList<TokenEditPiece> found = m_parse(line.sliced(start));
    if (found.size() != 1 || !found.first().token)
        return;
    QTextCursor cursor(document());
    cursor.setPosition(block.position() + int(start));
    cursor.setPosition(now.position(), QTextCursor::KeepAnchor);
    insertPieces(cursor, found);
    cursor.setCharFormat({});
    setTextCursor(cursor);
}

void TokenEdit::mouseDoubleClickEvent(QMouseEvent* event)
{
    const int at = cursorForPosition(event->position().toPoint()).position();
    for (const int position : { at - 1, at }) {
        if (!tokenAt(position) || !rectOf(position).contains(event->position().toPoint() + viewport()->pos()))
            continue;
        QTextCursor cursor = textCursor();
        cursor.setPosition(position);
        cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
        setTextCursor(cursor);
        emit tokenOpened(position);
        return;
    }
    QTextEdit::mouseDoubleClickEvent(event);
}

void TokenEdit::focusInEvent(QFocusEvent* event)
{
    QTextEdit::focusInEvent(event);
    emit focused();
}

void TokenEdit::contextMenuEvent(QContextMenuEvent* event)
{
    auto* menu = new ThemedMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QString& title, QKeySequence::StandardKey key, bool on, auto slot) {
        QAction* action = menu->addAction(title, this, slot);
        action->setShortcut(key);
        action->setEnabled(on);
    };
    const bool selected = textCursor().hasSelection();
    add(Texts::tr("Undo"), QKeySequence::Undo, document()->isUndoAvailable(), &QTextEdit::undo);
    add(Texts::tr("Redo"), QKeySequence::Redo, document()->isRedoAvailable(), &QTextEdit::redo);
    menu->addSeparator();
    add(Texts::tr("Cut"), QKeySequence::Cut, selected, &QTextEdit::cut);
    add(Texts::tr("Copy"), QKeySequence::Copy, selected, &QTextEdit::copy);
    add(Texts::tr("Paste"), QKeySequence::Paste, canPaste(), &QTextEdit::paste);
    menu->addSeparator();
    add(Texts::tr("Select All"), QKeySequence::SelectAll, length() > 0, &QTextEdit::selectAll);
    if (const int token = selectedToken(); token >= 0) {
        menu->addSeparator();
        //: Of a token. Default: what stands there where a photo has no such value; form: how a date is written.
        menu->addAction(Texts::tr("Default and Form…"), this, [this, token] { emit tokenOpened(token); });
    }
    menu->popup(event->globalPos());
}

QMimeData* TokenEdit::createMimeDataFromSelection() const
{
    QString text;
    for (int i = textCursor().selectionStart(); i < textCursor().selectionEnd(); ++i) {
        const auto token = tokenAt(i);
        const QChar letter = document()->characterAt(i);
        text += token ? token->code : letter == QChar::ParagraphSeparator ? u"\n"_s : QString(letter);
    }
    auto* data = new QMimeData;
    data->setText(text);
    return data;
}

bool TokenEdit::canInsertFromMimeData(const QMimeData* source) const
{
    return source->hasText();
}

void TokenEdit::insertFromMimeData(const QMimeData* source)
{
    QTextCursor cursor = textCursor();
    const QString text = source->text();
    insertPieces(cursor, m_parse ? m_parse(text) : QList<TokenEditPiece>{ { .text = text } });
    cursor.setCharFormat({});
    setTextCursor(cursor);
}

bool TokenEdit::event(QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        DirectedPainter painter(this);
        paintFieldFrame(painter, rect(), { isEnabled(), hasFocus(), false, m_fade->hover() }, Theme::of(this));
        return true;
    }
    return QTextEdit::event(event);
}

}  // namespace Quorbel

#include "TokenEdit.moc"
