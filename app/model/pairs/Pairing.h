// The raw file and the picture (JPEG or HEIC) of one shot as one photo, where the user wants it so: the raw file's row
// stands for both, its values are shown, the picture's pixels are seen, and an edit goes to both files.
// The raw file leads, because it is what is kept: the picture can be made of it again, and what developers of raw files
// write into pictures comes from it. A picture that is edited for itself (it was when its raw file came, or it alone
// refused a save) has a row of its own until its edits are saved or left.
// Thread: the main thread. Writes nothing: it says which files a save is about, and what its outcome means for photos.
#pragma once

#include "app/model/Preferences.h"
#include "app/model/saving/Saving.h"
#include "core/renaming/NewNames.h"
#include "core/save/LeftEdits.h"

#include <QObject>

#include <functional>
#include <optional>

namespace Quorbel {

class AppModel;
class PhotoList;
class SelectedPhotos;
struct Selection;

class Pairing final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Pairing)

public:
    /// What it needs of the model's inner parts.
    struct Reach {
        PhotoList& photos;
        const SelectedPhotos& selected;
        std::function<void()> settle;  ///< what is edited is held, and selected photos that are hidden give way
        std::function<void(const Selection&)> select;  ///< without a question
        /// Asks about the unsaved edits; what is passed is done after a save or a discard.
        std::function<void(std::function<void()>)> ask;
        std::function<void()> endEditing;  ///< may be empty
    };
    Pairing(AppModel& model, Reach reach);

    bool isOn() const { return m_isOn(); }
    /// Photos keep their edits. Those of a pair that would be parted by it are asked about first.
    void setOn(bool on);
    /// The selection is about rows: a hidden picture gives way to its raw file.
    void follow();

    /// How many photos are open: pairs count once.
    int photos() const;
    /// The other file of this photo: the picture in its row; nothing where it is alone.
    std::optional<QUrl> pictureOf(const QUrl& photo) const;
    /// The file whose pixels are shown for the photo, and which another program is to open.
    QUrl seenFile(const QUrl& photo) const { return pictureOf(photo).value_or(photo); }
    /// The photo in whose row the file is.
    QUrl photoOf(const QUrl& file) const;
    /// The photos with the pictures behind them, each behind its raw file.
    QList<QUrl> filesOf(const QList<QUrl>& photos) const;
    QSet<QUrl> filesOf(const QSet<QUrl>& photos) const;
    /// Those of these files that are pictures of pairs, also such as have rows of their own now: their raw files have
    /// the sidecar of the shot.
    QSet<QUrl> picturesAmong(const QList<QUrl>& files) const;
    /// "CR3 + JPEG"; of a photo of one file its type.
    QString types(const ImageRecord& photo) const;
    /// "CR3 + JPEG · 6000×4000 · 31.2 MB", of a photo of one file "6000×4000 · 24.1 MB"; with its type, too, in the
    /// second. Sizes are added up.
    QString sidebarLine(const ImageRecord& photo) const;
    QString detailLine(const ImageRecord& photo) const;
    /// "IMG_1.CR3 and IMG_1.JPG"; of a photo of one file its name.
    QString names(const ImageRecord& photo) const;
    /// How many pictures behind these photos are known to have Content Credentials.
    qsizetype credentialsBehind(const QSet<QUrl>& photos) const;
    /// Photos among these are about to disappear: those whose pictures stay, with these.
    NewNames heirsOf(const QSet<QUrl>& gone) const;

    /// The edits of photos as edits of all their files; the pictures get what their raw files get. `left`: the same
    /// edits as they would be left behind, kept for what a picture alone refuses.
    Edits forFiles(const Edits& edits, const LeftEdits& left);
    /// What that save came to, for the photos: one whose raw file failed has failed.
    SaveOutcome forPhotos(SaveOutcome outcome);
    /// Edits that pictures alone have refused; nothing where none has, or a second time.
    std::optional<LeftEdits> takeRefused() { return std::exchange(m_refused, std::nullopt); }

private:
    bool isPairEdited() const;
    const ImageRecord* pictureRecord(const ImageRecord& photo) const;

    AppModel& m_model;
    Reach m_reach;
    Setting<bool> m_isOn;
    /// What a save that runs was given.
    struct Sent {
        LeftEdits left{};
        QHash<QUrl, QUrl> rawOf{};  ///< by picture
    };
    Sent m_sent;
    std::optional<LeftEdits> m_refused;
};

}  // namespace Quorbel
