#include "bench/Measure.h"

#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <ctime>

#include <sys/resource.h>

namespace Quorbel::Bench {

namespace {

double medianOf(const QList<Cost>& costs, double Cost::*part)
{
    QList<double> values;
    for (const Cost& cost : costs)
        values.append(cost.*part);
    return median(values);
}

}  // namespace

double cpuMilliseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double cpuTime()
{
    double milliseconds = 0;
    for (const int who : { RUSAGE_SELF, RUSAGE_CHILDREN }) {
        rusage usage{};
        getrusage(who, &usage);
        for (const auto& time : { usage.ru_utime, usage.ru_stime })
            milliseconds += static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    }
    return milliseconds;
}

Cost measure(const std::function<void()>& work)
{
    QElapsedTimer timer;
    const double before = cpuTime();
    timer.start();
    work();
    return { static_cast<double>(timer.nsecsElapsed()) / 1e6, cpuTime() - before };
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

double medianWall(const QList<Cost>& costs)
{
    return medianOf(costs, &Cost::wall);
}

double medianCpu(const QList<Cost>& costs)
{
    return medianOf(costs, &Cost::cpu);
}

double residentMiB(bool peak)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        qFatal("no /proc");
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith(peak ? "VmHWM:" : "VmRSS:"))
            return line.mid(6).trimmed().split(' ').constFirst().toDouble() / 1024;
    qFatal("no resident memory in /proc/self/status");
}

void report(const char* what, double value, const char* unit, double bound, const QString& how)
{
    std::printf("%-46s %10.4g%s  (at most %g)  %-6s  %s\n", what, value, unit, bound, value > bound ? "MISSED" : "ok",
        qPrintable(how));
    std::fflush(stdout);
}

}  // namespace Quorbel::Bench
