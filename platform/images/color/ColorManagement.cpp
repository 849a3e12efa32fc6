#include "platform/images/color/ColorManagement.h"

#include "platform/images/Release.h"

#include <QColorSpace>

#include <lcms2.h>

#include <memory>
#include <type_traits>

namespace Quorbel {

namespace {

using Context = std::unique_ptr<std::remove_pointer_t<cmsContext>, Release<cmsDeleteContext>>;
using Profile = std::unique_ptr<void, Release<cmsCloseProfile>>;
using Transform = std::unique_ptr<void, Release<cmsDeleteTransform>>;

QImage plain(const QImage& image)
{
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
}

// Profiles that are three curves and a matrix, as most cameras' are: Qt reads them, and converts ten times faster
// than a general transform is even set up. Invalid for all others.
QColorSpace simpleSpace(const QByteArray& icc)
{
    constexpr qsizetype channelsAt = 16;  // ICC.1, 7.2: the header's colour space
    return icc.mid(channelsAt, 4) == "RGB " ? QColorSpace::fromIccProfile(icc) : QColorSpace();
}

QImage convertedFrom(const QColorSpace& space, const QImage& image)
{
    const QColorSpace sRGB(QColorSpace::SRgb);
    if (space == sRGB)
        return plain(image);
    const bool deep = image.depth() > 32;
    QImage result = image.convertToFormat(deep ? QImage::Format_RGBA64
            : image.hasAlphaChannel()          ? QImage::Format_ARGB32
                                               : QImage::Format_RGB32);
    result.setColorSpace(space);
    result.convertToColorSpace(sRGB);
    result.setColorSpace({});
    if (deep && !image.hasAlphaChannel())
        result = std::move(result).convertToFormat(QImage::Format_RGB32);
    return plain(result);
}

// A profile and the transform out of it. The context keeps the library's messages to itself.
class ToSRGB {
public:
    explicit ToSRGB(const QByteArray& icc)
        : m_context(cmsCreateContext(nullptr, nullptr))
        , m_from(cmsOpenProfileFromMemTHR(m_context.get(), icc.constData(), cmsUInt32Number(icc.size())))
    {
    }
    // CIE L*a*b* under D50.
    ToSRGB()
        : m_context(cmsCreateContext(nullptr, nullptr))
        , m_from(cmsCreateLab4ProfileTHR(m_context.get(), nullptr))
    {
    }
    bool describes(cmsColorSpaceSignature channels) const
    {
        return m_from && cmsGetColorSpace(m_from.get()) == channels;
    }
    bool prepare(cmsUInt32Number from, cmsUInt32Number to)
    {
        const Profile sRGB(cmsCreate_sRGBProfileTHR(m_context.get()));
        m_transform.reset(cmsCreateTransformTHR(m_context.get(), m_from.get(), from, sRGB.get(), to,
            INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_COPY_ALPHA));
        return m_transform != nullptr;
    }
    void row(const uchar* from, uchar* to, int pixels) const
    {
        cmsDoTransform(m_transform.get(), from, to, cmsUInt32Number(pixels));
    }
    void rows(const QImage& from, QImage& to) const
    {
        for (int y = 0; y < from.height(); ++y)
            row(from.constScanLine(y), to.scanLine(y), from.width());
    }

private:
    Context m_context;
    Profile m_from;
    Transform m_transform;
};

QImage grayToSRGB(const QImage& image, ToSRGB& profile)
{
    const bool deep = image.depth() > 8 && image.format() == QImage::Format_Grayscale16;
    const QImage gray = deep ? image : image.convertToFormat(QImage::Format_Grayscale8);
    if (!profile.prepare(deep ? TYPE_GRAY_16 : TYPE_GRAY_8, TYPE_BGRA_8))
        return plain(image);
    QImage result(gray.size(), QImage::Format_RGB32);
    result.fill(Qt::black);
    profile.rows(gray, result);
    return result;
}

QImage rgbToSRGB(const QImage& image, ToSRGB& profile)
{
    const bool deep = image.depth() > 32;
    const bool alpha = image.hasAlphaChannel();
    const QImage from = image.convertToFormat(deep ? (alpha ? QImage::Format_RGBA64 : QImage::Format_RGBX64)
                                                   : (alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32));
    if (from.isNull() || !profile.prepare(deep ? TYPE_RGBA_16 : TYPE_BGRA_8, TYPE_BGRA_8))
        return plain(image);
    QImage result(from.size(), alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    profile.rows(from, result);
    return plain(result);
}

}  // namespace

QImage ColorManagement::toSRGB(const QImage& image, const QByteArray& icc)
{
    if (image.isNull() || icc.isEmpty())
        return plain(image);
    if (const QColorSpace space = simpleSpace(icc); space.isValid())
        return convertedFrom(space, image);
    ToSRGB profile(icc);
    if (profile.describes(cmsSigGrayData) && image.allGray())
        return grayToSRGB(image, profile);
    if (profile.describes(cmsSigRgbData))
        return rgbToSRGB(image, profile);
    return plain(image);
}

QImage ColorManagement::fromCMYK(const QByteArray& pixels, QSize size, const QByteArray& icc)
{
    QImage result(size, QImage::Format_RGB32);
    if (result.isNull() || pixels.size() < qsizetype(size.width()) * size.height() * 4)
        return {};
    result.fill(Qt::black);
    ToSRGB profile(icc);
    const bool managed = profile.describes(cmsSigCmykData) && profile.prepare(TYPE_CMYK_8, TYPE_BGRA_8);
    const auto* from = reinterpret_cast<const uchar*>(pixels.constData());
    for (int y = 0; y < size.height(); ++y, from += qsizetype(size.width()) * 4) {
        if (managed) {
            profile.row(from, result.scanLine(y), size.width());
            continue;
        }
        auto* to = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const uchar* ink = from + qsizetype(x) * 4;
            const int light = 255 - ink[3];
            to[x] = qRgb((255 - ink[0]) * light / 255, (255 - ink[1]) * light / 255, (255 - ink[2]) * light / 255);
        }
    }
    return result;
}

QImage ColorManagement::fromLab(const QByteArray& pixels, QSize size)
{
    QImage result(size, QImage::Format_RGB32);
    const qsizetype rowLength = qsizetype(size.width()) * 3;
    ToSRGB lab;
    if (result.isNull() || pixels.size() < rowLength * size.height() || !lab.prepare(TYPE_Lab_8, TYPE_BGRA_8))
        return {};
    result.fill(Qt::black);
    for (int y = 0; y < size.height(); ++y)
        lab.row(reinterpret_cast<const uchar*>(pixels.constData()) + y * rowLength, result.scanLine(y), size.width());
    return result;
}

}  // namespace Quorbel
