#include "ui/templates/TokenPieces.h"

#include "core/language/Texts.h"

namespace Quorbel::TokenPieces {

using namespace Qt::StringLiterals;

namespace {

// What the form says, in few words.
QString formText(const TokenSpec& spec, const QString& form)
{
    if (spec.kind == TokenKind::counter) {
        const CounterForm counter = CounterForm::parse(form).value_or(CounterForm());
        const QString first = counter.number(0);
        if (counter.step == 1)
            //: How a counter counts. %1: its first number.
            return Texts::tr("from %1").arg(first);
        //: How a counter counts. %1: its first number, %2: how far it is to the next.
        return Texts::tr("from %1, step %2").arg(first).arg(counter.step);
    }
    return form;
}

}  // namespace

QList<TokenEditPiece> of(const QString& pattern)
{
    QList<TokenEditPiece> pieces;
    for (const TokenPiece& piece : TokenText::parse(pattern).pieces) {
        if (piece.token)
            pieces.append({ .token = chip(*piece.token) });
        else
            pieces.append({ .text = piece.text });
    }
    return pieces;
}

QString pattern(const QList<TokenEditPiece>& pieces)
{
    TokenText text;
    for (const TokenEditPiece& piece : pieces) {
        if (piece.token)
            text.pieces.append({ .token = token(*piece.token) });
        else
            text.pieces.append({ .text = piece.text });
    }
    return text.pattern();
}

InlineToken chip(const Token& token)
{
    const TokenSpec* spec = token.spec();
    QString detail = spec ? formText(*spec, token.form) : QString();
    if (token.otherwise && !token.otherwise->isEmpty()) {
        //: Behind the name of a token. %1: what stands in its place where a photo has no such value.
        const QString otherwise = Texts::tr("or %1").arg(*token.otherwise);
        detail = detail.isEmpty() ? otherwise : detail + u' ' + otherwise;
    }
    return { spec ? Texts::shown(spec->label) : token.name, detail, token.pattern() };
}

Token token(const InlineToken& chip)
{
    const QList<TokenPiece> pieces = TokenText::parse(chip.code).pieces;
    return pieces.isEmpty() ? Token() : pieces.first().token.value_or(Token());
}

}  // namespace Quorbel::TokenPieces
