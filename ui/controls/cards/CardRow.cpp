#include "ui/controls/cards/CardRow.h"
#include "ui/controls/ReadingOrder.h"

#include "ui/controls/FormLabels.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/cards/ItemCard.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace Quorbel {

namespace {

// Points, as in the rows of a form.
constexpr qreal gap = 7;
constexpr qreal rowHeight = 30;
constexpr qreal firstLineDrop = 3;  // of a text area's first line below that of a text field
constexpr qreal lineGap = 4;
constexpr qreal stackedBelow = 348;
constexpr qreal stackedLabel = 20;

}  // namespace

CardRow::CardRow(const QString& label, QWidget* editor, QWidget* input, QWidget* parent)
    : QWidget(parent)
    , m_input(input)
    , m_line(new QHBoxLayout(this))
    , m_column(new QVBoxLayout)
    , m_label(new TwoLineLabel(TextRole::label, 13, this))
{
    describeInReadingOrder(staticMetaObject, QAccessible::Client);
    m_label->setText(label);
    m_label->setBuddy(input);
    if (input->accessibleName().isEmpty())
        input->setAccessibleName(label);
    m_line->setContentsMargins(0, 0, 0, 0);
    m_line->addWidget(m_label, 0, Qt::AlignTop);
    m_line->addLayout(m_column, 1);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->addWidget(editor);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    onRestyle(this, [this] { restyle(); });
}

void CardRow::addBelow(QWidget* widget)
{
    m_column->addWidget(widget);
}

void CardRow::setAtLabel(QWidget* button)
{
    button->setParent(this);
    m_atLabel = button;
    placeAtLabel();
}

void CardRow::placeAtLabel()
{
    if (!m_atLabel)
        return;
    const QSize size = m_atLabel->sizeHint();
    const int right = m_stacked ? width() : px(ItemCard::labelWidth);
    const int drop = m_label->contentsMargins().top();
    const int middle = drop + px(m_stacked ? stackedLabel : rowHeight) / 2;
    m_atLabel->setGeometry(mirrored(QRect(QPoint(right - size.width(), middle - size.height() / 2), size), this));
    m_atLabel->raise();
}

void CardRow::restyle()
{
    const bool isArea = qobject_cast<QBTextArea*>(m_input);
    const int drop = isArea && !m_stacked ? px(firstLineDrop) : 0;
    m_label->setContentsMargins(0, drop, 0, 0);
    m_label->setFixedHeight(px(m_stacked ? stackedLabel : rowHeight) + drop);
    m_label->setMinimumWidth(m_stacked ? 0 : px(ItemCard::labelWidth));
    m_label->setMaximumWidth(m_stacked ? QWIDGETSIZE_MAX : px(ItemCard::labelWidth));
    m_line->setSpacing(px(gap));
    m_column->setSpacing(px(lineGap));
    setStacked(width() < px(stackedBelow));
    placeAtLabel();
}

void CardRow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    setStacked(width() < px(stackedBelow));
    placeAtLabel();
}

void CardRow::setStacked(bool stacked)
{
    if (stacked == std::exchange(m_stacked, stacked))
        return;
    if (stacked) {
        m_line->removeWidget(m_label);
        m_column->insertWidget(0, m_label);
    } else {
        m_column->removeWidget(m_label);
        m_line->insertWidget(0, m_label, 0, Qt::AlignTop);
    }
    restyle();
}

}  // namespace Quorbel
