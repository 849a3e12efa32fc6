// What is done to many photos at once in the whole window, one step after the other, with the real ExifTool; the main
// thread is watched for pauses meanwhile. Thread: the main thread, in a PauseWatch.
#pragma once

#include "bench/OpenWindow.h"

#include <functional>

namespace Quorbel::Bench {

/// Begins something, watches the main thread until it is done, and prints the longest pause and the time in all.
void step(const char* what, const std::function<void()>& begin, const std::function<bool()>& isDone);

/// A window over a folder that a benchmark fills, which asks no questions about several photos and makes no backups.
class ManySteps {
public:
    ManySteps();

protected:
    void open(int photos);
    void selectAll(int photos);
    void save(const char* what);
    void undoSave();
    bool isIdle() const { return !m_model.isSaving() && !m_model.isWorking(); }
    /// What the window tells of in its banner.
    void printError() const;

    QTemporaryDir m_folder;
    OpenWindow m_window;
    AppModel& m_model;
};

}  // namespace Quorbel::Bench
