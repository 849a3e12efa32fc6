#include "core/tokens/TokenText.h"

#include <QRegularExpression>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

void appendText(QList<TokenPiece>& pieces, const QString& text)
{
    if (text.isEmpty())
        return;
    if (pieces.isEmpty() || pieces.last().token)
        pieces.append({ .text = text });
    else
        pieces.last().text += text;
}

QString withoutPercent(QString text)
{
    return text.remove(u'%');
}

RenderedPiece renderedToken(
    const Token& token, const PhotoTokens& photo, const std::function<QString(const QString&)>& prepare)
{
    const TokenSpec* spec = token.spec();
    if (!spec)
        return { RenderedPiece::Kind::missing, {}, token.name };
    const auto prepared = [&prepare](const QString& text) { return prepare ? prepare(text) : text; };
    if (const QString value = prepared(photo.value(*spec, token.form)); !value.isEmpty())
        return { RenderedPiece::Kind::value, value, spec->label };
    if (token.otherwise)
        return { RenderedPiece::Kind::otherwise, prepared(*token.otherwise), spec->label };
    return { RenderedPiece::Kind::missing, {}, spec->label };
}

}  // namespace

QString Token::pattern() const
{
    QString text = u'%' + name;
    if (!form.isEmpty())
        text += u':' + withoutPercent(form).remove(u'|');
    if (otherwise)
        text += u'|' + withoutPercent(*otherwise);
    return text + u'%';
}

QString RenderedText::text() const
{
    QString all;
    for (const RenderedPiece& piece : pieces)
        all += piece.text;
    return all;
}

QStringList RenderedText::missing() const
{
    QStringList labels;
    for (const RenderedPiece& piece : pieces)
        if (piece.kind == RenderedPiece::Kind::missing && !labels.contains(piece.label))
            labels.append(piece.label);
    return labels;
}

QStringList RenderedText::withoutValue() const
{
    QStringList labels;
    for (const RenderedPiece& piece : pieces)
        if ((piece.kind == RenderedPiece::Kind::missing || piece.kind == RenderedPiece::Kind::otherwise)
            && !labels.contains(piece.label))
            labels.append(piece.label);
    return labels;
}

TokenText TokenText::parse(const QString& pattern)
{
    static const QRegularExpression token(u"%([A-Za-z][A-Za-z0-9]*)(?::([^%|]*))?(?:\\|([^%]*))?%"_s);
    TokenText result;
    for (qsizetype at = 0; at < pattern.size();) {
        const qsizetype sign = pattern.indexOf(u'%', at);
        if (sign < 0) {
            appendText(result.pieces, pattern.sliced(at));
            break;
        }
        appendText(result.pieces, pattern.sliced(at, sign - at));
        at = sign + 1;
        if (pattern.sliced(at).startsWith(u'%')) {
            appendText(result.pieces, u"%"_s);
            ++at;
            continue;
        }
        const QRegularExpressionMatch match =
            token.match(pattern, sign, QRegularExpression::NormalMatch, QRegularExpression::AnchorAtOffsetMatchOption);
        const TokenSpec* spec = match.hasMatch() ? TokenCatalog::find(match.captured(1)) : nullptr;
        if (!spec) {
            if (match.hasMatch() && !result.unknown.contains(match.captured(1)))
                result.unknown.append(match.captured(1));
            appendText(result.pieces, u"%"_s);
            continue;
        }
        Token found{ .name = spec->name, .form = match.captured(2) };
        if (match.hasCaptured(3))
            found.otherwise = match.captured(3);
        result.pieces.append({ .token = found });
        at = match.capturedEnd();
    }
    return result;
}

QString TokenText::pattern() const
{
    QString text;
    for (const TokenPiece& piece : pieces)
        text += piece.token ? piece.token->pattern() : QString(piece.text).replace(u'%', u"%%"_s);
    return text;
}

bool TokenText::hasTokens() const
{
    return std::any_of(pieces.cbegin(), pieces.cend(), [](const TokenPiece& piece) { return piece.token.has_value(); });
}

bool TokenText::has(TokenKind kind) const
{
    return std::any_of(pieces.cbegin(), pieces.cend(), [kind](const TokenPiece& piece) {
        return piece.token && piece.token->spec() && piece.token->spec()->kind == kind;
    });
}

RenderedText TokenText::render(const PhotoTokens& photo, const std::function<QString(const QString&)>& prepare) const
{
    RenderedText rendered;
    for (const TokenPiece& piece : pieces)
        rendered.pieces.append(piece.token ? renderedToken(*piece.token, photo, prepare)
                                           : RenderedPiece{ RenderedPiece::Kind::text, piece.text, {} });
    return rendered;
}

}  // namespace Quorbel
