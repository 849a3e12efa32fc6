#include "core/schema/FieldLanguages.h"

#include "core/language/Texts.h"
#include "core/schema/FieldSchema.h"
#include "core/text/Text.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace Quorbel::FieldLanguages {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar separator = u'@';

// Those whose names translators know.
const QStringList& namedLanguages()
{
    static const QStringList names{ Texts::mark("Afrikaans"), Texts::mark("Albanian"), Texts::mark("Arabic"),
        Texts::mark("Armenian"), Texts::mark("Basque"), Texts::mark("Bengali"), Texts::mark("Bulgarian"),
        Texts::mark("Catalan"), Texts::mark("Chinese"), Texts::mark("Croatian"), Texts::mark("Czech"),
        Texts::mark("Danish"), Texts::mark("Dutch"), Texts::mark("English"), Texts::mark("Estonian"),
        Texts::mark("Finnish"), Texts::mark("French"), Texts::mark("Galician"), Texts::mark("Georgian"),
        Texts::mark("German"), Texts::mark("Greek"), Texts::mark("Hebrew"), Texts::mark("Hindi"),
        Texts::mark("Hungarian"), Texts::mark("Icelandic"), Texts::mark("Indonesian"), Texts::mark("Irish"),
        Texts::mark("Italian"), Texts::mark("Japanese"), Texts::mark("Korean"), Texts::mark("Latin"),
        Texts::mark("Latvian"), Texts::mark("Lithuanian"), Texts::mark("Malay"), Texts::mark("Norwegian"),
        Texts::mark("Persian"), Texts::mark("Polish"), Texts::mark("Portuguese"), Texts::mark("Romanian"),
        Texts::mark("Russian"), Texts::mark("Serbian"), Texts::mark("Slovak"), Texts::mark("Slovenian"),
        Texts::mark("Spanish"), Texts::mark("Swahili"), Texts::mark("Swedish"), Texts::mark("Thai"),
        Texts::mark("Turkish"), Texts::mark("Ukrainian"), Texts::mark("Urdu"), Texts::mark("Vietnamese"),
        Texts::mark("Welsh") };
    return names;
}

// In the user's language; where nobody translated it, as those who speak it call it.
QString nameOf(QLocale::Language language)
{
    const QString english = QLocale::languageToString(language);
    if (Texts::isEnglish() || namedLanguages().contains(english))
        return Texts::shown(english);
    const QLocale own(language);
    return own.language() == language && !own.nativeLanguageName().isEmpty() ? own.nativeLanguageName() : english;
}

QString nameOf(QLocale::Territory territory, QLocale::Language language)
{
    const QLocale own(language, territory);
    const bool isKnown = own.language() == language && own.territory() == territory;
    return isKnown && !Texts::isEnglish() ? own.nativeTerritoryName() : QLocale::territoryToString(territory);
}

}  // namespace

QString key(const QString& id, const QString& code)
{
    return id + separator + code;
}

std::optional<Language> languageIn(const QString& key)
{
    const qsizetype at = key.indexOf(separator);
    if (at < 0)
        return std::nullopt;
    const FieldSpec* field = FieldSchema::spec(key.first(at));
    const QString code = key.sliced(at + 1);
    if (!field || field->languageTag().isEmpty() || !isCode(code))
        return std::nullopt;
    return Language{ field, code };
}

QString tag(const QString& key)
{
    const auto language = languageIn(key);
    return language ? language->field->languageTag() + u'-' + language->code : QString();
}

QString label(const QString& key)
{
    const auto language = languageIn(key);
    // "German (Switzerland)" within the brackets is "German, Switzerland".
    return language ? u"%1 (%2)"_s.arg(
               Texts::shown(language->field->label), name(language->code).replace(u" ("_s, u", "_s).remove(u')'))
                    : QString();
}

QString name(const QString& code)
{
    const QStringList parts = code.split(u'-');
    const QLocale::Language language = QLocale::codeToLanguage(parts.constFirst());
    if (language == QLocale::AnyLanguage || language == QLocale::C)
        return code;
    QStringList further;
    for (const QString& part : parts.sliced(1)) {
        if (const auto script = QLocale::codeToScript(part); script != QLocale::AnyScript)
            further.append(QLocale::scriptToString(script));
        else if (const auto country = QLocale::codeToTerritory(part.toUpper()); country != QLocale::AnyTerritory)
            further.append(nameOf(country, language));
        else
            further.append(part);
    }
    const QString known = nameOf(language);
    return further.isEmpty() ? known : u"%1 (%2)"_s.arg(known, further.join(u", "_s));
}

bool isCode(const QString& code)
{
    static const QRegularExpression form(
        uR"(^([a-z]{2,3}|[xi](?=-))(-[a-z0-9]{2,8}(-[a-z0-9]{1,8})*)?\z)"_s, QRegularExpression::CaseInsensitiveOption);
    return form.match(code).hasMatch() && code.compare(u"x-default"_s, Qt::CaseInsensitive) != 0;
}

QString spelling(const QString& code)
{
    QStringList parts = code.toLower().split(u'-');
    if (parts.size() > 1 && parts.at(1).size() == 2)
        parts[1] = parts.at(1).toUpper();
    return parts.join(u'-');
}

const QList<Choice>& choices()
{
    static const QList<Choice> all = [] {
        QList<Choice> found;
        for (int i = QLocale::C + 1; i <= QLocale::LastLanguage; ++i) {
            const auto language = static_cast<QLocale::Language>(i);
            if (const QString code = QLocale::languageToCode(language); isCode(code))
                found.append({ code, nameOf(language) });
        }
        std::sort(found.begin(), found.end(),
            [](const Choice& a, const Choice& b) { return Text::naturalCompare(a.name, b.name) < 0; });
        return found;
    }();
    return all;
}

}  // namespace Quorbel::FieldLanguages
