#include "ui/sheets/ShortcutsSheet.h"

#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/scrolling/ScrollArea.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/sheets/SheetParts.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal widthOfAll = 820;
constexpr qreal heightOfKeys = 420;
constexpr qreal leastHeightOfKeys = 160;
constexpr qreal rowHeight = 26;
constexpr qreal columnGap = 20;
constexpr qreal oneColumnBelow = 760;
constexpr qreal groupGap = 18;
constexpr qreal keyGap = 12;

// What a key does, and the key at the right; one thing to a screen reader.
class ShortcutRow final : public QWidget {
    Q_OBJECT

public:
    explicit ShortcutRow(const Shortcut& shortcut)
        : m_does(shortcut.does)
        , m_keys(shortcut.shownKeys())
        , m_english(shortcut.english)
    {
        describeAs(staticMetaObject, QAccessible::StaticText);
        //: %1 is what a key does, %2 the key.
        setAccessibleName(Texts::tr("%1: %2").arg(m_does, m_keys));
        setToolTip(m_does);
        onRestyle(this, [this] { setFixedHeight(px(rowHeight)); });
    }
    bool fits(const QStringList& words) const
    {
        const QString text = m_does + u' ' + m_keys + u' ' + m_english;
        return std::all_of(words.cbegin(), words.cend(),
            [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = Theme::of(this);
        DirectedPainter painter(this);
        painter.setFont(sansFont(12, QFont::Medium));
        painter.setPen(theme.derived.label);
        painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, keptInOrder(m_keys));
        const int room = width() - painter.fontMetrics().horizontalAdvance(m_keys) - px(keyGap);
        painter.setFont(sansFont(13));
        painter.setPen(theme.text);
        painter.drawText(
            rect(), Qt::AlignLeft | Qt::AlignVCenter, painter.fontMetrics().elidedText(m_does, Qt::ElideRight, room));
    }

private:
    QString m_does;
    QString m_keys;
    QString m_english;
};

// As high as is good to read; lower in a low window.
class KeysArea final : public ScrollArea {
public:
    QSize sizeHint() const override { return { px(widthOfAll), px(heightOfKeys) }; }
    QSize minimumSizeHint() const override { return { 0, px(leastHeightOfKeys) }; }
};

// Kept away from the group above it.
QWidget* titleOf(const ShortcutGroup& group, bool isFirst)
{
    auto* holder = new QWidget;
    auto* line = new QVBoxLayout(holder);
    auto* header = new SectionHeader(group.title.toUpper());
    header->setAccessibleName(group.title);
    line->addWidget(header);
    onRestyle(holder, [line, isFirst] { line->setContentsMargins(0, isFirst ? 0 : px(groupGap), 0, 0); });
    return holder;
}

}  // namespace

ShortcutsSheet::ShortcutsSheet(QList<ShortcutGroup> groups, QWidget* parent)
    : SheetBody(parent)
    , m_groups(std::move(groups))
    , m_query(new QBTextField)
    , m_scroll(new KeysArea)
    , m_none(new ThemedLabel(Texts::tr("No such shortcut."), TextRole::label, 13))
{
    m_query->setPlaceholder(Texts::tr("Search shortcuts…"));
    m_query->setAccessibleName(Texts::tr("Search shortcuts"));
    m_query->setLeadingIcon(u"magnifyingglass"_s);
    m_query->installEventFilter(this);
    connect(m_query, &QLineEdit::textChanged, this, &ShortcutsSheet::find);
    build();
    find();
}

void ShortcutsSheet::build()
{
    auto* content = new QWidget;
    auto* line = new QHBoxLayout(content);
    m_columns = line;
    const auto lengthOf = [](const ShortcutGroup& group) { return group.rows.size() + 2; };
    qsizetype left = 0;
    for (const ShortcutGroup& group : std::as_const(m_groups))
        left += lengthOf(group);
    // The first column takes groups until it has half of all.
    QVBoxLayout* column = nullptr;
    qsizetype length = 0;
    for (const ShortcutGroup& group : std::as_const(m_groups)) {
        if (!column || (line->count() == 1 && 2 * length >= left)) {
            if (column)
                column->addStretch();
            column = new QVBoxLayout;
            column->setSpacing(0);
            line->addLayout(column, 1);
        }
        length += lengthOf(group);
        m_titles.append(titleOf(group, column->count() == 0));
        column->addWidget(m_titles.last());
        m_rows.append(QList<QWidget*>());
        for (const Shortcut& shortcut : group.rows) {
            m_rows.last().append(new ShortcutRow(shortcut));
            column->addWidget(m_rows.last().last());
        }
    }
    if (column)
        column->addStretch();
    m_scroll->setContent(content);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setAccessibleName(Texts::tr("Keyboard shortcuts"));
    auto* done = new QBButton(Texts::tr("Done"), QBButtonKind::primary);
    connect(done, &QAbstractButton::clicked, this, &ShortcutsSheet::closed);
    auto* whole = new QVBoxLayout(this);
    whole->addWidget(m_query);
    whole->addWidget(m_none);
    whole->addWidget(m_scroll, 1);
    QHBoxLayout* buttons = sheetButtonRow(this, { done });
    whole->addLayout(buttons);
    frameSheet(this, whole, widthOfAll);
    onRestyle(this, [this, whole, buttons] {
        fitColumns();
        m_columns->setContentsMargins(mirrored(QMargins(0, 0, OverlayScrollBar::room(), 0)));
        whole->setSpacing(px(14));
        buttons->setContentsMargins(0, px(8), 0, 0);
        m_scroll->setMinimumHeight(px(leastHeightOfKeys));
        m_scroll->setMaximumHeight(px(heightOfKeys));
    });
}

// One below the other where large text leaves no room for two.
void ShortcutsSheet::fitColumns()
{
    const bool isOne = width() < px(oneColumnBelow);
    m_columns->setDirection(isOne ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_columns->setSpacing(px(isOne ? groupGap : columnGap));
}

void ShortcutsSheet::resizeEvent(QResizeEvent* event)
{
    SheetBody::resizeEvent(event);
    fitColumns();
}

// What is found is told to those who do not see it, while it is not too much to hear.
void ShortcutsSheet::find()
{
    constexpr qsizetype mostSpoken = 5;
    const QStringList words = m_query->text().split(u' ', Qt::SkipEmptyParts);
    QStringList found;
    for (qsizetype i = 0; i < m_groups.size(); ++i) {
        const bool isWhole = !words.isEmpty() && std::all_of(words.cbegin(), words.cend(), [&](const QString& word) {
            return (m_groups.at(i).title + u' ' + m_groups.at(i).english).contains(word, Qt::CaseInsensitive);
        });
        bool any = false;
        for (QWidget* row : std::as_const(m_rows.at(i))) {
            const bool isFound = isWhole || static_cast<ShortcutRow*>(row)->fits(words);
            row->setVisible(isFound);
            any = any || isFound;
            if (isFound)
                found.append(row->accessibleName());
        }
        m_titles.at(i)->setVisible(any);
    }
    m_none->setVisible(found.isEmpty());
    m_scroll->setVisible(!found.isEmpty());
    const QString told = found.isEmpty() ? m_none->text()
        : words.isEmpty()                ? QString()
        : found.size() > mostSpoken      ? Texts::tr("%n shortcut(s)", nullptr, found.size())
                                         : found.join(u"; "_s);
    m_query->setAccessibleDescription(told);
}

QString ShortcutsSheet::title() const
{
    return Texts::tr("Keyboard Shortcuts");
}

QWidget* ShortcutsSheet::initialFocus()
{
    return m_query;
}

// The keys scroll while one may type.
bool ShortcutsSheet::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_query && event->type() == QEvent::KeyPress) {
        QScrollBar* bar = m_scroll->verticalScrollBar();
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Down:
            bar->setValue(bar->value() + px(rowHeight));
            return true;
        case Qt::Key_Up:
            bar->setValue(bar->value() - px(rowHeight));
            return true;
        case Qt::Key_PageDown:
            bar->setValue(bar->value() + bar->pageStep());
            return true;
        case Qt::Key_PageUp:
            bar->setValue(bar->value() - bar->pageStep());
            return true;
        default:
            break;
        }
    }
    return SheetBody::eventFilter(watched, event);
}

}  // namespace Quorbel

#include "ShortcutsSheet.moc"
