// Where edits of the selected photos go that do not go into their files: into which sidecars.
// Thread: the main thread; what only the file system knows is asked in the background. Knows no edits.
#pragma once

#include "core/schema/ImageRecord.h"
#include "core/sidecar/SidecarPolicy.h"

#include <QObject>

namespace Quorbel {

class AppModel;

class SelectedSidecars final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SelectedSidecars)

public:
    struct Told {
        int photos = 0;  ///< of the selected ones, so many keep their edits beside them
        int sidecars = 0;  ///< into so many files; of very many photos, one each
        QString path{};  ///< of the sidecar where it is one, also one that the next save makes; "" else
        bool operator==(const Told&) const = default;
    };

    explicit SelectedSidecars(AppModel& model);

    const Told& told() const { return m_told; }
    /// "Edits go to IMG_1.xmp", or into how many sidecars, and of how many photos where not of all; "" where all edits
    /// go into the files.
    QString text() const;
signals:
    /// told() has another answer.
    void changed();

private:
    /// What is made by the next save, by its photo.
    struct Made {
        QUrl photo{};
        QString path{};
        bool operator==(const Made&) const = default;
    };

    void count();
    void update();
    QString pathOf(const ImageRecord& photo) const;
    void ask(const QUrl& photo);

    AppModel& m_model;
    QList<QUrl> m_photos;  ///< of the selected photos that keep their edits beside them
    Told m_told;
    Made m_made;  ///< as the file system knows it; without a path while that is asked
    int m_asked = 0;  ///< counts questions: answers to earlier ones are dropped
};

}  // namespace Quorbel
