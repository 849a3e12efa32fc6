// What tests of the thumbnail store share: its names, made-up pictures, and their patience. Thread: any.
#pragma once

#include "app/model/thumbnails/ThumbnailStore.h"

namespace Quorbel::Test {

using Kind = ThumbnailStore::Kind;
using State = ThumbnailStore::State;

/// Milliseconds; only a failing test, or a very busy machine, waits that long.
constexpr int longest = 20000;

inline DecodedImage picture(QSize size, QColor color = Qt::gray)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return { .outcome = DecodedImage::Outcome::decoded, .image = image };
}

}  // namespace Quorbel::Test
