#include "ui/sheets/AddFieldSheet.h"

#include "app/model/AppModel.h"
#include "app/model/words/CodeReplacements.h"
#include "core/iptc/IptcSchema.h"
#include "core/language/Texts.h"
#include "core/schema/CustomFields.h"
#include "core/text/Text.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/sheets/AddableFieldList.h"
#include "ui/sheets/SheetParts.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal buttonsAbove = 22;

constexpr QChar between = u'\n';

// What is searched at once: a text in the user's language, and the English one.
QString lowered(const QStringList& texts)
{
    return texts.join(between).toLower();
}

// How well a field fits what was typed: 0 is best; nothing where it is not in its label, note, tag hint or name in the
// standard.
std::optional<int> rank(const FieldSpec& field, const QString& wanted)
{
    const QString label = lowered({ Texts::shown(field.label), field.label });
    if (label.startsWith(wanted) || label.contains(between + wanted))
        return 0;
    if (label.contains(u' ' + wanted))
        return 1;
    int rank = 2;
    for (const QString& text : { label, lowered({ Texts::shown(field.addNote), field.addNote }),
             lowered({ field.standard }), lowered({ field.namespaceHint }) }) {
        if (text.contains(wanted))
            return rank;
        ++rank;
    }
    return std::nullopt;
}

// Fields that stand under one heading.
struct Group {
    QList<std::pair<int, FieldSpec>> fields{};  // with their ranks
    int best = 0;  // of these
};

// What fits the query, the group that fits best first. The fields that every photo has keep their order.
QList<FieldSpec> filteredFields(const QList<FieldSpec>& fields, const QString& query)
{
    const QString wanted = Text::trimmed(query).toLower();
    if (wanted.isEmpty())
        return fields;
    QMap<int, Group> groups;
    for (const FieldSpec& field : fields)
        if (const auto found = rank(field, wanted)) {
            Group& group = groups[IptcSchema::isId(field.id) ? int(field.section) : -1];
            group.best = group.fields.isEmpty() ? *found : qMin(group.best, *found);
            group.fields.append({ *found, field });
        }
    QList<Group> ordered = groups.values();
    std::stable_sort(ordered.begin(), ordered.end(), [](const Group& a, const Group& b) { return a.best < b.best; });
    QList<FieldSpec> filtered;
    for (Group& group : ordered) {
        if (IptcSchema::isId(group.fields.constFirst().second.id))
            std::stable_sort(group.fields.begin(), group.fields.end(),
                [](const auto& a, const auto& b) { return a.first < b.first; });
        for (const auto& [rank, field] : std::as_const(group.fields))
            filtered.append(field);
    }
    return filtered;
}

// As the form shows them.
QList<FieldSpec> inSections(QList<FieldSpec> fields)
{
    std::stable_sort(fields.begin(), fields.end(),
        [](const FieldSpec& a, const FieldSpec& b) { return int(a.section) < int(b.section); });
    return fields;
}

}  // namespace

AddFieldSheet::AddFieldSheet(AppModel& model, QWidget* parent)
    : SheetBody(parent)
    , m_model(model)
    , m_query(new QBTextField)
    , m_list(new AddableFieldList)
    , m_name(new QBTextField)
    , m_value(new QBTextField)
    , m_verdict(new ThemedLabel({}, TextRole::label, 11))
    , m_add(new QBButton(Texts::tr("Add Field"), QBButtonKind::primary))
{
    m_query->setPlaceholder(Texts::tr("Search fields…"));
    m_query->setAccessibleName(Texts::tr("Search fields"));
    m_query->setLeadingIcon(u"magnifyingglass"_s);
    m_query->installEventFilter(this);
    m_value->setCodes(m_model.codes().texts());
    build();
    connect(m_query, &QLineEdit::textChanged, this, &AddFieldSheet::filter);
    connect(m_name, &QLineEdit::textChanged, this, &AddFieldSheet::judgeName);
    connect(m_list, &AddableFieldList::picked, &m_model, &AppModel::addKnownField);
    connect(m_list, &AddableFieldList::leftUpwards, m_query, [this] { m_query->setFocus(Qt::BacktabFocusReason); });
    connect(m_add, &QAbstractButton::clicked, this, &AddFieldSheet::confirm);
    // Files that other programs change may fill fields meanwhile.
    for (const auto changed : { &AppModel::editsChanged, &AppModel::recordsChanged })
        connect(&m_model, changed, this, &AddFieldSheet::filter);
    filter();
    m_list->setTabPredecessor(m_query);
    judgeName();
}

void AddFieldSheet::build()
{
    auto* column = new QVBoxLayout(this);
    auto* dismiss = new QBButton(Texts::tr("Cancel"), QBButtonKind::secondary);
    connect(dismiss, &QAbstractButton::clicked, this, &AddFieldSheet::cancel);
    m_verdict->setElided(true);
    m_verdict->setVerbatim(true);
    m_verdict->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    stackParts(this, column,
        {
            { new LabeledDivider(Texts::tr("RECOMMENDED · WORKS EVERYWHERE")), 10 },
            { m_query, 6 },
            { new ThemedLabel(Texts::tr("Already-set fields are hidden."), TextRole::muted, 11), 8 },
            { m_list, 22 },
            { new LabeledDivider(Texts::tr("ADVANCED · CUSTOM FIELD"), true, Texts::tr("may not appear in all apps")),
                12 },
            { buildCustom() },
            { m_verdict },
        });
    column->addLayout(sheetButtonRow(this, { dismiss, m_add }));
    frameSheet(this, column);
    onRestyle(this, [this] {
        // The line about the name stands in the gap above the buttons: nothing moves when it appears.
        m_verdict->setFixedHeight(px(buttonsAbove));
    });
}

QWidget* AddFieldSheet::buildCustom()
{
    auto* fields = new QWidget;
    auto* grid = new QGridLayout(fields);
    grid->setContentsMargins(0, 0, 0, 0);
    int column = 0;
    for (const auto& [title, field] : { std::pair(Texts::tr("Name", "of a custom field"), m_name),
             std::pair(Texts::tr("Value", "of a custom field"), m_value) }) {
        auto* label = new ThemedLabel(title, TextRole::label, 12);
        label->setBuddy(field);
        field->setAccessibleName(title);
        grid->addWidget(label, 0, column);
        grid->addWidget(field, 1, column);
        grid->setColumnStretch(column++, 1);
    }
    //: An example of the name of a custom field: letters without accents, as it becomes the name of a tag.
    m_name->setPlaceholder(Texts::tr("e.g. Project"));
    onRestyle(fields, [grid] {
        grid->setHorizontalSpacing(px(12));
        grid->setVerticalSpacing(px(6));
    });
    return fields;
}

void AddFieldSheet::filter()
{
    const QString none = m_query->text().isEmpty() ? Texts::tr("All recommended fields are already shown.")
                                                   : Texts::tr("No matching fields.");
    const QList<FieldSpec> fields = m_model.addableKnownFields() + inSections(m_model.addableIptcFields());
    m_list->setFields(filteredFields(fields, m_query->text()), none);
}

// Says under the name what stands in the way of storing it, or what it will be stored as.
void AddFieldSheet::judgeName()
{
    const QString typed = m_name->text();
    const auto stored = m_model.storedCustomName(typed);
    const auto problem = CustomFields::nameProblem(typed);
    QString verdict;
    if (problem)
        verdict = *problem;
    else if (stored && *stored != typed)
        verdict = Texts::tr("Will be stored as “%1”").arg(*stored);
    setTextOrNothing(*m_verdict, verdict);
    m_verdict->setRole(problem ? TextRole::amberText : TextRole::label);
    m_name->setAccessibleDescription(verdict);
    m_add->setEnabled(stored.has_value());
}

bool AddFieldSheet::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_query && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Down) {
            m_list->focusFirst();
            return true;
        }
        const bool isReturn = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        const QStringList ids = m_list->shownIds();
        // Return takes the field that the search has come down to.
        if (isReturn && !Text::trimmed(m_query->text()).isEmpty() && ids.size() == 1) {
            m_model.addKnownField(ids.first());
            return true;
        }
    }
    return SheetBody::eventFilter(watched, event);
}

QString AddFieldSheet::title() const
{
    return Texts::tr("Add Metadata Field");
}

void AddFieldSheet::confirm()
{
    if (m_add->isEnabled())
        m_model.addCustomField(m_name->text(), m_value->text());
}

void AddFieldSheet::cancel()
{
    m_model.setAddOpen(false);
}

QWidget* AddFieldSheet::initialFocus()
{
    return m_query;
}

}  // namespace Quorbel
