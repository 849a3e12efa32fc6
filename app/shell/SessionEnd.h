// What the program does when the desktop's session ends: it asks as it does when it is quit, where the desktop lets it
// ask, and keeps unsaved edits for the next start where not.
// Thread: the main thread. Shows nothing itself: the model opens its dialog.
#pragma once

#include <QObject>

#include <functional>

class QSessionManager;

namespace Quorbel {

class AppModel;

class SessionEnd final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SessionEnd)

public:
    /// Listens to the application; the model must outlive this. `requestQuit`: as when the user quits.
    SessionEnd(AppModel& model, std::function<void()> requestQuit, QObject* parent = nullptr);

    /// Asks about unsaved edits and waits for the answer, and for a save that runs; false when the user wants to stay.
    /// Runs an event loop of its own: the session manager takes an answer only from inside its call.
    bool ask();

private:
    void commitData(QSessionManager& manager);

    AppModel& m_model;
    std::function<void()> m_requestQuit;
};

}  // namespace Quorbel
