#include "app/model/library/PhotoReader.h"

#include "core/text/Text.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace Quorbel::PhotoReader {

using namespace Qt::StringLiterals;

namespace {

// The photos of a folder repeat each other's texts: each text is held once. That saves memory, and tells texts equal
// by their address, without looking at them.
void shareTexts(QList<ImageRecord>& records)
{
    QSet<QString> texts;
    const auto share = [&texts](QString& text) { text = *texts.insert(text); };
    for (ImageRecord& record : records) {
        share(record.fileType);
        std::for_each(record.values.begin(), record.values.end(), share);
        for (QStringList& items : record.lists)
            std::for_each(items.begin(), items.end(), share);
        for (CameraRow& row : record.camera) {
            share(row.label);
            share(row.value);
        }
    }
}

QString inSentence(const QString& reason)
{
    return reason.left(1).toLower() + reason.sliced(1);
}

}  // namespace

Result read(const MetadataService& service, const QList<QUrl>& urls, TaskProgress& progress, std::stop_token stop)
{
    Result result;
    QList<QUrl> readable;
    QHash<QUrl, PhotoFile> before;
    for (const QUrl& url : urls) {
        const PhotoFile::Look look = PhotoFile::at(url);
        if (look.file) {
            readable.append(url);
            before.insert(url, *look.file);
        } else if (!look.reason.isEmpty()) {
            result.leftOut.append({ url.fileName(), look.reason });
        }
    }
    progress.total = readable.size();
    const ReadControl control{ [&progress](qsizetype done) { progress.done = done; }, std::move(stop),
        [&progress](qint64 processID) { progress.processID = processID; } };
    try {
        PhotoRead::Outcome outcome = service.readEach(readable, control);
        result.records = std::move(outcome.records);
        for (const FileFailure& failure : std::as_const(outcome.leftOut))
            result.leftOut.append({ failure.file.fileName(), inSentence(failure.reason) });
    } catch (const CancelledError&) {
        result.isCancelled = true;
    } catch (const Error& error) {
        result.error = error.description();
    } catch (const std::exception& error) {
        result.error = QString::fromUtf8(error.what());
    }
    progress.processID = 0;
    shareTexts(result.records);
    for (ImageRecord& record : result.records) {
        const PhotoFile& file = before[record.url];
        record.contentModificationDate = file.modificationDate();
        if (PhotoFile::at(record.url).file != file)
            result.changed.append(record.url);
    }
    return result;
}

QString leftOutText(const QList<LeftOut>& files)
{
    QStringList named;
    for (const LeftOut& file : files)
        named.append(u"%1 (%2)"_s.arg(file.fileName, file.reason));
    const QString text = files.size() == 1
        ? u"1 file could not be read and was left out: "_s
        : QString::number(files.size()) + u" files could not be read and were left out: "_s;
    return text + Text::listed(named);
}

}  // namespace Quorbel::PhotoReader
