// Draws the map's sample pictures, light and dark, at double density, into one sheet: docs/map.png. For looking at.
// Usage: map_pictures SHARE_PLACES_FOLDER OUTPUT.png [LATITUDE LONGITUDE KILOMETRES]
#include "platform/places/map/MapRenderer.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>

using namespace Quorbel;
using namespace Qt::StringLiterals;

namespace {

struct Sample {
    QString name{};
    GeoPoint point{};
    double kilometers = 150;
};

constexpr QSize pictureSize(500, 96);
constexpr qreal density = 2;
constexpr int caption = 18;

MapImage draw(MapRenderer& renderer, const Sample& sample, bool dark)
{
    MapRequest request;
    request.center = sample.point;
    request.size = pictureSize;
    request.devicePixelRatio = density;
    request.kilometersAcross = sample.kilometers;
    request.dark = dark;
    MapImage image;
    QEventLoop loop;
    const auto token = renderer.render(request, [&](const PlaceResult<MapImage>& result) {
        image = result.value;
        loop.quit();
    });
    loop.exec();
    return image;
}

// As the window shows it: rounded, with the marker and the credit.
void paint(QPainter& painter, QPointF at, const MapImage& map, bool dark)
{
    painter.save();
    painter.translate(at);
    const QRectF frame(QPoint(), pictureSize);
    QPainterPath rounded;
    rounded.addRoundedRect(frame, 9, 9);
    painter.setClipPath(rounded);
    painter.drawImage(QPointF(), map.image);
    const QPointF tip = frame.center();
    const QPointF head = tip - QPointF(0, 14);
    QPainterPath drop(tip);
    drop.cubicTo(tip - QPointF(1.5, 5), head + QPointF(-7, 5), head - QPointF(7, 0));
    drop.arcTo(QRectF(head.x() - 7, head.y() - 7, 14, 14), 180, -180);
    drop.cubicTo(head + QPointF(7, 5), tip + QPointF(1.5, -5), tip);
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(dark ? QColor(0xff, 0x6a, 0x50) : QColor(0xdc, 0x46, 0x2d));
    painter.drawPath(drop);
    painter.setBrush(Qt::white);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(head, 2.4, 2.4);
    QFont font;
    font.setPixelSize(9);
    painter.setFont(font);
    painter.setPen(dark ? QColor(0xb0, 0xb0, 0xb6) : QColor(0x60, 0x60, 0x66));
    painter.drawText(frame.adjusted(0, 0, -8, -4), Qt::AlignRight | Qt::AlignBottom, map.attribution);
    painter.restore();
}

QList<Sample> samples(const QStringList& words)
{
    if (words.size() == 6)
        return { { words[3] + u' ' + words[4], { words[3].toDouble(), words[4].toDouble() }, words[5].toDouble() } };
    return {
        { u"Paris"_s, { 48.8584, 2.2945 } },
        { u"Zürich"_s, { 47.3769, 8.5417 } },
        { u"Tokyo"_s, { 35.6586, 139.7454 } },
        { u"New York"_s, { 40.7484, -73.9857 } },
        { u"Null Island"_s, { 0, 0 } },
        { u"Fiji"_s, { -16.8, 179.99 } },
        { u"89° N"_s, { 89, 0 } },
        { u"89° S"_s, { -89, 0 } },
    };
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QFont font(u"Inter"_s);
    QGuiApplication::setFont(font);
    const auto words = QGuiApplication::arguments();
    if (words.size() < 3)
        return 2;
    const auto renderer = makeMapRenderer(words[1]);
    const auto all = samples(words);
    constexpr int gap = 10;
    const QSize size(3 * gap + 2 * pictureSize.width(), gap + int(all.size()) * (pictureSize.height() + caption + gap));
    QImage sheet(size * density, QImage::Format_RGB32);
    sheet.setDevicePixelRatio(density);
    sheet.fill(QColor(0xf6, 0xf5, 0xf2));
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRectF(1.5 * gap + pictureSize.width(), 0, size.width(), size.height()), QColor(0x27, 0x27, 0x2a));
    for (int i = 0; i < all.size(); ++i) {
        const int y = gap + i * (pictureSize.height() + caption + gap);
        for (const bool dark : { false, true }) {
            const int x = gap + (dark ? gap + pictureSize.width() : 0);
            const auto map = draw(*renderer, all[i], dark);
            font.setPixelSize(11);
            painter.setFont(font);
            painter.setPen(dark ? Qt::white : Qt::black);
            painter.drawText(QRectF(x, y, pictureSize.width(), caption - 3), Qt::AlignLeft | Qt::AlignVCenter,
                u"%1, %2 km across"_s.arg(all[i].name).arg(std::round(map.kilometersAcross)));
            paint(painter, QPointF(x, y + caption), map, dark);
        }
    }
    painter.end();
    const bool isSaved = sheet.save(words[2]);
    if (!isSaved)
        std::fputs("could not write the picture\n", stderr);
    return isSaved ? 0 : 1;
}
