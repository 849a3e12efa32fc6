// The decoders as the program meets them. They stand in a module of their own, because loading the libraries behind
// them takes as long as showing the window: it is loaded when something is first decoded, on the thread that does it.
#pragma once

#include "platform/images/DecodedImage.h"

namespace Quorbel {

/// The functions of ImageDecoder, each as described there.
/// Thread: any, several at once.
struct ImageModule {
    const char* version;  ///< of the program it was built with
    DecodedImage (*decode)(const QString& path, int longSide, const std::stop_token& cancel);
    DecodedImage (*decodeWhole)(const QString& path, qint64 mostPixels, const std::stop_token& cancel);
    DecodedImage (*decodeBytes)(const QByteArray& bytes, int longSide, const std::stop_token& cancel);
    bool (*hasOrientation)(const QByteArray& bytes);
    QImage (*embeddedThumbnail)(const QString& path, const std::stop_token& cancel);

    /// The module beside the program (<prefix>/lib/quorbel/modules, seen from <prefix>/bin), loaded at the first call.
    /// When it is missing, or belongs to another version because the program was just replaced, that is logged once
    /// and the functions find everything unsupported: photos are edited as before, without pictures.
    static const ImageModule& loaded();
    /// The module in this file, or one that finds everything unsupported.
    static ImageModule load(const QString& file);
};

/// What the module exports, in C's naming.
constexpr auto imageModuleSymbol = "quorbelImageModule";
using ImageModuleEntry = const ImageModule* (*)();

}  // namespace Quorbel
