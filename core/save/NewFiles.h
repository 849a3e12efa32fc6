// Files that a write makes. ExifTool writes a new file under its own name from the first byte on: killed half-way, it
// would leave half of one there. So each is made under a hidden name beside its place, and gets its own when it is
// whole.
// Thread: any; touches the file system.
#pragma once

#include "core/text/Errors.h"

#include <QHash>
#include <QList>
#include <QUrl>

namespace Quorbel {

class NewFiles final {
public:
    NewFiles() = default;
    /// Takes away what was not finished.
    ~NewFiles();
    Q_DISABLE_COPY_MOVE(NewFiles)

    /// The files to write to in their place: those that are not there yet under their hidden names.
    QList<QUrl> hidden(const QList<QUrl>& files);
    /// Gives a file that was made, and is whole, its own name. False where that is taken: no file is ever replaced.
    /// True for files that were there all along.
    bool giveName(const QUrl& file) const;
    /// The error with the files' own names.
    ToolError told(const ToolError& error) const;

private:
    QHash<QUrl, QUrl> m_own;  ///< by hidden name
};

}  // namespace Quorbel
