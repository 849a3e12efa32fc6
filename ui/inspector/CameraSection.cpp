#include "ui/inspector/CameraSection.h"

#include "ui/controls/Labels.h"
#include "ui/controls/theme/Metrics.h"

#include <QMouseEvent>
#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {
// Points.
constexpr qreal lineHeight = 20;
constexpr qreal labelWidth = 104;
constexpr qreal secondLabelWidth = 84;
constexpr qreal secondColumn = 152;  // at least; wider where a value needs it
constexpr qreal columnGap = 20;
constexpr qreal gap = 7;
constexpr qreal twoColumnsFrom = 470;
}  // namespace

CameraSection::CameraSection(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMouseTracking(true);
    setAccessibleName(u"Camera"_s);
    onRestyle(this, [this] { updateGeometry(); });
}

void CameraSection::setRows(const QList<CameraRow>& rows)
{
    if (rows == m_rows)
        return;
    const bool resized = rows.size() != m_rows.size();
    m_rows = rows;
    QStringList told;
    for (const CameraRow& row : rows)
        told.append(row.label + u": "_s + row.value);
    setAccessibleDescription(told.join(u", "_s));
    if (resized)
        updateGeometry();
    update();
}

int CameraSection::columns() const
{
    return width() >= px(twoColumnsFrom) ? 2 : 1;
}

int CameraSection::linesPerColumn() const
{
    const int count = qMax(1, int(m_rows.size()));
    return columns() == 2 ? (count + 1) / 2 : count;
}

QSize CameraSection::sizeHint() const
{
    return { px(240), linesPerColumn() * px(lineHeight) };
}

void CameraSection::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (event->oldSize().width() != width())
        updateGeometry();
}

int CameraSection::secondColumnWidth() const
{
    const QFontMetrics metrics(sansFont(12));
    int widest = 0;
    for (qsizetype i = linesPerColumn(); i < m_rows.size(); ++i)
        widest = qMax(widest, metrics.horizontalAdvance(m_rows.at(i).value) + 1);
    const int wanted = px(secondLabelWidth) + px(gap) + widest;
    return qBound(px(secondColumn), wanted, qMax(px(secondColumn), (width() - px(columnGap)) / 2));
}

CameraSection::Cell CameraSection::cell(int index) const
{
    const int perColumn = linesPerColumn();
    const bool second = index >= perColumn;
    const int y = (index - (second ? perColumn : 0)) * px(lineHeight);
    const int divide = columns() == 2 ? width() - secondColumnWidth() : width() + px(columnGap);
    const int left = second ? divide : 0;
    const int right = second ? width() : divide - px(columnGap);
    const QRect label(left, y, px(second ? secondLabelWidth : labelWidth), px(lineHeight));
    const int valueLeft = label.right() + 1 + px(gap);
    return { label, QRect(valueLeft, y, qMax(0, right - valueLeft), px(lineHeight)) };
}

void CameraSection::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    QPainter painter(this);
    painter.setFont(sansFont(12));
    const QFontMetrics metrics = painter.fontMetrics();
    const auto draw = [&](const QRect& box, const QColor& color, const QString& text) {
        painter.setPen(color);
        painter.drawText(box, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
            metrics.elidedText(text, Qt::ElideRight, box.width()));
    };
    if (m_rows.isEmpty())
        draw(rect(), theme.muted, u"No camera details"_s);
    for (int i = 0; i < int(m_rows.size()); ++i) {
        const Cell place = cell(i);
        draw(place.label, theme.muted, m_rows.at(i).label);
        draw(place.value, theme.text, m_rows.at(i).value);
    }
}

bool CameraSection::event(QEvent* event)
{
    // Whatever shows tooltips asks for the text at the ToolTip event, so it must be right by then.
    if (event->type() == QEvent::MouseMove) {
        const QPoint at = static_cast<QMouseEvent*>(event)->position().toPoint();
        const QFontMetrics metrics(sansFont(12));
        QString tip;
        for (int i = 0; i < int(m_rows.size()); ++i) {
            const QRect value = cell(i).value;
            if (value.contains(at) && metrics.horizontalAdvance(m_rows.at(i).value) > value.width())
                tip = m_rows.at(i).value;
        }
        setToolTip(tip);
    }
    return QWidget::event(event);
}

}  // namespace Quorbel
