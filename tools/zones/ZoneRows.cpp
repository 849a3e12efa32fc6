#include "tools/zones/ZoneRows.h"

#include "platform/places/zones/ZoneFormat.h"

#include <QMap>

#include <algorithm>
#include <cmath>

namespace Quorbel::ZoneBuild {

namespace {

double middle(int row)
{
    return -90 + (row + 0.5) / ZoneFormat::rowsPerDegree;
}

// The first row whose middle lies at this latitude or north of it.
int firstRow(double latitude)
{
    return std::clamp(int(std::ceil((latitude + 90) * ZoneFormat::rowsPerDegree - 0.5)), 0, ZoneFormat::rows);
}

void put(QByteArray& bytes, quint16 number)
{
    bytes.append(char(number & 0xFFU));
    bytes.append(char(number >> 8U));
}

}  // namespace

ZoneRows::ZoneRows()
    : m_rows(ZoneFormat::rows)
{
}

void ZoneRows::fill(const Area& area, quint16 zone)
{
    for (int row = firstRow(area.south); row < firstRow(area.north); ++row)
        m_rows[size_t(row)].push_back({ area.west, area.east, zone });
}

void ZoneRows::draw(const QList<Ring>& rings, quint16 zone)
{
    QMap<int, std::vector<double>> crossings;
    for (const Ring& ring : rings) {
        for (qsizetype i = 0; i < ring.size(); ++i) {
            // A ring ends where it began.
            const auto [low, high] = std::minmax(ring[i], ring[(i + 1) % ring.size()],
                [](const Corner& a, const Corner& b) { return a.latitude < b.latitude; });
            for (int row = firstRow(low.latitude); row < firstRow(high.latitude); ++row) {
                const double along = (middle(row) - low.latitude) / (high.latitude - low.latitude);
                crossings[row].push_back(low.longitude + along * (high.longitude - low.longitude));
            }
        }
    }
    for (auto it = crossings.begin(); it != crossings.end(); ++it) {
        std::sort(it->begin(), it->end());
        for (size_t i = 1; i < it->size(); i += 2)
            m_rows[size_t(it.key())].push_back({ (*it)[i - 1], (*it)[i], zone });
    }
}

QList<QByteArray> ZoneRows::runs() const
{
    QList<QByteArray> all;
    all.reserve(qsizetype(m_rows.size()));
    for (const auto& spans : m_rows)
        all.append(runsOf(spans));
    return all;
}

QByteArray ZoneRows::runsOf(std::vector<Span> spans)
{
    std::sort(spans.begin(), spans.end(), [](const Span& a, const Span& b) { return a.west < b.west; });
    const auto columnOf = [](double longitude) {
        return std::clamp(int(std::lround((longitude + 180) / 360 * ZoneFormat::columns)), 0, ZoneFormat::columns);
    };
    QByteArray runs;
    quint16 count = 0;
    int end = 0;
    quint16 last = ZoneFormat::nowhere;
    const auto begin = [&](int column, quint16 zone) {
        if (zone == last)
            return;
        put(runs, quint16(column));
        put(runs, zone);
        last = zone;
        ++count;
    };
    for (const Span& span : spans) {
        const int from = std::max(end, columnOf(span.west));
        const int to = columnOf(span.east);
        if (to <= from)
            continue;
        // The patches that the areas come in meet at their borders.
        if (from > end + 1)
            begin(end, ZoneFormat::nowhere);
        begin(from, span.zone);
        end = to;
    }
    if (end < ZoneFormat::columns)
        begin(end, ZoneFormat::nowhere);
    QByteArray whole;
    put(whole, count);
    return whole + runs;
}

}  // namespace Quorbel::ZoneBuild
