#include "ui/controls/NoticeLine.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"

#include <QEvent>

namespace Quorbel {

using namespace Qt::StringLiterals;

NoticeLine::NoticeLine(const QString& action, QWidget* parent)
    : QWidget(parent)
    , m_text(new ThemedLabel({}, TextRole::label, 12, QFont::Normal, this))
    , m_dot(new ThemedLabel(u" · "_s, TextRole::label, 12, QFont::Normal, this))
    , m_button(new QBTextButton(action, this))
{
    m_button->setInline(true);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    onRestyle(this, [this] { place(); });
}

void NoticeLine::setRoles(TextRole text, TextRole button)
{
    m_text->setRole(text);
    m_dot->setRole(text);
    m_button->setRole(button);
}

void NoticeLine::setText(const QString& text, const QString& brief)
{
    if (text == m_whole && brief == m_brief)
        return;
    m_whole = text;
    m_brief = brief;
    m_text->setAccessibleName(text);
    // Who hears the button alone must know what it is about.
    m_button->setAccessibleDescription(text);
    place();
    emit changed();
}

void NoticeLine::setOffered(bool offered)
{
    if (offered == m_isOffered)
        return;
    m_isOffered = offered;
    m_button->setVisible(offered);
    place();
    emit changed();
}

int NoticeLine::lineHeight()
{
    return px(17);
}

int NoticeLine::textWidth() const
{
    return m_text->fontMetrics().horizontalAdvance(m_whole);
}

int NoticeLine::lines(int width) const
{
    if (!m_isOffered)
        return 1;
    return textWidth() + m_dot->sizeHint().width() + m_button->sizeHint().width() <= width ? 1 : 2;
}

void NoticeLine::place()
{
    const int line = lineHeight();
    const bool isOneLine = lines(width()) == 1;
    const bool isWhole = textWidth() <= width();
    const int top = (height() - (isOneLine ? line : 2 * line)) / 2;
    const int text = isOneLine && m_isOffered ? textWidth() : width();
    const int dot = m_dot->sizeHint().width();
    m_text->setText(isWhole ? m_whole : m_text->fontMetrics().elidedText(m_brief, Qt::ElideRight, width()));
    m_text->setGeometry(mirrored(QRect(0, top, text, line), this));
    m_text->setToolTip(isWhole ? QString() : m_whole);
    m_dot->setVisible(isOneLine && m_isOffered);
    m_dot->setGeometry(mirrored(QRect(text, top, dot, line), this));
    const QSize button(m_button->sizeHint().width(), line);
    m_button->setGeometry(mirrored(QRect(isOneLine ? QPoint(text + dot, top) : QPoint(0, top + line), button), this));
}

void NoticeLine::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    place();
}

bool NoticeLine::event(QEvent* event)
{
    // A part of it has another font.
    if (event->type() == QEvent::LayoutRequest) {
        place();
        emit changed();
    }
    return QWidget::event(event);
}

}  // namespace Quorbel
