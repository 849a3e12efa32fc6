// What short codes stand for: "=js=" in a text becomes "Jane Smith, goalkeeper". Read from one file of the user's.
// Thread: the main thread.
#pragma once

#include <QObject>

namespace Quorbel {

class AppModel;

class CodeReplacements final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CodeReplacements)

public:
    explicit CodeReplacements(AppModel& model);
    ~CodeReplacements() override;

private:
    AppModel& m_model;
};

}  // namespace Quorbel
