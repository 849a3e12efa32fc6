// Short codes between two equals signs that become texts as one types the second: "=js=".
// Thread: any; of a document, its own. What a code stands for is asked of whoever knows.
#pragma once

#include <QString>

#include <functional>
#include <optional>

class QTextCursor;

namespace Quorbel {

/// The text of a code, nothing for one that is not known. An empty function knows none.
using CodeTexts = std::function<std::optional<QString>(const QString& code)>;

/// A code that was just finished, with both of its signs.
struct TypedCode {
    qsizetype start = 0;
    qsizetype length = 0;
    QString text{};  ///< that takes its place
    bool operator==(const TypedCode&) const = default;
};

/// `before`: the line as far as the caret, which stands behind the sign that was just typed. Nothing where that ends no
/// known code, and nothing in a web address.
std::optional<TypedCode> typedCode(const QString& before, const CodeTexts& texts);
/// Puts the text in the place of the code that ends at the caret, if there is one, as a step of its own for Undo.
/// Whether there was one.
bool replaceTypedCode(QTextCursor& caret, const CodeTexts& texts);

}  // namespace Quorbel
