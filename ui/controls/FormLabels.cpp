#include "ui/controls/FormLabels.h"

#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/TextLines.h"

#include <QEvent>
#include <QPainter>
#include <QResizeEvent>

namespace Quorbel {

TwoLineLabel::TwoLineLabel(TextRole role, qreal points, QWidget* parent)
    : ThemedLabel({}, role, points, QFont::Normal, parent)
    , m_points(points)
{
}

void TwoLineLabel::setText(const QString& text)
{
    if (text == this->text())
        return;
    ThemedLabel::setText(text);
    breakText();
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
    if (metrics.horizontalAdvance(text()) > width)
        m_lines = brokenIntoLines(text(), font(), width, LineBreaks::words, 2);
    const bool fits = metrics.horizontalAdvance(m_lines.constLast()) <= width;
    setToolTip(fits ? QString() : text());
    update();
}

bool TwoLineLabel::event(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        breakText();
    return ThemedLabel::event(event);
}

void TwoLineLabel::resizeEvent(QResizeEvent* event)
{
    ThemedLabel::resizeEvent(event);
    breakText();
}

void TwoLineLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect box = contentsRect();
    const int height = px(m_points + 2);
    int top = box.top() + (box.height() - height * int(m_lines.size())) / 2;
    for (const QString& line : std::as_const(m_lines)) {
        const QString shown = fontMetrics().elidedText(line, Qt::ElideRight, box.width());
        painter.drawText(QRect(box.left(), top, box.width(), height),
            Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip, shown);
        top += height;
    }
}

WrappedLine::WrappedLine(TextRole role, qreal points, qreal lineHeight, QWidget* parent)
    : ThemedLabel({}, role, points, QFont::Normal, parent)
    , m_lineHeight(lineHeight)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    breakText();
}

void WrappedLine::setText(const QString& text)
{
    if (text == this->text())
        return;
    ThemedLabel::setText(text);
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

void WrappedLine::resizeEvent(QResizeEvent* event)
{
    ThemedLabel::resizeEvent(event);
    if (event->oldSize().width() != width())
        breakText();
}

bool WrappedLine::event(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        breakText();
    return ThemedLabel::event(event);
}

void WrappedLine::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    int top = 0;
    for (const QString& line : std::as_const(m_lines)) {
        painter.drawText(QRect(0, top, width(), px(m_lineHeight)),
            Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
            fontMetrics().elidedText(line, Qt::ElideRight, width()));
        top += px(m_lineHeight);
    }
}

}  // namespace Quorbel
