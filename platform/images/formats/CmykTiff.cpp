#include "platform/images/formats/CmykTiff.h"

#include "platform/images/Release.h"
#include "platform/images/color/ColorManagement.h"
#include "platform/images/gate/HeaderGate.h"

#include <QSize>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>

#include <tiffio.h>

namespace Quorbel {

namespace {

constexpr int inkCount = 4;
constexpr qint64 mostBytesHeld = 512LL * 1024 * 1024;

tmsize_t readBytes(thandle_t device, void* data, tmsize_t length)
{
    return static_cast<QIODevice*>(device)->read(static_cast<char*>(data), length);
}

tmsize_t writeNothing(thandle_t, void*, tmsize_t)
{
    return -1;
}

toff_t seekTo(thandle_t handle, toff_t offset, int from)
{
    auto& device = *static_cast<QIODevice*>(handle);
    const qint64 start = from == SEEK_CUR ? device.pos() : from == SEEK_END ? device.size() : 0;
    return device.seek(start + qint64(offset)) ? toff_t(device.pos()) : toff_t(-1);
}

int keepOpen(thandle_t)
{
    return 0;
}

toff_t sizeOf(thandle_t device)
{
    return toff_t(static_cast<QIODevice*>(device)->size());
}

// What damaged files make the library say is of no use to anybody.
int keepSilent(TIFF*, void*, const char*, const char*, va_list)
{
    return 1;
}

using Tiff = std::unique_ptr<TIFF, Release<TIFFClose>>;

// Null when the file is no TIFF.
Tiff opened(QIODevice& device)
{
    TIFFOpenOptions* options = TIFFOpenOptionsAlloc();
    TIFFOpenOptionsSetMaxSingleMemAlloc(options, mostBytesHeld);
    TIFFOpenOptionsSetErrorHandlerExtR(options, keepSilent, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options, keepSilent, nullptr);
    // Unmapped, and the places of strips looked up when they are wanted: a header may claim millions of them.
    Tiff tiff(TIFFClientOpenExt(
        "photo", "rmO", &device, readBytes, writeNothing, seekTo, keepOpen, sizeOf, nullptr, nullptr, options));
    TIFFOpenOptionsFree(options);
    return tiff;
}

template <typename T>
T field(TIFF* tiff, ttag_t tag, T otherwise)
{
    T value = otherwise;
    return TIFFGetFieldDefaulted(tiff, tag, &value) ? value : otherwise;
}

struct Layout {
    QSize size{};
    int samples = inkCount;  // a pixel; those after the inks are passed over
    int sampleBytes = 1;
    bool planes = false;  // one ink after the other; otherwise the samples of a pixel lie together
    QSize tile{};  // empty: strips
    int rowsPerStrip = 1;

    int samplesOfPlane() const { return planes ? 1 : samples; }
    qint64 bytesOf(QSize area) const { return qint64(area.width()) * area.height() * samplesOfPlane() * sampleBytes; }
    // What is held at a time: one row or, of tiles, a row of them and the one that is being unpacked.
    qint64 bytesHeld() const
    {
        return tile.isEmpty() ? bytesOf({ size.width(), 1 }) : bytesOf({ size.width(), tile.height() }) + bytesOf(tile);
    }
};

// As much as an int holds: what is larger is refused for its size.
int bounded(quint32 number)
{
    return int(qMin<quint32>(number, INT_MAX));
}

std::optional<Layout> layoutOf(TIFF* tiff, qint64 fileBytes)
{
    const auto number = [tiff](ttag_t tag, quint16 otherwise) { return field<quint16>(tiff, tag, otherwise); };
    const auto length = [tiff](ttag_t tag) { return bounded(field<quint32>(tiff, tag, 0)); };
    Layout layout;
    layout.size = QSize(length(TIFFTAG_IMAGEWIDTH), length(TIFFTAG_IMAGELENGTH));
    layout.samples = number(TIFFTAG_SAMPLESPERPIXEL, 1);
    layout.planes = number(TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG) == PLANARCONFIG_SEPARATE;
    const int bits = number(TIFFTAG_BITSPERSAMPLE, 1), kind = number(TIFFTAG_SAMPLEFORMAT, SAMPLEFORMAT_UINT);
    layout.sampleBytes = bits / 8;
    const bool areInks = number(TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISBLACK) == PHOTOMETRIC_SEPARATED
        && layout.samples >= inkCount && layout.samples <= 16 && (bits == 8 || bits == 16)
        && (kind == SAMPLEFORMAT_UINT || kind == SAMPLEFORMAT_VOID);
    if (!areInks || !TIFFIsCODECConfigured(number(TIFFTAG_COMPRESSION, COMPRESSION_NONE))
        || !HeaderGate::allows(layout.size, true))
        return std::nullopt;
    qint64 unpacked = 0, expected = 0;
    if (TIFFIsTiled(tiff)) {
        layout.tile = QSize(length(TIFFTAG_TILEWIDTH), length(TIFFTAG_TILELENGTH));
        unpacked = qint64(TIFFTileSize64(tiff));
        expected = layout.bytesOf(layout.tile);
    } else {
        layout.rowsPerStrip = qMin(length(TIFFTAG_ROWSPERSTRIP), layout.size.height());
        unpacked = qint64(TIFFScanlineSize64(tiff));
        expected = layout.bytesOf({ layout.size.width(), 1 });
    }
    // No coding makes less than a byte of 4,096: a claim beyond the file allocates nothing.
    const bool isPlausible = unpacked > 0 && unpacked == expected && layout.rowsPerStrip > 0
        && layout.bytesHeld() <= mostBytesHeld && unpacked / 4096 <= fileBytes;
    return isPlausible ? std::optional(layout) : std::nullopt;
}

QByteArray profileOf(TIFF* tiff)
{
    constexpr quint32 mostProfile = 16 * 1024 * 1024;
    quint32 length = 0;
    const char* data = nullptr;
    if (!TIFFGetField(tiff, TIFFTAG_ICCPROFILE, &length, &data) || !data || length > mostProfile)
        return {};
    return QByteArray(data, qsizetype(length));
}

// The rows of one plane after the other, each from its first to its last. What cannot be read is paper.
class RowReader {
public:
    RowReader(TIFF* tiff, const Layout& layout)
        : m_tiff(tiff)
        , m_layout(layout)
        , m_rowBytes(layout.bytesOf({ layout.size.width(), 1 }))
        , m_rows(m_rowBytes * qMax(1, layout.tile.height()), '\0')
        , m_tile(layout.tile.isEmpty() ? 0 : layout.bytesOf(layout.tile), '\0')
    {
    }
    const char* row(int y, int plane)
    {
        if (m_layout.tile.isEmpty()) {
            readRow(y, plane);
            return m_rows.constData();
        }
        const int inTile = y % m_layout.tile.height();
        if (inTile == 0)
            readTiles(y, plane);
        return m_rows.constData() + m_rowBytes * inTile;
    }
    bool hasRead() const { return m_hasRead; }

private:
    // A strip is unpacked row by row; after a damaged one nothing of it is known any more.
    void readRow(int y, int plane)
    {
        m_broken = m_broken && y % m_layout.rowsPerStrip != 0;
        if (!m_broken)
            m_broken = TIFFReadScanline(m_tiff, m_rows.data(), quint32(y), quint16(plane)) != 1;
        if (m_broken)
            m_rows.fill('\0');
        else
            m_hasRead = true;
    }
    void readTiles(int y, int plane)
    {
        const QSize tile = m_layout.tile;
        const qint64 tileRow = m_layout.bytesOf({ tile.width(), 1 });
        const int rows = qMin(tile.height(), m_layout.size.height() - y);
        for (int x = 0; x < m_layout.size.width(); x += tile.width()) {
            const bool isRead = TIFFReadTile(m_tiff, m_tile.data(), quint32(x), quint32(y), 0, quint16(plane)) > 0;
            if (!isRead)
                m_tile.fill('\0');
            m_hasRead = m_hasRead || isRead;
            const qint64 at = m_layout.bytesOf({ x, 1 }), length = qMin(tileRow, m_rowBytes - at);
            for (int row = 0; row < rows; ++row)
                std::copy_n(m_tile.constData() + tileRow * row, length, m_rows.data() + m_rowBytes * row + at);
        }
    }

    TIFF* m_tiff;
    const Layout& m_layout;
    qint64 m_rowBytes;
    QByteArray m_rows;  // one, or those of a row of tiles
    QByteArray m_tile;
    bool m_broken = false;  // the strip that is being read
    bool m_hasRead = false;
};

// The inks of the picture, averaged over squares of pixels. Takes the rows of one plane after the other.
class InkSums {
public:
    InkSums(const Layout& layout, int longSide)
        : m_layout(layout)
        , m_factor(qMax(1, qMax(layout.size.width(), layout.size.height()) / qMax(1, longSide)))
        , m_size(QSize(layout.size.width() / m_factor, layout.size.height() / m_factor).expandedTo(QSize(1, 1)))
        , m_sums(qsizetype(m_size.width()) * inkCount)
        , m_inks(m_sums.size() * m_size.height(), '\0')
    {
    }
    void add(const char* row, int y, int plane)
    {
        const int target = y / m_factor;
        if (target >= m_size.height())
            return;
        if (y % m_factor == 0)
            m_sums.fill(0);
        if (m_layout.sampleBytes == 1)
            sumUp<quint8>(reinterpret_cast<const quint8*>(row));
        else
            sumUp<quint16>(reinterpret_cast<const quint16*>(row));
        if ((y + 1) % m_factor == 0 || y + 1 == m_layout.size.height())
            store(target, y % m_factor + 1, plane);
    }
    QSize size() const { return m_size; }
    const QByteArray& inks() const { return m_inks; }

private:
    int inksOfPlane() const { return m_layout.planes ? 1 : inkCount; }

    // Of deeper samples the upper eight bits.
    template <typename Sample>
    void sumUp(const Sample* pixel)
    {
        constexpr int shift = 8 * (int(sizeof(Sample)) - 1);
        const int step = m_layout.samplesOfPlane(), inks = inksOfPlane();
        int left = m_layout.size.width();
        for (int* sum = m_sums.data(); sum != m_sums.data() + m_sums.size(); sum += inkCount) {
            for (int i = qMin(m_factor, left); i > 0; --i, pixel += step)
                for (int ink = 0; ink < inks; ++ink)
                    sum[ink] += pixel[ink] >> shift;
            left -= m_factor;
        }
    }
    void store(int target, int rows, int plane)
    {
        const int count = rows * qMin(m_factor, m_layout.size.width());
        char* to = m_inks.data() + m_sums.size() * target + plane;
        for (qsizetype i = 0; i < m_sums.size(); i += inkCount)
            for (int ink = 0; ink < inksOfPlane(); ++ink)
                to[i + ink] = char(m_sums.at(i + ink) / count);
    }

    const Layout& m_layout;
    int m_factor;
    QSize m_size;
    QList<int> m_sums;
    QByteArray m_inks;
};

}  // namespace

DecodedFrame CmykTiff::decode(const DecodeSource& source)
{
    DecodedFrame frame;
    frame.outcome = DecodedImage::Outcome::unsupported;
    const Tiff tiff = opened(source.device);
    const auto layout = tiff ? layoutOf(tiff.get(), source.device.size()) : std::nullopt;
    if (!layout)
        return frame;
    RowReader reader(tiff.get(), *layout);
    InkSums sums(*layout, source.longSide);
    for (int plane = 0; plane < (layout->planes ? inkCount : 1); ++plane)
        for (int y = 0; y < layout->size.height() && !source.cancel.stop_requested(); ++y)
            sums.add(reader.row(y, plane), y, plane);
    if (reader.hasRead())
        frame.image = ColorManagement::fromCMYK(sums.inks(), sums.size(), profileOf(tiff.get()));
    frame.outcome = frame.image.isNull() ? DecodedImage::Outcome::damaged : DecodedImage::Outcome::decoded;
    return frame;
}

}  // namespace Quorbel
