#include "app/model/library/details/DetailsFailures.h"

#include "core/language/Texts.h"

namespace Quorbel {

namespace {

// A photo that changes whenever it is read is left alone.
constexpr int mostChanges = 3;
// So often one run after the other may fail before the tool is given up. Of the halves of one that failed, one does not
// fail again, unless there are several photos to fail at.
constexpr int mostRuns = 10;

}  // namespace

std::optional<DetailsFailure> DetailsFailures::of(const QUrl& photo) const
{
    if (const auto known = m_photos.constFind(photo); known != m_photos.cend())
        return *known;
    return m_reasonForAll ? std::optional(DetailsFailure{ *m_reasonForAll }) : std::nullopt;
}

bool DetailsFailures::isLeftAlone(const QUrl& photo) const
{
    const auto known = m_photos.constFind(photo);
    return known != m_photos.cend() && !known->isTriedAgain;
}

void DetailsFailures::note(const QUrl& photo, const QString& reason)
{
    m_photos.insert(photo, { reason });
    ++m_serial;
}

void DetailsFailures::noteChange(const QUrl& photo)
{
    if (++m_changes[photo] >= mostChanges)
        note(photo, Texts::tr("keeps changing"));
}

void DetailsFailures::noteRun(const QString& reason)
{
    if (++m_runs < mostRuns)
        return;
    m_reasonForAll = reason;
    ++m_serial;
}

void DetailsFailures::forget(const QUrl& photo)
{
    m_changes.remove(photo);
    if (m_photos.remove(photo))
        ++m_serial;
}

void DetailsFailures::rename(const NewNames& names)
{
    m_photos = names.of(m_photos);
    m_changes = names.of(m_changes);
    ++m_serial;
}

void DetailsFailures::tryAgain(const QUrl& photo)
{
    const std::optional<DetailsFailure> before = of(photo);
    if (!before)
        return;
    trust();
    m_changes.remove(photo);
    m_photos.insert(photo, { before->reason, true });
    ++m_serial;
}

void DetailsFailures::trust()
{
    m_runs = 0;
    if (std::exchange(m_reasonForAll, std::nullopt))
        ++m_serial;
}

}  // namespace Quorbel
