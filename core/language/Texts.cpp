#include "core/language/Texts.h"

#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

#include <algorithm>
#include <limits>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<const QTranslator>& chosen()
{
    static std::shared_ptr<const QTranslator> translator;
    return translator;
}

// Names, sizes and dates keep their order in a sentence that runs from right to left: each is set apart from the words
// around it.
QString withIsolatedValues(QString text)
{
    static const QRegularExpression placeholder(u"(%[0-9]{1,2})"_s);
    return text.replace(placeholder, u"\u2068\\1\u2069"_s);
}

bool& runsFromRight()
{
    static bool isRight = false;
    return isRight;
}

// "%n photo(s) (is|are) read-only" of one, or of several.
QString englishForm(QString text, qsizetype count)
{
    static const QRegularExpression choice(uR"(\(([^()|]*)\|([^()|]*)\))"_s);
    text.replace(u"(s)"_s, count == 1 ? QString() : u"s"_s);
    return text.replace(choice, count == 1 ? u"\\1"_s : u"\\2"_s);
}

}  // namespace

QString Texts::tr(const char* english, const char* meaning, qsizetype count)
{
    const bool isCounted = count >= 0;
    QString text;
    if (const QTranslator* translator = chosen().get())
        text = translator->translate(
            context(), english, meaning, int(std::min<qsizetype>(count, std::numeric_limits<int>::max())));
    if (runsFromRight())
        text = withIsolatedValues(text);
    if (text.isEmpty())
        text = isCounted ? englishForm(QString::fromUtf8(english), count) : QString::fromUtf8(english);
    return isCounted ? text.replace(u"%n"_s, QString::number(count)) : text;
}

QString Texts::mark(const char* english)
{
    return QString::fromUtf8(english);
}

QString Texts::shown(const QString& english)
{
    return chosen() && !english.isEmpty() ? tr(english.toUtf8().constData()) : english;
}

// As lupdate calls what this class is asked for.
const char* Texts::context()
{
    return "Quorbel::Texts";
}

QString Texts::inSentence(const QString& label)
{
    return isEnglish() ? label.toLower() : shown(label);
}

QString Texts::continued(const QString& sentence)
{
    const bool beginsWithName = sentence.size() > 1 && sentence.at(1).isUpper();
    return !isEnglish() || beginsWithName ? sentence : sentence.left(1).toLower() + sentence.mid(1);
}

bool Texts::isEnglish()
{
    return !chosen() || chosen()->language().startsWith("en"_L1);
}

void Texts::use(std::shared_ptr<const QTranslator> translator)
{
    runsFromRight() = translator && QLocale(translator->language()).textDirection() == Qt::RightToLeft;
    chosen() = std::move(translator);
}

}  // namespace Quorbel
