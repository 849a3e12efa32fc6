#include "platform/images/formats/HeifView.h"

#include "platform/images/gate/ByteCursor.h"
#include "platform/images/gate/HeifBoxes.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace Quorbel {

namespace {

// Gives length 0 to all extents of items other than `kept`. False when the table is broken.
bool blankOthers(QByteArray& table, const QSet<quint32>& kept)
{
    ByteCursor in(table);
    const quint64 version = in.number(1);
    in.number(3);  // flags
    const quint64 sizes = in.number(2);
    const auto length = [sizes](int shift) { return qsizetype(sizes >> shift & 0xF); };
    const qsizetype offsetLength = length(12), lengthLength = length(8), baseLength = length(4);
    const qsizetype indexLength = version == 0 ? 0 : length(0);
    for (quint64 items = in.number(version < 2 ? 2 : 4); items > 0 && in.isValid(); --items) {
        const bool blank = !kept.contains(quint32(in.number(version < 2 ? 2 : 4)));
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

QByteArray bigEndian(quint32 value, int length)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes.last(length);
}

QByteArray boxOf(const HeifReference& reference, int idLength)
{
    QByteArray body = bigEndian(reference.from, idLength) + bigEndian(quint32(reference.to.size()), 2);
    for (const quint32 target : reference.to)
        body += bigEndian(target, idLength);
    return bigEndian(quint32(8 + body.size()), 4) + reference.type + body;
}

}  // namespace

void HeifPatch::apply(qint64 from, char* data, qint64 length) const
{
    const qint64 first = qMax(at, from), end = qMin(at + bytes.size(), from + length);
    if (first < end)
        std::copy_n(bytes.cbegin() + (first - at), end - first, data + (first - from));
}

HeifPatch onlyThumbnails(QIODevice& device, const HeifItems& items)
{
    static constexpr std::array path{ "meta" };
    const QSet<quint32> kept = items.withParts(items.thumbnails());
    HeifPatch patch;
    eachBoxInside(device, path, [&](QByteArrayView type, qint64 at, qint64 end) {
        if (type == "iloc")
            patch = { .at = at, .bytes = boxContent(device, at, end) };
    });
    device.seek(0);
    return !kept.isEmpty() && blankOthers(patch.bytes, kept) ? patch : HeifPatch();
}

HeifPatch plainReferences(QIODevice& device, const HeifItems& items)
{
    QList<HeifReference> references = items.references;
    HeifReference* filler = nullptr;
    qsizetype shorter = 0;
    bool isChanged = false;
    for (HeifReference& reference : references) {
        if (reference.type == "cdsc" || (reference.type == "auxl" && reference.to.size() != 1)) {
            reference.type = "free";
            filler = &reference;
            isChanged = true;
        }
    }
    for (HeifReference& reference : references) {
        if (reference.type != "thmb" || reference.to.size() < 2)
            continue;
        isChanged = true;
        // The room that is saved must go somewhere: all else in the file stays in its place.
        if (!filler)
            reference.type = "free";
        else
            shorter += reference.to.size() - 1;
        if (filler)
            reference.to = { reference.to.contains(items.primary) ? items.primary : reference.to.first() };
    }
    if (filler)
        filler->to.resize(filler->to.size() + shorter);
    const QByteArray before = boxContent(device, items.referencesAt, items.referencesEnd);
    device.seek(0);
    QByteArray bytes;
    for (const HeifReference& reference : std::as_const(references))
        bytes += boxOf(reference, items.idLength);
    return isChanged && bytes.size() == before.size() ? HeifPatch{ .at = items.referencesAt, .bytes = bytes }
                                                      : HeifPatch();
}

}  // namespace Quorbel
