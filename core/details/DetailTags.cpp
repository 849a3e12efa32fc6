#include "core/details/DetailTags.h"

#include "core/details/Credentials.h"
#include "core/details/FieldHomes.h"
#include "core/iptc/IptcSchema.h"
#include "core/schema/FieldSchema.h"
#include "core/schema/KeywordPath.h"
#include "core/sidecar/SidecarSchema.h"

namespace Quorbel::DetailTags {

using namespace Qt::StringLiterals;

namespace {

QStringList languageTags()
{
    QStringList tags;
    for (const FieldSpec& field : FieldSchema::everyField())
        if (const QString tag = field.languageTag(); !tag.isEmpty())
            tags.append(tag + u"-*"_s);
    return tags;
}

QStringList pathTags()
{
    QStringList tags;
    for (const auto& home : KeywordPath::homes())
        tags.append(home.tag);
    return tags << KeywordPath::treeTag();
}

}  // namespace

QStringList all()
{
    return FieldHomes::readTags() + IptcSchema::readTags() + languageTags() + pathTags() + Credentials::tags()
        << error();
}

QStringList ofSidecars()
{
    QStringList tags = all() + SidecarSchema::readTags() << u"FileType"_s << u"Warning"_s;
    const QStringList ofBoxes = Credentials::tags();
    tags.removeIf([&ofBoxes](const QString& tag) { return ofBoxes.contains(tag) || tag.startsWith(u"Composite:"_s); });
    tags.removeDuplicates();
    return tags;
}

QString error()
{
    return u"ExifTool:Error"_s;
}

}  // namespace Quorbel::DetailTags
