#include "ui/inspector/FormRows.h"

#include "app/model/AppModel.h"
#include "app/model/words/CodeReplacements.h"
#include "core/iptc/IptcSchema.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/FormLanguages.h"
#include "ui/inspector/InspectorStates.h"
#include "ui/inspector/iptc/CardActions.h"
#include "ui/inspector/iptc/StructureCards.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostCompletions = 16;  // some of which are there already
constexpr int mostOfAltText = 250;  // characters, as the standard advises

FieldRowParts partsOf(const FieldSpec& field)
{
    FieldRowParts parts;
    parts.kind = field.kind;
    parts.vocabulary = field.vocabulary;
    if (!IptcSchema::isId(field.id))
        return parts;
    parts.field = IptcSchema::spec(field.id);
    const auto isThere = [&field](const FieldSpec& other) { return other.section == field.section; };
    parts.isAlone = std::count_if(IptcSchema::all().cbegin(), IptcSchema::all().cend(), isThere) == 1;
    parts.mostCharacters = field.id == "iptc.altText" ? mostOfAltText : 0;
    return parts;
}

}  // namespace

FormRows::FormRows(AppModel& model, Reach reach, QWidget* form)
    : QObject(form)
    , m_model(model)
    , m_reach(std::move(reach))
    , m_form(form)
{
}

QString FormRows::keyOf(const QWidget* widget) const
{
    for (auto row = m_pool.cbegin(); row != m_pool.cend(); ++row)
        if (*row == widget || (*row)->isAncestorOf(widget))
            return row.key();
    return {};
}

// --- What rows there are ---

FieldRow* FormRows::of(const FieldSpec& field)
{
    FieldRow* known = find(field.id);
    return known ? known : makeOf(field);
}

FieldRow* FormRows::of(const FieldSpec& field, const QString& code)
{
    const QString key = FieldLanguages::key(field.id, code);
    if (FieldRow* known = find(key))
        return known;
    FieldRowParts parts = partsOf(field);
    parts.isLanguage = true;
    FieldRow* row = make(key, parts);
    connect(row, &FieldRow::textEdited, this, [this, key](const QString& text) { write(key, text); });
    connect(row, &FieldRow::tickClicked, this, [this, key] { m_model.toggleBatchInclude(key); });
    m_reach.languages->connectRow(*row, field, code);
    return row;
}

FieldRow* FormRows::of(const CustomValue& custom)
{
    const QString key = CustomFields::key(custom.name);
    if (FieldRow* known = find(key))
        return known;
    FieldRow* row = make(key, {});
    connect(row, &FieldRow::textEdited, this,
        [this, name = custom.name](const QString& text) { m_model.setCustom(name, text); });
    connect(row, &FieldRow::tickClicked, this, [this, name = custom.name] { m_model.toggleBatchCustom(name); });
    return row;
}

FieldRow* FormRows::make(const QString& key, FieldRowParts parts)
{
    parts.codes = m_model.codes().texts();
    auto* row = new FieldRow(parts, m_form);
    row->hide();
    m_pool.insert(key, row);
    emit tabStopsChanged();
    connect(row, &FieldRow::tabStopsChanged, this, &FormRows::tabStopsChangedLate);
    return row;
}

FieldRow* FormRows::makeOf(const FieldSpec& field)
{
    FieldRowParts parts = partsOf(field);
    parts.searchesPlaces = field.id == FieldID::place;
    parts.places = m_reach.places;
    parts.now = [this] { return m_model.now(); };
    if (field.id == FieldID::keywords)
        parts.completions = [this](const QString& typed) {
            return InspectorStates::keywordSuggestions(m_model, typed, mostCompletions);
        };
    FieldRow* row = make(field.id, parts);
    connectRow(*row, field);
    if (auto* cards = row->findChild<StructureCards*>())
        new CardActions(m_model, m_reach.places, *FieldSchema::spec(field.id), *cards);
    return row;
}

// --- What is done in them ---

void FormRows::connectRow(FieldRow& row, const FieldSpec& field)
{
    const QString id = field.id;
    connect(&row, &FieldRow::textEdited, this, [this, id](const QString& text) { write(id, text); });
    connect(&row, &FieldRow::itemAdded, this, [this, id](const QString& item) { changeList(id, item, true); });
    connect(&row, &FieldRow::itemRemoved, this, [this, id](const QString& item) { changeList(id, item, false); });
    connect(&row, &FieldRow::itemsEdited, this, [this, id](const QStringList& items) {
        if (m_reach.takes(id))
            m_model.setItems(id, items);
    });
    connect(&row, &FieldRow::tickClicked, this, [this, field] { toggle(field); });
    connect(&row, &FieldRow::removeClicked, this, [this, id] { m_model.removeAddedField(id); });
    connect(&row, &FieldRow::placePicked, &m_model, &AppModel::applyLocation);
    connect(&row, &FieldRow::homeUsed, this, [this, id](const FieldHome& home) { m_model.useHome(id, home); });
    connect(&row, &FieldRow::agreeAsked, &m_model, &AppModel::requestMakeAgree);
    m_reach.languages->connectRow(row, field);
}

void FormRows::write(const QString& id, const QString& text)
{
    if (!m_reach.takes(id))
        return;
    if (m_model.isBatch())
        m_model.setBatch(id, text);
    else
        m_model.setSingle(id, text);
}

void FormRows::changeList(const QString& id, const QString& item, bool add)
{
    if (!m_reach.takes(id))
        return;
    if (m_model.isBatch())
        add ? m_model.addBatchListItem(id, item) : m_model.removeBatchListItem(id, item);
    else
        add ? m_model.addSingleListItem(id, item) : m_model.removeSingleListItem(id, item);
}

void FormRows::toggle(const FieldSpec& field)
{
    if (field.isList())
        m_model.clearBatchList(field.id);
    else
        m_model.toggleBatchInclude(field.id);
}

}  // namespace Quorbel
