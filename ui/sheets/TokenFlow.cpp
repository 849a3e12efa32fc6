#include "ui/sheets/TokenFlow.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/FlowLayout.h"
#include "ui/controls/theme/Metrics.h"

#include <QEvent>

namespace Quorbel {

namespace {
constexpr qreal chipGap = 6;  // points
}  // namespace

TokenFlow::TokenFlow(QWidget* parent)
    : QWidget(parent)
{
    auto* flow = new FlowLayout(px(chipGap), this);
    onRestyle(this, [this, flow] {
        flow->setSpacing(px(chipGap));
        fit();
    });
}

void TokenFlow::add(const QString& label, const QString& toolTip, const std::function<void()>& insert)
{
    auto* chip = new TokenChip(label);
    chip->setToolTip(toolTip);
    chip->setFocusPolicy(Qt::TabFocus);
    connect(chip, &QAbstractButton::clicked, this, insert);
    layout()->addWidget(chip);
}

bool TokenFlow::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest)  // chips have another size
        fit();
    return QWidget::event(event);
}

void TokenFlow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fit();
}

void TokenFlow::fit()
{
    setFixedHeight(layout()->heightForWidth(width()));
}

}  // namespace Quorbel
