#include "platform/places/search/PlaceProvider.h"

#include "platform/places/search/CombinedPlaceProvider.h"
#include "platform/places/search/OfflinePlaceProvider.h"
#include "platform/places/search/OnlinePlaceProvider.h"

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
    auto offline = std::make_unique<OfflinePlaceProvider>(options.dataFolder);
    const auto endpoint = placeEndpoint(options.endpoint.toString(QUrl::FullyEncoded));
    if (!endpoint)
        return offline;
    OnlinePlaceOptions online;
    online.endpoint = *endpoint;
    return std::make_unique<CombinedPlaceProvider>(std::move(offline), std::make_unique<OnlinePlaceProvider>(online));
}

}  // namespace Quorbel
