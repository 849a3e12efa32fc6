#include "ui/inspector/FormSection.h"

#include "core/language/Texts.h"
#include "ui/controls/Labels.h"
#include "ui/controls/ReadingOrder.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/inspector/FieldRow.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {
// Points.
constexpr qreal above = 16;
constexpr qreal titleHeight = 16;
constexpr qreal belowTitle = 8;
constexpr qreal rowGap = 7;
constexpr qreal dotLeft = 11;  // from the label to the dot's left edge
constexpr qreal dotSize = 6;
}  // namespace

FormSection::FormSection(const QString& title, const QString& note, QWidget* parent)
    : QWidget(parent)
    , m_column(new QVBoxLayout(this))
    , m_header(new SectionHeader(title, false, note))
    , m_rows(*this)
{
    describeInReadingOrder(staticMetaObject, QAccessible::Client);
    m_column->addWidget(m_header);
    m_column->addLayout(m_rows.layout());
    onRestyle(this, [this] {
        m_column->setContentsMargins(mirrored(QMargins(px(dotRoom), px(above), 0, 0)));
        m_column->setSpacing(px(belowTitle));
        m_rows.layout()->setSpacing(px(rowGap));
    });
}

void FormSection::setRows(const QList<FieldRow*>& rows)
{
    if (!m_rows.set(rows))
        return;
    // Elsewhere they may have kept room for their dots.
    for (FieldRow* row : rows)
        row->setContentsMargins({});
    update();
}

void FormSection::setUnderRows(QWidget* widget)
{
    m_column->addWidget(widget);
}

void FormSection::setNote(const QString& text)
{
    m_header->setNote(text);
}

void FormSection::setReading(bool on)
{
    if (on && !m_reading) {
        m_reading = new ThemedLabel(Texts::tr("Reading…"), TextRole::label, 11);
        m_reading->setAccessibleName(Texts::tr("Reading metadata"));
        m_reading->setLineHeight(titleHeight);
        auto* line = new QHBoxLayout(m_header);
        line->setContentsMargins(0, 0, 0, 0);
        line->addStretch();
        line->addWidget(m_reading, 0, Qt::AlignTop);
    }
    if (!m_reading || on == m_reading->isVisibleTo(this))
        return;
    m_reading->setVisible(on);
    if (!on)
        return;
    QAccessibleEvent event(m_reading, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void FormSection::paintEvent(QPaintEvent*)
{
    DirectedPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::of(this).amber);
    const qreal dot = pxF(dotSize);
    for (const FieldRow* row : m_rows.rows())
        if (row->state().edited && !row->state().batch)
            painter.drawEllipse(
                mirrored(QRectF(row->x() - pxF(dotLeft), row->y() + row->dotCenter() - dot / 2, dot, dot),
                    QRectF(row->geometry()), layoutDirection()));
}

}  // namespace Quorbel
