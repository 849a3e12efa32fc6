#include "ui/controls/pickers/ChoiceList.h"

#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/PopupFrame.h"
#include "ui/controls/theme/Theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal padding = 5;
constexpr qreal rowHeight = 28;

// A row of a menu, with a check mark before the choice that holds now.
class ChoiceDelegate final : public QStyledItemDelegate {
public:
    ChoiceDelegate(const QWidget* list, int chosen)
        : m_list(list)
        , m_chosen(chosen)
    {
    }

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const override
    {
        const QString text = index.data().toString();
        return { QFontMetrics(sansFont(13)).horizontalAdvance(text) + px(28) + px(14), px(rowHeight) };
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        painter->setLayoutDirection(option.direction);
        const Theme& theme = Theme::of(m_list);
        const bool active = option.state.testFlag(QStyle::State_Selected);
        const QRectF row = OverlayScrollBar::rowBeside(option, index, ChoiceList::mostRows);
        const auto placed = [&](const QRectF& place) { return mirrored(place, row, option.direction); };
        if (active)
            paintBox(*painter, row, pxF(6), theme.sel, Qt::NoPen);
        const QColor ink = active ? theme.selText : theme.text;
        painter->setFont(sansFont(13));
        painter->setPen(ink);
        painter->drawText(placed(row.adjusted(pxF(28), 0, 0, 0)), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
            index.data().toString());
        if (index.row() == m_chosen)
            Icon::paint(*painter, placed(QRectF(row.left() + pxF(8), row.top(), pxF(14), row.height())), u"checkmark"_s,
                pxF(14), ink, 2.1);
    }

private:
    const QWidget* m_list;
    int m_chosen;
};

}  // namespace

ChoiceList::ChoiceList(const QStringList& titles, int current, QWidget* anchor)
    : QWidget(anchor, Qt::Popup)
    , m_anchor(anchor)
    , m_rows(new QListWidget(this))
    , m_chosen(current)
{
    PopupFrame::prepare(*this);
    setAttribute(Qt::WA_DeleteOnClose);
    m_rows->addItems(titles);
    m_rows->setItemDelegate(new ChoiceDelegate(this, current));
    m_rows->itemDelegate()->setParent(m_rows);
    m_rows->setAccessibleName(anchor->accessibleName());
    m_rows->setFrameShape(QFrame::NoFrame);
    m_rows->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_rows->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_rows->setUniformItemSizes(true);
    m_rows->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_rows->viewport()->setAutoFillBackground(false);
    m_rows->setMouseTracking(true);
    m_rows->installEventFilter(this);
    m_rows->viewport()->installEventFilter(this);
    OverlayScrollBar::attach(m_rows);
    connect(m_rows, &QListWidget::itemEntered, m_rows, [this](QListWidgetItem* item) { m_rows->setCurrentItem(item); });
    open();
}

void ChoiceList::open()
{
    const int shown = qMin(mostRows, m_rows->count());
    const int width = qMax(m_anchor->width(), m_rows->sizeHintForColumn(0) + 2 * px(padding));
    const QSize size(width, shown * px(rowHeight) + 2 * px(padding));
    const QRect anchor(m_anchor->mapToGlobal(QPoint()), m_anchor->size());
    setGeometry(PopupFrame::placed(anchor, size, m_anchor->screen()->availableGeometry()) + PopupFrame::room());
    m_rows->setGeometry(box().adjusted(px(padding), px(padding), -px(padding), -px(padding)));
    show();
    m_rows->setFocus(Qt::PopupFocusReason);
    m_rows->setCurrentRow(qMax(0, m_chosen));
    // About the middle, and no row cut at the ends.
    m_rows->verticalScrollBar()->setValue((m_rows->currentRow() - (shown - 1) / 2) * px(rowHeight));
}

QRect ChoiceList::box() const
{
    return rect() - PopupFrame::room();
}

void ChoiceList::pick(const QListWidgetItem* item)
{
    if (!item)
        return;
    const int row = m_rows->row(item);
    close();
    emit picked(row);
}

bool ChoiceList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_rows && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            pick(m_rows->currentItem());
            return true;
        case Qt::Key_Escape:
        case Qt::Key_Tab:
            close();
            return true;
        default:
            break;
        }
    }
    if (watched == m_rows->viewport() && event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::LeftButton)
            pick(m_rows->itemAt(mouse->position().toPoint()));
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void ChoiceList::mousePressEvent(QMouseEvent* event)
{
    const QPoint pos = event->position().toPoint();
    if (box().contains(pos))
        return;
    // The press that closes the list on its own button must not open it again.
    const QRect anchor(m_anchor->mapToGlobal(QPoint()), m_anchor->size());
    setAttribute(Qt::WA_NoMouseReplay, anchor.contains(event->globalPosition().toPoint()));
    close();
}

void ChoiceList::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    PopupFrame::shape(*this);
}

void ChoiceList::paintEvent(QPaintEvent*)
{
    DirectedPainter painter(this);
    PopupFrame::paint(painter, box(), Theme::of(this));
}

}  // namespace Quorbel
