// What a HEIF or AVIF file says of its items: which of them is the picture, how they hang together, and what belongs to
// each (ISO/IEC 14496-12 and 23008-12). Reads boxes, never pixels, and believes no number in them.
// Thread: the one that owns the device; the values are plain.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QIODevice>
#include <QList>
#include <QSet>

namespace Quorbel {

struct HeifReference {
    QByteArray type{};  ///< four letters: "thmb", "dimg", …
    quint32 from = 0;
    QList<quint32> to{};
};

struct HeifProperty {
    QByteArray type{};
    qint64 at = 0;  ///< where its content lies in the file
    qint64 end = 0;
};

struct HeifItems {
    quint32 primary = 0;  ///< 0: none is named
    QList<HeifReference> references{};
    int idLength = 2;  ///< bytes of an item's number in the box of references
    qint64 referencesAt = 0;  ///< where the references lie in the file, behind version and flags
    qint64 referencesEnd = 0;
    QList<HeifProperty> properties{};
    QHash<quint32, QList<qsizetype>> propertiesOf{};  ///< by item, in their order: positions in `properties`

    /// What the device holds; empty where it is broken. The device's position is put back to the start.
    static HeifItems of(QIODevice& device);

    /// The items that are thumbnails of others.
    QSet<quint32> thumbnails() const;
    /// These items, and all that they are put together from.
    QSet<quint32> withParts(QSet<quint32> items) const;
};

}  // namespace Quorbel
