#include "platform/images/ImageModule.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

namespace Quorbel {

namespace {

constexpr ImageModule without{
    .version = QUORBEL_VERSION,
    .decode = [](const QString&, int, const std::stop_token&) { return DecodedImage{}; },
    .decodeWhole = [](const QString&, qint64, const std::stop_token&) { return DecodedImage{}; },
    .decodeBytes = [](const QByteArray&, int, const std::stop_token&) { return DecodedImage{}; },
    .hasOrientation = [](const QByteArray&) { return false; },
    .embeddedThumbnail = [](const QString&, const std::stop_token&) { return QImage(); },
};

}  // namespace

ImageModule ImageModule::load(const QString& file)
{
    QLibrary library(file);
    const auto entry = reinterpret_cast<ImageModuleEntry>(library.resolve(imageModuleSymbol));
    if (!entry) {
        qWarning("No thumbnails: %s", qPrintable(library.errorString()));
        return without;
    }
    const ImageModule* module = entry();
    if (qstrcmp(module->version, QUORBEL_VERSION) != 0) {
        qWarning("No thumbnails: %s is of version %s, not %s", qPrintable(file), module->version, QUORBEL_VERSION);
        return without;
    }
    return *module;
}

const ImageModule& ImageModule::loaded()
{
    static const ImageModule module = load(QDir::cleanPath(
        QCoreApplication::applicationDirPath() + QLatin1Char('/') + QString::fromUtf8(QUORBEL_IMAGE_MODULE)));
    return module;
}

}  // namespace Quorbel
