#include "ui/templates/PreviewRow.h"

#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"
#include "ui/templates/TemplateTexts.h"

#include <QPainter>
#include <QTextLayout>

#include <cmath>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal side = 12;
constexpr qreal labelWidth = 92;
constexpr qreal gap = 12;
constexpr qreal above = 7;
constexpr qreal lineHeight = 18;
constexpr qreal mostNote = 230;
constexpr qreal leastText = 180;  // with less beside it, a note stands below

// "lake, autumn + regatta − old".
QString itemsText(const FilledField& field)
{
    QStringList stay = field.items;
    stay.removeIf([&field](const QString& item) { return field.added.contains(item); });
    QString text = stay.join(u", "_s);
    if (!field.removed.isEmpty())
        text += u" − "_s + field.removed.join(u", "_s);
    if (!field.added.isEmpty())
        text += (text.isEmpty() ? QString() : u" + "_s) + field.added.join(u", "_s);
    return text.trimmed();
}

// Blanks that do not break keep the frame around the words.
QString gapText(const QString& label)
{
    //: The photo holds nothing that could stand here. %1: what of, as “title”.
    const QString words = u' ' + Texts::tr("no %1") + u' ';
    return QString(words).replace(u' ', QChar(QChar::Nbsp)).arg(Texts::inSentence(Texts::shown(label)));
}

}  // namespace

PreviewRow::PreviewRow(const FilledField& field, bool isFirst, QWidget* parent)
    : QWidget(parent)
    , m_field(field)
    , m_isFirst(isFirst)
    , m_layout(std::make_unique<QTextLayout>())
{
    m_field.label = TemplateTexts::shownLabel(field.key, field.label);
    describeAs(staticMetaObject, QAccessible::StaticText);
    if (!field.items.isEmpty() || !field.removed.isEmpty()) {
        m_text = itemsText(field);
    } else {
        for (const RenderedPiece& piece : field.pieces) {
            const bool isGap = piece.kind == RenderedPiece::Kind::missing;
            const QString text = isGap ? gapText(piece.label) : piece.text;
            if (isGap)
                m_gaps.append({ int(m_text.size()), int(text.size()) });
            m_text += text;
        }
    }
    m_text.replace(u'\n', QChar::LineSeparator);
    QString spoken = QString(m_text).replace(QChar::Nbsp, u' ').simplified();
    //: What a field then holds.
    spoken = spoken.isEmpty() ? Texts::tr("nothing") : spoken;
    //: %1: name of a field, %2: what it holds.
    setAccessibleName(Texts::tr("%1: %2").arg(m_field.label, spoken));
    setAccessibleDescription(field.note);
    setToolTip(field.note);
    onRestyle(this, [this] { layOut(); });
}

PreviewRow::~PreviewRow() = default;

qreal PreviewRow::noteWidth() const
{
    const qreal most = qMin(pxF(mostNote), width() - 2 * pxF(side));
    return m_field.note.isEmpty() ? 0 : qMin(QFontMetricsF(sansFont(11)).horizontalAdvance(m_field.note) + 1, most);
}

bool PreviewRow::isNoteBelow() const
{
    return !m_field.note.isEmpty() && width() - pxF(2 * side + labelWidth + gap) - noteWidth() < pxF(leastText);
}

QRectF PreviewRow::textBox() const
{
    const qreal left = pxF(side + labelWidth);
    const qreal beside = m_field.note.isEmpty() || isNoteBelow() ? 0 : noteWidth() + pxF(gap);
    return { left, pxF(above), width() - left - beside - pxF(side), height() - 2 * pxF(above) };
}

void PreviewRow::layOut()
{
    m_layout->setText(m_text);
    m_layout->setFont(verbatimFont(13));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(layoutDirection());
    option.setAlignment(isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
    m_layout->setTextOption(option);
    QList<QTextLayout::FormatRange> formats;
    for (const Gap& one : std::as_const(m_gaps)) {
        QTextLayout::FormatRange range{ one.from, one.length, {} };
        range.format.setFont(sansFont(11));
        range.format.setForeground(Theme::of(this).derived.amberText);
        formats.append(range);
    }
    m_layout->setFormats(formats);
    m_layout->beginLayout();
    qreal y = 0;
    for (QTextLine line = m_layout->createLine(); line.isValid(); line = m_layout->createLine()) {
        line.setLineWidth(qMax(pxF(40), textBox().width()));
        line.setPosition({ 0, y + (pxF(lineHeight) - line.height()) / 2 });
        y += pxF(lineHeight);
    }
    m_layout->endLayout();
    const qreal note = isNoteBelow() ? pxF(lineHeight) : 0;
    const int wanted = int(std::ceil(qMax(y, pxF(lineHeight)) + note + 2 * pxF(above)));
    if (wanted != height() || wanted != minimumHeight())
        setFixedHeight(wanted);
}

void PreviewRow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void PreviewRow::paintGaps(QPainter& painter) const
{
    const Theme& theme = Theme::of(this);
    for (const Gap& one : m_gaps) {
        const QTextLine line = m_layout->lineForTextPosition(one.from);
        const qreal from = line.cursorToX(one.from);
        const qreal to = line.cursorToX(qMin(one.from + one.length, line.textStart() + line.textLength()));
        const QRectF box(mirrored(textBox(), this).left() + from + pxF(1),
            textBox().top() + line.y() + (line.height() - pxF(17)) / 2, to - from - pxF(2), pxF(17));
        QPen dashed(theme.amber, 1, Qt::DashLine);
        painter.setPen(dashed);
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(box, pxF(4), pxF(4));
    }
}

void PreviewRow::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!m_isFirst)
        painter.fillRect(QRectF(0, 0, width(), 1), theme.line);
    const auto draw = [&](const QRectF& box, const QFont& font, const QColor& color, const QString& text, int align) {
        painter.setFont(font);
        painter.setPen(color);
        painter.drawText(mirrored(box, this), align | Qt::AlignVCenter | Qt::TextSingleLine,
            QFontMetrics(font).elidedText(text, Qt::ElideRight, int(box.width()) + 1));
    };
    draw({ pxF(side), pxF(above), pxF(labelWidth), pxF(lineHeight) }, sansFont(13), theme.derived.label, m_field.label,
        Qt::AlignLeft);
    const bool isRefused = m_field.outcome == FilledField::Outcome::refused;
    QRectF note(
        textBox().right() + pxF(gap), pxF(above), width() - textBox().right() - pxF(gap + side), pxF(lineHeight));
    if (isNoteBelow()) {
        const qreal left = qMin(textBox().left(), width() - pxF(side) - noteWidth());
        note = { left, height() - pxF(above + lineHeight), noteWidth(), pxF(lineHeight) };
    }
    draw(note, sansFont(11), isRefused || !m_gaps.isEmpty() ? theme.derived.amberText : theme.derived.label,
        m_field.note, Qt::AlignRight);
    painter.setPen(isRefused ? theme.derived.amberText : theme.text);
    m_layout->draw(&painter, mirrored(textBox(), this).topLeft());
    paintGaps(painter);
}

}  // namespace Quorbel
