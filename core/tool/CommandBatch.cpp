#include "core/tool/CommandBatch.h"

namespace Quorbel::CommandBatch {

using namespace Qt::StringLiterals;

namespace {

// The text, the zero at its end, and the pointer to it.
qsizetype bytesOf(const QStringList& arguments)
{
    qsizetype bytes = 0;
    for (const QString& argument : arguments)
        bytes += argument.toUtf8().size() + 1 + qsizetype(sizeof(char*));
    return bytes;
}

QStringList argumentsOf(const WriteRun& run, const QStringList& mode, const QString& mark, qsizetype position)
{
    QStringList list{ u"-echo4"_s, u"%1 %2 ${status}"_s.arg(mark).arg(position) };
    list << mode << u"-m"_s << arguments(run.command);
    for (const QUrl& file : run.files)
        list.append(file.toLocalFile());
    return list;
}

}  // namespace

QList<Process> processes(const QList<WriteRun>& runs, const QStringList& mode, const QString& mark, qsizetype mostBytes)
{
    QList<Process> processes;
    qsizetype bytes = 0;
    for (qsizetype i = 0; i < runs.size(); ++i) {
        const qsizetype position = processes.isEmpty() ? 0 : i - processes.constLast().first;
        QStringList own = argumentsOf(runs.at(i), mode, mark, position);
        const qsizetype more = bytesOf(own);
        if (processes.isEmpty() || bytes + more > mostBytes) {
            processes.append(Process{ .first = i });
            own = argumentsOf(runs.at(i), mode, mark, 0);
            bytes = 0;
        } else {
            processes.last().arguments.append(u"-execute"_s);
        }
        processes.last().arguments.append(own);
        ++processes.last().count;
        bytes += more;
    }
    return processes;
}

QList<Said> said(const QByteArray& standardError, const QString& mark, qsizetype count)
{
    QList<Said> all(count);
    const QByteArray beginning = mark.toUtf8() + ' ';
    QByteArray messages;
    qsizetype next = 0;
    for (qsizetype at = 0; at < standardError.size();) {
        const qsizetype end = standardError.indexOf('\n', at);
        const QByteArray line = standardError.sliced(at, (end < 0 ? standardError.size() : end + 1) - at);
        at += line.size();
        if (!line.startsWith(beginning)) {
            messages += line;
            continue;
        }
        const QList<QByteArray> words = line.trimmed().split(' ');
        const qsizetype position = words.value(words.size() - 2).toInt();
        if (position < 0 || position >= count)
            continue;
        all[position] = { true, words.constLast().toInt(), std::exchange(messages, {}) };
        next = position + 1;
    }
    if (next < count)
        all[next].messages = messages;
    return all;
}

}  // namespace Quorbel::CommandBatch
