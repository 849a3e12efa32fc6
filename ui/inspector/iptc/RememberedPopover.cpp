#include "ui/inspector/iptc/RememberedPopover.h"

#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/attached/MenuRow.h"
#include "ui/controls/scrolling/ScrollArea.h"
#include "ui/controls/theme/Metrics.h"

#include <QKeyEvent>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal padding = 5;
constexpr qreal crossSize = 22;
constexpr int mostRows = 8;

}  // namespace

RememberedPopover::RememberedPopover(const QString& name, QWidget* opener)
    : Popover(opener)
    , m_scroll(new ScrollArea(this))
    , m_content(new QWidget)
    , m_column(new QVBoxLayout(m_content))
{
    setAccessibleName(name);
    describeAs(staticMetaObject, QAccessible::List);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(0);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setContent(m_content);
}

void RememberedPopover::setRows(const QStringList& labels)
{
    int now = 0;
    for (int i = 0; i < int(m_rows.size()); ++i)
        if (m_rows.at(i)->hasFocus())
            now = i;
    // A row's own key or cross may be what took it away.
    while (QLayoutItem* line = m_column->takeAt(0)) {
        line->widget()->hide();
        line->widget()->deleteLater();
        delete line;
    }
    m_rows.clear();
    for (int i = 0; i < int(labels.size()); ++i)
        addRow(labels.at(i), i);
    if (!isVisible())
        return;
    if (labels.isEmpty()) {
        close();
        return;
    }
    place(true);
    goTo(qMin(now, int(labels.size()) - 1));
}

void RememberedPopover::addRow(const QString& label, int row)
{
    auto* line = new QWidget(m_content);
    auto* across = new QHBoxLayout(line);
    across->setContentsMargins(0, 0, 0, 0);
    across->setSpacing(px(2));
    auto* pick = new MenuRow(label, false, line);
    pick->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    //: %1: name of a contact or licensor.
    auto* cross = new QBIconButton(u"xmark"_s, Texts::tr("Forget %1").arg(label), line);
    cross->setSizes({ crossSize, crossSize }, 12, 0, 6);
    cross->setQuiet(true);
    across->addWidget(pick, 1);
    across->addWidget(cross);
    m_column->addWidget(line);
    line->show();
    m_rows.append(pick);
    pick->installEventFilter(this);
    connect(pick, &QAbstractButton::clicked, this, [this, row] {
        close();
        emit picked(row);
    });
    connect(cross, &QAbstractButton::clicked, this, [this, row] { emit forgotten(row); });
}

void RememberedPopover::goTo(int row)
{
    if (row < 0 || row >= m_rows.size())
        return;
    m_rows.at(row)->setFocus(Qt::OtherFocusReason);
    m_scroll->ensureWidgetVisible(m_rows.at(row), 0, 0);
}

int RememberedPopover::heightIn(int)
{
    const int row = m_rows.isEmpty() ? 0 : m_rows.constFirst()->sizeHint().height();
    return 2 * px(padding) + row * qMin(int(m_rows.size()), mostRows);
}

void RememberedPopover::arrange(const QRect& box)
{
    m_scroll->setGeometry(box.adjusted(px(padding), px(padding), -px(padding), -px(padding)));
}

void RememberedPopover::showEvent(QShowEvent* event)
{
    Popover::showEvent(event);
    goTo(0);
}

bool RememberedPopover::eventFilter(QObject* watched, QEvent* event)
{
    const int row = int(m_rows.indexOf(qobject_cast<MenuRow*>(watched)));
    if (row < 0 || event->type() != QEvent::KeyPress)
        return Popover::eventFilter(watched, event);
    const int count = int(m_rows.size());
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Down:
        goTo((row + 1) % count);
        return true;
    case Qt::Key_Up:
        goTo((row + count - 1) % count);
        return true;
    case Qt::Key_Delete:
        emit forgotten(row);
        return true;
    default:
        return Popover::eventFilter(watched, event);
    }
}

}  // namespace Quorbel
