// Languages, keyword paths and homes that disagree.
#include "app/model/AppModel.h"

namespace Quorbel {

const PhotoDetails* AppModel::details(const QUrl& /*photo*/) const
{
    return nullptr;
}

QStringList AppModel::pathCompletions(const QString& /*prefix*/, int /*limit*/) const
{
    return {};
}

AppModel::Disagreements AppModel::disagreements() const
{
    return {};
}

bool AppModel::showsDisagreements() const
{
    return false;
}

void AppModel::setShowDisagreements(bool /*on*/) { }

void AppModel::cancelDisagreements() { }

}  // namespace Quorbel
