#include "core/details/FieldHomes.h"

#include "core/schema/FieldSchema.h"
#include "core/text/Text.h"
#include "core/tool/MetadataWriter.h"

#include <cmath>

namespace Quorbel::FieldHomes {

using namespace Qt::StringLiterals;

namespace {

// Where other programs look for a field's date as well: in one tag, or in one for the day and one for the time.
struct Companion {
    QString field{};
    QString tag{};
    QString timeTag{};
};

const QList<Companion>& companions()
{
    static const QList<Companion> all{
        { u"date"_s, u"IPTC:DateCreated"_s, u"IPTC:TimeCreated"_s },
        { u"date"_s, u"XMP-exif:DateTimeOriginal"_s, {} },
        { u"dateDigitized"_s, u"IPTC:DigitalCreationDate"_s, u"IPTC:DigitalCreationTime"_s },
        { u"dateDigitized"_s, u"XMP-exif:DateTimeDigitized"_s, {} },
    };
    return all;
}

QString encodingTag()
{
    return u"IPTC:CodedCharacterSet"_s;
}

QString nameIn(const QString& tag)
{
    return tag.sliced(tag.indexOf(u':') + 1);
}

QString groupIn(const QString& tag)
{
    return tag.first(tag.indexOf(u':'));
}

// A structure's name, or all that it says.
QString textOf(const JSONObject& structure)
{
    if (const auto name = structure.value(u"Name"_s).stringValue(); name && !name->isEmpty())
        return *name;
    QStringList texts;
    for (const JSONValue& member : structure)
        if (const auto text = member.stringValue(); text && !text->isEmpty())
            texts.append(*text);
    return texts.join(u", "_s);
}

QStringList structureTexts(const JSONValue& value)
{
    if (const auto* object = std::get_if<JSONValue::Object>(&value.payload))
        return { textOf(*object->members) };
    QStringList texts;
    if (const auto* array = std::get_if<JSONValue::Array>(&value.payload))
        for (const JSONValue& element : *array->elements)
            if (const auto* object = std::get_if<JSONValue::Object>(&element.payload))
                texts.append(textOf(*object->members));
    return texts;
}

// The homes of one photo.
class Collector {
public:
    Collector(const FieldSpec& field, const JSONObject& tags)
        : m_field(field)
        , m_tags(tags)
    {
    }

    QList<Home> homes()
    {
        if (m_field.kind == FieldKind::coordinates) {
            addPositions();
            return m_homes;
        }
        for (const QString& tag : m_field.writeTags)
            addOwn(tag);
        for (const Companion& companion : companions())
            if (companion.field == m_field.id)
                addCompanion(companion);
        for (const QString& tag : m_field.readTags)
            if (groupIn(tag) == u"XMP")
                addForeign(nameIn(tag));
        return m_homes;
    }

private:
    void add(const QString& tag, const QStringList& items, const QString& readGroup)
    {
        const bool declaresEncoding = !tag.startsWith(u"IPTC:"_s) || m_tags.contains(encodingTag());
        m_homes.append(
            { .held = { .tag = tag, .items = items, .declaresEncoding = declaresEncoding }, .readGroup = readGroup });
    }

    void addOwn(const QString& written)
    {
        const QString name = nameIn(written);
        if (groupIn(written) == u"EXIF") {
            // A camera's pictures within the picture have directories of their own.
            for (const QString& place : { u"ExifIFD:"_s, u"IFD0:"_s })
                if (const auto found = m_tags.constFind(place + name); found != m_tags.cend())
                    add(written, found->stringArray(), u"EXIF"_s);
            return;
        }
        // A tag that names no namespace is written to XMP's own.
        const QString tag = groupIn(written) == u"XMP" ? u"XMP-xmp:"_s + name : written;
        m_own.append(tag);
        if (const auto found = m_tags.constFind(tag); found != m_tags.cend())
            add(tag, found->stringArray(), groupIn(tag).section(u'-', 0, 0));
    }

    void addCompanion(const Companion& companion)
    {
        const QStringList day = m_tags.value(companion.tag).stringArray();
        const QStringList time = m_tags.value(companion.timeTag).stringArray();
        if (!day.isEmpty())
            add(companion.tag, { time.isEmpty() ? day.constFirst() : day.constFirst() + u' ' + time.constFirst() }, {});
    }

    void addForeign(const QString& name)
    {
        const QString ending = u':' + name;
        for (auto it = m_tags.lowerBound(u"XMP-"_s); it != m_tags.cend() && it.key().startsWith(u"XMP-"_s); ++it) {
            if (!it.key().endsWith(ending) || m_own.contains(it.key())
                || it.key().startsWith(MetadataWriter::customNamespacePrefix() + u':'))
                continue;
            const QStringList structures = structureTexts(*it);
            add(it.key(), structures.isEmpty() ? it->stringArray() : structures, u"XMP"_s);
            m_homes.last().isForeign = true;
            m_homes.last().isStructure = !structures.isEmpty();
        }
    }

    // The group's own numbers have signs; EXIF's have letters beside them.
    void addPosition(const QString& group, const QString& shownAs)
    {
        const auto degrees = [&](const QString& name, QChar negative) -> std::optional<double> {
            const QString tag = group + name;
            const auto number = Text::parseDouble(m_tags.value(tag).stringValue().value_or(QString()));
            const QString reference = m_tags.value(tag + u"Ref"_s).stringValue().value_or(QString());
            return number && reference.startsWith(negative, Qt::CaseInsensitive) ? -std::abs(*number) : number;
        };
        const auto latitude = degrees(u"GPSLatitude"_s, u'S');
        const auto longitude = degrees(u"GPSLongitude"_s, u'W');
        if (latitude && longitude)
            add(shownAs, { QString::number(*latitude, 'f', 9) + u", "_s + QString::number(*longitude, 'f', 9) },
                u"Composite"_s);
    }

    void addPositions()
    {
        addPosition(u"GPS:"_s, u"EXIF:GPSLatitude · GPSLongitude"_s);
        addPosition(u"XMP-exif:"_s, u"XMP-exif:GPSLatitude · GPSLongitude"_s);
        const QString name = u"GPSLatitude"_s;
        for (auto it = m_tags.lowerBound(u"XMP-"_s); it != m_tags.cend() && it.key().startsWith(u"XMP-"_s); ++it) {
            const qsizetype before = m_homes.size();
            if (const QString group = groupIn(it.key()) + u':'; nameIn(it.key()) == name && group != u"XMP-exif:")
                addPosition(group, group + u"GPSLatitude · GPSLongitude"_s);
            if (m_homes.size() > before)
                m_homes.last().isForeign = true;
        }
    }

    const FieldSpec& m_field;
    const JSONObject& m_tags;
    QStringList m_own;  // XMP and IPTC tags
    QList<Home> m_homes;
};

}  // namespace

QStringList readTags()
{
    QStringList tags = FieldSchema::readTags();
    tags.removeIf([](const QString& tag) { return tag.startsWith(u"Composite:"_s); });
    for (const Companion& companion : companions())
        tags << companion.tag << companion.timeTag;
    for (const QString& group : { u"EXIF:"_s, u"XMP:"_s })
        tags << group + u"GPSLatitude"_s << group + u"GPSLongitude"_s;
    tags << u"EXIF:GPSLatitudeRef"_s << u"EXIF:GPSLongitudeRef"_s << encodingTag();
    tags.removeAll(QString());
    return tags;
}

QList<Home> of(const FieldSpec& field, const JSONObject& tags)
{
    return Collector(field, tags).homes();
}

}  // namespace Quorbel::FieldHomes
