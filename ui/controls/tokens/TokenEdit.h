// A text field with tokens in its text: chips that stand among the letters and count as one.
// Thread: the main thread. Knows nothing of what a token stands for: its owner names it, and reads it from a text.
#pragma once

#include "ui/controls/text/TypedCode.h"

#include <QList>
#include <QTextEdit>
#include <QWheelEvent>

#include <functional>
#include <optional>

namespace Quorbel {

class HoverFade;

struct InlineToken {
    QString label{};  ///< "Place"
    QString detail{};  ///< drawn after it, quieter: "or Zürich"
    QString code{};  ///< as it stands in a plain text: "%Place|Zürich%"
    bool operator==(const InlineToken&) const = default;
};

/// Plain text, or a token.
struct TokenEditPiece {
    QString text{};
    std::optional<InlineToken> token{};
    bool operator==(const TokenEditPiece&) const = default;
};

/// Grows with its text; lines are 24 points high. The caret takes a token as one letter; Backspace and Delete select
/// it first and then remove it; a double click, or Return while it alone is selected, asks what is behind it. A code
/// that is typed or pasted becomes its token, and a token that is copied its code.
class TokenEdit final : public QTextEdit {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TokenEdit)

public:
    using Parse = std::function<QList<TokenEditPiece>(const QString& text)>;

    /// With several lines it takes line breaks and is at least two lines high.
    explicit TokenEdit(bool hasSeveralLines, QWidget* parent = nullptr);
    void setParse(Parse parse) { m_parse = std::move(parse); }
    /// As QBTextField::setCodes(); these codes are no tokens.
    void setCodes(const CodeTexts& codes) { m_codes = codes; }

    QList<TokenEditPiece> pieces() const;
    /// Shows these, and forgets the undo history; emits nothing. Nothing happens where it shows just that.
    void setPieces(const QList<TokenEditPiece>& pieces);
    /// In the place of what is selected.
    void insertToken(const InlineToken& token);
    /// The token at this position becomes another one, and stays selected.
    void replaceToken(int position, const InlineToken& token);
    /// Nothing where a letter stands.
    std::optional<InlineToken> tokenAt(int position) const;
    /// The position of the token that alone is selected; -1 when none is.
    int selectedToken() const;
    /// Where the letter or token is drawn, in coordinates of this widget.
    QRect rectOf(int position) const;
    /// What a screen reader says of this part: tokens with their names.
    QString spoken(int from, int to) const;
    int length() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void edited();
    /// What is behind the token at this position is asked for.
    void tokenOpened(int position);
    void focused();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
    void contextMenuEvent(QContextMenuEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void restyle();
    void grow();
    void insertPieces(QTextCursor& cursor, const QList<TokenEditPiece>& pieces) const;
    bool selectTokenBeside(bool before);
    void recognizeTyped();
    void replaceCode();
    void showSelection();

    HoverFade* m_fade;
    Parse m_parse;
    CodeTexts m_codes;
    bool m_hasSeveralLines;
    bool m_isBinding = false;
    QList<TokenEditPiece> m_told;  ///< what was in it when it was last told of
};

}  // namespace Quorbel
