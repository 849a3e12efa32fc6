#include "platform/places/map/OfflineMapRenderer.h"

#include "platform/places/map/MapPainter.h"

#include <QCoreApplication>
#include <QEvent>

#include <atomic>
#include <cmath>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

using Flag = std::shared_ptr<std::atomic<bool>>;

class Token final : public PlaceRequest {
public:
    explicit Token(Flag isDropped)
        : m_isDropped(std::move(isDropped))
    {
    }
    ~Token() override { *m_isDropped = true; }
    Q_DISABLE_COPY_MOVE(Token)

private:
    Flag m_isDropped;
};

bool isDrawable(const MapRequest& request)
{
    constexpr double mostPixels = 1 << 14;  // in each direction: more is no preview
    const auto pixels = request.size * request.devicePixelRatio;
    const auto isSound = [](double value) { return value >= 1 && value <= mostPixels; };
    return request.center.isValid() && isSound(pixels.width()) && isSound(pixels.height())
        && std::isfinite(request.kilometersAcross) && request.textScale > 0;
}

PlaceResult<MapImage> draw(const MapData* data, const MapRequest& request, const IsCancelled& isCancelled)
{
    if (!data)
        return { {}, PlaceError::noData, u"The map’s data is not installed."_s };
    if (!isDrawable(request))
        return { {}, PlaceError::noData, {} };
    auto map = drawMap(*data, request, isCancelled);
    if (map.image.isNull())
        return { {}, PlaceError::cancelled, {} };
    return { std::move(map), PlaceError::none, {} };
}

// A finished map on its way to the main thread.
class Delivery final : public QEvent {
public:
    Delivery(Flag isDropped, std::shared_ptr<PlaceCallback<MapImage>> answer, PlaceResult<MapImage> result)
        : QEvent(User)
        , m_isDropped(std::move(isDropped))
        , m_answer(std::move(answer))
        , m_result(std::move(result))
    {
    }
    void deliver() const
    {
        if (!*m_isDropped)
            (*m_answer)(m_result);
    }

private:
    Flag m_isDropped;
    std::shared_ptr<PlaceCallback<MapImage>> m_answer;
    PlaceResult<MapImage> m_result;
};

// Receives nothing but deliveries; those still on their way when it goes are thrown away.
class Desk final : public QObject {
public:
    bool event(QEvent* event) override
    {
        const auto* const delivery = dynamic_cast<Delivery*>(event);
        if (!delivery)
            return QObject::event(event);
        delivery->deliver();
        return true;
    }
};

}  // namespace

OfflineMapRenderer::OfflineMapRenderer(const QString& dataFolder)
    : m_data(MapData::open(dataFolder))
    , m_isClosing(std::make_shared<std::atomic<bool>>(false))
    , m_desk(std::make_unique<Desk>())
{
    m_worker.setMaxThreadCount(1);
}

OfflineMapRenderer::~OfflineMapRenderer()
{
    *m_isClosing = true;
    m_worker.clear();
    m_worker.waitForDone();
}

PlaceToken OfflineMapRenderer::render(const MapRequest& request, PlaceCallback<MapImage> answer)
{
    auto isDropped = std::make_shared<std::atomic<bool>>(false);
    auto* desk = m_desk.get();
    // The callback must die in this thread, whoever drops the job last: the job holds it only to pass it on.
    auto shared = std::make_shared<PlaceCallback<MapImage>>(std::move(answer));
    m_worker.start(
        [data = m_data, isClosing = m_isClosing, isDropped, desk, request, shared = std::move(shared)]() mutable {
            const IsCancelled isCancelled = [&] { return *isDropped || *isClosing; };
            PlaceResult<MapImage> result{ {}, PlaceError::cancelled, {} };
            if (!isCancelled())
                result = draw(data.get(), request, isCancelled);
            QCoreApplication::postEvent(desk, new Delivery(isDropped, std::move(shared), std::move(result)));
        });
    return std::make_unique<Token>(isDropped);
}

std::unique_ptr<MapRenderer> makeMapRenderer(const QString& dataFolder)
{
    return std::make_unique<OfflineMapRenderer>(dataFolder);
}

}  // namespace Quorbel
