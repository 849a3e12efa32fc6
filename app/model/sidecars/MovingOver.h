// Moves metadata of the selected photos over: what their sidecars hold into the photos, or what the photos hold into
// their sidecars. What the sheet asks, and what it shows of what will be. Never an edit: it is a save of its own.
// Thread: the main thread; what files hold is read and written in the background.
#pragma once

#include "app/model/RunningTasks.h"
#include "app/model/saving/SaveJob.h"
#include "app/model/sidecars/MoveLook.h"

#include <QObject>

#include <functional>

namespace Quorbel {

class AppModel;

class MovingOver final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MovingOver)

public:
    /// What it needs of the model's own parts.
    struct Access {
        std::function<void(std::function<void()> action)> holdBack{};  ///< until edits are saved or left
        std::function<void(const SaveJob::Order& order)> move{};
        const std::optional<MetadataService>& service;  ///< as it is by now; absent: the tool was not found
        RunningTasks& tasks;
        Announcer& announcer;
    };

    MovingOver(AppModel& model, Access access);
    ~MovingOver() override;

    bool isPossible() const;
    /// Opens the sheet over the selected photos, after the question about unsaved edits, and looks into the files.
    void request(MoveWay way);
    bool isOpen() const { return m_isOpen; }
    void close();
    MoveWay way() const { return m_way; }
    /// So many are selected, and so many of these were looked at.
    qsizetype photos() const { return m_photos.size(); }
    qsizetype looked() const { return m_looked; }
    /// Of those that were looked at.
    const MovePreview& preview() const { return m_preview; }
    /// Why the files could not be looked at; "" when they could.
    const QString& problem() const { return m_problem; }
    bool canMove() const;
    /// Closes the sheet, looks again at files that changed meanwhile, and writes. Needs canMove().
    void move();

signals:
    void openChanged();
    void changed();

private:
    struct Ready {
        SaveJob::Order order{};
        std::optional<QString> error{};
        bool isCancelled = false;
    };

    void lookOn();
    void takeSlice(const QList<QUrl>& photos, const MoveLook::Found& found, const std::optional<QUrl>& skipped);
    MoveLook::Order orderOf(const QList<QUrl>& photos) const;
    void begin(const Ready& ready);

    AppModel& m_model;
    Access m_access;
    bool m_isOpen = false;
    MoveWay m_way = MoveWay::intoPhotos;
    QList<QUrl> m_photos;
    QSet<QUrl> m_tooSlow;
    qsizetype m_looked = 0;
    MovePreview m_preview;
    QString m_problem;
    int m_opened = 0;  ///< times
    int m_look = 0;  ///< the task of the slice that is being looked at; 0 for none
    int m_lastLook = 0;  ///< the task that looks just before the write; 0 for none
};

}  // namespace Quorbel
