// What of the model can change, and who is told when: while several things change together, nobody is told before all
// of them have, so an observer never sees half of a change.
// Thread: the main thread. Knows nothing of who listens.
#pragma once

#include <QtGlobal>

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace Quorbel {

/// AppModel has a signal for each: canUndoSaveChanged() for canUndoSave.
enum class Change {
    records,
    visibleRows,
    folderGroups,
    folder,
    watching,
    opened,
    sidecarPolicy,
    search,
    sortOrder,
    selection,
    primary,
    unreadSelected,
    selectedKeywords,
    edits,
    unsavedCount,
    details,
    disagreements,
    leftEdits,
    isWorking,
    isSaving,
    progress,
    stalledFile,
    canUndoSave,
    errorMessage,
    saveOpen,
    addOpen,
    renameOpen,
    batchDontAskSession,
};

class Announcer final {
public:
    /// While one lives, changes are collected; the outermost one makes them known at its end, each once. An observer
    /// may destroy the announcer.
    class Together final {
    public:
        explicit Together(Announcer& announcer);
        ~Together();
        Q_DISABLE_COPY_MOVE(Together)

    private:
        Announcer& m_announcer;
    };

    explicit Announcer(std::function<void(Change)> tell)
        : m_tell(std::move(tell))
    {
    }
    ~Announcer();
    Q_DISABLE_COPY_MOVE(Announcer)

    void announce(Change change);
    /// Stores the value and announces it when it is another one; whether it was.
    template <typename T>
    bool assign(T& member, std::type_identity_t<T> value, Change change)
    {
        if (member == value)
            return false;
        member = std::move(value);
        announce(change);
        return true;
    }

private:
    std::function<void(Change)> m_tell;
    std::vector<Change> m_collected;
    int m_depth = 0;
    std::shared_ptr<bool> m_isAlive = std::make_shared<bool>(true);
};

}  // namespace Quorbel
