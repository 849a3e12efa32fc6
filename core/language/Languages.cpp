#include "core/language/Languages.h"

#include "core/language/Texts.h"

#include <QDir>
#include <QLocale>
#include <QTranslator>

#include <algorithm>

namespace Quorbel::Languages {

using namespace Qt::StringLiterals;

namespace {

const QString english = u"en"_s;
const QString prefix = u"quorbel_"_s;

struct Source {
    const char* text;
    const char* meaning;
};
constexpr Source nameOfLanguage =
    //: The name of this language in this language itself, as a list of languages shows it: Deutsch, 日本語.
    QT_TRANSLATE_NOOP3("Quorbel::Texts", "English", "name of this language");

// Each file says what its language is called in itself. Nothing of one that cannot be read.
QString ownName(const QString& folder, const QString& code)
{
    QTranslator translator;
    if (!translator.load(prefix + code, folder))
        return {};
    return translator.translate(Texts::context(), nameOfLanguage.text, nameOfLanguage.meaning);
}

// Languages written in several ways, or none, are told apart by their script or country: zh-Hans-CN is zh_CN.
bool serves(const QString& code, const QLocale& wanted)
{
    const QLocale locale(code);
    return locale.language() == wanted.language()
        && (locale.language() != QLocale::Chinese || locale.script() == wanted.script());
}

}  // namespace

QStringList codesIn(const QString& folder)
{
    QStringList codes{ english };
    for (const QFileInfo& file : QDir(folder).entryInfoList({ prefix + u"*.qm"_s }, QDir::Files, QDir::Name))
        codes.append(file.completeBaseName().sliced(prefix.size()));
    return codes;
}

QList<Language> in(const QString& folder)
{
    QList<Language> languages;
    for (const QString& code : codesIn(folder))
        if (const QString name = ownName(folder, code); !name.isEmpty())
            languages.append({ code, name });
    std::sort(languages.begin(), languages.end(),
        [](const Language& a, const Language& b) { return a.name.localeAwareCompare(b.name) < 0; });
    languages.prepend({ english, u"English"_s });
    return languages;
}

QString wanted(const QString& choice, const QStringList& desktop, const QStringList& there)
{
    if (there.contains(choice))
        return choice;
    for (const QString& name : desktop)
        for (const QString& code : there)
            if (serves(code, QLocale(name)))
                return code;
    return english;
}

bool use(const QString& code, const QString& folder)
{
    if (code == english) {
        Texts::use(nullptr);
        return true;
    }
    auto translator = std::make_shared<QTranslator>();
    if (!translator->load(prefix + code, folder))
        return false;
    Texts::use(std::move(translator));
    return true;
}

}  // namespace Quorbel::Languages
