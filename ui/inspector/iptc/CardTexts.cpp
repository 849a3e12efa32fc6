#include "ui/inspector/iptc/CardTexts.h"

#include "core/language/Texts.h"

#include <QHash>

namespace Quorbel::CardTexts {

using namespace Qt::StringLiterals;

namespace {

using Counted = QString (*)(qsizetype count);

const QHash<QString, Counted>& countedTexts()
{
    static const QHash<QString, Counted> texts{
        { u"CreatorContactInfo"_s, [](qsizetype n) { return Texts::tr("%n contact(s)", nullptr, n); } },
        { u"ArtworkOrObject"_s, [](qsizetype n) { return Texts::tr("%n artwork(s)", nullptr, n); } },
        { u"CvTerm"_s, [](qsizetype n) { return Texts::tr("%n term(s)", nullptr, n); } },
        { u"EmbdEncRightsExpr"_s, [](qsizetype n) { return Texts::tr("%n expression(s)", nullptr, n); } },
        { u"Entity"_s, [](qsizetype n) { return Texts::tr("%n (entry|entries)", nullptr, n); } },
        { u"EntityWRole"_s, [](qsizetype n) { return Texts::tr("%n contributor(s)", nullptr, n); } },
        { u"ImageRegion"_s, [](qsizetype n) { return Texts::tr("%n region(s)", nullptr, n); } },
        { u"RegionBoundary"_s, [](qsizetype n) { return Texts::tr("%n outline(s)", nullptr, n); } },
        { u"RegionBoundaryPoint"_s, [](qsizetype n) { return Texts::tr("%n point(s)", nullptr, n); } },
        { u"LinkedEncRightsExpr"_s, [](qsizetype n) { return Texts::tr("%n link(s)", nullptr, n); } },
        { u"Location"_s, [](qsizetype n) { return Texts::tr("%n place(s)", nullptr, n); } },
        { u"PersonWDetails"_s, [](qsizetype n) { return Texts::tr("%n (person|people)", nullptr, n); } },
        { u"ProductWGtin"_s, [](qsizetype n) { return Texts::tr("%n product(s)", nullptr, n); } },
        { u"RegistryEntry"_s, [](qsizetype n) { return Texts::tr("%n (entry|entries)", nullptr, n); } },
        { u"Licensor"_s, [](qsizetype n) { return Texts::tr("%n licensor(s)", nullptr, n); } },
        { u"CopyrightOwner"_s, [](qsizetype n) { return Texts::tr("%n owner(s)", nullptr, n); } },
        { u"ImageCreator"_s, [](qsizetype n) { return Texts::tr("%n creator(s)", nullptr, n); } },
        { u"ImageSupplier"_s, [](qsizetype n) { return Texts::tr("%n supplier(s)", nullptr, n); } },
    };
    return texts;
}

}  // namespace

QString adding(const StructureSpec& structure)
{
    static const QHash<QString, QString> texts{
        { u"CreatorContactInfo"_s, Texts::tr("Add contact") },
        { u"ArtworkOrObject"_s, Texts::tr("Add artwork") },
        { u"CvTerm"_s, Texts::tr("Add term") },
        { u"EmbdEncRightsExpr"_s, Texts::tr("Add expression") },
        { u"Entity"_s, Texts::tr("Add entry") },
        { u"EntityWRole"_s, Texts::tr("Add contributor") },
        { u"ImageRegion"_s, Texts::tr("Add region") },
        { u"RegionBoundary"_s, Texts::tr("Add outline") },
        { u"RegionBoundaryPoint"_s, Texts::tr("Add point") },
        { u"LinkedEncRightsExpr"_s, Texts::tr("Add link") },
        { u"Location"_s, Texts::tr("Add place") },
        { u"PersonWDetails"_s, Texts::tr("Add person") },
        { u"ProductWGtin"_s, Texts::tr("Add product") },
        { u"RegistryEntry"_s, Texts::tr("Add entry") },
        { u"Licensor"_s, Texts::tr("Add licensor") },
        { u"CopyrightOwner"_s, Texts::tr("Add owner") },
        { u"ImageCreator"_s, Texts::tr("Add creator") },
        { u"ImageSupplier"_s, Texts::tr("Add supplier") },
    };
    return texts.value(structure.name);
}

QString untitled(const StructureSpec& structure)
{
    static const QHash<QString, QString> texts{
        { u"CreatorContactInfo"_s, Texts::tr("New contact") },
        { u"ArtworkOrObject"_s, Texts::tr("New artwork") },
        { u"CvTerm"_s, Texts::tr("New term") },
        { u"EmbdEncRightsExpr"_s, Texts::tr("New expression") },
        { u"Entity"_s, Texts::tr("New entry") },
        { u"EntityWRole"_s, Texts::tr("New contributor") },
        { u"ImageRegion"_s, Texts::tr("New region") },
        { u"RegionBoundary"_s, Texts::tr("New outline") },
        { u"RegionBoundaryPoint"_s, Texts::tr("New point") },
        { u"LinkedEncRightsExpr"_s, Texts::tr("New link") },
        { u"Location"_s, Texts::tr("New place") },
        { u"PersonWDetails"_s, Texts::tr("New person") },
        { u"ProductWGtin"_s, Texts::tr("New product") },
        { u"RegistryEntry"_s, Texts::tr("New entry") },
        { u"Licensor"_s, Texts::tr("New licensor") },
        { u"CopyrightOwner"_s, Texts::tr("New owner") },
        { u"ImageCreator"_s, Texts::tr("New creator") },
        { u"ImageSupplier"_s, Texts::tr("New supplier") },
    };
    return texts.value(structure.name);
}

QString counted(const StructureSpec& structure, qsizetype count)
{
    const Counted text = countedTexts().value(structure.name);
    return text ? text(count) : QString();
}

}  // namespace Quorbel::CardTexts
