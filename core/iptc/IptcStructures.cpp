#include "core/iptc/IptcStructures.h"

#include <algorithm>

namespace Quorbel::IptcStructures {

using namespace Qt::StringLiterals;

const QList<StructureSpec>& all()
{
    static const QList<StructureSpec> structures{
        { .name = u"CreatorContactInfo"_s, .item = u"contact"_s, .items = u"contacts"_s,
            .members = {
                { .name = u"CiEmailWork"_s, .label = u"E-mail"_s },
                { .name = u"CiTelWork"_s, .label = u"Phone"_s },
                { .name = u"CiUrlWork"_s, .label = u"Web"_s },
                { .name = u"CiAdrExtadr"_s, .label = u"Address"_s, .kind = FieldKind::multiline },
                { .name = u"CiAdrPcode"_s, .label = u"Postal code"_s },
                { .name = u"CiAdrCity"_s, .label = u"City"_s },
                { .name = u"CiAdrRegion"_s, .label = u"State"_s },
                { .name = u"CiAdrCtry"_s, .label = u"Country"_s },
            },
            .titleMembers = { u"CiEmailWork"_s, u"CiAdrCity"_s, u"CiTelWork"_s } },
        { .name = u"ArtworkOrObject"_s, .item = u"artwork"_s, .items = u"artworks"_s,
            .members = {
                { .name = u"AOTitle"_s, .label = u"Title"_s, .hasLanguages = true },
                { .name = u"AOCreator"_s, .label = u"Creators"_s, .isSeveral = true },
                { .name = u"AODateCreated"_s, .label = u"Created"_s, .kind = FieldKind::date },
                { .name = u"AOCircaDateCreated"_s, .label = u"Created about"_s },
                { .name = u"AOContentDescription"_s, .label = u"Content"_s, .kind = FieldKind::multiline, .hasLanguages = true },
                { .name = u"AOContributionDescription"_s, .label = u"Contributions"_s, .kind = FieldKind::multiline, .hasLanguages = true },
                { .name = u"AOPhysicalDescription"_s, .label = u"Physical description"_s, .kind = FieldKind::multiline, .hasLanguages = true },
                { .name = u"AOStylePeriod"_s, .label = u"Style or period"_s, .isSeveral = true },
                { .name = u"AOSource"_s, .label = u"Source"_s },
                { .name = u"AOSourceInvNo"_s, .label = u"Inventory number"_s },
                { .name = u"AOSourceInvURL"_s, .label = u"Inventory address"_s },
                { .name = u"AOCopyrightNotice"_s, .label = u"Copyright notice"_s },
                { .name = u"AOCurrentCopyrightOwnerName"_s, .label = u"Copyright owner"_s },
                { .name = u"AOCurrentCopyrightOwnerId"_s, .label = u"Copyright owner ID"_s },
                { .name = u"AOCurrentLicensorName"_s, .label = u"Licensor"_s },
                { .name = u"AOCurrentLicensorId"_s, .label = u"Licensor ID"_s },
                { .name = u"AOCreatorId"_s, .label = u"Creator IDs"_s, .isSeveral = true },
            },
            .titleMembers = { u"AOTitle"_s, u"AOCreator"_s } },
        { .name = u"CvTerm"_s, .item = u"term"_s, .items = u"terms"_s,
            .members = {
                { .name = u"CvTermName"_s, .label = u"Name"_s, .hasLanguages = true },
                { .name = u"CvTermId"_s, .label = u"Term ID"_s },
                { .name = u"CvId"_s, .label = u"Vocabulary"_s },
                { .name = u"CvTermRefinedAbout"_s, .label = u"Relation"_s },
            },
            .titleMembers = { u"CvTermName"_s, u"CvTermId"_s } },
        { .name = u"EmbdEncRightsExpr"_s, .item = u"expression"_s, .items = u"expressions"_s,
            .members = {
                { .name = u"EncRightsExpr"_s, .label = u"Expression"_s, .kind = FieldKind::multiline },
                { .name = u"RightsExprEncType"_s, .label = u"Encoding"_s },
                { .name = u"RightsExprLangId"_s, .label = u"Language"_s },
            },
            .titleMembers = { u"EncRightsExpr"_s } },
        { .name = u"Entity"_s, .item = u"entry"_s, .items = u"entries"_s,
            .members = {
                { .name = u"Name"_s, .label = u"Name"_s, .hasLanguages = true },
                { .name = u"Identifier"_s, .label = u"Identifiers"_s, .isSeveral = true },
            },
            .titleMembers = { u"Name"_s, u"Identifier"_s } },
        { .name = u"EntityWRole"_s, .item = u"contributor"_s, .items = u"contributors"_s,
            .members = {
                { .name = u"Name"_s, .label = u"Name"_s, .hasLanguages = true },
                { .name = u"Role"_s, .label = u"Roles"_s, .isSeveral = true },
                { .name = u"Identifier"_s, .label = u"Identifiers"_s, .isSeveral = true },
            },
            .titleMembers = { u"Name"_s, u"Role"_s, u"Identifier"_s } },
        { .name = u"ImageRegion"_s, .item = u"region"_s, .items = u"regions"_s,
            .members = {
                { .name = u"Name"_s, .label = u"Name"_s, .hasLanguages = true },
                { .name = u"RCtype"_s, .label = u"Kind"_s, .kind = FieldKind::structure, .isSeveral = true, .structure = u"Entity"_s },
                { .name = u"RRole"_s, .label = u"Role"_s, .kind = FieldKind::structure, .isSeveral = true, .structure = u"Entity"_s },
                { .name = u"RId"_s, .label = u"Identifier"_s },
                { .name = u"RegionBoundary"_s, .label = u"Outline"_s, .kind = FieldKind::structure, .structure = u"RegionBoundary"_s },
            },
            .titleMembers = { u"Name"_s, u"RCtype"_s, u"RId"_s } },
        { .name = u"RegionBoundary"_s, .item = u"outline"_s, .items = u"outlines"_s,
            .members = {
                { .name = u"RbShape"_s, .label = u"Shape"_s, .kind = FieldKind::code, .vocabulary = u"boundaryShape"_s },
                { .name = u"RbUnit"_s, .label = u"Unit"_s, .kind = FieldKind::code, .vocabulary = u"boundaryUnit"_s },
                { .name = u"RbX"_s, .label = u"X"_s, .kind = FieldKind::number },
                { .name = u"RbY"_s, .label = u"Y"_s, .kind = FieldKind::number },
                { .name = u"RbW"_s, .label = u"Width"_s, .kind = FieldKind::number },
                { .name = u"RbH"_s, .label = u"Height"_s, .kind = FieldKind::number },
                { .name = u"RbRx"_s, .label = u"Radius"_s, .kind = FieldKind::number },
                { .name = u"RbVertices"_s, .label = u"Points"_s, .kind = FieldKind::structure, .isSeveral = true, .structure = u"RegionBoundaryPoint"_s },
            },
            .titleMembers = { u"RbShape"_s } },
        { .name = u"RegionBoundaryPoint"_s, .item = u"point"_s, .items = u"points"_s,
            .members = {
                { .name = u"RbX"_s, .label = u"X"_s, .kind = FieldKind::number },
                { .name = u"RbY"_s, .label = u"Y"_s, .kind = FieldKind::number },
            },
            .titleMembers = { u"RbX"_s, u"RbY"_s } },
        { .name = u"LinkedEncRightsExpr"_s, .item = u"link"_s, .items = u"links"_s,
            .members = {
                { .name = u"LinkedRightsExpr"_s, .label = u"Address"_s },
                { .name = u"RightsExprEncType"_s, .label = u"Encoding"_s },
                { .name = u"RightsExprLangId"_s, .label = u"Language"_s },
            },
            .titleMembers = { u"LinkedRightsExpr"_s } },
        { .name = u"Location"_s, .item = u"place"_s, .items = u"places"_s,
            .members = {
                { .name = u"LocationName"_s, .label = u"Name"_s, .hasLanguages = true },
                { .name = u"Sublocation"_s, .label = u"Sublocation"_s },
                { .name = u"City"_s, .label = u"City"_s },
                { .name = u"ProvinceState"_s, .label = u"State"_s },
                { .name = u"CountryName"_s, .label = u"Country"_s },
                { .name = u"CountryCode"_s, .label = u"Country code"_s },
                { .name = u"WorldRegion"_s, .label = u"World region"_s, .kind = FieldKind::code, .vocabulary = u"worldRegion"_s },
                { .name = u"LocationId"_s, .label = u"Identifiers"_s, .isSeveral = true },
                { .name = u"GPSLatitude"_s, .label = u"Latitude"_s, .kind = FieldKind::number },
                { .name = u"GPSLongitude"_s, .label = u"Longitude"_s, .kind = FieldKind::number },
                { .name = u"GPSAltitude"_s, .label = u"Altitude (m)"_s, .kind = FieldKind::number },
                { .name = u"GPSAltitudeRef"_s, .label = u"Below sea level"_s, .kind = FieldKind::number },
            },
            .titleMembers = { u"LocationName"_s, u"City"_s, u"ProvinceState"_s, u"CountryName"_s } },
        { .name = u"PersonWDetails"_s, .item = u"person"_s, .items = u"people"_s,
            .members = {
                { .name = u"PersonName"_s, .label = u"Name"_s, .hasLanguages = true },
                { .name = u"PersonDescription"_s, .label = u"Description"_s, .kind = FieldKind::multiline, .hasLanguages = true },
                { .name = u"PersonCharacteristic"_s, .label = u"Characteristics"_s, .kind = FieldKind::structure, .isSeveral = true, .structure = u"CvTerm"_s },
                { .name = u"PersonId"_s, .label = u"Identifiers"_s, .isSeveral = true },
            },
            .titleMembers = { u"PersonName"_s, u"PersonDescription"_s, u"PersonId"_s } },
        { .name = u"ProductWGtin"_s, .item = u"product"_s, .items = u"products"_s,
            .members = {
                { .name = u"ProductName"_s, .label = u"Name"_s, .hasLanguages = true },
                { .name = u"ProductGTIN"_s, .label = u"GTIN"_s },
                { .name = u"ProductDescription"_s, .label = u"Description"_s, .kind = FieldKind::multiline, .hasLanguages = true },
                { .name = u"ProductId"_s, .label = u"Identifiers"_s, .isSeveral = true },
            },
            .titleMembers = { u"ProductName"_s, u"ProductGTIN"_s } },
        { .name = u"RegistryEntry"_s, .item = u"entry"_s, .items = u"entries"_s,
            .members = {
                { .name = u"RegOrgId"_s, .label = u"Registry"_s },
                { .name = u"RegItemId"_s, .label = u"Number"_s },
                { .name = u"RegEntryRole"_s, .label = u"Role"_s },
            },
            .titleMembers = { u"RegOrgId"_s, u"RegItemId"_s } },
        { .name = u"Licensor"_s, .item = u"licensor"_s, .items = u"licensors"_s,
            .members = {
                { .name = u"LicensorName"_s, .label = u"Name"_s },
                { .name = u"LicensorEmail"_s, .label = u"E-mail"_s },
                { .name = u"LicensorTelephone1"_s, .label = u"Phone"_s },
                { .name = u"LicensorTelephoneType1"_s, .label = u"Phone type"_s, .kind = FieldKind::code, .vocabulary = u"telephoneType"_s },
                { .name = u"LicensorTelephone2"_s, .label = u"Second phone"_s },
                { .name = u"LicensorTelephoneType2"_s, .label = u"Second phone type"_s, .kind = FieldKind::code, .vocabulary = u"telephoneType"_s },
                { .name = u"LicensorURL"_s, .label = u"Web"_s },
                { .name = u"LicensorStreetAddress"_s, .label = u"Address"_s },
                { .name = u"LicensorExtendedAddress"_s, .label = u"Address, further"_s },
                { .name = u"LicensorPostalCode"_s, .label = u"Postal code"_s },
                { .name = u"LicensorCity"_s, .label = u"City"_s },
                { .name = u"LicensorRegion"_s, .label = u"State"_s },
                { .name = u"LicensorCountry"_s, .label = u"Country"_s },
                { .name = u"LicensorID"_s, .label = u"Identifier"_s },
            },
            .titleMembers = { u"LicensorName"_s, u"LicensorEmail"_s, u"LicensorURL"_s, u"LicensorID"_s } },
        { .name = u"CopyrightOwner"_s, .item = u"owner"_s, .items = u"owners"_s,
            .members = {
                { .name = u"CopyrightOwnerName"_s, .label = u"Name"_s },
                { .name = u"CopyrightOwnerID"_s, .label = u"Identifier"_s },
            },
            .titleMembers = { u"CopyrightOwnerName"_s, u"CopyrightOwnerID"_s } },
        { .name = u"ImageCreator"_s, .item = u"creator"_s, .items = u"creators"_s,
            .members = {
                { .name = u"ImageCreatorName"_s, .label = u"Name"_s },
                { .name = u"ImageCreatorID"_s, .label = u"Identifier"_s },
            },
            .titleMembers = { u"ImageCreatorName"_s, u"ImageCreatorID"_s } },
        { .name = u"ImageSupplier"_s, .item = u"supplier"_s, .items = u"suppliers"_s,
            .members = {
                { .name = u"ImageSupplierName"_s, .label = u"Name"_s },
                { .name = u"ImageSupplierID"_s, .label = u"Identifier"_s },
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
