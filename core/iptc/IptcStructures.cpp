#include "core/iptc/IptcStructures.h"

#include "core/language/Texts.h"

#include <algorithm>

namespace Quorbel::IptcStructures {

using namespace Qt::StringLiterals;

const QList<StructureSpec>& all()
{
    static const QList<StructureSpec> structures{
        { .name = u"CreatorContactInfo"_s, .item = Texts::mark("contact"),
            .members = {
                { .name = u"CiEmailWork"_s, .label = Texts::mark("E-mail") },
                { .name = u"CiTelWork"_s, .label = Texts::mark("Phone") },
                { .name = u"CiUrlWork"_s, .label = Texts::mark("Web") },
                { .name = u"CiAdrExtadr"_s, .label = Texts::mark("Address"), .kind = FieldKind::multiline },
                { .name = u"CiAdrPcode"_s, .label = Texts::mark("Postal code") },
                { .name = u"CiAdrCity"_s, .label = Texts::mark("City") },
                { .name = u"CiAdrRegion"_s, .label = Texts::mark("State") },
                { .name = u"CiAdrCtry"_s, .label = Texts::mark("Country") },
            },
            .titleMembers = { u"CiEmailWork"_s, u"CiAdrCity"_s, u"CiTelWork"_s } },
        { .name = u"ArtworkOrObject"_s, .item = Texts::mark("artwork"),
            .members = {
                { .name = u"AOTitle"_s, .label = Texts::mark("Title"), .hasLanguages = true },
                { .name = u"AOCreator"_s, .label = Texts::mark("Creators"), .isSeveral = true },
                { .name = u"AODateCreated"_s, .label = Texts::mark("Created"), .kind = FieldKind::date },
                { .name = u"AOCircaDateCreated"_s, .label = Texts::mark("Created about") },
                { .name = u"AOContentDescription"_s, .label = Texts::mark("Content"), .kind = FieldKind::multiline, .hasLanguages = true },
                { .name = u"AOContributionDescription"_s, .label = Texts::mark("Contributions"), .kind = FieldKind::multiline, .hasLanguages = true },
                { .name = u"AOPhysicalDescription"_s, .label = Texts::mark("Physical description"), .kind = FieldKind::multiline, .hasLanguages = true },
                { .name = u"AOStylePeriod"_s, .label = Texts::mark("Style or period"), .isSeveral = true },
                { .name = u"AOSource"_s, .label = Texts::mark("Source") },
                { .name = u"AOSourceInvNo"_s, .label = Texts::mark("Inventory number") },
                { .name = u"AOSourceInvURL"_s, .label = Texts::mark("Inventory address") },
                { .name = u"AOCopyrightNotice"_s, .label = Texts::mark("Copyright notice") },
                { .name = u"AOCurrentCopyrightOwnerName"_s, .label = Texts::mark("Copyright owner") },
                { .name = u"AOCurrentCopyrightOwnerId"_s, .label = Texts::mark("Copyright owner ID") },
                { .name = u"AOCurrentLicensorName"_s, .label = Texts::mark("Licensor") },
                { .name = u"AOCurrentLicensorId"_s, .label = Texts::mark("Licensor ID") },
                { .name = u"AOCreatorId"_s, .label = Texts::mark("Creator IDs"), .isSeveral = true },
            },
            .titleMembers = { u"AOTitle"_s, u"AOCreator"_s } },
        { .name = u"CvTerm"_s, .item = Texts::mark("term"),
            .members = {
                { .name = u"CvTermName"_s, .label = Texts::mark("Name"), .hasLanguages = true },
                { .name = u"CvTermId"_s, .label = Texts::mark("Term ID") },
                { .name = u"CvId"_s, .label = Texts::mark("Vocabulary") },
                { .name = u"CvTermRefinedAbout"_s, .label = Texts::mark("Relation") },
            },
            .titleMembers = { u"CvTermName"_s, u"CvTermId"_s } },
        { .name = u"EmbdEncRightsExpr"_s, .item = Texts::mark("expression"),
            .members = {
                { .name = u"EncRightsExpr"_s, .label = Texts::mark("Expression"), .kind = FieldKind::multiline },
                { .name = u"RightsExprEncType"_s, .label = Texts::mark("Encoding") },
                { .name = u"RightsExprLangId"_s, .label = Texts::mark("Language") },
            },
            .titleMembers = { u"EncRightsExpr"_s } },
        { .name = u"Entity"_s, .item = Texts::mark("entry"),
            .members = {
                { .name = u"Name"_s, .label = Texts::mark("Name"), .hasLanguages = true },
                { .name = u"Identifier"_s, .label = Texts::mark("Identifiers"), .isSeveral = true },
            },
            .titleMembers = { u"Name"_s, u"Identifier"_s } },
        { .name = u"EntityWRole"_s, .item = Texts::mark("contributor"),
            .members = {
                { .name = u"Name"_s, .label = Texts::mark("Name"), .hasLanguages = true },
                { .name = u"Role"_s, .label = Texts::mark("Roles"), .isSeveral = true },
                { .name = u"Identifier"_s, .label = Texts::mark("Identifiers"), .isSeveral = true },
            },
            .titleMembers = { u"Name"_s, u"Role"_s, u"Identifier"_s } },
        { .name = u"ImageRegion"_s, .item = Texts::mark("region"),
            .members = {
                { .name = u"Name"_s, .label = Texts::mark("Name"), .hasLanguages = true },
                { .name = u"RCtype"_s, .label = Texts::mark("Kind"), .kind = FieldKind::structure, .isSeveral = true, .structure = u"Entity"_s },
                { .name = u"RRole"_s, .label = Texts::mark("Role"), .kind = FieldKind::structure, .isSeveral = true, .structure = u"Entity"_s },
                { .name = u"RId"_s, .label = Texts::mark("Identifier") },
                { .name = u"RegionBoundary"_s, .label = Texts::mark("Outline"), .kind = FieldKind::structure, .structure = u"RegionBoundary"_s },
            },
            .titleMembers = { u"Name"_s, u"RCtype"_s, u"RId"_s } },
        { .name = u"RegionBoundary"_s, .item = Texts::mark("outline"),
            .members = {
                { .name = u"RbShape"_s, .label = Texts::mark("Shape"), .kind = FieldKind::code, .vocabulary = u"boundaryShape"_s },
                { .name = u"RbUnit"_s, .label = Texts::mark("Unit"), .kind = FieldKind::code, .vocabulary = u"boundaryUnit"_s },
                { .name = u"RbX"_s, .label = Texts::mark("X"), .kind = FieldKind::number },
                { .name = u"RbY"_s, .label = Texts::mark("Y"), .kind = FieldKind::number },
                { .name = u"RbW"_s, .label = Texts::mark("Width"), .kind = FieldKind::number },
                { .name = u"RbH"_s, .label = Texts::mark("Height"), .kind = FieldKind::number },
                { .name = u"RbRx"_s, .label = Texts::mark("Radius"), .kind = FieldKind::number },
                { .name = u"RbVertices"_s, .label = Texts::mark("Points"), .kind = FieldKind::structure, .isSeveral = true, .structure = u"RegionBoundaryPoint"_s },
            },
            .titleMembers = { u"RbShape"_s } },
        { .name = u"RegionBoundaryPoint"_s, .item = Texts::mark("point"),
            .members = {
                { .name = u"RbX"_s, .label = Texts::mark("X"), .kind = FieldKind::number },
                { .name = u"RbY"_s, .label = Texts::mark("Y"), .kind = FieldKind::number },
            },
            .titleMembers = { u"RbX"_s, u"RbY"_s } },
        { .name = u"LinkedEncRightsExpr"_s, .item = Texts::mark("link"),
            .members = {
                { .name = u"LinkedRightsExpr"_s, .label = Texts::mark("Address") },
                { .name = u"RightsExprEncType"_s, .label = Texts::mark("Encoding") },
                { .name = u"RightsExprLangId"_s, .label = Texts::mark("Language") },
            },
            .titleMembers = { u"LinkedRightsExpr"_s } },
        { .name = u"Location"_s, .item = Texts::mark("place"),
            .members = {
                { .name = u"LocationName"_s, .label = Texts::mark("Name"), .hasLanguages = true },
                { .name = u"Sublocation"_s, .label = Texts::mark("Sublocation") },
                { .name = u"City"_s, .label = Texts::mark("City") },
                { .name = u"ProvinceState"_s, .label = Texts::mark("State") },
                { .name = u"CountryName"_s, .label = Texts::mark("Country") },
                { .name = u"CountryCode"_s, .label = Texts::mark("Country code") },
                { .name = u"WorldRegion"_s, .label = Texts::mark("World region"), .kind = FieldKind::code, .vocabulary = u"worldRegion"_s },
                { .name = u"LocationId"_s, .label = Texts::mark("Identifiers"), .isSeveral = true },
                { .name = u"GPSLatitude"_s, .label = Texts::mark("Latitude"), .kind = FieldKind::number },
                { .name = u"GPSLongitude"_s, .label = Texts::mark("Longitude"), .kind = FieldKind::number },
                { .name = u"GPSAltitude"_s, .label = Texts::mark("Altitude (m)"), .kind = FieldKind::number },
                { .name = u"GPSAltitudeRef"_s, .label = Texts::mark("Below sea level"), .kind = FieldKind::number },
            },
            .titleMembers = { u"LocationName"_s, u"City"_s, u"ProvinceState"_s, u"CountryName"_s } },
        { .name = u"PersonWDetails"_s, .item = Texts::mark("person"),
            .members = {
                { .name = u"PersonName"_s, .label = Texts::mark("Name"), .hasLanguages = true },
                { .name = u"PersonDescription"_s, .label = Texts::mark("Description"), .kind = FieldKind::multiline, .hasLanguages = true },
                { .name = u"PersonCharacteristic"_s, .label = Texts::mark("Characteristics"), .kind = FieldKind::structure, .isSeveral = true, .structure = u"CvTerm"_s },
                { .name = u"PersonId"_s, .label = Texts::mark("Identifiers"), .isSeveral = true },
            },
            .titleMembers = { u"PersonName"_s, u"PersonDescription"_s, u"PersonId"_s } },
        { .name = u"ProductWGtin"_s, .item = Texts::mark("product"),
            .members = {
                { .name = u"ProductName"_s, .label = Texts::mark("Name"), .hasLanguages = true },
                { .name = u"ProductGTIN"_s, .label = Texts::mark("GTIN") },
                { .name = u"ProductDescription"_s, .label = Texts::mark("Description"), .kind = FieldKind::multiline, .hasLanguages = true },
                { .name = u"ProductId"_s, .label = Texts::mark("Identifiers"), .isSeveral = true },
            },
            .titleMembers = { u"ProductName"_s, u"ProductGTIN"_s } },
        { .name = u"RegistryEntry"_s, .item = Texts::mark("entry"),
            .members = {
                { .name = u"RegOrgId"_s, .label = Texts::mark("Registry") },
                { .name = u"RegItemId"_s, .label = Texts::mark("Number") },
                { .name = u"RegEntryRole"_s, .label = Texts::mark("Role") },
            },
            .titleMembers = { u"RegOrgId"_s, u"RegItemId"_s } },
        { .name = u"Licensor"_s, .item = Texts::mark("licensor"),
            .members = {
                { .name = u"LicensorName"_s, .label = Texts::mark("Name") },
                { .name = u"LicensorEmail"_s, .label = Texts::mark("E-mail") },
                { .name = u"LicensorTelephone1"_s, .label = Texts::mark("Phone") },
                { .name = u"LicensorTelephoneType1"_s, .label = Texts::mark("Phone type"), .kind = FieldKind::code, .vocabulary = u"telephoneType"_s },
                { .name = u"LicensorTelephone2"_s, .label = Texts::mark("Second phone") },
                { .name = u"LicensorTelephoneType2"_s, .label = Texts::mark("Second phone type"), .kind = FieldKind::code, .vocabulary = u"telephoneType"_s },
                { .name = u"LicensorURL"_s, .label = Texts::mark("Web") },
                { .name = u"LicensorStreetAddress"_s, .label = Texts::mark("Address") },
                { .name = u"LicensorExtendedAddress"_s, .label = Texts::mark("Address, further") },
                { .name = u"LicensorPostalCode"_s, .label = Texts::mark("Postal code") },
                { .name = u"LicensorCity"_s, .label = Texts::mark("City") },
                { .name = u"LicensorRegion"_s, .label = Texts::mark("State") },
                { .name = u"LicensorCountry"_s, .label = Texts::mark("Country") },
                { .name = u"LicensorID"_s, .label = Texts::mark("Identifier") },
            },
            .titleMembers = { u"LicensorName"_s, u"LicensorEmail"_s, u"LicensorURL"_s, u"LicensorID"_s } },
        { .name = u"CopyrightOwner"_s, .item = Texts::mark("owner"),
            .members = {
                { .name = u"CopyrightOwnerName"_s, .label = Texts::mark("Name") },
                { .name = u"CopyrightOwnerID"_s, .label = Texts::mark("Identifier") },
            },
            .titleMembers = { u"CopyrightOwnerName"_s, u"CopyrightOwnerID"_s } },
        { .name = u"ImageCreator"_s, .item = Texts::mark("creator"),
            .members = {
                { .name = u"ImageCreatorName"_s, .label = Texts::mark("Name") },
                { .name = u"ImageCreatorID"_s, .label = Texts::mark("Identifier") },
            },
            .titleMembers = { u"ImageCreatorName"_s, u"ImageCreatorID"_s } },
        { .name = u"ImageSupplier"_s, .item = Texts::mark("supplier"),
            .members = {
                { .name = u"ImageSupplierName"_s, .label = Texts::mark("Name") },
                { .name = u"ImageSupplierID"_s, .label = Texts::mark("Identifier") },
            },
            .titleMembers = { u"ImageSupplierName"_s, u"ImageSupplierID"_s } },
    };
    return structures;
}

const StructureSpec* spec(const QString& name)
{
    const QList<StructureSpec>& structures = all();
    const auto found = std::find_if(structures.cbegin(), structures.cend(),
        [&name](const StructureSpec& structure) { return structure.name == name; });
    return found == structures.cend() ? nullptr : &*found;
}

const StructureMember* member(const StructureSpec& structure, const QString& name)
{
    const auto is = [&name](const StructureMember& member) {
        return member.name == name || (member.hasLanguages && name.startsWith(member.name + u'-'));
    };
    const auto found = std::find_if(structure.members.cbegin(), structure.members.cend(), is);
    return found == structure.members.cend() ? nullptr : &*found;
}

}  // namespace Quorbel::IptcStructures
