// Languages, keyword paths and homes that disagree.
#include "app/model/AppModel.h"
#include "app/model/AppModelTools.h"
#include "core/schema/KeywordPath.h"

namespace Quorbel {

// Which photos are of interest is known here.
void AppModel::connectDetails()
{
    DetailsReading& details = m_library.details();
    const auto select = [this, &details] { details.setSelected(primary(), pairing().filesOf(selection())); };
    connect(this, &AppModel::selectionChanged, &details, select);
    connect(this, &AppModel::primaryChanged, &details, select);
    const auto hold = [this, &details] { details.setHeld(unsavedCount() > 0 ? selection() : QSet<QUrl>()); };
    connect(this, &AppModel::selectionChanged, &details, hold);
    connect(this, &AppModel::unsavedCountChanged, &details, hold);
    connect(&details, &DetailsReading::changed, this,
        [this](const QList<QUrl>& photos) { m_tools->credentials->noteKnown(photos); });
    connect(this, &AppModel::isSavingChanged, &details, [this, &details] { details.setPaused(isSaving()); });
}

const PhotoDetails* AppModel::details(const QUrl& photo) const
{
    return library().details().store().find(photo);
}

std::optional<DetailsFailure> AppModel::detailsFailure() const
{
    const ImageRecord* record = isBatch() ? nullptr : primaryRecord();
    return record && !record->isUnread && !knowsDetails() ? library().details().failure(record->url) : std::nullopt;
}

void AppModel::readDetailsAgain()
{
    if (const std::optional<QUrl> photo = primary())
        checked(m_library).details().tryAgain(*photo);
}

// What somebody has just typed is what is typed next.
QStringList AppModel::pathCompletions(const QString& prefix, int limit) const
{
    const bool isPath = prefix.contains(u'|');
    QStringList paths;
    for (const QString& path : typedPaths() + library().details().store().paths(prefix, limit))
        if (paths.size() < limit && !paths.contains(path)
            && (isPath ? path : KeywordPath::keyword(path)).startsWith(prefix, Qt::CaseInsensitive))
            paths.append(path);
    return paths;
}

AppModel::Disagreements AppModel::disagreements() const
{
    const DetailsReading::Census census = library().details().census();
    return { census.disagreeing, census.unknown, census.isLooking };
}

bool AppModel::showsDisagreements() const
{
    return library().details().census().isFiltering;
}

void AppModel::setShowDisagreements(bool on)
{
    checked(m_library).details().setFiltering(on);
}

void AppModel::cancelDisagreements()
{
    checked(m_library).details().cancel();
}

}  // namespace Quorbel
