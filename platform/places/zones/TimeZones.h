// The time zones of the world, and which one a position lies in, from a file on this machine.
// Thread: any once opened; reading changes nothing.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QList>
#include <QString>

#include <memory>
#include <optional>

namespace Quorbel {

struct TimeZone {
    QByteArray id{};  ///< IANA's, "Europe/Zurich"
    QString town{};  ///< that it is known by, "Zürich"
    bool operator==(const TimeZone&) const = default;
};

class TimeZones {
public:
    Q_DISABLE_COPY_MOVE(TimeZones)

    /// From the folder of the place data; null when there is no such file, or it is none.
    static std::shared_ptr<const TimeZones> open(const QString& dataFolder);
    static QString fileName() { return QStringLiteral("time-zones.dat"); }

    /// By name.
    const QList<TimeZone>& all() const { return m_zones; }
    /// Null in open sea, and where no zone is known. To about a kilometer.
    const TimeZone* at(double latitude, double longitude) const;
    /// Minutes that clocks in this zone, which stand at `wallClock` (its own zone plays no part), are ahead of UTC;
    /// nothing for a zone that this system does not know. An hour that is skipped counts as the one before.
    static std::optional<int> offset(const QByteArray& id, const QDateTime& wallClock);

private:
    TimeZones() = default;
    bool read(const QString& path);

    QFile m_file{};  ///< keeps the mapping
    const uchar* m_bytes = nullptr;
    qint64 m_size = 0;
    QList<TimeZone> m_zones{};
};

}  // namespace Quorbel
