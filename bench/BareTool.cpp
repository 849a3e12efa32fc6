#include "bench/BareTool.h"

#include "core/tool/ExifToolRunner.h"
#include "core/tool/MetadataReader.h"

#include <QProcess>

#include <atomic>
#include <thread>
#include <vector>

#include <sys/resource.h>

namespace Quorbel::Bench::BareTool {

using namespace Qt::StringLiterals;

namespace {

// Many paths need more than the usual two mebibytes of arguments.
void allowManyArguments()
{
    rlimit limit{};
    getrlimit(RLIMIT_STACK, &limit);
    limit.rlim_cur = std::min(limit.rlim_max, rlim_t(64) << 20);
    setrlimit(RLIMIT_STACK, &limit);
}

QList<QStringList> slices(const QStringList& paths, qsizetype inView, qsizetype size)
{
    QList<QStringList> parts;
    for (qsizetype at = 0; at < paths.size(); at += parts.constLast().size())
        parts.append(paths.mid(at, parts.isEmpty() ? 1 : parts.size() == 1 && inView > 0 ? inView : size));
    return parts;
}

}  // namespace

void run(const QStringList& arguments)
{
    static const auto tool = ExifToolRunner::locate();
    if (!tool)
        qFatal("ExifTool was not found");
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setChildProcessModifier(allowManyArguments);
    process.start(tool->perlURL.toLocalFile(), QStringList{ tool->exiftoolURL.toLocalFile() } + arguments);
    process.waitForFinished(-1);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        qFatal("the bare run failed: %s", process.readAllStandardError().constData());
}

void read(const QStringList& paths)
{
    static const QStringList mainRead = [] {
        QStringList arguments{ u"-json"_s, u"-G0"_s, u"-struct"_s, u"-c"_s, u"%.6f"_s };
        for (const QString& tag : MetadataReader::readTags())
            arguments.append(u'-' + tag);
        return arguments;
    }();
    run(mainRead + paths);
    run(QStringList{ u"-json"_s, u"-G1"_s, u"-struct"_s, u"-XMP-Quorbel:all"_s } + paths);
}

void readSlices(const QStringList& paths, qsizetype inView, qsizetype size, int atOnce)
{
    const QList<QStringList> parts = slices(paths, inView, size);
    std::atomic<qsizetype> next = 0;
    std::vector<std::jthread> readers;
    for (int i = 0; i < atOnce; ++i)
        readers.emplace_back([&] {
            for (qsizetype part = next++; part < parts.size(); part = next++)
                read(parts.at(part));
        });
}

}  // namespace Quorbel::Bench::BareTool
