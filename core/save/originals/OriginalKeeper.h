// Photos as they were, while a save that takes several runs is half done. Thread: any; touches the files and hidden
// folders beside them.
#pragma once

#include "core/save/originals/OriginalsFolder.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <map>

namespace Quorbel {

/// Gives the photos second names (copies where the file system knows none), and the photos back to their names when
/// the save does not get further than its preparation: they are then what they were, with inode and attributes,
/// wherever their folder is by then. Files that do not exist are passed over.
class OriginalKeeper final {
public:
    /// Throws FileError when a photo cannot be kept; none is then.
    explicit OriginalKeeper(const QList<QUrl>& photos);
    /// Puts back every photo that has not been written to since it was prepared, without a backup that was made
    /// meanwhile, and takes the second names away.
    ~OriginalKeeper();
    Q_DISABLE_COPY_MOVE(OriginalKeeper)

    /// The preparation is done: whatever is written now is the save itself.
    void notePrepared();

private:
    // Enough of a file's state to tell that another one was put in its place.
    struct Identity {
        quint64 device = 0;
        quint64 inode = 0;
        qint64 seconds = 0;
        qint64 nanoseconds = 0;
        qint64 size = 0;
        bool operator==(const Identity&) const = default;
    };
    struct Kept {
        const OriginalsFolder* folder = nullptr;
        QByteArray name{};
        bool hadBackup = false;
        Identity before{};
        Identity prepared{};
    };

    static Identity identityOf(const Kept& kept);

    std::map<QString, OriginalsFolder> m_folders;  ///< by the path that the photos' folder had
    QList<Kept> m_kept;
};

}  // namespace Quorbel
