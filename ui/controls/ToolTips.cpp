#include "ui/controls/ToolTips.h"

#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/SymbolText.h"
#include "ui/controls/theme/Theme.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

namespace Quorbel {

namespace {

// Points.
constexpr qreal widestTip = 320;
constexpr qreal radius = 6;

constexpr const char* quietRest = "quietRest";

// One tooltip on screen, in the theme of the widget that it explains.
class Tip final : public QWidget {
public:
    Tip(QWidget* owner, const QString& text)
        : QWidget(owner, Qt::ToolTip | Qt::FramelessWindowHint)
        , m_column(new QVBoxLayout(this))
    {
        setAttribute(Qt::WA_TranslucentBackground);
        setAttribute(Qt::WA_ShowWithoutActivating);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        m_column->setContentsMargins(px(8), px(4), px(8), px(4));
        m_column->setSpacing(0);
        const qsizetype first = text.indexOf(u'\n');
        if (first >= 0 && owner->property(quietRest).toBool()) {
            addText(text.left(first), Theme::of(owner).selText);
            addText(text.mid(first + 1), Theme::of(owner).selSub);
        } else {
            addText(text, Theme::of(owner).selText);
        }
        adjustSize();
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        QWidget::resizeEvent(event);
        cutCorners(*this, pxF(radius));
    }

    void paintEvent(QPaintEvent*) override
    {
        DirectedPainter painter(this);
        paintCutBox(painter, rect(), pxF(radius), Theme::of(this).sel, Theme::of(this).sel);
    }

private:
    void addText(const QString& text, const QColor& color)
    {
        auto* label = new QLabel(text, this);
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        label->setFont(verbatimFont(11.5));
        QPalette colors;
        colors.setColor(QPalette::WindowText, color);
        label->setPalette(colors);
        const int widest = px(widestTip) - 2 * px(8);
        if (label->sizeHint().width() > widest) {
            label->setWordWrap(true);
            label->setFixedSize(widest, label->heightForWidth(widest));
        }
        m_column->addWidget(label);
    }

    QVBoxLayout* m_column;
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

void ToolTips::setRestQuiet(QWidget* widget)
{
    widget->setProperty(quietRest, true);
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
