#include "ui/inspector/iptc/FoldingSection.h"

#include "ui/controls/ReadingOrder.h"
#include "ui/controls/cards/EditedDot.h"
#include "ui/controls/cards/FoldingHeading.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"
#include "ui/inspector/FieldRow.h"

#include <QPainter>
#include <QVBoxLayout>

namespace Quorbel {

namespace {
// Points.
constexpr qreal belowHeading = 8;
constexpr qreal belowRows = 8;
constexpr qreal rowGap = 7;
}  // namespace

FoldingSection::FoldingSection(const QString& title, QWidget* parent)
    : QWidget(parent)
    , m_heading(new FoldingHeading(title, this))
    , m_column(new QVBoxLayout(this))
    , m_rows(*this)
{
    describeInReadingOrder(staticMetaObject, QAccessible::Client);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(0);
    m_column->addWidget(m_heading);
    m_column->addLayout(m_rows.layout());
    onRestyle(this, [this] { layOut(); });
}

void FoldingSection::setRows(const QList<FieldRow*>& rows)
{
    if (!m_rows.set(rows))
        return;
    layOut();
    update();
}

void FoldingSection::layOut()
{
    const bool isOpen = !rows().isEmpty();
    m_rows.layout()->setContentsMargins(0, isOpen ? px(belowHeading) : 0, 0, isOpen ? px(belowRows) : 0);
    m_rows.layout()->setSpacing(px(rowGap));
    for (FieldRow* row : rows())
        row->setContentsMargins(mirrored(QMargins(row->isWide() ? 0 : px(EditedDot::room), 0, 0, 0)));
}

void FoldingSection::paintEvent(QPaintEvent*)
{
    DirectedPainter painter(this);
    for (const FieldRow* row : rows())
        if (row->state().edited && !row->state().batch && row->hasLabel())
            EditedDot::paint(painter, this, row->y() + row->dotCenter());
}

}  // namespace Quorbel
