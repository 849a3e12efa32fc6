#include "ui/controls/keywords/KeywordEditor.h"

#include "core/language/Texts.h"
#include "ui/controls/FlowLayout.h"
#include "ui/controls/HoverFade.h"
#include "ui/controls/ReadingOrder.h"
#include "ui/controls/SuggestionList.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/keywords/KeywordChip.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
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
constexpr qreal entryWidth = 110;  // points, at least
constexpr int mostCompletions = 8;
constexpr int side = 3;  // pixels between the frame and the chips
constexpr int gap = 2;  // pixels between chips
constexpr int mostLinesWithParents = 2;
}  // namespace

// The field behind the chips: hands a paste of several keywords over as several.
class KeywordEntry final : public QBTextField {
    Q_OBJECT

public:
    explicit KeywordEntry(QWidget* parent)
        : QBTextField(parent)
    {
        setBare(true);
    }

    void setSplitsAtCommas(bool on) { m_splitsAtCommas = on; }
    /// Keys belong to the input method until what it composes is in the text.
    bool isComposing() const { return m_isComposing; }
    QSize sizeHint() const override { return { px(entryWidth), px(28) }; }
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void pastedSeveral(const QStringList& keywords);

protected:
    void inputMethodEvent(QInputMethodEvent* event) override
    {
        m_isComposing = !event->preeditString().isEmpty();
        QBTextField::inputMethodEvent(event);
    }

    void pasteText() override
    {
        static const QRegularExpression lineEnds(u"[\\r\\n\\x{2028}\\x{2029}]"_s);
        static const QRegularExpression commas(u"[,\\r\\n\\x{2028}\\x{2029}]"_s);
        const QRegularExpression& separators = m_splitsAtCommas ? commas : lineEnds;
        const QMimeData* data = QGuiApplication::clipboard()->mimeData();
        const QString text = data ? data->text() : QString();
        // One keyword, perhaps copied with the end of its line.
        if (!text.trimmed().contains(separators))
            return insert(text.contains(separators) ? text.trimmed() : text);
        // What was typed before the paste belongs to the first keyword, as it would have in a plain field.
        emit pastedSeveral((this->text() + text).split(separators));
    }

private:
    bool m_splitsAtCommas = true;
    bool m_isComposing = false;
};

KeywordEditor::KeywordEditor(QWidget* parent)
    : QWidget(parent)
    , m_flow(new FlowLayout(gap, this))
    , m_entry(new KeywordEntry(this))
    , m_suggestions(new SuggestionList(m_entry))
    , m_fade(new HoverFade(this))
{
    describeInReadingOrder(staticMetaObject, QAccessible::Grouping);
    m_flow->setContentsMargins(side, 1, side, 1);
    m_flow->setLastItemFills(true);
    m_flow->addWidget(m_entry);
    setCursor(Qt::IBeamCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_ring = installFocusRing(this, { RingShape::field, 7, [this] { return m_edited; }, {} });
    m_entry->installEventFilter(m_ring);
    m_entry->installEventFilter(this);
    m_entry->setAccessibleName(Texts::tr("New keyword"));
    connect(m_entry, &QLineEdit::textEdited, this, &KeywordEditor::complete);
    connect(m_entry, &KeywordEntry::pastedSeveral, this, &KeywordEditor::addAll);
    connect(m_suggestions, &SuggestionList::activated, this, &KeywordEditor::acceptCompletion);
    onRestyle(this, [this] { updateHeight(); });
}

KeywordEditor::~KeywordEditor() = default;

void KeywordEditor::setSplitsAtCommas(bool on)
{
    m_entry->setSplitsAtCommas(on);
}

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

void KeywordEditor::setChips(const QStringList& chips, const Parents& parents)
{
    m_chips = chips;
    m_parents = parents;
    showChips();
}

void KeywordEditor::showChips()
{
    // Chips are reused: adding a keyword to forty makes one widget, not forty-one.
    while (m_chipWidgets.size() < m_chips.size())
        makeChip();
    while (m_chipWidgets.size() > m_chips.size()) {
        KeywordChip* chip = m_chipWidgets.takeLast();
        if (chip->hasFocus())
            m_entry->setFocus();
        m_flow->removeWidget(chip);
        // Its own cross may be what removed it.
        chip->hide();
        chip->deleteLater();
    }
    for (qsizetype i = 0; i < m_chips.size(); ++i)
        m_chipWidgets.at(i)->setKeyword(m_chips.at(i), m_parents.value(m_chips.at(i)), m_amber || m_edited);
    m_entry->setWanted(m_wanted && m_chips.isEmpty());
    layOutChips();
    update();
}

void KeywordEditor::setAmber(bool amber)
{
    if (amber == m_amber)
        return;
    m_amber = amber;
    showChips();
}

void KeywordEditor::setEdited(bool edited)
{
    if (edited == m_edited)
        return;
    m_edited = edited;
    showChips();
    update();
}

void KeywordEditor::setWanted(bool wanted)
{
    m_wanted = wanted;
    m_entry->setWanted(wanted && m_chips.isEmpty());
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

void KeywordEditor::setCodes(const CodeTexts& codes)
{
    m_entry->setCodes(codes);
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
        layOutChips();
    return QWidget::event(event);
}

void KeywordEditor::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (event->oldSize().width() != width())
        layOutChips();
}

// No chip is wider than a line. What is decided follows from the chips and the width alone, never from what is shown.
void KeywordEditor::layOutChips()
{
    const int line = qMax(px(60), width() - 2 * side);
    for (KeywordChip* chip : std::as_const(m_chipWidgets))
        chip->setMostWidth(line);
    const bool isRoom = hasRoomForParents(line);
    for (KeywordChip* chip : std::as_const(m_chipWidgets))
        chip->setParentsShown(isRoom);
    updateHeight();
}

bool KeywordEditor::hasRoomForParents(int line) const
{
    if (m_parents.isEmpty())
        return false;
    QList<int> widths;
    for (const KeywordChip* chip : m_chipWidgets)
        widths.append(qMin(line, chip->widthWithParents()));
    return FlowLayout::lines(widths, line, gap) <= mostLinesWithParents;
}

void KeywordEditor::paintEvent(QPaintEvent*)
{
    DirectedPainter painter(this);
    const FieldState state{ isEnabled(), isAncestorOf(focusWidget()) && focusWidget()->hasFocus(), m_edited,
        m_fade->hover(), m_wanted && m_chips.isEmpty() };
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
    if (m_entry->isComposing())
        return false;
    if (event->key() == Qt::Key_Tab && m_suggestions->isVisible()) {
        acceptCompletion(qMax(0, m_suggestions->currentRow()));
        return true;
    }
    if (m_suggestions->handleKey(event))
        return true;
    const bool atStart = m_entry->cursorPosition() == 0 && !m_entry->hasSelectedText();
    switch (mirroredKey(event->key(), this)) {
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
    switch (mirroredKey(event->key(), this)) {
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
    const QString typed = m_entry->text();
    m_offered.clear();
    QList<SuggestionRow> rows;
    if (m_completions && !typed.trimmed().isEmpty()) {
        for (const KeywordSuggestion& suggestion : m_completions(typed)) {
            if (rows.size() == mostCompletions)
                break;
            if (isThere(suggestion) || suggestion.added == typed.trimmed())
                continue;
            m_offered.append(suggestion.added);
            QList<QStringList> parents;
            if (!suggestion.parents.isEmpty())
                parents.append(suggestion.parents);
            rows.append({ suggestion.keyword, shownKeywordPath(suggestion.parents),
                spokenKeyword(suggestion.keyword, parents), true });
        }
    }
    m_suggestions->showRows(rows);
}

// Whether adding it would change nothing.
bool KeywordEditor::isThere(const KeywordSuggestion& suggestion) const
{
    return m_chips.contains(suggestion.keyword)
        && (suggestion.parents.isEmpty() || m_parents.value(suggestion.keyword).contains(suggestion.parents));
}

void KeywordEditor::acceptCompletion(int row)
{
    if (row < 0 || row >= m_offered.size())
        return;
    const QString keyword = m_offered.at(row);
    clearEntry();
    emit added(keyword);
}

}  // namespace Quorbel

#include "KeywordEditor.moc"
