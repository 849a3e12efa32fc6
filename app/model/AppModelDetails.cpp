// Languages, keyword paths and homes that disagree.
#include "app/model/AppModel.h"

namespace Quorbel {

const PhotoDetails* AppModel::details(const QUrl& /*photo*/) const
{
    return nullptr;
}

QStringList AppModel::languages(const QString& /*id*/) const
{
    return {};
}

void AppModel::addLanguage(const QString& /*id*/, const QString& /*code*/) { }

void AppModel::removeLanguage(const QString& /*id*/, const QString& /*code*/) { }

QStringList AppModel::pathsOf(const QString& /*keyword*/) const
{
    return {};
}

QStringList AppModel::pathCompletions(const QString& /*prefix*/, int /*limit*/) const
{
    return {};
}

QList<FieldHome> AppModel::differingHomes(const QString& /*id*/) const
{
    return {};
}

void AppModel::useHome(const QString& /*id*/, const FieldHome& /*home*/) { }

int AppModel::selectedDisagreements() const
{
    return 0;
}

bool AppModel::canMakeAgree() const
{
    return false;
}

void AppModel::requestMakeAgree() { }

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
