#include "ui/places/MapPreview.h"

#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QPainter>
#include <QPainterPath>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {
constexpr qreal mapHeight = 96;  // points
constexpr qreal corner = 9;  // points
constexpr int resizePause = 120;  // milliseconds without a new width before a new map is asked for
const QColor markerLight(0xdc, 0x46, 0x2d);
const QColor markerDark(0xff, 0x6a, 0x50);
}  // namespace

MapPreview::MapPreview(MapRenderer* renderer, QWidget* parent)
    : QWidget(parent)
    , m_renderer(renderer)
{
    describeAs(staticMetaObject, QAccessible::Graphic);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_delay.setSingleShot(true);
    m_delay.setInterval(resizePause);
    connect(&m_delay, &QTimer::timeout, this, &MapPreview::ask);
    onRestyle(this, [this] {
        updateGeometry();
        ask();
    });
}

MapPreview::~MapPreview() = default;

void MapPreview::setPoint(const Coordinates::Point& point)
{
    if (point == m_point)
        return;
    m_point = point;
    //: %1: a position, as “47.36667, 8.55000”.
    setAccessibleName(Texts::tr("Map of %1").arg(Coordinates::displayString(point)));
    // The old map shows another place; better none than a wrong one.
    m_map = {};
    ask();
    update();
}

QSize MapPreview::sizeHint() const
{
    return { px(240), px(mapHeight) };
}

QSize MapPreview::minimumSizeHint() const
{
    return { px(60), px(mapHeight) };
}

void MapPreview::ask()
{
    m_request.reset();
    const GeoPoint center{ m_point.latitude, m_point.longitude };
    if (!m_renderer || !isVisible() || width() <= 0 || !center.isValid())
        return;
    MapRequest request;
    request.center = center;
    request.size = size();
    request.devicePixelRatio = devicePixelRatioF();
    request.dark = Theme::of(this).isDark;
    request.font = sansFont(10);
    request.textScale = pxF(1);
    request.direction = layoutDirection();
    m_request = m_renderer->render(request, [this](const PlaceResult<MapImage>& result) {
        m_map = result.error == PlaceError::none ? result.value : MapImage{};
        update();
    });
}

void MapPreview::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // The first size is answered at once, those of a window being dragged when it rests.
    if (m_map.image.isNull())
        ask();
    else
        m_delay.start();
}

void MapPreview::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    ask();
}

void MapPreview::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QPainterPath shape;
    shape.addRoundedRect(rect(), pxF(corner), pxF(corner));
    painter.fillPath(shape, theme.previewBg);
    painter.setClipPath(shape);
    if (!m_map.image.isNull()) {
        if (m_map.image.devicePixelRatio() != devicePixelRatioF())
            m_delay.start();  // came to a screen of another density
        // Centred, at its own scale: while the width changes, the old map is cut or leaves a margin, but never lies.
        const QSizeF size = m_map.image.deviceIndependentSize();
        painter.drawImage(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), m_map.image);
    }
    paintMarker(painter, QRectF(rect()).center());
    paintAttribution(painter);
    painter.setClipping(false);
    paintBox(painter, rect(), pxF(corner), Qt::transparent, QPen(theme.line, 1));
}

void MapPreview::paintMarker(QPainter& painter, QPointF tip) const
{
    // A drop: a circle above the point, drawn out to it.
    const qreal r = pxF(7);
    const QPointF head = tip - QPointF(0, pxF(14));
    QPainterPath drop(tip);
    drop.cubicTo(tip - QPointF(pxF(1.5), pxF(5)), head + QPointF(-r, pxF(5)), head - QPointF(r, 0));
    drop.arcTo(QRectF(head.x() - r, head.y() - r, 2 * r, 2 * r), 180, -180);
    drop.cubicTo(head + QPointF(r, pxF(5)), tip + QPointF(pxF(1.5), -pxF(5)), tip);
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(Theme::of(this).isDark ? markerDark : markerLight);
    painter.drawPath(drop);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(head, pxF(2.4), pxF(2.4));
}

void MapPreview::paintAttribution(QPainter& painter) const
{
    if (m_map.image.isNull() || m_map.attribution.isEmpty())
        return;
    const Theme& theme = Theme::of(this);
    const QFont font = sansFont(9);
    const QFontMetricsF metrics(font);
    const qreal width = qMin(metrics.horizontalAdvance(m_map.attribution), this->width() - pxF(20));
    const QRectF box =
        mirrored(QRectF(this->width() - width - pxF(12), height() - pxF(18), width + pxF(8), pxF(14)), this);
    paintBox(painter, box, pxF(4), withAlpha(theme.panel, .8), Qt::NoPen);
    painter.setFont(font);
    painter.setPen(theme.derived.label);
    painter.drawText(
        box, Qt::AlignCenter | Qt::TextSingleLine, metrics.elidedText(m_map.attribution, Qt::ElideRight, width));
}

}  // namespace Quorbel
