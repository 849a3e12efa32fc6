// New names for many photos: what a pattern makes of their values, which names were taken, and what cannot be.
// Thread: any. Pure: what the folders hold is handed in.
#pragma once

#include "core/schema/ImageRecord.h"
#include "core/tokens/CounterForm.h"
#include "core/tokens/TokenText.h"

#include <stop_token>

namespace Quorbel {

/// What somebody asks for.
struct RenameOrder {
    QString pattern{};
    CounterForm counter{ .digits = 4 };
    bool strict = true;  ///< only ASCII letters, digits, "-" and "_" of each value
    bool operator==(const RenameOrder&) const = default;
};

/// What becomes of one photo.
struct RenameRow {
    enum class Obstacle { none, slash, tooLong, readOnlyFolder, gone };

    QUrl photo{};
    QString oldName{};
    QString newName{};  ///< as it will be; the old one while there is an obstacle
    /// Where a value is missing, what the pattern gives, piece by piece, the extension last; else none.
    QList<RenderedPiece> pieces{};
    QStringList missing{};  ///< labels of the values that the photo does not have
    int number = 0;  ///< what was put behind a name that was taken; 0: it was free
    Obstacle obstacle = Obstacle::none;
    QStringList along{};  ///< names of pictures of the same shot that are not among the photos, and go along

    bool isUnchanged() const { return newName == oldName; }
    /// Whether somebody should look at it.
    bool isMarked() const { return !missing.isEmpty() || number > 0 || obstacle != Obstacle::none; }
    /// Why, in words: "becomes 2024-10-12_0004.jpg", "name taken, so -2". What goes along, where there is nothing to
    /// look at; "" else.
    QString words() const;
    bool operator==(const RenameRow&) const = default;
};

/// One file's way within its folder.
struct FileRenaming {
    QString from{};
    QString to{};
    bool isPhoto = false;
    bool operator==(const FileRenaming&) const = default;
};

struct FolderRenaming {
    QString folder{};
    QList<FileRenaming> files{};  ///< those whose name changes, companions behind their photos
    bool operator==(const FolderRenaming&) const = default;
};

struct RenamePlan {
    QList<RenameRow> rows{};  ///< one for each photo, in their order
    QList<FolderRenaming> folders{};
    qsizetype marked = 0;
    qsizetype renamed = 0;  ///< photos among the rows whose name changes
    bool isPossible = true;  ///< every name can be made free
};

}  // namespace Quorbel
