#include "app/model/selection/SelectedSidecars.h"

#include "app/model/AppModel.h"
#include "app/model/Background.h"
#include "app/model/pairs/Pairing.h"
#include "core/language/Texts.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Of more photos nobody counts whether some share a sidecar.
constexpr qsizetype mostCounted = 1000;

}  // namespace

SelectedSidecars::SelectedSidecars(AppModel& model)
    : m_model(model)
{
    for (const auto signal : { &AppModel::selectionChanged, &AppModel::sidecarPolicyChanged })
        connect(&m_model, signal, this, [this] {
            m_made = {};
            count();
        });
    // What was read may name another sidecar, and photos may stand in other places.
    connect(&m_model, &AppModel::recordsChanged, this, [this] {
        if (m_model.selection().size() <= mostCounted)
            count();
    });
}

QString SelectedSidecars::text() const
{
    if (m_told.photos == 0)
        return {};
    const bool isAll = m_told.photos == m_model.selection().size();
    if (m_told.sidecars != 1)
        return isAll ? Texts::tr("Edits go to %n sidecars", nullptr, m_told.sidecars)
                     : Texts::tr("Edits of %n photo(s) go to sidecars", nullptr, m_told.photos);
    QString file = m_told.path.sliced(m_told.path.lastIndexOf(u'/') + 1);
    // The picture of a shot that is one photo gets them, too.
    if (const auto picture = m_model.isBatch() ? std::nullopt : m_model.pairing().pictureOf(m_photos.constFirst()))
        //: the end of a list: "a.jpg, b.jpg and c.jpg"
        file = Texts::tr("%1 and %2").arg(file, picture->fileName());
    //: %1 is a file, or two
    return (isAll ? Texts::tr("Edits go to %1")
                  //: %1 is a file, or two
                  : Texts::tr("Edits of %n photo(s) go to %1", nullptr, m_told.photos))
        .arg(file);
}

void SelectedSidecars::count()
{
    m_photos.clear();
    if (m_model.sidecarPolicy().isInUse())
        for (const int row : m_model.selectedRows())
            if (const QUrl& photo = m_model.records().at(row).url; m_model.sidecarPolicy().isBeside(photo))
                m_photos.append(photo);
    update();
    if (m_told.sidecars == 1)
        ask(m_photos.constFirst());
}

void SelectedSidecars::update()
{
    Told told{ int(m_photos.size()), int(m_photos.size()) };
    if (told.photos > 0 && told.photos <= mostCounted) {
        // Photos without one get one each.
        QSet<QString> sidecars;
        for (const QUrl& photo : std::as_const(m_photos))
            if (const ImageRecord* record = m_model.record(photo))
                sidecars.insert(pathOf(*record));
        told.sidecars = int(sidecars.size());
        told.path = sidecars.size() == 1 ? *sidecars.cbegin() : QString();
    }
    if (std::exchange(m_told, told) != told)
        emit changed();
}

// Of a new one, the name that it gets where no file with the same base name is in the way.
QString SelectedSidecars::pathOf(const ImageRecord& photo) const
{
    const QString file = photo.url.toLocalFile();
    const QString folder = file.chopped(photo.fileName.size());
    if (!photo.sidecarName.isEmpty())
        return folder + photo.sidecarName;
    if (m_made.photo == photo.url && !m_made.path.isEmpty())
        return m_made.path;
    const bool isFull = m_model.sidecarPolicy().naming == SidecarNaming::full || m_photos.size() > 1;
    return (isFull ? file : folder + photo.fileName.section(u'.', 0, -2)) + u".xmp"_s;
}

// Files that are not open may decide what a new sidecar is called.
void SelectedSidecars::ask(const QUrl& photo)
{
    const ImageRecord* record = m_model.record(photo);
    if (!record->sidecarName.isEmpty() || std::exchange(m_made.photo, photo) == photo)
        return;
    runInBackground(
        this,
        [policy = m_model.sidecarPolicy(), photo] {
            return Made{ photo, policy.path(photo) };
        },
        [this, question = ++m_asked](const Made& made) {
            // Of another selection by now.
            if (question != m_asked || made.photo != m_made.photo)
                return;
            m_made = made;
            update();
        });
}

}  // namespace Quorbel
