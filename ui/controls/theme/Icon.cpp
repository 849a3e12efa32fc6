#include "ui/controls/theme/Icon.h"

#include <QPainter>
#include <QPixmapCache>
#include <QResource>
#include <QSet>
#include <QSvgRenderer>

#include <cmath>

namespace Quorbel::Icon {

using namespace Qt::StringLiterals;

namespace {

QString path(const QString& name)
{
    return u":/icons/%1.svg"_s.arg(name);
}

// The drawing's text with its colour and line width filled in; empty for an unknown name.
QByteArray drawing(const QString& name, const QColor& color, qreal stroke)
{
    QByteArray svg = QResource(path(name)).uncompressedData();
    svg.replace("currentColor", color.name(QColor::HexRgb).toLatin1());
    if (stroke > 0)
        svg.replace("stroke-width=\"1.7\"", "stroke-width=\"" + QByteArray::number(stroke) + '"');
    return svg;
}

// Turned where one reads from right to left.
bool pointsAside(const QString& name)
{
    static const QSet<QString> names{ u"arrow.right"_s, u"arrow.uturn.backward"_s, u"chevron.left"_s,
        u"chevron.right"_s, u"rectangle.split.2x1"_s, u"sidebar.left"_s };
    return names.contains(name);
}

}  // namespace

QPixmap pixmap(const QString& name, qreal size, const QColor& color, qreal devicePixelRatio, qreal stroke)
{
    const QString key =
        u"icon/%1/%2/%3/%4/%5"_s.arg(name, color.name(QColor::HexArgb)).arg(size).arg(devicePixelRatio).arg(stroke);
    QPixmap result;
    if (QPixmapCache::find(key, &result))
        return result;
    const QByteArray svg = drawing(name, color, stroke);
    if (svg.isEmpty())
        return {};
    QSvgRenderer renderer(svg);
    const int side = int(std::ceil(size * devicePixelRatio));
    result = QPixmap(side, side);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setOpacity(color.alphaF());
    renderer.render(&painter, QRectF(0, 0, size * devicePixelRatio, size * devicePixelRatio));
    painter.end();
    result.setDevicePixelRatio(devicePixelRatio);
    QPixmapCache::insert(key, result);
    return result;
}

void paint(QPainter& painter, const QRectF& rect, const QString& name, qreal size, const QColor& color, qreal stroke)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QPixmap image = pixmap(name, size, color, ratio, stroke);
    // On whole device pixels: a drawing between two pixels is a blurred one.
    const auto snap = [ratio](qreal v) { return std::round(v * ratio) / ratio; };
    const QPointF corner(snap(rect.center().x() - size / 2), snap(rect.center().y() - size / 2));
    if (painter.layoutDirection() != Qt::RightToLeft || !pointsAside(name))
        return painter.drawPixmap(corner, image);
    painter.save();
    painter.translate(2 * corner.x() + size, 0);
    painter.scale(-1, 1);
    painter.drawPixmap(corner, image);
    painter.restore();
}

bool exists(const QString& name)
{
    return QResource(path(name)).isValid();
}

}  // namespace Quorbel::Icon
