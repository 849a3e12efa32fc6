// What the model needs from outside. The shell passes the real things, tests pass lambdas; an empty function is simply
// not called. Thread: the main thread calls all of it.
#pragma once

#include "core/MetadataService.h"
#include "platform/files/FileSystem.h"

#include <QDateTime>
#include <QSettings>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace Quorbel {

struct AppModelServices {
    std::optional<MetadataService> service{};  ///< absent: the tool was not found
    std::shared_ptr<QSettings> preferences{};  ///< required
    /// Shows the open panel (files and directories, several); calls back with the chosen URLs, none on cancel.
    std::function<void(std::function<void(const QList<QUrl>&)>)> openPanel{};
    /// The same for one directory alone.
    std::function<void(std::function<void(const QList<QUrl>&)>)> openFolderPanel{};
    std::function<void()> endEditing{};  ///< makes the field being typed into commit its text
    std::function<void(const QUrl&)> openUrl{};  ///< opens a file in the user's default application
    std::function<QDateTime()> now{};  ///< local wall clock; the system's when empty
    QString journalPath{};  ///< folder of the saves that can be undone; empty: none can
    QString recordCachePath{};  ///< folder of what was read of photos, for the next time; empty: nothing is kept
    QString leftEditsPath{};  ///< file of the edits that were left unsaved; empty: they end with the program
    QString templatesPath{};  ///< folder of the templates, one file each; empty: there are none
    /// How long the keys must rest before unsaved edits are written there.
    std::chrono::milliseconds keepInterval{ 2000 };
    /// How long a read may be at one file before the user is offered to skip it.
    std::chrono::milliseconds stallInterval{ 10000 };
    /// Reads what photos hold beside their records, in the background, as DetailsReader::Ask. Empty: the service does.
    std::function<QHash<QUrl, PhotoDetails>(const QList<ImageRecord>& photos, const ReadControl& control)> details{};
    /// How long all else must rest before that is read of photos for which nobody asked.
    std::chrono::milliseconds detailsDelay{ 150 };
    /// The kind of file system that a folder lies on; asked in the background. Empty: the system is asked.
    std::function<FileSystem(const QString& path)> fileSystemOf{};
    /// The shortest pause between looks at folders where the system does not tell of changes.
    std::chrono::milliseconds lookInterval{ 3000 };
    std::function<void()> quit{};  ///< ends the program; called by requestQuit()
};

}  // namespace Quorbel
