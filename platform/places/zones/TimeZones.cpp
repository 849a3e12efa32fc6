#include "platform/places/zones/TimeZones.h"

#include "platform/places/zones/ZoneFormat.h"

#include <QDir>
#include <QTimeZone>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Quorbel {

std::shared_ptr<const TimeZones> TimeZones::open(const QString& dataFolder)
{
    const std::shared_ptr<TimeZones> zones(new TimeZones);
    if (!zones->read(QDir(dataFolder).filePath(fileName())))
        return nullptr;
    return zones;
}

bool TimeZones::read(const QString& path)
{
    m_file.setFileName(path);
    m_size = m_file.open(QIODevice::ReadOnly) ? m_file.size() : 0;
    qint64 at = ZoneFormat::headerSize + qint64(ZoneFormat::rows) * qint64(sizeof(quint32));
    if (m_size < at)
        return false;
    m_bytes = m_file.map(0, m_size);
    if (!m_bytes || std::memcmp(m_bytes, ZoneFormat::magic, sizeof ZoneFormat::magic) != 0)
        return false;
    const auto count = qFromLittleEndian<quint16>(m_bytes + sizeof ZoneFormat::magic);
    for (int i = 0; i < count; ++i) {
        if (at + 2 > m_size || at + 2 + m_bytes[at] + m_bytes[at + 1] > m_size)
            return false;
        const int idSize = m_bytes[at];
        const int townSize = m_bytes[at + 1];
        const auto* const text = reinterpret_cast<const char*>(m_bytes + at + 2);
        m_zones.append({ QByteArray(text, idSize), QString::fromUtf8(text + idSize, townSize) });
        at += 2 + idSize + townSize;
    }
    return true;
}

const TimeZone* TimeZones::at(double latitude, double longitude) const
{
    if (!(std::abs(latitude) <= 90) || !(std::abs(longitude) <= 360))
        return nullptr;
    const int row = std::min(int((latitude + 90) * ZoneFormat::rowsPerDegree), ZoneFormat::rows - 1);
    const double around = (longitude + 180) / 360;
    const int column = std::min(int((around - std::floor(around)) * ZoneFormat::columns), ZoneFormat::columns - 1);
    const auto* const offsets = m_bytes + ZoneFormat::headerSize;
    const qint64 begin = qFromLittleEndian<quint32>(offsets + qsizetype(row) * qsizetype(sizeof(quint32)));
    if (begin + 2 > m_size)
        return nullptr;
    const int runs = qFromLittleEndian<quint16>(m_bytes + begin);
    if (begin + 2 + qint64(runs) * ZoneFormat::runSize > m_size)
        return nullptr;
    const auto* const first = m_bytes + begin + 2;
    // The last run that begins at or before the column.
    int low = 0;
    int high = runs;
    while (low < high) {
        const int middle = (low + high) / 2;
        if (qFromLittleEndian<quint16>(first + qsizetype(middle) * ZoneFormat::runSize) <= column)
            low = middle + 1;
        else
            high = middle;
    }
    if (low == 0)
        return nullptr;
    const auto zone = qFromLittleEndian<quint16>(first + qsizetype(low - 1) * ZoneFormat::runSize + 2);
    return zone < m_zones.size() ? &m_zones.at(zone) : nullptr;
}

std::optional<int> TimeZones::offset(const QByteArray& id, const QDateTime& wallClock)
{
    const QTimeZone zone(id);
    if (!zone.isValid() || !wallClock.isValid())
        return std::nullopt;
    // The clock as if it were UTC lies at most a day beside the moment: what holds then, then what holds at that.
    const QDateTime asUtc(wallClock.date(), wallClock.time(), Qt::UTC);
    constexpr int day = 24 * 60 * 60;
    const int before = zone.offsetFromUtc(asUtc.addSecs(-day));
    const int after = zone.offsetFromUtc(asUtc.addSecs(day));
    int offset = before;
    if (before != after && zone.offsetFromUtc(asUtc.addSecs(-after)) == after
        && zone.offsetFromUtc(asUtc.addSecs(-before)) != before)
        offset = after;
    constexpr double minute = 60;
    return int(std::lround(offset / minute));
}

}  // namespace Quorbel
