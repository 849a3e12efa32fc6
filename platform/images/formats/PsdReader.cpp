#include "platform/images/formats/PsdReader.h"

#include "platform/images/formats/PackBits.h"

#include <QList>
#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cmath>

namespace Quorbel {

namespace {

// The value of one sample in the range of a byte.
int sampleAt(const QByteArray& row, int x, int depth)
{
    const char* data = row.constData();
    switch (depth) {
    case 1:
        return quint8(data[x / 8]) >> (7 - x % 8) & 1 ? 0 : 255;
    case 8:
        return quint8(data[x]);
    case 16:
        return qFromBigEndian<quint16>(data + qsizetype(x) * 2) >> 8;
    default: {
        // Linear light; a display's curve is close to a square root.
        const float linear = std::bit_cast<float>(qFromBigEndian<quint32>(data + qsizetype(x) * 4));
        return linear > 0 ? int(std::min(1.0F, std::sqrt(linear)) * 255) : 0;
    }
    }
}

// Averages squares of pixels while rows arrive.
class Reducer {
public:
    Reducer(PsdPlanes& planes, QSize size, int depth, int factor)
        : m_planes(planes)
        , m_size(size)
        , m_depth(depth)
        , m_factor(factor)
        , m_sums(planes.size.width())
    {
    }
    void add(const QByteArray& row, int channel, int y)
    {
        if (y % m_factor == 0)
            std::ranges::fill(m_sums, 0);
        const int columns = m_planes.size.width() * m_factor;
        for (int x = 0; x < columns; ++x)
            m_sums[x / m_factor] += sampleAt(row, qMin(x, m_size.width() - 1), m_depth);
        const int target = y / m_factor;
        const bool complete = (y + 1) % m_factor == 0 || y + 1 == m_size.height();
        if (!complete || target >= m_planes.size.height())
            return;
        char* to = m_planes.samples.data() + (qsizetype(channel) * m_planes.size.height() + target) * m_sums.size();
        const int count = m_factor * (y % m_factor + 1);
        for (qsizetype i = 0; i < m_sums.size(); ++i)
            to[i] = char(m_sums[i] / count);
    }

private:
    PsdPlanes& m_planes;
    QSize m_size;
    int m_depth;
    int m_factor;
    QList<int> m_sums;
};

// The rows of the flattened picture in the order of the file: channel after channel.
class RowReader {
public:
    RowReader(QIODevice& device, const PsdHeader& header)
        : m_device(device)
        , m_lengthBytes(header.isLarge ? 4 : 2)
        , m_row((qsizetype(header.size.width()) * header.depth + 7) / 8, '\xff')
    {
        constexpr quint16 packed = 1;
        m_device.seek(header.pixelsAt);
        const QByteArray compression = m_device.read(2);
        const quint16 kind = compression.size() == 2 ? qFromBigEndian<quint16>(compression.constData()) : 0xFFFF;
        m_packed = kind == packed;
        const qint64 lengthsSize = m_packed ? qint64(header.channels) * header.size.height() * m_lengthBytes : 0;
        m_valid = kind <= packed && lengthsSize <= m_device.size();
        if (m_valid)
            m_lengths = m_device.read(lengthsSize);
    }
    bool isValid() const { return m_valid; }
    const QByteArray& row() const { return m_row; }
    // False where the file ends.
    bool next()
    {
        qint64 length = m_row.size();
        if (m_packed) {
            if (m_at + m_lengthBytes > m_lengths.size())
                return false;
            const char* entry = m_lengths.constData() + m_at;
            length = m_lengthBytes == 4 ? qFromBigEndian<quint32>(entry) : qFromBigEndian<quint16>(entry);
            m_at += m_lengthBytes;
        }
        // Packing never makes a row much longer: a larger number is damage.
        if (length > 2 * m_row.size() + 256)
            return false;
        const QByteArray bytes = m_device.read(length);
        if (bytes.size() < length)
            return false;
        if (m_packed)
            unpackBits(bytes, m_row);
        else
            m_row = bytes;
        return true;
    }

private:
    QIODevice& m_device;
    int m_lengthBytes;
    bool m_packed = false;
    bool m_valid = false;
    QByteArray m_lengths;
    qsizetype m_at = 0;
    QByteArray m_row;
};

}  // namespace

int PsdHeader::colorChannels() const
{
    switch (mode) {
    case Mode::rgb:
    case Mode::lab:
        return 3;
    case Mode::cmyk:
        return 4;
    default:
        return 1;
    }
}

bool PsdHeader::isReadable() const
{
    const bool knownMode = mode == Mode::bitmap || mode == Mode::gray || mode == Mode::indexed || mode == Mode::rgb
        || mode == Mode::cmyk || mode == Mode::multichannel || mode == Mode::duotone || mode == Mode::lab;
    const bool knownDepth = depth == 1 || depth == 8 || depth == 16 || depth == 32;
    constexpr int longestSide = 300'000;
    return knownMode && knownDepth && qMax(size.width(), size.height()) <= longestSide && channels >= colorChannels()
        && !size.isEmpty() && (mode != Mode::indexed || (palette.size() >= 768 && depth == 8));
}

PsdReader::PsdReader(QIODevice& device)
    : m_device(device)
{
}

quint64 PsdReader::number(int bytes)
{
    quint64 value = 0;
    for (const char byte : m_device.read(bytes))
        value = value << 8 | quint8(byte);
    return value;
}

std::optional<PsdHeader> PsdReader::header()
{
    m_device.seek(0);
    const QByteArray start = m_device.read(26);
    if (start.size() < 26 || !start.startsWith("8BPS"))
        return std::nullopt;
    const auto at16 = [&](int at) { return int(qFromBigEndian<quint16>(start.constData() + at)); };
    const auto at32 = [&](int at) { return int(qMin(qFromBigEndian<quint32>(start.constData() + at), 0x7FFFFFFFU)); };
    PsdHeader header;
    header.isLarge = at16(4) == 2;
    header.channels = at16(12);
    header.size = QSize(at32(18), at32(14));
    header.depth = at16(22);
    header.mode = PsdHeader::Mode(at16(24));
    const qint64 paletteLength = qint64(number(4)), paletteAt = m_device.pos();
    if (header.mode == PsdHeader::Mode::indexed)
        header.palette = m_device.read(qMin<qint64>(paletteLength, 768));
    if (!m_device.seek(paletteAt + paletteLength))
        return std::nullopt;
    const qint64 resourcesLength = qint64(number(4)), resourcesAt = m_device.pos();
    readResources(header, resourcesAt, qMin(resourcesAt + resourcesLength, m_device.size()));
    m_device.seek(resourcesAt + resourcesLength);
    const int lengthBytes = header.isLarge ? 8 : 4;
    const auto layersLength = number(lengthBytes);
    const qint64 layersAt = m_device.pos();
    if (layersLength > quint64(lengthBytes) && number(lengthBytes) > 2)
        header.hasTransparency = qint16(number(2)) < 0;
    if (layersLength > quint64(m_device.size()))
        header.isFlattened = false;  // cut off before its picture
    else
        header.pixelsAt = layersAt + qint64(layersLength);
    return header;
}

void PsdReader::readResources(PsdHeader& header, qint64 at, qint64 end)
{
    constexpr int maxResources = 4096;
    for (int i = 0; i < maxResources && at + 12 <= end; ++i) {
        m_device.seek(at);
        const QByteArray signature = m_device.read(4);
        if (!signature.startsWith("8B") && !signature.startsWith("Me") && !signature.startsWith("Ph"))
            return;
        const int id = int(number(2));
        const qint64 nameLength = qint64(number(1));
        m_device.seek(at + 6 + nameLength + 1 + (nameLength + 1) % 2);
        const qint64 length = qint64(number(4)), body = m_device.pos();
        readResource(header, id, body, qMin(length, end - body));
        at = body + length + length % 2;
    }
}

void PsdReader::readResource(PsdHeader& header, int id, qint64 at, qint64 length)
{
    constexpr int bgrThumbnail = 1033, thumbnail = 1036, iccProfile = 1039, versionInfo = 1057;
    constexpr qint64 thumbnailHead = 28, longestProfile = 16LL * 1024 * 1024;
    if (id == iccProfile && length <= longestProfile) {
        header.icc = m_device.read(length);
    } else if ((id == thumbnail || id == bgrThumbnail) && length > thumbnailHead && number(4) == 1) {
        header.thumbnailAt = at + thumbnailHead;
        header.thumbnailLength = length - thumbnailHead;
        header.thumbnailIsBGR = id == bgrThumbnail;
    } else if (id == versionInfo && length >= 5) {
        m_device.seek(at + 4);
        header.isFlattened = number(1) != 0;
    }
}

QByteArray PsdReader::thumbnail(const PsdHeader& header)
{
    constexpr qint64 longest = 4LL * 1024 * 1024;
    if (header.thumbnailAt < 0 || header.thumbnailLength > longest || !m_device.seek(header.thumbnailAt))
        return {};
    return m_device.read(header.thumbnailLength);
}

PsdPlanes PsdReader::planes(const PsdHeader& header, int longSide, const std::stop_token& cancel)
{
    const int factor = qMax(1, qMax(header.size.width(), header.size.height()) / qMax(1, longSide));
    PsdPlanes planes;
    planes.count = qMin(header.channels, header.colorChannels() + (header.hasTransparency ? 1 : 0));
    planes.size = QSize(header.size.width() / factor, header.size.height() / factor).expandedTo(QSize(1, 1));
    RowReader rows(m_device, header);
    if (!rows.isValid())
        return {};
    planes.samples = QByteArray(qsizetype(planes.count) * planes.size.height() * planes.size.width(), '\xff');
    for (int channel = 0; channel < planes.count; ++channel) {
        Reducer reducer(planes, header.size, header.depth, factor);
        for (int y = 0; y < header.size.height(); ++y) {
            if (cancel.stop_requested())
                return {};
            if (!rows.next())
                return channel == 0 && y < header.size.height() / 4 ? PsdPlanes{} : planes;
            reducer.add(rows.row(), channel, y);
        }
    }
    return planes;
}

}  // namespace Quorbel
