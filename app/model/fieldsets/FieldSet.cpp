#include "app/model/fieldsets/FieldSet.h"

#include "core/language/Texts.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldSchema.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace Quorbel::FieldSetTexts {

using namespace Qt::StringLiterals;

namespace {

// Where a field stands among those above it: two of IptcSchema's directly behind what they belong to.
qsizetype placeOf(const QString& id, const QStringList& above)
{
    const qsizetype before = id == "iptc.altText" ? above.indexOf(FieldID::description)
        : id == "iptc.countryCode"                ? above.indexOf(FieldID::country)
                                                  : -1;
    return before < 0 ? above.size() : before + 1;
}

// Ids in one text; those with a star are wanted.
FieldSet described(const QString& name, const QString& ids)
{
    FieldSet set{ .name = name };
    for (const QString& word : ids.split(u' ', Qt::SkipEmptyParts)) {
        const QString id = word.endsWith(u'*') ? word.chopped(1) : word;
        set.fields.append(id);
        if (id != word)
            set.wanted.insert(id);
    }
    return ordered(set);
}

}  // namespace

const QStringList& formOrder()
{
    static const QStringList ids = [] {
        QStringList ids;
        for (const FieldSection section : allCases<FieldSection>())
            for (const FieldSpec& field : FieldSchema::everyField())
                if (field.section == section)
                    ids.insert(placeOf(field.id, ids), field.id);
        return ids;
    }();
    return ids;
}

const QList<FieldSet>& builtIn()
{
    static const QList<FieldSet> sets{
        described(Texts::mark("Captions"),
            u"title* description* iptc.altText keywords* headline people captionWriter date place"_s),
        described(Texts::mark("Press"),
            u"title headline* description* iptc.altText keywords* date* creator* iptc.jobTitle credit* copyright* "
            u"source "
            u"place* state country* iptc.countryCode sublocation event instructions jobId captionWriter usageTerms "
            u"iptc.contact people iptc.personsShown iptc.organisationNames iptc.eventIds iptc.digitalSource"_s),
        described(Texts::mark("Museum"),
            u"title* description* iptc.altText iptc.extendedDescription keywords date creator copyright* credit* "
            u"source "
            u"iptc.artworks* iptc.locationCreated iptc.locationsShown iptc.contributors iptc.copyrightOwners "
            u"iptc.imageGuid iptc.registryEntries"_s),
        described(Texts::mark("Stock"),
            u"title* description* keywords* date creator* copyright* place country credit usageTerms webStatement "
            u"iptc.personsShown iptc.modelAges iptc.minorModelAge iptc.modelInfo iptc.modelReleaseStatus* "
            u"iptc.modelReleaseIds iptc.propertyReleaseStatus* iptc.propertyReleaseIds iptc.productsShown "
            u"iptc.digitalSource* iptc.licensors iptc.suppliers iptc.supplierImageId iptc.maxWidth iptc.maxHeight"_s),
        described(Texts::mark("Rights"),
            u"creator* copyright* credit* source usageTerms* webStatement instructions iptc.jobTitle iptc.contact* "
            u"iptc.copyrightOwners iptc.imageCreators iptc.contributors iptc.otherConstraints iptc.dataMining* "
            u"iptc.propertyReleaseStatus iptc.propertyReleaseIds iptc.modelReleaseStatus iptc.modelReleaseIds "
            u"iptc.licensors iptc.suppliers iptc.supplierImageId iptc.embeddedRights iptc.linkedRights "
            u"iptc.digitalSource"_s),
        described(Texts::mark("Accessibility"),
            u"title description* iptc.altText* iptc.extendedDescription keywords people"_s),
    };
    return sets;
}

FieldSet ordered(FieldSet set)
{
    const QSet<QString> held(set.fields.cbegin(), set.fields.cend());
    set.fields = formOrder();
    set.fields.removeIf([&held](const QString& id) { return !held.contains(id); });
    set.wanted.intersect(held);
    return set;
}

QString toText(const QList<FieldSet>& sets)
{
    QJsonArray all;
    for (const FieldSet& set : sets) {
        QStringList wanted = set.fields;
        wanted.removeIf([&set](const QString& id) { return !set.wanted.contains(id); });
        all.append(QJsonObject{ { u"name"_s, set.name }, { u"fields"_s, QJsonArray::fromStringList(set.fields) },
            { u"wanted"_s, QJsonArray::fromStringList(wanted) } });
    }
    return QString::fromUtf8(QJsonDocument(all).toJson(QJsonDocument::Compact));
}

QList<FieldSet> fromText(const QString& text)
{
    QList<FieldSet> sets;
    for (const auto& entry : QJsonDocument::fromJson(text.toUtf8()).array()) {
        const QStringList wanted = entry[u"wanted"_s].toVariant().toStringList();
        const FieldSet set = ordered({ entry[u"name"_s].toString(), entry[u"fields"_s].toVariant().toStringList(),
            QSet<QString>(wanted.cbegin(), wanted.cend()) });
        const auto isItsName = [&set](const FieldSet& other) { return other.name == set.name; };
        if (!set.name.isEmpty() && !set.fields.isEmpty() && std::none_of(sets.cbegin(), sets.cend(), isItsName))
            sets.append(set);
    }
    return sets;
}

}  // namespace Quorbel::FieldSetTexts
