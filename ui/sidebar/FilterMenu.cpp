#include "ui/sidebar/FilterMenu.h"

#include "app/model/AppModel.h"
#include "app/model/library/filter/Filtering.h"
#include "core/language/Texts.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/Labels.h"
#include "ui/controls/RatingEditor.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/attached/MenuRow.h"
#include "ui/controls/scrolling/ScrollArea.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLocale>
#include <QPainter>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal wide = 236;
constexpr qreal padding = 5;
constexpr qreal leftOfOpener = 2;
constexpr qreal headerHeight = 24;
constexpr qreal rowHeight = 28;
constexpr qreal separatorHeight = 11;
constexpr qreal fieldSide = 4;
constexpr qreal aboveField = 3;
constexpr qreal belowField = 1;

const QKeySequence& clearKeys()
{
    static const QKeySequence keys(Qt::CTRL | Qt::SHIFT | Qt::Key_F);
    return keys;
}

class Separator final : public QWidget {
public:
    Separator()
    {
        onRestyle(this, [this] { setFixedHeight(px(separatorHeight)); });
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        DirectedPainter painter(this);
        painter.fillRect(px(10), height() / 2, width() - px(20), 1, Theme::of(this).line);
    }
};

QString spokenCount(const QString& what, int count)
{
    //: %1: a filter, as “No title”. %2: how many photos fit it.
    return Texts::tr("%1, %2 photo(s)", nullptr, count).arg(what, QLocale().toString(count));
}

}  // namespace

FilterMenu::FilterMenu(AppModel& model, QWidget* opener)
    : Popover(opener)
    , m_filtering(model.filtering())
    , m_opener(opener)
    , m_scroll(new ScrollArea(this))
    , m_content(new QWidget)
    , m_unread(new ThemedLabel({}, TextRole::label, 11))
    , m_starCount(new ThemedLabel({}, TextRole::label, 12))
    , m_stars(new RatingEditor)
    , m_field(new QBTextField)
    , m_clear(new MenuRow(FilterTexts::clearTitle(), false))
{
    describeAs(staticMetaObject, QAccessible::PopupMenu);
    setAccessibleName(FilterTexts::name());
    setFocusPolicy(Qt::StrongFocus);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    auto* column = new QVBoxLayout(m_content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    build(column);
    m_scroll->setContent(m_content);
    for (QWidget* stop : stops())
        stop->installEventFilter(this);
    connect(&m_filtering, &Filtering::changed, this, &FilterMenu::follow);
    connect(&m_filtering, &Filtering::countsChanged, this, &FilterMenu::follow);
    // A question about unsaved edits is not to be covered.
    connect(&model, &AppModel::saveOpenChanged, this, [this, &model] {
        if (model.saveOpen())
            close();
    });
    follow();
}

void FilterMenu::build(QVBoxLayout* column)
{
    //: Heads a list of what photos may lack: title, keywords…
    addHeader(column, Texts::tr("Without"), m_unread);
    for (const FilterText& text : FilterTexts::gaps())
        addRow(column, text);
    column->addWidget(new Separator);
    addHeader(column, Texts::tr("Rating"), nullptr);
    addRow(column, FilterTexts::unrated());
    column->addWidget(buildStars());
    column->addWidget(new Separator);
    for (const FilterText& text : FilterTexts::states())
        addRow(column, text);
    column->addWidget(new Separator);
    column->addWidget(buildField());
    column->addWidget(new Separator);
    m_clear->setTrailing(clearKeys().toString(QKeySequence::NativeText));
    connect(m_clear, &QAbstractButton::clicked, this, &FilterMenu::clear);
    column->addWidget(m_clear);
}

void FilterMenu::addHeader(QVBoxLayout* column, const QString& title, ThemedLabel* note)
{
    auto* header = new QWidget;
    auto* line = new QHBoxLayout(header);
    line->addWidget(new ThemedLabel(title, TextRole::label, 11, QFont::DemiBold));
    line->addStretch();
    if (note)
        line->addWidget(note);
    onRestyle(header, [header, line] {
        line->setContentsMargins(mirrored(QMargins(px(10), px(2), px(12), 0)));
        header->setFixedHeight(px(headerHeight));
    });
    column->addWidget(header);
}

void FilterMenu::addRow(QVBoxLayout* column, const FilterText& text)
{
    auto* row = new MenuRow(text.row, true);
    connect(row, &QAbstractButton::clicked, this,
        [this, trait = text.trait] { m_filtering.setOn(trait, !m_filtering.isOn(trait)); });
    column->addWidget(row);
    m_rows.append({ text, row });
}

QWidget* FilterMenu::buildStars()
{
    auto* holder = new QWidget;
    auto* line = new QHBoxLayout(holder);
    //: Stands before the row of stars that a photo has at least.
    line->addWidget(new ThemedLabel(Texts::tr("At least")));
    line->addStretch();
    line->addWidget(m_starCount);
    line->addWidget(m_stars);
    m_stars->setSmall(true);
    m_stars->setToolTip(Texts::tr("Click the lowest rating to list; click it again for any"));
    connect(m_stars, &RatingEditor::valueEdited, this,
        [this](const QString& value) { m_filtering.setLeastStars(value.toInt()); });
    onRestyle(holder, [holder, line] {
        line->setContentsMargins(mirrored(QMargins(px(12), 0, px(11), 0)));
        line->setSpacing(px(8));
        holder->setFixedHeight(px(rowHeight));
    });
    return holder;
}

QWidget* FilterMenu::buildField()
{
    auto* holder = new QWidget;
    auto* line = new QVBoxLayout(holder);
    m_field->setLeadingIcon(u"magnifyingglass"_s);
    m_field->setPlaceholder(Texts::tr("Any field contains…"));
    m_field->setAccessibleName(Texts::tr("Any field contains"));
    connect(m_field, &QLineEdit::textEdited, &m_filtering, &Filtering::setText);
    line->addWidget(m_field);
    onRestyle(
        holder, [line] { line->setContentsMargins(px(fieldSide), px(aboveField), px(fieldSide), px(belowField)); });
    return holder;
}

void FilterMenu::follow()
{
    const QLocale locale;
    for (const Row& row : std::as_const(m_rows)) {
        const int count = m_filtering.count(row.text.trait);
        row.widget->setChecked(m_filtering.isOn(row.text.trait));
        row.widget->setTrailing(locale.toString(count));
        row.widget->setQuiet(count == 0);
        row.widget->setAccessibleName(spokenCount(row.text.chip, count));
    }
    const int least = m_filtering.leastStars();
    const int starred = m_filtering.countOfStars(least);
    m_stars->setValue(QString::number(least));
    m_stars->setAccessibleName(
        least > 0 ? spokenCount(FilterTexts::stars(least), starred) : Texts::tr("At least, any rating"));
    m_starCount->setText(least > 0 ? locale.toString(starred) : QString());
    m_starCount->setVisible(least > 0);
    const int unread = m_filtering.unread();
    //: %1: how many photos.
    const QString text = Texts::tr("%1 not read yet", nullptr, unread).arg(locale.toString(unread));
    m_unread->setText(unread > 0 ? text : QString());
    m_unread->setVisible(unread > 0);
    m_field->setBoundText(m_filtering.text());
    m_clear->setEnabled(m_filtering.isOn() || !m_filtering.text().isEmpty());
}

void FilterMenu::clear()
{
    m_filtering.clear();
    close();
}

void FilterMenu::popUp()
{
    const QPoint corner = m_opener->mapToGlobal(QPoint(-px(leftOfOpener), 0));
    const int least = m_content->minimumSizeHint().width() + 2 * px(padding);
    open(QRect(corner, m_opener->size()), qMax(px(wide), least));
}

void FilterMenu::showEvent(QShowEvent* event)
{
    Popover::showEvent(event);
    setFocus(Qt::PopupFocusReason);
}

int FilterMenu::heightIn(int)
{
    m_content->ensurePolished();
    return m_content->sizeHint().height() + 2 * px(padding);
}

void FilterMenu::arrange(const QRect& box)
{
    m_scroll->setGeometry(box.adjusted(px(padding), px(padding), -px(padding), -px(padding)));
}

// --- Keyboard ---

QList<QWidget*> FilterMenu::stops() const
{
    QList<QWidget*> stops;
    for (const Row& row : m_rows) {
        stops.append(row.widget);
        if (row.text.trait == PhotoTrait::unrated)
            stops.append(m_stars);
    }
    return stops + QList<QWidget*>{ m_field, m_clear };
}

// To the next one that can take the keyboard, round at the ends.
void FilterMenu::walk(int step)
{
    const QList<QWidget*> stops = this->stops();
    qsizetype at = stops.indexOf(focusWidget());
    if (at < 0)
        at = step > 0 ? -1 : stops.size();
    for (qsizetype i = 0; i < stops.size(); ++i) {
        at = (at + step + stops.size()) % stops.size();
        if (!stops.at(at)->isEnabled())
            continue;
        stops.at(at)->setFocus(Qt::TabFocusReason);
        return m_scroll->ensureWidgetVisible(stops.at(at), 0, px(padding));
    }
}

bool FilterMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return Popover::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isReturn = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down || key->key() == Qt::Key_Escape
        || (key->modifiers() & Qt::ControlModifier && key->modifiers() & Qt::ShiftModifier)) {
        keyPressEvent(static_cast<QKeyEvent*>(event));
        return true;
    }
    if (watched == m_field && isReturn) {
        close();
        return true;
    }
    return Popover::eventFilter(watched, event);
}

void FilterMenu::keyPressEvent(QKeyEvent* event)
{
    if (QKeySequence(event->keyCombination()) == clearKeys())
        clear();
    else if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up)
        walk(event->key() == Qt::Key_Down ? 1 : -1);
    else
        Popover::keyPressEvent(event);
}

}  // namespace Quorbel
