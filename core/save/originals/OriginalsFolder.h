// A hidden folder beside photos in which they have second names while a save is half done, and what a killed program
// left of one. Thread: any; touches the file system. Knows neither saves nor the tool.
//
// The folder is locked while its owner lives, which ends with the process however that ends; the second names in it are
// the photos' own. All is done relative to the open folder, so it does not matter where that is moved meanwhile.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

struct stat;

namespace Quorbel {

class OriginalsFolder final {
public:
    /// Makes one in this folder; where that fails, keep() does.
    explicit OriginalsFolder(const QString& photos);
    /// Takes it and the second names away.
    ~OriginalsFolder();
    Q_DISABLE_COPY_MOVE(OriginalsFolder)

    /// Gives the photo of this name a second one (a copy where the file system knows none). Otherwise false, with the
    /// system's reason in errno.
    bool keep(const QByteArray& name);
    /// Puts the photo as it was kept in the place of what bears its name now.
    bool putBack(const QByteArray& name) const;
    /// The state of the file that bears the name now; false when there is none.
    bool status(const QByteArray& name, struct stat& status) const;
    void removePhoto(const QByteArray& name) const;

    /// Removes those whose owners are gone, each photo without its name getting it back. Where the system cannot tell
    /// (another computer's, a file system without locks) they have to be a day old. How many there were.
    static int clearAbandoned(const QString& photos, const QDateTime& now = QDateTime::currentDateTime());
    /// Whether it is the name of such a folder.
    static bool isName(const QString& name);

private:
    bool make(int photos);
    bool copy(const QByteArray& name) const;

    int m_folder = -1;  ///< open and locked
    int m_error = 0;  ///< errno of its making
    QByteArray m_name;
    QList<QByteArray> m_kept;
};

}  // namespace Quorbel
