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

namespace {

// "" where there is none. A leading dot hides a file; it begins no extension.
QString extensionOf(const QString& fileName)
{
    const qsizetype dot = fileName.lastIndexOf(u'.');
    return dot > 0 ? fileName.sliced(dot + 1).toLower() : QString();
}

}  // namespace

bool isImage(const QUrl& url)
{
    return isImageName(url.fileName());
}

bool isImageName(const QString& fileName)
{
    return extensions().contains(extensionOf(fileName));
}

const QSet<QString>& rawExtensions()
{
    static const QSet<QString> raw = [] {
        const QStringList list = u"cr2 cr3 crw nef nrw arw arq sr2 raf orf ori rw2 raw rwl pef srw erf fff iiq mef mos "
                                 "mrw gpr x3f"_s.split(u' ');
        return QSet<QString>(list.cbegin(), list.cend());
    }();
    return raw;
}

bool isRaw(const QString& fileName)
{
    return rawExtensions().contains(extensionOf(fileName));
}

bool isDng(const QString& fileName)
{
    return extensionOf(fileName) == u"dng";
}

bool isJpeg(const QString& fileName)
{
    const QString extension = extensionOf(fileName);
    return extension == u"jpg" || extension == u"jpeg";
}

bool isHeic(const QString& fileName)
{
    const QString extension = extensionOf(fileName);
    return extension == u"heic" || extension == u"heif" || extension == u"hif";
}

}  // namespace Quorbel::ImageTypes
