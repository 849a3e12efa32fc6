// What decoding one file came to. Plain values, any thread.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QImage>
#include <QString>

#include <stop_token>

namespace Quorbel {

struct DecodedImage {
    enum class Outcome {
        decoded,
        unsupported,  ///< no decoder here reads this kind of content
        needsTool,  ///< a camera's raw file that the libraries refuse: its preview may be had another way
        damaged,  ///< unreadable, empty or broken
        tooLarge,  ///< its header asks for more pixels than are safe to hold
        cancelled,
    };
    Outcome outcome = Outcome::unsupported;
    /// Upright and sRGB; RGB32, or ARGB32_Premultiplied when the picture has transparency. Transparency is kept so
    /// that the picture lies on whatever panel it is painted on, in light and dark alike. Null unless decoded.
    QImage image{};
    /// How large the photo itself is, upright, where the image is known to be something smaller or other than it.
    QSize photo{};
    bool isPreview = false;  ///< what a camera put into its raw file, or a hasty development of that
    bool isIncomplete = false;  ///< some of it could not be read; known of a JPEG that is decoded whole
};

/// What a single decoder works on.
struct DecodeSource {
    QIODevice& device;  ///< open for reading, seekable, at its start; fails to read once cancelled or overdue
    QString path{};  ///< the file's path; empty when the bytes come from memory
    int longSide = 0;  ///< pixels wanted on the long side: the frame may be larger, and smaller only at full size
    bool isWhole = false;  ///< all pixels that there are; of a raw file those of its preview
    qint64 mostPixels =
        0;  ///< where it is to be whole: what has more is reduced to that, where it can be while it is read
    std::stop_token cancel{};
};

/// What a single decoder returns: pixels as they are stored, still to be scaled, managed and turned.
struct DecodedFrame {
    DecodedImage::Outcome outcome = DecodedImage::Outcome::damaged;
    QImage image{};
    QByteArray icc{};  ///< the embedded profile that describes the image's channels; empty means sRGB
    int orientation = 1;  ///< EXIF's 1 to 8
    QSize photo{};  ///< as in DecodedImage, as stored
    bool isPreview = false;
    bool isIncomplete = false;
};

}  // namespace Quorbel
