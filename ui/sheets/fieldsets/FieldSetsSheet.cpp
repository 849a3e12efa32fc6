#include "ui/sheets/fieldsets/FieldSetsSheet.h"

#include "app/model/AppModel.h"
#include "core/language/Texts.h"
#include "core/schema/FieldSchema.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/Labels.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/sheets/SheetParts.h"
#include "ui/sheets/fieldsets/FieldTicks.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr ListSheet::Widths widths{ .sheet = 640, .side = 176, .narrowSide = 120, .narrowBelow = 640 };
constexpr qreal rowHeight = 34;

class SetDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        return { px(100), px(rowHeight) };
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        painter->setLayoutDirection(option.direction);
        const Theme& theme = Theme::of(option.widget);
        const bool isOn = option.state.testFlag(QStyle::State_Selected);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const QRectF row = QRectF(option.rect).adjusted(0, 0, 0, -pxF(2));
        if (isOn || option.state.testFlag(QStyle::State_MouseOver))
            paintBox(*painter, row, pxF(7), isOn ? theme.sel : theme.derived.rowHover, Qt::NoPen);
        const QRectF text = row.adjusted(pxF(10), 0, -pxF(10), 0);
        painter->setFont(sansFont(13));
        painter->setPen(isOn ? theme.selText : theme.text);
        painter->drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
            painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, int(text.width())));
        painter->restore();
    }
};

QListWidget* makeList()
{
    auto* list = new QListWidget;
    list->setItemDelegate(new SetDelegate(list));
    list->setAccessibleName(Texts::tr("Field sets"));
    list->setFrameShape(QFrame::NoFrame);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setMouseTracking(true);
    list->setTabKeyNavigation(false);
    list->viewport()->setAutoFillBackground(false);
    OverlayScrollBar::attach(list);
    installFocusRing(list, { RingShape::tight, 7, {}, {} });
    return list;
}

// The columns of the ticks.
QWidget* makeTickTitles()
{
    auto* titles = new QWidget;
    auto* line = new QHBoxLayout(titles);
    line->addStretch();
    QList<ThemedLabel*> labels;
    for (const QString& title : { Texts::tr("On screen"), Texts::tr("Wanted") }) {
        labels.append(new ThemedLabel(title, TextRole::label, 11));
        labels.last()->setAlignment(Qt::AlignCenter);
        line->addWidget(labels.last());
    }
    line->setSpacing(0);
    onRestyle(titles, [line, labels] {
        line->setContentsMargins(0, px(6), 0, px(2));
        for (ThemedLabel* label : labels)
            label->setFixedWidth(px(FieldTicks::tickWidth));
    });
    return titles;
}

}  // namespace

FieldSetsSheet::FieldSetsSheet(AppModel& model, QWidget* parent)
    : ListSheet(widths, parent)
    , m_sets(model.fieldSets())
    , m_list(makeList())
    , m_remove(new QBIconButton(u"xmark"_s, Texts::tr("Delete this set")))
    , m_name(new QBTextField)
    , m_query(new QBTextField)
    , m_ticks(new FieldTicks)
    , m_problem(new WrappedLine(TextRole::amberText, 11, 15))
    , m_store(new QBButton(Texts::tr("Save"), QBButtonKind::primary))
{
    for (const FieldSet& set : m_sets.own())
        m_own.append({ set.name, set });
    m_row = qMax(0, int(m_sets.names().indexOf(m_sets.current())) - 1);
    auto* add = new QBIconButton(u"plus"_s, Texts::tr("New set, as a copy of this one"));
    connect(add, &QAbstractButton::clicked, this, &FieldSetsSheet::addCopy);
    connect(m_remove, &QAbstractButton::clicked, this, &FieldSetsSheet::removeSet);
    setParts(m_list, {}, { add, m_remove }, buildForm());
    connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) {
        if (m_isFilling || row < 0)
            return;
        m_row = row;
        show();
    });
    if (m_sets.started())
        addSet(*m_sets.started());
    fillList();
    show();
}

void FieldSetsSheet::addCopy()
{
    FieldSet copy = shown();
    //: The name of a new set of fields; %1 is the name of the one that it is a copy of.
    copy.name = Texts::tr("%1 copy").arg(shownName());
    addSet(copy);
    fillList();
    show();
    m_name->setFocus(Qt::OtherFocusReason);
    m_name->selectAll();
}

QWidget* FieldSetsSheet::buildForm()
{
    auto* right = new QWidget;
    auto* column = new QVBoxLayout(right);
    m_name->setAccessibleName(Texts::tr("Name of the set"));
    m_name->setPlaceholder(Texts::tr("Name of the set"));
    m_query->setAccessibleName(Texts::tr("Search fields"));
    m_query->setPlaceholder(Texts::tr("Search fields…"));
    m_query->setLeadingIcon(u"magnifyingglass"_s);
    connect(m_name, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (FieldSets::Edited* set = edited())
            set->set.name = text;
        m_list->item(m_row)->setText(text);
        judge();
    });
    connect(m_query, &QLineEdit::textChanged, m_ticks, &FieldTicks::setNeedle);
    connect(m_ticks, &FieldTicks::ticked, this, [this](const QString& id, bool onScreen, bool wanted) {
        FieldSets::Edited* set = edited();
        if (!set)
            return;
        set->set.fields.removeAll(id);
        if (onScreen)
            set->set.fields.append(id);
        set->set.wanted.remove(id);
        if (wanted)
            set->set.wanted.insert(id);
        judge();
    });
    auto* dismiss = new QBButton(Texts::tr("Cancel"), QBButtonKind::secondary);
    connect(dismiss, &QAbstractButton::clicked, this, &FieldSetsSheet::cancel);
    connect(m_store, &QAbstractButton::clicked, this, &FieldSetsSheet::confirm);
    column->setSpacing(0);
    column->addWidget(m_name);
    column->addSpacing(px(8));
    column->addWidget(m_query);
    column->addWidget(makeTickTitles());
    column->addWidget(m_ticks, 1);
    column->addSpacing(px(6));
    column->addWidget(m_problem);
    column->addSpacing(px(8));
    column->addLayout(sheetButtonRow(this, { dismiss, m_store }));
    onRestyle(right, [column] {
        column->setContentsMargins(
            mirrored(QMargins(px(sheetPadding) - px(4), px(14), px(sheetPadding), px(sheetPadding))));
    });
    return right;
}

// --- What is shown ---

void FieldSetsSheet::fillList()
{
    m_isFilling = true;
    m_list->clear();
    for (const FieldSet& set : FieldSetTexts::builtIn())
        m_list->addItem(Texts::shown(set.name));
    for (const FieldSets::Edited& own : std::as_const(m_own))
        m_list->addItem(own.set.name);
    m_list->setCurrentRow(m_row);
    m_isFilling = false;
}

FieldSets::Edited* FieldSetsSheet::edited()
{
    const qsizetype at = m_row - FieldSetTexts::builtIn().size();
    return at >= 0 && at < m_own.size() ? &m_own[at] : nullptr;
}

FieldSet FieldSetsSheet::shown() const
{
    const QList<FieldSet>& builtIn = FieldSetTexts::builtIn();
    return m_row < builtIn.size() ? builtIn.at(m_row) : m_own.at(m_row - builtIn.size()).set;
}

// Those that come with the program are called something else in each language.
QString FieldSetsSheet::shownName() const
{
    return m_row < FieldSetTexts::builtIn().size() ? Texts::shown(shown().name) : shown().name;
}

void FieldSetsSheet::show()
{
    const FieldSet set = shown();
    const bool isOwn = edited() != nullptr;
    m_name->setBoundText(shownName());
    m_name->setReadOnly(!isOwn);
    m_ticks->setFixed(!isOwn);
    m_ticks->setTicked(set.fields, set.wanted);
    m_remove->setEnabled(isOwn);
    judge();
}

// Says what stands in the way of storing them, or of changing the one that is shown.
void FieldSetsSheet::judge()
{
    const std::optional<QString> problem = FieldSets::problem(m_own);
    const QString note =
        edited() ? QString() : Texts::tr("This set comes with Quorbel. Make a copy with + to change it.");
    setTextOrNothing(*m_problem, problem.value_or(note));
    m_problem->setRole(problem ? TextRole::amberText : TextRole::label);
    m_name->setAccessibleDescription(m_problem->text());
    m_store->setEnabled(!problem);
}

void FieldSetsSheet::addSet(const FieldSet& set)
{
    m_own.append({ {}, set });
    m_row = int(FieldSetTexts::builtIn().size() + m_own.size()) - 1;
}

void FieldSetsSheet::removeSet()
{
    if (!edited())
        return;
    m_own.removeAt(m_row - FieldSetTexts::builtIn().size());
    m_row = qMin(m_row, int(FieldSetTexts::builtIn().size() + m_own.size()) - 1);
    fillList();
    show();
    m_list->setFocus(Qt::OtherFocusReason);
}

QString FieldSetsSheet::title() const
{
    return Texts::tr("Field Sets");
}

void FieldSetsSheet::confirm()
{
    if (!m_store->isEnabled())
        return;
    // Whoever made one of what is on screen wants to go on with it.
    const FieldSets::Edited* set = m_sets.started() ? edited() : nullptr;
    m_sets.store(m_own, set && set->before.isEmpty() ? set->set.name.trimmed() : QString());
}

void FieldSetsSheet::cancel()
{
    m_sets.cancel();
}

QWidget* FieldSetsSheet::initialFocus()
{
    return m_sets.started() ? m_name : static_cast<QWidget*>(m_list);
}

}  // namespace Quorbel
