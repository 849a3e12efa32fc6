#include "core/details/DetailTags.h"

#include "core/details/FieldHomes.h"
#include "core/iptc/IptcSchema.h"

namespace Quorbel::DetailTags {

using namespace Qt::StringLiterals;

namespace {

// The tool holds each name that it is asked for against all tags of a file: for what it was asked in forty names of XMP,
// and for as many more, it takes less time when it is asked for all there is. Left out is what is long and of no
// interest here: how a raw file is developed, and what was done to it before.
QStringList xmpTags()
{
    return { u"XMP:all"_s, u"-XMP-crs:all"_s, u"-XMP-xmpMM:all"_s };
}

}  // namespace

QStringList all()
{
    QStringList tags = FieldHomes::readTags() + IptcSchema::readTags();
    tags.removeIf([](const QString& tag) { return tag.startsWith("XMP"_L1); });
    return tags + xmpTags() << error();
}

QString error()
{
    return u"ExifTool:Error"_s;
}

}  // namespace Quorbel::DetailTags
