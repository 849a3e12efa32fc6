// The headless check of the whole metadata path, from locating the tool to a write read back.
// Thread: the main thread, before any window. Knows nothing of AppModel.
#pragma once

#include <QString>

namespace Quorbel::SelfTest {

/// Tests the folder of photos, or the one file, at `path`; reports on standard error, line by line, and ends the
/// process: 0 passed, 2 no tool, 3 no images, 4 the value was not read back, 5 a read or write failed.
/// The first photo (by code-point order of names) is written to in place and loses its headline.
[[noreturn]] void run(const QString& path);

}  // namespace Quorbel::SelfTest
