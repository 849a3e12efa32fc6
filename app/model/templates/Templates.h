// The user's templates: fields with texts that are filled in for each photo, one file each.
// Thread: the main thread; files are read and written in the background. What a template gives are edits.
#pragma once

#include <QObject>

namespace Quorbel {

class AppModel;

class Templates final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Templates)

public:
    explicit Templates(AppModel& model);
    ~Templates() override;

private:
    AppModel& m_model;
};

}  // namespace Quorbel
