#include "ui/controls/theme/Shadow.h"

#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Theme.h"

#include <QHash>
#include <QImage>
#include <QPainter>

#include <array>
#include <cmath>
#include <vector>

namespace Quorbel {

namespace {

// One blurred layer: moved down and blurred (points; blur is twice the standard deviation), black at an opacity.
struct Layer {
    qreal down = 0;
    qreal blur = 0;
    qreal light = 0;  // opacity in the light theme
    qreal dark = 0;  // in the dark one
};

const std::array<Layer, 2>& layers(Shadow kind)
{
    static constexpr std::array<Layer, 2> notice{ { { 8, 28, .17, .44 }, { 1, 3, .10, .34 } } };
    static constexpr std::array<Layer, 2> sheet{ { { 18, 48, .20, .50 }, { 2, 8, .08, .30 } } };
    static constexpr std::array<Layer, 2> photo{ { { 10, 28, .16, .48 }, { 1, 3, .14, .40 } } };
    switch (kind) {
    case Shadow::notice:
        return notice;
    case Shadow::sheet:
        return sheet;
    case Shadow::dropdown:
    case Shadow::photo:
        break;
    }
    return photo;
}

// A running mean over 2·reach + 1 values along one line of bytes; values beyond the ends count as 0.
void boxBlurLine(uchar* line, int count, qsizetype step, int reach, std::vector<uchar>& copy)
{
    copy.resize(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i)
        copy[static_cast<size_t>(i)] = line[i * step];
    const int width = 2 * reach + 1;
    int sum = 0;
    for (int i = 0; i < qMin(reach, count); ++i)
        sum += copy[static_cast<size_t>(i)];
    for (int i = 0; i < count; ++i) {
        if (i + reach < count)
            sum += copy[static_cast<size_t>(i) + static_cast<size_t>(reach)];
        if (i - reach - 1 >= 0)
            sum -= copy[static_cast<size_t>(i - reach - 1)];
        line[i * step] = static_cast<uchar>(sum / width);
    }
}

// Three box blurs are close to a Gaussian of this standard deviation (device pixels).
void blur(QImage& mask, qreal deviation)
{
    const int reach = qMax(1, qRound((std::sqrt(4 * deviation * deviation + 1) - 1) / 2));
    std::vector<uchar> copy;
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < mask.height(); ++y)
            boxBlurLine(mask.scanLine(y), mask.width(), 1, reach, copy);
        for (int x = 0; x < mask.width(); ++x)
            boxBlurLine(mask.bits() + x, mask.height(), mask.bytesPerLine(), reach, copy);
    }
}

// Device pixels from the outer edge of a patch to where its corner's influence ends.
int patchCorner(int radius, int blurPixels)
{
    return radius + 3 * blurPixels;
}

// The blurred mask of a rounded square, black: its four corners and one pixel between them. Sizes in device pixels.
const QImage& patch(int radius, int blurPixels)
{
    static QHash<std::pair<int, int>, QImage> patches;
    auto& image = patches[{ radius, blurPixels }];
    if (!image.isNull())
        return image;
    const int side = 2 * patchCorner(radius, blurPixels) + 1;
    QImage mask(side, side, QImage::Format_Alpha8);
    mask.fill(Qt::transparent);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    const qreal margin = 1.5 * blurPixels;
    painter.drawRoundedRect(QRectF(mask.rect()).adjusted(margin, margin, -margin, -margin), radius, radius);
    painter.end();
    blur(mask, blurPixels / 2.0);
    image = mask.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    return image;
}

// Draws the patch stretched around a rectangle of device pixels.
void drawPatch(QPainter& painter, const QRectF& outer, const QImage& image)
{
    const qreal corner = qMin((image.width() - 1) / 2.0, qMin(outer.width(), outer.height()) / 2);
    const qreal far = image.width() - corner;
    const std::array<qreal, 4> from{ 0, corner, far, static_cast<qreal>(image.width()) };
    const std::array<qreal, 4> toX{ outer.left(), outer.left() + corner, outer.right() - corner, outer.right() };
    const std::array<qreal, 4> toY{ outer.top(), outer.top() + corner, outer.bottom() - corner, outer.bottom() };
    for (size_t row = 0; row < 3; ++row)
        for (size_t column = 0; column < 3; ++column)
            painter.drawImage(QRectF(QPointF(toX[column], toY[row]), QPointF(toX[column + 1], toY[row + 1])), image,
                QRectF(QPointF(from[column], from[row]), QPointF(from[column + 1], from[row + 1])));
}

// As a stack of outlines from `reach` outside to as far inside: half of `alpha` at the edge, none at `reach`.
// Cheaper than a blur for a popup, which takes another size with every letter that is typed.
void paintOutlines(
    QPainter& painter, const QRectF& rect, qreal radius, const Theme& theme, qreal alpha, qreal reach, qreal down)
{
    constexpr int steps = 16;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(theme.shadow, alpha / steps));
    for (int i = 0; i < steps; ++i) {
        const qreal grow = reach * (1 - 2 * (i + .5) / steps);
        const qreal corner = qMax(1.0, radius + grow);
        painter.drawRoundedRect(rect.adjusted(-grow, -grow + down, grow, grow + down), corner, corner);
    }
}

}  // namespace

void paintShadow(QPainter& painter, const QRectF& rect, qreal radius, Shadow kind, const Theme& theme)
{
    if (kind == Shadow::dropdown) {
        const qreal alpha = theme.shadow.alphaF();
        paintOutlines(painter, rect, radius, theme, alpha, 18, 7);
        paintOutlines(painter, rect, radius, theme, alpha * .6, 2, 1);
        return;
    }
    const qreal scale = painter.device()->devicePixelRatioF();
    const qreal opacity = painter.opacity();
    painter.save();
    painter.scale(1 / scale, 1 / scale);
    for (const Layer& layer : layers(kind)) {
        const int blurPixels = qMax(1, qRound(pxF(layer.blur) * scale));
        const qreal down = std::round(pxF(layer.down) * scale);
        const qreal margin = 1.5 * blurPixels;
        const QRectF cast(rect.topLeft() * scale, rect.size() * scale);
        painter.setOpacity(opacity * (theme.isDark ? layer.dark : layer.light));
        drawPatch(painter, cast.translated(0, down).adjusted(-margin, -margin, margin, margin),
            patch(qRound(radius * scale), blurPixels));
    }
    painter.restore();
}

}  // namespace Quorbel
