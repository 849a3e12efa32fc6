// Pictures of HEVC as RGB at once, for libheif: its own conversion out of luma and chroma is a fifth of what a
// thumbnail costs, and its version 1.15 cannot be asked to leave that out.
// Thread: the one that creates the object, which has no effect on others.
#pragma once

#include <QtGlobal>

struct heif_image_handle;

namespace Quorbel {

/// While this lives, pictures that libheif decodes on this thread become RGB here, if they are of the kind that
/// cameras write: eight bits, chroma halved both ways, no transparency. Others fail, to be decoded without it.
class HevcToRgb {
    Q_DISABLE_COPY_MOVE(HevcToRgb)

public:
    /// Of the image that is about to be decoded: its colours, where the container names them, go before the stream's.
    explicit HevcToRgb(const heif_image_handle* image);
    ~HevcToRgb();
};

}  // namespace Quorbel
