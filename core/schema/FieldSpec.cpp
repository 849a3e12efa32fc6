#include "core/schema/FieldSpec.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

const QList<std::pair<FieldKind, QString>>& RawValues<FieldKind>::table()
{
    static const QList<std::pair<FieldKind, QString>> rows{
        { FieldKind::text, u"text"_s },
        { FieldKind::multiline, u"multiline"_s },
        { FieldKind::keywords, u"keywords"_s },
        { FieldKind::date, u"date"_s },
        { FieldKind::coordinates, u"coordinates"_s },
        { FieldKind::rating, u"rating"_s },
        { FieldKind::offset, u"offset"_s },
        { FieldKind::number, u"number"_s },
        { FieldKind::code, u"code"_s },
        { FieldKind::structure, u"structure"_s },
    };
    return rows;
}

const QList<std::pair<FieldSection, QString>>& RawValues<FieldSection>::table()
{
    static const QList<std::pair<FieldSection, QString>> rows{
        { FieldSection::common, u"COMMON"_s },
        { FieldSection::location, u"LOCATION"_s },
        { FieldSection::additional, u"DETAILS"_s },
        { FieldSection::contact, u"CONTACT"_s },
        { FieldSection::people, u"PEOPLE"_s },
        { FieldSection::locationCreated, u"LOCATION CREATED"_s },
        { FieldSection::locationShown, u"LOCATION SHOWN"_s },
        { FieldSection::subjects, u"SUBJECTS"_s },
        { FieldSection::things, u"THINGS SHOWN"_s },
        { FieldSection::regions, u"REGIONS"_s },
        { FieldSection::rights, u"RIGHTS"_s },
        { FieldSection::licensing, u"LICENSING"_s },
        { FieldSection::source, u"SOURCE"_s },
        { FieldSection::image, u"IMAGE"_s },
    };
    return rows;
}

QString FieldSpec::languageTag() const
{
    // XMP's language alternatives among the tags of the schema.
    static const QStringList alternatives{ u"XMP-dc:Title"_s, u"XMP-dc:Description"_s, u"XMP-dc:Rights"_s,
        u"XMP-iptcExt:Event"_s, u"XMP-xmpRights:UsageTerms"_s };
    if (hasLanguages)
        return writeTags.constFirst();
    for (const QString& tag : writeTags)
        if (alternatives.contains(tag))
            return tag;
    return {};
}

}  // namespace Quorbel
