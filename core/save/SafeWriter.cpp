#include "core/save/SafeWriter.h"

#include "core/iptc/IptcDefinitions.h"
#include "core/save/NewFiles.h"
#include "core/save/SaveGuard.h"
#include "core/save/originals/OriginalKeeper.h"
#include "core/sidecar/SidecarSchema.h"
#include "core/text/Coordinates.h"
#include "core/tool/IptcEncoding.h"
#include "core/tool/TemporaryConfig.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QSet>

#include <algorithm>
#include <vector>

namespace Quorbel::SafeWriter {

using namespace Qt::StringLiterals;

namespace {

// What all runs of one save said that failed.
ToolError merged(const std::vector<ToolError>& errors)
{
    if (errors.size() == 1)
        return errors.front();
    QStringList texts;
    QStringList messages;
    for (const auto& error : errors) {
        texts.append(std::get<ToolError::ExecFailed>(error.payload()).standardError.trimmed());
        messages.append(error.messages().trimmed());
    }
    const qint32 code = std::get<ToolError::ExecFailed>(errors.front().payload()).code;
    return ToolError(ToolError::ExecFailed{ code, texts.join(u'\n') }, messages.join(u'\n'));
}

WriteCommand withoutIptc(WriteCommand command)
{
    command.assignments.removeIf([](const Assignment& assignment) { return homeOf(assignment.tag) == u"IPTC"; });
    return command;
}

QSet<QUrl> setOf(const QList<QUrl>& files)
{
    return { files.cbegin(), files.cend() };
}

QList<QUrl> among(const QSet<QUrl>& some, QList<QUrl> files)
{
    files.removeIf([&some](const QUrl& file) { return !some.contains(file); });
    return files;
}

QList<QUrl> filesOf(const QList<Portion>& portions)
{
    QList<QUrl> files;
    for (const Portion& portion : portions)
        files += portion.targets;
    return files;
}

QStringList customNamesOf(const QList<Portion>& portions)
{
    QStringList names;
    for (const Portion& portion : portions)
        names += portion.customNames;
    names.removeDuplicates();
    return names;
}

// Preparations write nothing that has to be defined.
bool needsSidecarConfig(const Portion& portion)
{
    return SidecarSchema::needDefinitions(portion.command.assignments);
}

bool needsConfig(const Portion& portion)
{
    return !portion.customNames.isEmpty() || IptcDefinitions::areNeeded(portion.command.assignments);
}

QString definitionsFor(const QList<Portion>& portions)
{
    const bool areNeeded = std::any_of(portions.cbegin(), portions.cend(),
        [](const Portion& portion) { return IptcDefinitions::areNeeded(portion.command.assignments); });
    return areNeeded ? IptcDefinitions::text() : QString();
}

// Definitions for sidecars would lead runs over photos astray.
struct Configs {
    std::optional<QUrl> photos{};
    std::optional<QUrl> sidecars{};
};

// The runs of one save. The targets of its portions are the files themselves.
class Save {
public:
    Save(const ExifToolRunner& runner, const QList<Portion>& portions, bool backup, Configs configs)
        : m_runner(runner)
        , m_portions(portions)
        , m_backup(backup)
        , m_configs(std::move(configs))
    {
    }

    // What the runs said that failed is left to be asked for.
    void write()
    {
        const QList<Preparation> conversions = conversionsOf(filesToLookAt());
        const QList<Preparation> preparations = preparationsOf();
        const QSet<QUrl> files = setOf(filesOf(m_portions));
        m_done = conversions.isEmpty() && preparations.isEmpty() ? writeValues(files)
                                                                 : writePrepared(files, conversions, preparations);
        writeSigns();
    }

    const QString& output() const { return m_said.output; }
    const QString& messages() const { return m_said.messages; }
    const QSet<QUrl>& iptcLeftAlone() const { return m_iptcLeftAlone; }
    const QSet<QUrl>& done() const { return m_done; }
    std::optional<ToolError> error() const { return m_errors.empty() ? std::nullopt : std::optional(merged(m_errors)); }

private:
    // What the tool said of the values.
    struct Said {
        QString output{};
        QString messages{};
    };

    // Those of portions with texts that IPTC may have to be encoded anew for.
    QList<QUrl> filesToLookAt() const
    {
        const auto needsUtf8 = [](const auto& run) { return IptcEncoding::needsUtf8(run.command.assignments); };
        QList<QUrl> files;
        for (const Portion& portion : m_portions)
            if (needsUtf8(portion)
                || std::any_of(portion.preparations.cbegin(), portion.preparations.cend(), needsUtf8))
                files += portion.targets;
        return files;
    }

    // The runs that the texts need. Looks which files can have them.
    QList<Preparation> conversionsOf(const QList<QUrl>& files)
    {
        if (files.isEmpty())
            return {};
        QMap<IptcEncoding::Stored, QList<QUrl>> filesBy;
        const auto tags = TagDump::parse(m_runner.readDump(IptcEncoding::readArgs(), files));
        for (const auto& file : files)
            filesBy[IptcEncoding::storedIn(tags.value(QFile::encodeName(file.toLocalFile())))].append(file);
        m_iptcLeftAlone = setOf(filesBy.value(IptcEncoding::Stored::severalBlocks));
        QList<Preparation> runs;
        for (auto it = filesBy.cbegin(); it != filesBy.cend(); ++it)
            if (const WriteCommand command = IptcEncoding::conversion(it.key()); !command.isEmpty())
                runs.append({ command, *it });
        return runs;
    }

    // Those of all portions; equal ones share a run.
    QList<Preparation> preparationsOf() const
    {
        QList<Preparation> all;
        QHash<QStringList, qsizetype> known;
        for (const Portion& portion : m_portions)
            for (const Preparation& preparation : portion.preparations) {
                const QStringList key = arguments(preparation.command);
                const qsizetype at = known.value(key, all.size());
                if (at == all.size()) {
                    known.insert(key, at);
                    all.append({ preparation.command, {} });
                }
                all[at].targets += preparation.targets;
            }
        return all;
    }

    // The write, after the runs that have to come before it. A file is prepared and written, or is what it was.
    QSet<QUrl> writePrepared(
        const QSet<QUrl>& files, const QList<Preparation>& conversions, const QList<Preparation>& preparations)
    {
        QSet<QUrl> touched;
        for (const Preparation& preparation : conversions + preparations)
            touched.unite(setOf(preparation.targets));
        OriginalKeeper originals(touched.values());
        const QSet<QUrl> ready = prepared(prepared(files, conversions), preparations);
        originals.notePrepared();
        return writeValues(ready);
    }

    // Of these files those that are ready for the values. The others do not keep them from theirs.
    QSet<QUrl> prepared(QSet<QUrl> files, const QList<Preparation>& preparations)
    {
        QList<WriteRun> runs;
        QSet<QUrl> todo;
        for (const Preparation& preparation : preparations) {
            const QList<QUrl> targets = among(files, preparation.targets);
            runs += inParts({ preparation.command, targets });
            todo.unite(setOf(targets));
        }
        return files.subtract(todo.subtract(attempt(runs, m_backup)));
    }

    QSet<QUrl> writeValues(const QSet<QUrl>& files)
    {
        QList<WriteRun> plain;
        QList<WriteRun> configured;
        QList<WriteRun> ofSidecars;
        for (const Portion& portion : m_portions)
            (needsSidecarConfig(portion)   ? ofSidecars
                    : needsConfig(portion) ? configured
                                           : plain) += inParts({ portion.command, among(files, portion.targets) });
        QSet<QUrl> done = attempt(plain, m_backup, &m_said);
        done.unite(attempt(configured, m_backup, &m_said, m_configs.photos));
        return done.unite(attempt(ofSidecars, m_backup, &m_said, m_configs.sidecars));
    }

    // Positions in XMP, which need a sign.
    void writeSigns()
    {
        QList<WriteRun> runs;
        for (const Portion& portion : m_portions)
            if (const WriteCommand command = Coordinates::signCommand(portion.command.assignments); !command.isEmpty())
                runs.append({ command, among(m_done, portion.targets) });
        attempt(runs, false);
    }

    // Without what is bound for IPTC, where that is left alone.
    QList<WriteRun> inParts(const WriteRun& run) const
    {
        WriteRun whole{ run.command, {} };
        WriteRun inPart{ withoutIptc(run.command), {} };
        for (const QUrl& file : run.files)
            (m_iptcLeftAlone.contains(file) ? inPart : whole).files.append(file);
        return { whole, inPart };
    }

    // The files that were done. The runs of one portion are starts of the tool as ever; those of many share some.
    QSet<QUrl> attempt(
        QList<WriteRun> runs, bool backup, Said* said = nullptr, const std::optional<QUrl>& config = std::nullopt)
    {
        QSet<QUrl> done;
        for (const WriteRun& run : std::as_const(runs))
            if (run.command.isEmpty())
                done.unite(setOf(run.files));
        runs.removeIf([](const WriteRun& run) { return run.command.isEmpty() || run.files.isEmpty(); });
        if (m_portions.size() == 1 || runs.size() == 1)
            for (const WriteRun& run : std::as_const(runs))
                done.unite(attemptOne(run, backup, said, config));
        else if (!runs.isEmpty() && !m_isCutOff)
            done.unite(attemptEach(runs, backup, said, config));
        return done;
    }

    // A run that fails without naming a file has done nobody knows what: then there is no other one.
    QSet<QUrl> attemptOne(const WriteRun& run, bool backup, Said* said, const std::optional<QUrl>& config)
    {
        if (m_isCutOff)
            return {};
        try {
            QString messages;
            const QString output = m_runner.write(run.command, run.files, backup, config, &messages);
            if (said)
                *said = { said->output + output, said->messages + messages };
            return setOf(run.files);
        } catch (const ToolError& error) {
            if (!std::holds_alternative<ToolError::ExecFailed>(error.payload()))
                throw;
            m_errors.push_back(error);
            const auto failures = writeFailures(error.messages(), run.files);
            m_isCutOff = failures.isEmpty();
            return m_isCutOff ? QSet<QUrl>() : without(failures, run.files);
        }
    }

    // The same where the tool says of each run what came of it: after it was cut off there is no other one.
    QSet<QUrl> attemptEach(const QList<WriteRun>& runs, bool backup, Said* said, const std::optional<QUrl>& config)
    {
        const WriteAnswers answers = m_runner.writeEach(runs, backup, config);
        if (said)
            said->output += answers.output;
        QSet<QUrl> done;
        for (qsizetype i = 0; i < runs.size(); ++i) {
            const WriteAnswer& answer = answers.each.at(i);
            if (answer.failure && !m_isCutOff)
                m_errors.push_back(*answer.failure);
            m_isCutOff |= answer.isCutOff;
            if (answer.isCutOff)
                continue;
            if (said && !answer.failure)
                said->messages += answer.messages;
            const auto failures = writeFailures(answer.messages, runs.at(i).files);
            if (!answer.failure || !failures.isEmpty())
                done.unite(without(failures, runs.at(i).files));
        }
        return done;
    }

    static QSet<QUrl> without(const QList<FileFailure>& failures, const QList<QUrl>& files)
    {
        QSet<QUrl> done = setOf(files);
        for (const FileFailure& failure : failures)
            done.remove(failure.file);
        return done;
    }

    const ExifToolRunner& m_runner;
    const QList<Portion>& m_portions;
    bool m_backup;
    Configs m_configs;
    Said m_said;
    QSet<QUrl> m_iptcLeftAlone;
    QSet<QUrl> m_done;
    std::vector<ToolError> m_errors;
    bool m_isCutOff = false;
};

void requireOneWay(const Portion& portion)
{
    Quorbel::requireOneWay(portion.command.assignments + portion.command.languages);
    for (const Preparation& preparation : portion.preparations)
        Quorbel::requireOneWay(preparation.command.assignments);
}

// The files behind the targets, which nothing else may be done to before.
Portion behindLinks(Portion portion)
{
    portion.targets = SaveGuard::filesBehindLinks(portion.targets);
    for (Preparation& preparation : portion.preparations)
        preparation.targets = SaveGuard::filesBehindLinks(preparation.targets);
    return portion;
}

void clearAbandoned(const QList<QUrl>& files)
{
    QSet<QString> folders;
    for (const auto& file : files)
        folders.insert(QFileInfo(file.toLocalFile()).path());
    for (const auto& folder : std::as_const(folders))
        OriginalsFolder::clearAbandoned(folder);
}

void requireReady(const QList<QUrl>& files)
{
    SaveGuard::requireWritable(files);
    SaveGuard::clearLeftovers(files);
}

// Portions whose files may be written to. `targets`: as they were given, in the order of all files.
Outcome run(const ExifToolRunner& runner, const QList<Portion>& portions, const QList<QUrl>& targets, bool backup,
    WriteNotes* notes)
{
    const QList<QUrl> files = filesOf(portions);
    const TemporaryConfig config(customNamesOf(portions), definitionsFor(portions));
    const bool hasSidecars = std::any_of(portions.cbegin(), portions.cend(), needsSidecarConfig);
    const TemporaryConfig ofSidecars(hasSidecars ? customNamesOf(portions) : QStringList(),
        hasSidecars ? definitionsFor(portions) + SidecarSchema::definitions() : QString());
    const SaveGuard::AttributeKeeper attributes(files);
    // After a failure too: some of the files may have been replaced.
    const auto restoreAttributes = qScopeGuard([&attributes] { attributes.restore(); });
    const SaveGuard::BackupKeeper backups(backup ? files : QList<QUrl>());
    Save save(runner, portions, backup, { config.url(), ofSidecars.url() });
    const auto note = qScopeGuard([&] {
        if (!notes)
            return;
        notes->messages += save.messages();
        for (qsizetype i = 0; i < files.size(); ++i)
            if (save.iptcLeftAlone().contains(files[i]))
                notes->iptcLeftAlone.append(targets[i]);
    });
    save.write();
    Outcome outcome{ .output = save.output(), .error = save.error() };
    for (qsizetype i = 0; i < files.size(); ++i)
        if (save.done().contains(files[i]))
            outcome.done.append(targets[i]);
    return outcome;
}

}  // namespace

namespace {

// Of files that were made, what they are called from now on, and what is said of them. `files` and `targets` stand in
// one order.
void giveNames(const NewFiles& made, const QList<QUrl>& files, const QList<QUrl>& targets, Outcome& outcome)
{
    std::vector<ToolError> errors;
    if (outcome.error)
        errors.push_back(made.told(*outcome.error));
    const QSet<QUrl> done = setOf(outcome.done);
    for (qsizetype i = 0; i < files.size(); ++i) {
        if (!done.contains(targets.at(i)) || made.giveName(files.at(i)))
            continue;
        outcome.done.removeAll(targets.at(i));
        const QString text = u"Error: Another program made it meanwhile - "_s + targets.at(i).toLocalFile();
        errors.emplace_back(ToolError::ExecFailed{ 1, text }, text);
    }
    if (!errors.empty())
        outcome.error = merged(errors);
}

}  // namespace

QString write(const ExifToolRunner& runner, const WriteCommand& command, const QList<QUrl>& targets, bool backup,
    const QStringList& customNames, const QList<Preparation>& preparations, WriteNotes* notes)
{
    const Portion given{ command, targets, customNames, preparations };
    requireOneWay(given);
    const Portion portion = behindLinks(given);
    clearAbandoned(portion.targets);
    requireReady(portion.targets);
    const Outcome outcome = run(runner, { portion }, targets, backup, notes);
    if (outcome.error)
        throw *outcome.error;
    return outcome.output;
}

Outcome writeEach(const ExifToolRunner& runner, const QList<Portion>& portions, bool backup, WriteNotes* notes)
{
    clearAbandoned(SaveGuard::filesBehindLinks(filesOf(portions)));
    QList<Portion> ready;
    QList<QUrl> targets;
    QMap<qsizetype, QString> refused;
    for (qsizetype i = 0; i < portions.size(); ++i) {
        try {
            requireOneWay(portions.at(i));
            const Portion portion = behindLinks(portions.at(i));
            requireReady(portion.targets);
            ready.append(portion);
            targets += portions.at(i).targets;
        } catch (const Error& error) {
            refused.insert(i, error.description());
        }
    }
    Outcome outcome;
    if (!ready.isEmpty()) {
        NewFiles made;
        for (Portion& portion : ready)
            if (portion.mayBeNew)
                portion.targets = made.hidden(portion.targets);
        outcome = run(runner, ready, targets, backup, notes);
        giveNames(made, filesOf(ready), targets, outcome);
    }
    outcome.refused = refused;
    return outcome;
}

}  // namespace Quorbel::SafeWriter
