#include "ui/inspector/LeftNoticeLine.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/theme/Metrics.h"

#include <QEvent>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal lineHeight = 17;  // points

}  // namespace

LeftNoticeLine::LeftNoticeLine(QWidget* parent)
    : QWidget(parent)
    , m_text(new ThemedLabel({}, TextRole::label, 12, QFont::Normal, this))
    , m_dot(new ThemedLabel(u" · "_s, TextRole::label, 12, QFont::Normal, this))
    , m_button(new QBTextButton(u"Bring back"_s, this))
{
    m_button->setInline(true);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    onRestyle(this, [this] { place(); });
}

void LeftNoticeLine::setText(const QString& text, const QString& brief)
{
    if (text == m_whole && brief == m_brief)
        return;
    m_whole = text;
    m_brief = brief;
    m_text->setAccessibleName(text);
    // Who hears the button alone must know what it brings.
    m_button->setAccessibleDescription(text);
    place();
}

void LeftNoticeLine::place()
{
    const int line = px(lineHeight);
    const int text = m_text->fontMetrics().horizontalAdvance(m_whole);
    const int dot = m_dot->sizeHint().width();
    const int button = m_button->sizeHint().width();
    const bool isOneLine = text + dot + button <= width();
    m_dot->setVisible(isOneLine);
    const bool isWhole = text <= width();
    m_text->setText(isWhole ? m_whole : m_brief);
    m_text->setToolTip(isWhole ? QString() : m_whole);
    if (isOneLine) {
        const int top = (height() - line) / 2;
        m_text->setGeometry(0, top, text, line);
        m_dot->setGeometry(text, top, dot, line);
        m_button->setGeometry(text + dot, top, button, line);
    } else {
        const int top = (height() - 2 * line) / 2;
        m_text->setGeometry(0, top, width(), line);
        m_button->setGeometry(0, top + line, button, line);
    }
}

void LeftNoticeLine::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    place();
}

bool LeftNoticeLine::event(QEvent* event)
{
    // A part of it has another font.
    if (event->type() == QEvent::LayoutRequest)
        place();
    return QWidget::event(event);
}

}  // namespace Quorbel
