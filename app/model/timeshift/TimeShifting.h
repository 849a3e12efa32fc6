// Shifts the times of the selected photos, for a camera whose clock was wrong.
// Thread: the main thread; what photos hold is read and written in the background.
#pragma once

#include <QObject>

namespace Quorbel {

class AppModel;

class TimeShifting final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TimeShifting)

public:
    explicit TimeShifting(AppModel& model);
    ~TimeShifting() override;

private:
    AppModel& m_model;
};

}  // namespace Quorbel
