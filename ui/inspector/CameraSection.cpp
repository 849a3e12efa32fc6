#include "ui/inspector/CameraSection.h"

#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/Labels.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"

#include <QLabel>
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

// One row. To assistive tools it is a label that says "Camera: E-M5".
class CameraLine final : public QLabel {
public:
    using QLabel::QLabel;

    void setRow(const CameraRow& row)
    {
        m_row = { Texts::shown(row.label), row.value };
        setText(Texts::tr("%1: %2").arg(m_row.label, row.value));
        update();
    }

    void setLabelWidth(int width)
    {
        m_labelWidth = width;
        const QRect value = valueBox();
        const bool fits = QFontMetrics(verbatimFont(12)).horizontalAdvance(m_row.value) <= value.width();
        setToolTip(fits ? QString() : m_row.value);
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = Theme::of(this);
        DirectedPainter painter(this);
        painter.setFont(verbatimFont(12));
        const auto draw = [&](const QRect& box, const QColor& color, const QString& text) {
            painter.setPen(color);
            painter.drawText(mirrored(box, this), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                keptInOrder(painter.fontMetrics().elidedText(text, Qt::ElideRight, box.width())));
        };
        draw({ 0, 0, m_labelWidth, height() }, theme.muted, m_row.label);
        draw(valueBox(), theme.text, m_row.value);
    }

private:
    QRect valueBox() const { return rect().adjusted(m_labelWidth + px(gap), 0, 0, 0); }

    CameraRow m_row{};
    int m_labelWidth = 0;
};

CameraSection::CameraSection(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    describeAs(staticMetaObject, QAccessible::Grouping);
    setAccessibleName(Texts::tr("Camera"));
    onRestyle(this, [this] {
        updateGeometry();
        arrange();
    });
}

void CameraSection::setRows(const QList<CameraRow>& rows)
{
    if (rows == m_rows)
        return;
    const bool resized = rows.size() != m_rows.size();
    m_rows = rows;
    while (m_lines.size() < rows.size())
        m_lines.append(new CameraLine(this));
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        m_lines.at(i)->setVisible(i < rows.size());
        if (i < rows.size())
            m_lines.at(i)->setRow(rows.at(i));
    }
    arrange();
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
    arrange();
}

int CameraSection::secondColumnWidth() const
{
    const QFontMetrics metrics(verbatimFont(12));
    int widest = 0;
    for (qsizetype i = linesPerColumn(); i < m_rows.size(); ++i)
        widest = qMax(widest, metrics.horizontalAdvance(m_rows.at(i).value) + 1);
    const int wanted = px(secondLabelWidth) + px(gap) + widest;
    return qBound(px(secondColumn), wanted, qMax(px(secondColumn), (width() - px(columnGap)) / 2));
}

void CameraSection::arrange()
{
    const int perColumn = linesPerColumn();
    const int divide = columns() == 2 ? width() - secondColumnWidth() : width() + px(columnGap);
    for (int i = 0; i < int(m_rows.size()); ++i) {
        const bool second = i >= perColumn;
        const int left = second ? divide : 0;
        const int right = second ? width() : divide - px(columnGap);
        const int y = (i - (second ? perColumn : 0)) * px(lineHeight);
        m_lines.at(i)->setGeometry(mirrored(QRect(left, y, qMax(0, right - left), px(lineHeight)), this));
        m_lines.at(i)->setLabelWidth(px(second ? secondLabelWidth : labelWidth));
    }
}

void CameraSection::paintEvent(QPaintEvent*)
{
    if (!m_rows.isEmpty())
        return;
    DirectedPainter painter(this);
    painter.setFont(verbatimFont(12));
    painter.setPen(Theme::of(this).muted);
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, Texts::tr("No camera details"));
}

}  // namespace Quorbel
