#include "app/model/library/cache/RecordCode.h"

#include "app/model/library/cache/Packing.h"
#include "core/schema/FieldSchema.h"
#include "core/sidecar/SidecarSchema.h"

#include <QCryptographicHash>
#include <QtEndian>

namespace Quorbel::RecordCode {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype sealSize = 16;

const Names& fieldIDs()
{
    static const Names ids([] {
        QStringList all;
        for (const FieldSpec& field : FieldSchema::all())
            all.append(field.id);
        return all;
    }());
    return ids;
}

const Names& cameraLabels()
{
    static const Names labels([] {
        QStringList all;
        for (const FieldSchema::CameraRowSpec& row : FieldSchema::cameraRows())
            all.append(row.label);
        return all;
    }());
    return labels;
}

void unpackFields(Unpacker& from, ImageRecord& record)
{
    for (qsizetype left = from.count(); left > 0; --left) {
        const QString id = from.name(fieldIDs());
        record.values.insert(record.values.cend(), id, from.text());
    }
    for (qsizetype left = from.count(); left > 0; --left) {
        QStringList& items = record.lists[from.name(fieldIDs())];
        for (qsizetype more = from.count(); more > 0; --more)
            items.append(from.text());
    }
}

std::optional<ImageRecord> decoded(QByteArrayView bytes)
{
    Unpacker from(bytes);
    ImageRecord record;
    record.fileType = from.text();
    record.pixelWidth = from.optionalNumber<int>();
    record.pixelHeight = from.optionalNumber<int>();
    record.fileSize = from.optionalNumber<qint64>();
    unpackFields(from, record);
    for (qsizetype left = from.count(); left > 0; --left) {
        const QString name = from.text();
        record.custom.append({ name, from.text() });
    }
    for (qsizetype left = from.count(); left > 0; --left) {
        const QString label = from.name(cameraLabels());
        record.camera.append({ label, from.text() });
    }
    return from.isGood() ? std::optional(std::move(record)) : std::nullopt;
}

// How a sidecar's values come over its photo's: to be raised whenever that is done otherwise.
constexpr int sidecarMeaning = 2;

// Of a photo without a sidecar nothing: it counts as it always did.
QByteArray stampOf(const PhotoFile::Sidecar& sidecar)
{
    if (sidecar.name.isEmpty())
        return {};
    static const QByteArray tags = SidecarSchema::readTags().join(u' ').toUtf8();
    return QByteArrayList{ "sidecar", QByteArray::number(sidecarMeaning), tags, sidecar.name.toUtf8(),
        QByteArray::number(sidecar.inode), QByteArray::number(sidecar.size), QByteArray::number(sidecar.modified),
        QByteArray::number(sidecar.changed) }
        .join('\0');
}

QByteArray seal(QByteArrayView content, const PhotoFile& file, const QByteArray& reader)
{
    const QByteArray path = file.url.toLocalFile().toUtf8();
    QByteArray stamp(6 * qsizetype(sizeof(quint64)), '\0');
    qToLittleEndian(file.device, stamp.data());
    qToLittleEndian(file.inode, stamp.data() + 8);
    qToLittleEndian(file.size, stamp.data() + 16);
    qToLittleEndian(file.modified, stamp.data() + 24);
    qToLittleEndian(file.changed, stamp.data() + 32);
    qToLittleEndian(qint64(path.size()), stamp.data() + 40);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(stamp);
    hash.addData(path);
    hash.addData(stampOf(file.sidecar));
    hash.addData(reader);
    hash.addData(content);
    return hash.result().first(sealSize);
}

}  // namespace

QByteArray encoded(const ImageRecord& record)
{
    if (record.isUnread)
        return {};
    Packer to;
    to.text(record.fileType);
    to.optionalNumber(record.pixelWidth);
    to.optionalNumber(record.pixelHeight);
    to.optionalNumber(record.fileSize);
    to.number(quint64(record.values.size()));
    for (auto value = record.values.cbegin(); value != record.values.cend(); ++value) {
        to.name(fieldIDs(), value.key());
        to.text(*value);
    }
    to.number(quint64(record.lists.size()));
    for (auto list = record.lists.cbegin(); list != record.lists.cend(); ++list) {
        to.name(fieldIDs(), list.key());
        to.number(quint64(list->size()));
        for (const QString& item : *list)
            to.text(item);
    }
    to.number(quint64(record.custom.size()));
    for (const CustomValue& custom : record.custom) {
        to.text(custom.name);
        to.text(custom.value);
    }
    to.number(quint64(record.camera.size()));
    for (const CameraRow& row : record.camera) {
        to.name(cameraLabels(), row.label);
        to.text(row.value);
    }
    return to.bytes();
}

QByteArray sealed(const QByteArray& encoded, const PhotoFile& file, const QByteArray& reader)
{
    return seal(encoded, file, reader) + encoded;
}

std::optional<QByteArrayView> unsealed(const QByteArray& sealed, const PhotoFile& file, const QByteArray& reader)
{
    if (sealed.size() < sealSize)
        return std::nullopt;
    const QByteArrayView content = QByteArrayView(sealed).sliced(sealSize);
    if (seal(content, file, reader) != QByteArrayView(sealed).first(sealSize))
        return std::nullopt;
    return content;
}

std::optional<ImageRecord> opened(const QByteArray& sealed, const PhotoFile& file, const QByteArray& reader)
{
    const std::optional<QByteArrayView> content = unsealed(sealed, file, reader);
    std::optional<ImageRecord> record = content ? decoded(*content) : std::nullopt;
    if (!record)
        return std::nullopt;
    record->url = file.url;
    record->fileName = file.url.fileName();
    record->creationDate = file.creationDate();
    record->contentModificationDate = file.modificationDate();
    record->sidecarName = file.sidecar.name;
    record->sidecarModificationDate = file.sidecar.modificationDate();
    return record;
}

QByteArray schemaFingerprint()
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    const auto add = [&hash](const QStringList& texts) {
        for (const QString& text : texts)
            hash.addData(text.toUtf8() + '\n');
        hash.addData("\n");
    };
    for (const FieldSpec& field : FieldSchema::all()) {
        add({ field.id, QString::number(int(field.kind)) });
        add(field.readTags);
    }
    for (const FieldSchema::CameraRowSpec& row : FieldSchema::cameraRows()) {
        add({ row.label });
        add(row.tags);
    }
    return hash.result();
}

}  // namespace Quorbel::RecordCode
