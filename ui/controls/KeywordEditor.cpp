#include "ui/controls/KeywordEditor.h"

#include "ui/controls/Accessibility.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FlowLayout.h"
#include "ui/controls/HoverFade.h"
#include "ui/controls/SuggestionList.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {
constexpr qreal chipTextSize = 12;  // points
constexpr qreal entryWidth = 110;  // points, at least
constexpr int mostCompletions = 8;
}  // namespace

// One keyword: a capsule in a 28-point cell, with a cross.
class KeywordChip final : public QWidget {
    Q_OBJECT

public:
    explicit KeywordChip(KeywordEditor* editor)
        : QWidget(editor)
        , m_cross(new QBIconButton(u"xmark"_s, QString(), this))
    {
        describeAs(staticMetaObject, QAccessible::ListItem);
        setFocusPolicy(Qt::ClickFocus);
        m_cross->setSizes({ 16, 16 }, 9, 2.6, 8);
        m_cross->setQuiet(true);
        m_cross->setFocusPolicy(Qt::NoFocus);
        connect(m_cross, &QAbstractButton::clicked, this, &KeywordChip::crossed);
        onRestyle(this, [this] {
            setFont(verbatimFont(chipTextSize));
            updateGeometry();
        });
    }

    const QString& keyword() const { return m_keyword; }

    void setKeyword(const QString& keyword, bool amber)
    {
        m_amber = amber;
        m_cross->setAmber(amber);
        if (keyword != m_keyword) {
            m_keyword = keyword;
            setAccessibleName(keyword);
            m_cross->setName(u"Remove %1"_s.arg(keyword));
            updateGeometry();
        }
        update();
    }

    QSize sizeHint() const override
    {
        const int text = fontMetrics().horizontalAdvance(m_keyword);
        return { text + px(9) + px(3) + px(16) + px(3) + 4, px(28) };
    }

signals:
    void crossed();

protected:
    void resizeEvent(QResizeEvent*) override
    {
        const int side = px(16);
        m_cross->setGeometry(width() - side - px(3) - 2, (height() - side) / 2, side, side);
        const bool fits = width() >= QWidget::sizeHint().width() && width() >= sizeHint().width();
        setToolTip(fits ? QString() : m_keyword);
    }

    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = Theme::of(this);
        QPainter painter(this);
        painter.setOpacity(isEnabled() ? 1 : .42);
        const QRectF capsule = QRectF(1, (height() - pxF(22)) / 2, width() - 2, pxF(22));
        const QColor line = m_amber ? theme.amberLine : theme.derived.chipLine;
        paintBox(painter, capsule, pxF(11), m_amber ? theme.amberBg : theme.chip, QPen(line, 1));
        if (hasFocus())
            paintBox(painter, capsule, pxF(11), Qt::transparent, QPen(theme.derived.focusStrong, 2));
        painter.setPen(theme.text);
        const QRect text(px(9) + 2, 0, m_cross->x() - px(9) - 2 - px(2), height());
        painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
            fontMetrics().elidedText(m_keyword, Qt::ElideRight, text.width()));
    }

    void focusInEvent(QFocusEvent*) override { update(); }
    void focusOutEvent(QFocusEvent*) override { update(); }

private:
    QString m_keyword;
    QBIconButton* m_cross;
    bool m_amber = false;
};

// The field behind the chips: hands a paste of several keywords over as several.
class KeywordEntry final : public QBTextField {
    Q_OBJECT

public:
    explicit KeywordEntry(QWidget* parent)
        : QBTextField(parent)
    {
        setBare(true);
    }

    QSize sizeHint() const override { return { px(entryWidth), px(28) }; }
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void pastedSeveral(const QStringList& keywords);

protected:
    void pasteText() override
    {
        static const QRegularExpression separators(u"[,\\r\\n\\x{2028}\\x{2029}]"_s);
        const QMimeData* data = QGuiApplication::clipboard()->mimeData();
        const QString text = data ? data->text() : QString();
        // One keyword, perhaps copied with the end of its line.
        if (!text.trimmed().contains(separators))
            return insert(text.contains(separators) ? text.trimmed() : text);
        // What was typed before the paste belongs to the first keyword, as it would have in a plain field.
        emit pastedSeveral((this->text() + text).split(separators));
    }
};

KeywordEditor::KeywordEditor(QWidget* parent)
    : QWidget(parent)
    , m_flow(new FlowLayout(2, this))
    , m_entry(new KeywordEntry(this))
    , m_suggestions(new SuggestionList(m_entry))
    , m_fade(new HoverFade(this))
{
    describeAs(staticMetaObject, QAccessible::Grouping);
    m_flow->setContentsMargins(3, 1, 3, 1);
    m_flow->setLastItemFills(true);
    m_flow->addWidget(m_entry);
    setCursor(Qt::IBeamCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_ring = installFocusRing(this, { RingShape::field, 7, [this] { return m_edited; }, {} });
    m_entry->installEventFilter(m_ring);
    m_entry->installEventFilter(this);
    m_entry->setAccessibleName(u"New keyword"_s);
    connect(m_entry, &QLineEdit::textEdited, this, &KeywordEditor::complete);
    connect(m_entry, &KeywordEntry::pastedSeveral, this, &KeywordEditor::addAll);
    connect(m_suggestions, &SuggestionList::activated, this, &KeywordEditor::acceptCompletion);
    onRestyle(this, [this] { updateHeight(); });
}

KeywordEditor::~KeywordEditor() = default;

void KeywordEditor::makeChip()
{
    auto* chip = new KeywordChip(this);
    chip->installEventFilter(m_ring);
    chip->installEventFilter(this);
    connect(chip, &KeywordChip::crossed, this, [this, chip] { removeChip(int(m_chipWidgets.indexOf(chip))); });
    m_flow->insertWidget(int(m_chipWidgets.size()), chip);
    m_chipWidgets.append(chip);
    chip->setCursor(Qt::ArrowCursor);
    chip->show();
}

void KeywordEditor::setChips(const QStringList& chips)
{
    // Chips are reused: adding a keyword to forty makes one widget, not forty-one.
    while (m_chipWidgets.size() < chips.size())
        makeChip();
    while (m_chipWidgets.size() > chips.size()) {
        KeywordChip* chip = m_chipWidgets.takeLast();
        if (chip->hasFocus())
            m_entry->setFocus();
        m_flow->removeWidget(chip);
        // Its own cross may be what removed it.
        chip->hide();
        chip->deleteLater();
    }
    m_chips = chips;
    for (qsizetype i = 0; i < chips.size(); ++i)
        m_chipWidgets.at(i)->setKeyword(chips.at(i), m_amber || m_edited);
    limitChips();
    m_flow->invalidate();
    updateHeight();
}

void KeywordEditor::setAmber(bool amber)
{
    if (amber == m_amber)
        return;
    m_amber = amber;
    setChips(m_chips);
}

void KeywordEditor::setEdited(bool edited)
{
    if (edited == m_edited)
        return;
    m_edited = edited;
    setChips(m_chips);
    update();
}

void KeywordEditor::setPlaceholder(const QString& text)
{
    m_entry->setPlaceholder(text);
}

void KeywordEditor::setCompletions(Completions completions)
{
    m_completions = std::move(completions);
}

QLineEdit* KeywordEditor::entry() const
{
    return m_entry;
}

void KeywordEditor::clearEntry()
{
    m_entry->clear();
    m_suggestions->dismiss();
}

QSize KeywordEditor::sizeHint() const
{
    return { px(200), qMax(px(30), height()) };
}

QSize KeywordEditor::minimumSizeHint() const
{
    return { px(entryWidth) + 6, px(30) };
}

void KeywordEditor::updateHeight()
{
    setFixedHeight(qMax(px(30), m_flow->heightForWidth(qMax(width(), minimumSizeHint().width()))));
    m_flow->setGeometry(rect());
}

bool KeywordEditor::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest)  // chips have another size
        updateHeight();
    return QWidget::event(event);
}

void KeywordEditor::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (event->oldSize().width() == width())
        return;
    limitChips();
    updateHeight();
}

// No chip is wider than a line.
void KeywordEditor::limitChips()
{
    for (KeywordChip* chip : std::as_const(m_chipWidgets))
        chip->setMaximumWidth(qMax(px(60), width() - 6));
}

void KeywordEditor::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const FieldState state{ isEnabled(), isAncestorOf(focusWidget()) && focusWidget()->hasFocus(), m_edited,
        m_fade->hover() };
    paintFieldFrame(painter, rect(), state, Theme::of(this));
}

void KeywordEditor::mousePressEvent(QMouseEvent*)
{
    m_entry->setFocus(Qt::MouseFocusReason);
}

bool KeywordEditor::eventFilter(QObject* watched, QEvent* event)
{
    const bool isEntry = watched == m_entry;
    switch (event->type()) {
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        const bool used =
            isEntry ? entryKey(key) : chipKey(int(m_chipWidgets.indexOf(static_cast<KeywordChip*>(watched))), key);
        if (used)
            return true;
        break;
    }
    case QEvent::ShortcutOverride:
        // Escape closes the suggestions before it reaches a sheet or a shortcut.
        if (isEntry && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && m_suggestions->isVisible())
            event->accept();
        break;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        if (isEntry && event->type() == QEvent::FocusOut)
            m_suggestions->dismiss();
        update();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

bool KeywordEditor::entryKey(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Tab && m_suggestions->isVisible()) {
        acceptCompletion(qMax(0, m_suggestions->currentRow()));
        return true;
    }
    if (m_suggestions->handleKey(event))
        return true;
    const bool atStart = m_entry->cursorPosition() == 0 && !m_entry->hasSelectedText();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        commit();
        return true;
    case Qt::Key_Backspace:
        return m_entry->text().isEmpty() && focusLastChip();
    case Qt::Key_Left:
        return atStart && focusLastChip();
    default:
        return false;
    }
}

bool KeywordEditor::chipKey(int index, QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        removeChip(index);
        return true;
    case Qt::Key_Left:
        focusChip(qMax(0, index - 1));
        return true;
    case Qt::Key_Right:
        focusChip(index + 1);
        return true;
    case Qt::Key_Home:
        focusChip(0);
        return true;
    case Qt::Key_End:
    case Qt::Key_Escape:
        m_entry->setFocus(Qt::OtherFocusReason);
        return true;
    default:
        break;
    }
    // Typing goes on in the entry.
    if (event->text().isEmpty() || !event->text().at(0).isPrint())
        return false;
    m_entry->setFocus(Qt::OtherFocusReason);
    m_entry->insert(event->text());
    complete();
    return true;
}

void KeywordEditor::focusChip(int index)
{
    if (index >= 0 && index < m_chipWidgets.size())
        m_chipWidgets.at(index)->setFocus(Qt::OtherFocusReason);
    else
        m_entry->setFocus(Qt::OtherFocusReason);
}

bool KeywordEditor::focusLastChip()
{
    if (m_chipWidgets.isEmpty())
        return false;
    focusChip(int(m_chipWidgets.size()) - 1);
    return true;
}

void KeywordEditor::removeChip(int index)
{
    if (index < 0 || index >= m_chips.size())
        return;
    const bool hadFocus = m_chipWidgets.at(index)->hasFocus();
    emit removed(m_chips.at(index));
    if (hadFocus)
        focusChip(index < m_chipWidgets.size() ? index : -1);
}

void KeywordEditor::commit()
{
    const QString keyword = m_entry->text().trimmed();
    if (keyword.isEmpty())
        return;
    // Emptied first: the owner may look at the editor while it takes the keyword.
    clearEntry();
    emit added(keyword);
}

void KeywordEditor::addAll(const QStringList& keywords)
{
    clearEntry();
    for (const QString& keyword : keywords) {
        const QString trimmed = keyword.trimmed();
        if (!trimmed.isEmpty())
            emit added(trimmed);
    }
}

void KeywordEditor::complete()
{
    const QString prefix = m_entry->text().trimmed();
    QList<SuggestionRow> rows;
    if (m_completions && !prefix.isEmpty()) {
        for (const QString& keyword : m_completions(prefix)) {
            if (rows.size() < mostCompletions && !m_chips.contains(keyword) && keyword != prefix)
                rows.append({ keyword, {} });
        }
    }
    m_suggestions->showRows(rows);
}

void KeywordEditor::acceptCompletion(int row)
{
    if (row < 0 || row >= m_suggestions->rows().size())
        return;
    const QString keyword = m_suggestions->rows().at(row).title;
    clearEntry();
    emit added(keyword);
}

}  // namespace Quorbel

#include "KeywordEditor.moc"
