#include "ui/window/ColumnRow.h"

#include "ui/controls/ResizeHandle.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"

#include <QEvent>

namespace Quorbel {

namespace {

// Points: what the preview keeps before the inspector gets more than its least width, and the inspector's greatest
// width beside it. Beyond that only the preview grows.
constexpr qreal previewShare = 375;
constexpr qreal greatestInspector = 520;

// The inspector's beside a shown preview, for a row `width` wide.
int inspectorWidth(int width, int sidebar, int handle)
{
    return qBound(px(Columns::minInspector), width - sidebar - handle - px(previewShare), px(greatestInspector));
}

}  // namespace

ColumnRow::ColumnRow(QWidget* sidebar, QWidget* inspector, QWidget* preview, double sidebarWidth, QWidget* parent)
    : QWidget(parent)
    , m_sidebar(sidebar)
    , m_handle(new ResizeHandle(qBound(Columns::minSidebar, sidebarWidth, Columns::maxSidebar), Columns::minSidebar,
          Columns::maxSidebar, Columns::defaultSidebar))
    , m_inspector(inspector)
    , m_preview(preview)
    , m_reveal(this, Duration::column, QEasingCurve::OutCubic, [this] { arrange(); })
{
    // In this order, which is also that of the Tab key.
    for (QWidget* column : { m_sidebar, static_cast<QWidget*>(m_handle), m_inspector, m_preview })
        column->setParent(this);
    m_preview->hide();
    connect(m_handle, &ResizeHandle::widthChanged, this, &ColumnRow::arrange);
    connect(m_handle, &ResizeHandle::widthSettled, this, &ColumnRow::sidebarWidthSettled);
    onRestyle(this, [this] { followWidth(); });
}

// As wide as the user made it; narrower where text is so large that the inspector would not have its least width, and
// where that is not enough either, both are too narrow by the same share.
int ColumnRow::sidebarWidth() const
{
    const int least = px(Columns::minSidebar);
    const int shared = width() - m_handle->sizeHint().width();
    const int free = shared - px(Columns::minInspector);
    const int most = free >= least ? free : shared * least / (least + px(Columns::minInspector));
    return qMax(0, qMin(px(m_handle->columnWidth()), most));
}

bool ColumnRow::previewShown() const
{
    return m_wanted && width() >= px(Columns::previewThreshold);
}

void ColumnRow::setPreviewWanted(bool wanted)
{
    m_wanted = wanted;
    if (previewShown() != m_wasShown)
        slidePreview();
}

void ColumnRow::slidePreview()
{
    m_wasShown = previewShown();
    emit previewShownChanged(m_wasShown);
    m_reveal.moveTo(m_wasShown ? 1 : 0);
}

void ColumnRow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    followWidth();
}

// A window that crosses the threshold, or whose text does, takes its new form at once.
void ColumnRow::followWidth()
{
    if (previewShown() != m_wasShown) {
        m_wasShown = previewShown();
        m_reveal.jumpTo(m_wasShown ? 1 : 0);
        emit previewShownChanged(m_wasShown);
    }
    arrange();
}

bool ColumnRow::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest)
        arrange();
    return QWidget::event(event);
}

void ColumnRow::arrange()
{
    const int handle = m_handle->sizeHint().width();
    const int sidebar = sidebarWidth();
    const int left = sidebar + handle;
    const int rest = width() - left;
    const int beside = inspectorWidth(width(), sidebar, handle);
    const int inspector = qRound(rest + (beside - rest) * m_reveal.value());
    const auto place = [this](QWidget* column, int left, int width) {
        column->setGeometry(mirrored(QRect(left, 0, width, height()), this));
    };
    place(m_sidebar, 0, sidebar);
    place(m_handle, sidebar, handle);
    place(m_inspector, left, inspector);
    place(m_preview, left + inspector, rest - beside);
    m_preview->setVisible(m_reveal.value() > 0);
}

}  // namespace Quorbel
