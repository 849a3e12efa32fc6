#include "platform/places/PlaceProvider.h"

#include "platform/places/OfflinePlaceProvider.h"

#include <QHostAddress>

namespace Quorbel {

namespace {

bool isLoopback(const QString& host)
{
    return host == u"localhost" || QHostAddress(host).isLoopback();
}

}  // namespace

std::optional<QUrl> placeEndpoint(const QString& typed)
{
    const QUrl url(typed.trimmed(), QUrl::StrictMode);
    if (!url.isValid() || url.host().isEmpty() || !url.userInfo().isEmpty())
        return std::nullopt;
    if (url.scheme() == u"https" || (url.scheme() == u"http" && isLoopback(url.host())))
        return url;
    return std::nullopt;
}

std::unique_ptr<PlaceProvider> makePlaceProvider(const PlaceOptions& options)
{
    return std::make_unique<OfflinePlaceProvider>(options.dataFolder);
}

}  // namespace Quorbel
