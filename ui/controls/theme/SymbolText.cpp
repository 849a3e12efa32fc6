#include "ui/controls/theme/SymbolText.h"

#include <QCoreApplication>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

struct KeyName {
    char16_t symbol;
    const char* name;
};
constexpr KeyName keyNames[] = {
    { u'⌘', "Ctrl" },
    { u'⇧', "Shift" },
    { u'⌥', "Alt" },
    { u'⌃', "Ctrl" },
};

// As Qt calls them in menus.
QString keyName(QChar symbol)
{
    for (const KeyName& key : keyNames) {
        if (symbol == key.symbol)
            return QCoreApplication::translate("QShortcut", key.name);
    }
    return {};
}

}  // namespace

QString symbolText(const QString& text)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QString name = keyName(text.at(i));
        if (name.isEmpty()) {
            result += text.at(i);
            continue;
        }
        result += name;
        // "⌘A", "⌘,", "⇧⌘S": a combination. "⌘-click", "⇧/⌘": the hyphen and the slash join already.
        const QChar next = i + 1 < text.size() ? text.at(i + 1) : QChar();
        if (next.isLetterOrNumber() || next == u',' || !keyName(next).isEmpty())
            result += u'+';
    }
    result.replace(u"in Finder"_s, u"in your file manager"_s);
    return result.replace(u"Finder"_s, u"your file manager"_s);
}

}  // namespace Quorbel
