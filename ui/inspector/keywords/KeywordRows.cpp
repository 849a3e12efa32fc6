#include "ui/inspector/keywords/KeywordRows.h"

#include "app/model/AppModel.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/inspector/keywords/HeldKeywords.h"
#include "ui/inspector/keywords/QuickStrip.h"
#include "ui/inspector/keywords/SubRow.h"

#include <QVBoxLayout>

namespace Quorbel {

namespace {
// Points.
constexpr qreal gap = 6;
constexpr qreal below = 4;
}  // namespace

KeywordRows::KeywordRows(AppModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_held(new HeldKeywords(model, this))
    , m_quick(new QuickStrip(model, this))
{
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_held->row());
    column->addWidget(m_quick->row());
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    onRestyle(this, [column] {
        column->setContentsMargins(0, 0, 0, px(below));
        column->setSpacing(px(gap));
    });
}

void KeywordRows::refresh()
{
    setVisible(m_model.isBatch());
    if (!m_model.isBatch())
        return;
    m_held->refresh();
    m_quick->refresh();
}

QList<QWidget*> KeywordRows::tabStops() const
{
    return m_held->tabStops() + m_quick->tabStops();
}

}  // namespace Quorbel
