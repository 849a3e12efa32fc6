// The one symbol that the module of decoders exports.
#include "platform/images/ImageDecoder.h"
#include "platform/images/ImageModule.h"

extern "C" Q_DECL_EXPORT const Quorbel::ImageModule* quorbelImageModule()
{
    using namespace Quorbel;
    static constexpr ImageModule module{
        .version = QUORBEL_VERSION,
        .decode = [](const QString& path, int longSide,
                      const std::stop_token& cancel) { return ImageDecoder::decode(path, longSide, cancel); },
        .decodeWhole = &ImageDecoder::decodeWhole,
        .decodeBytes = [](const QByteArray& bytes, int longSide,
                           const std::stop_token& cancel) { return ImageDecoder::decode(bytes, longSide, cancel); },
        .hasOrientation = &ImageDecoder::hasOrientation,
        .embeddedThumbnail = &ImageDecoder::embeddedThumbnail,
    };
    return &module;
}
