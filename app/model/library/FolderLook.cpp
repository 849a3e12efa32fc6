#include "app/model/library/FolderLook.h"

#include "platform/files/FolderWatches.h"

#include <QSet>

namespace Quorbel {

namespace {

// One folder of each file system is asked.
bool isToldOfAll(const FolderScan& scan, const std::function<FileSystem(const QString& path)>& fileSystemOf)
{
    QSet<quint64> asked;
    for (auto folder = scan.folders.cbegin(); folder != scan.folders.cend(); ++folder) {
        if (asked.contains(folder->device))
            continue;
        asked.insert(folder->device);
        if (!(fileSystemOf ? fileSystemOf(folder.key()) : FileSystem::of(folder.key())).tellsOfOthers)
            return false;
    }
    return true;
}

}  // namespace

FolderLook FolderLook::at(const Question& question, const std::stop_token& stop)
{
    const auto begin = std::chrono::steady_clock::now();
    QStringList refused;
    QSet<QString> watched;
    FolderLook look;
    const auto scan = [&] {
        FolderScan found = FolderScan::of(
            question.folders, question.withSubfolders, question.sidecars,
            [&](const QString& path) {
                if (question.watches->add(path))
                    watched.insert(path);
                else
                    refused.append(path);
            },
            stop);
        // Where nothing is seen, nothing is missed.
        refused.removeIf([&found](const QString& path) { return !found.folders.value(path).isListed; });
        look.watching.how = isToldOfAll(found, question.fileSystemOf) ? Watching::How::told : Watching::How::looking;
        return found;
    };
    look.news = question.files->look(scan, question.isAsked);
    question.watches->keep(watched);
    look.watching.folders = int(watched.size() + refused.size());
    // What is watched no longer may have made room. What happened since those were listed, nobody has told.
    for (const QString& path : std::as_const(refused))
        if (question.watches->add(path))
            watched.insert(path);
    look.isOutdated = look.watching.folders - refused.size() < watched.size();
    look.watching.watched = int(watched.size());
    // Where nothing can be watched, nothing is told.
    if (watched.isEmpty())
        look.watching.how = Watching::How::looking;
    else if (look.watching.how == Watching::How::told && look.watching.watched < look.watching.folders)
        look.watching.how = Watching::How::partly;
    look.taken = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begin);
    return look;
}

}  // namespace Quorbel
