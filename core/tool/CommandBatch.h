// Many write commands in one process of ExifTool: its "-execute" runs each as a command line of its own, with its own
// files and exit status, for a few milliseconds instead of a start of Perl. Values travel as process arguments as ever,
// byte for byte: the tool's argument files would change white space, line feeds and dollar signs in them.
// Thread: any. Pure: starts nothing.
#pragma once

#include "core/tool/WriteCommand.h"

#include <QList>
#include <QUrl>

namespace Quorbel {

/// One command and the files that it is for.
struct WriteRun {
    WriteCommand command{};
    QList<QUrl> files{};
};

namespace CommandBatch {

/// Half of what the usual 8 MiB of stack allow as arguments and environment.
constexpr qsizetype mostArgumentBytes()
{
    return qsizetype(1) << 20U;
}

/// What one process is given, and which of the runs that is.
struct Process {
    QStringList arguments{};
    qsizetype first = 0;
    qsizetype count = 0;
};

/// What the tool said of one run.
struct Said {
    bool hasEnded = false;  ///< otherwise nobody knows how far it got
    int status = 0;
    QByteArray messages{};
};

/// As few processes as hold the runs in their order, each with at most `mostBytes` of arguments; a single run may have
/// more. `mode` comes first in each run; `mark`, a line's beginning that no message has, divides what they say.
QList<Process> processes(const QList<WriteRun>& runs, const QStringList& mode, const QString& mark,
    qsizetype mostBytes = mostArgumentBytes());
/// What each of so many runs of a process printed to standard error.
QList<Said> said(const QByteArray& standardError, const QString& mark, qsizetype count);
}  // namespace CommandBatch

}  // namespace Quorbel
