// ExifTool as one would run it by hand, with the arguments of our reads and its output thrown away: the baseline of
// what reading costs. Thread: any; a call blocks. A run that fails ends the program.
#pragma once

#include <QStringList>

namespace Quorbel::Bench::BareTool {

/// One run with these arguments.
void run(const QStringList& arguments);
/// The two runs of a read, one after the other.
void read(const QStringList& paths);
/// The same in slices, each with its two runs in order, so many slices at a time. The first slice is one photo, the
/// second `inView`, and the others `size`.
void readSlices(const QStringList& paths, qsizetype inView, qsizetype size, int atOnce);

}  // namespace Quorbel::Bench::BareTool
