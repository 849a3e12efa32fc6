#include "tools/zones/ZoneSource.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace Quorbel::ZoneBuild {

using namespace Qt::StringLiterals;

namespace {

QByteArray contents(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw BuildError(path + u": "_s + file.errorString());
    return file.readAll();
}

// A message of numbered fields, as protocol buffers are made of.
class Message {
public:
    explicit Message(QByteArrayView bytes)
        : m_bytes(bytes)
    {
    }

    struct Field {
        quint64 number = 0;
        quint64 value = 0;
        QByteArrayView bytes{};
    };

    bool hasMore() const { return m_at < m_bytes.size(); }

    Field next()
    {
        constexpr quint64 asNumber = 0;
        constexpr quint64 asBytes = 2;
        const quint64 key = number();
        Field field{ key >> 3U, number(), {} };
        if ((key & 7U) == asBytes) {
            if (field.value > quint64(m_bytes.size() - m_at))
                throw BuildError(u"a field that ends too early"_s);
            field.bytes = m_bytes.sliced(m_at, qsizetype(field.value));
            m_at += qsizetype(field.value);
        } else if ((key & 7U) != asNumber) {
            throw BuildError(u"a field of an unknown kind"_s);
        }
        return field;
    }

    quint64 number()
    {
        quint64 value = 0;
        for (unsigned shift = 0; shift < 64; shift += 7) {
            if (!hasMore())
                throw BuildError(u"a number that ends too early"_s);
            const auto byte = quint8(m_bytes[m_at++]);
            value |= quint64(byte & 0x7FU) << shift;
            if (byte < 0x80U)
                return value;
        }
        throw BuildError(u"a number that is too long"_s);
    }

    // Of either sign.
    qint64 difference()
    {
        const quint64 value = number();
        return qint64(value >> 1U) ^ -qint64(value & 1U);
    }

private:
    QByteArrayView m_bytes;
    qsizetype m_at = 0;
};

QList<quint64> numbersIn(QByteArrayView bytes)
{
    QList<quint64> numbers;
    for (Message message(bytes); message.hasMore();)
        numbers.append(message.number());
    return numbers;
}

// Corners are differences to the one before, each ring from nothing on, in millionths of a degree.
class Rings {
public:
    explicit Rings(QByteArrayView coordinates)
        : m_coordinates(coordinates)
    {
    }

    bool hasMore() const { return m_coordinates.hasMore(); }

    Ring next(quint64 corners)
    {
        constexpr double unit = 1e-6;
        Ring ring;
        qint64 x = 0;
        qint64 y = 0;
        for (quint64 i = 0; i < corners && hasMore(); ++i) {
            x += m_coordinates.difference();
            y += m_coordinates.difference();
            ring.append({ double(x) * unit, double(y) * unit });
        }
        return ring;
    }

private:
    Message m_coordinates;
};

// Of one polygon or of several: what is inside is told by counting borders, so all of them are one.
QList<Ring> ringsOf(QByteArrayView geometry)
{
    constexpr quint64 polygon = 4;
    constexpr quint64 polygons = 5;
    quint64 type = 0;
    QList<quint64> lengths;
    QByteArrayView coordinates;
    for (Message message(geometry); message.hasMore();) {
        const Message::Field field = message.next();
        if (field.number == 1)
            type = field.value;
        else if (field.number == 2)
            lengths = numbersIn(field.bytes);
        else if (field.number == 3)
            coordinates = field.bytes;
    }
    if (type != polygon && type != polygons)
        throw BuildError(u"a geometry that is no polygon"_s);
    Rings rings(coordinates);
    constexpr quint64 all = ~quint64(0);
    if (lengths.isEmpty())
        return { rings.next(all) };
    QList<Ring> found;
    if (type == polygon) {
        for (const quint64 length : lengths)
            found.append(rings.next(length));
        return found;
    }
    // The number of polygons, then of each the number of its rings, and of corners in each.
    for (qsizetype at = 1; at < lengths.size();) {
        const quint64 count = lengths.at(at++);
        for (quint64 i = 0; i < count && at < lengths.size(); ++i)
            found.append(rings.next(lengths.at(at++)));
    }
    return found;
}

QByteArray nameIn(QByteArrayView value)
{
    for (Message message(value); message.hasMore();)
        if (const Message::Field field = message.next(); field.number == 1)
            return field.bytes.toByteArray();
    return {};
}

}  // namespace

ZoneSource::ZoneSource(const QString& path)
    : m_polygons(contents(path + u".geo.dat"_s))
{
    const QJsonObject index = QJsonDocument::fromJson(contents(path + u".index.json"_s)).object();
    m_tree = index.value(u"lookup"_s).toObject();
    const QJsonArray zones = index.value(u"timezones"_s).toArray();
    for (const auto& zone : zones)
        m_zones.append(zone.toString().toUtf8());
    if (m_tree.isEmpty() || m_zones.isEmpty())
        throw BuildError(path + u": no zones"_s);
}

void ZoneSource::drawTo(ZoneRows& rows)
{
    drawTree(m_tree, { -180, -90, 180, 90 }, rows);
}

// A quarter that is missing lies in no zone.
void ZoneSource::drawTree(const QJsonObject& tree, const Area& area, ZoneRows& rows)
{
    const double x = (area.west + area.east) / 2;
    const double y = (area.south + area.north) / 2;
    const std::pair<QString, Area> quarters[]{ { u"a"_s, { x, y, area.east, area.north } },
        { u"b"_s, { area.west, y, x, area.north } }, { u"c"_s, { area.west, area.south, x, y } },
        { u"d"_s, { x, area.south, area.east, y } } };
    for (const auto& [name, quarter] : quarters) {
        const QJsonValue value = tree.value(name);
        const QJsonObject inner = value.toObject();
        if (value.isArray())
            rows.fill(quarter, quint16(value.toArray().first().toInt()));
        else if (inner.contains(u"pos"_s))
            drawPolygons(polygonsAt(inner), rows);
        else if (!inner.isEmpty())
            drawTree(inner, quarter, rows);
    }
}

QByteArrayView ZoneSource::polygonsAt(const QJsonObject& place) const
{
    const qint64 at = place.value(u"pos"_s).toInteger();
    const qint64 size = place.value(u"len"_s).toInteger();
    if (at < 0 || size < 0 || at + size > m_polygons.size())
        throw BuildError(u"polygons beyond the end of their file"_s);
    return QByteArrayView(m_polygons).sliced(at, size);
}

void ZoneSource::drawPolygons(QByteArrayView bytes, ZoneRows& rows)
{
    for (Message data(bytes); data.hasMore();) {
        const Message::Field collection = data.next();
        if (collection.number != 4)
            continue;
        for (Message features(collection.bytes); features.hasMore();) {
            const Message::Field feature = features.next();
            QList<Ring> rings;
            qsizetype zone = -1;
            for (Message parts(feature.bytes); parts.hasMore();) {
                const Message::Field part = parts.next();
                if (part.number == 1)
                    rings = ringsOf(part.bytes);
                else if (part.number == 13)
                    zone = m_zones.indexOf(nameIn(part.bytes));
            }
            if (zone < 0)
                throw BuildError(u"an area of no zone"_s);
            rows.draw(rings, quint16(zone));
        }
    }
}

}  // namespace Quorbel::ZoneBuild
