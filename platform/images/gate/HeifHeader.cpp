#include "platform/images/gate/HeifHeader.h"

#include "platform/images/gate/HeifBoxes.h"

#include <QByteArray>
#include <QtEndian>

#include <array>

namespace Quorbel {

namespace {

// Bits of a parameter set, most significant first. Past the end everything is 0.
class BitReader {
public:
    explicit BitReader(QByteArrayView bytes)
        : m_bytes(bytes)
    {
    }
    quint32 bits(int count)
    {
        quint32 value = 0;
        for (; count > 0; --count, ++m_at) {
            const bool inside = m_at / 8 < m_bytes.size();
            value = value << 1 | (inside ? quint8(m_bytes[m_at / 8]) >> (7 - m_at % 8) & 1u : 0u);
        }
        return value;
    }
    void skip(qsizetype count) { m_at += count; }
    // Exponential Golomb code.
    quint32 golomb()
    {
        int zeros = 0;
        while (zeros < 32 && m_at / 8 < m_bytes.size() && bits(1) == 0)
            ++zeros;
        return zeros >= 32 ? UINT32_MAX : (1u << zeros) - 1 + bits(zeros);
    }

private:
    QByteArrayView m_bytes;
    qsizetype m_at = 0;
};

QSize clamped(quint32 width, quint32 height)
{
    return { int(qMin<quint32>(width, INT_MAX)), int(qMin<quint32>(height, INT_MAX)) };
}

// Takes out the bytes that keep start codes from appearing inside a unit.
QByteArray withoutEmulation(QByteArrayView unit)
{
    QByteArray clean;
    int zeros = 0;
    for (const char byte : unit) {
        if (zeros >= 2 && byte == 3) {
            zeros = 0;
            continue;
        }
        zeros = byte == 0 ? zeros + 1 : 0;
        clean.append(byte);
    }
    return clean;
}

// ITU-T H.265, 7.3.2.2: width and height follow the profile and the chroma format.
QSize sizeOfHevcSequence(QByteArrayView unit)
{
    const QByteArray clean = withoutEmulation(unit);
    BitReader in(clean);
    in.skip(16 + 4);  // unit header, parameter set id
    const quint32 subLayers = in.bits(3);
    in.skip(1 + 88 + 8);  // nesting flag, general profile, level
    quint32 profiles = 0, levels = 0;
    for (quint32 i = 0; i < subLayers; ++i) {
        profiles += in.bits(1);
        levels += in.bits(1);
    }
    if (subLayers > 0)
        in.skip(2 * (8 - qsizetype(subLayers)));
    in.skip(88LL * profiles + 8LL * levels);
    in.golomb();  // sequence id
    if (in.golomb() == 3)
        in.skip(1);  // separate colour planes
    const quint32 width = in.golomb();
    return clamped(width, in.golomb());
}

// ISO/IEC 14496-15, 8.3.3.1: arrays of parameter sets; type 33 is the sequence's.
QSize sizeOfHevcRecord(QByteArrayView record)
{
    constexpr qsizetype arraysAt = 22;
    constexpr int sequenceType = 33;
    if (record.size() <= arraysAt)
        return {};
    QSize largest;
    qsizetype at = arraysAt + 1;
    for (int arrays = quint8(record[arraysAt]); arrays > 0 && at + 3 <= record.size(); --arrays) {
        const int type = quint8(record[at]) & 0x3F;
        int units = qFromBigEndian<quint16>(record.data() + at + 1);
        for (at += 3; units > 0 && at + 2 <= record.size(); --units) {
            const qsizetype length = qFromBigEndian<quint16>(record.data() + at);
            at += 2;
            if (at + length > record.size())
                return largest;
            if (type == sequenceType)
                largest = largest.expandedTo(sizeOfHevcSequence(record.sliced(at, length)));
            at += length;
        }
    }
    return largest;
}

// AV1 bitstream standard, 5.5.1: the sequence header names the largest frame.
QSize sizeOfAv1Record(QByteArrayView record)
{
    constexpr qsizetype unitsAt = 4;
    constexpr quint32 sequenceHeader = 1;
    if (record.size() <= unitsAt + 2)
        return {};
    BitReader in(record.sliced(unitsAt));
    in.skip(1);
    if (in.bits(4) != sequenceHeader)
        return {};
    const bool extended = in.bits(1) != 0, sized = in.bits(1) != 0;
    in.skip(1 + (extended ? 8 : 0));
    if (sized) {
        for (int i = 0; i < 7 && in.bits(1) != 0;
             ++i)  // length: seven bits a byte, the first bit says that more follow
            in.skip(7);
        in.skip(7);
    }
    in.skip(3 + 1);  // profile, still picture
    if (in.bits(1) != 0) {
        in.skip(5);  // level
    } else {
        if (in.bits(1) != 0)
            return {};  // timing: the decoder's own limit has to do
        const bool delays = in.bits(1) != 0;
        const quint32 points = in.bits(5) + 1;
        for (quint32 i = 0; i < points; ++i) {
            in.skip(12);
            if (in.bits(5) > 7)
                in.skip(1);
            if (delays && in.bits(1) != 0)
                in.skip(4);
        }
    }
    const int widthBits = int(in.bits(4)) + 1, heightBits = int(in.bits(4)) + 1;
    const quint32 width = in.bits(widthBits) + 1;
    return clamped(width, in.bits(heightBits) + 1);
}

// Of a property, when it is a decoder's record.
QSize codedFrame(QIODevice& device, QByteArrayView type, qint64 at, qint64 end)
{
    constexpr qint64 longestRecord = 64LL * 1024;
    if (type != "hvcC" && type != "av1C")
        return {};
    device.seek(at);
    const QByteArray record = device.read(qMin(end - at, longestRecord));
    return type == "hvcC" ? sizeOfHevcRecord(record) : sizeOfAv1Record(record);
}

}  // namespace

QSize largestCodedFrame(QIODevice& device)
{
    static constexpr std::array properties{ "meta", "iprp", "ipco" };
    QSize largest;
    eachBoxInside(device, properties, [&](QByteArrayView type, qint64 at, qint64 end) {
        largest = largest.expandedTo(codedFrame(device, type, at, end));
    });
    device.seek(0);
    return largest;
}

QSize largestCodedFrame(QIODevice& device, const HeifItems& items, const QSet<quint32>& of)
{
    QSize largest;
    QSet<qsizetype> known;
    for (const quint32 item : of) {
        for (const qsizetype at : items.propertiesOf.value(item)) {
            if (at >= items.properties.size() || known.contains(at))
                continue;
            known.insert(at);
            const HeifProperty& property = items.properties.at(at);
            largest = largest.expandedTo(codedFrame(device, property.type, property.at, property.end));
        }
    }
    device.seek(0);
    return largest;
}

}  // namespace Quorbel
