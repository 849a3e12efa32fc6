#include "core/renaming/RenameSet.h"

#include "core/text/FileNaming.h"
#include "core/text/Text.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestName = 255;  // bytes, on all common file systems

qsizetype bytesOf(const QString& name)
{
    return QFile::encodeName(name).size();
}

QString numbered(const QString& base, int number)
{
    return number < 2 ? base : base + u'-' + QString::number(number);
}

template <typename Map>
void addMissing(Map& into, const Map& from)
{
    for (auto value = from.cbegin(); value != from.cend(); ++value)
        if (into.value(value.key()).isEmpty())
            into.insert(value.key(), *value);
}

}  // namespace

/// What one pattern makes of all shots.
struct RenameSet::Naming {
    struct Name {
        QString base{};
        RenderedText rendered{};
        int number = 0;
        RenameRow::Obstacle obstacle = RenameRow::Obstacle::none;
        bool isSettled = false;
    };

    const RenameSet& set;
    TokenText text;
    RenameOrder order;
    std::vector<Name> names{};
    std::vector<QSet<QString>> taken{};  // by folder, in lower case
    QHash<QString, int> lastNumbers{};  // of names that were taken: those below are taken for good

    Naming(const RenameSet& of, const RenameOrder& wanted)
        : set(of)
        , text(TokenText::parse(wanted.pattern))
        , order(wanted)
        , names(of.m_shots.size())
    {
        for (const Folder& folder : of.m_folders)
            taken.push_back(folder.staying);
    }

    void render(size_t at)
    {
        const Shot& shot = set.m_shots[at];
        Name& name = names[at];
        PhotoTokens tokens = shot.tokens;
        tokens.position = qint64(at);
        tokens.counter = order.counter;
        name.rendered = text.render(
            tokens, [this](const QString& value) { return FileNaming::sanitizeComponent(value, order.strict); });
        name.base = FileNaming::tidied(name.rendered.text());
        if (!set.m_folders[shot.folder].isWritable)
            name.obstacle = RenameRow::Obstacle::readOnlyFolder;
        else if (name.base.contains(u'/'))
            name.obstacle = RenameRow::Obstacle::slash;
        else if (!fits(shot, name.base))
            name.obstacle = RenameRow::Obstacle::tooLong;
    }

    // A photo that bears the name already which its values give keeps it, wherever it stands among the others. One that
    // cannot be renamed keeps its own.
    void keep(size_t at)
    {
        const Shot& shot = set.m_shots[at];
        Name& name = names[at];
        if (name.obstacle == RenameRow::Obstacle::none && name.base != shot.base)
            return;
        name.base = shot.base;
        name.isSettled = true;
        take(shot, shot.base);
    }

    void findFree(size_t at)
    {
        const Shot& shot = set.m_shots[at];
        Name& name = names[at];
        if (name.isSettled)
            return;
        const QString key =
            QString::number(shot.folder) + u'/' + name.base.toLower() + u'/' + (shot.suffixes + shot.kept).join(u'/');
        int& number = lastNumbers[key];
        while (isTaken(shot, numbered(name.base, number)))
            number = std::max(number + 1, 2);
        const QString base = numbered(name.base, number);
        if (!fits(shot, base)) {
            name.obstacle = RenameRow::Obstacle::tooLong;
            name.base = shot.base;
            return;
        }
        name.number = number;
        name.base = base;
        take(shot, base);
    }

private:
    static bool fits(const Shot& shot, const QString& base)
    {
        return std::all_of(shot.suffixes.cbegin(), shot.suffixes.cend(),
            [&base](const QString& suffix) { return bytesOf(base + suffix) <= longestName; });
    }
    bool isTaken(const Shot& shot, const QString& base) const
    {
        const QStringList suffixes = shot.suffixes + shot.kept;
        return std::any_of(suffixes.cbegin(), suffixes.cend(),
            [&](const QString& suffix) { return taken[shot.folder].contains((base + suffix).toLower()); });
    }
    void take(const Shot& shot, const QString& base)
    {
        for (const QString& suffix : shot.suffixes + shot.kept)
            taken[shot.folder].insert((base + suffix).toLower());
    }
};

RenameSet::RenameSet(
    const QList<ImageRecord>& photos, const QHash<QString, FolderListing>& folders, CompanionNames::Kind companions)
{
    QHash<QString, size_t> folderAt;
    std::vector<QHash<QString, size_t>> shotAt;
    for (const ImageRecord& record : photos) {
        const QString path = QFileInfo(record.url.toLocalFile()).path();
        const auto known = folderAt.constFind(path);
        const size_t folder = known == folderAt.cend() ? m_folders.size() : *known;
        if (folder == m_folders.size()) {
            const FolderListing listing = folders.value(path);
            m_folders.push_back({ .path = path,
                .companions = CompanionNames(listing.names, companions),
                .names = QSet<QString>(listing.names.cbegin(), listing.names.cend()),
                .isWritable = listing.isWritable });
            folderAt.insert(path, folder);
            shotAt.emplace_back();
        }
        Photo photo{ .url = record.url, .name = record.fileName };
        photo.isThere = m_folders[folder].names.contains(photo.name);
        photo.shot = shotOf(folder, photo.name, shotAt[folder]);
        addTokens(m_shots[photo.shot], record);
        m_shots[photo.shot].along.removeAll(photo.name);
        m_photos.append(photo);
    }
    for (Folder& folder : m_folders)
        for (const QString& name : std::as_const(folder.names))
            if (!folder.claimed.contains(name))
                folder.staying.insert(name.toLower());
}

// The shot that the photo is part of, by now with all its files.
size_t RenameSet::shotOf(size_t folder, const QString& name, QHash<QString, size_t>& known)
{
    if (const auto shot = known.constFind(name); shot != known.cend())
        return *shot;
    const size_t at = m_shots.size();
    Shot& shot = m_shots.emplace_back(Shot{ .folder = folder, .base = CompanionNames::baseOf(name) });
    QStringList pictures = m_folders[folder].companions.shotWith(name);
    shot.along = pictures;
    pictures.prepend(name);
    for (const QString& picture : std::as_const(pictures)) {
        known.insert(picture, at);
        claim(shot, picture, true);
    }
    for (const QString& picture : std::as_const(pictures))
        for (const QString& companion : m_folders[folder].companions.of(picture))
            claim(shot, companion, false);
    for (const QString& picture : std::as_const(pictures))
        if (CompanionNames::isRaw(picture))
            shot.kept += { u".xmp"_s, picture.sliced(shot.base.size()) + u".xmp"_s };
    return at;
}

void RenameSet::claim(Shot& shot, const QString& name, bool isPhoto)
{
    QSet<QString>& claimed = m_folders[shot.folder].claimed;
    if (claimed.contains(name))
        return;
    claimed.insert(name);
    const QString suffix = name.sliced(shot.base.size());
    shot.suffixes.append(suffix);
    if (isPhoto)
        shot.photos.insert(suffix);
}

// What one picture of a shot does not say, another one may.
void RenameSet::addTokens(Shot& shot, const ImageRecord& photo) const
{
    const PhotoTokens tokens = PhotoTokens::of(photo);
    if (!std::exchange(shot.isTokened, true)) {
        shot.tokens = tokens;
        return;
    }
    addMissing(shot.tokens.values, tokens.values);
    addMissing(shot.tokens.lists, tokens.lists);
    if (shot.tokens.camera.isEmpty())
        shot.tokens.camera = tokens.camera;
}

QList<QUrl> RenameSet::along() const
{
    QList<QUrl> along;
    for (const Shot& shot : m_shots)
        for (const QString& name : shot.along)
            along.append(QUrl::fromLocalFile(m_folders[shot.folder].path + u'/' + name));
    return along;
}

RenameRow RenameSet::row(const Photo& photo, const Naming& naming) const
{
    const Shot& shot = m_shots[photo.shot];
    const Naming::Name& name = naming.names[photo.shot];
    const QString suffix = photo.name.sliced(shot.base.size());
    RenameRow row{ .photo = photo.url,
        .oldName = photo.name,
        .newName = name.base + suffix,
        .missing = name.rendered.missing(),
        .number = name.number,
        .obstacle = photo.isThere ? name.obstacle : RenameRow::Obstacle::gone,
        .along = shot.along };
    if (row.obstacle != RenameRow::Obstacle::none) {
        row.newName = photo.name;
        row.missing.clear();
    }
    if (!row.missing.isEmpty()) {
        row.pieces = name.rendered.pieces;
        const QString end = numbered(QString(), name.number) + suffix;
        row.pieces.append({ RenderedPiece::Kind::text, end, {} });
    }
    return row;
}

RenamePlan RenameSet::plan(const RenameOrder& order, const std::stop_token& stop) const
{
    Naming naming(*this, order);
    for (const auto step : { &Naming::render, &Naming::keep, &Naming::findFree })
        for (size_t at = 0; at < m_shots.size(); ++at) {
            if (stop.stop_requested())
                return {};
            (naming.*step)(at);
        }
    RenamePlan plan;
    plan.rows.reserve(m_photos.size());
    for (const Photo& photo : m_photos) {
        const RenameRow& row = plan.rows.emplace_back(this->row(photo, naming));
        plan.marked += row.isMarked() ? 1 : 0;
        plan.renamed += row.isUnchanged() ? 0 : 1;
        plan.isPossible = plan.isPossible && row.obstacle == RenameRow::Obstacle::none;
    }
    for (const Folder& folder : m_folders)
        plan.folders.append({ .folder = folder.path });
    for (size_t at = 0; at < m_shots.size(); ++at)
        for (const QString& suffix : m_shots[at].suffixes)
            if (const QString& base = naming.names[at].base; base != m_shots[at].base)
                plan.folders[qsizetype(m_shots[at].folder)].files.append(
                    { m_shots[at].base + suffix, base + suffix, m_shots[at].photos.contains(suffix) });
    plan.folders.removeIf([](const FolderRenaming& folder) { return folder.files.isEmpty(); });
    return plan;
}

}  // namespace Quorbel
