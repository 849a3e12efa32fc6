#include "core/iptc/FieldAdvice.h"

#include "core/iptc/IptcSchema.h"
#include "core/iptc/Vocabularies.h"
#include "core/language/Texts.h"
#include "core/schema/FieldLanguages.h"

#include <QMap>
#include <QTextBoundaryFinder>

namespace Quorbel::FieldAdvice {

using namespace Qt::StringLiterals;

namespace {

int characters(const QString& text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    int count = 0;
    while (finder.toNextBoundary() >= 0)
        ++count;
    return count;
}

// The code without what stands before it in files, in the vocabulary's own case.
QString bareCode(const QString& vocabulary, const QString& value)
{
    const VocabularyTerm* term = Vocabularies::term(vocabulary, value);
    return term ? term->code.sliced(term->code.lastIndexOf(u'/') + 1) : QString();
}

QString altTextNote(const QString& value)
{
    const int count = characters(value);
    return count > altTextLength
        ? Texts::tr("Long to listen to: %1 of %n character(s)", nullptr, altTextLength).arg(count)
        : QString();
}

QString dataMiningNote(const QString& value, const std::function<bool(const QString& id)>& isEmpty)
{
    static const QMap<QString, QString> fields{
        { u"DMI-PROHIBITED-SEECONSTRAINT"_s, u"iptc.otherConstraints"_s },
        { u"DMI-PROHIBITED-SEEEMBEDDEDRIGHTSEXPR"_s, u"iptc.embeddedRights"_s },
        { u"DMI-PROHIBITED-SEELINKEDRIGHTSEXPR"_s, u"iptc.linkedRights"_s },
    };
    const QString id = fields.value(bareCode(u"dataMining"_s, value));
    return id.isEmpty() || !isEmpty(id)
        ? QString()
        : Texts::tr("Points to “%1”, which is empty").arg(Texts::shown(IptcSchema::spec(id)->label));
}

}  // namespace

QString note(const QString& key, const QString& value, const std::function<bool(const QString& id)>& isEmpty)
{
    const auto language = FieldLanguages::languageIn(key);
    const QString id = language ? language->field->id : key;
    if (id == "iptc.altText")
        return altTextNote(value);
    if (id == "iptc.dataMining")
        return dataMiningNote(value, isEmpty);
    return {};
}

QStringList companions(const QString& id, const QString& value)
{
    static const QStringList generative{ u"trainedAlgorithmicMedia"_s, u"compositeWithTrainedAlgorithmicMedia"_s,
        u"compositeSynthetic"_s };
    if (id != "iptc.digitalSource" || !generative.contains(bareCode(u"digitalSource"_s, value)))
        return {};
    return { u"iptc.aiSystem"_s, u"iptc.aiSystemVersion"_s, u"iptc.aiPrompt"_s, u"iptc.aiPromptWriter"_s };
}

QString companionsOf(const QString& id)
{
    return id.startsWith(u"iptc.ai"_s) ? u"iptc.digitalSource"_s : QString();
}

}  // namespace Quorbel::FieldAdvice
