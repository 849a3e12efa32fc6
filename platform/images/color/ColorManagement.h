// Turns pixels described by an embedded profile into sRGB. Pixels without one are sRGB already and stay untouched.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QImage>

namespace Quorbel::ColorManagement {

/// The image in sRGB, eight bits a channel: RGB32, or ARGB32_Premultiplied where it has transparency. A profile
/// that is broken or describes other channels than the image holds is ignored.
QImage toSRGB(const QImage& image, const QByteArray& icc);

/// sRGB pixels of ink values: `pixels` holds width × height × 4 bytes in the order C M Y K, 0 meaning no ink.
/// Without a CMYK profile: the plain formula.
QImage fromCMYK(const QByteArray& pixels, QSize size, const QByteArray& icc);

/// sRGB pixels of CIE L*a*b* in bytes (L from 0 to 255, a and b around 128): width × height × 3 bytes.
QImage fromLab(const QByteArray& pixels, QSize size);

}  // namespace Quorbel::ColorManagement
