#include "app/model/library/FolderOrder.h"

#include "core/text/Text.h"

#include <QDir>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString withSlash(const QString& path)
{
    return path.endsWith(u'/') ? path : path + u'/';
}

// "/" has no name of its own.
QString nameOf(const QString& path)
{
    const QString name = path.section(u'/', -1);
    return name.isEmpty() ? path : name;
}

}  // namespace

FolderOrder::FolderOrder(const QStringList& tops, bool isSeveral)
    : m_isOrdering(!tops.isEmpty())
    , m_isSeveral(isSeveral)
{
    for (const QString& top : tops)
        m_tops.append(QDir::cleanPath(top));
    // One that lies in another is reached through that.
    std::sort(m_tops.begin(), m_tops.end(), [](const QString& a, const QString& b) { return a.size() < b.size(); });
}

int FolderOrder::enter(const QUrl& photo)
{
    if (!m_isOrdering)
        return 0;
    const QString file = photo.toLocalFile();
    const qsizetype end = std::max<qsizetype>(file.lastIndexOf(u'/'), 1);
    if (m_last < 0 || QStringView(file).first(end) != m_lastPath) {
        m_lastPath = file.first(end);
        const auto known = m_numbers.constFind(m_lastPath);
        m_last = known == m_numbers.cend() ? add(m_lastPath) : *known;
    }
    m_holding += m_folders[size_t(m_last)].folder.photos++ == 0 ? 1 : 0;
    return m_last;
}

void FolderOrder::leave(int folder)
{
    if (m_isOrdering)
        m_holding -= --m_folders[size_t(folder)].folder.photos == 0 ? 1 : 0;
}

QList<QUrl> FolderOrder::urls() const
{
    QList<QUrl> urls;
    for (const int number : m_sorted)
        if (folder(number).photos > 0)
            urls.append(folder(number).url);
    return urls;
}

// From the top down; none for the one top itself.
QStringList FolderOrder::names(const QString& path) const
{
    const auto top = std::find_if(m_tops.cbegin(), m_tops.cend(),
        [&path](const QString& candidate) { return path == candidate || path.startsWith(withSlash(candidate)); });
    if (top == m_tops.cend())
        return { nameOf(path) };
    QStringList names = m_isSeveral ? QStringList{ nameOf(*top) } : QStringList();
    names.append(path.mid(withSlash(*top).size()).split(u'/', Qt::SkipEmptyParts));
    return names;
}

int FolderOrder::add(const QString& path)
{
    Place place;
    QStringList names = this->names(path);
    for (const QString& name : std::as_const(names))
        place.steps.push_back({ Text::naturalSortKey(name), name });
    place.folder.url = QUrl::fromLocalFile(path);
    place.folder.name = names.isEmpty() ? nameOf(path) : names.takeLast();
    place.folder.parents = names.join(u" / "_s);

    const int number = int(m_folders.size());
    m_folders.push_back(std::move(place));
    m_numbers.insert(path, number);
    auto at = std::upper_bound(m_sorted.begin(), m_sorted.end(), number,
        [this](int a, int b) { return isBefore(m_folders[size_t(a)], m_folders[size_t(b)]); });
    at = m_sorted.insert(at, number);
    m_ranks.push_back(0);
    for (; at != m_sorted.end(); ++at)
        m_ranks[size_t(*at)] = int(at - m_sorted.begin());
    return number;
}

// Names that are one in natural order ("a" and "A") are two folders all the same.
bool FolderOrder::isBefore(const Place& a, const Place& b)
{
    const size_t shared = std::min(a.steps.size(), b.steps.size());
    for (size_t i = 0; i < shared; ++i) {
        if (const int order = a.steps[i].key.compare(b.steps[i].key); order != 0)
            return order < 0;
        if (a.steps[i].name != b.steps[i].name)
            return a.steps[i].name < b.steps[i].name;
    }
    if (a.steps.size() != b.steps.size())
        return a.steps.size() < b.steps.size();
    return a.folder.url.path() < b.folder.url.path();
}

}  // namespace Quorbel
