#include "core/schema/FieldSpec.h"

#include "core/language/Texts.h"

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
        { FieldSection::common, Texts::mark("COMMON") },
        { FieldSection::location, Texts::mark("LOCATION") },
        { FieldSection::additional, Texts::mark("DETAILS") },
        { FieldSection::contact, Texts::mark("CONTACT") },
        { FieldSection::people, Texts::mark("PEOPLE") },
        { FieldSection::locationCreated, Texts::mark("LOCATION CREATED") },
        { FieldSection::locationShown, Texts::mark("LOCATION SHOWN") },
        { FieldSection::subjects, Texts::mark("SUBJECTS") },
        { FieldSection::things, Texts::mark("THINGS SHOWN") },
        { FieldSection::regions, Texts::mark("REGIONS") },
        { FieldSection::rights, Texts::mark("RIGHTS") },
        { FieldSection::licensing, Texts::mark("LICENSING") },
        { FieldSection::source, Texts::mark("SOURCE") },
        { FieldSection::image, Texts::mark("IMAGE") },
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
