// What kind of file system a folder lies on, as far as it matters to who follows the files in it: whether events tell
// of what others change there, and how finely it keeps the time of a change.
// Thread: any but the main one; of() waits for as long as the file system does. Knows nothing of photos.
#pragma once

#include <QString>

#include <chrono>

namespace Quorbel {

struct FileSystem {
    QString type{};  ///< as the system names it: "ext4", "nfs4", "fuse.sshfs"; "" where it does not say
    /// Whether the kernel sees all changes. False where other machines, or programs behind the mount, make them: events
    /// then tell of this machine's own alone.
    bool tellsOfOthers = true;
    /// A file may change twice within this time and bear the same date.
    std::chrono::nanoseconds clockStep{};
    bool operator==(const FileSystem&) const = default;

    /// Of the file or folder, a link followed. What cannot be found out counts as a disk of this machine with the
    /// coarsest clock.
    static FileSystem of(const QString& path);
    /// Of this name. `source`: what is mounted ("/dev/sda1", "server:/photos"); it tells where the name is not known.
    static FileSystem named(const QString& type, const QString& source);
    /// Of this number, as statfs() has it: less is known than by name.
    static FileSystem numbered(quint32 number);
};

}  // namespace Quorbel
