// The files of one folder, and when each was changed. Thread: any but the main one; waits for as long as the file
// system does.
#pragma once

#include <QList>
#include <QString>

#include <functional>
#include <optional>
#include <stop_token>

namespace Quorbel {

struct FolderFiles {
    /// A look at a file, short enough for tens of thousands.
    struct Stamp {
        std::optional<qint64> modified{};  ///< milliseconds since 1970, UTC; nothing: it cannot be looked at
        qint64 changed = 0;  ///< nanoseconds since 1970, UTC: of content, name or rights
        qint64 size = 0;  ///< bytes
        bool operator==(const Stamp&) const = default;
    };
    struct File {
        QString name{};
        Stamp stamp{};
    };

    bool isListed = false;  ///< to its end: half a listing would pass for files removed
    quint64 device = 0;  ///< that the folder lies on; 0 when it could not be opened
    /// Links are followed. A dangling one, or a file whose name is no text, has an empty stamp; what is no file (a
    /// folder, a pipe) is not among them.
    QList<File> files{};

    /// Those with a wanted name. Once stopped, it ends early, as not listed.
    static FolderFiles of(const QString& folder, const std::function<bool(const QString& name)>& wanted,
        const std::stop_token& stop = {});
};

}  // namespace Quorbel
