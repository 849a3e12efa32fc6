// The only place that starts a process: finds ExifTool, runs it once per call, collects what it prints.
// Thread: any; a call blocks until the tool has ended. Several runs may proceed at once.
// Knows nothing of fields or records: MetadataReader and MetadataWriter do.
#pragma once

#include "core/text/Errors.h"
#include "core/text/JSONValue.h"
#include "core/tool/CommandBatch.h"
#include "core/tool/ToolOutput.h"
#include "core/tool/WriteCommand.h"

#include <QList>
#include <QMap>
#include <QUrl>

#include <functional>
#include <optional>
#include <stop_token>

namespace Quorbel {

/// How a caller follows, or ends, one read.
struct ReadControl {
    /// Called on the reading thread with the number of files printed so far: never decreasing, at most the
    /// number of files asked for. Nothing is called when it is empty.
    std::function<void(qsizetype)> progress{};
    /// When triggered, the tool is ended and the read throws CancelledError.
    std::stop_token stop{};
    /// Called on the reading thread with the tool's process id when it runs, so that others can look what it is at.
    std::function<void(qint64)> started{};
};

/// What one read run said of its files, some of which may be unreadable.
struct ReadAnswer {
    QList<JSONObject> objects{};  ///< in the order in which they were printed; without the undecodable ones
    QMap<QString, QString> undecodable{};  ///< path, as it was printed, to why its object makes no sense
    /// The exit status was 1, and the rest is good: some file could not be read, or one holds a tag called Error,
    /// which the tool takes for an error of its own. readErrors() tells which.
    std::optional<ToolError> failure{};
};

/// What came of one of several writes.
struct WriteAnswer {
    std::optional<ToolError> failure{};
    QString messages{};  ///< what the tool printed to standard error
    bool isCutOff = false;  ///< the tool ended before it: the first of these may be half done
};

/// What came of several writes, one answer each, in their order.
struct WriteAnswers {
    QString output{};  ///< standard output of all
    QList<WriteAnswer> each{};
};

struct ExifToolRunner {
    QUrl exiftoolURL{};  ///< the ExifTool script, given to Perl as its first argument
    QUrl perlURL{};  ///< the Perl interpreter; locate() always sets /usr/bin/perl

    /// Finds the tool: the environment variable QUORBEL_EXIFTOOL, then <prefix>/share/quorbel/exiftool/exiftool of
    /// the running program, then vendor/exiftool/exiftool in the six directories from the one that holds the
    /// prefix upward. Nothing when none of them exists.
    static std::optional<ExifToolRunner> locate();
    /// The same search for a program installed under `prefix` (bin/, share/ below it).
    static std::optional<ExifToolRunner> locate(const QString& prefix);

    /// The main read: group-0 keys, one object a file that the tool could print; one empty object a file when it
    /// printed nothing at all. Throws ToolError, LaunchError (also for more than about 6 MiB of paths) or
    /// CancelledError.
    QList<JSONObject> read(const QStringList& tags, const QList<QUrl>& files, const ReadControl& control = {}) const;
    /// Reads the custom group "XMP-Quorbel" alone, with group-1 keys. Throws like read().
    QList<JSONObject> readCustomNamespace(const QList<QUrl>& files, const ReadControl& control = {}) const;
    /// The same runs, where one unreadable file does not keep the others from being read: an exit status of 1 and
    /// objects that cannot be decoded are told, not thrown. `further` options stand behind the tags.
    ReadAnswer readEach(const QStringList& tags, const QList<QUrl>& files, const ReadControl& control,
        const QStringList& further = {}) const;
    ReadAnswer readEachCustomNamespace(const QList<QUrl>& files, const ReadControl& control) const;
    /// A run of its own: all tags of these names, also of those that the tool makes up where it knows none, with
    /// group-1 keys (those of documents in the file behind "Doc1:") and as they are stored; numbers as they were
    /// printed.
    ReadAnswer readDetails(const QStringList& tags, const QList<QUrl>& files, const ReadControl& control = {}) const;
    /// Which of the files the tool itself cannot read, and why, as it says it ("File format error"), by path: a file's
    /// own tag called Error is none of these. Throws like read(), but not for the tool's exit status.
    QMap<QString, QString> readErrors(const QList<QUrl>& files, const ReadControl& control = {}) const;
    /// The tool's answer to a selection, as it printed it: also that about the other files when some could not be read.
    /// Throws ToolError when there is none at all, LaunchError or CancelledError; tells no progress.
    QByteArray readDump(const QStringList& selection, const QList<QUrl>& files, const ReadControl& control = {}) const;
    /// Runs a command over the files and returns the tool's standard output; nothing is run, and "" returned, when the
    /// command or the list is empty. `backup` lets the tool keep its "_original" copies; `messages` gains what it
    /// printed to standard error. Throws ToolError, LaunchError, or AssignmentConflict before anything is run.
    QString write(const WriteCommand& command, const QList<QUrl>& files, bool backup,
        const std::optional<QUrl>& configPath = std::nullopt, QString* messages = nullptr) const;
    /// Several writes, each with the very same effect as write(), in as few processes as hold their arguments: a run
    /// that fails does not keep the others from theirs. Throws like write(), but not for what becomes of a run once
    /// the tool is running.
    WriteAnswers writeEach(
        const QList<WriteRun>& runs, bool backup, const std::optional<QUrl>& configPath = std::nullopt) const;
    /// What the tool would say of such writes, on standard error, one text each: it does all of them, and throws the
    /// results away. Throws like writeEach().
    QStringList rehearseEach(const QList<WriteRun>& runs, const std::optional<QUrl>& configPath = std::nullopt) const;
    /// Those of the tags that one file holds, by their bare names ("PreviewImage"): the bytes of binary ones, the
    /// stored number or text of others. Throws like read(); CancelledError also when they come to some 150 MiB.
    QMap<QString, QByteArray> readBinary(
        const QStringList& tags, const QUrl& file, const std::stop_token& stop = {}) const;
    /// The tool's version, trimmed.
    QString version() const;
    /// The same with the versions of Perl and of the libraries that the tool can use, and where Perl looks for all of
    /// them, as the tool prints it.
    QString versions() const;

    bool operator==(const ExifToolRunner&) const = default;

private:
    /// Sees everything printed so far, each time more of it has arrived.
    using OutputWatch = std::function<void(const QByteArray& output)>;

    enum class Output { kept, thrownAway };

    /// What a run that has ended printed, and how it ended.
    struct Ended {
        QByteArray standardOutput{};
        QByteArray standardError{};
        int exitCode = 0;
        bool isByItself = false;  ///< not by a signal

        bool isGood() const { return isByItself && exitCode == 0; }
        /// It did its work; some file may not have come out as asked for.
        bool hasAnswered() const { return isByItself && exitCode <= 1; }
    };

    QList<JSONObject> readJSON(
        const QStringList& selection, const QList<QUrl>& files, const ReadControl& control) const;
    ReadAnswer readEachJSON(const QStringList& selection, const QList<QUrl>& files, const ReadControl& control,
        ToolOutput::Decoded (*decode)(QByteArray)) const;
    WriteAnswers runEach(const QList<WriteRun>& runs, const QStringList& mode, const std::optional<QUrl>& configPath,
        Output wanted) const;
    WriteAnswers runProcess(
        const CommandBatch::Process& process, const QStringList& config, const QString& mark, Output wanted) const;
    QString run(const QStringList& arguments) const;
    QByteArray runForBytes(
        const QStringList& arguments, const OutputWatch& watch = {}, const ReadControl& control = {}) const;
    static OutputWatch counter(const QList<QUrl>& files, const ReadControl& control);
    static ToolError failure(const Ended& ended);
    Ended runToEnd(const QStringList& arguments, const OutputWatch& watch, const ReadControl& control,
        Output wanted = Output::kept) const;
};

}  // namespace Quorbel
