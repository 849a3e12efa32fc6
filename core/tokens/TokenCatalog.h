// The tokens that a text may hold: what each is called in the text and to the user, and what of a photo it stands for.
// Thread: any. Built once, then immutable.
#pragma once

#include <QList>
#include <QString>

namespace Quorbel {

enum class TokenKind { text, list, date, time, counter, fileName, baseName, camera };

struct TokenSpec {
    QString name{};  ///< in a text, between percent signs; never changes, because templates and patterns hold it
    QString label{};  ///< shown to the user
    TokenKind kind = TokenKind::text;
    QString source{};  ///< field id, or label of the camera row; "" where there is none

    bool operator==(const TokenSpec&) const = default;
};

namespace TokenCatalog {

/// Those of renaming first, in its order; then counter and file name, all other fields, and what the camera noted.
const QList<TokenSpec>& all();
/// The token of this name, in any case; null when there is none. The pointer stays valid for ever.
const TokenSpec* find(const QString& name);
/// The token of this field; null when there is none.
const TokenSpec* ofField(const QString& id);

}  // namespace TokenCatalog

}  // namespace Quorbel
