// The objects that live as long as the process, and what each of them needs from outside.
// Thread: the main thread. Knows no window: what has to appear in one comes in as functions.
#pragma once

#include "app/model/AppModel.h"
#include "app/model/closeup/WholePictures.h"
#include "app/model/thumbnails/ThumbnailStore.h"
#include "app/shell/UpdatePresenter.h"
#include "platform/places/map/MapRenderer.h"
#include "platform/places/search/PlaceProvider.h"

#include <memory>

namespace Quorbel {

/// What the main window lends to the objects that have none.
struct WindowHooks {
    std::function<void(std::function<void(const QList<QUrl>&)>)> openPanel{};
    std::function<void(std::function<void(const QList<QUrl>&)>)> openFolderPanel{};
    std::function<void()> endEditing{};
    std::function<void()> quit{};
    std::function<void(const Notice&, std::function<void(qsizetype)>)> show{};
};

class QuorbelApp final {
    Q_DISABLE_COPY_MOVE(QuorbelApp)

public:
    /// Reads the preferences and locates the tool; where that is missing, the model says so in its error message.
    explicit QuorbelApp(const WindowHooks& hooks);
    ~QuorbelApp();

    AppModel& model() { return *m_model; }
    ThumbnailStore& thumbnails() { return *m_thumbnails; }
    /// How photos are decoded for a close look.
    const WholePicturesOptions& wholePictures() const { return m_wholePictures; }
    UpdatePresenter& updatePresenter() { return *m_updatePresenter; }
    PlaceProvider* placeProvider() { return m_placeProvider.get(); }
    MapRenderer* mapRenderer() { return m_mapRenderer.get(); }
    /// Removes in the background what earlier starts have left on disk. Once, when nothing else is waited for.
    void tidy();
    /// False in a build without a feed host: there is then nothing to offer in a menu.
    static bool checksForUpdates();

private:
    std::shared_ptr<QSettings> m_preferences;
    std::unique_ptr<ThumbnailStore> m_thumbnails;
    WholePicturesOptions m_wholePictures{};
    std::unique_ptr<PlaceProvider> m_placeProvider;
    std::unique_ptr<MapRenderer> m_mapRenderer;
    std::unique_ptr<AppModel> m_model;
    std::unique_ptr<UpdatePresenter> m_updatePresenter;
};

}  // namespace Quorbel
