#include "platform/images/formats/TiffReader.h"

#include <QtEndian>

namespace Quorbel {

namespace {

constexpr quint16 typeByte = 1, typeShort = 3, typeLong = 4;
constexpr int maxEntries = 1024;  // real directories have fewer than two hundred

template <typename T>
T load(const char* data, bool littleEndian)
{
    return littleEndian ? qFromLittleEndian<T>(data) : qFromBigEndian<T>(data);
}

}  // namespace

std::optional<quint32> TiffDirectory::number(quint16 tag) const
{
    const auto found = entries.constFind(tag);
    if (found == entries.cend() || found->count == 0)
        return std::nullopt;
    const char* data = found->inlineBytes.constData();
    if (found->type == typeByte && found->count <= 4)
        return quint8(data[0]);
    if (found->type == typeShort && found->count <= 2)
        return load<quint16>(data, found->littleEndian);
    return load<quint32>(data, found->littleEndian);
}

TiffReader::TiffReader(QIODevice& device, qint64 base)
    : m_device(device)
    , m_base(base)
{
    const QByteArray head = bytes(0, 8);
    m_valid = isTiff(head);
    if (!m_valid)
        return;
    m_littleEndian = head.startsWith("II");
    m_first = load<quint32>(head.constData() + 4, m_littleEndian);
}

bool TiffReader::isTiff(QByteArrayView head)
{
    if (head.size() < 8)
        return false;
    const QByteArrayView mark = head.first(4);
    return mark == QByteArrayView("II*\0", 4) || mark == QByteArrayView("MM\0*", 4);
}

TiffDirectory TiffReader::directory(quint32 offset) const
{
    TiffDirectory directory;
    const QByteArray countBytes = m_valid && offset >= 8 ? bytes(offset, 2) : QByteArray();
    if (countBytes.size() < 2)
        return directory;
    const int count = load<quint16>(countBytes.constData(), m_littleEndian);
    if (count > maxEntries)
        return directory;
    const QByteArray table = bytes(offset + 2, count * 12LL + 4);
    for (qsizetype at = 0; at + 12 <= qMin<qsizetype>(table.size(), count * 12LL); at += 12) {
        const char* entry = table.constData() + at;
        directory.entries.insert(load<quint16>(entry, m_littleEndian),
            TiffEntry{ .type = load<quint16>(entry + 2, m_littleEndian),
                .count = load<quint32>(entry + 4, m_littleEndian),
                .inlineBytes = QByteArray(entry + 8, 4),
                .littleEndian = m_littleEndian });
    }
    if (table.size() == count * 12LL + 4)
        directory.next = load<quint32>(table.constData() + count * 12LL, m_littleEndian);
    return directory;
}

QList<quint32> TiffReader::numbers(const TiffEntry& entry, qsizetype limit) const
{
    if (entry.type != typeShort && entry.type != typeLong)
        return {};
    const int width = entry.type == typeShort ? 2 : 4;
    const auto count = qMin<qint64>(entry.count, limit);
    const bool fits = qint64(entry.count) * width <= 4;
    const QByteArray data =
        fits ? entry.inlineBytes : bytes(load<quint32>(entry.inlineBytes.constData(), m_littleEndian), count * width);
    QList<quint32> values;
    for (qint64 i = 0; i < count && (i + 1) * width <= data.size(); ++i) {
        const char* at = data.constData() + i * width;
        values.append(width == 2 ? load<quint16>(at, m_littleEndian) : load<quint32>(at, m_littleEndian));
    }
    return values;
}

QByteArray TiffReader::bytes(quint32 offset, qint64 length) const
{
    if (!m_device.seek(m_base + offset))
        return {};
    return m_device.read(length);
}

}  // namespace Quorbel
