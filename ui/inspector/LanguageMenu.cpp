#include "ui/inspector/LanguageMenu.h"

#include "core/language/Texts.h"
#include "core/schema/FieldLanguages.h"
#include "ui/controls/attached/SearchMenu.h"

#include <QLocale>
#include <QSet>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// What was typed, as a language that is not in the list: "de-at". Not a second code of one that is: "deu".
std::optional<SearchMenuRow> otherLanguage(const QString& typed, const QStringList& present)
{
    if (!FieldLanguages::isCode(typed))
        return std::nullopt;
    const QString code = FieldLanguages::spelling(typed);
    const SearchMenuRow row{ FieldLanguages::name(code), code };
    const QList<FieldLanguages::Choice>& listed = FieldLanguages::choices();
    const bool isListed = std::any_of(listed.cbegin(), listed.cend(),
        [&row](const FieldLanguages::Choice& choice) { return choice.name == row.title; });
    return isListed || present.contains(code, Qt::CaseInsensitive) ? std::nullopt : std::optional(row);
}

// Found too, whatever the user's language; "" for a code that means nothing.
QString englishName(const QString& code)
{
    const QLocale::Language language = QLocale::codeToLanguage(code.section(u'-', 0, 0));
    return language == QLocale::AnyLanguage || language == QLocale::C ? QString() : QLocale::languageToString(language);
}

// The user's own behind those.
QStringList firstCodes(QStringList likely)
{
    const QStringList own = QLocale::system().uiLanguages();
    for (const QString& locale : own)
        likely.append(locale.section(u'-', 0, 0));
    likely.removeDuplicates();
    return likely;
}

}  // namespace

SearchMenu* makeLanguageMenu(
    const QString& label, const QStringList& present, const QStringList& likely, QWidget* opener)
{
    QList<SearchMenuRow> rows;
    QSet<QString> known(present.cbegin(), present.cend());
    const auto offer = [&rows, &known](const QString& code, const QString& name) {
        if (known.contains(code))
            return;
        known.insert(code);
        rows.append({ name, code, englishName(code) });
    };
    const QStringList first = firstCodes(likely);
    for (const QString& code : first)
        if (FieldLanguages::isCode(code))
            offer(code, FieldLanguages::name(code));
    for (const FieldLanguages::Choice& choice : FieldLanguages::choices())
        offer(choice.code, choice.name);
    //: %1: name of a field.
    auto* menu = new SearchMenu(Texts::tr("Add a language to %1").arg(label), Texts::tr("Language or code"), opener);
    menu->setOther([present](const QString& typed) { return otherLanguage(typed, present); });
    menu->setNothingFound(Texts::tr("No such language. A code such as “de-AT” works too."));
    menu->setRows(rows);
    return menu;
}

}  // namespace Quorbel
