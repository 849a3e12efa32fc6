#include "core/tool/MetadataReader.h"

#include "core/schema/FieldSchema.h"
#include "core/sidecar/SidecarSchema.h"
#include "core/text/Coordinates.h"
#include "core/text/StoredTime.h"
#include "core/text/Text.h"
#include "core/text/WallClock.h"
#include "core/tool/MetadataWriter.h"

#include <QFileInfo>

#include <algorithm>
#include <limits>

namespace Quorbel::MetadataReader {

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> text(const JSONObject& object, const QString& key)
{
    const auto found = object.constFind(key);
    return found == object.cend() ? std::nullopt : found->stringValue();
}

std::optional<qint64> integer(const JSONObject& object, const QString& key)
{
    const auto digits = text(object, key);
    return digits ? Text::parseInteger(*digits) : std::nullopt;
}

std::optional<int> dimension(const JSONObject& object, const QString& key)
{
    const auto pixels = integer(object, key);
    if (!pixels || *pixels < std::numeric_limits<int>::min() || *pixels > std::numeric_limits<int>::max())
        return std::nullopt;
    return static_cast<int>(*pixels);
}

// The display text of a scalar field; nothing for a value that the field cannot show.
std::optional<QString> displayText(FieldKind kind, const JSONValue& value)
{
    const auto raw = value.stringValue();
    if (!raw || raw->isEmpty())
        return std::nullopt;
    if (kind == FieldKind::coordinates) {
        const auto point = Coordinates::parse(*raw);
        return point ? std::optional(Coordinates::displayString(*point)) : std::nullopt;
    }
    return kind == FieldKind::date ? MetadataWriter::displayDate(*raw) : *raw;
}

// The first tag that the file has decides, even when its value turns out to be unusable: a field that was
// emptied in its preferred tag is empty, whatever older copies say.
const JSONValue* decidingValue(const FieldSpec& field, const JSONObject& main)
{
    for (const auto& tag : field.readTags) {
        const auto found = main.constFind(tag);
        if (found != main.cend())
            return &*found;
    }
    return nullptr;
}

void readField(ImageRecord& record, const FieldSpec& field, const JSONValue& value)
{
    if (field.isList()) {
        if (const auto items = value.stringArray(); !items.isEmpty())
            record.lists.insert(field.id, items);
    } else if (const auto shown = displayText(field.kind, value)) {
        record.values.insert(field.id, *shown);
    }
}

void readFields(ImageRecord& record, const JSONObject& main)
{
    for (const auto& field : FieldSchema::all())
        if (const JSONValue* value = decidingValue(field, main))
            readField(record, field, *value);
}

// Of an enumeration the tool shows a text without characters so.
bool isEmptied(const JSONValue& value)
{
    const QStringList items = value.stringArray();
    return std::all_of(
        items.cbegin(), items.cend(), [](const QString& item) { return item.isEmpty() || item == u"Unknown ()"; });
}

QString cameraName(const JSONObject& main)
{
    QStringList parts{ text(main, u"EXIF:Make"_s).value_or(QString()),
        text(main, u"EXIF:Model"_s).value_or(QString()) };
    parts.removeAll(QString());
    return parts.join(u' ');
}

QList<CameraRow> cameraRows(const JSONObject& main)
{
    // Make and model share the first row.
    const QString camera = u"Camera"_s;
    QList<CameraRow> rows;
    if (const QString name = cameraName(main); !name.isEmpty())
        rows.append({ camera, name });
    for (const auto& spec : FieldSchema::cameraRows()) {
        if (spec.label == camera || spec.label == QLatin1String("Make"))
            continue;
        for (const auto& tag : spec.tags) {
            if (const auto value = text(main, tag); value && !value->isEmpty()) {
                rows.append({ spec.label, *value });
                break;
            }
        }
    }
    return rows;
}

QList<CustomValue> customValues(const JSONObject& custom)
{
    const QString prefix = MetadataWriter::customNamespacePrefix() + u':';
    QList<CustomValue> values;
    for (auto it = custom.cbegin(); it != custom.cend(); ++it) {  // a map: ascending by key
        if (!it.key().startsWith(prefix))
            continue;
        if (const auto value = it.value().stringValue())
            values.append({ it.key().mid(prefix.size()), *value });
    }
    return values;
}

}  // namespace

QStringList readTags()
{
    return FieldSchema::readTags() + QStringList{ u"FileType"_s, u"ImageWidth"_s, u"ImageHeight"_s, u"FileSize#"_s }
    + FieldSchema::cameraReadTags();
}

ImageRecord parse(const QUrl& url, const JSONObject& main, const JSONObject& custom)
{
    const QFileInfo file(url.toLocalFile());
    ImageRecord record;
    record.url = url;
    record.fileName = file.fileName();
    record.fileType = text(main, u"File:FileType"_s).value_or(file.suffix().toUpper());
    record.pixelWidth = dimension(main, u"File:ImageWidth"_s);
    record.pixelHeight = dimension(main, u"File:ImageHeight"_s);
    record.fileSize = integer(main, u"File:FileSize"_s);
    readFields(record, main);
    record.camera = cameraRows(main);
    record.custom = customValues(custom);
    return record;
}

QString shownBeside(const QString& date)
{
    const auto time = StoredTime::from(Text::trimmed(date));
    return time ? WallClock::shown(time->clock) : MetadataWriter::displayDate(date);
}

void overlay(ImageRecord& record, const JSONObject& main, const JSONObject& custom)
{
    for (const auto& one : FieldSchema::all()) {
        const FieldSpec& field = *SidecarSchema::spec(one.id);
        const JSONValue* value = decidingValue(field, main);
        if (!value)
            continue;
        record.values.remove(field.id);
        record.lists.remove(field.id);
        if (isEmptied(*value))
            continue;
        readField(record, field, *value);
        if (field.kind == FieldKind::date && record.values.contains(field.id))
            record.values[field.id] = shownBeside(record.values[field.id]);
    }
    for (const CustomValue& value : customValues(custom)) {
        record.custom.removeIf(
            [&value](const CustomValue& other) { return other.name.compare(value.name, Qt::CaseInsensitive) == 0; });
        if (!value.value.isEmpty())
            record.custom.append(value);
    }
    std::sort(record.custom.begin(), record.custom.end(),
        [](const CustomValue& a, const CustomValue& b) { return a.name < b.name; });
}

}  // namespace Quorbel::MetadataReader
