// Edits that the user left behind unsaved: kept here and in a file, with the edits that stand, until they are brought
// back or ten others came after them.
// Thread: the main thread; the file is written in the background. Knows no selection: what stands is asked for.
#pragma once

#include "app/model/Announcer.h"
#include "core/renaming/NewNames.h"
#include "core/save/LeftEditsFile.h"

#include <QObject>
#include <QTimer>

#include <chrono>

namespace Quorbel {

/// What was left behind last, until the user goes on editing.
struct LeftNotice {
    int edits = 0;
    int photos = 0;
    bool operator==(const LeftNotice&) const = default;
};

class LeftBehind final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LeftBehind)

public:
    /// `path`: of the file; empty: nothing survives the program. `rest`: how long the keys must rest before what
    /// stands is written.
    LeftBehind(Announcer& announcer, const QString& path, std::chrono::milliseconds rest);
    ~LeftBehind() override;

    /// The newest first.
    const QList<LeftEdits>& kept() const { return m_kept; }
    const std::optional<LeftNotice>& notice() const { return m_notice; }

    /// Edits without photos, or none, are not kept.
    void keep(LeftEdits left);
    /// These are being brought back, or another form of them takes their place.
    void forget(const LeftEdits& left);
    /// Takes out what waits for just these photos to be selected again; nothing where nothing does.
    std::optional<LeftEdits> takeReturning(const QSet<QUrl>& photos);
    /// Nothing returns by itself any more: other photos are open.
    void stopReturning();
    void rename(const NewNames& names);

    /// Asked for the edits that stand, whenever the file is written.
    void setStanding(std::function<QList<LeftEdits>()> standing) { m_standing = std::move(standing); }
    /// The edits that stand have changed. `isEdit`: there is something in them that was not there before.
    void noteStanding(bool isEdit);
    /// Writes the file now, and waits for it. False where it cannot be written.
    bool flush();

private:
    void look();
    void takeFound(const QList<LeftEdits>& found);
    void changed(const std::optional<LeftNotice>& notice);
    void writeSoon();
    void write();
    QList<LeftEdits> everything() const;

    Announcer& m_announcer;
    std::chrono::milliseconds m_interval;
    std::shared_ptr<LeftEditsFile> m_file;  ///< null where nothing survives
    QList<LeftEdits> m_kept;
    std::optional<LeftNotice> m_notice;
    std::function<QList<LeftEdits>()> m_standing;
    QTimer m_rest;
    QTimer m_longest;  ///< somebody who types without a rest
    bool m_hasFound = false;  ///< what the file held is among the kept
    int m_serial = 0;
};

}  // namespace Quorbel
