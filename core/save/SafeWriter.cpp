#include "core/save/SafeWriter.h"

#include "core/save/SaveGuard.h"
#include "core/save/originals/OriginalKeeper.h"
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

// The runs of one save.
class Save {
public:
    Save(const ExifToolRunner& runner, WriteCommand command, bool backup, std::optional<QUrl> config)
        : m_runner(runner)
        , m_command(std::move(command))
        , m_backup(backup)
        , m_config(std::move(config))
    {
    }

    // Throws at the end what the runs said that failed.
    QString write(const QList<QUrl>& files, const QList<Preparation>& preparations)
    {
        const auto needsUtf8 = [](const auto& run) { return IptcEncoding::needsUtf8(run.command.assignments); };
        const bool mustLook = IptcEncoding::needsUtf8(m_command.assignments)
            || std::any_of(preparations.cbegin(), preparations.cend(), needsUtf8);
        const QList<Preparation> all = (mustLook ? conversions(files) : QList<Preparation>()) + preparations;
        const QList<QUrl> written = all.isEmpty() ? writeValues(files) : writePrepared(files, all);
        attempt(Coordinates::signCommand(m_command.assignments), written, false);
        if (!m_errors.empty())
            throw merged(m_errors);
        return m_said.output;
    }

    const QString& messages() const { return m_said.messages; }
    const QList<QUrl>& iptcLeftAlone() const { return m_iptcLeftAlone; }

private:
    // What the tool said of the values.
    struct Said {
        QString output{};
        QString messages{};
    };

    // The runs that the texts need. Looks which files can have them.
    QList<Preparation> conversions(const QList<QUrl>& files)
    {
        QMap<IptcEncoding::Stored, QList<QUrl>> filesBy;
        const auto tags = TagDump::parse(m_runner.readDump(IptcEncoding::readArgs(), files));
        for (const auto& file : files)
            filesBy[IptcEncoding::storedIn(tags.value(QFile::encodeName(file.toLocalFile())))].append(file);
        m_iptcLeftAlone = filesBy.value(IptcEncoding::Stored::severalBlocks);
        QList<Preparation> runs;
        for (auto it = filesBy.cbegin(); it != filesBy.cend(); ++it)
            if (const WriteCommand command = IptcEncoding::conversion(it.key()); !command.isEmpty())
                runs.append({ command, *it });
        return runs;
    }

    // The write, after the runs that have to come before it. A file is prepared and written, or is what it was.
    QList<QUrl> writePrepared(const QList<QUrl>& files, const QList<Preparation>& preparations)
    {
        QSet<QUrl> touched;
        for (const auto& preparation : preparations)
            touched.unite(setOf(preparation.targets));
        OriginalKeeper originals(touched.values());
        QSet<QUrl> ready = setOf(files);
        for (const auto& preparation : preparations) {
            // Files that it names would not take the values either; they do not keep the others from them.
            const QList<QUrl> todo = among(ready, preparation.targets);
            const QList<QUrl> done = inParts(preparation.command, todo);
            ready.subtract(setOf(todo).subtract(setOf(done)));
        }
        originals.notePrepared();
        return writeValues(among(ready, files));
    }

    static QSet<QUrl> setOf(const QList<QUrl>& files) { return { files.cbegin(), files.cend() }; }

    static QList<QUrl> among(const QSet<QUrl>& some, QList<QUrl> files)
    {
        files.removeIf([&some](const QUrl& file) { return !some.contains(file); });
        return files;
    }

    QList<QUrl> writeValues(const QList<QUrl>& files) { return inParts(m_command, files, &m_said); }

    // Without what is bound for IPTC, where that is left alone. The files that were done.
    QList<QUrl> inParts(const WriteCommand& command, const QList<QUrl>& files, Said* said = nullptr)
    {
        QList<QUrl> whole;
        QList<QUrl> inPart;
        for (const auto& file : files)
            (m_iptcLeftAlone.contains(file) ? inPart : whole).append(file);
        return attempt(command, whole, m_backup, said) + attempt(withoutIptc(command), inPart, m_backup, said);
    }

    // The files that were done. A run that fails without naming a file has done nobody knows what: then there is no
    // other one.
    QList<QUrl> attempt(const WriteCommand& command, const QList<QUrl>& files, bool backup, Said* said = nullptr)
    {
        if (m_isCutOff)
            return {};
        try {
            QString messages;
            const QString output = m_runner.write(command, files, backup, said ? m_config : std::nullopt, &messages);
            if (said)
                *said = { said->output + output, said->messages + messages };
            return files;
        } catch (const ToolError& error) {
            if (!std::holds_alternative<ToolError::ExecFailed>(error.payload()))
                throw;
            m_errors.push_back(error);
            const auto failures = writeFailures(error.messages(), files);
            m_isCutOff = failures.isEmpty();
            QList<QUrl> done = m_isCutOff ? QList<QUrl>() : files;
            for (const auto& failure : failures)
                done.removeAll(failure.file);
            return done;
        }
    }

    const ExifToolRunner& m_runner;
    WriteCommand m_command;
    bool m_backup;
    std::optional<QUrl> m_config;
    Said m_said;
    QList<QUrl> m_iptcLeftAlone;
    std::vector<ToolError> m_errors;
    bool m_isCutOff = false;
};

}  // namespace

QString write(const ExifToolRunner& runner, const WriteCommand& command, const QList<QUrl>& targets, bool backup,
    const QStringList& customNames, const QList<Preparation>& preparations, WriteNotes* notes)
{
    requireOneWay(command.assignments + command.languages);
    for (const auto& preparation : preparations)
        requireOneWay(preparation.command.assignments);
    const auto files = SaveGuard::filesBehindLinks(targets);
    QSet<QString> folders;
    for (const auto& file : files)
        folders.insert(QFileInfo(file.toLocalFile()).path());
    for (const auto& folder : std::as_const(folders))
        OriginalsFolder::clearAbandoned(folder);
    SaveGuard::requireWritable(files);
    SaveGuard::clearLeftovers(files);
    const TemporaryConfig config(customNames);
    const SaveGuard::AttributeKeeper attributes(files);
    // After a failure too: some of the files may have been replaced.
    const auto restoreAttributes = qScopeGuard([&attributes] { attributes.restore(); });
    const SaveGuard::BackupKeeper backups(backup ? files : QList<QUrl>());
    Save save(runner, command, backup, config.url());
    const auto note = qScopeGuard([&] {
        if (!notes)
            return;
        notes->messages += save.messages();
        for (qsizetype i = 0; i < files.size(); ++i)
            if (save.iptcLeftAlone().contains(files[i]))
                notes->iptcLeftAlone.append(targets[i]);
    });
    QList<Preparation> behindLinks = preparations;
    for (auto& preparation : behindLinks)
        preparation.targets = SaveGuard::filesBehindLinks(preparation.targets);
    return save.write(files, behindLinks);
}

}  // namespace Quorbel::SafeWriter
