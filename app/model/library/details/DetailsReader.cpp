#include "app/model/library/details/DetailsReader.h"

#include "app/model/library/cache/RecordCache.h"
#include "core/language/Texts.h"

namespace Quorbel::DetailsReader {

namespace {

// A photo that is to be read, and its file before that.
struct Target {
    ImageRecord photo{};
    PhotoFile before{};
};

// The files of those photos that have one; the others are unreadable.
QHash<QUrl, PhotoFile> looks(const Order& order, Result& result)
{
    QHash<QUrl, PhotoFile> files;
    for (const ImageRecord& photo : order.photos) {
        const PhotoFile::Look look = PhotoFile::at(photo.url, order.sidecars);
        if (look.file)
            files.insert(photo.url, *look.file);
        else
            result.unreadable.insert(photo.url, look.reason.isEmpty() ? Texts::tr("no such file") : look.reason);
    }
    return files;
}

// Takes what the cache knows. Returns the others.
QList<Target> withoutKnown(const Order& order, Result& result, const std::stop_token& stop)
{
    const QHash<QUrl, PhotoFile> files = looks(order, result);
    QHash<QUrl, PhotoDetails> known;
    if (order.cache && order.isCacheAsked)
        known = order.cache->findDetails(files.values(), stop);
    QList<Target> targets;
    for (const ImageRecord& photo : order.photos) {
        const auto file = files.constFind(photo.url);
        const auto details = known.constFind(photo.url);
        if (file == files.cend())
            continue;
        if (details != known.cend())
            result.found.append(*details);
        else if (targets.size() < order.most)
            targets.append({ photo, *file });
    }
    return targets;
}

// What was read of files that are as they were, for the cache too; but for those that the list does not have as they
// are: details are told from what is shown of the photo.
void take(const QHash<QUrl, PhotoDetails>& answer, const QList<Target>& targets, Result& result,
    QList<RecordCache::DetailsRead>& kept)
{
    for (const auto& [photo, before] : targets) {
        const auto details = answer.constFind(photo.url);
        if (before.again() != before) {
            result.changed.append(photo.url);
        } else if (details == answer.cend()) {
            result.unreadable.insert(photo.url, Texts::tr("ExifTool told nothing of it"));
        } else {
            result.found.append(*details);
            result.found.last().url = photo.url;
            if (before.isOf(photo))
                kept.append({ before, *details });
        }
    }
}

}  // namespace

Result read(const Ask& ask, const Order& order, TaskProgress& progress, std::stop_token stop)
{
    Result result;
    const QList<Target> targets = withoutKnown(order, result, stop);
    const qsizetype known = result.known = result.found.size();
    progress.done = known;
    if (targets.isEmpty())
        return result;
    QList<ImageRecord> photos;
    QList<PhotoFile> before;
    for (const Target& target : targets) {
        photos.append(target.photo);
        before.append(target.before);
        result.asked.append(target.photo.url);
    }
    const auto beginning = order.cache ? order.cache->begin(before) : RecordCache::Beginning();
    const ReadControl control{ [&progress, known](qsizetype done) { progress.done = known + done; }, stop,
        [&progress](qint64 processID) { progress.processID = processID; } };
    QList<RecordCache::DetailsRead> kept;
    try {
        if (stop.stop_requested())
            throw CancelledError();
        take(ask(photos, control), targets, result, kept);
    } catch (const CancelledError&) {
        result.isCancelled = true;
    } catch (const Error& error) {
        result.error = error.description();
    } catch (const std::exception& error) {
        result.error = QString::fromUtf8(error.what());
    }
    progress.processID = 0;
    if (order.cache)
        order.cache->putDetails(beginning, std::move(kept));
    return result;
}

}  // namespace Quorbel::DetailsReader
