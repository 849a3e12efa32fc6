// Reads the sections of a Photoshop file: header, palette, resources, and the flattened picture's channels.
// Thread: the one that owns the device. Bounded: rows are read one at a time, lengths are checked against the file.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QSize>

#include <optional>
#include <stop_token>

namespace Quorbel {

struct PsdHeader {
    enum class Mode { bitmap = 0, gray = 1, indexed = 2, rgb = 3, cmyk = 4, multichannel = 7, duotone = 8, lab = 9 };

    bool isLarge = false;  ///< PSB: lengths of rows are 32 bits wide
    int channels = 0;
    QSize size{};
    int depth = 8;  ///< bits a sample
    Mode mode = Mode::rgb;
    QByteArray palette{};  ///< 768 bytes when indexed
    QByteArray icc{};
    qint64 thumbnailAt = -1;  ///< the JPEG thumbnail; -1: none
    qint64 thumbnailLength = 0;
    bool thumbnailIsBGR = false;
    bool isFlattened = true;  ///< the flattened picture is real, not a blank sheet
    bool hasTransparency = false;  ///< the channel after the colours is the flattened picture's opacity
    qint64 pixelsAt = 0;

    int colorChannels() const;
    /// Whether its kind of flattened picture can be read: known mode and depth, enough channels.
    bool isReadable() const;
};

/// Channels of eight bits, one after the other.
struct PsdPlanes {
    QSize size{};
    int count = 0;
    QByteArray samples{};  ///< count × height × width bytes; empty when the file is broken

    const uchar* row(int channel, int y) const
    {
        return reinterpret_cast<const uchar*>(samples.constData())
            + (qsizetype(channel) * size.height() + y) * size.width();
    }
};

class PsdReader {
public:
    explicit PsdReader(QIODevice& device);

    std::optional<PsdHeader> header();
    /// The flattened picture, reduced by a whole factor to no less than `longSide`. Rows that the file breaks off
    /// before stay white; empty when not even a quarter is there.
    PsdPlanes planes(const PsdHeader& header, int longSide, const std::stop_token& cancel);
    QByteArray thumbnail(const PsdHeader& header);

private:
    void readResources(PsdHeader& header, qint64 at, qint64 end);
    void readResource(PsdHeader& header, int id, qint64 at, qint64 length);
    quint64 number(int bytes);

    QIODevice& m_device;
};

}  // namespace Quorbel
