#include "platform/images/formats/HeifTransformations.h"

#include "platform/images/gate/ByteCursor.h"
#include "platform/images/gate/HeifBoxes.h"

#include <QTransform>

#include <cmath>

namespace Quorbel {

namespace {

// ISO/IEC 14496-12, 12.1.4: four fractions, of which the last two may be negative.
HeifTransformation cutOf(ByteCursor in)
{
    const auto fraction = [&in] {
        const auto above = qint32(quint32(in.number(4)));
        const auto below = qint32(quint32(in.number(4)));
        return below != 0 ? double(above) / below : 0.0;
    };
    HeifTransformation cut{ .kind = HeifTransformation::Kind::cut };
    cut.size.rwidth() = fraction();
    cut.size.rheight() = fraction();
    cut.offset.rx() = fraction();
    cut.offset.ry() = fraction();
    return cut;
}

}  // namespace

QList<HeifTransformation> HeifTransformation::of(QIODevice& device, const HeifItems& items, quint32 item)
{
    constexpr qsizetype most = 16;
    QList<HeifTransformation> steps;
    for (const qsizetype at : items.propertiesOf.value(item)) {
        if (at >= items.properties.size() || steps.size() >= most)
            continue;
        const HeifProperty& property = items.properties.at(at);
        const QByteArray body = boxContent(device, property.at, qMin(property.end, property.at + 32));
        ByteCursor in(body);
        if (property.type == "irot")
            steps.append({ .kind = Kind::turn, .quarterTurns = int(in.number(1) & 3) });
        else if (property.type == "imir")
            steps.append({ .kind = Kind::mirror, .upsideDown = (in.number(1) & 1) == 0 });
        else if (property.type == "clap")
            steps.append(cutOf(in));
    }
    device.seek(0);
    return steps;
}

QImage HeifTransformation::applied(const QImage& image) const
{
    switch (kind) {
    case Kind::turn:
        return quarterTurns == 0 ? image : image.transformed(QTransform().rotate(-90.0 * quarterTurns));
    case Kind::mirror:
        return image.mirrored(!upsideDown, upsideDown);
    case Kind::cut:
        break;
    }
    const auto whole = [](double value) { return int(std::lround(qBound(-1e6, value, 1e6))); };
    const double left = offset.x() + (image.width() - size.width()) / 2;
    const double top = offset.y() + (image.height() - size.height()) / 2;
    const QRect part = QRect(whole(left), whole(top), whole(size.width()), whole(size.height())) & image.rect();
    return part.isEmpty() ? image : image.copy(part);
}

}  // namespace Quorbel
