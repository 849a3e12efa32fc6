#include "core/save/ListHomes.h"

#include "core/save/TagHomes.h"
#include "core/schema/FieldSchema.h"
#include "core/text/CodePage1252.h"
#include "core/text/JSONValue.h"
#include "core/text/Text.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace Quorbel::ListHomes {

using namespace Qt::StringLiterals;

namespace {

struct Home {
    QString tag{};
    QStringList items{};
    bool isWritable = false;
};

QSet<QString> setOf(const QStringList& items)
{
    return QSet<QString>(items.cbegin(), items.cend());
}

QStringList cleaned(const QStringList& items)
{
    QStringList kept;
    for (const QString& item : items)
        if (const QString trimmed = Text::trimmed(item); !trimmed.isEmpty())
            kept.append(trimmed);
    return kept;
}

// Bytes that are no text cannot be written to another home.
bool isText(const QString& item)
{
    return !item.isEmpty() && !item.contains(QChar::ReplacementCharacter);
}

// The homes of one list field in one file, the one that is shown first.
class Homes {
public:
    Homes(const FieldSpec& field, const FileTags& before, const QString& fileType, const QStringList& leftOut)
    {
        for (const QString& tag : field.writeTags)
            m_homes.append({ tag, TagHomes::itemsOf(tag, before),
                TagHomes::holds(fileType, tag) && !leftOut.contains(homeOf(tag)) });
        for (const Home& home : m_homes)
            for (const QString& item : home.items)
                if (isText(item) && !m_all.contains(item))
                    m_all.append(item);
        findDamaged();
    }

    const QList<Home>& homes() const { return m_homes; }
    /// The items of all homes, each once.
    const QStringList& all() const { return m_all; }
    bool isDamaged(const QString& item) const { return m_intact.contains(item); }
    /// The item that this one is a damaged spelling of, or the item itself.
    QString intact(const QString& item) const
    {
        QString spelling = item;
        // A form of a form at most: what is damaged twice fits the page and becomes no third form.
        for (int step = 0; step < 2; ++step)
            spelling = m_intact.value(spelling, spelling);
        return spelling;
    }

private:
    void findDamaged()
    {
        QHash<QString, QStringList> sources;
        const QSet<QString> known = setOf(m_all);
        for (const QString& item : std::as_const(m_all))
            for (const QString& form : CodePage1252::damagedForms(item))
                if (known.contains(form))
                    sources[form].append(item);
        for (auto it = sources.cbegin(); it != sources.cend(); ++it)
            if (it->size() == 1 && !isHomeOfBoth(it.key(), it->constFirst()))
                m_intact.insert(it.key(), it->constFirst());
    }

    // Who holds both meant two items.
    bool isHomeOfBoth(const QString& a, const QString& b) const
    {
        return std::any_of(m_homes.cbegin(), m_homes.cend(),
            [&](const Home& home) { return home.items.contains(a) && home.items.contains(b); });
    }

    QList<Home> m_homes;
    QStringList m_all;
    QHash<QString, QString> m_intact;
};

// Every spelling in some home of what is on screen as one of these.
QStringList spellingsOf(const QStringList& shown, const Homes& homes)
{
    QSet<QString> intact;
    for (const QString& item : homes.all())
        if (shown.contains(item) || shown.contains(shownText(item)))
            intact.insert(homes.intact(item));
    QStringList spellings;
    for (const QString& item : homes.all())
        if (intact.contains(homes.intact(item)))
            spellings.append(item);
    return spellings;
}

// The items of all homes, as they are to be spelled in each.
QStringList togetherOf(const Homes& homes, const QStringList& gone)
{
    QStringList items;
    for (const QString& item : homes.all())
        if (const QString intact = homes.intact(item); !gone.contains(intact) && !items.contains(intact))
            items.append(intact);
    return items;
}

// What is appended and taken away comes with the plan itself, but for spellings that it does not know. Items that
// nobody touches come together only where others are added.
void append(
    Change& change, const FieldSpec& field, const QStringList& typed, const QStringList& removed, const Homes& homes)
{
    QStringList gone = spellingsOf(removed, homes);
    gone.removeIf([&typed](const QString& item) { return typed.contains(item); });
    QStringList items = typed.isEmpty() ? QStringList() : togetherOf(homes, gone);
    QList<Assignment> joining;
    const QSet<QString> added = setOf(typed);
    for (const Home& home : homes.homes()) {
        if (!home.isWritable)
            continue;
        const QSet<QString> held = setOf(home.items);
        for (const QString& item : home.items) {
            if (gone.contains(item)) {
                if (!removed.contains(item))
                    change.preparation.append({ home.tag, Assignment::Operation::remove, item });
            } else if (!typed.isEmpty() && homes.isDamaged(item)) {
                joining.append({ home.tag, Assignment::Operation::remove, item });
            }
        }
        for (const QString& item : std::as_const(items)) {
            if (held.contains(item) || added.contains(item))
                continue;
            joining.append({ home.tag, Assignment::Operation::remove, item });
            joining.append({ home.tag, Assignment::Operation::add, item });
        }
    }
    if (!joining.isEmpty())
        change.joined.append(field.id);
    change.preparation += joining;
    for (const QString& item : typed)
        if (!items.contains(item))
            items.append(item);
    if (!typed.isEmpty())
        change.items.insert(field.id, items);
    for (const QString& item : removed)
        if (!gone.contains(item))
            gone.append(item);
    if (!gone.isEmpty())
        change.takenAway.insert(field.id, gone);
}

// The list that replaces the ones of all homes.
class Replacement {
public:
    Replacement(const Homes& homes, const QStringList& typed, const QStringList& seen)
        : m_homes(homes)
        , m_typed(typed)
        , m_seen(setOf(seen))
    {
        for (const QString& item : homes.all())
            m_stored[shownText(item)].append(item);
        const QSet<QString> kept = setOf(typed);
        for (const QString& item : homes.all())
            if (const QString shown = shownText(item); m_seen.contains(shown) && !kept.contains(shown))
                m_gone.insert(homes.intact(item));
    }

    QStringList items()
    {
        for (const QString& item : m_typed) {
            if (m_seen.contains(item))
                putBack(item);
            else if (const QString trimmed = Text::trimmed(item); !trimmed.isEmpty())
                m_items.append(trimmed);
        }
        for (const QString& item : m_homes.all())
            if (isUnseen(item))
                join(m_homes.intact(item));
        return m_items;
    }
    /// Every spelling of what was on screen and is not in items().
    QStringList takenAway() const
    {
        QStringList gone;
        for (const QString& item : m_homes.all())
            if (m_gone.contains(m_homes.intact(item)) && !m_items.contains(item))
                gone.append(item);
        return gone;
    }
    /// The list holds what nobody saw or typed.
    bool isJoined() const { return m_isJoined; }

private:
    // As the file spells it; of several that look alike, one after the other.
    void putBack(const QString& item)
    {
        QStringList& stored = m_stored[item];
        const QString exact = stored.isEmpty() ? item : stored.size() > 1 ? stored.takeFirst() : stored.constFirst();
        if (m_homes.isDamaged(exact))
            join(m_homes.intact(exact));
        else if (!exact.isEmpty())
            m_items.append(exact);
    }

    bool isUnseen(const QString& item) const
    {
        const QString intact = m_homes.intact(item);
        return !m_seen.contains(shownText(item)) && !m_gone.contains(intact) && !m_items.contains(intact)
            && !m_items.contains(item);
    }

    void join(const QString& item)
    {
        m_isJoined = true;
        if (!m_items.contains(item))
            m_items.append(item);
    }

    const Homes& m_homes;
    const QStringList& m_typed;
    QSet<QString> m_seen;
    QHash<QString, QStringList> m_stored;  // by how they are shown, in the order of the homes
    QSet<QString> m_gone;  // taken away by the user: their intact spellings
    QStringList m_items;
    bool m_isJoined = false;
};

}  // namespace

Change change(const EditPlan& plan, const FileTags& before, const QString& fileType, const SeenLists& seen)
{
    Change change;
    QStringList ids = plan.lists.keys() + plan.removed.keys();
    ids.removeDuplicates();
    for (const QString& id : std::as_const(ids)) {
        const FieldSpec* field = plan.spec(id);
        if (!field || !field->isList())
            continue;
        const QStringList typed = plan.lists.value(id);
        const Homes homes(*field, before, fileType, plan.leftOut);
        if (plan.listMode == MetadataWriter::ListMode::append) {
            append(change, *field, cleaned(typed), plan.removed.value(id), homes);
            continue;
        }
        Replacement replacement(homes, typed, seen.value(id));
        change.items.insert(id, replacement.items());
        if (const QStringList gone = replacement.takenAway(); !gone.isEmpty())
            change.takenAway.insert(id, gone);
        if (replacement.isJoined())
            change.joined.append(id);
    }
    return change;
}

QString shownText(const QString& item)
{
    static const QRegularExpression number(
        uR"(^-?(\d|[1-9]\d{1,14})(\.\d{1,16})?([eE][-+]?\d{1,3})?$)"_s, QRegularExpression::DontCaptureOption);
    const QString lower = item.toLower();
    if (lower == u"true" || lower == u"false")
        return lower;
    bool isFinite = false;
    const double value = item.toDouble(&isFinite);
    if (!isFinite || !number.match(item).hasMatch())
        return item;
    return JSONValue(value).stringValue().value_or(item);
}

}  // namespace Quorbel::ListHomes
