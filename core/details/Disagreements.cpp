#include "core/details/Disagreements.h"

#include "core/details/FieldHomes.h"
#include "core/details/FileHome.h"
#include "core/details/SidecarDetails.h"
#include "core/save/ListHomes.h"
#include "core/save/TagHomes.h"
#include "core/schema/FieldSchema.h"
#include "core/sidecar/SidecarSchema.h"
#include "core/tool/MetadataReader.h"
#include "core/tool/MetadataWriter.h"

#include <algorithm>

namespace Quorbel::Disagreements {

using namespace Qt::StringLiterals;

namespace {

using FieldHomes::Home;
using Homes = QList<Home>;

// One field of one photo.
class Comparison {
public:
    Comparison(const FieldSpec& field, const ImageRecord& photo, const JSONObject& tags)
        : m_field(field)
        , m_recorded(field.isList() ? photo.lists.value(field.id) : QStringList(photo.values.value(field.id)))
        , m_homes(FieldHomes::of(field, tags))
    {
        m_homes.removeIf([&photo](const Home& home) { return !TagHomes::holds(photo.fileType, home.held.tag); });
    }

    // Nothing where the homes agree.
    QList<FieldHome> places() const
    {
        const Home* shown = shownHome();
        if (!shown)
            return {};
        const Sorted sorted = against(*shown, { shown->held.tag });
        return sorted.others.isEmpty() ? sorted.others : QList{ place(*shown, true) } + sorted.alike + sorted.others;
    }

    // The same of these homes, which a sidecar has, and of those of the photo's own file.
    QList<FieldHome> placesBeside(const Comparison& file) const
    {
        const Home* found = shownHome();
        const Home shown = found ? *found : emptied();
        const Sorted own = against(shown, { shown.held.tag });
        const Sorted others = file.against(shown, {});
        if (own.others.isEmpty() && others.others.isEmpty())
            return {};
        return QList{ place(shown, true) } + own.alike + own.others + ofFile(others.alike + others.others);
    }

    static QList<FieldHome> ofFile(QList<FieldHome> homes)
    {
        for (FieldHome& home : homes)
            home = FileHome::of(home);
        return homes;
    }

private:
    struct Sorted {
        QList<FieldHome> alike{};
        QList<FieldHome> others{};
    };

    // Those that hold something. `seen`: tags that are left out.
    Sorted against(const Home& shown, QStringList seen) const
    {
        Sorted sorted;
        for (const Home& home : m_homes) {
            if (home.isForeign || isBlank(home) || seen.contains(home.held.tag))
                continue;
            seen.append(home.held.tag);
            const bool isAlike = !shown.isStructure && isSomePlaceSame(home.held.tag, shown);
            (isAlike ? sorted.alike : sorted.others).append(place(home, isAlike));
        }
        return sorted;
    }

    // A position that holds no numbers.
    Home emptied() const
    {
        const QString tag = m_field.kind == FieldKind::coordinates ? u"XMP-exif:GPSLatitude · GPSLongitude"_s
                                                                   : m_field.writeTags.value(0);
        return { .held = { .tag = tag, .items = { QString() } } };
    }

    bool isSame(const Home& a, const Home& b) const { return HomeComparison::isSame(m_field, a.held, b.held); }
    bool isBlank(const Home& home) const { return HomeComparison::isBlank(m_field, home.held); }

    // The group that the reader takes the field from: the first one that the photo has.
    QString decidingGroup() const
    {
        for (const QString& tag : m_field.readTags) {
            const QString group = tag.section(u':', 0, 0);
            if (std::any_of(
                    m_homes.cbegin(), m_homes.cend(), [&group](const Home& home) { return home.readGroup == group; }))
                return group;
        }
        return {};
    }

    // What the reader made of it, had it taken this home.
    bool isRecorded(const Home& home) const
    {
        if (home.isStructure)
            return m_recorded.join(QString()).isEmpty();
        if (m_field.kind == FieldKind::coordinates)
            return HomeComparison::isSame(m_field, home.held, { .tag = {}, .items = m_recorded });
        QStringList texts;
        for (const QString& item : home.held.items)
            texts.append(ListHomes::shownText(item));
        if (m_field.isList())
            return texts == m_recorded;
        const QString text = texts.join(u", "_s);
        const QString recorded = m_recorded.constFirst();
        return text == recorded
            || (m_field.kind == FieldKind::date
                && (MetadataWriter::displayDate(text) == recorded || MetadataReader::shownBeside(text) == recorded));
    }

    // Of the homes among which the reader chose: the one that it took, the field's own ones first.
    const Home* shownHome() const
    {
        const QString group = decidingGroup();
        const auto find = [&](auto isWanted) -> const Home* {
            const auto found = std::find_if(m_homes.cbegin(), m_homes.cend(),
                [&](const Home& home) { return home.readGroup == group && isWanted(home); });
            return found == m_homes.cend() ? nullptr : &*found;
        };
        if (group.isEmpty())
            return nullptr;
        if (const Home* home = find([this](const Home& one) { return isRecorded(one); }))
            return home;
        if (const Home* home = find([](const Home& one) { return !one.isForeign; }))
            return home;
        return find([](const Home&) { return true; });
    }

    // A tag that stands in two places says the same when one of them does.
    bool isSomePlaceSame(const QString& tag, const Home& shown) const
    {
        return std::any_of(m_homes.cbegin(), m_homes.cend(),
            [&](const Home& home) { return home.held.tag == tag && isSame(home, shown); });
    }

    FieldHome place(const Home& home, bool isShown) const
    {
        FieldHome place{ .tag = home.held.tag,
            .values = HomeComparison::shown(m_field, home.held),
            .isShown = isShown,
            .isForeign = home.isForeign,
            .isSeveral = !m_field.isList() && home.held.items.size() > 1 };
        // Of an enumeration the reader shows "5 (normal urgency)".
        const QString value = place.values.value(0);
        if (isShown && !m_field.isList() && !value.isEmpty() && m_recorded.constFirst().startsWith(value + u" ("_s))
            place.values = m_recorded;
        return place;
    }

    const FieldSpec& m_field;
    QStringList m_recorded;  // one text, but of lists
    Homes m_homes;
};

}  // namespace

QMap<QString, QList<FieldHome>> of(const ImageRecord& photo, const JSONObject& tags)
{
    QMap<QString, QList<FieldHome>> found;
    if (photo.isUnread)
        return found;
    for (const FieldSpec& field : FieldSchema::all())
        if (const auto places = Comparison(field, photo, tags).places(); !places.isEmpty())
            found.insert(field.id, places);
    return found;
}

QMap<QString, QList<FieldHome>> beside(const ImageRecord& photo, const JSONObject& file, const JSONObject& sidecar)
{
    QMap<QString, QList<FieldHome>> found;
    if (photo.isUnread)
        return found;
    for (const FieldSpec& field : FieldSchema::all()) {
        const FieldSpec& inSidecar = *SidecarSchema::spec(field.id);
        const Comparison own(inSidecar, photo, sidecar);
        const Comparison ofFile(field, photo, file);
        const auto places = SidecarDetails::decides(inSidecar, sidecar) ? own.placesBeside(ofFile)
                                                                        : Comparison::ofFile(ofFile.places());
        if (!places.isEmpty())
            found.insert(field.id, places);
    }
    return found;
}

}  // namespace Quorbel::Disagreements
