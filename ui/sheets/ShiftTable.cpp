#include "ui/sheets/ShiftTable.h"

#include "core/language/Texts.h"
#include "ui/controls/Labels.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"

#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal rowHeight = 32;
constexpr qreal side = 13;
constexpr qreal beforeLeft = 131;
constexpr qreal arrowMiddle = 311;
constexpr qreal arrowWidth = 20;
constexpr qreal afterLeft = 329;
constexpr qreal radius = 7;

int rowTop(int row)
{
    return 1 + row * (px(rowHeight) + 1);
}

ThemedLabel* monoLabel()
{
    auto* label = new ThemedLabel({}, TextRole::text, 12);
    label->setMono(true);
    label->setVerbatim(true);
    label->setElided(true);
    return label;
}

}  // namespace

ShiftTable::ShiftTable(QWidget* parent)
    : QWidget(parent)
{
    setAccessibleName(Texts::tr("Before and after"));
    for (Line& line : m_lines) {
        line = { new ThemedLabel({}, TextRole::label, 13), monoLabel(),
            new ThemedLabel(QString(QChar(isRightToLeft() ? 0x2190 : 0x2192)), TextRole::muted, 13), monoLabel() };
        line.title->setElided(true);
        line.arrow->setAlignment(Qt::AlignCenter);
        for (QWidget* label : { line.title, line.before, line.arrow, line.after })
            label->setParent(this);
    }
    setRows({});
    onRestyle(this, [this] {
        setFixedHeight(rowTop(rows));
        arrange();
    });
}

void ShiftTable::setRows(const QList<ShiftPreview::Row>& rows)
{
    for (int i = 0; i < int(m_lines.size()); ++i) {
        const Line& line = m_lines.at(size_t(i));
        const bool isThere = i < rows.size();
        const ShiftPreview::Row row = isThere ? rows.at(i) : ShiftPreview::Row();
        line.title->setText(row.title);
        line.before->setText(row.before);
        line.after->setText(row.after);
        line.title->setToolTip(row.photo.fileName());
        for (QWidget* label : { line.title, line.before, line.arrow, line.after })
            label->setVisible(isThere);
    }
}

QSize ShiftTable::sizeHint() const
{
    return { px(440), rowTop(rows) };
}

// As drawn, in narrower sheets closer together.
void ShiftTable::arrange()
{
    constexpr qreal drawnWidth = 512;
    const qreal scale = qMin(1.0, width() / pxF(drawnWidth));
    const auto at = [scale](qreal points) { return int(pxF(points) * scale); };
    for (int i = 0; i < int(m_lines.size()); ++i) {
        const Line& line = m_lines.at(size_t(i));
        const int top = rowTop(i);
        const int high = px(rowHeight);
        const int arrow = at(arrowMiddle - arrowWidth / 2);
        const auto place = [&](QWidget* part, int left, int width) {
            part->setGeometry(mirrored(QRect(left, top, width, high), this));
        };
        place(line.title, px(side), at(beforeLeft) - px(side) - 4);
        place(line.before, at(beforeLeft), arrow - at(beforeLeft));
        place(line.arrow, arrow, at(arrowWidth));
        place(line.after, at(afterLeft), width() - at(afterLeft) - px(side));
    }
}

void ShiftTable::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void ShiftTable::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    paintBox(painter, rect(), pxF(radius), theme.field, QPen(theme.line, 1));
    for (int i = 1; i < rows; ++i)
        painter.fillRect(1, rowTop(i) - 1, width() - 2, 1, theme.line);
}

}  // namespace Quorbel
