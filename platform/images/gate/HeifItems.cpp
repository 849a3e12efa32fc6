#include "platform/images/gate/HeifItems.h"

#include "platform/images/gate/ByteCursor.h"
#include "platform/images/gate/HeifBoxes.h"

#include <array>

namespace Quorbel {

namespace {

constexpr qint64 versionLength = 4;  // version and flags of a box
constexpr qint64 longestTable = 1024LL * 1024;

quint64 versionOf(QIODevice& device, qint64 at, qint64 end)
{
    return ByteCursor(boxContent(device, at, qMin(end, at + 1))).number(1);
}

void readReferences(QIODevice& device, qint64 at, qint64 end, HeifItems& items)
{
    items.idLength = versionOf(device, at, end) == 0 ? 2 : 4;
    items.references.clear();
    items.referencesAt = at + versionLength;
    items.referencesEnd = end;
    if (end - at > longestTable)
        return;
    eachBox(device, at + versionLength, end, [&](QByteArrayView type, qint64 bodyAt, qint64 bodyEnd) {
        HeifReference reference{ .type = type.toByteArray() };
        const QByteArray body = boxContent(device, bodyAt, bodyEnd);
        ByteCursor in(body);
        reference.from = quint32(in.number(items.idLength));
        for (quint64 count = in.number(2); count > 0; --count) {
            const auto target = quint32(in.number(items.idLength));
            if (!in.isValid())
                break;
            reference.to.append(target);
        }
        items.references.append(reference);
    });
}

// Which properties belong to which item; several such boxes add to one another.
void readAssociations(QIODevice& device, qint64 at, qint64 end, HeifItems& items)
{
    const QByteArray body = boxContent(device, at, end);
    ByteCursor in(body);
    const quint64 version = in.number(1), flags = in.number(3);
    for (quint64 count = in.number(4); count > 0 && in.isValid(); --count) {
        const auto item = quint32(in.number(version < 1 ? 2 : 4));
        for (quint64 own = in.number(1); own > 0 && in.isValid(); --own) {
            // The first bit says whether the property must be understood; numbers begin at 1.
            const quint64 number = (flags & 1) != 0 ? in.number(2) & 0x7FFF : in.number(1) & 0x7F;
            if (in.isValid() && number > 0)
                items.propertiesOf[item].append(qsizetype(number) - 1);
        }
    }
}

}  // namespace

HeifItems HeifItems::of(QIODevice& device)
{
    static constexpr std::array meta{ "meta" };
    static constexpr std::array properties{ "meta", "iprp" };
    static constexpr std::array all{ "meta", "iprp", "ipco" };
    HeifItems items;
    eachBoxInside(device, meta, [&](QByteArrayView type, qint64 at, qint64 end) {
        if (type == "iref")
            readReferences(device, at, end, items);
        else if (type == "pitm")
            items.primary = quint32(ByteCursor(boxContent(device, at + versionLength, end))
                                        .number(versionOf(device, at, end) == 0 ? 2 : 4));
    });
    eachBoxInside(device, all, [&](QByteArrayView type, qint64 at, qint64 end) {
        items.properties.append({ .type = type.toByteArray(), .at = at, .end = end });
    });
    qint64 length = 0;
    eachBoxInside(device, properties, [&](QByteArrayView type, qint64 at, qint64 end) {
        if (type == "ipma" && (length += end - at) <= longestTable)
            readAssociations(device, at, end, items);
    });
    if (length > longestTable)
        items.propertiesOf.clear();  // half of them would be worse than none
    device.seek(0);
    return items;
}

QSet<quint32> HeifItems::thumbnails() const
{
    QSet<quint32> found;
    for (const HeifReference& reference : references)
        if (reference.type == "thmb")
            found.insert(reference.from);
    return found;
}

QSet<quint32> HeifItems::withParts(QSet<quint32> items) const
{
    constexpr int deepest = 8;  // grids of overlays of turned pictures; what refers to itself ends here too
    for (int depth = 0; depth < deepest; ++depth) {
        const qsizetype before = items.size();
        for (const HeifReference& reference : references)
            if (reference.type == "dimg" && items.contains(reference.from))
                items.unite(QSet<quint32>(reference.to.cbegin(), reference.to.cend()));
        if (items.size() == before)
            break;
    }
    return items;
}

}  // namespace Quorbel
