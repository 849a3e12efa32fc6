#include "ui/sheets/renaming/RenameList.h"

#include "core/language/Texts.h"
#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"
#include "ui/sheets/renaming/RenameRowDelegate.h"

#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal listHeight = 280;
constexpr qreal leastHeight = 98;
constexpr qreal radius = 7;

QString spoken(const RenameRow& row)
{
    //: %1 is the name of a file, %2 the one that it will get.
    QStringList parts{ row.isUnchanged() ? Texts::tr("%1 keeps its name").arg(row.oldName)
                                         : Texts::tr("%1 to %2").arg(row.oldName, row.newName) };
    for (const QString& label : row.missing)
        parts.append(RenameRowDelegate::missingText(label));
    if (const QString words = row.words(); !words.isEmpty())
        parts.append(words);
    return parts.join(u", "_s);
}

}  // namespace

class RenameRows final : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    void setPlan(const std::shared_ptr<const RenamePlan>& plan)
    {
        const qsizetype before = m_plan ? m_plan->rows.size() : 0;
        const qsizetype now = plan ? plan->rows.size() : 0;
        if (before != now)
            beginResetModel();
        m_plan = plan;
        if (before != now)
            endResetModel();
        else if (now > 0)
            emit dataChanged(index(0), index(int(now) - 1));
    }
    const RenameRow* at(int row) const
    {
        return m_plan && row >= 0 && row < int(m_plan->rows.size()) ? &m_plan->rows.at(row) : nullptr;
    }
    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() || !m_plan ? 0 : int(m_plan->rows.size());
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        const RenameRow* row = at(index.row());
        if (!row)
            return {};
        if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
            return spoken(*row);
        if (role == Qt::ToolTipRole)
            return row->words().isEmpty() ? u"%1\n%2"_s.arg(row->oldName, row->newName)
                                          : u"%1\n%2\n%3"_s.arg(row->oldName, row->newName, row->words());
        return {};
    }

private:
    std::shared_ptr<const RenamePlan> m_plan;
};

RenameList::RenameList(QWidget* parent)
    : QListView(parent)
    , m_rows(new RenameRows(this))
{
    setModel(m_rows);
    setItemDelegate(new RenameRowDelegate([this](int row) { return m_rows->at(row); }, this));
    setUniformItemSizes(true);
    setSelectionMode(NoSelection);
    setEditTriggers(NoEditTriggers);
    setFrameShape(NoFrame);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName(Texts::tr("New names"));
    OverlayScrollBar::attach(this);
    onRestyle(this, [this] {
        // In a low window, or with large type, the list gives way.
        setMinimumHeight(px(leastHeight));
        setMaximumHeight(px(listHeight));
        QPalette colors = paletteFor(Theme::of(this));
        colors.setColor(QPalette::Base, Qt::transparent);
        setPalette(colors);
        viewport()->setAutoFillBackground(false);
        setViewportMargins(1, 1, 1, 1);
        layOutRows();
    });
}

void RenameList::setPlan(const std::shared_ptr<const RenamePlan>& plan)
{
    m_rows->setPlan(plan);
    if (!currentIndex().isValid() && m_rows->rowCount() > 0)
        setCurrentIndex(m_rows->index(0));
    viewport()->update();
}

bool RenameList::goToNextMarked()
{
    const int count = m_rows->rowCount();
    const int from = currentIndex().isValid() ? currentIndex().row() : -1;
    for (int step = 1; step <= count; ++step) {
        const int row = (from + step) % count;
        if (const RenameRow* at = m_rows->at(row); !at || !at->isMarked())
            continue;
        setCurrentIndex(m_rows->index(row));
        scrollTo(m_rows->index(row), PositionAtCenter);
        return true;
    }
    return false;
}

// A narrow list has higher rows.
void RenameList::layOutRows()
{
    verticalScrollBar()->setSingleStep(RenameRowDelegate::rowHeight(viewport()->width()));
    scheduleDelayedItemsLayout();
}

void RenameList::resizeEvent(QResizeEvent* event)
{
    QListView::resizeEvent(event);
    if (event->oldSize().width() != event->size().width())
        layOutRows();
}

QSize RenameList::sizeHint() const
{
    return { px(300), px(listHeight) };
}

QSize RenameList::minimumSizeHint() const
{
    return { px(200), px(leastHeight) };
}

void RenameList::paintEvent(QPaintEvent* event)
{
    const Theme& theme = Theme::of(this);
    {
        DirectedPainter painter(viewport());
        painter.fillRect(viewport()->rect(), theme.field);
    }
    QListView::paintEvent(event);
    DirectedPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme.fieldLine, 1));
    painter.drawRoundedRect(QRectF(viewport()->rect()).adjusted(.5, .5, -.5, -.5), pxF(radius), pxF(radius));
}

}  // namespace Quorbel
