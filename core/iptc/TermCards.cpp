#include "core/iptc/TermCards.h"

#include "core/iptc/StructureText.h"
#include "core/iptc/Vocabularies.h"
#include "core/language/Texts.h"

#include <QJsonArray>

namespace Quorbel::TermCards {

using namespace Qt::StringLiterals;

namespace {

bool isAddress(const QString& code)
{
    return code.startsWith("http"_L1);
}

void putTerm(QJsonObject& object, const Vocabulary& vocabulary, const QString& code, const QString& name)
{
    // Texts in other languages, and how the term relates, were said of another one; what nobody here knows stays.
    for (const QString& member : object.keys())
        if (IptcStructures::member(*IptcStructures::spec(u"CvTerm"_s), member))
            object.remove(member);
    object.insert(u"CvTermName"_s, name);
    if (!isAddress(code))
        return;
    object.insert(u"CvTermId"_s, code);
    object.insert(u"CvId"_s, vocabulary.address);
}

void addEntity(QJsonObject& object, const QString& member, const QString& code, const QString& name)
{
    QJsonObject entity{ { u"Name"_s, name } };
    if (isAddress(code))
        entity.insert(u"Identifier"_s, QJsonArray{ code });
    QJsonArray all = object.value(member).toArray();
    if (!all.contains(entity))
        all.append(entity);
    object.insert(member, all);
}

}  // namespace

QList<TermOffer> offers(const QString& fieldId)
{
    if (fieldId == "iptc.genreTerms")
        return { { Texts::tr("Choose Genre…"), u"genre"_s, {} } };
    if (fieldId == "iptc.aboutTerms")
        return { { Texts::tr("Choose Subject…"), u"mediaTopic"_s, {} } };
    if (fieldId == "iptc.regions")
        return { { Texts::tr("Choose Kind…"), u"regionType"_s, u"RCtype"_s },
            { Texts::tr("Choose Role…"), u"regionRole"_s, u"RRole"_s } };
    return {};
}

QString withTerm(const TermOffer& offer, const QString& structure, const QString& code)
{
    const Vocabulary* vocabulary = Vocabularies::find(offer.vocabulary);
    QJsonObject object = StructureText::members(structure);
    if (!vocabulary || code.isEmpty())
        return structure;
    // Files hold the vocabulary's own words.
    const VocabularyTerm* term = Vocabularies::term(offer.vocabulary, code);
    const QString name = term ? term->name : code;
    if (offer.member.isEmpty())
        putTerm(object, *vocabulary, code, name);
    else
        addEntity(object, offer.member, code, name);
    return StructureText::of(object);
}

}  // namespace Quorbel::TermCards
