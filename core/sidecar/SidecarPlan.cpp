#include "core/sidecar/SidecarPlan.h"

#include "core/iptc/IptcSchema.h"
#include "core/save/TagHomes.h"
#include "core/save/together/DateCompanions.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "core/schema/KeywordPath.h"
#include "core/sidecar/SidecarSchema.h"
#include "core/text/Text.h"
#include "core/text/WallClock.h"
#include "core/text/ZoneOffset.h"

#include <QFileInfo>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString extensionTag()
{
    return u"XMP-photoshop:SidecarForExtension"_s;
}

QStringList listsOf(const EditPlan& plan)
{
    QStringList ids = plan.lists.keys() + plan.removed.keys();
    ids.removeDuplicates();
    return ids;
}

// Every tag from which a field of photos or of sidecars is read.
QStringList tagsOfField(const QString& id)
{
    QStringList tags;
    for (const FieldSpec* field : { FieldSchema::spec(id), SidecarSchema::spec(id) })
        if (field)
            tags += field->kind == FieldKind::coordinates ? QStringList{ u"GPSLatitude"_s, u"GPSLongitude"_s }
                                                          : field->readTags + field->writeTags;
    return tags;
}

QStringList tagsOfKey(const QString& key)
{
    if (const QString language = FieldLanguages::tag(key); !language.isEmpty())
        return { language };
    if (const auto custom = CustomFields::nameIn(key))
        return { MetadataWriter::customNamespacePrefix() + u':'
            + MetadataWriter::sanitizeCustomName(*custom).value_or(*custom) };
    return tagsOfField(key);
}

bool holds(const FileTags& tags, const QString& key)
{
    const QStringList names = tagsOfKey(key);
    return std::any_of(names.cbegin(), names.cend(), [&tags](const QString& tag) {
        const QStringList items = TagHomes::itemsOf(tag, tags);
        return std::any_of(items.cbegin(), items.cend(), [](const QString& item) { return !item.isEmpty(); });
    });
}

// The items of the field that is shown of a file that holds it; nothing of one that does not.
std::optional<QStringList> itemsOf(const FieldSpec& field, const FileTags& tags)
{
    for (const QString& tag : field.readTags)
        if (const QStringList items = TagHomes::itemsOf(tag, tags); !items.isEmpty())
            return items;
    return std::nullopt;
}

QStringList shown(const QStringList& items)
{
    QStringList texts;
    for (const QString& item : items)
        texts.append(ListHomes::shownText(item));
    return texts;
}

QList<QByteArray> bytesOf(const QStringList& items)
{
    QList<QByteArray> bytes;
    for (const QString& item : items)
        bytes.append(item.toUtf8());
    return bytes;
}

// Paths stand for themselves: a sidecar without any tells nothing of the file's, until its keywords hide them.
QStringList pathsIn(const FileTags& tags)
{
    QStringList paths;
    for (const KeywordPath::Home& home : KeywordPath::homes())
        for (const QString& item : TagHomes::itemsOf(home.tag, tags))
            if (const QString path = KeywordPath::fromStored(home, item); !KeywordPath::parents(path).isEmpty())
                paths.append(path);
    paths.removeDuplicates();
    return paths;
}

class Making {
public:
    Making(const EditPlan& plan, const SidecarPlan::Held& sidecar, const SidecarPlan::Held& file,
        const ListHomes::SeenLists& seen)
        : m_sidecar(sidecar)
        , m_file(file)
        , m_made{ .plan = plan, .held = sidecar.tags, .seen = seen }
    {
    }

    SidecarPlan made(const QString& photo, const QString& savedAt)
    {
        m_made.plan.sidecar = SidecarPlan::note(photo, m_sidecar.tags, savedAt);
        for (const QString& id : listsOf(m_made.plan))
            takeList(id);
        m_made.plan.removed.clear();
        m_made.plan.listMode = MetadataWriter::ListMode::replace;
        takePaths();
        takePlainKeywords();
        for (auto change = m_made.plan.iptcLists.begin(); change != m_made.plan.iptcLists.end(); ++change)
            takeIptcList(change.key(), *change);
        hideEmptied();
        return m_made;
    }

private:
    // Whole: what the sidecar holds, else what the file does, and what becomes of that.
    void takeList(const QString& id)
    {
        const FieldSpec* field = FieldSchema::spec(id);
        const FieldSpec* inSidecar = SidecarSchema::spec(id);
        if (!field || !field->isList())
            return;
        auto items = itemsOf(*inSidecar, m_sidecar.tags);
        if (!items)
            items = itemsOf(*field, m_file.tags);
        QStringList held = items.value_or(QStringList());
        held.removeAll(QString());
        for (const QString& tag : inSidecar->writeTags)
            m_made.held.insert(tag, bytesOf(held));
        if (m_made.plan.listMode == MetadataWriter::ListMode::replace)
            return;
        const QStringList before = shown(held);
        m_made.seen.insert(id, before);
        QStringList after = before;
        for (const QString& item : m_made.plan.removed.value(id))
            after.removeIf([&](const QString& one) { return one == item || one == ListHomes::shownText(item); });
        for (const QString& item : m_made.plan.lists.value(id))
            if (const QString trimmed = Text::trimmed(item); !trimmed.isEmpty() && !after.contains(trimmed))
                after.append(trimmed);
        m_made.plan.lists.insert(id, after);
    }

    // The file's paths come along with the keywords that hide them.
    void takePaths()
    {
        const auto keywords = m_made.plan.lists.constFind(FieldID::keywords);
        const bool hasOwn = itemsOf(*SidecarSchema::spec(FieldID::keywords), m_sidecar.tags).has_value()
            || !pathsIn(m_sidecar.tags).isEmpty();
        if (hasOwn || (keywords == m_made.plan.lists.cend() && m_made.plan.paths.isEmpty()))
            return;
        const QStringList paths = pathsIn(m_file.tags);
        for (const QString& path : paths)
            if (!m_made.plan.paths.contains(path)
                && (keywords == m_made.plan.lists.cend() || keywords->contains(KeywordPath::keyword(path))))
                m_made.plan.paths.append(path);
    }

    // Who keeps paths lists plain keywords there, too, and reads the others only where there are none. So in lists that
    // are made now all keywords stand; what others left out of theirs stays out.
    void takePlainKeywords()
    {
        const auto& homes = KeywordPath::homes();
        const bool hasLists = std::any_of(homes.cbegin(), homes.cend(),
            [this](const KeywordPath::Home& home) { return !TagHomes::itemsOf(home.tag, m_sidecar.tags).isEmpty(); });
        QStringList& paths = m_made.plan.paths;
        if (!hasLists && paths.isEmpty())
            return;
        const QStringList held =
            shown(itemsOf(*SidecarSchema::spec(FieldID::keywords), m_sidecar.tags).value_or(QStringList()));
        const QStringList listed = hasLists ? held : QStringList();
        for (const QString& keyword : m_made.plan.lists.value(FieldID::keywords, hasLists ? QStringList() : held))
            if (!listed.contains(keyword) && KeywordPath::elements(keyword) == QStringList(keyword)
                && std::none_of(paths.cbegin(), paths.cend(),
                    [&keyword](const QString& path) { return KeywordPath::keyword(path) == keyword; }))
                paths.append(keyword);
    }

    void takeIptcList(const QString& id, ListChange& change) const
    {
        if (change.whole || !m_sidecar.iptc.lists.value(id).isEmpty())
            return;
        QStringList items = m_file.iptc.lists.value(id);
        items.removeIf([&change](const QString& item) { return change.removed.contains(item); });
        change.whole = items;
        change.removed.clear();
    }

    void hideEmptied()
    {
        QStringList emptied;
        for (auto text = m_made.plan.scalars.cbegin(); text != m_made.plan.scalars.cend(); ++text)
            if (Text::trimmed(*text).isEmpty())
                emptied.append(text.key());
        for (auto list = m_made.plan.lists.cbegin(); list != m_made.plan.lists.cend(); ++list)
            if (list->isEmpty())
                emptied.append(list.key());
        for (auto change = m_made.plan.iptcLists.cbegin(); change != m_made.plan.iptcLists.cend(); ++change)
            if (change->whole && change->whole->isEmpty() && change->added.isEmpty())
                emptied.append(change.key());
        for (const CustomValue& custom : m_made.plan.customs)
            if (custom.value.isEmpty())
                emptied.append(CustomFields::key(custom.name));
        for (const QString& key : std::as_const(emptied))
            if (holds(m_file.tags, key) || m_file.iptc.texts.contains(key) || m_file.iptc.lists.contains(key))
                m_made.plan.sidecar->hidden.append(key);
    }

    const SidecarPlan::Held& m_sidecar;
    const SidecarPlan::Held& m_file;
    SidecarPlan m_made;
};

}  // namespace

QStringList SidecarPlan::tagsOf(const EditPlan& plan)
{
    QStringList tags{ extensionTag() };
    for (const QString& key : plan.scalars.keys() + listsOf(plan) + plan.iptcLists.keys())
        tags += tagsOfKey(key) + DateCompanions::tagsOf(key);
    for (const FieldSpec& field : FieldSchema::everyField())
        if (plan.scalars.contains(field.id) && !field.languageTag().isEmpty())
            tags.append(field.languageTag());
    for (const CustomValue& custom : plan.customs)
        tags += tagsOfKey(CustomFields::key(custom.name));
    if (listsOf(plan).contains(FieldID::keywords) || !plan.paths.isEmpty())
        for (const KeywordPath::Home& home : KeywordPath::homes())
            tags.append(home.tag);
    tags.removeDuplicates();
    return tags;
}

QStringList SidecarPlan::iptcOf(const EditPlan& plan)
{
    QStringList ids = plan.scalars.keys() + plan.iptcLists.keys();
    ids.removeIf([](const QString& id) { return !IptcSchema::spec(id); });
    return ids;
}

QString SidecarPlan::savedAt()
{
    const QDateTime now = QDateTime::currentDateTime();
    return WallClock::stored(now) + ZoneOffset::text(now.offsetFromUtc() / 60);
}

SidecarNote SidecarPlan::note(const QString& photo, const FileTags& sidecar, const QString& savedAt)
{
    const bool isNoted = !TagHomes::itemsOf(extensionTag(), sidecar).isEmpty();
    return { .extension = isNoted ? QString() : QFileInfo(photo).suffix(), .savedAt = savedAt };
}

SidecarPlan SidecarPlan::of(const EditPlan& plan, const QString& photo, const Held& sidecar, const Held& file,
    const ListHomes::SeenLists& seen, const QString& savedAt)
{
    return Making(plan, sidecar, file, seen).made(photo, savedAt);
}

}  // namespace Quorbel
