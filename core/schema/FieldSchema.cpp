#include "core/schema/FieldSchema.h"

#include "core/iptc/IptcSchema.h"
#include "core/language/Texts.h"

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
        { u"title"_s, Texts::mark("Title"), FieldKind::text, FieldSection::common,
            { u"XMP-dc:Title"_s, u"IPTC:ObjectName"_s }, { u"XMP:Title"_s, u"IPTC:ObjectName"_s },
            u"XMP-dc:title · IPTC:ObjectName"_s, true, Texts::mark("Shown as the photo's name / heading"), false },
        { u"description"_s, Texts::mark("Description"), FieldKind::multiline, FieldSection::common,
            { u"XMP-dc:Description"_s, u"IPTC:Caption-Abstract"_s, u"EXIF:ImageDescription"_s },
            { u"XMP:Description"_s, u"IPTC:Caption-Abstract"_s, u"EXIF:ImageDescription"_s },
            u"IPTC:Caption-Abstract · XMP-dc:description · EXIF:ImageDescription"_s, true,
            Texts::mark("Searchable caption everywhere"), false },
        { u"date"_s, Texts::mark("Date taken"), FieldKind::date, FieldSection::common,
            { u"EXIF:DateTimeOriginal"_s, u"XMP-photoshop:DateCreated"_s },
            { u"EXIF:DateTimeOriginal"_s, u"XMP:DateCreated"_s }, u"EXIF:DateTimeOriginal · XMP:DateCreated"_s, true,
            Texts::mark("Sorts your library by date in every app"), false },
        { u"keywords"_s, Texts::mark("Keywords"), FieldKind::keywords, FieldSection::common,
            { u"IPTC:Keywords"_s, u"XMP-dc:Subject"_s }, { u"IPTC:Keywords"_s, u"XMP:Subject"_s },
            u"IPTC:Keywords · XMP-dc:subject"_s, true, Texts::mark("Filter & group by tag"), false },
        { u"creator"_s, Texts::mark("Creator"), FieldKind::text, FieldSection::common,
            { u"XMP-dc:Creator"_s, u"IPTC:By-line"_s, u"EXIF:Artist"_s },
            { u"XMP:Creator"_s, u"IPTC:By-line"_s, u"EXIF:Artist"_s }, u"IPTC:By-line · XMP-dc:creator · EXIF:Artist"_s,
            true, Texts::mark("Who made the photo"), false },
        { u"copyright"_s, Texts::mark("Copyright"), FieldKind::text, FieldSection::common,
            { u"XMP-dc:Rights"_s, u"IPTC:CopyrightNotice"_s, u"EXIF:Copyright"_s },
            { u"XMP:Rights"_s, u"IPTC:CopyrightNotice"_s, u"EXIF:Copyright"_s },
            u"IPTC:CopyrightNotice · XMP-dc:rights · EXIF:Copyright"_s, true, Texts::mark("Rights / copyright notice"),
            false },
        { u"place"_s, Texts::mark("Place"), FieldKind::text, FieldSection::location,
            { u"XMP-photoshop:City"_s, u"IPTC:City"_s }, { u"XMP:City"_s, u"IPTC:City"_s },
            u"IPTC:City · XMP:photoshop:City"_s, true, Texts::mark("Pins on the map; sorts by place"), false },
        { u"coords"_s, Texts::mark("Coordinates"), FieldKind::coordinates, FieldSection::location, {},
            { u"Composite:GPSPosition"_s }, u"EXIF:GPSLatitude · EXIF:GPSLongitude"_s, true,
            Texts::mark("GPS latitude / longitude"), false },
        { u"rating"_s, Texts::mark("Rating"), FieldKind::rating, FieldSection::additional, { u"XMP:Rating"_s },
            { u"XMP:Rating"_s }, u"XMP:Rating"_s, false, Texts::mark("★ 1–5, read by most libraries"), false },
        { u"headline"_s, Texts::mark("Headline"), FieldKind::text, FieldSection::additional,
            { u"XMP-photoshop:Headline"_s, u"IPTC:Headline"_s }, { u"XMP:Headline"_s, u"IPTC:Headline"_s },
            u"IPTC:Headline · XMP-photoshop:Headline"_s, false, Texts::mark("Short title shown in galleries"), false },
        { u"people"_s, Texts::mark("People"), FieldKind::keywords, FieldSection::additional,
            { u"XMP-iptcExt:PersonInImage"_s }, { u"XMP:PersonInImage"_s }, u"XMP-iptcExt:PersonInImage"_s, false,
            Texts::mark("Names of people shown"), false },
        { u"event"_s, Texts::mark("Event"), FieldKind::text, FieldSection::additional, { u"XMP-iptcExt:Event"_s },
            { u"XMP:Event"_s }, u"XMP-iptcExt:Event"_s, false, Texts::mark("Group photos by event"), false },
        { u"state"_s, Texts::mark("State / Province"), FieldKind::text, FieldSection::location,
            { u"XMP-photoshop:State"_s, u"IPTC:Province-State"_s }, { u"XMP:State"_s, u"IPTC:Province-State"_s },
            u"IPTC:Province-State · XMP-photoshop:State"_s, false, Texts::mark("State or province"), false },
        { u"country"_s, Texts::mark("Country"), FieldKind::text, FieldSection::location,
            { u"XMP-photoshop:Country"_s, u"IPTC:Country-PrimaryLocationName"_s },
            { u"XMP:Country"_s, u"IPTC:Country-PrimaryLocationName"_s },
            u"IPTC:Country-PrimaryLocationName · XMP-photoshop:Country"_s, false, Texts::mark("Country name"), false },
        { u"sublocation"_s, Texts::mark("Sub-location"), FieldKind::text, FieldSection::location,
            { u"XMP-iptcCore:Location"_s, u"IPTC:Sub-location"_s }, { u"XMP:Location"_s, u"IPTC:Sub-location"_s },
            u"IPTC:Sub-location · XMP-iptcCore:Location"_s, false, Texts::mark("Neighborhood / venue"), false },
        { u"label"_s, Texts::mark("Label"), FieldKind::text, FieldSection::additional, { u"XMP:Label"_s },
            { u"XMP:Label"_s }, u"XMP:Label"_s, false, Texts::mark("Colour / text label"), false },
        { u"captionWriter"_s, Texts::mark("Caption writer"), FieldKind::text, FieldSection::additional,
            { u"XMP-photoshop:CaptionWriter"_s, u"IPTC:Writer-Editor"_s },
            { u"XMP:CaptionWriter"_s, u"IPTC:Writer-Editor"_s }, u"IPTC:Writer-Editor · XMP-photoshop:CaptionWriter"_s,
            false, Texts::mark("Who wrote the caption"), false },
        { u"category"_s, Texts::mark("Category"), FieldKind::text, FieldSection::additional, { u"IPTC:Category"_s },
            { u"IPTC:Category"_s }, u"IPTC:Category"_s, false, Texts::mark("Subject category"), false },
        { u"credit"_s, Texts::mark("Credit"), FieldKind::text, FieldSection::additional,
            { u"XMP-photoshop:Credit"_s, u"IPTC:Credit"_s }, { u"XMP:Credit"_s, u"IPTC:Credit"_s },
            u"IPTC:Credit · XMP-photoshop:Credit"_s, false, Texts::mark("Credit line"), false },
        { u"genre"_s, Texts::mark("Genre"), FieldKind::text, FieldSection::additional,
            { u"XMP-iptcCore:IntellectualGenre"_s }, { u"XMP:IntellectualGenre"_s },
            u"XMP-iptcCore:IntellectualGenre"_s, false, Texts::mark("Intellectual genre"), false },
        { u"instructions"_s, Texts::mark("Instructions"), FieldKind::text, FieldSection::additional,
            { u"XMP-photoshop:Instructions"_s, u"IPTC:SpecialInstructions"_s },
            { u"XMP:Instructions"_s, u"IPTC:SpecialInstructions"_s },
            u"IPTC:SpecialInstructions · XMP-photoshop:Instructions"_s, false, Texts::mark("Editorial instructions"),
            false },
        { u"jobId"_s, Texts::mark("Job ID"), FieldKind::text, FieldSection::additional,
            { u"XMP-photoshop:TransmissionReference"_s, u"IPTC:OriginalTransmissionReference"_s },
            { u"XMP:TransmissionReference"_s, u"IPTC:OriginalTransmissionReference"_s },
            u"IPTC:OriginalTransmissionReference"_s, false, Texts::mark("Job / transmission reference"), false },
        { u"scene"_s, Texts::mark("Scene"), FieldKind::text, FieldSection::additional, { u"XMP-iptcCore:Scene"_s },
            { u"XMP:Scene"_s }, u"XMP-iptcCore:Scene"_s, false, Texts::mark("IPTC scene code"), false, false, false,
            u"scene"_s },
        { u"software"_s, Texts::mark("Software"), FieldKind::text, FieldSection::additional,
            { u"XMP-xmp:CreatorTool"_s, u"EXIF:Software"_s }, { u"XMP:CreatorTool"_s, u"EXIF:Software"_s },
            u"EXIF:Software · XMP-xmp:CreatorTool"_s, false, Texts::mark("Editing software"), false },
        { u"source"_s, Texts::mark("Source"), FieldKind::text, FieldSection::additional,
            { u"XMP-photoshop:Source"_s, u"IPTC:Source"_s }, { u"XMP:Source"_s, u"IPTC:Source"_s },
            u"IPTC:Source · XMP-photoshop:Source"_s, false, Texts::mark("Original source"), false },
        { u"urgency"_s, Texts::mark("Urgency"), FieldKind::text, FieldSection::additional,
            { u"XMP-photoshop:Urgency"_s, u"IPTC:Urgency"_s }, { u"XMP:Urgency"_s, u"IPTC:Urgency"_s },
            u"IPTC:Urgency · XMP-photoshop:Urgency"_s, false, Texts::mark("Editorial urgency (1–8)"), false },
        { u"usageTerms"_s, Texts::mark("Usage terms"), FieldKind::text, FieldSection::additional,
            { u"XMP-xmpRights:UsageTerms"_s }, { u"XMP:UsageTerms"_s }, u"XMP-xmpRights:UsageTerms"_s, false,
            Texts::mark("Rights usage terms"), false },
        { u"webStatement"_s, Texts::mark("Web statement"), FieldKind::text, FieldSection::additional,
            { u"XMP-xmpRights:WebStatement"_s }, { u"XMP:WebStatement"_s }, u"XMP-xmpRights:WebStatement"_s, false,
            Texts::mark("Rights URL"), false },
        { u"dateDigitized"_s, Texts::mark("Date digitized"), FieldKind::date, FieldSection::additional,
            { u"EXIF:CreateDate"_s, u"XMP-xmp:CreateDate"_s }, { u"EXIF:CreateDate"_s, u"XMP:CreateDate"_s },
            u"EXIF:CreateDate (DateTimeDigitized) · XMP:CreateDate"_s, false,
            Texts::mark("When the image was digitized / scanned"), true },
        { u"offsetOriginal"_s, Texts::mark("TZ offset (taken)"), FieldKind::offset, FieldSection::additional,
            { u"EXIF:OffsetTimeOriginal"_s }, { u"EXIF:OffsetTimeOriginal"_s }, u"EXIF:OffsetTimeOriginal"_s, false,
            Texts::mark("Timezone offset for date taken"), true },
        { u"offsetDigitized"_s, Texts::mark("TZ offset (digitized)"), FieldKind::offset, FieldSection::additional,
            { u"EXIF:OffsetTimeDigitized"_s }, { u"EXIF:OffsetTimeDigitized"_s }, u"EXIF:OffsetTimeDigitized"_s, false,
            Texts::mark("Timezone offset for date digitized"), true },
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
        { Texts::mark("Camera"), { u"EXIF:Model"_s } },
        { Texts::mark("Make"), { u"EXIF:Make"_s } },
        { Texts::mark("Lens"), { u"EXIF:LensModel"_s, u"Composite:LensID"_s, u"EXIF:LensInfo"_s } },
        { Texts::mark("ISO"), { u"EXIF:ISO"_s } },
        { Texts::mark("Shutter"), { u"Composite:ShutterSpeed"_s, u"EXIF:ExposureTime"_s } },
        { Texts::mark("Aperture"), { u"Composite:Aperture"_s, u"EXIF:FNumber"_s } },
        { Texts::mark("Focal length"), { u"EXIF:FocalLength"_s } },
        { Texts::mark("Color space"), { u"EXIF:ColorSpace"_s } },
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
