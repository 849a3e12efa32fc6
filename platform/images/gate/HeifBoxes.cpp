#include "platform/images/gate/HeifBoxes.h"

#include <QtEndian>

namespace Quorbel {

namespace {

void eachBoxBelow(QIODevice& device, qint64 at, qint64 end, std::span<const char* const> path, const BoxVisit& visit)
{
    constexpr qint64 metaVersion = 4;  // bytes in front of that box's content
    if (path.empty())
        return eachBox(device, at, end, visit);
    const QByteArrayView wanted(path.front());
    eachBox(device, at, end, [&](QByteArrayView type, qint64 bodyAt, qint64 bodyEnd) {
        if (type == wanted)
            eachBoxBelow(device, bodyAt + (wanted == "meta" ? metaVersion : 0), bodyEnd, path.subspan(1), visit);
    });
}

}  // namespace

void eachBox(QIODevice& device, qint64 at, qint64 end, const BoxVisit& visit)
{
    constexpr int maxBoxes = 20'000;
    for (int i = 0; i < maxBoxes && at + 8 <= end; ++i) {
        device.seek(at);
        const QByteArray head = device.read(16);
        if (head.size() < 8)
            return;
        qint64 length = qFromBigEndian<quint32>(head.constData());
        qint64 body = at + 8;
        if (length == 1 && head.size() == 16) {
            length = qFromBigEndian<qint64>(head.constData() + 8);
            body = at + 16;
        } else if (length == 0) {
            length = end - at;
        }
        if (length < body - at || length > end - at)
            return;
        visit(QByteArrayView(head).sliced(4, 4), body, at + length);
        at += length;
    }
}

QByteArray boxContent(QIODevice& device, qint64 at, qint64 end)
{
    constexpr qint64 longest = 1024LL * 1024;
    return end > at && end - at <= longest && device.seek(at) ? device.read(end - at) : QByteArray();
}

void eachBoxInside(QIODevice& device, std::span<const char* const> path, const BoxVisit& visit)
{
    eachBoxBelow(device, 0, device.size(), path, visit);
}

}  // namespace Quorbel
