#include "app/model/library/PhotoReader.h"

#include "app/model/library/SharedTexts.h"
#include "app/model/library/cache/RecordCache.h"
#include "core/language/Texts.h"
#include "core/text/Text.h"

namespace Quorbel::PhotoReader {

using namespace Qt::StringLiterals;

namespace {

QString named(const QList<LeftOut>& files)
{
    QStringList named;
    for (const LeftOut& file : files)
        named.append(u"%1 (%2)"_s.arg(file.fileName, file.reason));
    return Text::listed(named);
}

// At those that can be read.
QList<PhotoFile> looks(const QList<QUrl>& urls, const SidecarPolicy& sidecars, QList<LeftOut>& leftOut)
{
    QList<PhotoFile> files;
    for (const QUrl& url : urls) {
        const PhotoFile::Look look = PhotoFile::at(url, sidecars);
        if (look.file)
            files.append(*look.file);
        else if (!look.reason.isEmpty())
            leftOut.append({ url.fileName(), look.reason });
    }
    return files;
}

// The records have the dates that their files had before, and share their texts. Returns those that may be kept: their
// files are still what they were, and no sidecar is to be named again. The files are in the records' order, and more.
QList<RecordCache::Read> finished(Result& result, const QList<PhotoFile>& before, const QSet<QUrl>& brokenSidecars)
{
    QList<RecordCache::Read> unchanged;
    SharedTexts texts;
    auto file = before.cbegin();
    for (ImageRecord& record : result.records) {
        while (file->url != record.url)
            ++file;
        record.contentModificationDate = file->modificationDate();
        record.sidecarName = file->sidecar.name;
        record.sidecarModificationDate = file->sidecar.modificationDate();
        texts.share(record);
        if (file->again() != *file)
            result.changed.append(record.url);
        else if (file->sidecar.name.isEmpty() || !brokenSidecars.contains(file->sidecarURL()))
            unchanged.append({ *file, record });
    }
    return unchanged;
}

}  // namespace

Result read(const MetadataService& service, const QList<QUrl>& urls, TaskProgress& progress, std::stop_token stop,
    const std::shared_ptr<RecordCache>& cache)
{
    Result result;
    QSet<QUrl> brokenSidecars;
    const QList<PhotoFile> before = looks(urls, service.sidecars, result.leftOut);
    const auto beginning = cache ? cache->begin(before) : RecordCache::Beginning();
    QList<QUrl> readable;
    for (const PhotoFile& file : before)
        readable.append(file.url);
    progress.total = readable.size();
    const ReadControl control{ [&progress](qsizetype done) { progress.done = done; }, std::move(stop),
        [&progress](qint64 processID) { progress.processID = processID; } };
    try {
        PhotoRead::Outcome outcome = service.readEach(readable, control);
        result.records = std::move(outcome.records);
        for (const FileFailure& failure : std::as_const(outcome.leftOut))
            result.leftOut.append({ failure.file.fileName(), Texts::continued(failure.reason) });
        for (const FileFailure& failure : std::as_const(outcome.sidecars)) {
            result.leftOut.append({ failure.file.fileName(), Texts::continued(failure.reason), true });
            brokenSidecars.insert(failure.file);
        }
    } catch (const CancelledError&) {
        result.isCancelled = true;
    } catch (const Error& error) {
        result.error = error.description();
    } catch (const std::exception& error) {
        result.error = QString::fromUtf8(error.what());
    }
    progress.processID = 0;
    QList<RecordCache::Read> unchanged = finished(result, before, brokenSidecars);
    if (cache)
        cache->put(beginning, std::move(unchanged));
    return result;
}

QString leftOutText(const QList<LeftOut>& files)
{
    QList<LeftOut> photos = files;
    photos.removeIf([](const LeftOut& file) { return file.isSidecar; });
    QList<LeftOut> sidecars = files;
    sidecars.removeIf([](const LeftOut& file) { return !file.isSidecar; });
    QStringList texts;
    if (!photos.isEmpty())
        //: %1 names the files, with the reasons
        texts.append(Texts::tr("%n file(s) could not be read and (was|were) left out: %1", nullptr, photos.size())
                         .arg(named(photos)));
    if (!sidecars.isEmpty())
        //: %1 names the sidecars, with the reasons
        texts.append(Texts::tr(
            "%n sidecar(s) could not be read, and (its photo is|their photos are) shown without (it|them): %1", nullptr,
            sidecars.size())
                         .arg(named(sidecars)));
    return texts.join(u". "_s);
}

}  // namespace Quorbel::PhotoReader
