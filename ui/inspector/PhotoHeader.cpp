#include "ui/inspector/PhotoHeader.h"

#include "ui/controls/Labels.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Painting.h"
#include "ui/sidebar/ThumbnailView.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal headerHeight = 60;
constexpr qreal gap = 14;
constexpr qreal corner = 9;

QString bannerHint()
{
    return u"Tick a field to write it to all selected files."_s;
}

}  // namespace

PhotoHeader::PhotoHeader(ThumbnailStore* thumbs, QWidget* parent)
    : QWidget(parent)
    , m_thumbnail(new ThumbnailView(thumbs, headerHeight, corner))
    , m_name(new ThemedLabel({}, TextRole::text, 15, QFont::DemiBold))
    , m_details(new ThemedLabel({}, TextRole::muted, 12))
{
    auto* line = new QHBoxLayout(this);
    auto* column = new QVBoxLayout;
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(m_thumbnail);
    line->addLayout(column, 1);
    column->setContentsMargins(0, 0, 0, 0);
    column->addStretch();
    column->addWidget(m_name);
    column->addWidget(m_details);
    column->addStretch();
    m_name->setElided(true);
    m_name->setLineHeight(20);
    m_details->setElided(true);
    m_details->setLineHeight(17);
    onRestyle(this, [this, line, column] {
        setFixedHeight(px(headerHeight));
        line->setSpacing(px(gap));
        column->setSpacing(px(2));
    });
}

void PhotoHeader::setRecord(const ImageRecord& record)
{
    m_thumbnail->setUrl(record.url);
    if (m_name->text() != record.fileName)
        m_name->setText(record.fileName);
    if (const QString details = record.detailLine(); m_details->text() != details)
        m_details->setText(details);
}

BatchBanner::BatchBanner(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleDescription(bannerHint());
    onRestyle(this, [this] { updateGeometry(); });
}

void BatchBanner::setCount(qsizetype photos)
{
    const QString title = u"Editing %1 photos"_s.arg(photos);
    if (title == m_title)
        return;
    m_title = title;
    setAccessibleName(title);
    update();
}

QSize BatchBanner::sizeHint() const
{
    return { px(200), px(headerHeight) };
}

void BatchBanner::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    QPainter painter(this);
    paintBox(painter, rect(), pxF(corner), theme.sel, Qt::NoPen);
    const qreal icon = pxF(24);
    const QRectF iconBox(pxF(18), (height() - icon) / 2, icon, icon);
    painter.setOpacity(.85);
    Icon::paint(painter, iconBox, u"square.stack.3d.up"_s, icon, theme.selText);
    painter.setPen(theme.selText);
    painter.setOpacity(1);
    painter.setFont(sansFont(15, QFont::DemiBold));
    const qreal left = iconBox.right() + pxF(gap);
    const qreal top = (height() - pxF(38)) / 2;
    const qreal width = this->width() - left - pxF(18);
    const auto line = [&](qreal y, qreal height, const QString& text) {
        painter.drawText(QRectF(left, y, width, height), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
            painter.fontMetrics().elidedText(text, Qt::ElideRight, int(width)));
    };
    line(top, pxF(20), m_title);
    painter.setOpacity(.7);
    painter.setFont(sansFont(12));
    line(top + pxF(21), pxF(17), bannerHint());
}

}  // namespace Quorbel
