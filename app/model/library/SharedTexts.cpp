#include "app/model/library/SharedTexts.h"

namespace Quorbel {

void SharedTexts::share(ImageRecord& record)
{
    share(record.fileType);
    for (QString& value : record.values)
        share(value);
    for (QStringList& items : record.lists)
        for (QString& item : items)
            share(item);
    for (CameraRow& row : record.camera) {
        share(row.label);
        share(row.value);
    }
}

}  // namespace Quorbel
