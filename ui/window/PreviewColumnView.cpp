#include "ui/window/PreviewColumnView.h"

#include "app/model/AppModel.h"
#include "app/model/pairs/Pairing.h"
#include "app/model/thumbnails/ThumbnailStore.h"
#include "core/language/Texts.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Shadow.h"
#include "ui/controls/theme/Theme.h"

#include <QPainter>
#include <QPainterPath>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal footHeight = 54;
constexpr qreal footPadding = 20;
constexpr qreal stagePadding = 18;
constexpr qreal widestPhoto = 560;
constexpr QSizeF placeholderSize{ 360, 260 };
constexpr QSizeF cardSize{ 250, 175 };
constexpr qreal cardStep = 13;  // each card behind lies that much further right and up
constexpr qreal cardEdge = 2;
constexpr qreal cardRadius = 9;
constexpr qreal photoRadius = 6;
constexpr qreal textUnderCards = 24;
constexpr qreal wordMargin = 10;
constexpr qreal wordHeight = 22;
constexpr int mostCards = 3;

QString thumbnailOnly()
{
    //: Written on a photo of which nothing larger can be shown.
    return Texts::tr("Thumbnail only");
}

QString selectedText(qsizetype photos)
{
    return Texts::tr("%n photo(s) selected", nullptr, photos);
}

QSizeF scaledToUi(QSizeF points)
{
    return { pxF(points.width()), pxF(points.height()) };
}

QRectF centered(QSizeF size, const QRectF& in)
{
    return QRectF(
        QPointF(qRound(in.center().x() - size.width() / 2), qRound(in.center().y() - size.height() / 2)), size);
}

QPainterPath rounded(const QRectF& rect, qreal radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

}  // namespace

PreviewColumnView::PreviewColumnView(AppModel& model, ThumbnailStore* thumbs, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_thumbs(thumbs)
{
    connect(&model, &AppModel::selectionChanged, this, &PreviewColumnView::follow);
    connect(&model, &AppModel::primaryChanged, this, &PreviewColumnView::follow);
    connect(&model, &AppModel::recordsChanged, this, &PreviewColumnView::follow);
    connect(&model, &AppModel::visibleRowsChanged, this, &PreviewColumnView::follow);
    if (thumbs)
        connect(thumbs, &ThumbnailStore::entryChanged, this, [this](const QUrl& url, ThumbnailStore::Kind kind) {
            if (kind == ThumbnailStore::Kind::preview && m_urls.contains(m_model.pairing().photoOf(url)))
                follow();
        });
    follow();
}

void PreviewColumnView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    follow();
}

// The primary photo, then others of the selection in the list's order.
QList<QUrl> PreviewColumnView::shownUrls() const
{
    QList<QUrl> urls;
    if (m_model.primary())
        urls.append(*m_model.primary());
    if (m_model.selection().size() < 2)
        return urls;
    for (const int position : m_model.visibleRows()) {
        if (urls.size() == mostCards)
            break;
        const QUrl& url = m_model.records().at(position).url;
        if (m_model.selection().contains(url) && !urls.contains(url))
            urls.append(url);
    }
    return urls;
}

void PreviewColumnView::follow()
{
    m_urls = shownUrls();
    const ImageRecord* photo = m_model.primaryRecord();
    //: %1 is the name of a file.
    const QString preview = isStandIn() ? Texts::tr("Preview of %1, thumbnail only") : Texts::tr("Preview of %1");
    setAccessibleName(m_model.isBatch() ? selectedText(m_model.selection().size())
            : photo                     ? preview.arg(m_model.pairing().names(*photo))
                                        : QString());
    // The newest request is served first: the front photo is asked for last.
    if (m_thumbs && isVisible())
        for (auto url = m_urls.crbegin(); url != m_urls.crend(); ++url)
            m_thumbs->request(m_model.pairing().seenFile(*url), ThumbnailStore::Kind::preview);
    update();
}

// Whether all that there is to show of the photo is its thumbnail.
bool PreviewColumnView::isStandIn() const
{
    return m_urls.size() == 1 && entryOf(m_urls.first()).isStandIn;
}

ThumbnailStore::Entry PreviewColumnView::entryOf(const QUrl& photo) const
{
    return m_thumbs ? m_thumbs->entry(m_model.pairing().seenFile(photo), ThumbnailStore::Kind::preview)
                    : ThumbnailStore::Entry{};
}

QRect PreviewColumnView::stage() const
{
    return rect().adjusted(1, 0, 0, -px(footHeight));
}

void PreviewColumnView::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), theme.previewBg);
    painter.save();
    painter.setClipRect(stage());
    if (m_model.isBatch())
        paintCards(painter);
    else if (!m_urls.isEmpty())
        paintOne(painter);
    painter.restore();
    paintFoot(painter);
    painter.fillRect(mirrored(QRect(0, 0, 1, height()), this), theme.line);
}

void PreviewColumnView::paintOne(QPainter& painter)
{
    const QRectF space =
        QRectF(stage()).adjusted(px(stagePadding), px(stagePadding), -px(stagePadding), -px(stagePadding));
    const auto entry = entryOf(m_urls.first());
    if (entry.image.isNull()) {
        const ImageRecord* photo = m_model.primaryRecord();
        const bool badge = entry.state == ThumbnailStore::State::badge && photo;
        paintPlaceholder(painter, centered(scaledToUi(placeholderSize).boundedTo(space.size()), space),
            badge ? photo->fileType : QString());
        return;
    }
    const QSizeF bound(qMin(space.width(), pxF(widestPhoto)), space.height());
    const QSizeF size = QSizeF(entry.image.size()).scaled(bound, Qt::KeepAspectRatio);
    const QRectF place = centered(size, space);
    paintShadow(painter, place, pxF(photoRadius), Shadow::photo, Theme::of(this));
    painter.setClipPath(rounded(place, pxF(photoRadius)), Qt::IntersectClip);
    painter.drawPixmap(place, scaled(entry.image, (size * devicePixelRatioF()).toSize(), 0), QRectF());
    if (entry.isStandIn)
        paintWord(painter, place);
}

// Why the photo is not sharp, in its lower left corner.
void PreviewColumnView::paintWord(QPainter& painter, const QRectF& photo)
{
    const Theme& theme = Theme::of(this);
    painter.setFont(sansFont(11, QFont::Medium));
    const qreal margin = pxF(wordMargin);
    const QSizeF size(painter.fontMetrics().horizontalAdvance(thumbnailOnly()) + 2 * margin, pxF(wordHeight));
    const QRectF corner(QPointF(photo.left() + margin, photo.bottom() - margin - size.height()), size);
    const QRectF ground = mirrored(corner, photo, layoutDirection());
    painter.fillPath(rounded(ground, pxF(photoRadius)), theme.panel);
    painter.setPen(theme.derived.label);
    painter.drawText(ground, Qt::AlignCenter, thumbnailOnly());
}

void PreviewColumnView::paintCards(QPainter& painter)
{
    const Theme& theme = Theme::of(this);
    const QSizeF card = scaledToUi(cardSize);
    const auto behind = qMin<qsizetype>(mostCards, m_urls.size()) - 1;
    const qreal step = pxF(cardStep);
    const qreal textTop = pxF(textUnderCards);
    const qreal textHeight = px(18);
    const QSizeF whole(card.width() + behind * step, card.height() + behind * step + textTop + textHeight);
    const QRectF block = centered(whole, stage());
    const QRectF front(block.left(), block.top() + behind * step, card.width(), card.height());
    for (auto i = behind; i >= 0; --i)
        paintCard(
            painter, mirrored(front.translated(i * step, -i * step), block, layoutDirection()), m_urls.at(i), int(i));
    painter.setFont(sansFont(13));
    painter.setPen(theme.derived.label);
    painter.drawText(QRectF(stage().left(), front.bottom() + textTop, stage().width(), textHeight), Qt::AlignCenter,
        selectedText(m_model.selection().size()));
}

void PreviewColumnView::paintCard(QPainter& painter, const QRectF& card, const QUrl& url, int slot)
{
    const Theme& theme = Theme::of(this);
    const qreal edge = pxF(cardEdge);
    paintShadow(painter, card, pxF(cardRadius), Shadow::photo, theme);
    painter.fillPath(rounded(card.adjusted(-edge, -edge, edge, edge), pxF(cardRadius) + edge), theme.previewBg);
    const auto entry = entryOf(url);
    if (entry.image.isNull()) {
        const ImageRecord* photo = m_model.record(url);
        const bool badge = entry.state == ThumbnailStore::State::badge && photo;
        paintPlaceholder(painter, card, badge ? photo->fileType : QString());
        return;
    }
    painter.save();
    painter.setClipPath(rounded(card, pxF(cardRadius)), Qt::IntersectClip);
    const QSizeF size = QSizeF(entry.image.size()).scaled(card.size(), Qt::KeepAspectRatioByExpanding);
    QRectF place(QPointF(), size);
    place.moveCenter(card.center());
    painter.drawPixmap(place, scaled(entry.image, (size * devicePixelRatioF()).toSize(), slot), QRectF());
    painter.restore();
}

void PreviewColumnView::paintPlaceholder(QPainter& painter, const QRectF& rect, const QString& text)
{
    const Theme& theme = Theme::of(this);
    painter.fillPath(rounded(rect, pxF(photoRadius)), theme.panel);
    painter.setPen(theme.line);
    painter.drawPath(rounded(rect.adjusted(.5, .5, -.5, -.5), pxF(photoRadius)));
    painter.setPen(theme.derived.label);
    painter.setFont(sansFont(13, QFont::Medium));
    painter.drawText(rect, Qt::AlignCenter, text);
}

void PreviewColumnView::paintFoot(QPainter& painter)
{
    const Theme& theme = Theme::of(this);
    QRect foot = rect();
    foot.setTop(stage().bottom() + 1);
    painter.fillRect(foot, theme.panel);
    painter.fillRect(foot.left(), foot.top(), foot.width(), 1, theme.line);
    const ImageRecord* photo = m_model.primaryRecord();
    if (!photo)
        return;
    const QRect line = foot.adjusted(px(footPadding), 1, -px(footPadding), 0);
    const int gap = px(16);
    painter.setFont(sansFont(11));
    const QString details =
        painter.fontMetrics().elidedText(m_model.pairing().sidebarLine(*photo), Qt::ElideRight, line.width() / 2);
    const int detailsWidth = painter.fontMetrics().horizontalAdvance(details);
    painter.setPen(theme.derived.label);
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, keptInOrder(details));
    painter.setFont(verbatimFont(11, QFont::DemiBold));
    painter.setPen(theme.text);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
        painter.fontMetrics().elidedText(photo->fileName, Qt::ElideMiddle, line.width() - detailsWidth - gap));
}

const QPixmap& PreviewColumnView::scaled(const QImage& image, QSize devicePixels, int slot)
{
    Scaled& known = m_scaled[slot];
    if (known.imageKey != image.cacheKey() || known.size != devicePixels) {
        known.imageKey = image.cacheKey();
        known.size = devicePixels;
        known.pixmap = QPixmap::fromImage(image.scaled(devicePixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    return known.pixmap;
}

}  // namespace Quorbel
