#include "app/model/timeshift/ShiftPreview.h"

#include "core/language/Texts.h"
#include "core/text/Coordinates.h"
#include "core/text/StoredTime.h"
#include "core/text/Text.h"
#include "core/text/WallClock.h"
#include "core/text/ZoneOffset.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// A photo that has a time.
struct Dated {
    const ShiftPhoto* photo = nullptr;
    QDateTime before{};
    QDateTime after{};
    std::optional<int> zone{};  // that its clock is in
    TimeShift shift{};
};

// As records show it, and of XMP with a zone as it is stored.
std::optional<StoredTime> timeIn(const QString& text)
{
    if (const auto typed = WallClock::fromTyped(text))
        return StoredTime{ .clock = *typed };
    return StoredTime::from(text);
}

std::optional<int> zoneOf(const QMap<QString, QString>& values)
{
    for (const QString& id : { u"offsetOriginal"_s, u"offsetDigitized"_s })
        if (const auto minutes = ZoneOffset::minutes(values.value(id)))
            return minutes;
    const auto time = timeIn(values.value(u"date"_s));
    return time ? ZoneOffset::minutes(time->zone) : std::nullopt;
}

QString shown(const QDateTime& clock, std::optional<int> zone)
{
    return WallClock::shown(clock) + (zone ? ZoneOffset::text(*zone) : QString());
}

// The names are the text's %1.
void addLine(QStringList& lines, const QStringList& names, const QString& text)
{
    if (!names.isEmpty())
        lines.append(text.arg(Text::listed(names)));
}

// Goes through the photos, then tells of those that have a time.
class Survey {
public:
    explicit Survey(const ShiftQuestion& question)
        : m_question(question)
    {
    }

    void take(const ShiftPhoto& photo)
    {
        const QString date = photo.values.value(u"date"_s);
        const auto clock = ShiftPreview::clockOf(photo.values);
        if (!clock) {
            if (date.isEmpty())
                m_result.undated.append(photo.url.fileName());
            else
                m_result.odd.append(u"%1 (%2)"_s.arg(photo.url.fileName(), date));
            return;
        }
        Dated dated{ &photo, m_question.exact.value(photo.url, *clock), {}, zoneOf(photo.values), {} };
        if (m_question.zone ? setZone(dated) : move(dated))
            m_dated.push_back(dated);
    }

    ShiftPreview result()
    {
        m_result.mostZone = mostZone();
        for (const Dated& dated : m_dated) {
            m_result.targets.append(dated.photo->url);
            m_result.shifts.insert(dated.photo->url, dated.shift);
        }
        if (!m_dated.empty())
            addRows();
        return m_result;
    }

private:
    bool move(Dated& dated)
    {
        dated.shift.seconds = m_question.seconds;
        dated.after = dated.before.addSecs(m_question.seconds);
        const int year = dated.after.date().year();
        const bool isPossible = dated.after.isValid() && year >= 1 && year <= 9999;
        if (!isPossible)
            m_result.odd.append(u"%1 (%2)"_s.arg(dated.photo->url.fileName(), WallClock::shown(dated.before)));
        return isPossible;
    }

    const TimeZone* zoneAt(const ShiftPhoto& photo) const
    {
        const auto point = Coordinates::parse(photo.values.value(u"coords"_s));
        return point && m_question.zones ? m_question.zones->at(point->latitude, point->longitude) : nullptr;
    }

    bool setZone(Dated& dated)
    {
        const ShiftZone& wanted = *m_question.zone;
        const TimeZone* own = zoneAt(*dated.photo);
        if (own) {
            ++m_result.positions;
            ++m_here[own->id];
            m_result.inZone += own->id == wanted.id ? 1 : 0;
        }
        const QByteArray id = wanted.isOwn ? (own ? own->id : QByteArray()) : wanted.id;
        dated.shift.zone = id.isEmpty() ? wanted.minutes : TimeZones::offset(id, dated.before);
        dated.shift.keepsClock = m_question.keepsClock;
        if (!dated.shift.zone) {
            m_result.placeless.append(dated.photo->url.fileName());
            return false;
        }
        if (!m_question.keepsClock && !dated.zone) {
            m_result.zoneless.append(dated.photo->url.fileName());
            return false;
        }
        dated.after =
            m_question.keepsClock ? dated.before : dated.before.addSecs((*dated.shift.zone - *dated.zone) * 60LL);
        return true;
    }

    QByteArray mostZone() const
    {
        const auto most = std::max_element(m_here.cbegin(), m_here.cend());
        return most == m_here.cend() ? QByteArray() : most.key();
    }

    ShiftPreview::Row row(const QString& title, const Dated& dated) const
    {
        const bool hasZones = m_question.zone.has_value();
        return { title, shown(dated.before, hasZones ? dated.zone : std::nullopt),
            shown(dated.after, hasZones ? dated.shift.zone : std::nullopt), dated.photo->url };
    }

    // The earliest of those that are such.
    template <typename Such>
    void addFirst(QString (*title)(qsizetype count), Such such)
    {
        const auto count = std::count_if(m_dated.cbegin(), m_dated.cend(), such);
        const auto first = std::find_if(m_dated.cbegin(), m_dated.cend(), such);
        if (first != m_dated.cend())
            m_result.rows.append(row(title(count), *first));
    }

    void addRows()
    {
        std::stable_sort(
            m_dated.begin(), m_dated.end(), [](const Dated& a, const Dated& b) { return a.before < b.before; });
        m_result.first = m_dated.front().before;
        //: names of rows: when the only photo, or the first and the last one, was taken
        m_result.rows.append(
            row(m_dated.size() == 1 ? Texts::tr("Taken", "of a photo") : Texts::tr("First", "of some photos"),
                m_dated.front()));
        if (m_dated.size() > 1)
            m_result.rows.append(row(Texts::tr("Last", "of some photos"), m_dated.back()));
        if (m_question.zone && m_question.keepsClock)
            //: %n is a number of photos
            addFirst([](qsizetype count) { return Texts::tr("%n had no zone", nullptr, count); },
                [](const Dated& dated) { return !dated.zone; });
        else
            //: %n is a number of photos
            addFirst([](qsizetype count) { return Texts::tr("%n on a new day", nullptr, count); },
                [](const Dated& dated) { return dated.before.date() != dated.after.date(); });
    }

    const ShiftQuestion& m_question;
    ShiftPreview m_result;
    std::vector<Dated> m_dated;
    QMap<QByteArray, int> m_here;  // photos by zone
};

}  // namespace

ShiftPreview ShiftPreview::of(const QList<ShiftPhoto>& photos, const ShiftQuestion& question)
{
    Survey survey(question);
    for (const ShiftPhoto& photo : photos)
        survey.take(photo);
    return survey.result();
}

std::optional<QDateTime> ShiftPreview::clockOf(const QMap<QString, QString>& values)
{
    for (const QString& id : { u"date"_s, u"dateDigitized"_s })
        if (const auto time = timeIn(values.value(id)))
            return time->clock;
    return std::nullopt;
}

QString ShiftPreview::warning() const
{
    QStringList texts;
    //: %1 names the photos
    addLine(texts, undated,
        Texts::tr("%n photo(s) (has no date and is|have no date and are) left alone: %1", nullptr, undated.size()));
    //: %1 names the photos, with their dates
    addLine(texts, odd,
        Texts::tr("%n photo(s) (has an odd date and is|have odd dates and are) left alone: %1", nullptr, odd.size()));
    //: %1 names the photos
    addLine(texts, zoneless,
        Texts::tr("%n photo(s) (has no time zone to come from and is|have no time zone to come "
                  "from and are) left alone: %1",
            nullptr, zoneless.size()));
    //: %1 names the photos
    addLine(texts, placeless,
        Texts::tr("%n photo(s) (has no position in a time zone and is|have no position in a time "
                  "zone and are) left alone: %1",
            nullptr, placeless.size()));
    return texts.join(u". "_s);
}

QString ShiftPreview::positionsText() const
{
    if (positions == 0)
        return {};
    if (positions == 1)
        return inZone == 1 ? Texts::tr("The one position lies in this zone.")
                           : Texts::tr("The one position lies in another zone.");
    return Texts::tr("%1 of %n positions lie in this zone.", nullptr, positions).arg(inZone);
}

QString ShiftPreview::amountText(qint64 seconds)
{
    const qint64 size = std::abs(seconds);
    const auto padded = [](qint64 number, bool isInner) {
        return u"%1"_s.arg(number, isInner ? 2 : 1, 10, QChar(u'0'));
    };
    QStringList parts;
    if (const qint64 days = size / 86400; days > 0)
        //: days
        parts.append(Texts::tr("%1 d").arg(days));
    if (const qint64 hours = size / 3600 % 24; hours > 0)
        //: hours
        parts.append(Texts::tr("%1 h").arg(hours));
    if (const qint64 minutes = size / 60 % 60; minutes > 0)
        //: minutes
        parts.append(Texts::tr("%1 min").arg(padded(minutes, !parts.isEmpty())));
    if (const qint64 rest = size % 60; rest > 0 || parts.isEmpty())
        //: seconds
        parts.append(Texts::tr("%1 s").arg(padded(rest, !parts.isEmpty())));
    //: %1 is a span of time: "1 h 02 min 30 s later"
    return (seconds < 0 ? Texts::tr("%1 earlier") : Texts::tr("%1 later")).arg(parts.join(u' '));
}

}  // namespace Quorbel
