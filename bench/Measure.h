// What benchmarks measure with: wall and processor time, medians, and rows with their bounds.
// Thread: any.
#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace Quorbel::Bench {

struct Cost {
    double wall = 0;  ///< milliseconds
    double cpu = 0;  ///< milliseconds, this process and its ended children, user and system
};

/// Processor time of the calling thread, milliseconds: other programs on the machine weigh less then.
double cpuMilliseconds();
/// Processor time so far, as in Cost.
double cpuTime();
Cost measure(const std::function<void()>& work);
double median(QList<double> values);
double medianWall(const QList<Cost>& costs);
double medianCpu(const QList<Cost>& costs);
/// Resident memory of this process in MiB, from /proc; `peak`: the most it ever was.
double residentMiB(bool peak = false);

/// Prints one row of a table: what was measured, the bound that it keeps or misses, and how it came about.
void report(const char* what, double value, const char* unit, double bound, const QString& how);

}  // namespace Quorbel::Bench
