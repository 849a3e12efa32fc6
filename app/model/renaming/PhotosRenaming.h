// New names for several photos at once, from a pattern and what is saved in them.
// Thread: the main thread; files are moved in the background.
#pragma once

#include <QObject>

namespace Quorbel {

class AppModel;

class PhotosRenaming final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PhotosRenaming)

public:
    explicit PhotosRenaming(AppModel& model);
    ~PhotosRenaming() override;

private:
    AppModel& m_model;
};

}  // namespace Quorbel
