#include "platform/images/formats/CmykTiff.h"

#include "platform/images/color/ColorManagement.h"
#include "platform/images/formats/PackBits.h"
#include "platform/images/formats/TiffReader.h"

#include <QSize>

#include <algorithm>
#include <array>

namespace Quorbel {

namespace {

enum Tag : quint16 {
    widthTag = 256,
    heightTag = 257,
    bitsTag = 258,
    compressionTag = 259,
    photometricTag = 262,
    stripOffsetsTag = 273,
    samplesTag = 277,
    rowsPerStripTag = 278,
    stripLengthsTag = 279,
    planarTag = 284,
    predictorTag = 317,
    profileTag = 34675,
};
enum Compression : quint32 { stored = 1, lzw = 5, packed = 32773 };

struct Layout {
    QSize size{};
    int samples = 4;  ///< a pixel; those after the inks are passed over
    int sampleBytes = 1;
    quint32 compression = stored;
    bool differences = false;  ///< each sample is stored as the difference to the pixel before
    int rowsPerStrip = 1;
    QList<quint32> offsets{};
    QList<quint32> lengths{};
    QByteArray icc{};

    qsizetype rowBytes() const { return qsizetype(size.width()) * samples * sampleBytes; }
};

std::optional<Layout> layoutOf(const TiffReader& tiff)
{
    constexpr quint32 inks = 5, interleaved = 1;
    constexpr qsizetype mostStrips = 400'000, mostProfile = 16LL * 1024 * 1024;
    const TiffDirectory first = tiff.directory(tiff.firstDirectory());
    const auto number = [&](Tag tag, quint32 otherwise) { return first.number(tag).value_or(otherwise); };
    if (number(photometricTag, 0) != inks || number(planarTag, interleaved) != interleaved)
        return std::nullopt;
    Layout layout;
    layout.size = QSize(int(number(widthTag, 0)), int(number(heightTag, 0)));
    layout.samples = int(number(samplesTag, 4));
    const auto bits = tiff.numbers(first.entries.value(bitsTag), 1).value(0);
    layout.sampleBytes = int(bits / 8);
    layout.compression = number(compressionTag, stored);
    layout.differences = number(predictorTag, 1) == 2;
    layout.rowsPerStrip = int(qMin<quint32>(number(rowsPerStripTag, INT_MAX), quint32(layout.size.height())));
    layout.offsets = tiff.numbers(first.entries.value(stripOffsetsTag), mostStrips);
    layout.lengths = tiff.numbers(first.entries.value(stripLengthsTag), mostStrips);
    if (const TiffEntry profile = first.entries.value(profileTag); profile.count > 4 && profile.count <= mostProfile)
        layout.icc = tiff.bytes(number(profileTag, 0), profile.count);
    const bool knownCompression =
        layout.compression == stored || layout.compression == lzw || layout.compression == packed;
    const bool sound = !layout.size.isEmpty() && layout.samples >= 4 && layout.samples <= 16
        && (bits == 8 || bits == 16) && knownCompression && layout.rowsPerStrip > 0 && !layout.offsets.isEmpty()
        && layout.offsets.size() == layout.lengths.size();
    return sound ? std::optional(layout) : std::nullopt;
}

/// TIFF 6.0, section 13. Fills `out` as far as the codes go.
class LzwDecoder {
public:
    explicit LzwDecoder(QByteArrayView in)
        : m_in(in)
    {
    }
    void decode(QByteArray& out)
    {
        qsizetype at = 0;
        int previous = -1;
        for (int code = next(); code >= 0 && code != endCode && at < out.size(); code = next()) {
            if (code == clearCode) {
                m_count = firstFree;
                previous = -1;
                continue;
            }
            if (code > m_count || (code == m_count && previous < 0))
                return;  // no such entry yet
            const bool isOwn = code == m_count;
            qsizetype length = write(out, at, isOwn ? previous : code);
            if (isOwn && at + length < out.size())
                out[at + length++] = out[at];
            if (previous >= 0 && m_count < tableSize) {
                m_prefix[size_t(m_count)] = qint16(previous);
                m_last[size_t(m_count)] = out[at];
                m_length[size_t(m_count)] = quint16(lengthOf(previous) + 1);
                ++m_count;
            }
            at += length;
            previous = code;
        }
    }

private:
    static constexpr int clearCode = 256, endCode = 257, firstFree = 258, tableSize = 4096;

    int lengthOf(int code) const { return code < clearCode ? 1 : m_length[size_t(code)]; }

    /// The entry's string, from its end; what does not fit is left out.
    qsizetype write(QByteArray& out, qsizetype at, int code) const
    {
        const qsizetype length = lengthOf(code);
        for (qsizetype i = length - 1; i >= 0; --i) {
            if (at + i < out.size())
                out[at + i] = code < clearCode ? char(code) : m_last[size_t(code)];
            code = code < clearCode ? code : m_prefix[size_t(code)];
        }
        return qMin(length, out.size() - at);
    }

    /// Codes grow by a bit one entry early. -1 at the end.
    int next()
    {
        const int width = m_count >= 2047 ? 12 : m_count >= 1023 ? 11 : m_count >= 511 ? 10 : 9;
        while (m_held < width) {
            if (m_read >= m_in.size())
                return -1;
            m_bits = m_bits << 8 | quint8(m_in[m_read++]);
            m_held += 8;
        }
        m_held -= width;
        return int(m_bits >> m_held & ((1U << width) - 1));
    }

    QByteArrayView m_in;
    qsizetype m_read = 0;
    quint32 m_bits = 0;
    int m_held = 0;
    int m_count = firstFree;
    std::array<qint16, tableSize> m_prefix{};
    std::array<char, tableSize> m_last{};
    std::array<quint16, tableSize> m_length{};
};

/// Undoes the differences of one row of bytes or, big and little endian alike at this precision, of words' high bytes.
void addUp(char* row, const Layout& layout, bool littleEndian)
{
    const qsizetype step = qsizetype(layout.samples) * layout.sampleBytes;
    if (layout.sampleBytes == 1) {
        for (qsizetype i = step; i < layout.rowBytes(); ++i)
            row[i] = char(row[i] + row[i - step]);
        return;
    }
    const qsizetype low = littleEndian ? 0 : 1, high = 1 - low;
    for (qsizetype i = step; i + 1 < layout.rowBytes(); i += 2) {
        const auto word = [&](qsizetype at) { return quint8(row[at + high]) << 8 | quint8(row[at + low]); };
        const int sum = word(i) + word(i - step);
        row[i + high] = char(sum >> 8);
        row[i + low] = char(sum);
    }
}

/// The inks of the picture, averaged over squares of pixels.
class InkSums {
public:
    InkSums(const Layout& layout, int longSide, bool littleEndian)
        : m_layout(layout)
        , m_highByte(layout.sampleBytes == 2 && littleEndian ? 1 : 0)
        , m_factor(qMax(1, qMax(layout.size.width(), layout.size.height()) / qMax(1, longSide)))
        , m_size(QSize(layout.size.width() / m_factor, layout.size.height() / m_factor).expandedTo(QSize(1, 1)))
        , m_sums(qsizetype(m_size.width()) * 4)
        , m_inks(qsizetype(m_size.width()) * m_size.height() * 4, '\0')
    {
    }
    void add(const char* row, int y)
    {
        if (y % m_factor == 0)
            std::ranges::fill(m_sums, 0);
        const int columns = m_size.width() * m_factor;
        for (int x = 0; x < columns; ++x) {
            const qsizetype column = qMin(x, m_layout.size.width() - 1);
            const char* pixel = row + column * m_layout.samples * m_layout.sampleBytes + m_highByte;
            for (int ink = 0; ink < 4; ++ink)
                m_sums[qsizetype(x / m_factor) * 4 + ink] += quint8(pixel[qsizetype(ink) * m_layout.sampleBytes]);
        }
        const int target = y / m_factor;
        const bool complete = (y + 1) % m_factor == 0 || y + 1 == m_layout.size.height();
        if (!complete || target >= m_size.height())
            return;
        const int count = m_factor * (y % m_factor + 1);
        char* to = m_inks.data() + qsizetype(target) * m_sums.size();
        for (qsizetype i = 0; i < m_sums.size(); ++i)
            to[i] = char(m_sums[i] / count);
    }
    QSize size() const { return m_size; }
    const QByteArray& inks() const { return m_inks; }

private:
    const Layout& m_layout;
    qsizetype m_highByte;
    int m_factor;
    QSize m_size;
    QList<int> m_sums;
    QByteArray m_inks;
};

}  // namespace

DecodedFrame CmykTiff::decode(const DecodeSource& source)
{
    constexpr qint64 mostStripBytes = 512LL * 1024 * 1024;
    const TiffReader tiff(source.device);
    const auto layout = layoutOf(tiff);
    DecodedFrame frame;
    frame.outcome = DecodedImage::Outcome::unsupported;
    const qint64 stripBytes = layout ? layout->rowBytes() * layout->rowsPerStrip : 0;
    // A strip that is no compressed one must be in the file as it is: a claim beyond that allocates nothing.
    if (!layout || stripBytes > mostStripBytes || stripBytes / 4096 > source.device.size())
        return frame;
    InkSums sums(*layout, source.longSide, tiff.isLittleEndian());
    QByteArray strip(stripBytes, '\0');
    for (int y = 0; y < layout->size.height(); ++y) {
        const int row = y % layout->rowsPerStrip;
        const qsizetype index = y / layout->rowsPerStrip;
        if (source.cancel.stop_requested() || index >= layout->offsets.size())
            break;
        if (row == 0) {
            const QByteArray bytes =
                tiff.bytes(layout->offsets[index], qMin<qint64>(layout->lengths[index], 2 * stripBytes + 1024));
            strip.fill('\0');
            if (layout->compression == lzw)
                LzwDecoder(bytes).decode(strip);
            else if (layout->compression == packed)
                unpackBits(bytes, strip);
            else
                std::copy_n(bytes.constData(), qMin(bytes.size(), strip.size()), strip.data());
        }
        char* pixels = strip.data() + layout->rowBytes() * row;
        if (layout->differences)
            addUp(pixels, *layout, tiff.isLittleEndian());
        sums.add(pixels, y);
    }
    frame.image = ColorManagement::fromCMYK(sums.inks(), sums.size(), layout->icc);
    frame.outcome = frame.image.isNull() ? DecodedImage::Outcome::damaged : DecodedImage::Outcome::decoded;
    return frame;
}

}  // namespace Quorbel
