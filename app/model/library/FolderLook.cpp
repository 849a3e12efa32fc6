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
    QSet<QString> entered;
    QSet<QString> watched;
    FolderLook look;
    const auto scan = [&] {
        FolderScan found = FolderScan::of(
            question.folders, question.withSubfolders,
            [&](const QString& path) {
                entered.insert(path);
                if (question.watches->add(path))
                    watched.insert(path);
            },
            stop);
        look.watching.how = isToldOfAll(found, question.fileSystemOf) ? Watching::How::told : Watching::How::looking;
        return found;
    };
    look.news = question.files->look(scan, question.isAsked);
    question.watches->keep(watched);
    look.watching.folders = int(entered.size());
    look.watching.watched = int(watched.size());
    // Where nothing can be watched, nothing is told.
    if (watched.isEmpty())
        look.watching.how = Watching::How::looking;
    else if (look.watching.how == Watching::How::told && watched.size() < entered.size())
        look.watching.how = Watching::How::partly;
    look.taken = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begin);
    return look;
}

}  // namespace Quorbel
