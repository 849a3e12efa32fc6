// Gives the files of one folder new names, all or none: swaps and rings go by way of names that nobody else uses.
// Thread: any; blocks on the file system. Knows no photos and no journal.
#pragma once

#include "core/renaming/RenamePlan.h"

#include <functional>

namespace Quorbel {

class FolderMover final {
public:
    enum class End {
        done,
        undone,  ///< every file has its old name
        stuck,  ///< some could be moved neither on nor back
    };
    struct Outcome {
        End end = End::done;
        QString problem{};  ///< why it is not done; "" where it was given up
    };

    /// `mark` makes the names on the way unlike all others.
    FolderMover(const QString& folder, const QString& mark)
        : m_folder(folder)
        , m_mark(mark)
    {
    }

    /// The name that a file may bear on its way.
    QString between(qsizetype file) const;
    /// A file whose names are equal stays where it is. `goesOn` is asked before each file gets its new name, with the
    /// number of photos that have it: false gives up.
    Outcome move(const QList<FileRenaming>& files, const std::function<bool(qsizetype photos)>& goesOn) const;

private:
    struct Step {
        QString from{};
        QString to{};
    };

    QString moveOne(QList<Step>& done, const QString& from, const QString& to) const;
    bool moveBack(const QList<Step>& done) const;
    bool findName(const QString& between, const QString& old) const;
    QString path(const QString& name) const { return m_folder + u'/' + name; }

    QString m_folder;
    QString m_mark;
};

}  // namespace Quorbel
