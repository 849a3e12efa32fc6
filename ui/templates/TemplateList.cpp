#include "ui/templates/TemplateList.h"

#include "app/model/templates/Templates.h"
#include "core/language/Texts.h"
#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"
#include "ui/templates/TemplateTexts.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <QStyledItemDelegate>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr int idRole = Qt::UserRole;
constexpr int digitRole = Qt::UserRole + 1;

// Points.
constexpr qreal rowHeight = 34;
constexpr qreal rowGap = 2;
constexpr qreal rowSide = 10;

class TemplateDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        return { px(100), px(rowHeight + rowGap) };
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        painter->setLayoutDirection(option.direction);
        const Theme& theme = Theme::of(option.widget);
        const bool isOn = option.state.testFlag(QStyle::State_Selected);
        const bool isHovered = option.state.testFlag(QStyle::State_MouseOver);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const QRectF row = QRectF(option.rect).adjusted(0, 0, 0, -pxF(rowGap));
        if (isOn || isHovered)
            paintBox(*painter, row, pxF(7), isOn ? theme.sel : theme.derived.rowHover, Qt::NoPen);
        const int digit = index.data(digitRole).toInt();
        QRectF text = row.adjusted(pxF(rowSide), 0, -pxF(rowSide), 0);
        const auto draw = [&](const QFont& font, const QColor& color, const QString& words, int align) {
            painter->setFont(font);
            painter->setPen(color);
            painter->drawText(mirrored(text, row, option.direction), align | Qt::AlignVCenter | Qt::TextSingleLine,
                QFontMetrics(font).elidedText(words, Qt::ElideRight, int(text.width())));
        };
        if (digit > 0) {
            draw(sansFont(11), isOn ? theme.selSub : theme.derived.label, QString::number(digit), Qt::AlignRight);
            text.setRight(text.right() - pxF(16));
        }
        draw(verbatimFont(13), isOn ? theme.selText : theme.text, index.data().toString(), Qt::AlignLeft);
        painter->restore();
    }
};

QStringList localPaths(const QMimeData* data)
{
    QStringList paths;
    for (const QUrl& url : data->urls())
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    return paths;
}

}  // namespace

TemplateList::TemplateList(Templates& templates, QWidget* parent)
    : QListWidget(parent)
    , m_templates(templates)
{
    setItemDelegate(new TemplateDelegate(this));
    setAccessibleName(Texts::tr("Templates"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setMouseTracking(true);
    setTabKeyNavigation(false);
    viewport()->setAutoFillBackground(false);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDropIndicatorShown(false);
    setDefaultDropAction(Qt::CopyAction);
    OverlayScrollBar::attach(this);
    installFocusRing(this, { RingShape::tight, 7, {}, {} });
    connect(&templates.store(), &TemplateStore::changed, this, &TemplateList::fill);
    connect(&templates, &Templates::currentChanged, this, &TemplateList::showCurrent);
    connect(this, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        if (item && !m_isFilling)
            m_templates.choose(item->data(idRole).toInt());
    });
    fill();
}

void TemplateList::fill()
{
    m_isFilling = true;
    const auto& all = m_templates.store().all();
    while (count() > all.size())
        delete takeItem(count() - 1);
    while (count() < all.size())
        addItem(new QListWidgetItem);
    for (int i = 0; i < count(); ++i) {
        const Template& value = all.at(i).value();
        item(i)->setText(value.name);
        item(i)->setToolTip(value.name);
        item(i)->setData(idRole, all.at(i).id);
        item(i)->setData(digitRole, value.digit);
        item(i)->setData(Qt::AccessibleTextRole,
            value.digit > 0 ? u"%1, %2"_s.arg(value.name, TemplateTexts::keys(value.digit)) : value.name);
    }
    m_isFilling = false;
    showCurrent();
}

void TemplateList::showCurrent()
{
    m_isFilling = true;
    for (int i = 0; i < count(); ++i)
        if (item(i)->data(idRole).toInt() == m_templates.current())
            setCurrentRow(i);
    m_isFilling = false;
}

void TemplateList::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete && currentItem())
        m_templates.store().remove(currentItem()->data(idRole).toInt());
    else
        QListWidget::keyPressEvent(event);
}

QStringList TemplateList::mimeTypes() const
{
    return { u"text/uri-list"_s };
}

// A template that is dragged out is its file.
QMimeData* TemplateList::mimeData(const QList<QListWidgetItem*>& items) const
{
    QList<QUrl> urls;
    for (const QListWidgetItem* item : items)
        if (const QString path = m_templates.store().fileOf(item->data(idRole).toInt()); !path.isEmpty())
            urls.append(QUrl::fromLocalFile(path));
    auto* data = new QMimeData;
    data->setUrls(urls);
    return data;
}

void TemplateList::dragEnterEvent(QDragEnterEvent* event)
{
    event->setAccepted(event->source() != this && !localPaths(event->mimeData()).isEmpty());
}

void TemplateList::dragMoveEvent(QDragMoveEvent* event)
{
    event->setAccepted(event->source() != this && !localPaths(event->mimeData()).isEmpty());
}

void TemplateList::dropEvent(QDropEvent* event)
{
    m_templates.store().import(localPaths(event->mimeData()));
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

}  // namespace Quorbel
