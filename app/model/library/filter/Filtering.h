// Which of the open photos are listed beside the search: those with gaps, ratings, edits, a text in any field.
// Thread: the main thread.
#pragma once

#include <QObject>

namespace Quorbel {

class AppModel;

class Filtering final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Filtering)

public:
    explicit Filtering(AppModel& model);
    ~Filtering() override;

private:
    AppModel& m_model;
};

}  // namespace Quorbel
