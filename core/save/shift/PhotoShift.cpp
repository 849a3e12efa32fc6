#include "core/save/shift/PhotoShift.h"

#include "core/save/TagHomes.h"
#include "core/save/shift/SidecarShift.h"
#include "core/text/StoredTime.h"
#include "core/text/ZoneOffset.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// One date of a photo, in all tags that tell it.
struct Row {
    QString exif{};
    QString zone{};  // of that tag
    QStringList xmp{};
    QString iptcDay{};
    QString iptcTime{};
    bool follows = false;  // where it is the same as another date
};

const QList<Row>& rows()
{
    static const QList<Row> rows{
        { u"EXIF:DateTimeOriginal"_s, u"EXIF:OffsetTimeOriginal"_s,
            { u"XMP-exif:DateTimeOriginal"_s, u"XMP-photoshop:DateCreated"_s }, u"IPTC:DateCreated"_s,
            u"IPTC:TimeCreated"_s },
        { u"EXIF:CreateDate"_s, u"EXIF:OffsetTimeDigitized"_s,
            { u"XMP-exif:DateTimeDigitized"_s, u"XMP-xmp:CreateDate"_s }, u"IPTC:DigitalCreationDate"_s,
            u"IPTC:DigitalCreationTime"_s },
        { u"EXIF:ModifyDate"_s, u"EXIF:OffsetTime"_s, { u"XMP-xmp:ModifyDate"_s, u"XMP-tiff:DateTime"_s }, {}, {},
            true },
    };
    return rows;
}

QString textIn(const QList<QByteArray>& values)
{
    return values.size() == 1 ? QString::fromUtf8(values.constFirst()) : QString();
}

QDate dayIn(const QString& text)
{
    return QDate::fromString(text, u"yyyy:MM:dd"_s);
}

// The whole decision of one photo.
class Decision {
public:
    Decision(const TimeShift& shift, const FileTags& held)
        : m_shift(shift)
        , m_held(PhotoShift::among(held))
    {
        m_result.expected = m_held;
        for (const Row& row : rows()) {
            const auto own = ZoneOffset::minutes(TagHomes::itemsOf(row.zone, m_held).value(0));
            m_zone = m_zone ? m_zone : own;
            for (const QString& tag : QStringList(row.exif) + row.xmp)
                if (const auto time = StoredTime::from(TagHomes::itemsOf(tag, m_held).value(0)); time && !row.follows) {
                    m_dates.append(time->clock);
                    m_zone = m_zone ? m_zone : ZoneOffset::minutes(time->zone);
                    m_taken = m_taken ? m_taken : time;
                }
        }
    }

    PhotoShift result()
    {
        if (m_shift.zone && !m_shift.keepsClock && !m_zone) {
            m_result.hasNoZone = true;
            return m_result;
        }
        for (const Row& row : rows()) {
            const bool hasExif = moveExif(row);
            for (const QString& tag : row.xmp)
                moveXmp(row, tag, !hasExif);
            if (!row.iptcDay.isEmpty())
                moveIptc(row);
        }
        return m_result;
    }

private:
    // How far a clock goes that is in this zone.
    qint64 secondsFrom(std::optional<int> zone) const
    {
        if (!m_shift.zone)
            return m_shift.seconds;
        return m_shift.keepsClock ? 0 : (*m_shift.zone - zone.value_or(*m_zone)) * 60LL;
    }

    void add(const QString& tag, qint64 seconds)
    {
        using enum Assignment::Operation;
        if (seconds != 0)
            m_result.assignments.append(
                { tag, seconds < 0 ? remove : Assignment::Operation::add, TimeShift::forTool(seconds) });
    }

    void put(const QString& tag, const QString& key, const QString& text)
    {
        m_result.expected[key] = { text.toUtf8() };
        if (QString::fromUtf8(m_held.value(key).value(0)) != text)
            m_result.assignments.append({ .tag = tag, .value = text });
    }

    bool follows(const Row& row, const StoredTime& time) const { return !row.follows || m_dates.contains(time.clock); }

    // Whether the photo has the date, such that it moves.
    bool moveExif(const Row& row)
    {
        const FileTags places = TagHomes::placesOf(row.exif, m_held);
        const auto own = ZoneOffset::minutes(TagHomes::itemsOf(row.zone, m_held).value(0));
        const qint64 seconds = secondsFrom(own);
        bool hasMoved = false;
        for (auto place = places.cbegin(); place != places.cend(); ++place) {
            const auto time = StoredTime::from(textIn(*place));
            const bool isPlain = time && time->hasSeconds && time->fraction.isEmpty() && time->zone.isEmpty();
            const auto moved = isPlain ? time->shifted(seconds) : std::nullopt;
            if (!moved) {
                m_result.leftAlone.append(row.exif);
                continue;
            }
            if (!follows(row, *time))
                continue;
            hasMoved = true;
            m_result.expected[place.key()] = { moved->text().toUtf8() };
            add(places.size() == 1 ? row.exif : place.key(), seconds);
        }
        if (places.isEmpty())
            add(row.exif, seconds);
        if (hasMoved && m_shift.zone) {
            const FileTags zones = TagHomes::placesOf(row.zone, m_held);
            const QString name = u"ExifIFD:"_s + row.zone.section(u':', 1);
            put(row.zone, zones.isEmpty() ? name : zones.firstKey(), ZoneOffset::text(*m_shift.zone));
        }
        return hasMoved;
    }

    // The time as it is to be. One that tells the moment of EXIF in another zone's words goes on telling it.
    std::optional<StoredTime> moved(const Row& row, StoredTime time, bool getsZone) const
    {
        const auto own = ZoneOffset::minutes(time.zone);
        if (!m_shift.zone)
            return time.shifted(m_shift.seconds);
        std::optional<int> from = own;
        const auto exif = StoredTime::from(TagHomes::itemsOf(row.exif, m_held).value(0));
        if (own && exif && m_zone && time.clock.addSecs(-60LL * *own) == exif->clock.addSecs(-60LL * *m_zone)) {
            time.clock = exif->clock;
            from = m_zone;
        }
        auto result = time.shifted(secondsFrom(from));
        if (result && (own || getsZone))
            result->zone = ZoneOffset::text(*m_shift.zone);
        return result;
    }

    // A zone stands in XMP where there was one, and where no other tag can tell it.
    void moveXmp(const Row& row, const QString& tag, bool isAlone)
    {
        const QString text = textIn(m_held.value(tag));
        const auto time = StoredTime::from(text);
        if (!m_held.contains(tag))
            return add(tag, m_shift.zone ? 0 : m_shift.seconds);
        const auto result = time ? moved(row, *time, isAlone && time->hasSeconds) : std::nullopt;
        if (!result)
            return moveDay(tag, tag);
        if (!follows(row, *time))
            return;
        if (m_shift.zone)
            return put(tag, tag, result->text());
        m_result.expected[tag] = { result->text().toUtf8() };
        add(tag, m_shift.seconds);
    }

    // One without a time, that of the photo.
    void moveDay(const QString& tag, const QString& key)
    {
        const QDate day = dayIn(textIn(m_held.value(key)));
        const auto taken = m_taken ? m_taken->shifted(secondsFrom(m_zone)) : std::nullopt;
        if (!taken || !day.isValid() || day != m_taken->clock.date())
            return m_result.leftAlone.append(tag);
        put(tag, key, taken->clock.toString(u"yyyy:MM:dd"_s));
    }

    // The tool would give a time without a zone this computer's.
    void moveIptc(const Row& row)
    {
        const FileTags days = TagHomes::placesOf(row.iptcDay, m_held);
        const FileTags times = TagHomes::placesOf(row.iptcTime, m_held);
        if (days.isEmpty() && times.isEmpty())
            return;
        const bool isOneBlock = (days.keys() + times.keys()).size()
            == (days.contains(row.iptcDay) ? 1 : 0) + (times.contains(row.iptcTime) ? 1 : 0);
        if (isOneBlock && times.isEmpty())
            return moveDay(row.iptcDay, row.iptcDay);
        const auto time = StoredTime::from(textIn(days.value(row.iptcDay)) + u' ' + textIn(times.value(row.iptcTime)));
        auto result = isOneBlock && time ? moved(row, *time, true) : std::nullopt;
        if (!result)
            return m_result.leftAlone.append(row.iptcTime);
        if (result->zone.isEmpty())
            result->zone = ZoneOffset::text(m_zone.value_or(0));
        put(row.iptcDay, row.iptcDay, result->clock.toString(u"yyyy:MM:dd"_s));
        put(row.iptcTime, row.iptcTime, result->clock.toString(u"HH:mm:ss"_s) + result->zone);
    }

    const TimeShift m_shift;
    const FileTags m_held;
    std::optional<int> m_zone;  // of the photo's clock
    std::optional<StoredTime> m_taken;
    QList<QDateTime> m_dates;
    PhotoShift m_result;
};

}  // namespace

const QStringList& PhotoShift::tags()
{
    static const QStringList tags = [] {
        QStringList tags;
        for (const Row& row : rows())
            tags << row.exif << row.zone << row.xmp << row.iptcDay << row.iptcTime;
        tags.removeAll(QString());
        return tags << u"EXIF:SubSecTimeOriginal"_s << u"EXIF:SubSecTimeDigitized"_s << u"EXIF:SubSecTime"_s;
    }();
    return tags;
}

PhotoShift PhotoShift::of(const TimeShift& shift, const FileTags& held)
{
    return Decision(shift, held).result();
}

FileTags PhotoShift::among(const FileTags& held)
{
    FileTags found;
    for (const QString& tag : tags())
        found.insert(TagHomes::placesOf(tag, held));
    return found;
}

FileTags PhotoShift::watched(const FileTags& held) const
{
    return isOfSidecar ? SidecarShift::among(held) : among(held);
}

QStringList PhotoShift::differences(const FileTags& found) const
{
    const FileTags now = watched(found);
    QStringList keys = expected.keys() + now.keys();
    keys.removeDuplicates();
    keys.removeIf([&](const QString& key) { return expected.value(key) == now.value(key); });
    return keys;
}

}  // namespace Quorbel
