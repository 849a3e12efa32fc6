#include "ui/inspector/keywords/SubRow.h"

#include "ui/controls/Labels.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <utility>

namespace Quorbel {

namespace {
// Points; those of FieldRow.
constexpr qreal gap = 7;
constexpr qreal tickSide = 16;
constexpr qreal labelWidth = 104;
constexpr qreal labelHeight = 28;
constexpr qreal stackedBelow = 370;
constexpr qreal stackedLabel = 20;
}  // namespace

SubRow::SubRow(QWidget* content, QWidget* parent)
    : QWidget(parent)
    , m_content(content)
    , m_line(new QHBoxLayout(this))
    , m_column(new QVBoxLayout)
    , m_label(new ThemedLabel({}, TextRole::label, 12))
{
    m_line->addWidget(m_label, 0, Qt::AlignTop);
    m_line->addLayout(m_column, 1);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(0);
    m_column->addWidget(content);
    m_column->addStretch();
    m_label->setElided(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    onRestyle(this, [this] { restyle(); });
}

void SubRow::setLabel(const QString& text)
{
    m_label->setText(text);
    m_content->setAccessibleName(text);
}

void SubRow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    restyle();
}

void SubRow::restyle()
{
    const bool stacked = width() < px(stackedBelow);
    if (stacked != std::exchange(m_stacked, stacked)) {
        if (stacked) {
            m_line->removeWidget(m_label);
            m_column->insertWidget(0, m_label);
        } else {
            m_column->removeWidget(m_label);
            m_line->insertWidget(0, m_label, 0, Qt::AlignTop);
        }
    }
    m_line->setContentsMargins(mirrored(QMargins(px(tickSide) + px(gap), 0, 0, 0)));
    m_line->setSpacing(px(gap));
    m_label->setFixedHeight(px(stacked ? stackedLabel : labelHeight));
    m_label->setMinimumWidth(stacked ? 0 : px(labelWidth));
    m_label->setMaximumWidth(stacked ? QWIDGETSIZE_MAX : px(labelWidth));
}

}  // namespace Quorbel
