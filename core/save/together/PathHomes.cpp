#include "core/save/together/PathHomes.h"

#include "core/save/TagHomes.h"
#include "core/schema/KeywordPath.h"
#include "core/text/Text.h"

#include <algorithm>

namespace Quorbel::PathHomes {

namespace {

using KeywordPath::Home;

struct Held {
    Home home{};
    QStringList items{};  // as they are stored

    bool has(const QString& path) const
    {
        return std::any_of(items.cbegin(), items.cend(),
            [&](const QString& item) { return KeywordPath::fromStored(home, item) == path; });
    }
};

QList<Held> homesIn(const FileTags& tags)
{
    QList<Held> homes;
    for (const Home& home : KeywordPath::homes())
        homes.append({ home, TagHomes::itemsOf(home.tag, tags) });
    return homes;
}

// The homes that such a path goes to.
QList<Held> homesFor(const QString& path, const QList<Held>& homes)
{
    QList<Held> own = homes;
    own.removeIf([&path](const Held& held) { return held.items.isEmpty() || !KeywordPath::stored(held.home, path); });
    if (!own.isEmpty())
        return own;
    QList<Held> fresh = homes;
    fresh.removeIf(
        [&path](const Held& held) { return !held.home.isMadeForNew || !KeywordPath::stored(held.home, path); });
    return fresh;
}

}  // namespace

QList<Assignment> change(const QStringList& takenAway, const QStringList& gained, const FileTags& held)
{
    const QList<Held> homes = homesIn(held);
    QStringList gone;
    for (const QString& keyword : takenAway)
        gone.append(Text::trimmed(keyword));
    QList<Assignment> assignments;
    for (const Held& home : homes) {
        QStringList removed = home.items;
        removed.removeIf([&](const QString& item) {
            const QString path = KeywordPath::fromStored(home.home, item);
            return path.isEmpty() || gained.contains(path) || !gone.contains(KeywordPath::keyword(path));
        });
        removed.removeDuplicates();
        for (const QString& item : std::as_const(removed))
            assignments.append({ home.home.tag, Assignment::Operation::remove, item });
    }
    for (const QString& path : gained) {
        const QList<Held> own = homesFor(path, homes);
        for (const Held& home : own) {
            if (home.has(path))
                continue;
            const QString item = *KeywordPath::stored(home.home, path);
            // Taken out before it is added, an item that came in the meantime is not doubled.
            assignments.append({ home.home.tag, Assignment::Operation::remove, item });
            assignments.append({ home.home.tag, Assignment::Operation::add, item });
        }
    }
    return assignments;
}

}  // namespace Quorbel::PathHomes
