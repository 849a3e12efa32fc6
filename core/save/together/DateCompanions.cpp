#include "core/save/together/DateCompanions.h"

#include "core/save/TagHomes.h"
#include "core/text/Text.h"
#include "core/text/WallClock.h"

#include <QRegularExpression>

#include <algorithm>

namespace Quorbel::DateCompanions {

using namespace Qt::StringLiterals;

namespace {

struct Companions {
    QString field{};
    QString iptcDay{};
    QString iptcTime{};
    QString xmp{};
    QString exif{};
    QString fraction{};  // of a second, in EXIF
    QString offsetField{};
    QString offset{};
};

const QList<Companions>& all()
{
    static const QList<Companions> rows{
        { u"date"_s, u"IPTC:DateCreated"_s, u"IPTC:TimeCreated"_s, u"XMP-exif:DateTimeOriginal"_s,
            u"EXIF:DateTimeOriginal"_s, u"EXIF:SubSecTimeOriginal"_s, u"offsetOriginal"_s,
            u"EXIF:OffsetTimeOriginal"_s },
        { u"dateDigitized"_s, u"IPTC:DigitalCreationDate"_s, u"IPTC:DigitalCreationTime"_s,
            u"XMP-exif:DateTimeDigitized"_s, u"EXIF:CreateDate"_s, u"EXIF:SubSecTimeDigitized"_s, u"offsetDigitized"_s,
            u"EXIF:OffsetTimeDigitized"_s },
    };
    return rows;
}

// At the end of a time: "+02:00", "Z"; "" where there is none.
QString zoneIn(const QString& text)
{
    static const QRegularExpression zone(uR"(([+-]\d\d:\d\d|Z)$)"_s);
    return zone.match(Text::trimmed(text)).captured();
}

// The photo's own for that date, as it will be.
QString zoneOf(const Companions& row, const EditPlan& plan, const FileTags& held)
{
    const QString known = plan.scalars.contains(row.offsetField) ? plan.scalars.value(row.offsetField)
                                                                 : TagHomes::itemsOf(row.offset, held).value(0);
    return zoneIn(known);
}

QList<Assignment> cleared(const Companions& row, const FileTags& held)
{
    QList<Assignment> assignments;
    for (const QString& tag : { row.iptcDay, row.iptcTime, row.xmp, row.fraction })
        if (!TagHomes::placesOf(tag, held).isEmpty())
            assignments.append({ .tag = tag });
    return assignments;
}

QList<Assignment> changed(const Companions& row, const QDateTime& date, const QString& zone, const FileTags& held)
{
    QList<Assignment> assignments;
    const auto put = [&](const QString& tag, const auto& valueFor) {
        if (!TagHomes::placesOf(tag, held).isEmpty())
            assignments.append({ .tag = tag, .value = valueFor(zoneIn(TagHomes::itemsOf(tag, held).value(0))) });
    };
    const QString stored = WallClock::stored(date);
    put(row.iptcDay, [&](const QString&) { return stored.section(u' ', 0, 0); });
    put(row.iptcTime, [&](const QString& own) {
        return stored.section(u' ', 1) + (!zone.isEmpty() ? zone : !own.isEmpty() ? own : u"+00:00"_s);
    });
    put(row.xmp, [&](const QString& own) { return stored + (own.isEmpty() || zone.isEmpty() ? own : zone); });
    // It belongs to a second that stays what it was.
    if (WallClock::fromStored(TagHomes::itemsOf(row.exif, held).value(0)) != date)
        put(row.fraction, [](const QString&) { return QString(); });
    return assignments;
}

}  // namespace

QStringList tagsOf(const QString& fieldId)
{
    for (const Companions& row : all())
        if (row.field == fieldId)
            return { row.iptcDay, row.iptcTime, row.xmp, row.fraction, row.offset };
    return {};
}

bool isIptcDateOrTime(const QString& tag)
{
    return std::any_of(all().cbegin(), all().cend(),
        [&tag](const Companions& row) { return tag == row.iptcDay || tag == row.iptcTime; });
}

QMap<QString, QList<Assignment>> change(const EditPlan& plan, const FileTags& held)
{
    QMap<QString, QList<Assignment>> together;
    for (const Companions& row : all()) {
        const auto typed = plan.scalars.constFind(row.field);
        if (typed == plan.scalars.cend())
            continue;
        const auto date = WallClock::fromTyped(Text::trimmed(*typed));
        QList<Assignment> assignments;
        if (date)
            assignments = changed(row, *date, zoneOf(row, plan, held), held);
        else if (Text::trimmed(*typed).isEmpty())
            assignments = cleared(row, held);
        if (!assignments.isEmpty())
            together.insert(row.field, assignments);
    }
    return together;
}

}  // namespace Quorbel::DateCompanions
