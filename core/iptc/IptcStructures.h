// The structures of the IPTC Photo Metadata Standard: which members each has, under ExifTool's names.
// Thread: any. Built once, then immutable.
#pragma once

#include "core/schema/FieldSpec.h"

#include <QList>

namespace Quorbel {

struct StructureMember {
    QString name{};  ///< as ExifTool reads and writes it within the structure: "CiAdrCity"
    QString label{};
    FieldKind kind = FieldKind::text;
    bool isSeveral = false;
    bool hasLanguages = false;  ///< others than the plain text stand under "Name-de"
    QString vocabulary{};
    QString structure{};  ///< of a structure within the structure
    bool operator==(const StructureMember&) const = default;
};

struct StructureSpec {
    QString name{};
    QString item{};  ///< what one is called: "place"
    QList<StructureMember> members{};  ///< in the order in which a card shows them
    QStringList titleMembers{};  ///< the first of these that is there heads a card; further ones are named behind it
    bool operator==(const StructureSpec&) const = default;
};

namespace IptcStructures {

const QList<StructureSpec>& all();
/// Nothing for a name that is none. The pointer stays valid for ever.
const StructureSpec* spec(const QString& name);
/// The member of this name, also where a language stands behind it ("AOTitle-de"); nothing when there is none.
const StructureMember* member(const StructureSpec& structure, const QString& name);
/// The tag that reaches a member of a field's structures by itself: "XMP-iptcExt:LocationShownCity". Members of
/// structures within have their path ("RegionBoundary.RbX"), languages stand behind ("AOTitle-de"). "" where there is
/// none. A value given to it goes to the first item of several that has the member.
QString flatTag(const QString& fieldId, const QString& member);

}  // namespace IptcStructures

}  // namespace Quorbel
