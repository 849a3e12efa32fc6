#include "ui/controls/ThemedMenu.h"

#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/PopupFrame.h"
#include "ui/controls/theme/Theme.h"

#include <QCoreApplication>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* headerProperty = "quorbelHeader";

// Sizes only: QMenu asks its style how high a row is, and a style sheet is the way to answer without a style of our
// own. Every colour and stroke is drawn by ThemedMenu::paintEvent().
QString rowSizes()
{
    return u"QMenu { border: 0; background: transparent; padding: %1px; }"
           "QMenu::item { height: %2px; padding: 0px %3px 0px %4px; border: 0; background: transparent; }"
           "QMenu::separator { height: %5px; background: transparent; }"
           "QMenu::indicator { width: 0px; height: 0px; }"
           "QMenu::scroller { height: %6px; }"_s.arg(px(5))
               .arg(px(28))
               .arg(px(14))
               .arg(px(28))
               .arg(px(11))
               .arg(px(16));
}

}  // namespace

ThemedMenu::ThemedMenu(QWidget* parent)
    : ThemedMenu(QString(), parent)
{
}

ThemedMenu::ThemedMenu(const QString& title, QWidget* parent)
    : QMenu(title, parent)
{
    PopupFrame::prepare(*this);
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &ThemedMenu::makeRoom);
    onRestyle(this, [this] { setUp(); });
}

void ThemedMenu::setUp()
{
    setFont(verbatimFont(13));  // recent photos are among the items
    // Setting a sheet polishes the menu again, which restyles it again.
    const QString sizes = rowSizes();
    if (styleSheet() != sizes)
        setStyleSheet(sizes);
}

// For the shadow, around the rows.
void ThemedMenu::makeRoom()
{
    const QMargins room = PopupFrame::room();
    if (room == contentsMargins())
        return;
    setContentsMargins(room);
    // QMenu lays its rows out again when its style changed, and at no other word.
    QEvent changed(QEvent::StyleChange);
    QMenu::changeEvent(&changed);
}

QAction* ThemedMenu::addHeader(const QString& title)
{
    QAction* header = addAction(title);
    header->setEnabled(false);
    header->setProperty(headerProperty, true);
    return header;
}

ThemedMenu* ThemedMenu::addThemedMenu(const QString& title)
{
    auto* menu = new ThemedMenu(title, this);
    addMenu(menu);
    return menu;
}

QAction* ThemedMenu::addCommand(const QString& text, const QList<QKeySequence>& keys, const std::function<void()>& run)
{
    QAction* action = addAction(text);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, [run] { run(); });
    return action;
}

QString ThemedMenu::literal(QString text)
{
    return text.replace(u'&', u"&&"_s);
}

void ThemedMenu::popUpUnder(const QWidget* anchor, Qt::Alignment edge, bool once)
{
    setAttribute(Qt::WA_DeleteOnClose, once);
    ensurePolished();
    makeRoom();
    const QSize size = sizeHint().shrunkBy(contentsMargins());
    const QRect under(anchor->mapToGlobal(QPoint()), anchor->size());
    m_place = PopupFrame::placed(under, size, anchor->screen()->availableGeometry(), edge.testFlag(Qt::AlignRight));
    popup(m_place->topLeft());
}

// QMenu has put the whole window where the box belongs, or has turned it over at an edge of the screen.
QRect ThemedMenu::wantedBox() const
{
    if (m_place)
        return *m_place;
    const QMargins room = contentsMargins();
    const QRect window = geometry();
    bool isLeft = false;
    bool isAbove = false;
    if (const auto* parent = qobject_cast<const ThemedMenu*>(parentWidget())) {
        isLeft = window.center().x() < parent->geometry().center().x();
    } else if (!qobject_cast<const QMenuBar*>(parentWidget())) {
        isLeft = window.right() <= QCursor::pos().x();
        isAbove = window.bottom() <= QCursor::pos().y();
    }
    QRect box = (window - room).translated(isLeft ? room.right() : -room.left(), isAbove ? room.bottom() : -room.top());
    const QRect screen = this->screen()->availableGeometry();
    box.moveLeft(qMax(screen.left(), qMin(box.left(), screen.right() + 1 - box.width())));
    box.moveTop(qMax(screen.top(), qMin(box.top(), screen.bottom() + 1 - box.height())));
    return box;
}

void ThemedMenu::showEvent(QShowEvent* event)
{
    QMenu::showEvent(event);
    if (!contentsMargins().isNull())
        move((wantedBox() + contentsMargins()).topLeft());
    m_place.reset();
}

bool ThemedMenu::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        const QPoint pos = mouse->position().toPoint();
        if (rect().contains(pos) && !box().contains(pos))
            return passOn(mouse);
        break;
    }
    default:
        break;
    }
    return QMenu::event(event);
}

// The mouse on the shadow: it means the menu or the bar that lies below, or else the world outside of the menus.
bool ThemedMenu::passOn(QMouseEvent* event)
{
    const QPointF global = event->globalPosition();
    const auto sendTo = [&](QWidget* target, QPointF pos) {
        QMouseEvent copy(event->type(), pos, global, event->button(), event->buttons(), event->modifiers());
        return QCoreApplication::sendEvent(target, &copy);
    };
    for (QWidget* below = parentWidget(); below; below = below->parentWidget()) {
        if (!qobject_cast<ThemedMenu*>(below) && !qobject_cast<QMenuBar*>(below))
            break;
        const QPointF pos = below->mapFromGlobal(global);
        if (below->rect().contains(pos.toPoint()))
            return sendTo(below, pos);
    }
    return sendTo(this, QPointF(-1, -1));
}

void ThemedMenu::paintEvent(QPaintEvent* event)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    PopupFrame::paint(painter, box(), theme);
    painter.setClipRect(box().adjusted(0, px(5), 0, -px(5)));
    for (const QAction* action : actions()) {
        const QRect row = actionGeometry(const_cast<QAction*>(action));
        if (action->isVisible() && event->rect().intersects(row))
            paintItem(painter, action, row);
    }
}

void ThemedMenu::resizeEvent(QResizeEvent* event)
{
    QMenu::resizeEvent(event);
    PopupFrame::shape(*this);
}

void ThemedMenu::paintItem(QPainter& painter, const QAction* action, const QRect& row)
{
    const Theme& theme = Theme::of(this);
    if (action->isSeparator()) {
        painter.fillRect(QRectF(row.left() + pxF(10), row.center().y(), row.width() - pxF(20), 1), theme.line);
        return;
    }
    const bool header = action->property(headerProperty).toBool();
    const bool active = action == activeAction() && action->isEnabled();
    painter.setOpacity(action->isEnabled() || header ? 1 : HighContrast::disabledOpacity(theme));
    if (active)
        paintBox(painter, row, pxF(6), theme.sel, Qt::NoPen);
    const QColor ink = active ? theme.selText : theme.text;
    painter.setFont(header ? sansFont(11, QFont::DemiBold) : font());
    painter.setPen(header ? theme.muted : ink);
    const auto placed = [&](const QRectF& place) { return mirrored(place, QRectF(row), layoutDirection()); };
    const QRectF box = placed(QRectF(row).adjusted(pxF(28), 0, -pxF(14), 0));
    painter.drawText(box, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine | Qt::TextShowMnemonic, action->text());
    if (!action->shortcut().isEmpty()) {
        painter.setPen(active ? theme.selSub : theme.muted);
        painter.drawText(box, Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine,
            action->shortcut().toString(QKeySequence::NativeText));
    }
    const QRectF mark = placed(QRectF(row.left() + pxF(8), row.top(), pxF(14), row.height()));
    if (action->isCheckable() && action->isChecked())
        Icon::paint(painter, mark, u"checkmark"_s, pxF(14), ink, 2.1);
    if (action->menu()) {
        const QRectF arrow = placed(QRectF(row.right() - pxF(18), row.top(), pxF(12), row.height()));
        Icon::paint(painter, arrow, u"chevron.right"_s, pxF(12), ink, 2.1);
    }
    painter.setOpacity(1);
}

}  // namespace Quorbel
