// The fields of one photo, copied, and laid into what is edited of others.
// Thread: the main thread. Writes nothing: what is pasted are edits.
#pragma once

#include <QObject>

namespace Quorbel {

class AppModel;

class FieldPasting final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FieldPasting)

public:
    explicit FieldPasting(AppModel& model);
    ~FieldPasting() override;

private:
    AppModel& m_model;
};

}  // namespace Quorbel
