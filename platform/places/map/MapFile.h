// A map file (see MapFormat.h), mapped into memory and read with every bound checked: what a damaged file holds is
// left out, never trusted.
// Thread: any once opened; reading changes nothing.
#pragma once

#include "platform/places/map/MapFormat.h"

#include <QByteArray>
#include <QFile>
#include <QtEndian>

#include <memory>

namespace Quorbel {

/// Points of a bin, valid as long as the file is.
struct MapShape {
    quint8 type = 0;
    int size = 0;
    const uchar* bytes = nullptr;

    quint16 x(int i) const { return qFromLittleEndian<quint16>(bytes + qsizetype(i) * MapFormat::pointSize); }
    quint16 y(int i) const { return qFromLittleEndian<quint16>(bytes + qsizetype(i) * MapFormat::pointSize + 2); }
};

struct MapTown {
    quint16 x = 0;
    quint16 y = 0;
    quint8 rank = 0;
    quint8 flags = 0;
    quint32 population = 0;
    QByteArray name{};  ///< UTF-8; shares the file's memory
};

class MapFile {
public:
    Q_DISABLE_COPY_MOVE(MapFile)

    /// Null when there is no such file, or it is none of that kind.
    static std::unique_ptr<const MapFile> open(const QString& path, MapFormat::Kind kind);

    int columns() const { return m_columns; }
    int rows() const { return m_rows; }
    double degrees() const { return 360.0 / m_columns; }  ///< width and height of a bin
    double west(int bin) const { return bin % m_columns * degrees(); }  ///< longitude, 0…360
    double south(int bin) const
    {
        const int row = bin / m_columns;
        return 90 - (row + 1) * degrees();
    }

    /// Calls visit(const MapShape&) for the shapes of a bin, as far as they are whole.
    template <typename Visit>
    void forEachShape(int bin, Visit visit) const
    {
        for (auto [at, end] = span(bin); end - at >= MapFormat::shapeHeaderSize;) {
            const auto header = qFromLittleEndian<quint32>(at);
            const MapShape shape{ quint8(header & 0xFFU), int(header >> 8U), at + MapFormat::shapeHeaderSize };
            const auto size = MapFormat::shapeHeaderSize + qsizetype(shape.size) * MapFormat::pointSize;
            if (size > end - at)
                return;
            visit(shape);
            at += size;
        }
    }

    /// Calls visit(const MapTown&) for the towns of a bin, the highest rank first, until it returns false.
    template <typename Visit>
    void forEachTown(int bin, Visit visit) const
    {
        for (auto [at, end] = span(bin); end - at >= MapFormat::townHeaderSize;) {
            const qsizetype nameSize = at[MapFormat::townHeaderSize - 1];
            const auto* name = reinterpret_cast<const char*>(at + MapFormat::townHeaderSize);
            if (MapFormat::townHeaderSize + nameSize > end - at)
                return;
            const MapTown town{ qFromLittleEndian<quint16>(at), qFromLittleEndian<quint16>(at + 2), at[4], at[5],
                qFromLittleEndian<quint32>(at + 6), QByteArray::fromRawData(name, nameSize) };
            if (!visit(town))
                return;
            at += MapFormat::townHeaderSize + nameSize;
        }
    }

private:
    struct Span {
        const uchar* begin = nullptr;
        const uchar* end = nullptr;
    };

    MapFile() = default;
    bool map(const QString& path, MapFormat::Kind kind);
    Span span(int bin) const;

    QFile m_file{};  ///< keeps the mapping
    const uchar* m_bytes = nullptr;
    qint64 m_size = 0;
    int m_columns = 0;
    int m_rows = 0;
};

}  // namespace Quorbel
