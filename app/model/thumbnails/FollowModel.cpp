#include "app/model/thumbnails/FollowModel.h"

#include "app/model/AppModel.h"
#include "app/model/renaming/PhotosRenaming.h"
#include "app/model/thumbnails/ThumbnailStore.h"

namespace Quorbel {

void followModel(ThumbnailStore& thumbs, AppModel& model)
{
    model.onImagesModified = [&thumbs](const QList<QUrl>& urls) { thumbs.invalidate(urls); };
    model.onImageRenamed = [&thumbs](const QUrl& from, const QUrl& to) { thumbs.rename(from, to); };
    model.renaming().onImagesRenamed = [&thumbs](const NewNames& names) { thumbs.rename(names); };
    model.onWriteBegins = [&thumbs](const QList<QUrl>& urls) { thumbs.beginWriting(urls); };
    model.onWriteEnds = [&thumbs](const QList<QUrl>& written) { thumbs.endWriting(written); };
    QObject::connect(&model, &AppModel::recordsChanged, &thumbs, &ThumbnailStore::lookAgain);
    QObject::connect(&model, &AppModel::visibleRowsChanged, &thumbs, &ThumbnailStore::lookAgain);
}

}  // namespace Quorbel
