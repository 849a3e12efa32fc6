#include "app/model/sidecars/MovePlan.h"

#include "core/details/HomeComparison.h"
#include "core/iptc/IptcSchema.h"
#include "core/iptc/StructureText.h"
#include "core/save/TagHomes.h"
#include "core/save/together/PhotoPlans.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldCheck.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "core/sidecar/SidecarSchema.h"
#include "core/text/StoredTime.h"
#include "core/text/Text.h"
#include "core/text/WallClock.h"
#include "core/tool/IptcEncoding.h"
#include "core/tool/MetadataReader.h"

#include <QSet>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// One item, but of lists; none where the field is empty.
QStringList itemsOf(const FieldSpec& field, const ImageRecord& record)
{
    if (field.isList())
        return record.lists.value(field.id);
    const QString text = record.values.value(field.id);
    return text.isEmpty() ? QStringList() : QStringList(text);
}

bool areSame(const FieldSpec& field, const QStringList& a, const QStringList& b)
{
    if (a == b || a.isEmpty() || b.isEmpty())
        return a == b;
    if (const StructureSpec* structure = IptcStructures::spec(field.structure))
        return StructureText::areSame(*structure, a, b);
    if (IptcSchema::isId(field.id))
        return QSet<QString>(a.cbegin(), a.cend()) == QSet<QString>(b.cbegin(), b.cend());
    return HomeComparison::isSame(field, { .tag = {}, .items = a }, { .tag = {}, .items = b });
}

QStringList stored(const QString& tag, const FileTags& tags)
{
    QStringList items = TagHomes::itemsOf(tag, tags);
    items.removeAll(QString());
    return items;
}

bool isWritable(const FieldSpec& field, const QString& text)
{
    if (field.kind == FieldKind::rating)
        return Text::parseDouble(text) == Text::parseDouble(MetadataWriter::normalizeRating(text));
    return FieldCheck::note(field, text).isEmpty();
}

// A date without a zone, and with nothing behind its seconds.
std::optional<QString> plainDate(const QString& item)
{
    if (WallClock::fromTyped(item))
        return item;
    const auto time = StoredTime::from(item);
    const bool isPlain = time && time->zone.isEmpty()
        && std::all_of(time->fraction.cbegin(), time->fraction.cend(), [](QChar c) { return c == u'.' || c == u'0'; });
    return isPlain ? std::optional(WallClock::stored(time->clock)) : std::nullopt;
}

// The text as the file spells it, dates to the second; nothing for one that cannot be written as it stands.
std::optional<QString> exactText(const FieldSpec& field, const QString& shown, const FileTags& tags)
{
    if (!isWritable(field, shown))
        return std::nullopt;
    bool isCut = false;  // more of a date than a photo's own has room for
    for (const QString& tag : field.writeTags) {
        const QStringList items = stored(tag, tags);
        if (items.size() > 1 && items.join(u", "_s) == shown)
            return std::nullopt;
        const QString item = items.value(0);
        if (field.kind == FieldKind::date) {
            const auto date = plainDate(item);
            if (date && MetadataWriter::displayDate(*date) == shown)
                return date;
            isCut = isCut || MetadataReader::shownBeside(item) == shown;
        } else if (items.size() == 1 && ListHomes::shownText(item) == shown) {
            return item;
        }
    }
    return isCut ? std::nullopt : std::optional(shown);
}

QStringList exactItems(const FieldSpec& field, const QStringList& shown, const FileTags& tags)
{
    for (const QString& tag : field.writeTags) {
        const QStringList items = stored(tag, tags);
        QStringList asShown;
        for (const QString& item : items)
            asShown.append(ListHomes::shownText(item));
        if (asShown == shown)
            return items;
    }
    return shown;
}

// Of fields that details tell of: what one file holds.
QStringList itemsOf(const QString& key, const PhotoDetails& details)
{
    const QString text = details.texts.value(key);
    return text.isEmpty() ? details.lists.value(key) : QStringList(text);
}

// Whether a tag of the field is there, and says nothing.
bool isEmptied(const FieldSpec& field, const HeldFields& held)
{
    return std::any_of(field.writeTags.cbegin(), field.writeTags.cend(), [&held](const QString& tag) {
        return !TagHomes::placesOf(tag, held.tags).isEmpty() && stored(tag, held.tags).isEmpty();
    });
}

// Keys of details that the file holds, emptied ones included.
QStringList detailKeys(const HeldFields& held)
{
    QStringList keys = held.details.texts.keys() + held.details.lists.keys();
    for (const FieldSpec& field : IptcSchema::all())
        if (!keys.contains(field.id) && isEmptied(field, held))
            keys.append(field.id);
    return keys;
}

const FieldSpec& fieldOf(const QString& key)
{
    const auto language = FieldLanguages::languageIn(key);
    return language ? *language->field : *FieldSchema::spec(key);
}

class Making {
public:
    explicit Making(const MovedPhoto& photo)
        : m_photo(photo)
    {
    }

    MovePlan intoPhoto()
    {
        m_made.seen = m_photo.file.record.lists;
        for (const FieldSpec& field : FieldSchema::all()) {
            const QStringList own = itemsOf(field, m_photo.file.record);
            const QStringList now = itemsOf(field, m_photo.together);
            if (!areSame(field, own, now))
                take(*SidecarSchema::spec(field.id), own, now, m_photo.sidecar.tags);
        }
        for (const QString& key : detailKeys(m_photo.sidecar))
            takeDetail(key, itemsOf(key, m_photo.file.details), itemsOf(key, m_photo.sidecar.details));
        for (const QString& name : customNames(m_photo.file.record, m_photo.together))
            takeCustom(name, customText(name, m_photo.file.record), customText(name, m_photo.together));
        takePaths(m_photo.sidecar.details.paths, m_photo.file.details.paths);
        return m_made;
    }

    MovePlan intoSidecar()
    {
        for (const FieldSpec& field : FieldSchema::all()) {
            const QStringList own = itemsOf(field, m_photo.file.record);
            const QStringList held = itemsOf(field, m_photo.sidecar.record);
            if (!own.isEmpty()
                && isFree(field.id, areSame(field, own, itemsOf(field, m_photo.together)), !held.isEmpty()))
                take(field, {}, own, m_photo.file.tags);
        }
        const QStringList heldKeys = detailKeys(m_photo.sidecar);
        for (const QString& key : detailKeys(m_photo.file)) {
            const QStringList own = itemsOf(key, m_photo.file.details);
            const bool isSame = areSame(fieldOf(key), own, itemsOf(key, m_photo.sidecar.details));
            const bool isHeld = heldKeys.contains(key);
            if (!own.isEmpty() && isFree(key, isSame || !isHeld, isHeld))
                takeDetail(key, {}, own);
        }
        for (const CustomValue& custom : m_photo.file.record.custom)
            if (isFree(CustomFields::key(custom.name), customText(custom.name, m_photo.together) == custom.value,
                    !customText(custom.name, m_photo.sidecar.record).isEmpty()))
                takeCustom(custom.name, {}, custom.value);
        const PhotoDetails& sidecar = m_photo.sidecar.details;
        if (!m_made.kept.contains(FieldID::keywords) && sidecar.paths.isEmpty()
            && m_photo.sidecar.record.lists.value(FieldID::keywords).isEmpty())
            takePaths(m_photo.file.details.paths, {});
        m_made.seen = m_made.plan.lists;
        return m_made;
    }

private:
    // Of a field of the sidecar: not held there. What is held otherwise is noted.
    bool isFree(const QString& key, bool isSame, bool isHeld)
    {
        if (!isSame)
            m_made.kept.append(key);
        return isSame && !isHeld;
    }

    void note(const QString& key, bool wasThere, bool isThere)
    {
        using enum MovePlan::Change;
        m_made.changes.insert(key, !isThere ? loses : wasThere ? changes : gains);
    }

    // `field`: with the tags of the file that the value comes from.
    void take(const FieldSpec& field, const QStringList& own, const QStringList& now, const FileTags& tags)
    {
        if (own.isEmpty() && now.isEmpty())
            return;
        if (field.isList()) {
            m_made.plan.lists.insert(field.id, exactItems(field, now, tags));
        } else {
            const auto text = now.isEmpty() ? QString() : exactText(field, now.constFirst(), tags);
            if (!text)
                return m_made.odd.append(field.id);
            m_made.plan.scalars.insert(field.id, *text);
        }
        note(field.id, !own.isEmpty(), !now.isEmpty());
    }

    void takeDetail(const QString& key, const QStringList& own, const QStringList& now)
    {
        const FieldSpec& field = fieldOf(key);
        if ((own.isEmpty() && now.isEmpty()) || areSame(field, own, now))
            return;
        const StructureSpec* structure = IptcStructures::spec(field.structure);
        const auto isOdd = [structure](const QString& item) {
            return structure && !StructureText::foreignMembers(*structure, item).isEmpty();
        };
        if (std::any_of(now.cbegin(), now.cend(), isOdd))
            return m_made.odd.append(key);
        if (field.isList())
            m_made.plan.iptcLists.insert(key, { .whole = now });
        else
            m_made.plan.scalars.insert(key, now.value(0));
        note(key, !own.isEmpty(), !now.isEmpty());
    }

    static QString customText(const QString& name, const ImageRecord& record)
    {
        for (const CustomValue& custom : record.custom)
            if (custom.name.compare(name, Qt::CaseInsensitive) == 0)
                return custom.value;
        return {};
    }

    static QStringList customNames(const ImageRecord& a, const ImageRecord& b)
    {
        QStringList names = CustomFields::names(a.custom);
        for (const CustomValue& custom : b.custom)
            if (!names.contains(custom.name, Qt::CaseInsensitive))
                names.append(custom.name);
        return names;
    }

    void takeCustom(const QString& name, const QString& own, const QString& now)
    {
        if (own == now)
            return;
        const QString key = CustomFields::key(name);
        if (!CustomFields::isWritable(name))
            return m_made.odd.append(key);
        m_made.plan.customs.append({ name, now });
        note(key, !own.isEmpty(), !now.isEmpty());
    }

    void takePaths(QStringList paths, const QStringList& held)
    {
        paths.removeIf([&held](const QString& path) { return held.contains(path); });
        if (paths.isEmpty())
            return;
        m_made.plan.paths = paths;
        const QString keywords = FieldID::keywords;
        if (!m_made.changes.contains(keywords))
            note(keywords, !m_photo.file.record.lists.value(keywords).isEmpty(), true);
    }

    const MovedPhoto& m_photo;
    MovePlan m_made;
};

}  // namespace

MovePlan MovePlan::of(MoveWay way, const MovedPhoto& photo)
{
    Making making(photo);
    return way == MoveWay::intoPhotos ? making.intoPhoto() : making.intoSidecar();
}

const QStringList& MovePlan::tags()
{
    static const QStringList tags = [] {
        QStringList tags = PhotoPlans::allTags();
        for (const FieldSpec& field : SidecarSchema::everyField())
            tags += field.writeTags;
        tags.removeAll(IptcEncoding::blockTag());
        tags.removeDuplicates();
        return tags;
    }();
    return tags;
}

}  // namespace Quorbel
