#include "ui/inspector/iptc/StructureLayout.h"

#include "core/iptc/StructureEdit.h"

#include <QMap>
#include <QSet>

namespace Quorbel::StructureLayout {

using namespace Qt::StringLiterals;

namespace {

const QMap<QString, Beside>& pairs()
{
    static const QMap<QString, Beside> pairs{
        { u"CountryName"_s, { u"CountryCode"_s, 52, true } },
        { u"LicensorTelephone1"_s, { u"LicensorTelephoneType1"_s, 110 } },
        { u"LicensorTelephone2"_s, { u"LicensorTelephoneType2"_s, 110 } },
    };
    return pairs;
}

const QMap<QString, QSet<QString>>& rare()
{
    static const QMap<QString, QSet<QString>> rare{
        { u"ArtworkOrObject"_s,
            { u"AOCircaDateCreated"_s, u"AOContributionDescription"_s, u"AOPhysicalDescription"_s, u"AOStylePeriod"_s,
                u"AOSourceInvURL"_s, u"AOCurrentCopyrightOwnerName"_s, u"AOCurrentCopyrightOwnerId"_s,
                u"AOCurrentLicensorName"_s, u"AOCurrentLicensorId"_s, u"AOCreatorId"_s } },
        { u"Location"_s,
            { u"LocationId"_s, u"GPSLatitude"_s, u"GPSLongitude"_s, u"GPSAltitude"_s, u"GPSAltitudeRef"_s } },
        { u"PersonWDetails"_s, { u"PersonCharacteristic"_s, u"PersonId"_s } },
        { u"Licensor"_s,
            { u"LicensorTelephone2"_s, u"LicensorTelephoneType2"_s, u"LicensorStreetAddress"_s,
                u"LicensorExtendedAddress"_s, u"LicensorPostalCode"_s, u"LicensorCity"_s, u"LicensorRegion"_s,
                u"LicensorCountry"_s } },
    };
    return rare;
}

// What an outline of another shape than this has.
QSet<QString> notOf(const QString& shape)
{
    static const QMap<QString, QSet<QString>> others{
        { u"rectangle"_s, { u"RbRx"_s, u"RbVertices"_s } },
        { u"circle"_s, { u"RbW"_s, u"RbH"_s, u"RbVertices"_s } },
        { u"polygon"_s, { u"RbX"_s, u"RbY"_s, u"RbW"_s, u"RbH"_s, u"RbRx"_s } },
    };
    return others.value(shape);
}

}  // namespace

Beside beside(const QString& member)
{
    return pairs().value(member);
}

bool isBeside(const QString& member)
{
    for (const Beside& pair : pairs())
        if (pair.member == member)
            return true;
    return false;
}

bool isRare(const StructureSpec& structure, const QString& text, const QString& member)
{
    if (structure.name == u"RegionBoundary")
        return notOf(StructureEdit::texts(text, u"RbShape"_s).value(0).toLower()).contains(member);
    return rare().value(structure.name).contains(member);
}

}  // namespace Quorbel::StructureLayout
