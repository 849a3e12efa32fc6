#include "core/schema/FieldSchema.h"

#include "core/iptc/IptcSchema.h"

#include <QSet>

#include <algorithm>

namespace Quorbel::FieldSchema {

using namespace Qt::StringLiterals;

namespace {

QStringList sortedWithoutDuplicates(QStringList tags)
{
    std::sort(tags.begin(), tags.end());
    tags.removeDuplicates();
    return tags;
}

QList<FieldSpec> fieldsShownAlways(bool alwaysShown)
{
    QList<FieldSpec> fields;
    for (const FieldSpec& field : all())
        if (field.alwaysShown == alwaysShown)
            fields.append(field);
    return fields;
}

}  // namespace

// Columns: id, label, kind, section, write tags, read tags, hint, always shown, note, offered only as an add-on.
// Write tags name the exact XMP group, so that a save lands in that namespace and no other; read tags carry the
// group-0 names under which the reader gets its values. Hints are display text and may differ from the tags.
const QList<FieldSpec>& all()
{
    static const QList<FieldSpec> fields{
        { u"title"_s, u"Title"_s, FieldKind::text, FieldSection::common, { u"XMP-dc:Title"_s, u"IPTC:ObjectName"_s },
            { u"XMP:Title"_s, u"IPTC:ObjectName"_s }, u"XMP-dc:title · IPTC:ObjectName"_s, true,
            u"Shown as the photo's name / heading"_s, false },
        { u"description"_s, u"Description"_s, FieldKind::multiline, FieldSection::common,
            { u"XMP-dc:Description"_s, u"IPTC:Caption-Abstract"_s, u"EXIF:ImageDescription"_s },
            { u"XMP:Description"_s, u"IPTC:Caption-Abstract"_s, u"EXIF:ImageDescription"_s },
            u"IPTC:Caption-Abstract · XMP-dc:description · EXIF:ImageDescription"_s, true,
            u"Searchable caption everywhere"_s, false },
        { u"date"_s, u"Date taken"_s, FieldKind::date, FieldSection::common,
            { u"EXIF:DateTimeOriginal"_s, u"XMP-photoshop:DateCreated"_s },
            { u"EXIF:DateTimeOriginal"_s, u"XMP:DateCreated"_s }, u"EXIF:DateTimeOriginal · XMP:DateCreated"_s, true,
            u"Sorts your library by date in every app"_s, false },
        { u"keywords"_s, u"Keywords"_s, FieldKind::keywords, FieldSection::common,
            { u"IPTC:Keywords"_s, u"XMP-dc:Subject"_s }, { u"IPTC:Keywords"_s, u"XMP:Subject"_s },
            u"IPTC:Keywords · XMP-dc:subject"_s, true, u"Filter & group by tag"_s, false },
        { u"creator"_s, u"Creator"_s, FieldKind::text, FieldSection::common,
            { u"XMP-dc:Creator"_s, u"IPTC:By-line"_s, u"EXIF:Artist"_s },
            { u"XMP:Creator"_s, u"IPTC:By-line"_s, u"EXIF:Artist"_s }, u"IPTC:By-line · XMP-dc:creator · EXIF:Artist"_s,
            true, u"Who made the photo"_s, false },
        { u"copyright"_s, u"Copyright"_s, FieldKind::text, FieldSection::common,
            { u"XMP-dc:Rights"_s, u"IPTC:CopyrightNotice"_s, u"EXIF:Copyright"_s },
            { u"XMP:Rights"_s, u"IPTC:CopyrightNotice"_s, u"EXIF:Copyright"_s },
            u"IPTC:CopyrightNotice · XMP-dc:rights · EXIF:Copyright"_s, true, u"Rights / copyright notice"_s, false },
        { u"place"_s, u"Place"_s, FieldKind::text, FieldSection::location, { u"XMP-photoshop:City"_s, u"IPTC:City"_s },
            { u"XMP:City"_s, u"IPTC:City"_s }, u"IPTC:City · XMP:photoshop:City"_s, true,
            u"Pins on the map; sorts by place"_s, false },
        { u"coords"_s, u"Coordinates"_s, FieldKind::coordinates, FieldSection::location, {},
            { u"Composite:GPSPosition"_s }, u"EXIF:GPSLatitude · EXIF:GPSLongitude"_s, true,
            u"GPS latitude / longitude"_s, false },
        { u"rating"_s, u"Rating"_s, FieldKind::rating, FieldSection::additional, { u"XMP:Rating"_s },
            { u"XMP:Rating"_s }, u"XMP:Rating"_s, false, u"★ 1–5, read by most libraries"_s, false },
        { u"headline"_s, u"Headline"_s, FieldKind::text, FieldSection::additional,
            { u"XMP-photoshop:Headline"_s, u"IPTC:Headline"_s }, { u"XMP:Headline"_s, u"IPTC:Headline"_s },
            u"IPTC:Headline · XMP-photoshop:Headline"_s, false, u"Short title shown in galleries"_s, false },
        { u"people"_s, u"People"_s, FieldKind::keywords, FieldSection::additional, { u"XMP-iptcExt:PersonInImage"_s },
            { u"XMP:PersonInImage"_s }, u"XMP-iptcExt:PersonInImage"_s, false, u"Names of people shown"_s, false },
        { u"event"_s, u"Event"_s, FieldKind::text, FieldSection::additional, { u"XMP-iptcExt:Event"_s },
            { u"XMP:Event"_s }, u"XMP-iptcExt:Event"_s, false, u"Group photos by event"_s, false },
        { u"state"_s, u"State / Province"_s, FieldKind::text, FieldSection::location,
            { u"XMP-photoshop:State"_s, u"IPTC:Province-State"_s }, { u"XMP:State"_s, u"IPTC:Province-State"_s },
            u"IPTC:Province-State · XMP-photoshop:State"_s, false, u"State or province"_s, false },
        { u"country"_s, u"Country"_s, FieldKind::text, FieldSection::location,
            { u"XMP-photoshop:Country"_s, u"IPTC:Country-PrimaryLocationName"_s },
            { u"XMP:Country"_s, u"IPTC:Country-PrimaryLocationName"_s },
            u"IPTC:Country-PrimaryLocationName · XMP-photoshop:Country"_s, false, u"Country name"_s, false },
        { u"sublocation"_s, u"Sub-location"_s, FieldKind::text, FieldSection::location,
            { u"XMP-iptcCore:Location"_s, u"IPTC:Sub-location"_s }, { u"XMP:Location"_s, u"IPTC:Sub-location"_s },
            u"IPTC:Sub-location · XMP-iptcCore:Location"_s, false, u"Neighborhood / venue"_s, false },
        { u"label"_s, u"Label"_s, FieldKind::text, FieldSection::additional, { u"XMP:Label"_s }, { u"XMP:Label"_s },
            u"XMP:Label"_s, false, u"Colour / text label"_s, false },
        { u"captionWriter"_s, u"Caption writer"_s, FieldKind::text, FieldSection::additional,
            { u"XMP-photoshop:CaptionWriter"_s, u"IPTC:Writer-Editor"_s },
            { u"XMP:CaptionWriter"_s, u"IPTC:Writer-Editor"_s }, u"IPTC:Writer-Editor · XMP-photoshop:CaptionWriter"_s,
            false, u"Who wrote the caption"_s, false },
        { u"category"_s, u"Category"_s, FieldKind::text, FieldSection::additional, { u"IPTC:Category"_s },
            { u"IPTC:Category"_s }, u"IPTC:Category"_s, false, u"Subject category"_s, false },
        { u"credit"_s, u"Credit"_s, FieldKind::text, FieldSection::additional,
            { u"XMP-photoshop:Credit"_s, u"IPTC:Credit"_s }, { u"XMP:Credit"_s, u"IPTC:Credit"_s },
            u"IPTC:Credit · XMP-photoshop:Credit"_s, false, u"Credit line"_s, false },
        { u"genre"_s, u"Genre"_s, FieldKind::text, FieldSection::additional, { u"XMP-iptcCore:IntellectualGenre"_s },
            { u"XMP:IntellectualGenre"_s }, u"XMP-iptcCore:IntellectualGenre"_s, false, u"Intellectual genre"_s,
            false },
        { u"instructions"_s, u"Instructions"_s, FieldKind::text, FieldSection::additional,
            { u"XMP-photoshop:Instructions"_s, u"IPTC:SpecialInstructions"_s },
            { u"XMP:Instructions"_s, u"IPTC:SpecialInstructions"_s },
            u"IPTC:SpecialInstructions · XMP-photoshop:Instructions"_s, false, u"Editorial instructions"_s, false },
        { u"jobId"_s, u"Job ID"_s, FieldKind::text, FieldSection::additional,
            { u"XMP-photoshop:TransmissionReference"_s, u"IPTC:OriginalTransmissionReference"_s },
            { u"XMP:TransmissionReference"_s, u"IPTC:OriginalTransmissionReference"_s },
            u"IPTC:OriginalTransmissionReference"_s, false, u"Job / transmission reference"_s, false },
        { u"scene"_s, u"Scene"_s, FieldKind::text, FieldSection::additional, { u"XMP-iptcCore:Scene"_s },
            { u"XMP:Scene"_s }, u"XMP-iptcCore:Scene"_s, false, u"IPTC scene code"_s, false, false, false, u"scene"_s },
        { u"software"_s, u"Software"_s, FieldKind::text, FieldSection::additional,
            { u"XMP-xmp:CreatorTool"_s, u"EXIF:Software"_s }, { u"XMP:CreatorTool"_s, u"EXIF:Software"_s },
            u"EXIF:Software · XMP-xmp:CreatorTool"_s, false, u"Editing software"_s, false },
        { u"source"_s, u"Source"_s, FieldKind::text, FieldSection::additional,
            { u"XMP-photoshop:Source"_s, u"IPTC:Source"_s }, { u"XMP:Source"_s, u"IPTC:Source"_s },
            u"IPTC:Source · XMP-photoshop:Source"_s, false, u"Original source"_s, false },
        { u"urgency"_s, u"Urgency"_s, FieldKind::text, FieldSection::additional,
            { u"XMP-photoshop:Urgency"_s, u"IPTC:Urgency"_s }, { u"XMP:Urgency"_s, u"IPTC:Urgency"_s },
            u"IPTC:Urgency · XMP-photoshop:Urgency"_s, false, u"Editorial urgency (1–8)"_s, false },
        { u"usageTerms"_s, u"Usage terms"_s, FieldKind::text, FieldSection::additional,
            { u"XMP-xmpRights:UsageTerms"_s }, { u"XMP:UsageTerms"_s }, u"XMP-xmpRights:UsageTerms"_s, false,
            u"Rights usage terms"_s, false },
        { u"webStatement"_s, u"Web statement"_s, FieldKind::text, FieldSection::additional,
            { u"XMP-xmpRights:WebStatement"_s }, { u"XMP:WebStatement"_s }, u"XMP-xmpRights:WebStatement"_s, false,
            u"Rights URL"_s, false },
        { u"dateDigitized"_s, u"Date digitized"_s, FieldKind::date, FieldSection::additional,
            { u"EXIF:CreateDate"_s, u"XMP-xmp:CreateDate"_s }, { u"EXIF:CreateDate"_s, u"XMP:CreateDate"_s },
            u"EXIF:CreateDate (DateTimeDigitized) · XMP:CreateDate"_s, false,
            u"When the image was digitized / scanned"_s, true },
        { u"offsetOriginal"_s, u"TZ offset (taken)"_s, FieldKind::offset, FieldSection::additional,
            { u"EXIF:OffsetTimeOriginal"_s }, { u"EXIF:OffsetTimeOriginal"_s }, u"EXIF:OffsetTimeOriginal"_s, false,
            u"Timezone offset for date taken"_s, true },
        { u"offsetDigitized"_s, u"TZ offset (digitized)"_s, FieldKind::offset, FieldSection::additional,
            { u"EXIF:OffsetTimeDigitized"_s }, { u"EXIF:OffsetTimeDigitized"_s }, u"EXIF:OffsetTimeDigitized"_s, false,
            u"Timezone offset for date digitized"_s, true },
    };
    return fields;
}

const QList<FieldSpec>& everyField()
{
    static const QList<FieldSpec> fields = all() + IptcSchema::all();
    return fields;
}

const FieldSpec* spec(const QString& id)
{
    if (IptcSchema::isId(id))
        return IptcSchema::spec(id);
    const QList<FieldSpec>& fields = all();
    const auto it =
        std::find_if(fields.cbegin(), fields.cend(), [&id](const FieldSpec& field) { return field.id == id; });
    return it == fields.cend() ? nullptr : &*it;
}

const FieldSpec* readFrom(const QString& tagName)
{
    for (const FieldSpec& field : all())
        for (const QString& tag : field.readTags)
            if (QStringView(tag).sliced(tag.indexOf(u':') + 1).compare(tagName, Qt::CaseInsensitive) == 0)
                return &field;
    return nullptr;
}

QList<FieldSpec> defaultFields()
{
    return fieldsShownAlways(true);
}

QList<FieldSpec> addableFields()
{
    return fieldsShownAlways(false);
}

QStringList readTags()
{
    QStringList tags;
    for (const FieldSpec& field : all())
        tags += field.readTags;
    return sortedWithoutDuplicates(tags);
}

const QList<CameraRowSpec>& cameraRows()
{
    static const QList<CameraRowSpec> rows{
        { u"Camera"_s, { u"EXIF:Model"_s } },
        { u"Make"_s, { u"EXIF:Make"_s } },
        { u"Lens"_s, { u"EXIF:LensModel"_s, u"Composite:LensID"_s, u"EXIF:LensInfo"_s } },
        { u"ISO"_s, { u"EXIF:ISO"_s } },
        { u"Shutter"_s, { u"Composite:ShutterSpeed"_s, u"EXIF:ExposureTime"_s } },
        { u"Aperture"_s, { u"Composite:Aperture"_s, u"EXIF:FNumber"_s } },
        { u"Focal length"_s, { u"EXIF:FocalLength"_s } },
        { u"Color space"_s, { u"EXIF:ColorSpace"_s } },
    };
    return rows;
}

QStringList cameraReadTags()
{
    QStringList tags;
    for (const CameraRowSpec& row : cameraRows())
        tags += row.tags;
    return sortedWithoutDuplicates(tags);
}

const QStringList& timeZoneOffsets()
{
    static const QStringList offsets = u"-12:00 -11:00 -10:00 -09:30 -09:00 -08:00 -07:00 -06:00 -05:00 -04:00 -03:30 "
                                       "-03:00 -02:00 -01:00 +00:00 +01:00 +02:00 +03:00 +03:30 +04:00 +04:30 +05:00 "
                                       "+05:30 +05:45 +06:00 +06:30 +07:00 +08:00 +08:45 +09:00 +09:30 +10:00 +10:30 "
                                       "+11:00 +12:00 +12:45 +13:00 +14:00"_s.split(u' ');
    return offsets;
}

}  // namespace Quorbel::FieldSchema
