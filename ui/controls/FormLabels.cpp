#include "ui/controls/FormLabels.h"

#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/TextLines.h"

#include <QEvent>
#include <QPainter>
#include <QResizeEvent>

namespace Quorbel {

void BrokenLabel::setText(const QString& text)
{
    if (text == this->text())
        return;
    ThemedLabel::setText(text);
    breakText();
}

void BrokenLabel::paintLines(QRect box)
{
    DirectedPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    for (const QString& line : std::as_const(m_lines)) {
        painter.drawText(box, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
            drawn(fontMetrics().elidedText(line, Qt::ElideRight, box.width())));
        box.translate(0, box.height());
    }
}

void BrokenLabel::resizeEvent(QResizeEvent* event)
{
    ThemedLabel::resizeEvent(event);
    if (event->oldSize().width() != width())
        breakText();
}

bool BrokenLabel::event(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        breakText();
    return ThemedLabel::event(event);
}

TwoLineLabel::TwoLineLabel(TextRole role, qreal points, QWidget* parent)
    : BrokenLabel({}, role, points, QFont::Normal, parent)
    , m_points(points)
{
}

QSize TwoLineLabel::minimumSizeHint() const
{
    return { 0, px(30) };
}

void TwoLineLabel::breakText()
{
    const int width = contentsRect().width();
    const QFontMetrics metrics(font());
    m_lines = { text() };
    // Not rounded: what is a fraction of a pixel too wide is shortened when it is drawn.
    if (QFontMetricsF(font()).horizontalAdvance(text()) > width)
        m_lines = brokenIntoLines(text(), font(), width, LineBreaks::words, 2);
    const bool fits = metrics.horizontalAdvance(m_lines.constLast()) <= width;
    setToolTip(fits ? QString() : text());
    update();
}

void TwoLineLabel::paintEvent(QPaintEvent*)
{
    const QRect box = contentsRect();
    const int height = px(m_points + 2);
    const int top = box.top() + (box.height() - height * int(m_lines.size())) / 2;
    paintLines({ box.left(), top, box.width(), height });
}

WrappedLine::WrappedLine(TextRole role, qreal points, qreal lineHeight, QWidget* parent)
    : BrokenLabel({}, role, points, QFont::Normal, parent)
    , m_lineHeight(lineHeight)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    breakText();
}

void WrappedLine::setBreaksAnywhere(bool on)
{
    m_breaksAnywhere = on;
    breakText();
}

void WrappedLine::breakText()
{
    const int room = qMax(px(60), width());
    m_lines = brokenIntoLines(text(), font(), room, m_breaksAnywhere ? LineBreaks::anywhere : LineBreaks::spaces);
    setFixedHeight(px(m_lineHeight) * qMax(1, int(m_lines.size())));
    update();
}

void WrappedLine::paintEvent(QPaintEvent*)
{
    paintLines({ 0, 0, width(), px(m_lineHeight) });
}

}  // namespace Quorbel
