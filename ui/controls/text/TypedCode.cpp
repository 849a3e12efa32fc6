#include "ui/controls/text/TypedCode.h"

#include <QTextBlock>
#include <QTextCursor>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar sign = u'=';
constexpr qsizetype longest = 64;  // characters of a code: nobody types longer ones to be quicker

// Whether the word that ends here is the address of a page: signs in it are its own.
bool isInAddress(const QString& before)
{
    qsizetype start = before.size();
    while (start > 0 && !before.at(start - 1).isSpace())
        --start;
    const QString word = before.sliced(start);
    return word.contains(u"://"_s) || word.startsWith(u"www."_s, Qt::CaseInsensitive);
}

}  // namespace

std::optional<TypedCode> typedCode(const QString& before, const CodeTexts& texts)
{
    if (!texts || before.size() < 3 || !before.endsWith(sign))
        return std::nullopt;
    const qsizetype start = before.lastIndexOf(sign, before.size() - 2);
    const qsizetype length = before.size() - start;
    if (start < 0 || length < 3 || length > longest + 2 || isInAddress(before.first(start)))
        return std::nullopt;
    const std::optional<QString> text = texts(before.sliced(start + 1, length - 2));
    return text ? std::optional(TypedCode{ start, length, *text }) : std::nullopt;
}

bool replaceTypedCode(QTextCursor& caret, const CodeTexts& texts)
{
    const QTextBlock block = caret.block();
    const auto code = typedCode(block.text().left(caret.positionInBlock()), texts);
    if (!code || caret.hasSelection())
        return false;
    caret.setPosition(block.position() + int(code->start), QTextCursor::KeepAnchor);
    caret.beginEditBlock();
    // What is typed from here on is another step: it would join an insertion, but not a removal.
    caret.insertText(code->text + QChar::Space, {});
    caret.deletePreviousChar();
    caret.endEditBlock();
    return true;
}

}  // namespace Quorbel
