#include "core/iptc/IptcSchema.h"
#include "core/iptc/IptcStructures.h"

#include <QHash>

namespace Quorbel::IptcStructures {

using namespace Qt::StringLiterals;

namespace {

// Member and tag, by property. ExifTool has no tag for a place's GPSAltitudeRef.
const QHash<QString, QString>& rows()
{
    static const QHash<QString, QString> rows{
        { u"iptc.contact"_s,
            u"CiAdrExtadr=CreatorAddress CiAdrCity=CreatorCity CiAdrCtry=CreatorCountry CiEmailWork=CreatorWorkEmail CiTelWork=CreatorWorkTelephone CiAdrPcode=CreatorPostalCode CiAdrRegion=CreatorRegion CiUrlWork=CreatorWorkURL"_s },
        { u"iptc.personsShown"_s,
            u"PersonId=PersonInImageId PersonName=PersonInImageName PersonDescription=PersonInImageDescription PersonCharacteristic=PersonInImageCharacteristic PersonCharacteristic.CvId=PersonInImageCvTermCvId PersonCharacteristic.CvTermId=PersonInImageCvTermId PersonCharacteristic.CvTermName=PersonInImageCvTermName PersonCharacteristic.CvTermRefinedAbout=PersonInImageCvTermRefinedAbout"_s },
        { u"iptc.locationCreated"_s,
            u"LocationId=LocationCreatedLocationId LocationName=LocationCreatedLocationName Sublocation=LocationCreatedSublocation City=LocationCreatedCity ProvinceState=LocationCreatedProvinceState CountryName=LocationCreatedCountryName CountryCode=LocationCreatedCountryCode WorldRegion=LocationCreatedWorldRegion GPSAltitude=LocationCreatedGPSAltitude GPSLongitude=LocationCreatedGPSLongitude GPSLatitude=LocationCreatedGPSLatitude"_s },
        { u"iptc.locationsShown"_s,
            u"LocationId=LocationShownLocationId LocationName=LocationShownLocationName Sublocation=LocationShownSublocation City=LocationShownCity ProvinceState=LocationShownProvinceState CountryName=LocationShownCountryName CountryCode=LocationShownCountryCode WorldRegion=LocationShownWorldRegion GPSAltitude=LocationShownGPSAltitude GPSLongitude=LocationShownGPSLongitude GPSLatitude=LocationShownGPSLatitude"_s },
        { u"iptc.aboutTerms"_s,
            u"CvId=AboutCvTermCvId CvTermId=AboutCvTermId CvTermName=AboutCvTermName CvTermRefinedAbout=AboutCvTermRefinedAbout"_s },
        { u"iptc.genreTerms"_s,
            u"CvId=GenreCvId CvTermId=GenreCvTermId CvTermName=GenreCvTermName CvTermRefinedAbout=GenreCvTermRefinedAbout"_s },
        { u"iptc.productsShown"_s,
            u"ProductGTIN=ProductInImageGTIN ProductId=ProductInImageProductId ProductName=ProductInImageName ProductDescription=ProductInImageDescription"_s },
        { u"iptc.artworks"_s, u"AOCircaDateCreated=ArtworkCircaDateCreated AOContentDescription=ArtworkContentDescription AOContributionDescription=ArtworkContributionDescription AOCopyrightNotice=ArtworkCopyrightNotice AOCreator=ArtworkCreator AOCreatorId=ArtworkCreatorID AOCurrentCopyrightOwnerId=ArtworkCopyrightOwnerID AOCurrentCopyrightOwnerName=ArtworkCopyrightOwnerName AOCurrentLicensorId=ArtworkLicensorID AOCurrentLicensorName=ArtworkLicensorName AODateCreated=ArtworkDateCreated AOPhysicalDescription=ArtworkPhysicalDescription AOSource=ArtworkSource AOSourceInvNo=ArtworkSourceInventoryNo AOSourceInvURL=ArtworkSourceInvURL AOStylePeriod=ArtworkStylePeriod AOTitle=ArtworkTitle"_s },
        { u"iptc.regions"_s,
            u"RegionBoundary=ImageRegionBoundary RegionBoundary.RbShape=ImageRegionBoundaryShape RegionBoundary.RbUnit=ImageRegionBoundaryUnit RegionBoundary.RbX=ImageRegionBoundaryX RegionBoundary.RbY=ImageRegionBoundaryY RegionBoundary.RbW=ImageRegionBoundaryW RegionBoundary.RbH=ImageRegionBoundaryH RegionBoundary.RbRx=ImageRegionBoundaryRx RegionBoundary.RbVertices=ImageRegionBoundaryVertices RegionBoundary.RbVertices.RbX=ImageRegionBoundaryVerticesX RegionBoundary.RbVertices.RbY=ImageRegionBoundaryVerticesY RId=ImageRegionID Name=ImageRegionName RCtype=ImageRegionCtype RCtype.Identifier=ImageRegionCtypeIdentifier RCtype.Name=ImageRegionCtypeName RRole=ImageRegionRole RRole.Identifier=ImageRegionRoleIdentifier RRole.Name=ImageRegionRoleName"_s },
        { u"iptc.copyrightOwners"_s, u"CopyrightOwnerID=CopyrightOwnerID CopyrightOwnerName=CopyrightOwnerName"_s },
        { u"iptc.imageCreators"_s, u"ImageCreatorID=ImageCreatorID ImageCreatorName=ImageCreatorName"_s },
        { u"iptc.contributors"_s, u"Identifier=ContributorIdentifier Name=ContributorName Role=ContributorRole"_s },
        { u"iptc.licensors"_s,
            u"LicensorID=LicensorID LicensorName=LicensorName LicensorStreetAddress=LicensorStreetAddress LicensorExtendedAddress=LicensorExtendedAddress LicensorCity=LicensorCity LicensorRegion=LicensorRegion LicensorPostalCode=LicensorPostalCode LicensorCountry=LicensorCountry LicensorTelephoneType1=LicensorTelephoneType1 LicensorTelephone1=LicensorTelephone1 LicensorTelephoneType2=LicensorTelephoneType2 LicensorTelephone2=LicensorTelephone2 LicensorEmail=LicensorEmail LicensorURL=LicensorURL"_s },
        { u"iptc.suppliers"_s, u"ImageSupplierID=ImageSupplierID ImageSupplierName=ImageSupplierName"_s },
        { u"iptc.embeddedRights"_s,
            u"EncRightsExpr=EmbeddedEncodedRightsExpr RightsExprEncType=EmbeddedEncodedRightsExprType RightsExprLangId=EmbeddedEncodedRightsExprLangID"_s },
        { u"iptc.linkedRights"_s,
            u"LinkedRightsExpr=LinkedEncodedRightsExpr RightsExprEncType=LinkedEncodedRightsExprType RightsExprLangId=LinkedEncodedRightsExprLangID"_s },
        { u"iptc.registryEntries"_s,
            u"RegOrgId=RegistryOrganisationID RegItemId=RegistryItemID RegEntryRole=RegistryEntryRole"_s },
    };
    return rows;
}

QHash<QString, QString> tagsOf(const QString& fieldId)
{
    QHash<QString, QString> tags;
    const FieldSpec* field = IptcSchema::spec(fieldId);
    for (const QString& pair : rows().value(fieldId).split(u' ', Qt::SkipEmptyParts))
        tags.insert(
            pair.section(u'=', 0, 0), field->writeTags.constFirst().section(u':', 0, 0) + u':' + pair.section(u'=', 1));
    return tags;
}

}  // namespace

QString flatTag(const QString& fieldId, const QString& member)
{
    const QString name = member.section(u'-', 0, 0);
    const QString tag = tagsOf(fieldId).value(name);
    return tag.isEmpty() ? tag : tag + member.sliced(name.size());
}

}  // namespace Quorbel::IptcStructures
