#include "ui/controls/Labels.h"

#include "ui/controls/Accessibility.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

namespace Quorbel {

using namespace Qt::StringLiterals;

QColor colorFor(const Theme& theme, TextRole role)
{
    switch (role) {
    case TextRole::text:
        return theme.text;
    case TextRole::label:
        return theme.derived.label;
    case TextRole::muted:
        return theme.muted;
    case TextRole::amberText:
        return theme.derived.amberText;
    case TextRole::selText:
        return theme.selText;
    case TextRole::selSub:
        return theme.selSub;
    }
    return theme.text;
}

QFont sectionFont()
{
    QFont font = sansFont(11, QFont::DemiBold);
    font.setLetterSpacing(QFont::PercentageSpacing, 105.5);
    return font;
}

ThemedLabel::ThemedLabel(const QString& text, TextRole role, qreal points, QFont::Weight weight, QWidget* parent)
    : QLabel(text, parent)
    , m_role(role)
    , m_points(points)
    , m_weight(weight)
{
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::NoTextInteraction);
    onRestyle(this, [this] { restyle(); });
}

void ThemedLabel::restyle()
{
    QFont font = m_mono ? monoFont(m_points) : sansFont(m_points, m_weight);
    if (m_verbatim)
        font = m_mono ? verbatimMonoFont(m_points) : verbatimFont(m_points, m_weight);
    font.setItalic(m_italic);
    setFont(font);
    QPalette colors = paletteFor(Theme::of(this));
    colors.setColor(QPalette::WindowText, colorFor(Theme::of(this), m_role));
    setPalette(colors);
    updateGeometry();
}

ThemedLabel* ThemedLabel::wrapped(const QString& text, TextRole role, qreal points, QFont::Weight weight)
{
    auto* label = new ThemedLabel(text, role, points, weight);
    label->setWordWrap(true);
    return label;
}

void ThemedLabel::setRole(TextRole role)
{
    if (role == m_role)
        return;
    m_role = role;
    restyle();
}

void ThemedLabel::setMono(bool mono)
{
    m_mono = mono;
    restyle();
}

void ThemedLabel::setVerbatim(bool verbatim)
{
    if (verbatim == m_verbatim)
        return;
    m_verbatim = verbatim;
    restyle();
}

void ThemedLabel::setItalic(bool italic)
{
    m_italic = italic;
    restyle();
}

void ThemedLabel::setElided(bool elided)
{
    m_elided = elided;
    updateGeometry();
    update();
}

void ThemedLabel::setLineHeight(qreal points)
{
    m_lineHeight = points;
    updateGeometry();
}

QSize ThemedLabel::sizeHint() const
{
    QSize size = QLabel::sizeHint();
    if (m_lineHeight > 0 && !wordWrap())
        size.setHeight(px(m_lineHeight));
    return size;
}

QSize ThemedLabel::minimumSizeHint() const
{
    QSize size = QLabel::minimumSizeHint();
    if (m_lineHeight > 0 && !wordWrap())
        size.setHeight(px(m_lineHeight));
    if (m_elided)
        size.setWidth(fontMetrics().horizontalAdvance(u"M…"_s));
    return size;
}

bool ThemedLabel::event(QEvent* event)
{
    // Qt goes by the letters of the text, not by what is around it.
    if (event->type() == QEvent::Polish && isRightToLeft() && !alignment().testFlag(Qt::AlignAbsolute))
        setAlignment(QStyle::visualAlignment(layoutDirection(), alignment()) | Qt::AlignAbsolute);
    // What does not fit is told by the tooltip.
    if ((event->type() == QEvent::Resize || event->type() == QEvent::Enter) && m_elided) {
        const bool fits = fontMetrics().horizontalAdvance(text()) <= contentsRect().width();
        setToolTip(fits ? QString() : text());
    }
    return QLabel::event(event);
}

void ThemedLabel::paintEvent(QPaintEvent* event)
{
    const bool isOneName = m_verbatim && isRightToLeft() && !wordWrap();
    if (!m_elided && !isOneName)
        return QLabel::paintEvent(event);
    DirectedPainter painter(this);
    painter.setPen(palette().color(isEnabled() ? QPalette::Normal : QPalette::Disabled, QPalette::WindowText));
    const QRect box = contentsRect();
    const QString line = m_elided ? fontMetrics().elidedText(text(), Qt::ElideRight, box.width()) : text();
    painter.drawText(box, int(alignment()) | Qt::TextSingleLine, drawn(line));
}

QString ThemedLabel::drawn(const QString& line) const
{
    return m_verbatim && !line.isRightToLeft() ? keptInOrder(line) : line;
}

SectionHeader::SectionHeader(const QString& title, bool muted, const QString& trailingNote, QWidget* parent)
    : QWidget(parent)
    , m_title(title)
    , m_muted(muted)
    , m_note(trailingNote)
{
    describeAs(staticMetaObject, QAccessible::Heading);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleName(title);
    setAccessibleDescription(trailingNote);
    onRestyle(this, [this] { updateGeometry(); });
}

void SectionHeader::setNote(const QString& text)
{
    if (text == m_note)
        return;
    m_note = text;
    setAccessibleDescription(text);
    updateGeometry();
    update();
}

QSize SectionHeader::sizeHint() const
{
    const QFontMetrics metrics(sectionFont());
    return { metrics.horizontalAdvance(m_title) + metrics.horizontalAdvance(m_note) + px(20), px(22) };
}

void SectionHeader::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    const QRectF line(0, 0, width(), pxF(16));
    painter.setFont(sectionFont());
    painter.setPen(m_muted ? theme.muted : theme.text);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, m_title);
    painter.setFont(sansFont(11));
    painter.setPen(theme.muted);
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, m_note);
    painter.fillRect(QRectF(0, height() - 1, width(), 1), theme.line);
}

LabeledDivider::LabeledDivider(const QString& caption, bool muted, const QString& note, QWidget* parent)
    : QWidget(parent)
    , m_caption(caption)
    , m_muted(muted)
    , m_note(note)
{
    describeAs(staticMetaObject, QAccessible::Heading);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleName(caption);
    setAccessibleDescription(note);
    onRestyle(this, [this] { updateGeometry(); });
}

QSize LabeledDivider::sizeHint() const
{
    const QFontMetrics metrics(sectionFont());
    return { metrics.horizontalAdvance(m_caption) + metrics.horizontalAdvance(m_note) + px(40), px(16) };
}

void LabeledDivider::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setFont(sectionFont());
    painter.setPen(m_muted ? theme.muted : theme.text);
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, m_caption);
    qreal left = QFontMetricsF(sectionFont()).horizontalAdvance(m_caption) + pxF(10);
    qreal right = width();
    if (!m_note.isEmpty()) {
        painter.setFont(sansFont(11));
        painter.setPen(theme.muted);
        painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, m_note);
        right -= QFontMetricsF(sansFont(11)).horizontalAdvance(m_note) + pxF(10);
    }
    painter.fillRect(mirrored(QRectF(left, height() / 2.0, right - left, 1), this), theme.line);
}

}  // namespace Quorbel
