#include "app/model/saving/SidecarOrder.h"

#include "core/iptc/IptcRead.h"
#include "core/save/SaveGuard.h"
#include "core/save/journal/JournalTags.h"
#include "core/schema/CustomFields.h"
#include "core/sidecar/SidecarPlan.h"

#include <QFile>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

/// What both kinds of files hold of what the plans change.
struct SidecarOrder::Read {
    QHash<QByteArray, FileTags> tags{};  ///< by path
    QHash<QUrl, IptcValues> iptc{};

    SidecarPlan::Held of(const QUrl& file) const
    {
        return { tags.value(QFile::encodeName(file.toLocalFile())), iptc.value(file) };
    }
};

namespace {

// Whether the plan can be told for a sidecar without a look at the photo.
bool needsPhoto(const EditPlan& plan)
{
    return !plan.lists.isEmpty() || !plan.removed.isEmpty() || !plan.iptcLists.isEmpty() || !plan.paths.isEmpty()
        || std::any_of(plan.scalars.cbegin(), plan.scalars.cend(), [](const QString& text) { return text.isEmpty(); })
        || std::any_of(plan.customs.cbegin(), plan.customs.cend(),
            [](const CustomValue& custom) { return custom.value.isEmpty(); });
}

void addMissing(QStringList& items, const QStringList& further)
{
    for (const QString& item : further)
        if (!items.contains(item))
            items.append(item);
}

// Photos that share a sidecar share what is written to it. Its lists are whole ones of what each holds: none loses what
// it alone has.
EditPlan joined(EditPlan plan, const EditPlan& further)
{
    plan.scalars.insert(further.scalars);
    for (auto list = further.lists.cbegin(); list != further.lists.cend(); ++list)
        addMissing(plan.lists[list.key()], *list);
    for (auto list = further.iptcLists.cbegin(); list != further.iptcLists.cend(); ++list) {
        std::optional<QStringList>& whole = plan.iptcLists[list.key()].whole;
        if (!whole)
            whole.emplace();
        addMissing(*whole, list->whole.value_or(QStringList()));
    }
    addMissing(plan.paths, further.paths);
    for (const CustomValue& custom : further.customs)
        CustomFields::put(plan.customs, custom);
    plan.sidecar->hidden += further.sidecar->hidden;
    return plan;
}

}  // namespace

SidecarOrder::SidecarOrder(const MetadataService& service, const SaveJob::Order& given)
    : m_order(given)
{
    const QList<QUrl> files = service.sidecars.filesToWrite(given.targets);
    if (files == given.targets)
        return;
    QList<QUrl> beside;
    for (qsizetype i = 0; i < files.size(); ++i)
        if (files.at(i) != given.targets.at(i))
            beside.append(given.targets.at(i));
    const Read read = this->read(service, beside);
    const QString savedAt = SidecarPlan::savedAt();
    m_order.targets.clear();
    for (qsizetype i = 0; i < files.size(); ++i) {
        if (files.at(i) == given.targets.at(i))
            m_order.targets.append(files.at(i));
        else
            take(given.targets.at(i), files.at(i), read, savedAt);
    }
}

SidecarOrder::Read SidecarOrder::read(const MetadataService& service, const QList<QUrl>& photos) const
{
    QStringList tags;
    QStringList ids;
    QList<QUrl> files;
    for (const QUrl& photo : photos) {
        const EditPlan plan = given(photo);
        tags += SidecarPlan::tagsOf(plan);
        ids += SidecarPlan::iptcOf(plan);
        tags.removeDuplicates();
        ids.removeDuplicates();
        if (const QString sidecar = service.sidecars.existing(photo); !sidecar.isEmpty())
            files.append(QUrl::fromLocalFile(sidecar));
        if (needsPhoto(plan))
            files.append(photo);
    }
    Read read;
    if (files.isEmpty())
        return read;
    read.tags = TagDump::parse(service.runner.readDump(JournalTags::readArgs(tags), files));
    if (!ids.isEmpty())
        read.iptc = IptcRead::of(service.runner, ids, files, {});
    return read;
}

EditPlan SidecarOrder::given(const QUrl& photo) const
{
    return m_order.own.value(photo, m_order.plan);
}

void SidecarOrder::take(const QUrl& photo, const QUrl& file, const Read& read, const QString& savedAt)
{
    SidecarPlan plan = SidecarPlan::of(
        given(photo), photo.fileName(), read.of(file), read.of(photo), m_order.seen.value(photo), savedAt);
    m_order.own.remove(photo);
    if (const auto known = m_known.constFind(file); known != m_known.cend()) {
        m_order.own[file] = joined(m_order.own.value(file), plan.plan);
        m_sidecars[*known].photos.append(photo);
        return;
    }
    // Decisions are made for files that hold something.
    plan.held.insert(SaveUndo::typeTag(), { "XMP" });
    m_known.insert(file, m_sidecars.size());
    m_sidecars.append({ file, { photo }, plan.held });
    m_order.targets.append(file);
    m_order.own.insert(file, plan.plan);
    m_order.seen.insert(file, plan.seen);
}

QList<QUrl> SidecarOrder::photosThemselves() const
{
    QList<QUrl> photos = m_order.targets;
    photos.removeIf([this](const QUrl& file) { return m_known.contains(file); });
    return photos;
}

void SidecarOrder::addTo(OldValues& before) const
{
    for (const Sidecar& sidecar : m_sidecars)
        before.insert(
            QFile::encodeName(SaveGuard::filesBehindLinks({ sidecar.file }).constFirst().toLocalFile()), sidecar.held);
}

void SidecarOrder::addTo(JournalEntry& entry) const
{
    QHash<QString, QUrl> photos;
    for (const Sidecar& sidecar : m_sidecars)
        photos.insert(
            SaveGuard::filesBehindLinks({ sidecar.file }).constFirst().toLocalFile(), sidecar.photos.constFirst());
    for (JournalFile& file : entry.files)
        if (const auto photo = photos.constFind(file.path); photo != photos.cend())
            file.link = photo->toLocalFile();
}

void SidecarOrder::nameTheirPhotos(SaveJob::Written& written) const
{
    for (const Sidecar& sidecar : m_sidecars) {
        const PhotoPlan plan = written.photos.take(sidecar.file);
        const auto homes = written.refusedHomes.take(sidecar.file);
        for (const QUrl& photo : sidecar.photos) {
            written.photos.insert(photo, plan);
            if (!homes.isEmpty())
                written.refusedHomes.insert(photo, homes);
        }
    }
    QList<FileFailure> failures;
    for (const FileFailure& failure : std::as_const(written.failures)) {
        const auto known = m_known.constFind(failure.file);
        const QList<QUrl> photos = known == m_known.cend() ? QList{ failure.file } : m_sidecars.at(*known).photos;
        for (const QUrl& photo : photos)
            failures.append({ photo, failure.reason });
    }
    written.failures = failures;
}

}  // namespace Quorbel
