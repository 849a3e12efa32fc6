// The whole window over a model of its own, for benchmarks of opening: with settings and caches that end with it.
// Thread: the main thread.
#pragma once

#include "app/model/AppModel.h"
#include "platform/desktop/SystemScheme.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTemporaryDir>

namespace Quorbel {
class InspectorForm;
class SidebarList;
class ThumbnailStore;
}  // namespace Quorbel

namespace Quorbel::Bench {

class OpenWindow final : public QObject {
public:
    enum class Thumbnails { off, on };

    enum class Details { off, on };

    /// `cache`: folder of the record cache, made when missing; empty: none. `details`: whether what photos hold beside
    /// their records is read while all else rests.
    OpenWindow(
        const ExifToolRunner& tool, Thumbnails thumbnails, const QString& cache = {}, Details details = Details::on);
    ~OpenWindow() override;

    AppModel& model() { return *m_model; }
    SidebarList& list() const { return *m_list; }
    /// Bytes of pictures in memory.
    qsizetype pictureBytes() const;

    /// Loads the folder and handles events until the condition holds; milliseconds.
    double load(const QString& folder, const std::function<bool()>& condition);
    /// The list was painted with so many rows.
    bool hasPainted(int rows) const { return m_paintedRows >= rows; }
    /// The inspector shows the title of this photo, as it was read.
    bool showsFields(const QString& photo) const;
    /// So many photos are open, all of them read, and nothing runs.
    bool hasRead(int count) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTemporaryDir m_home;
    SystemScheme m_scheme;
    std::unique_ptr<AppModel> m_model;
    std::unique_ptr<ThumbnailStore> m_thumbs;
    std::unique_ptr<QMainWindow> m_window;
    SidebarList* m_list = nullptr;
    InspectorForm* m_form = nullptr;
    int m_paintedRows = 0;
};

}  // namespace Quorbel::Bench
