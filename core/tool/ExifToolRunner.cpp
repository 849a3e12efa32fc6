#include "core/tool/ExifToolRunner.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QUtf8StringView>
#include <QUuid>

#include <algorithm>

#include <sys/resource.h>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Linux allows argument lists of a quarter of the soft stack limit, up to 6 MiB; the usual 8 MiB of stack give
// 2 MiB. More stack than this helps nothing.
constexpr rlim_t toolStackBytes = rlim_t(64) * 1024 * 1024;
// How long a triggered stop token may go unnoticed, in milliseconds.
constexpr int stopPollInterval = 50;
// How long the tool may take to end by itself once asked to, in milliseconds.
constexpr int terminationGrace = 1000;
// Levels above the program that are searched for a "vendor" directory.
constexpr int vendorLevels = 6;

bool exists(const QUrl& file)
{
    return QFileInfo::exists(file.toLocalFile());
}

// Empty for bytes that are not valid UTF-8.
QString strictUtf8(const QByteArray& bytes)
{
    return QUtf8StringView(bytes).isValidUtf8() ? QString::fromUtf8(bytes) : QString();
}

QStringList paths(const QList<QUrl>& files)
{
    QStringList list;
    list.reserve(files.size());
    for (const auto& file : files)
        list.append(file.toLocalFile());
    return list;
}

QStringList options(const QStringList& tags)
{
    QStringList list;
    for (const auto& tag : tags)
        list.append(u'-' + tag);
    return list;
}

// Runs in the child between fork and exec, so it may only make system calls.
void raiseStackLimit()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_STACK, &limit) != 0 || (limit.rlim_cur != RLIM_INFINITY && limit.rlim_cur >= toolStackBytes))
        return;
    // RLIM_INFINITY is the largest value of its type, so this is the smaller of the two in every case.
    limit.rlim_cur = std::min(limit.rlim_max, toolStackBytes);
    setrlimit(RLIMIT_STACK, &limit);
}

// The user's, without what changes how Perl itself reads, writes and starts: under PERL_UNICODE, for one, it would
// decode paths and values that ExifTool takes for bytes.
QProcessEnvironment toolEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& name : { u"PERL_UNICODE"_s, u"PERL5OPT"_s, u"PERLIO"_s })
        environment.remove(name);
    return environment;
}

void startProcess(QProcess& process, const QUrl& program, const QStringList& arguments)
{
    process.setProgram(program.toLocalFile());
    process.setArguments(arguments);
    process.setProcessEnvironment(toolEnvironment());
    process.setInputChannelMode(QProcess::ForwardedInputChannel);
    process.setChildProcessModifier(raiseStackLimit);
    process.start(QIODevice::ReadOnly);
    if (!process.waitForStarted(-1))
        throw LaunchError(process.errorString());
}

void endProcess(QProcess& process)
{
    process.terminate();
    if (process.waitForFinished(terminationGrace) || process.state() == QProcess::NotRunning)
        return;
    process.kill();
    process.waitForFinished(-1);
}

// Counts the files in JSON output while it arrives. A value never holds a raw line feed, so a line that begins
// with an object's first key is always one; nested objects are indented further.
class FileCounter {
public:
    FileCounter(qsizetype limit, const std::function<void(qsizetype)>& report)
        : m_limit(limit)
        , m_report(report)
    {
    }

    void operator()(const QByteArray& output)
    {
        const QByteArrayView marker("\n  \"SourceFile\":");
        const qsizetype before = m_count;
        for (qsizetype at = 0; (at = output.indexOf(marker, m_searched)) >= 0; ++m_count)
            m_searched = at + marker.size();
        // The start of a marker may already be there, its end in the next piece.
        m_searched = std::max(m_searched, output.size() - marker.size() + 1);
        m_count = std::min(m_count, m_limit);
        if (m_count > before)
            m_report(m_count);
    }

private:
    qsizetype m_limit;
    qsizetype m_count = 0;
    qsizetype m_searched = 0;
    std::function<void(qsizetype)> m_report;
};

// The tool wants it before everything else.
QStringList configArguments(const std::optional<QUrl>& configPath)
{
    if (!configPath)
        return {};
    return { u"-config"_s, configPath->toLocalFile() };
}

QStringList originalsMode(bool backup)
{
    if (backup)
        return {};
    return { u"-overwrite_original"_s };
}

QStringList toStandardOutput()
{
    return { u"-o"_s, u"-"_s };
}

// `mode`: what becomes of the old file.
QStringList writeArguments(const QStringList& mode, const WriteCommand& command, const QList<QUrl>& files,
    const std::optional<QUrl>& configPath)
{
    QStringList list = configArguments(configPath);
    list << mode << u"-m"_s << arguments(command) << paths(files);
    return list;
}

// To decode the answer for a hundred thousand files takes seconds.
void requireWanted(const ReadControl& control)
{
    if (control.stop.stop_requested())
        throw CancelledError();
}

QStringList mainSelection(const QStringList& tags)
{
    return QStringList{ u"-json"_s, u"-G0"_s, u"-struct"_s, u"-c"_s, u"%.6f"_s } + options(tags);
}

// Documents within a file have names of their own, so that none of their tags passes for one of the photo's; and tags
// are told that the tool has no names for.
QStringList detailsSelection(const QStringList& tags)
{
    return QStringList{ u"-json"_s, u"-G3:1"_s, u"-struct"_s, u"-a"_s, u"-u"_s, u"-n"_s } + options(tags);
}

QStringList customSelection()
{
    return { u"-json"_s, u"-G1"_s, u"-struct"_s, u"-XMP-Quorbel:all"_s };
}

std::optional<QString> toolNamedByEnvironment()
{
    const QString path = qEnvironmentVariable("QUORBEL_EXIFTOOL");
    return !path.isEmpty() && QFileInfo::exists(path) ? std::optional(QFileInfo(path).absoluteFilePath())
                                                      : std::nullopt;
}

// Where the tool may lie, for a program installed under `prefix`, best place first.
QStringList candidates(const QString& prefix)
{
    QStringList list{ prefix + u"/share/quorbel/exiftool/exiftool"_s };
    QString directory = prefix;
    for (int level = 0; level < vendorLevels; ++level) {
        directory = QFileInfo(directory).path();
        list.append(QDir::cleanPath(directory + u"/vendor/exiftool/exiftool"_s));
    }
    return list;
}

}  // namespace

std::optional<ExifToolRunner> ExifToolRunner::locate()
{
    // Asked of the system and not of QCoreApplication: there need not be an application object.
    const QFileInfo program(QFile::symLinkTarget(u"/proc/self/exe"_s));
    return locate(QDir::cleanPath(program.absolutePath() + u"/.."_s));
}

std::optional<ExifToolRunner> ExifToolRunner::locate(const QString& prefix)
{
    const auto runner = [](const QString& tool) {
        return ExifToolRunner{ QUrl::fromLocalFile(tool), QUrl::fromLocalFile(u"/usr/bin/perl"_s) };
    };
    if (const auto tool = toolNamedByEnvironment())
        return runner(*tool);
    for (const auto& candidate : candidates(prefix))
        if (QFileInfo::exists(candidate))
            return runner(candidate);
    return std::nullopt;
}

QList<JSONObject> ExifToolRunner::read(
    const QStringList& tags, const QList<QUrl>& files, const ReadControl& control) const
{
    return readJSON(mainSelection(tags), files, control);
}

QList<JSONObject> ExifToolRunner::readCustomNamespace(const QList<QUrl>& files, const ReadControl& control) const
{
    return readJSON(customSelection(), files, control);
}

QList<JSONObject> ExifToolRunner::readJSON(
    const QStringList& selection, const QList<QUrl>& files, const ReadControl& control) const
{
    if (files.isEmpty())
        return {};
    QByteArray output = runForBytes(selection + paths(files), counter(files, control), control);
    if (!QUtf8StringView(output).isValidUtf8())
        output.clear();
    output = std::move(output).trimmed();
    if (output.isEmpty())
        return QList<JSONObject>(files.size());
    requireWanted(control);
    ToolOutput::Decoded decoded = ToolOutput::decode(std::move(output));
    if (decoded.error)
        throw ToolError(*decoded.error);
    return std::move(decoded.objects);
}

ReadAnswer ExifToolRunner::readEach(
    const QStringList& tags, const QList<QUrl>& files, const ReadControl& control, const QStringList& further) const
{
    return readEachJSON(mainSelection(tags) + further, files, control, ToolOutput::decode);
}

ReadAnswer ExifToolRunner::readEachCustomNamespace(const QList<QUrl>& files, const ReadControl& control) const
{
    return readEachJSON(customSelection(), files, control, ToolOutput::decode);
}

ReadAnswer ExifToolRunner::readDetails(
    const QStringList& tags, const QList<QUrl>& files, const ReadControl& control) const
{
    return readEachJSON(detailsSelection(tags), files, control, ToolOutput::decodeExactly);
}

ReadAnswer ExifToolRunner::readEachJSON(const QStringList& selection, const QList<QUrl>& files,
    const ReadControl& control, ToolOutput::Decoded (*decode)(QByteArray)) const
{
    ReadAnswer answer;
    if (files.isEmpty())
        return answer;
    Ended ended = runToEnd(selection + paths(files), counter(files, control), control);
    if (!ended.hasAnswered())
        throw failure(ended);
    if (!ended.isGood())
        answer.failure = failure(ended);
    QByteArray output = std::move(ended.standardOutput).trimmed();
    if (output.isEmpty())
        return answer;
    requireWanted(control);
    ToolOutput::Decoded decoded = decode(std::move(output));
    if (decoded.error && decoded.undecodable.isEmpty())
        throw answer.failure ? *answer.failure : ToolError(*decoded.error);
    answer.objects = std::move(decoded.objects);
    answer.undecodable = std::move(decoded.undecodable);
    return answer;
}

QMap<QString, QString> ExifToolRunner::readErrors(const QList<QUrl>& files, const ReadControl& control) const
{
    QMap<QString, QString> errors;
    const QString tag = u"ExifTool:Error"_s;
    const QStringList selection{ u"-json"_s, u"-G0"_s, u'-' + tag };
    const Ended ended = runToEnd(selection + paths(files), counter(files, control), control);
    const QJsonArray objects = QJsonDocument::fromJson(ended.standardOutput).array();
    for (const auto& object : objects)
        if (const QString reason = object[tag].toString(); !reason.isEmpty())
            errors.insert(object[u"SourceFile"_s].toString(), reason);
    return errors;
}

QByteArray ExifToolRunner::readDump(
    const QStringList& selection, const QList<QUrl>& files, const ReadControl& control) const
{
    if (files.isEmpty())
        return {};
    Ended ended = runToEnd(selection + paths(files), {}, control);
    if (!ended.isGood() && ended.standardOutput.isEmpty())
        throw failure(ended);
    return std::move(ended.standardOutput);
}

QString ExifToolRunner::write(const WriteCommand& command, const QList<QUrl>& files, bool backup,
    const std::optional<QUrl>& configPath, QString* messages) const
{
    if (command.isEmpty() || files.isEmpty())
        return {};
    const Ended ended = runToEnd(writeArguments(originalsMode(backup), command, files, configPath), {}, {});
    if (!ended.isGood())
        throw failure(ended);
    if (messages)
        *messages += QString::fromUtf8(ended.standardError);
    return strictUtf8(ended.standardOutput);
}

WriteAnswers ExifToolRunner::writeEach(
    const QList<WriteRun>& runs, bool backup, const std::optional<QUrl>& configPath) const
{
    return runEach(runs, originalsMode(backup), configPath, Output::kept);
}

QStringList ExifToolRunner::rehearseEach(const QList<WriteRun>& runs, const std::optional<QUrl>& configPath) const
{
    QStringList texts;
    for (const WriteAnswer& answer : runEach(runs, toStandardOutput(), configPath, Output::thrownAway).each)
        texts.append(answer.messages);
    return texts;
}

WriteAnswers ExifToolRunner::runEach(
    const QList<WriteRun>& runs, const QStringList& mode, const std::optional<QUrl>& configPath, Output wanted) const
{
    // A message may quote any value, so the mark is one that nobody can have typed.
    const QString mark = QUuid::createUuid().toString(QUuid::WithoutBraces);
    WriteAnswers answers;
    bool isCutOff = false;
    for (const CommandBatch::Process& process : CommandBatch::processes(runs, mode, mark)) {
        WriteAnswers some;
        if (isCutOff)
            some.each.fill({ .isCutOff = true }, process.count);
        else
            some = runProcess(process, configArguments(configPath), mark, wanted);
        isCutOff = some.each.constLast().isCutOff;
        answers.output += some.output;
        answers.each += some.each;
    }
    return answers;
}

WriteAnswers ExifToolRunner::runProcess(
    const CommandBatch::Process& process, const QStringList& config, const QString& mark, Output wanted) const
{
    WriteAnswers answers;
    Ended ended;
    try {
        ended = runToEnd(config + process.arguments, {}, {}, wanted);
    } catch (const Error& error) {
        // Earlier processes have written their files.
        if (process.first == 0)
            throw;
        answers.each.fill({ .isCutOff = true }, process.count);
        answers.each.first().failure = ToolError(ToolError::ExecFailed{ 1, error.description() });
        return answers;
    }
    answers.output = QString::fromUtf8(ended.standardOutput);
    for (const CommandBatch::Said& said : CommandBatch::said(ended.standardError, mark, process.count)) {
        WriteAnswer answer{ .messages = QString::fromUtf8(said.messages) };
        if (!(said.hasEnded ? said.status == 0 : ended.isGood()))
            answer.failure = failure({ .standardError = said.messages,
                .exitCode = said.hasEnded ? said.status : ended.exitCode,
                .isByItself = said.hasEnded });
        answer.isCutOff = !said.hasEnded && !ended.isGood();
        answers.each.append(answer);
    }
    return answers;
}

QMap<QString, QByteArray> ExifToolRunner::readBinary(
    const QStringList& tags, const QUrl& file, const std::stop_token& stop) const
{
    constexpr qsizetype mostOutput = 200LL * 1024 * 1024;  // a third of it is the encoding's
    const QByteArray prefix = "base64:";
    std::stop_source end;
    const std::stop_callback forward(stop, [&end] { end.request_stop(); });
    const OutputWatch watch = [&end](const QByteArray& output) {
        if (output.size() > mostOutput)
            end.request_stop();
    };
    const QStringList selection{ u"-json"_s, u"-b"_s, u"-n"_s };
    const Ended ended = runToEnd(
        selection + options(tags) + paths({ file }), watch, { .progress = {}, .stop = end.get_token(), .started = {} });
    // A file that holds a tag called Error makes the tool end with 1, and print what it was asked for.
    if (!ended.isGood() && (!ended.hasAnswered() || ended.standardOutput.isEmpty()))
        throw failure(ended);
    const QJsonObject object = QJsonDocument::fromJson(ended.standardOutput).array().at(0).toObject();
    QMap<QString, QByteArray> found;
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        const QByteArray value = it.value().toVariant().toString().toUtf8();
        found.insert(it.key(), value.startsWith(prefix) ? QByteArray::fromBase64(value.sliced(prefix.size())) : value);
    }
    return found;
}

QString ExifToolRunner::version() const
{
    return run({ u"-ver"_s }).trimmed();
}

QString ExifToolRunner::versions() const
{
    return run({ u"-ver"_s, u"-v2"_s });
}

QString ExifToolRunner::run(const QStringList& arguments) const
{
    return strictUtf8(runForBytes(arguments));
}

QByteArray ExifToolRunner::runForBytes(
    const QStringList& arguments, const OutputWatch& watch, const ReadControl& control) const
{
    Ended ended = runToEnd(arguments, watch, control);
    if (ended.isGood())
        return std::move(ended.standardOutput);
    throw failure(ended);
}

ExifToolRunner::OutputWatch ExifToolRunner::counter(const QList<QUrl>& files, const ReadControl& control)
{
    return control.progress ? OutputWatch(FileCounter(files.size(), control.progress)) : OutputWatch();
}

ToolError ExifToolRunner::failure(const Ended& ended)
{
    const QString standardError = strictUtf8(ended.standardError);
    const QString text = standardError.isEmpty() ? strictUtf8(ended.standardOutput) : standardError;
    return ToolError(ToolError::ExecFailed{ ended.exitCode, text }, QString::fromUtf8(ended.standardError));
}

ExifToolRunner::Ended ExifToolRunner::runToEnd(
    const QStringList& arguments, const OutputWatch& watch, const ReadControl& control, Output wanted) const
{
    const std::stop_token& stop = control.stop;
    if (!exists(exiftoolURL))
        throw ToolError(ToolError::ToolNotFound{});
    if (!exists(perlURL))
        throw ToolError(ToolError::PerlNotFound{ perlURL });
    if (stop.stop_requested())
        throw CancelledError();

    QProcess process;
    if (wanted == Output::thrownAway)
        process.setStandardOutputFile(QProcess::nullDevice());
    startProcess(process, perlURL, QStringList{ exiftoolURL.toLocalFile() } + arguments);
    if (control.started)
        control.started(process.processId());
    QByteArray output;
    const auto collect = [&] {
        const QByteArray piece = process.readAllStandardOutput();
        output += piece;
        if (watch && !piece.isEmpty())
            watch(output);
    };
    while (process.state() != QProcess::NotRunning) {
        process.waitForReadyRead(stop.stop_possible() ? stopPollInterval : -1);
        collect();
        if (stop.stop_requested()) {
            endProcess(process);
            throw CancelledError();
        }
    }
    collect();

    return { .standardOutput = std::move(output),
        .standardError = process.readAllStandardError(),
        .exitCode = process.exitCode(),
        .isByItself = process.exitStatus() == QProcess::NormalExit };
}

}  // namespace Quorbel
