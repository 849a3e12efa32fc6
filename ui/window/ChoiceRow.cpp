#include "ui/window/ChoiceRow.h"

#include "ui/controls/FormLabels.h"
#include "ui/controls/Labels.h"
#include "ui/controls/pickers/SegmentedPicker.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"

#include <QVBoxLayout>

namespace Quorbel {

namespace {

// Points.
constexpr qreal pickerWidth = 252;
constexpr qreal gap = 16;

}  // namespace

ChoiceRow::ChoiceRow(const QString& name, const QStringList& choices, QWidget* parent)
    : QWidget(parent)
    , m_name(new ThemedLabel(name))
    , m_picker(new SegmentedPicker(choices))
    , m_help(new WrappedLine(TextRole::label, 11.5, 16))
    , m_line(new QBoxLayout(QBoxLayout::LeftToRight))
{
    m_picker->setWidth(pickerWidth);
    m_picker->setAccessibleName(name);
    m_line->addWidget(m_name);
    m_line->addStretch();
    m_line->addWidget(m_picker);
    auto* column = new QVBoxLayout(this);
    column->addLayout(m_line);
    column->addWidget(m_help);
    onRestyle(this, [this, column] {
        column->setContentsMargins(mirrored(QMargins(px(14), px(9), px(12), px(10))));
        column->setSpacing(px(6));
        arrange();
    });
}

void ChoiceRow::setHelp(const QString& text)
{
    m_help->setText(text);
    m_picker->setAccessibleDescription(text);
}

// As narrow as it can be: with the choices below the name.
QSize ChoiceRow::minimumSizeHint() const
{
    const QMargins margins = layout()->contentsMargins();
    const int widest = qMax(m_name->sizeHint().width(), m_picker->sizeHint().width());
    return { widest + margins.left() + margins.right(), layout()->totalMinimumSize().height() };
}

void ChoiceRow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange();
}

// Rows of a group look alike: the widest name decides for all of them.
void ChoiceRow::arrange()
{
    const QMargins margins = layout()->contentsMargins();
    int widestName = m_name->sizeHint().width();
    if (parentWidget())
        for (const ChoiceRow* row : parentWidget()->findChildren<ChoiceRow*>(QString(), Qt::FindDirectChildrenOnly))
            widestName = qMax(widestName, row->m_name->sizeHint().width());
    const int needed = widestName + px(gap) + m_picker->sizeHint().width();
    const bool isBeside = needed <= width() - margins.left() - margins.right();
    m_line->setDirection(isBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_line->setSpacing(px(isBeside ? gap : 5));
}

}  // namespace Quorbel
