// Between a template's texts and the pieces that a field with tokens shows. Thread: any. Pure.
#pragma once

#include "core/tokens/TokenText.h"
#include "ui/controls/tokens/TokenEdit.h"

namespace Quorbel::TokenPieces {

QList<TokenEditPiece> of(const QString& pattern);
QString pattern(const QList<TokenEditPiece>& pieces);
InlineToken chip(const Token& token);
/// The token of such a chip.
Token token(const InlineToken& chip);

}  // namespace Quorbel::TokenPieces
