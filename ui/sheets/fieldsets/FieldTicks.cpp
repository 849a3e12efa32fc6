#include "ui/sheets/fieldsets/FieldTicks.h"

#include "core/language/Texts.h"
#include "core/schema/FieldSchema.h"
#include "core/text/Text.h"
#include "ui/controls/Labels.h"
#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QAccessible>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

enum Column { name, onScreen, wanted, columns };
constexpr int idRole = Qt::UserRole;

// Points.
constexpr qreal rowHeight = 30;
constexpr qreal boxSide = 16;
constexpr qreal side = 8;

class TickDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return { px(60), px(rowHeight) }; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        painter->setLayoutDirection(option.direction);
        const Theme& theme = Theme::of(option.widget);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const bool isHeading = !index.parent().isValid() && index.data(idRole).toString().isEmpty();
        const QRectF rect = option.rect;
        if (!isHeading && option.state.testFlag(QStyle::State_HasFocus))
            paintBox(*painter, rect.adjusted(1, 1, -1, -1), pxF(6), theme.derived.rowHover, QPen(theme.focus, 1.5));
        if (index.column() != Column::name) {
            paintTick(*painter, rect, index, theme);
        } else {
            painter->setFont(isHeading ? sectionFont() : sansFont(13));
            painter->setPen(isHeading ? theme.derived.label : theme.text);
            const QRectF text = rect.adjusted(pxF(side), 0, -pxF(side), 0);
            painter->drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, int(text.width())));
        }
        painter->restore();
    }

    // Anywhere in the cell.
    bool editorEvent(
        QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem&, const QModelIndex& index) override
    {
        const bool isClick =
            event->type() == QEvent::MouseButtonRelease && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
        const bool isKey = event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space;
        const auto flags = index.flags();
        if (!(isClick || isKey) || !(flags & Qt::ItemIsUserCheckable) || !(flags & Qt::ItemIsEnabled))
            return false;
        const bool isOn = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        return model->setData(index, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    }

private:
    static void paintTick(QPainter& painter, const QRectF& rect, const QModelIndex& index, const Theme& theme)
    {
        const QVariant state = index.data(Qt::CheckStateRole);
        if (!state.isValid())
            return;
        const bool isOn = state.toInt() == Qt::Checked;
        const qreal box = pxF(boxSide);
        const QRectF place(rect.center().x() - box / 2, rect.center().y() - box / 2, box, box);
        painter.setOpacity(index.flags() & Qt::ItemIsUserCheckable ? 1 : .5);
        paintBox(
            painter, place, pxF(4.5), isOn ? theme.accent : theme.field, QPen(isOn ? theme.accent : theme.muted, 1));
        if (isOn)
            Icon::paint(painter, place, u"checkmark"_s, box * 13 / 16, theme.accentText, 2.6);
    }
};

bool holds(const FieldSpec& field, const QString& needle)
{
    for (const QString& text : { Texts::shown(field.label), field.label, Texts::shown(field.addNote), field.addNote,
             field.namespaceHint, field.standard })
        if (text.contains(needle, Qt::CaseInsensitive))
            return true;
    return false;
}

}  // namespace

FieldTicks::FieldTicks(QWidget* parent)
    : QTreeWidget(parent)
{
    setItemDelegate(new TickDelegate(this));
    setAccessibleName(Texts::tr("Fields of the set"));
    setColumnCount(columns);
    setHeaderLabels({ Texts::tr("Field", "noun"), Texts::tr("On screen"), Texts::tr("Wanted") });
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setIndentation(0);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setAllColumnsShowFocus(false);
    setTabKeyNavigation(false);
    viewport()->setAutoFillBackground(false);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(1);
    OverlayScrollBar::attach(this);
    installFocusRing(this, { RingShape::tight, 7, {}, {} });
    connect(this, &QTreeWidget::itemChanged, this, &FieldTicks::take);
    fill();
    onRestyle(this, [this] { scheduleDelayedItemsLayout(); });
}

QSize FieldTicks::sizeHint() const
{
    return { px(360), px(300) };
}

void FieldTicks::resizeEvent(QResizeEvent* event)
{
    const int tick = px(FieldTicks::tickWidth);
    header()->resizeSection(Column::name, viewport()->width() - 2 * tick);
    header()->resizeSection(Column::onScreen, tick);
    header()->resizeSection(Column::wanted, tick);
    QTreeWidget::resizeEvent(event);
}

void FieldTicks::fill()
{
    m_isShowing = true;
    std::optional<FieldSection> section;
    for (const QString& id : FieldSetTexts::formOrder()) {
        const FieldSpec& field = *FieldSchema::spec(id);
        if (section != field.section) {
            section = field.section;
            auto* heading = new QTreeWidgetItem(this, { Texts::shown(rawValue(field.section)) });
            heading->setFlags(Qt::ItemIsEnabled);
            heading->setFirstColumnSpanned(true);
        }
        const QString label = Texts::shown(field.label);
        const QString note = Texts::shown(field.addNote);
        auto* item = new QTreeWidgetItem(this, { label });
        item->setData(Column::name, idRole, id);
        item->setToolTip(Column::name, note);
        item->setData(Column::name, Qt::AccessibleDescriptionRole, note);
        //: The name of a tick that puts the field %1 on screen.
        item->setData(Column::onScreen, Qt::AccessibleTextRole, Texts::tr("%1 on screen").arg(label));
        //: The name of a tick that says that the field %1 should be filled in.
        item->setData(Column::wanted, Qt::AccessibleTextRole, Texts::tr("%1 wanted").arg(label));
        for (const int column : { Column::onScreen, Column::wanted }) {
            item->setData(column, idRole, id);
            item->setCheckState(column, Qt::Unchecked);
        }
    }
    m_isShowing = false;
}

void FieldTicks::setTicked(const QStringList& fields, const QSet<QString>& wanted)
{
    m_isShowing = true;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = topLevelItem(i);
        const QString id = item->data(Column::name, idRole).toString();
        if (id.isEmpty())
            continue;
        item->setCheckState(Column::onScreen, fields.contains(id) ? Qt::Checked : Qt::Unchecked);
        item->setCheckState(Column::wanted, wanted.contains(id) ? Qt::Checked : Qt::Unchecked);
    }
    m_isShowing = false;
}

void FieldTicks::setFixed(bool fixed)
{
    if (std::exchange(m_isFixed, fixed) == fixed)
        return;
    m_isShowing = true;
    for (int i = 0; i < topLevelItemCount(); ++i)
        if (QTreeWidgetItem* item = topLevelItem(i); !item->data(Column::name, idRole).toString().isEmpty())
            item->setFlags(item->flags().setFlag(Qt::ItemIsUserCheckable, !fixed));
    m_isShowing = false;
}

// Headings stay where one of their fields does.
void FieldTicks::setNeedle(const QString& text)
{
    const QString needle = Text::trimmed(text);
    QTreeWidgetItem* heading = nullptr;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = topLevelItem(i);
        const FieldSpec* field = FieldSchema::spec(item->data(Column::name, idRole).toString());
        if (!field)
            heading = item;
        item->setHidden(!field || (!needle.isEmpty() && !holds(*field, needle)));
        if (heading && !item->isHidden())
            heading->setHidden(false);
    }
}

void FieldTicks::take(QTreeWidgetItem* item, int column)
{
    const QString id = item->data(Column::name, idRole).toString();
    if (m_isShowing || id.isEmpty())
        return;
    const auto isOn = [item](int which) { return item->checkState(which) == Qt::Checked; };
    m_isShowing = true;
    if (column == Column::wanted && isOn(Column::wanted))
        item->setCheckState(Column::onScreen, Qt::Checked);
    if (column == Column::onScreen && !isOn(Column::onScreen))
        item->setCheckState(Column::wanted, Qt::Unchecked);
    m_isShowing = false;
    if (QAccessible::isActive())
        tellTicks(*item);
    emit ticked(id, isOn(Column::onScreen), isOn(Column::wanted));
}

// To screen readers: Qt tells them that a cell has changed, not that it was ticked.
void FieldTicks::tellTicks(const QTreeWidgetItem& item)
{
    int row = 0;
    for (int i = 0; i < indexOfTopLevelItem(const_cast<QTreeWidgetItem*>(&item)); ++i)
        row += topLevelItem(i)->isHidden() ? 0 : 1;
    QAccessible::State changed;
    changed.checked = true;
    const QAccessibleTableInterface* table = QAccessible::queryAccessibleInterface(this)->tableInterface();
    for (const int column : { Column::onScreen, Column::wanted })
        if (QAccessibleInterface* cell = table->cellAt(row, column)) {
            QAccessibleStateChangeEvent event(cell, changed);
            QAccessible::updateAccessibility(&event);
        }
}

}  // namespace Quorbel
