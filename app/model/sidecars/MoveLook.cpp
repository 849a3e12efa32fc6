#include "app/model/sidecars/MoveLook.h"

#include "app/model/library/PhotoFile.h"
#include "app/model/sidecars/OwnSidecar.h"
#include "core/details/DetailsRead.h"
#include "core/language/Texts.h"
#include "core/save/SaveGuard.h"
#include "core/save/journal/JournalTags.h"
#include "core/sidecar/SidecarRead.h"
#include "core/tool/MetadataReader.h"

#include <QFile>
#include <QFileInfo>

namespace Quorbel::MoveLook {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype slice = 250;  // a few seconds of camera files

bool isReadOnly(const QString& path)
{
    const QUrl file = SaveGuard::filesBehindLinks({ QUrl::fromLocalFile(path) }).constFirst();
    return SaveGuard::isReadOnly(file) || !QFileInfo(QFileInfo(file.toLocalFile()).path()).isWritable();
}

QString named(const QString& path, const QString& reason)
{
    return u"%1 (%2)"_s.arg(QFileInfo(path).fileName(), Texts::continued(reason));
}

class Looking {
public:
    Looking(const MetadataService& service, const Order& order, const ReadControl& control, MovePreview& made)
        : m_runner(service.runner)
        , m_order(order)
        , m_control(control)
        , m_made(made)
    {
    }

    void run()
    {
        const SidecarPolicy policy = policyOf(MoveWay::intoSidecars, m_order.naming);
        for (const Asked& asked : m_order.photos)
            choose(asked, policy);
        readSidecars();
        readRecords();
        readRest();
        for (const One& one : std::as_const(m_photos)) {
            m_made.take(one.photo, MovePlan::of(m_order.way, one.moved), one.stamps);
            m_made.sealed += m_order.way == MoveWay::intoPhotos && one.moved.file.details.hasCredentials
                && m_made.plans.contains(one.photo);
        }
    }

private:
    struct One {
        QUrl photo{};
        QString sidecar{};  // "" where there is none
        std::optional<ImageRecord> known{};
        MovePreview::Stamps stamps{};
        MovedPhoto moved{};
    };

    // Whether it is one of those that are read, and if not, why.
    void choose(const Asked& asked, const SidecarPolicy& policy)
    {
        const QString name = asked.photo.fileName();
        const bool isInto = m_order.way == MoveWay::intoPhotos;
        if (!isInto && !policy.isBeside(asked.photo))
            return m_made.notRaw.append(name);
        const PhotoFile::Look file = PhotoFile::at(asked.photo);
        if (!file.file)
            return m_made.unreadable.append(
                named(name, file.reason.isEmpty() ? Texts::tr("it is not there any more") : file.reason));
        const OwnSidecar sidecar = OwnSidecar::of(asked.photo);
        if (isInto && sidecar.isOthers)
            return m_made.withOthersSidecar.append(name);
        if (isInto && sidecar.path.isEmpty())
            return m_made.withoutSidecar.append(name);
        const QString written = isInto ? asked.photo.toLocalFile() : policy.path(asked.photo);
        if (isReadOnly(written))
            return m_made.readOnly.append(QFileInfo(written).fileName());
        One one{
            .photo = asked.photo, .sidecar = sidecar.path, .stamps = MovePreview::Stamps::of(asked.photo, sidecar.path)
        };
        const bool isKnown = asked.known && !asked.known->isUnread && asked.known->sidecarName.isEmpty()
            && asked.known->contentModificationDate == file.file->modificationDate();
        if (isKnown)
            one.known = asked.known;
        m_photos.append(one);
    }

    void readSidecars()
    {
        QStringList paths;
        for (const One& one : std::as_const(m_photos))
            if (!one.sidecar.isEmpty())
                paths.append(one.sidecar);
        m_sidecars = SidecarRead::of(m_runner, paths, m_control);
        m_photos.removeIf([this](const One& one) {
            const QString reason = one.sidecar.isEmpty() ? QString() : m_sidecars.value(one.sidecar).reason;
            if (!reason.isEmpty())
                m_made.unreadable.append(named(one.sidecar, reason));
            return !reason.isEmpty();
        });
    }

    // Of each photo its own file's, and over it the sidecar's.
    void readRecords()
    {
        QList<QUrl> unknown;
        for (const One& one : std::as_const(m_photos))
            if (!one.known)
                unknown.append(one.photo);
        const PhotoRead::Outcome read = PhotoRead::each(m_runner, unknown, m_control);
        QHash<QUrl, ImageRecord> records;
        for (const ImageRecord& record : read.records)
            records.insert(record.url, record);
        for (const FileFailure& failure : read.leftOut)
            m_made.unreadable.append(named(failure.file.fileName(), failure.reason));
        m_photos.removeIf([&](const One& one) { return !one.known && !records.contains(one.photo); });
        for (One& one : m_photos) {
            MovedPhoto& moved = one.moved;
            moved.file.record = one.known ? *one.known : records.value(one.photo);
            moved.together = moved.file.record;
            moved.sidecar.record = { .url = QUrl::fromLocalFile(one.sidecar) };
            const SidecarRead::Answer answer = m_sidecars.value(one.sidecar);
            for (ImageRecord* record : { &moved.together, &moved.sidecar.record })
                MetadataReader::overlay(*record, answer.main, answer.custom);
        }
    }

    // What records do not tell of both kinds of files.
    void readRest()
    {
        QList<ImageRecord> files;
        QList<QUrl> urls;
        QSet<QUrl> known;
        for (const One& one : std::as_const(m_photos))
            for (const ImageRecord* record : { &one.moved.file.record, &one.moved.sidecar.record })
                if (!record->url.isEmpty() && !known.contains(record->url)) {
                    known.insert(record->url);
                    files.append(*record);
                    urls.append(record->url);
                }
        if (files.isEmpty())
            return;
        const QHash<QUrl, PhotoDetails> details = DetailsRead::of(m_runner, {}, files, m_control);
        const auto tags = TagDump::parse(m_runner.readDump(JournalTags::readArgs(MovePlan::tags()), urls, m_control));
        for (One& one : m_photos)
            for (HeldFields* held : { &one.moved.file, &one.moved.sidecar }) {
                held->details = details.value(held->record.url);
                held->tags = tags.value(QFile::encodeName(held->record.url.toLocalFile()));
            }
    }

    const ExifToolRunner& m_runner;
    const Order& m_order;
    const ReadControl& m_control;
    MovePreview& m_made;
    QList<One> m_photos;
    QHash<QString, SidecarRead::Answer> m_sidecars;
};

}  // namespace

SidecarPolicy policyOf(MoveWay way, SidecarNaming naming)
{
    const bool isBeside = way == MoveWay::intoSidecars;
    return { .isRawBeside = isBeside, .isDngBeside = isBeside, .naming = naming };
}

Found look(const MetadataService& service, const Order& order, TaskProgress& progress, const std::stop_token& stop)
{
    Found found;
    const ReadControl control{ {}, stop, [&progress](qint64 processID) { progress.processID = processID; } };
    try {
        for (qsizetype at = 0; at < order.photos.size(); at += slice) {
            Order some = order;
            some.photos = order.photos.mid(at, slice);
            Looking(service, some, control, found.preview).run();
            progress.done = std::min(at + slice, order.photos.size());
        }
    } catch (const CancelledError&) {
        found.isCancelled = true;
    } catch (const Error& error) {
        found.error = error.description();
    } catch (const std::exception& error) {
        found.error = QString::fromUtf8(error.what());
    }
    progress.processID = 0;
    return found;
}

Found again(const MetadataService& service, const Order& order, MovePreview preview, TaskProgress& progress,
    const std::stop_token& stop)
{
    Order stale = order;
    stale.photos.removeIf([&preview](const Asked& asked) {
        const auto stamps = preview.stamps.constFind(asked.photo);
        return stamps == preview.stamps.cend()
            || *stamps == MovePreview::Stamps::of(asked.photo, OwnSidecar::of(asked.photo).path);
    });
    for (const Asked& asked : std::as_const(stale.photos)) {
        preview.plans.remove(asked.photo);
        preview.stamps.remove(asked.photo);
    }
    Found found = look(service, stale, progress, stop);
    preview.add(found.preview);
    found.preview = preview;
    return found;
}

}  // namespace Quorbel::MoveLook
