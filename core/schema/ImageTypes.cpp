#include "core/schema/ImageTypes.h"

#include <QStringList>

namespace Quorbel::ImageTypes {

using namespace Qt::StringLiterals;

const QSet<QString>& extensions()
{
    static const QSet<QString> known = [] {
        const QStringList list =
            u"jpg jpeg png tif tiff gif webp heic heif hif avif jxl jxr hdp wdp jp2 j2k jpf jpx jpm "
            "jph mpo jps psd psb dng cr2 cr3 crw nef nrw arw arq sr2 raf orf ori rw2 raw rwl pef "
            "srw erf fff iiq mef mos mrw gpr x3f"_s.split(u' ');
        return QSet<QString>(list.cbegin(), list.cend());
    }();
    return known;
}

bool isImage(const QUrl& url)
{
    return isImageName(url.fileName());
}

bool isImageName(const QString& fileName)
{
    const qsizetype dot = fileName.lastIndexOf(u'.');
    // A leading dot hides a file; it begins no extension.
    return dot > 0 && extensions().contains(fileName.sliced(dot + 1).toLower());
}

}  // namespace Quorbel::ImageTypes
