#include "core/tool/PhotoRead.h"

#include "core/language/Texts.h"
#include "core/schema/FieldSchema.h"
#include "core/tool/MetadataReader.h"
#include "core/tool/MetadataWriter.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <utility>

namespace Quorbel::PhotoRead {

using namespace Qt::StringLiterals;

namespace {

using ObjectsByPath = QMap<QString, JSONObject>;

// The objects by the path of the file that they are about: as the tool printed it, and tidied up.
ObjectsByPath indexBySourceFile(const QList<JSONObject>& objects)
{
    const QString key = u"SourceFile"_s;
    ObjectsByPath index;
    for (const auto& object : objects) {
        const auto member = object.value(key);
        if (const auto* path = std::get_if<QString>(&member.payload)) {
            index.insert(*path, object);
            index.insert(QDir::cleanPath(*path), object);
        }
    }
    return index;
}

void addFileDates(ImageRecord& record)
{
    const QFileInfo file(record.url.toLocalFile());
    if (!file.exists())
        return;
    if (const auto created = file.birthTime(); created.isValid())
        record.creationDate = created;
    if (const auto modified = file.lastModified(); modified.isValid())
        record.contentModificationDate = modified;
}

ImageRecord record(const QUrl& url, const JSONObject& main, const JSONObject& custom)
{
    ImageRecord read = MetadataReader::parse(url, main, custom);
    addFileDates(read);
    return read;
}

// Whether a field of the schema may show the value of a custom field: the tool knows both by one name, and reads the
// custom one where the photo does not hold the other.
bool isInDoubt(const JSONObject& main, const JSONObject& custom)
{
    const QString customPrefix = MetadataWriter::customNamespacePrefix() + u':';
    return std::any_of(custom.keyBegin(), custom.keyEnd(), [&](const QString& key) {
        return key.startsWith(customPrefix) && main.contains(u"XMP:"_s + key.sliced(customPrefix.size()));
    });
}

// Several runs, each of which sees its part of the progress of them all.
class Runs {
public:
    Runs(const ReadControl& control, qsizetype files)
        : m_control(control)
        , m_files(files)
    {
    }

    // For the next run, over so many files, of `left` runs that are still to come.
    ReadControl next(qsizetype files, int left)
    {
        const qsizetype from = std::exchange(m_done, m_done + (m_files - m_done) / left);
        if (!m_control.progress)
            return m_control;
        return { [report = m_control.progress, from, share = m_done - from, files](
                     qsizetype printed) { report(from + share * printed / files); },
            m_control.stop, m_control.started };
    }

    // A hundred thousand records take seconds.
    void requireWanted() const
    {
        if (m_control.stop.stop_requested())
            throw CancelledError();
    }

    ReadControl silent() const { return { .progress = {}, .stop = m_control.stop, .started = m_control.started }; }

private:
    const ReadControl& m_control;
    qsizetype m_files;
    qsizetype m_done = 0;  // when the runs so far have ended
};

// Reads those in doubt once more, without the custom group. `main` and `custom` by path.
void resolveDoubts(const ExifToolRunner& runner, const QStringList& tags, const QList<QUrl>& urls,
    const ReadControl& control, ObjectsByPath& main, const ObjectsByPath& custom)
{
    QList<QUrl> doubtful;
    for (const auto& url : urls)
        if (const QString path = url.toLocalFile(); isInDoubt(main.value(path), custom.value(path)))
            doubtful.append(url);
    const QString without = u"--"_s + MetadataWriter::customNamespacePrefix() + u":all"_s;
    const auto clear = indexBySourceFile(runner.readEach(tags, doubtful, control, { without }).objects);
    for (auto object = clear.cbegin(); object != clear.cend(); ++object)
        main.insert(object.key(), object.value());
}

// The read that puts up with what it cannot read.
class EachRead {
public:
    EachRead(const ExifToolRunner& runner, const QStringList& tags, const QList<QUrl>& urls, const ReadControl& control)
        : m_runner(runner)
        , m_tags(tags)
        , m_urls(urls)
        , m_runs(control, urls.size())
    {
    }

    Answers answers()
    {
        readMain();
        readCustom();
        resolveDoubts(m_runner, m_tags, m_readable, m_runs.silent(), m_answers.main, m_answers.custom);
        return std::move(m_answers);
    }

private:
    void readMain()
    {
        const ReadAnswer answer = m_runner.readEach(m_tags, m_urls, m_runs.next(m_urls.size(), 2));
        m_answers.main = indexBySourceFile(answer.objects);
        m_answers.reasons = answer.undecodable;
        m_readable = m_urls;
        if (answer.failure) {
            m_answers.reasons.insert(m_runner.readErrors(m_urls, m_runs.next(m_urls.size(), 2)));
            takeUnanswered(answer, m_answers.main);
        } else {
            matchByPosition(answer.objects);
        }
        m_readable.removeIf([this](const QUrl& url) { return isOut(url); });
    }

    void readCustom()
    {
        const ReadAnswer answer = m_runner.readEachCustomNamespace(m_readable, m_runs.next(m_readable.size(), 1));
        m_answers.custom = indexBySourceFile(answer.objects);
        m_answers.reasons.insert(answer.undecodable);
        if (answer.failure)
            takeUnanswered(answer, m_answers.custom);
        m_readable.removeIf([this](const QUrl& url) { return isOut(url); });
    }

    bool isOut(const QUrl& url) const
    {
        return m_answers.reasons.contains(url.toLocalFile()) || m_answers.gone.contains(url.toLocalFile());
    }

    // Of a run with the exit status 1: photos that went away while it ran, and such as it says nothing about though
    // they are there, because another program was just replacing them. Without any object the run itself failed.
    void takeUnanswered(const ReadAnswer& answer, const ObjectsByPath& objects)
    {
        for (const auto& url : std::as_const(m_readable)) {
            m_runs.requireWanted();
            const QString path = url.toLocalFile();
            if (!QFileInfo::exists(path))
                m_answers.gone.insert(path);
            if (objects.contains(path) || isOut(url))
                continue;
            if (objects.isEmpty())
                throw ToolError(*answer.failure);
            m_answers.reasons.insert(path, Texts::tr("Changed while it was read"));
        }
    }

    // A name that is no text comes back changed, but at its place: the objects are in the files' order.
    void matchByPosition(const QList<JSONObject>& objects)
    {
        for (qsizetype i = 0; i < m_urls.size() && objects.size() == m_urls.size(); ++i)
            if (const QString path = m_urls[i].toLocalFile(); !m_answers.main.contains(path))
                m_answers.main.insert(path, objects[i]);
    }

    const ExifToolRunner& m_runner;
    const QStringList& m_tags;
    const QList<QUrl>& m_urls;
    Runs m_runs;
    QList<QUrl> m_readable;
    Answers m_answers;
};

}  // namespace

QList<ImageRecord> all(const ExifToolRunner& runner, const QList<QUrl>& urls, const ReadControl& control)
{
    if (urls.isEmpty())
        return {};
    Runs runs(control, urls.size());
    const auto main = runner.read(MetadataReader::readTags(), urls, runs.next(urls.size(), 2));
    const auto custom = runner.readCustomNamespace(urls, runs.next(urls.size(), 1));
    auto mainByPath = indexBySourceFile(main);
    const auto customByPath = indexBySourceFile(custom);
    resolveDoubts(runner, MetadataReader::readTags(), urls, runs.silent(), mainByPath, customByPath);

    QList<ImageRecord> records;
    records.reserve(urls.size());
    for (qsizetype i = 0; i < urls.size(); ++i) {
        runs.requireWanted();
        const QString path = urls[i].toLocalFile();
        // A name that is no text comes back changed, but at its place: the objects are in the files' order.
        const auto found = mainByPath.constFind(path);
        records.append(record(urls[i], found != mainByPath.cend() ? *found : main.value(i), customByPath.value(path)));
    }
    return records;
}

Answers ask(const ExifToolRunner& runner, const QStringList& tags, const QList<QUrl>& urls, const ReadControl& control)
{
    return urls.isEmpty() ? Answers() : EachRead(runner, tags, urls, control).answers();
}

Outcome each(const ExifToolRunner& runner, const QList<QUrl>& urls, const ReadControl& control)
{
    const Answers answers = ask(runner, MetadataReader::readTags(), urls, control);
    Outcome outcome;
    for (const QUrl& url : urls) {
        // A hundred thousand records take seconds.
        if (control.stop.stop_requested())
            throw CancelledError();
        const QString path = url.toLocalFile();
        if (const auto reason = answers.reasons.constFind(path); reason != answers.reasons.cend())
            outcome.leftOut.append({ url, *reason });
        else if (!answers.gone.contains(path))
            outcome.records.append(record(url, answers.main.value(path), answers.custom.value(path)));
    }
    return outcome;
}

}  // namespace Quorbel::PhotoRead
