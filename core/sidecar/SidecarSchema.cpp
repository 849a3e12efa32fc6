#include "core/sidecar/SidecarSchema.h"

#include "core/schema/FieldID.h"
#include "core/schema/FieldSchema.h"

#include <QHash>

#include <algorithm>

namespace Quorbel::SidecarSchema {

using namespace Qt::StringLiterals;

namespace {

struct Homes {
    QString id{};
    QStringList writeTags{};
    QStringList readTags{};
};

// Fields of which the tags of photos are not enough, or not exact. All others keep those of their tags that are XMP's.
const QList<Homes>& ownHomes()
{
    static const QList<Homes> rows{
        { u"date"_s, { u"XMP-photoshop:DateCreated"_s, u"XMP-exif:DateTimeOriginal"_s },
            { u"XMP:DateTimeOriginal"_s, u"XMP:DateCreated"_s } },
        { u"dateDigitized"_s, { u"XMP-xmp:CreateDate"_s, u"XMP-exif:DateTimeDigitized"_s },
            { u"XMP:DateTimeDigitized"_s, u"XMP:CreateDate"_s } },
        { u"offsetOriginal"_s, { u"XMP-exif:OffsetTimeOriginal"_s }, { u"XMP:OffsetTimeOriginal"_s } },
        { u"offsetDigitized"_s, { u"XMP-exif:OffsetTimeDigitized"_s }, { u"XMP:OffsetTimeDigitized"_s } },
        { u"category"_s, { u"XMP-photoshop:Category"_s }, { u"XMP:Category"_s } },
        { u"rating"_s, { u"XMP-xmp:Rating"_s }, { u"XMP:Rating"_s } },
        { u"label"_s, { u"XMP-xmp:Label"_s }, { u"XMP:Label"_s } },
        { u"coords"_s, {}, { u"Composite:GPSPosition"_s, u"XMP:GPSLatitude"_s, u"XMP:GPSLongitude"_s } },
    };
    return rows;
}

QStringList ofXmp(QStringList tags)
{
    tags.removeIf([](const QString& tag) { return homeOf(tag) != u"XMP"; });
    return tags;
}

FieldSpec inSidecar(FieldSpec field)
{
    const auto own = std::find_if(
        ownHomes().cbegin(), ownHomes().cend(), [&field](const Homes& homes) { return homes.id == field.id; });
    field.writeTags = own == ownHomes().cend() ? ofXmp(field.writeTags) : own->writeTags;
    field.readTags = own == ownHomes().cend() ? ofXmp(field.readTags) : own->readTags;
    return field;
}

// The tool turns texts into dates, numbers and positions before it stores them, and refuses none at all. Of these
// groups each is one of XMP's with such tags, under another name and without that.
struct Emptied {
    QString group{};
    QString prefix{};
    QString uri{};
    QStringList names{};
};

const QList<Emptied>& emptiedGroups()
{
    static const QList<Emptied> groups{
        { u"XMP-exif"_s, u"exif"_s, u"http://ns.adobe.com/exif/1.0/"_s,
            { u"DateTimeOriginal"_s, u"DateTimeDigitized"_s, u"GPSLatitude"_s, u"GPSLongitude"_s } },
        { u"XMP-photoshop"_s, u"photoshop"_s, u"http://ns.adobe.com/photoshop/1.0/"_s,
            { u"DateCreated"_s, u"Urgency"_s } },
        { u"XMP-xmp"_s, u"xmp"_s, u"http://ns.adobe.com/xap/1.0/"_s, { u"CreateDate"_s, u"Rating"_s } },
        { u"XMP-iptcExt"_s, u"Iptc4xmpExt"_s, u"http://iptc.org/std/Iptc4xmpExt/2008-02-29/"_s,
            { u"ModelAge"_s, u"MaxAvailWidth"_s, u"MaxAvailHeight"_s } },
    };
    return groups;
}

QString emptiedPrefix()
{
    return u"XMP-emptied-"_s;
}

QString nameOf(const QString& tag)
{
    return tag.sliced(tag.indexOf(u':') + 1);
}

QString emptiedTag(const QString& tag)
{
    const QString group = tag.first(tag.indexOf(u':'));
    for (const Emptied& one : emptiedGroups())
        if (one.group == group && one.names.contains(nameOf(tag)))
            return emptiedPrefix() + one.prefix + u':' + nameOf(tag);
    return tag;
}

}  // namespace

const QList<FieldSpec>& everyField()
{
    static const QList<FieldSpec> fields = [] {
        QList<FieldSpec> fields;
        for (const FieldSpec& field : FieldSchema::everyField())
            fields.append(inSidecar(field));
        return fields;
    }();
    return fields;
}

const FieldSpec* spec(const QString& id)
{
    static const QHash<QString, const FieldSpec*> byId = [] {
        QHash<QString, const FieldSpec*> byId;
        for (const FieldSpec& field : everyField())
            byId.insert(field.id, &field);
        return byId;
    }();
    return byId.value(id);
}

QStringList readTags()
{
    QStringList tags;
    for (const FieldSpec& field : FieldSchema::all())
        tags += spec(field.id)->readTags;
    std::sort(tags.begin(), tags.end());
    tags.removeDuplicates();
    return tags;
}

QList<Assignment> emptied(const FieldSpec& field)
{
    QStringList tags = field.writeTags;
    if (field.kind == FieldKind::coordinates)
        tags = { u"XMP-exif:GPSLatitude"_s, u"XMP-exif:GPSLongitude"_s };
    QList<Assignment> assignments;
    for (const QString& tag : std::as_const(tags))
        assignments.append({ emptiedTag(tag), Assignment::Operation::restore, {} });
    return assignments;
}

QString plainTag(const QString& tag)
{
    for (const Emptied& one : emptiedGroups())
        if (tag.startsWith(emptiedPrefix() + one.prefix + u':'))
            return one.group + u':' + nameOf(tag);
    return tag;
}

bool needDefinitions(const QList<Assignment>& assignments)
{
    return std::any_of(assignments.cbegin(), assignments.cend(), [](const Assignment& assignment) {
        return assignment.tag.startsWith(emptiedPrefix()) || assignment.tag.startsWith(u"XMP-exif:OffsetTime"_s);
    });
}

QString definitions()
{
    QString text = u"\n$Image::ExifTool::UserDefined{'Image::ExifTool::XMP::exif'} = {\n"
                   "  OffsetTimeOriginal => { },\n"
                   "  OffsetTimeDigitized => { },\n"
                   "};\n"_s;
    for (const Emptied& group : emptiedGroups()) {
        QStringList tags;
        for (const QString& name : group.names)
            tags.append(u"  %1 => { },\n"_s.arg(name));
        const QString table = u"QuorbelEmptied_"_s + group.prefix;
        text += u"$Image::ExifTool::UserDefined{'Image::ExifTool::XMP::Main'}{%1} =\n"
                "  { SubDirectory => { TagTable => 'Image::ExifTool::UserDefined::%1' } };\n"
                "%Image::ExifTool::UserDefined::%1 = (\n"
                "  GROUPS => { 0 => 'XMP', 1 => '%2', 2 => 'Image' },\n"
                "  NAMESPACE => { '%3' => '%4' },\n"
                "  WRITABLE => 'string',\n%5);\n"_s.arg(
                    table, emptiedPrefix() + group.prefix, group.prefix, group.uri, tags.join(QString()));
    }
    return text + u"1;"_s;
}

}  // namespace Quorbel::SidecarSchema
