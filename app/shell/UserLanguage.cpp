#include "app/shell/UserLanguage.h"

#include "core/Product.h"
#include "core/language/Texts.h"

#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

#include <algorithm>

namespace Quorbel::UserLanguage {

using namespace Qt::StringLiterals;

namespace {

// <prefix>/share/quorbel/translations, seen from <prefix>/bin.
QString folder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../share/quorbel/translations"_s);
}

QString chosen()
{
    const QSettings settings(QSettings::IniFormat, QSettings::UserScope, Product::name(), Product::name());
    return settings.value(u"language"_s).toString();
}

// A locale of the language that writes digits as 0 to 9: typed dates and positions have those, so others have them,
// too.
QLocale withPlainDigits(const QLocale& locale)
{
    const auto isPlain = [](const QLocale& candidate) { return candidate.zeroDigit() == u"0"_s; };
    const QList<QLocale> all = QLocale::matchingLocales(locale.language(), locale.script(), QLocale::AnyTerritory);
    const auto plain = std::find_if(all.cbegin(), all.cend(), isPlain);
    return isPlain(locale) || plain == all.cend() ? locale : *plain;
}

// The desktop's forms of dates and sizes, unless the user chose another language than the desktop's.
QLocale localeFor(const QString& code, bool isChosen)
{
    const QLocale desktop = QLocale::system();
    const QLocale wanted(code);
    const bool isDesktops = desktop.language() == wanted.language() && desktop.script() == wanted.script();
    return withPlainDigits(isChosen && !isDesktops ? wanted : desktop);
}

// Of its own dialogs and menus.
void useQtTexts(QGuiApplication& application, const QLocale& locale)
{
    auto* translator = new QTranslator(&application);
    if (translator->load(locale, u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(translator);
}

}  // namespace

QList<Languages::Language> all()
{
    return Languages::in(folder());
}

void speak(QGuiApplication& application)
{
    const QString choice = chosen();
    const QString code = Languages::wanted(choice, QLocale::system().uiLanguages(), Languages::codesIn(folder()));
    if (!Languages::use(code, folder()))
        return;
    QLocale::setDefault(localeFor(code, code == choice));
    if (!Texts::isEnglish())
        useQtTexts(application, QLocale(code));
    QGuiApplication::setLayoutDirection(QLocale(code).textDirection());
}

}  // namespace Quorbel::UserLanguage
