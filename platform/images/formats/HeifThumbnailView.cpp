#include "platform/images/formats/HeifThumbnailView.h"

#include "platform/images/gate/HeifBoxes.h"

#include <QSet>

#include <algorithm>
#include <array>

namespace Quorbel {

namespace {

// Numbers of up to eight bytes, most significant first. Past the end everything is 0, and the cursor is not valid.
class Cursor {
public:
    explicit Cursor(QByteArrayView bytes)
        : m_bytes(bytes)
    {
    }
    quint64 number(qsizetype length)
    {
        quint64 value = 0;
        for (const qsizetype end = m_at + length; m_at < end; ++m_at)
            value = value << 8 | (m_at < m_bytes.size() ? quint8(m_bytes[m_at]) : 0u);
        return value;
    }
    qsizetype at() const { return m_at; }
    bool isValid() const { return m_at <= m_bytes.size(); }

private:
    QByteArrayView m_bytes;
    qsizetype m_at = 0;
};

QByteArray contentOf(QIODevice& device, qint64 at, qint64 end)
{
    constexpr qint64 longest = 1024LL * 1024;
    return end - at <= longest && device.seek(at) ? device.read(end - at) : QByteArray();
}

// The items that are thumbnails of others, out of the box of references (8.11.12), which holds one box for each.
QSet<quint64> thumbnailItems(QIODevice& device, qint64 at, qint64 end)
{
    QSet<quint64> items;
    const QByteArray version = contentOf(device, at, qMin(end, at + 1));
    const int idLength = version == QByteArrayView("\0", 1) ? 2 : 4;
    eachBox(device, at + 4, end, [&](QByteArrayView type, qint64 bodyAt, qint64 bodyEnd) {
        if (type == "thmb")
            items.insert(Cursor(contentOf(device, bodyAt, bodyEnd)).number(idLength));
    });
    return items;
}

// Gives length 0 to all extents of items other than `kept`. False when the table is broken.
bool blankOthers(QByteArray& table, const QSet<quint64>& kept)
{
    Cursor in(table);
    const quint64 version = in.number(1);
    in.number(3);  // flags
    const quint64 sizes = in.number(2);
    const auto length = [sizes](int shift) { return qsizetype(sizes >> shift & 0xF); };
    const qsizetype offsetLength = length(12), lengthLength = length(8), baseLength = length(4);
    const qsizetype indexLength = version == 0 ? 0 : length(0);
    for (quint64 items = in.number(version < 2 ? 2 : 4); items > 0 && in.isValid(); --items) {
        const bool blank = !kept.contains(in.number(version < 2 ? 2 : 4));
        in.number((version == 0 ? 0 : 2) + 2 + baseLength);  // construction method, data reference, base offset
        for (quint64 extents = in.number(2); extents > 0 && in.isValid(); --extents) {
            in.number(indexLength + offsetLength);
            const qsizetype at = in.at();
            in.number(lengthLength);
            if (blank && in.isValid())
                std::fill_n(table.begin() + at, lengthLength, '\0');
        }
    }
    return in.isValid();
}

}  // namespace

void HeifPatch::apply(qint64 from, char* data, qint64 length) const
{
    const qint64 first = qMax(at, from), end = qMin(at + bytes.size(), from + length);
    if (first < end)
        std::copy_n(bytes.cbegin() + (first - at), end - first, data + (first - from));
}

HeifPatch onlyThumbnails(QIODevice& device)
{
    static constexpr std::array path{ "meta" };
    QSet<quint64> thumbnails;
    HeifPatch patch;
    eachBoxInside(device, path, [&](QByteArrayView type, qint64 at, qint64 end) {
        if (type == "iref")
            thumbnails = thumbnailItems(device, at, end);
        else if (type == "iloc")
            patch = { .at = at, .bytes = contentOf(device, at, end) };
    });
    device.seek(0);
    return !thumbnails.isEmpty() && blankOthers(patch.bytes, thumbnails) ? patch : HeifPatch();
}

}  // namespace Quorbel
