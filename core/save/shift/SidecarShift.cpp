#include "core/save/shift/SidecarShift.h"

#include "core/save/TagHomes.h"
#include "core/sidecar/SidecarSchema.h"
#include "core/text/StoredTime.h"
#include "core/text/ZoneOffset.h"

#include <algorithm>

namespace Quorbel::SidecarShift {

using namespace Qt::StringLiterals;

namespace {

// One date, in all tags of both files that tell it.
struct Row {
    QStringList homes{};  // of the sidecar
    QString zone{};  // of the sidecar
    QString exif{};
    QString exifZone{};
    QStringList xmp{};  // of the photo
    QString iptcDay{};
    QString iptcTime{};
};

const QList<Row>& rows()
{
    static const QList<Row> rows{
        { SidecarSchema::spec(u"date"_s)->writeTags, SidecarSchema::spec(u"offsetOriginal"_s)->writeTags.constFirst(),
            u"EXIF:DateTimeOriginal"_s, u"EXIF:OffsetTimeOriginal"_s,
            { u"XMP-photoshop:DateCreated"_s, u"XMP-exif:DateTimeOriginal"_s }, u"IPTC:DateCreated"_s,
            u"IPTC:TimeCreated"_s },
        { SidecarSchema::spec(u"dateDigitized"_s)->writeTags,
            SidecarSchema::spec(u"offsetDigitized"_s)->writeTags.constFirst(), u"EXIF:CreateDate"_s,
            u"EXIF:OffsetTimeDigitized"_s, { u"XMP-xmp:CreateDate"_s, u"XMP-exif:DateTimeDigitized"_s },
            u"IPTC:DigitalCreationDate"_s, u"IPTC:DigitalCreationTime"_s },
    };
    return rows;
}

// When others changed the sidecar's photo last: told of the photo where it is the same as another date.
const QStringList& followers()
{
    static const QStringList tags{ u"XMP-xmp:ModifyDate"_s, u"XMP-tiff:DateTime"_s };
    return tags;
}

QString textIn(const QString& tag, const FileTags& held)
{
    return TagHomes::itemsOf(tag, held).value(0);
}

class Decision {
public:
    Decision(const TimeShift& shift, const FileTags& sidecar, const FileTags& photo)
        : m_shift(shift)
        , m_sidecar(among(sidecar))
        , m_photo(photo)
    {
        m_result.isOfSidecar = true;
        m_result.expected = m_sidecar;
        for (const Row& row : rows()) {
            const QString zone =
                m_sidecar.contains(row.zone) ? textIn(row.zone, m_sidecar) : textIn(row.exifZone, photo);
            m_zone = m_zone ? m_zone : ZoneOffset::minutes(zone);
            for (const QString& home : row.homes)
                note(StoredTime::from(textIn(home, m_sidecar)));
            if (!isTold(row))
                note(inPhoto(row));
        }
    }

    PhotoShift result()
    {
        if (m_shift.zone && !m_shift.keepsClock && !m_zone) {
            m_result.hasNoZone = true;
            return m_result;
        }
        for (const Row& row : rows())
            if (const bool hasDate = isTold(row) ? moveTold(row) : takeFromPhoto(row); hasDate && m_shift.zone)
                put(row.zone, ZoneOffset::text(*m_shift.zone));
        for (const QString& tag : followers())
            if (const auto time = StoredTime::from(textIn(tag, m_sidecar)); time && m_dates.contains(time->clock))
                putMoved(tag, *time);
        return m_result;
    }

private:
    void note(const std::optional<StoredTime>& time)
    {
        if (!time)
            return;
        m_dates.append(time->clock);
        m_zone = m_zone ? m_zone : ZoneOffset::minutes(time->zone);
    }

    // Hidden ones too.
    bool isTold(const Row& row) const
    {
        return std::any_of(
            row.homes.cbegin(), row.homes.cend(), [this](const QString& home) { return m_sidecar.contains(home); });
    }

    // The date that the photo shows, to the second: fractions have a tag of their own there, which stays.
    std::optional<StoredTime> inPhoto(const Row& row) const
    {
        auto time = StoredTime::from(textIn(row.exif, m_photo));
        for (const QString& tag : row.xmp)
            time = time ? time : StoredTime::from(textIn(tag, m_photo));
        const QString iptc = textIn(row.iptcDay, m_photo) + u' ' + textIn(row.iptcTime, m_photo);
        return time ? time : StoredTime::from(iptc);
    }

    void put(const QString& tag, const QString& text)
    {
        if (textIn(tag, m_sidecar) == text)
            return;
        m_result.expected[tag] = { text.toUtf8() };
        m_result.assignments.append({ .tag = tag, .value = text });
    }

    // Whether that could be done.
    bool putMoved(const QString& tag, const StoredTime& time)
    {
        const auto own = ZoneOffset::minutes(time.zone);
        const qint64 seconds = !m_shift.zone ? m_shift.seconds
            : m_shift.keepsClock             ? 0
                                             : (*m_shift.zone - own.value_or(m_zone.value_or(0))) * 60LL;
        auto moved = time.shifted(seconds);
        if (!moved)
            return false;
        // A zone stands in a date where it did; all have a tag of their own for it.
        if (m_shift.zone && own)
            moved->zone = ZoneOffset::text(*m_shift.zone);
        put(tag, moved->text());
        return true;
    }

    bool moveTold(const Row& row)
    {
        bool hasDate = false;
        for (const QString& home : row.homes) {
            const QString text = textIn(home, m_sidecar);
            const auto time = StoredTime::from(text);
            if (time && putMoved(home, *time))
                hasDate = true;
            else if (!text.isEmpty())
                m_result.leftAlone.append(home);
        }
        return hasDate;
    }

    // A date that stays need not come along.
    bool takeFromPhoto(const Row& row)
    {
        const auto time = inPhoto(row);
        if (!time) {
            for (const QString& tag : QStringList(row.exif) + row.xmp)
                if (!textIn(tag, m_photo).isEmpty())
                    m_result.leftAlone.append(tag);
            return false;
        }
        if (m_shift.zone && m_shift.keepsClock)
            return true;
        bool isMoved = false;
        for (const QString& home : row.homes)
            isMoved = putMoved(home, *time);
        if (!isMoved)
            m_result.leftAlone.append(row.exif);
        const QString zone = textIn(row.exifZone, m_photo);
        if (isMoved && ZoneOffset::minutes(zone) && !m_sidecar.contains(row.zone) && !m_shift.zone)
            put(row.zone, zone);
        return isMoved;
    }

    const TimeShift m_shift;
    const FileTags m_sidecar;
    const FileTags& m_photo;
    std::optional<int> m_zone;  // of the photo's clock
    QList<QDateTime> m_dates;
    PhotoShift m_result;
};

}  // namespace

const QStringList& tags()
{
    static const QStringList tags = [] {
        QStringList tags = followers();
        for (const Row& row : rows())
            tags << row.homes << row.zone;
        return tags;
    }();
    return tags;
}

FileTags among(const FileTags& held)
{
    FileTags found;
    for (const QString& tag : tags())
        found.insert(TagHomes::placesOf(tag, held));
    return found;
}

PhotoShift of(const TimeShift& shift, const FileTags& sidecar, const FileTags& photo, const SidecarNote& note)
{
    PhotoShift result = Decision(shift, sidecar, photo).result();
    if (!result.assignments.isEmpty())
        result.assignments += MetadataWriter::noteArgs(note);
    return result;
}

}  // namespace Quorbel::SidecarShift
