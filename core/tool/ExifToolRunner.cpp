#include "core/tool/ExifToolRunner.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QUtf8StringView>

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
// Characters of the output that an error about it quotes.
constexpr qsizetype quotedCharacters = 400;
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

void startProcess(QProcess& process, const QUrl& program, const QStringList& arguments)
{
    process.setProgram(program.toLocalFile());
    process.setArguments(arguments);
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

// `mode`: what becomes of the old file.
QStringList writeArguments(const QStringList& mode, const WriteCommand& command, const QList<QUrl>& files,
    const std::optional<QUrl>& configPath)
{
    QStringList list;
    if (configPath)  // the tool wants it before everything else
        list << u"-config"_s << configPath->toLocalFile();
    return list << mode << u"-m"_s << command.options << arguments(command.assignments) << paths(files);
}

ToolError undecodable(const QString& reason, const QByteArray& output)
{
    // Four bytes a character at most; a character that this cuts in two lies behind those that are quoted.
    const auto characters = QString::fromUtf8(output.left(4 * quotedCharacters)).toUcs4();
    const auto quoted = QString::fromUcs4(
        reinterpret_cast<const char32_t*>(characters.constData()), std::min(characters.size(), quotedCharacters));
    return ToolError(ToolError::DecodeFailed{ reason + u" — output: "_s + quoted });
}

// A text like "1e999" is printed as a number, which no double holds and Qt refuses together with all the rest: those
// as texts.
QByteArray withHugeNumbersQuoted(const QByteArray& json)
{
    QByteArray quoted;
    quoted.reserve(json.size() + 2);
    bool isInString = false;
    for (qsizetype at = 0; at < json.size(); ++at) {
        const char c = json[at];
        if (!isInString && (c == '-' || (c >= '0' && c <= '9'))) {
            qsizetype end = at;
            while (end < json.size() && QByteArrayView("+-.0123456789Ee").contains(json[end]))
                ++end;
            const QByteArray number = json.sliced(at, end - at);
            bool fits = false;
            number.toDouble(&fits);
            quoted += fits ? number : '"' + number + '"';
            at = end - 1;
            continue;
        }
        quoted += c;
        if (c == '"')
            isInString = !isInString;
        else if (c == '\\' && at + 1 < json.size())
            quoted += json[++at];
    }
    return quoted;
}

QList<JSONObject> decode(QByteArray output)
{
    QJsonParseError error;
    auto document = QJsonDocument::fromJson(output, &error);
    if (error.error == QJsonParseError::IllegalNumber)
        document = QJsonDocument::fromJson(withHugeNumbersQuoted(output), &error);
    if (error.error != QJsonParseError::NoError)
        throw undecodable(error.errorString(), output);
    output.truncate(4 * quotedCharacters);
    output.squeeze();  // of a hundred thousand photos this is a hundred megabytes
    auto objects = document.isArray() ? objectsFromJson(document.array()) : std::nullopt;
    if (!objects)
        throw undecodable(u"not an array of objects"_s, output);
    return *std::move(objects);
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
    return readJSON(QStringList{ u"-G0"_s, u"-struct"_s, u"-c"_s, u"%.6f"_s } + options(tags), files, control);
}

QList<JSONObject> ExifToolRunner::readCustomNamespace(const QList<QUrl>& files, const ReadControl& control) const
{
    return readJSON({ u"-G1"_s, u"-struct"_s, u"-XMP-Quorbel:all"_s }, files, control);
}

QList<JSONObject> ExifToolRunner::readJSON(
    const QStringList& selection, const QList<QUrl>& files, const ReadControl& control) const
{
    if (files.isEmpty())
        return {};
    OutputWatch watch;
    if (control.progress)
        watch = FileCounter(files.size(), control.progress);
    QByteArray output = runForBytes(QStringList{ u"-json"_s } + selection + paths(files), watch, control);
    if (!QUtf8StringView(output).isValidUtf8())
        output.clear();
    output = std::move(output).trimmed();
    // To decode the answer for a hundred thousand files takes seconds.
    if (control.stop.stop_requested())
        throw CancelledError();
    return output.isEmpty() ? QList<JSONObject>(files.size()) : decode(std::move(output));
}

QMap<QString, QString> ExifToolRunner::readErrors(const QList<QUrl>& files, const ReadControl& control) const
{
    QMap<QString, QString> errors;
    const Ended ended = runToEnd(QStringList{ u"-json"_s, u"-Error"_s } + paths(files), {}, control);
    const QJsonArray objects = QJsonDocument::fromJson(ended.standardOutput).array();
    for (const auto& object : objects)
        if (const QString reason = object[u"Error"_s].toString(); !reason.isEmpty())
            errors.insert(object[u"SourceFile"_s].toString(), reason);
    return errors;
}

QByteArray ExifToolRunner::readDump(const QStringList& selection, const QList<QUrl>& files) const
{
    if (files.isEmpty())
        return {};
    Ended ended = runToEnd(selection + paths(files), {}, {});
    if (!ended.isGood && ended.standardOutput.isEmpty())
        throw failure(ended);
    return std::move(ended.standardOutput);
}

QString ExifToolRunner::write(const WriteCommand& command, const QList<QUrl>& files, bool backup,
    const std::optional<QUrl>& configPath, QString* messages) const
{
    if (command.isEmpty() || files.isEmpty())
        return {};
    const QStringList mode = backup ? QStringList() : QStringList(u"-overwrite_original"_s);
    const Ended ended = runToEnd(writeArguments(mode, command, files, configPath), {}, {});
    if (!ended.isGood)
        throw failure(ended);
    if (messages)
        *messages += QString::fromUtf8(ended.standardError);
    return strictUtf8(ended.standardOutput);
}

QString ExifToolRunner::rehearse(
    const WriteCommand& command, const QList<QUrl>& files, const std::optional<QUrl>& configPath) const
{
    if (command.isEmpty() || files.isEmpty())
        return {};
    const QStringList toStandardOutput{ u"-o"_s, u"-"_s };
    const Ended ended =
        runToEnd(writeArguments(toStandardOutput, command, files, configPath), {}, {}, Output::thrownAway);
    return QString::fromUtf8(ended.standardError);
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
    const QByteArray output = runForBytes(
        selection + options(tags) + paths({ file }), watch, { .progress = {}, .stop = end.get_token(), .started = {} });
    const QJsonObject object = QJsonDocument::fromJson(output).array().at(0).toObject();
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

QString ExifToolRunner::run(const QStringList& arguments) const
{
    return strictUtf8(runForBytes(arguments));
}

QByteArray ExifToolRunner::runForBytes(
    const QStringList& arguments, const OutputWatch& watch, const ReadControl& control) const
{
    Ended ended = runToEnd(arguments, watch, control);
    if (ended.isGood)
        return std::move(ended.standardOutput);
    throw failure(ended);
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
        .isGood = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0 };
}

}  // namespace Quorbel
