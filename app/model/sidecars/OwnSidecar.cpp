#include "app/model/sidecars/OwnSidecar.h"

#include "core/save/Companions.h"
#include "core/sidecar/SidecarPolicy.h"

#include <QFileInfo>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Either case of the extension; "" for none.
QString thereAs(const QString& path)
{
    for (const QString& one : { path, path.chopped(4) + u".XMP"_s })
        if (const QFileInfo file(one); file.exists() && !file.isDir())
            return one;
    return {};
}

}  // namespace

OwnSidecar OwnSidecar::of(const QUrl& photo)
{
    static const SidecarPolicy raws{ .isRawBeside = true, .isDngBeside = true };
    if (raws.isBeside(photo))
        return { raws.existing(photo) };
    const QString file = photo.toLocalFile();
    if (const QString full = thereAs(file + u".xmp"_s); !full.isEmpty())
        return { full };
    const QString base = thereAs(Companions::sidecarPath(file));
    if (!base.isEmpty() && raws.sharesBase(photo))
        return { .isOthers = true };
    return { base };
}

}  // namespace Quorbel
