#include "app/model/library/cache/RecordCode.h"

#include "core/schema/FieldSchema.h"

#include <QCryptographicHash>
#include <QHash>
#include <QtEndian>

#include <limits>

namespace Quorbel::RecordCode {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype sealSize = 16;

// Ids and labels stand as their positions in the schema.
struct Names {
    QStringList names;
    QHash<QString, quint64> positions;

    explicit Names(const QStringList& all)
        : names(all)
    {
        for (qsizetype i = 0; i < names.size(); ++i)
            positions.insert(names.at(i), quint64(i));
    }
};

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

class Packer {
public:
    void number(quint64 value)
    {
        for (; value > 0x7F; value >>= 7)
            m_bytes.append(char(value | 0x80));
        m_bytes.append(char(value));
    }

    // None is 0; the others alternate between positive and negative, so that small ones stay short.
    template <typename T>
    void optionalNumber(const std::optional<T>& value)
    {
        const qint64 given = value.value_or(0);
        const quint64 folded = quint64(given) << 1 ^ quint64(given >> 63);
        if (folded == std::numeric_limits<quint64>::max())
            m_isExact = false;
        number(value ? folded + 1 : 0);
    }

    void text(const QString& text)
    {
        m_isExact = m_isExact && text.isValidUtf16();
        const QByteArray bytes = text.toUtf8();
        number(quint64(bytes.size()));
        m_bytes.append(bytes);
    }

    void name(const Names& names, const QString& name)
    {
        const auto at = names.positions.constFind(name);
        m_isExact = m_isExact && at != names.positions.cend();
        number(at != names.positions.cend() ? *at : 0);
    }

    QByteArray bytes() const { return m_isExact ? m_bytes : QByteArray(); }

private:
    QByteArray m_bytes;
    bool m_isExact = true;
};

// Bytes whose seal held are as they were packed; the checks keep even others from reaching out of them.
class Unpacker {
public:
    explicit Unpacker(QByteArrayView bytes)
        : m_bytes(bytes)
    {
    }

    quint64 number()
    {
        quint64 value = 0;
        for (int shift = 0; m_isGood; shift += 7) {
            m_isGood = shift < 64 && m_at < m_bytes.size();
            const auto byte = m_isGood ? quint8(m_bytes[m_at++]) : quint8(0);
            value |= quint64(byte & 0x7F) << (shift & 63);
            if (byte <= 0x7F)
                break;
        }
        return value;
    }

    template <typename T>
    std::optional<T> optionalNumber()
    {
        const quint64 stored = number();
        const quint64 folded = stored - 1;
        return stored == 0 ? std::nullopt : std::optional(T(qint64(folded >> 1) ^ -qint64(folded & 1)));
    }

    // A count of things that take at least a byte each.
    qsizetype count()
    {
        const quint64 value = number();
        m_isGood = m_isGood && value <= quint64(m_bytes.size() - m_at);
        return m_isGood ? qsizetype(value) : 0;
    }

    QString text()
    {
        const qsizetype size = count();
        const QString text = QString::fromUtf8(m_bytes.sliced(m_at, size));
        m_at += size;
        return text;
    }

    QString name(const Names& names)
    {
        const quint64 at = number();
        m_isGood = m_isGood && at < quint64(names.names.size());
        return m_isGood ? names.names.at(qsizetype(at)) : QString();
    }

    bool isGood() const { return m_isGood && m_at == m_bytes.size(); }

private:
    QByteArrayView m_bytes;
    qsizetype m_at = 0;
    bool m_isGood = true;
};

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

std::optional<ImageRecord> opened(const QByteArray& sealed, const PhotoFile& file, const QByteArray& reader)
{
    if (sealed.size() < sealSize)
        return std::nullopt;
    const QByteArrayView content = QByteArrayView(sealed).sliced(sealSize);
    if (seal(content, file, reader) != QByteArrayView(sealed).first(sealSize))
        return std::nullopt;
    std::optional<ImageRecord> record = decoded(content);
    if (!record)
        return std::nullopt;
    record->url = file.url;
    record->fileName = file.url.fileName();
    record->creationDate = file.creationDate();
    record->contentModificationDate = file.modificationDate();
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
