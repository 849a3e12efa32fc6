// A text with tokens in it, "Race %Counter% off %Place|Zürich% on %Date:d MMMM yyyy%", and what it says for a photo.
// Thread: any. Pure. Knows no field that such a text is for, and no file name.
//
// "%Name%", "%Name:form%", "%Name|otherwise%" and "%Name:form|otherwise%" are tokens where the catalog knows the name,
// in any case; form and default hold no percent sign, a form no bar. "%%" is a percent sign. A percent sign that begins
// no token, and a token of a name that nobody knows, stay as they are. An empty default says that nothing is to stand
// there. Values are never looked through for tokens.
#pragma once

#include "core/tokens/PhotoTokens.h"

#include <functional>
#include <optional>

namespace Quorbel {

struct Token {
    QString name{};  ///< as the catalog spells it
    QString form{};
    std::optional<QString> otherwise{};  ///< stands where the photo has no value

    /// Null for a name that is in no catalog.
    const TokenSpec* spec() const { return TokenCatalog::find(name); }
    /// "%Date:yyyy|n. d.%"
    QString pattern() const;
    bool operator==(const Token&) const = default;
};

/// Plain text, or a token.
struct TokenPiece {
    QString text{};  ///< "" with a token
    std::optional<Token> token{};
    bool operator==(const TokenPiece&) const = default;
};

/// What a text says for one photo, piece by piece.
struct RenderedPiece {
    enum class Kind { text, value, otherwise, missing };
    Kind kind = Kind::text;
    QString text{};  ///< "" where a value is missing
    QString label{};  ///< of the token; "" for text
    bool operator==(const RenderedPiece&) const = default;
};

struct RenderedText {
    QList<RenderedPiece> pieces{};  ///< one for each of the text's

    QString text() const;
    /// Labels of the tokens for which the photo has no value: those without a default, and all of them.
    QStringList missing() const;
    QStringList withoutValue() const;
    bool operator==(const RenderedText&) const = default;
};

struct TokenText {
    QList<TokenPiece> pieces{};  ///< no two texts side by side, none empty
    QStringList unknown{};  ///< names that look like tokens, and are none

    static TokenText parse(const QString& pattern);
    /// The text of which parse() gives these pieces.
    QString pattern() const;
    bool hasTokens() const;
    /// Whether a token of this kind is among them.
    bool has(TokenKind kind) const;

    /// `prepare` makes of each value, or default, what stands in the text; plain text stays as it is.
    RenderedText render(const PhotoTokens& photo, const std::function<QString(const QString&)>& prepare = {}) const;

    bool operator==(const TokenText&) const = default;
};

}  // namespace Quorbel
