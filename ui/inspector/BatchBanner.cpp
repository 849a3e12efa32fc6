#include "ui/inspector/BatchBanner.h"

#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/TextLines.h"
#include "ui/controls/theme/Theme.h"
#include "ui/inspector/PhotoHeader.h"

#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal gap = 14;
constexpr qreal corner = 9;

QString bannerHint()
{
    return u"Tick a field to write it to all selected files."_s;
}

}  // namespace

BatchBanner::BatchBanner(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    onRestyle(this, [this] { updateGeometry(); });
}

void BatchBanner::setPhotos(qsizetype count, const QString& note)
{
    const QString title = u"Editing %1 photos"_s.arg(count);
    const QString second = note.isEmpty() ? bannerHint() : note;
    if (title == m_title && second == m_note)
        return;
    m_title = title;
    m_note = second;
    setAccessibleName(title);
    setAccessibleDescription(second);
    update();
}

QSize BatchBanner::sizeHint() const
{
    return { px(200), px(PhotoHeader::heightInPoints) };
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
    const qreal width = this->width() - left - pxF(18);
    const QStringList hint = brokenIntoLines(m_note, sansFont(12), int(width), LineBreaks::words, 2);
    const qreal top = (height() - pxF(21 + 17 * int(hint.size()))) / 2;
    const auto line = [&](qreal y, qreal height, const QString& text) {
        painter.drawText(QRectF(left, y, width, height), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
            painter.fontMetrics().elidedText(text, Qt::ElideRight, int(width)));
    };
    line(top, pxF(20), m_title);
    painter.setOpacity(.7);
    painter.setFont(sansFont(12));
    for (qsizetype i = 0; i < hint.size(); ++i)
        line(top + pxF(21 + 17 * int(i)), pxF(17), hint.at(i));
}

}  // namespace Quorbel
