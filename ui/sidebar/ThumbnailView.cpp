#include "ui/sidebar/ThumbnailView.h"

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

// What follows the last dot; empty without one.
QString suffix(const QString& fileName)
{
    return fileName.mid(fileName.lastIndexOf(u'.') + 1, fileName.contains(u'.') ? -1 : 0);
}

}  // namespace

ThumbnailView::ThumbnailView(ThumbnailStore* thumbs, qreal size, qreal corner, QWidget* parent)
    : QWidget(parent)
    , m_thumbs(thumbs)
    , m_size(size)
    , m_corner(corner)
{
    describeAs(staticMetaObject, QAccessible::Graphic);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    onRestyle(this, [this] { updateGeometry(); });
    if (!m_thumbs)
        return;
    connect(m_thumbs, &ThumbnailStore::entryChanged, this, [this](const QUrl& url, ThumbnailStore::Kind kind) {
        if (url == m_url && kind == ThumbnailStore::Kind::small)
            update();
    });
}

void ThumbnailView::setUrl(const QUrl& url)
{
    if (url == m_url)
        return;
    m_url = url;
    //: %1: name of a file.
    setAccessibleName(url.isEmpty() ? QString() : Texts::tr("Thumbnail of %1").arg(url.fileName()));
    update();
}

QSize ThumbnailView::sizeHint() const
{
    return { px(m_size), px(m_size) };
}

void ThumbnailView::paint(QPainter& painter, const QRectF& rect, qreal corner, const ThumbnailStore::Entry& entry,
    const QUrl& url, const Theme& theme)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QPainterPath shape;
    shape.addRoundedRect(rect, corner, corner);
    if (entry.image.isNull()) {
        painter.fillPath(shape, theme.hair);
        if (entry.state == ThumbnailStore::State::badge) {
            painter.setPen(theme.muted);
            painter.setFont(sansFont(rect.height() < pxF(50) ? 10 : 11, QFont::DemiBold));
            painter.drawText(rect, Qt::AlignCenter, suffix(url.fileName()).toUpper());
        }
    } else {
        // Fill the square: the image's shorter side spans it, the longer one is cut on both ends.
        const QSizeF size = QSizeF(entry.image.size());
        const qreal side = qMin(size.width(), size.height());
        const QRectF source((size.width() - side) / 2, (size.height() - side) / 2, side, side);
        painter.fillPath(shape, theme.panel);  // behind a transparent picture
        painter.setClipPath(shape);
        painter.drawImage(rect, entry.image, source);
        painter.setClipping(false);
    }
    paintBox(painter, rect, corner, Qt::transparent, QPen(theme.derived.thumbEdge, .5));
    painter.restore();
}

void ThumbnailView::paintEvent(QPaintEvent*)
{
    DirectedPainter painter(this);
    ThumbnailStore::Entry entry;
    if (m_thumbs && !m_url.isEmpty())
        entry = m_thumbs->request(m_url, ThumbnailStore::Kind::small);
    paint(painter, rect(), pxF(m_corner), entry, m_url, Theme::of(this));
}

}  // namespace Quorbel
