#include "core/save/SafeWriter.h"

#include "core/save/SaveGuard.h"
#include "core/text/Coordinates.h"
#include "core/tool/IptcEncoding.h"
#include "core/tool/TemporaryConfig.h"
#include "core/tool/WriteFailures.h"

#include <QScopeGuard>

namespace Quorbel::SafeWriter {

namespace {

// All that one save's runs have in common.
struct Runs {
    const ExifToolRunner& runner;
    const WriteCommand& command;
    bool backup = false;
    std::optional<QUrl> config{};

    QString run(const QList<QUrl>& files) const { return runner.write(command, files, backup, config); }
};

QList<QUrl> withoutFailed(QList<QUrl> files, const QList<FileFailure>& failures)
{
    for (const auto& failure : failures)
        files.removeAll(failure.file);
    return files;
}

// The write, after the run that its texts may need.
QString writeTexts(const Runs& save, const QList<QUrl>& files)
{
    if (!IptcEncoding::needsUtf8(save.command.assignments))
        return save.run(files);
    try {
        save.runner.write(IptcEncoding::conversion(), files, save.backup);
    } catch (const ToolError& error) {
        // Those that it names would not take the values either; they do not keep the others from them.
        const auto failures = writeFailures(error.messages(), files);
        const auto converted = withoutFailed(files, failures);
        if (!failures.isEmpty() && !converted.isEmpty())
            save.run(converted);
        throw;
    }
    return save.run(files);
}

// The write, and the run that its position may need.
QString writeSigned(const Runs& save, const QList<QUrl>& files)
{
    const WriteCommand signs = Coordinates::signCommand(save.command.assignments);
    QString output;
    try {
        output = writeTexts(save, files);
    } catch (const ToolError& error) {
        try {
            save.runner.write(signs, withoutFailed(files, writeFailures(error, files)), false);
        } catch (const Error&) {
            // The first failure is the one to tell.
        }
        throw;
    }
    save.runner.write(signs, files, false);
    return output;
}

}  // namespace

QString write(const ExifToolRunner& runner, const WriteCommand& command, const QList<QUrl>& targets, bool backup,
    const QStringList& customNames)
{
    requireOneWay(command.assignments);
    const auto files = SaveGuard::filesBehindLinks(targets);
    SaveGuard::requireWritable(files);
    SaveGuard::clearLeftovers(files);
    const TemporaryConfig config(customNames);
    const SaveGuard::AttributeKeeper attributes(files);
    // After a failure too: some of the files may have been replaced.
    const auto restoreAttributes = qScopeGuard([&attributes] { attributes.restore(); });
    const SaveGuard::BackupKeeper backups(backup ? files : QList<QUrl>());
    return writeSigned({ runner, command, backup, config.url() }, files);
}

}  // namespace Quorbel::SafeWriter
