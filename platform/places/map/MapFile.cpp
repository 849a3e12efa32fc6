#include "platform/places/map/MapFile.h"

#include <cstring>

namespace Quorbel {

std::unique_ptr<const MapFile> MapFile::open(const QString& path, MapFormat::Kind kind)
{
    std::unique_ptr<MapFile> file(new MapFile);
    if (!file->map(path, kind))
        return nullptr;
    return file;
}

bool MapFile::map(const QString& path, MapFormat::Kind kind)
{
    constexpr int mostColumns = 720;  // bins of half a degree; also keeps the sums below within 32 bits
    m_file.setFileName(path);
    m_size = m_file.open(QIODevice::ReadOnly) ? m_file.size() : 0;
    if (m_size < MapFormat::headerSize)
        return false;
    m_bytes = m_file.map(0, m_size);
    if (!m_bytes || std::memcmp(m_bytes, MapFormat::magic, sizeof MapFormat::magic) != 0)
        return false;
    const auto number = [this](qsizetype index) {
        return qFromLittleEndian<quint16>(m_bytes + sizeof MapFormat::magic + 2 * index);
    };
    m_columns = number(1);
    m_rows = number(2);
    return number(0) == quint16(kind) && m_columns >= 2 && m_columns <= mostColumns && m_columns == 2 * m_rows
        && m_size >= MapFormat::headerSize + (qint64(m_columns) * m_rows + 1) * qint64(sizeof(quint32));
}

MapFile::Span MapFile::span(int bin) const
{
    if (bin < 0 || bin >= m_columns * m_rows)
        return {};
    const auto* offsets = m_bytes + MapFormat::headerSize + qsizetype(bin) * qsizetype(sizeof(quint32));
    const qint64 begin = qFromLittleEndian<quint32>(offsets);
    const qint64 end = qFromLittleEndian<quint32>(offsets + sizeof(quint32));
    if (begin > end || end > m_size)
        return {};
    return { m_bytes + begin, m_bytes + end };
}

}  // namespace Quorbel
