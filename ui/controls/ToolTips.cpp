#include "ui/controls/ToolTips.h"

#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/SymbolText.h"
#include "ui/controls/theme/Theme.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>

namespace Quorbel {

namespace {

// Points.
constexpr qreal widestTip = 320;
constexpr qreal radius = 6;

// One tooltip on screen, in the theme of the widget that it explains.
class Tip final : public QLabel {
public:
    Tip(QWidget* owner, const QString& text)
        : QLabel(text, owner, Qt::ToolTip | Qt::FramelessWindowHint)
    {
        setAttribute(Qt::WA_TranslucentBackground);
        setAttribute(Qt::WA_ShowWithoutActivating);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setTextFormat(Qt::PlainText);
        setFont(verbatimFont(11.5));
        QPalette colors;
        colors.setColor(QPalette::WindowText, Theme::of(owner).selText);
        setPalette(colors);
        setContentsMargins(px(8), px(4), px(8), px(4));
        if (sizeHint().width() > px(widestTip)) {
            setWordWrap(true);
            setFixedWidth(px(widestTip));
        }
        adjustSize();
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QLabel::resizeEvent(event);
        cutCorners(*this, pxF(radius));
    }

    void paintEvent(QPaintEvent* event) override
    {
        QPainter painter(this);
        paintCutBox(painter, rect(), pxF(radius), Theme::of(this).sel, Theme::of(this).sel);
        painter.end();
        QLabel::paintEvent(event);
    }
};

// A widget's own, or that of the row of a list that lies there.
QString textAt(const QWidget& widget, QPoint pos)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(widget.parentWidget());
    if (view && view->viewport() == &widget)
        return view->indexAt(pos).data(Qt::ToolTipRole).toString();
    return widget.toolTip();
}

}  // namespace

ToolTips::ToolTips(QObject* parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

ToolTips::~ToolTips()
{
    hide();
}

bool ToolTips::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ToolTip: {
        auto* widget = qobject_cast<QWidget*>(watched);
        const auto* help = static_cast<QHelpEvent*>(event);
        const QString text = widget ? textAt(*widget, help->pos()) : QString();
        if (text.isEmpty())
            break;
        show(widget, symbolText(text), help->globalPos());
        return true;
    }
    case QEvent::Leave:
    case QEvent::WindowDeactivate:
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
    case QEvent::Wheel:
        hide();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ToolTips::show(QWidget* widget, const QString& text, const QPoint& globalPos)
{
    hide();
    m_tip = new Tip(widget, text);
    const QRect screen = widget->screen()->availableGeometry();
    QPoint pos = globalPos + QPoint(0, px(18));
    if (pos.y() + m_tip->height() > screen.bottom())
        pos.setY(globalPos.y() - m_tip->height() - px(6));
    pos.setX(qBound(screen.left(), pos.x(), screen.right() - m_tip->width()));
    m_tip->move(pos);
    m_tip->show();
}

void ToolTips::hide()
{
    if (!m_tip)
        return;
    m_tip->hide();
    m_tip->deleteLater();
    m_tip.clear();
}

}  // namespace Quorbel
