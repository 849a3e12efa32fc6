#include "app/model/library/details/DetailsStore.h"

#include "core/schema/KeywordPath.h"
#include "core/text/Text.h"

#include <algorithm>
#include <tuple>

namespace Quorbel {

namespace {

bool isSilent(const PhotoDetails& details)
{
    return details.texts.isEmpty() && details.lists.isEmpty() && details.paths.isEmpty()
        && details.disagreements.isEmpty() && !details.hasCredentials;
}

}  // namespace

const PhotoDetails* DetailsStore::findLast(const QUrl& photo) const
{
    static const PhotoDetails nothing;
    if (m_silent.contains(photo))
        return &nothing;
    const auto held = m_details.constFind(photo);
    return held == m_details.cend() ? nullptr : &*held;
}

const PhotoDetails* DetailsStore::find(const QUrl& photo) const
{
    return m_outdated.contains(photo) ? nullptr : findLast(photo);
}

bool DetailsStore::disagrees(const QUrl& photo) const
{
    const PhotoDetails* last = findLast(photo);
    return last && !last->disagreements.isEmpty();
}

void DetailsStore::put(PhotoDetails details)
{
    forget(details.url);
    if (isSilent(details)) {
        m_silent.insert(details.url);
        return;
    }
    share(details);
    count(details, 1);
    const QUrl photo = details.url;
    m_details.emplace(photo, std::move(details));
}

bool DetailsStore::outdate(const QUrl& photo)
{
    if (!isKnown(photo))
        return false;
    m_outdated.insert(photo);
    return true;
}

bool DetailsStore::forget(const QUrl& photo)
{
    const bool wasOutdated = m_outdated.remove(photo);
    if (m_silent.remove(photo))
        return true;
    const auto held = m_details.constFind(photo);
    if (held == m_details.cend())
        return wasOutdated;
    count(*held, -1);
    m_details.erase(held);
    return true;
}

bool DetailsStore::rename(const NewNames& names)
{
    QList<PhotoDetails> renamed;
    QSet<QUrl> outdated;
    for (const auto& [source, destination] : names.list()) {
        if (const PhotoDetails* held = findLast(source)) {
            renamed.append(*held);
            renamed.last().url = destination;
        }
        if (m_outdated.contains(source))
            outdated.insert(destination);
    }
    for (const auto& [source, destination] : names.list()) {
        forget(source);
        forget(destination);
    }
    for (PhotoDetails& details : renamed)
        put(std::move(details));
    m_outdated += outdated;
    return !renamed.isEmpty();
}

void DetailsStore::count(const PhotoDetails& details, int step)
{
    m_disagreeing += details.disagreements.isEmpty() ? 0 : step;
    for (const QString& path : details.paths) {
        int& uses = m_paths[path];
        uses += step;
        if (uses <= 0)
            m_paths.remove(path);
    }
}

// Names of tags and keys, and paths, are those of many photos.
void DetailsStore::share(PhotoDetails& details)
{
    QMap<QString, QString> texts;
    for (auto text = details.texts.cbegin(); text != details.texts.cend(); ++text) {
        QString key = text.key();
        m_texts.share(key);
        texts.insert(texts.cend(), key, *text);
    }
    details.texts = std::move(texts);
    QMap<QString, QStringList> lists;
    for (auto list = details.lists.cbegin(); list != details.lists.cend(); ++list) {
        QString id = list.key();
        m_texts.share(id);
        lists.insert(lists.cend(), id, *list);
    }
    details.lists = std::move(lists);
    for (QString& path : details.paths)
        m_texts.share(path);
    for (QList<FieldHome>& homes : details.disagreements)
        for (FieldHome& home : homes)
            m_texts.share(home.tag);
}

QStringList DetailsStore::paths(const QString& prefix, int limit) const
{
    struct Use {
        QString path;
        bool isParent = false;  // only an element above the keyword begins with it
        int count = 0;
    };
    std::vector<Use> found;
    const auto fits = [&prefix](const QString& element) { return element.startsWith(prefix, Qt::CaseInsensitive); };
    const bool isPath = prefix.contains(u'|');
    for (auto use = m_paths.cbegin(); use != m_paths.cend(); ++use) {
        if (isPath) {
            if (fits(use.key()))
                found.push_back({ use.key(), false, use.value() });
            continue;
        }
        const QStringList elements = KeywordPath::elements(use.key());
        if (std::any_of(elements.cbegin(), elements.cend(), fits))
            found.push_back({ use.key(), !fits(elements.constLast()), use.value() });
    }
    const auto end = found.begin() + std::min(std::ptrdiff_t(found.size()), std::ptrdiff_t(std::max(limit, 0)));
    std::partial_sort(found.begin(), end, found.end(), [](const Use& a, const Use& b) {
        const auto rank = [](const Use& use) { return std::tuple(use.isParent, -use.count); };
        if (rank(a) != rank(b))
            return rank(a) < rank(b);
        const int order = Text::naturalCompare(a.path, b.path);
        return order != 0 ? order < 0 : a.path < b.path;
    });
    QStringList paths;
    std::transform(found.begin(), end, std::back_inserter(paths), [](const Use& use) { return use.path; });
    return paths;
}

}  // namespace Quorbel
