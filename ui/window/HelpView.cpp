#include "ui/window/HelpView.h"

#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/Labels.h"
#include "ui/controls/scrolling/ScrollArea.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/SymbolText.h"
#include "ui/controls/theme/TextLines.h"
#include "ui/controls/theme/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTextLayout>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr QSize smallestWindow{ 720, 480 };
constexpr qreal narrowestTopics = 200;
constexpr qreal usualTopics = 220;
constexpr qreal widestTopics = 260;
constexpr qreal widestText = 620;
constexpr qreal lineHeight = 20;
constexpr qreal sidePadding = 36;
constexpr qreal topicHeight = 34;
constexpr qreal topicRadius = 7;

// Paints one topic: its symbol and its title.
class TopicDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return { 0, px(topicHeight) }; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        painter->setLayoutDirection(option.direction);
        const Theme& theme = Theme::of(option.widget);
        const bool selected = option.state & QStyle::State_Selected;
        const auto topic = allCases<HelpTopic>().at(index.row());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        if (selected || option.state & QStyle::State_MouseOver) {
            painter->setBrush(selected ? theme.sel : theme.derived.hover);
            painter->drawRoundedRect(option.rect, pxF(topicRadius), pxF(topicRadius));
        }
        QRectF rest = QRectF(option.rect).adjusted(px(10), 0, -px(10), 0);
        const auto placed = [&](const QRectF& place) { return mirrored(place, QRectF(option.rect), option.direction); };
        Icon::paint(*painter, placed(QRectF(rest.topLeft(), QSizeF(px(18), rest.height()))), iconName(topic), pxF(18),
            selected ? theme.selText : theme.derived.label);
        rest.setLeft(rest.left() + px(18 + 10));
        painter->setFont(sansFont(13));
        painter->setPen(selected ? theme.selText : theme.text);
        painter->drawText(placed(rest), Qt::AlignVCenter | Qt::TextSingleLine, title(topic));
        painter->restore();
    }
};

// Of a list in which every title is whole, with what is beside the titles.
int widestTitle()
{
    const QFontMetricsF letters(sansFont(13));
    qreal widest = 0;
    for (const HelpTopic topic : allCases<HelpTopic>())
        widest = qMax(widest, letters.horizontalAdvance(title(topic)));
    return px(2 * (8 + 10) + 18 + 10 + 6) + int(widest);
}

// Wrapped text with 20 points from line to line, which QLabel cannot be told.
class Paragraph final : public QLabel {
public:
    explicit Paragraph(const QString& text)
        : QLabel(text)
    {
        setTextFormat(Qt::PlainText);
        QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
        onRestyle(this, [this] {
            setFont(sansFont(13));
            updateGeometry();
        });
    }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override
    {
        return forLines(width, [](const QTextLine&, int) {});
    }
    QSize sizeHint() const override { return { px(widestText), heightForWidth(px(widestText)) }; }
    QSize minimumSizeHint() const override { return { px(100), px(lineHeight) }; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        DirectedPainter painter(this);
        painter.setPen(Theme::of(this).text);
        forLines(width(), [&](const QTextLine& line, int y) {
            line.draw(&painter, QPointF(0, y + (pxF(lineHeight) - line.height()) / 2));
        });
    }

private:
    // Calls `use` for each line with its top; the height of all.
    int forLines(int width, const std::function<void(QTextLine&, int)>& use) const
    {
        int y = 0;
        forEachLine(text(), font(), width, QTextOption::WordWrap, [&](QTextLine& line) {
            use(line, y);
            y += px(lineHeight);
            return true;
        });
        return y;
    }
};

// A line of a bulleted list.
QWidget* bulletLine(const QString& text)
{
    class Bullet final : public QWidget {
    public:
        Bullet()
        {
            onRestyle(this, [this] { setFixedWidth(px(16)); });
        }

    protected:
        void paintEvent(QPaintEvent*) override
        {
            DirectedPainter painter(this);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(Theme::of(this).muted);
            painter.drawEllipse(mirrored(QRectF(pxF(3), pxF(8.5), pxF(4), pxF(4)), this));
        }
    };
    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(new Bullet);
    row->addWidget(new Paragraph(symbolText(text)), 1);
    return line;
}

void addBlock(QVBoxLayout* column, const HelpBlock& block)
{
    if (const auto* paragraph = std::get_if<HelpParagraph>(&block)) {
        column->addWidget(new Paragraph(symbolText(paragraph->text)));
        column->addSpacing(px(12));
        return;
    }
    for (const QString& item : std::get<HelpBullets>(block).items) {
        column->addWidget(bulletLine(item));
        column->addSpacing(px(5));
    }
    column->addSpacing(px(9));
}

QWidget* makePage(HelpTopic topic)
{
    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    row->setContentsMargins(px(sidePadding), px(30), px(sidePadding), px(24));
    auto* text = new QWidget;
    text->setMaximumWidth(px(widestText));
    auto* column = new QVBoxLayout(text);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(ThemedLabel::wrapped(title(topic), TextRole::text, 20, QFont::DemiBold));
    column->addSpacing(px(12));
    for (const HelpBlock& block : blocks(topic))
        addBlock(column, block);
    column->addStretch();
    row->addWidget(text, 1);
    row->addStretch();
    row->setStretch(0, 1'000);
    page->setAccessibleName(title(topic));
    return page;
}

}  // namespace

class TopicList final : public QListWidget {
public:
    explicit TopicList(QWidget* parent)
        : QListWidget(parent)
    {
        setFrameShape(NoFrame);
        setItemDelegate(new TopicDelegate(this));
        setMouseTracking(true);
        setAccessibleName(Texts::tr("Topics"));
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        viewport()->setAutoFillBackground(false);
        for (const HelpTopic topic : allCases<HelpTopic>())
            addItem(title(topic));
        onRestyle(this, [this] {
            setViewportMargins(px(8), px(10), px(8), px(10));
            scheduleDelayedItemsLayout();
        });
    }
};

// Takes Tab, so that arrows scroll it.
class HelpPage final : public ScrollArea {
    Q_OBJECT

public:
    explicit HelpPage(QWidget* parent)
        : ScrollArea(parent)
    {
        describeAs(staticMetaObject, QAccessible::Document);
    }
};

HelpView::HelpView(QWidget* parent)
    : SideWindow(Texts::tr("Quorbel Help"), parent)
    , m_topics(new TopicList(this))
    , m_page(new HelpPage(this))
{
    // They fill the window: the ring is drawn inside.
    for (QWidget* part : { static_cast<QWidget*>(m_topics), static_cast<QWidget*>(m_page) }) {
        const auto inside = [part] { return QRectF(part->rect()).adjusted(3, 3, -3, -3); };
        installFocusRing(part, { RingShape::tight, 6, {}, inside });
    }
    describeAs(staticMetaObject, QAccessible::Window);
    connect(m_topics, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            select(allCases<HelpTopic>().at(row));
    });
    onRestyle(this, [this] { setMinimumSize(leastWindow(smallestWindow)); });
    showTopic();
}

void HelpView::select(HelpTopic topic)
{
    if (topic == m_selection)
        return;
    m_selection = topic;
    showTopic();
}

void HelpView::showTopic()
{
    m_topics->setCurrentRow(static_cast<int>(allCases<HelpTopic>().indexOf(m_selection)));
    QWidget* page = makePage(m_selection);
    m_page->setContent(page);
    m_page->setAccessibleName(title(m_selection));
}

bool HelpView::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationFontChange) {
        showTopic();  // the page was made for the old size
        arrange();
    }
    return SideWindow::event(event);
}

void HelpView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void HelpView::arrange()
{
    // Titles of any language are to be read whole, as long as the page keeps most of the window.
    const int titles = qMin(widestTitle(), width() * 9 / 20);
    const int usual = qBound(px(narrowestTopics), qMax(px(usualTopics), width() / 5), px(widestTopics));
    const int topics = qMax(usual, titles);
    m_topics->setGeometry(mirrored(QRect(0, 0, topics, height()), this));
    m_page->setGeometry(mirrored(QRect(topics + 1, 0, width() - topics - 1, height()), this));
}

void HelpView::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.fillRect(rect(), theme.bg);
    painter.fillRect(m_topics->geometry(), theme.panel);
    painter.fillRect(mirrored(QRect(m_topics->width(), 0, 1, height()), this), theme.line);
}

}  // namespace Quorbel

#include "HelpView.moc"
