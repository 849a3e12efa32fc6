#include "ui/inspector/InspectorForm.h"

#include "app/model/AppModel.h"
#include "app/model/pairs/Pairing.h"
#include "app/model/selection/SelectedSidecars.h"
#include "app/model/words/CodeReplacements.h"
#include "core/iptc/IptcSchema.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/inspector/BatchBanner.h"
#include "ui/inspector/CameraSection.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/FieldSetPicker.h"
#include "ui/inspector/FormLanguages.h"
#include "ui/inspector/FormPause.h"
#include "ui/inspector/FormSection.h"
#include "ui/inspector/InspectorStates.h"
#include "ui/inspector/PhotoHeader.h"
#include "ui/inspector/WantedFields.h"
#include "ui/inspector/iptc/CardActions.h"
#include "ui/inspector/iptc/DetailsWait.h"
#include "ui/inspector/iptc/IptcSections.h"
#include "ui/inspector/keywords/KeywordRows.h"
#include "ui/places/LocationMap.h"

#include <QApplication>
#include <QVBoxLayout>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal side = 20;
constexpr qreal top = 14;
constexpr qreal bottom = 16;

constexpr int mostCompletions = 16;  // some of which are there already
constexpr int mostOfAltText = 250;  // characters, as the standard advises
constexpr int blocksDelay = 150;  // milliseconds in which a record may come before anything changes

// The fields of the usual photo: those that are always shown, and the rating.
QList<FieldSpec> usualFields()
{
    QList<FieldSpec> fields = FieldSchema::all();
    fields.removeIf([](const FieldSpec& field) { return !field.alwaysShown && field.kind != FieldKind::rating; });
    return fields;
}

FieldRowParts partsOf(const FieldSpec& field)
{
    FieldRowParts parts;
    parts.kind = field.kind;
    if (!IptcSchema::isId(field.id))
        return parts;
    parts.field = IptcSchema::spec(field.id);
    const auto isThere = [&field](const FieldSpec& other) { return other.section == field.section; };
    parts.isAlone = std::count_if(IptcSchema::all().cbegin(), IptcSchema::all().cend(), isThere) == 1;
    parts.mostCharacters = field.id == "iptc.altText" ? mostOfAltText : 0;
    return parts;
}

// Header and banner keep the room that sections leave for the dots.
QWidget* indented(QWidget* widget)
{
    auto* holder = new QWidget;
    holder->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* line = new QVBoxLayout(holder);
    line->addWidget(widget);
    onRestyle(holder, [line] { line->setContentsMargins(px(FormSection::dotRoom), 0, 0, 0); });
    return holder;
}

}  // namespace

InspectorForm::InspectorForm(
    AppModel& model, ThumbnailStore* thumbs, PlaceProvider* places, MapRenderer* maps, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_places(places)
    , m_column(new QVBoxLayout(this))
    , m_header(new PhotoHeader(thumbs))
    , m_banner(new BatchBanner)
    , m_iptc(new IptcSections(model, [this](const QStringList& ids, bool fresh) { return rowsOf(ids, fresh); }))
    , m_customs(new FormSection(u"CUSTOM"_s))
    , m_cameraSection(new FormSection(u"CAMERA"_s, u"read-only"_s))
    , m_map(new LocationMap(places, maps))
    , m_camera(new CameraSection)
    , m_picker(makeFieldSetPicker(model.fieldSets(), m_header))
    , m_batchPicker(makeFieldSetPicker(model.fieldSets(), m_banner))
    , m_languages(new FormLanguages(model, this))
    , m_pause(new FormPause(this))
    , m_wait(new DetailsWait(model, this))
    , m_waitPause(new FormPause(this))
{
    m_column->setSpacing(0);
    m_column->addWidget(indented(m_header));
    m_column->addWidget(indented(m_banner));
    for (size_t i = 0; i < m_sections.size(); ++i) {
        m_sections.at(i) = new FormSection(rawValue(FieldSection(i)));
        m_column->addWidget(m_sections.at(i));
    }
    m_sections.at(size_t(FieldSection::location))->setUnderRows(m_map);
    m_column->addWidget(m_iptc);
    m_column->addWidget(m_customs);
    m_cameraSection->setUnderRows(m_camera);
    m_column->addWidget(m_cameraSection);
    m_column->addStretch();
    m_header->setAtEnd(m_picker);
    m_banner->setAtEnd(m_batchPicker);
    connect(m_banner->agree(), &QAbstractButton::clicked, &m_model, &AppModel::requestMakeAgree);
    connect(&m_model.selectedSidecars(), &SelectedSidecars::changed, this, &InspectorForm::showHeader);
    connect(m_map, &LocationMap::found, &m_model, &AppModel::fillPlaceNames);
    connect(&m_model, &AppModel::visibleRowsChanged, this, &InspectorForm::showHeader);
    connect(m_languages, &FormLanguages::changed, this, &InspectorForm::showAgain);
    connect(m_iptc, &IptcSections::changed, this, &InspectorForm::showAgain);
    connect(m_wait, &DetailsWait::late, this, &InspectorForm::showAgain);
    connect(m_languages, &FormLanguages::focusAsked, this, &InspectorForm::fieldAdded);
    m_blocksSoon.setSingleShot(true);
    m_blocksSoon.setInterval(blocksDelay);
    connect(&m_blocksSoon, &QTimer::timeout, this, &InspectorForm::showBlocks);
    onRestyle(this, [this] { setBottomInset(m_bottomInset); });
}

void InspectorForm::setBottomInset(int pixels)
{
    m_bottomInset = pixels;
    m_column->setContentsMargins(px(side - FormSection::dotRoom), px(top), px(side), px(bottom) + pixels);
}

void InspectorForm::refresh()
{
    showHeader();
    if (InspectorStates::isUnread(m_model))
        return awaitRecords();
    const Subject subject{ m_model.selection(), m_model.primary() };
    const bool fresh = subject != m_subject;
    m_subject = subject;
    m_wait->follow(fresh);
    addKeywordRows();
    showSections(fresh);
    showKeywordRows();
    showMap(fresh);
    showCustoms(fresh);
    showCamera();
    orderTabStops();
    endWaiting();
    takeKeyboardFromAwaited();
    announceAdded(fresh);
}

void InspectorForm::leave()
{
    m_subject.reset();
    endWaiting();
    for (FormSection* section : m_sections)
        section->hide();
    m_iptc->hide();
    m_shownIds = {};
    m_map->setPoint(std::nullopt, false);
    m_customs->hide();
    m_cameraSection->hide();
}

// --- While nothing is known ---

QSize InspectorForm::minimumSizeHint() const
{
    return QWidget::minimumSizeHint().expandedTo({ 0, m_pause->leastHeight() });
}

// For a moment the values of before stay, out of reach: a record that comes soon takes their place at once.
void InspectorForm::awaitRecords()
{
    m_subject.reset();
    if (m_pause->isOn())
        return;
    m_pause->begin();
    takeMouse(false);
    m_map->abandon();
    setAccessibleName(u"Reading metadata"_s);
    m_blocksSoon.start();
}

void InspectorForm::showBlocks()
{
    const QList<FieldSpec> fields = usualFields();
    for (size_t i = 0; i < m_sections.size(); ++i) {
        const auto section = FieldSection(i);
        QList<FieldRow*> rows;
        for (const FieldSpec& field : fields) {
            if (field.section != section)
                continue;
            rows.append(rowOf(field));
            rows.last()->setState(InspectorStates::unreadRow(field), true);
        }
        m_sections.at(i)->setRows(rows);
        m_sections.at(i)->setVisible(!rows.isEmpty());
    }
    if (m_keywordRows)
        m_keywordRows->hide();
    m_iptc->hide();
    m_shownIds = {};
    m_map->setPoint(std::nullopt, false);
    m_customs->hide();
    m_cameraSection->hide();
    m_sections.front()->setReading(true);
}

void InspectorForm::endWaiting()
{
    if (!m_pause->isOn())
        return;
    m_blocksSoon.stop();
    m_sections.front()->setReading(false);
    takeMouse(true);
    setAccessibleName({});
    const QList<FieldRow*>& rows = m_sections.front()->rows();
    m_pause->end(rows.isEmpty() ? nullptr : rows.first()->input());
}

// Whether the mouse reaches the rows.
void InspectorForm::takeMouse(bool on)
{
    for (FormSection* section : m_sections)
        section->setAttribute(Qt::WA_TransparentForMouseEvents, !on);
    m_iptc->setAttribute(Qt::WA_TransparentForMouseEvents, !on);
    m_customs->setAttribute(Qt::WA_TransparentForMouseEvents, !on);
}

void InspectorForm::announceAdded(bool fresh)
{
    const QSet<QString> before = std::exchange(m_added, m_model.sessionAddedKnownIDs());
    if (fresh)
        return;
    // What came with an edit was not asked for by whoever wants to type into it.
    const QSet<QString> added = m_added - before - m_model.editedSingle() - m_model.batchInclude();
    for (const QString& id : added)
        emit fieldAdded(id);
}

void InspectorForm::showHeader()
{
    m_header->parentWidget()->setVisible(!m_model.isBatch());
    m_banner->parentWidget()->setVisible(m_model.isBatch());
    const QString reading = InspectorStates::readingText(m_model);
    const SelectedSidecars& sidecars = m_model.selectedSidecars();
    const QString target = sidecars.text();
    m_banner->setPhotos(
        m_model.selection().size(), reading, reading.isEmpty() && !target.isEmpty() ? target + u'.' : QString());
    m_header->setSidecar(target, sidecars.told().path);
    // While photos are read, how far that is comes first.
    m_banner->setDisagreements(
        reading.isEmpty() ? InspectorStates::disagreementsText(m_model) : QString(), m_model.canMakeAgree());
    const Pairing& pairing = m_model.pairing();
    if (const ImageRecord* record = m_model.primaryRecord())
        m_header->setRecord(
            *record, { pairing.seenFile(record->url), pairing.detailLine(*record), pairing.names(*record) });
}

void InspectorForm::showSections(bool fresh)
{
    for (size_t i = 0; i < m_sections.size(); ++i)
        showSection(FieldSection(i), fresh);
    if (m_wait->isHolding())
        return;
    const QList<QWidget*> before = m_iptc->tabStops();
    m_iptc->refresh(fresh || m_wait->hasJustEnded());
    m_tabOrderStale = m_tabOrderStale || m_iptc->tabStops() != before;
}

// Nothing but the rows differs.
void InspectorForm::showAgain()
{
    if (!m_subject)
        return;
    showSections(false);
    orderTabStops();
}

// --- While the fields of IptcSchema are not known ---

bool InspectorForm::isAwaited(const QString& key) const
{
    return m_wait->isOn() && IptcSchema::isId(key);
}

// What was typed into a field of the photo before does not go on in this one's.
void InspectorForm::takeKeyboardFromAwaited()
{
    if (m_wait->isOn() && isAwaited(keyOf(QApplication::focusWidget())))
        m_waitPause->begin();
    else if (!m_wait->isOn())
        m_waitPause->end(nullptr);
}

void InspectorForm::addKeywordRows()
{
    if (m_keywordRows || !m_model.isBatch())
        return;
    const FieldSpec& field = *FieldSchema::spec(FieldID::keywords);
    m_keywordRows = new KeywordRows(m_model);
    m_sections.at(size_t(field.section))->setBelow(rowOf(field), m_keywordRows);
}

void InspectorForm::showKeywordRows()
{
    if (!m_keywordRows)
        return;
    m_keywordRows->refresh();
    if (const QList<QWidget*> stops = m_keywordRows->tabStops(); stops != m_keywordStops) {
        m_keywordStops = stops;
        m_tabOrderStale = true;
    }
}

QList<FieldRow*> InspectorForm::rowsOf(const QStringList& ids, bool fresh)
{
    QList<FieldRow*> rows;
    for (const QString& id : ids) {
        const FieldSpec& field = *FieldSchema::spec(id);
        if (isAwaited(id)) {
            addAwaitedRows(field, rows);
            continue;
        }
        FieldRow* row = rowOf(field);
        rows.append(row);
        FieldRowState state = InspectorStates::fieldRow(m_model, field);
        state.languages.isOpen = m_languages->isOpen(id);
        WantedFields::show(m_model.fieldSets(), id, state);
        // One that was not on screen shows another photo's text, if any.
        const bool isNew = fresh || row->isHidden() || (m_wait->hasJustEnded() && IptcSchema::isId(id));
        row->setState(state, isNew);
        addLanguageRows(field, isNew, rows);
    }
    return rows;
}

// What may stay for a moment stays: also what the photo before had, and this one has perhaps.
void InspectorForm::showSection(FieldSection section, bool fresh)
{
    FormSection* form = m_sections.at(size_t(section));
    QStringList& shown = m_shownIds.at(size_t(section));
    QStringList ids = m_model.visibleFieldIDs(section);
    for (qsizetype i = 0; m_wait->isHolding() && i < shown.size(); ++i)
        if (IptcSchema::isId(shown.at(i)) && !ids.contains(shown.at(i)))
            ids.insert(i == 0 ? 0 : ids.indexOf(shown.at(i - 1)) + 1, shown.at(i));
    shown = ids;
    const QList<FieldRow*> rows = rowsOf(ids, fresh);
    form->setRows(rows);
    form->setNote(WantedFields::line(m_model.fieldSets(), section));
    form->setVisible(!rows.isEmpty());
}

void InspectorForm::addAwaitedRows(const FieldSpec& field, QList<FieldRow*>& rows)
{
    FieldRow* row = rowOf(field);
    rows.append(row);
    if (!m_wait->isHolding() || row->isHidden())
        return row->setState(InspectorStates::unreadRow(field), true);
    for (const RowLanguages::Code& code : row->state().languages.codes)
        if (FieldRow* language = this->row(FieldLanguages::key(field.id, code.text)))
            rows.append(language);
}

void InspectorForm::addLanguageRows(const FieldSpec& field, bool fresh, QList<FieldRow*>& rows)
{
    const QStringList codes = m_languages->shownCodes(field.id);
    for (const QString& code : codes) {
        FieldRow* row = rowOf(field, code);
        const bool isLast = code == codes.constLast();
        // One that was not on screen shows another photo's text, if any.
        row->setState(InspectorStates::languageRow(m_model, field, code, isLast), fresh || row->isHidden());
        rows.append(row);
    }
}

void InspectorForm::showCustoms(bool fresh)
{
    QList<FieldRow*> rows;
    QSet<QString> names;
    const QList<CustomValue> customs = m_model.visibleCustomFields();
    for (const CustomValue& custom : customs) {
        FieldRow* row = rowOf(custom);
        row->setState(InspectorStates::customRow(m_model, custom), fresh);
        rows.append(row);
        names.insert(custom.name);
        // One that is edited as it appears is the user's; others may come from another program.
        if (!fresh && row->state().edited && !m_customNames.contains(custom.name))
            emit fieldAdded(CustomFields::key(custom.name));
    }
    m_customNames = names;
    m_customs->setRows(rows);
    m_customs->setVisible(!rows.isEmpty());
}

bool InspectorForm::arePlaceFieldsEmpty() const
{
    const QStringList ids{ FieldID::place, FieldID::sublocation, FieldID::state, FieldID::country };
    return std::all_of(ids.cbegin(), ids.cend(), [this](const QString& id) { return m_model.isFieldEmpty(id); });
}

void InspectorForm::showMap(bool fresh)
{
    if (fresh)
        m_map->abandon();
    const auto point = Coordinates::parse(InspectorStates::currentText(m_model, FieldID::coords));
    m_map->setPoint(point, arePlaceFieldsEmpty());
}

void InspectorForm::showCamera()
{
    const ImageRecord* record = m_model.isBatch() ? nullptr : m_model.primaryRecord();
    m_cameraSection->setVisible(record != nullptr);
    if (record)
        m_camera->setRows(record->camera);
}

FieldRow* InspectorForm::row(const QString& id) const
{
    FieldRow* found = m_pool.value(id);
    return found && !found->isHidden() ? found : nullptr;
}

QString InspectorForm::keyOf(const QWidget* widget) const
{
    for (auto row = m_pool.cbegin(); row != m_pool.cend(); ++row)
        if (*row == widget || (*row)->isAncestorOf(widget))
            return row.key();
    return {};
}

FieldRow* InspectorForm::reveal(const QString& id)
{
    m_iptc->reveal(id);
    return row(id);
}

FieldRow* InspectorForm::makeRow(const QString& key, FieldRowParts parts)
{
    parts.codes = m_model.codes().texts();
    auto* row = new FieldRow(parts, this);
    row->hide();
    m_pool.insert(key, row);
    m_tabOrderStale = true;
    // What opens in a row without a change of the model is put in order once it stands.
    connect(row, &FieldRow::tabStopsChanged, this, [this] {
        m_tabOrderStale = true;
        QMetaObject::invokeMethod(this, &InspectorForm::orderTabStops, Qt::QueuedConnection);
    });
    return row;
}

FieldRow* InspectorForm::rowOf(const FieldSpec& field)
{
    if (FieldRow* known = m_pool.value(field.id))
        return known;
    FieldRowParts parts = partsOf(field);
    parts.searchesPlaces = field.id == FieldID::place;
    parts.places = m_places;
    parts.now = [this] { return m_model.now(); };
    if (field.id == FieldID::keywords)
        parts.completions = [this](const QString& typed) {
            return InspectorStates::keywordSuggestions(m_model, typed, mostCompletions);
        };
    FieldRow* row = makeRow(field.id, parts);
    connectRow(*row, field);
    if (auto* cards = row->findChild<StructureCards*>())
        new CardActions(m_model, m_places, *FieldSchema::spec(field.id), *cards);
    return row;
}

void InspectorForm::connectRow(FieldRow& row, const FieldSpec& field)
{
    const QString id = field.id;
    connect(&row, &FieldRow::textEdited, this, [this, id](const QString& text) { write(id, text); });
    connect(&row, &FieldRow::itemAdded, this, [this, id](const QString& item) { changeList(id, item, true); });
    connect(&row, &FieldRow::itemRemoved, this, [this, id](const QString& item) { changeList(id, item, false); });
    connect(&row, &FieldRow::itemsEdited, this, [this, id](const QStringList& items) {
        if (takes(id))
            m_model.setItems(id, items);
    });
    connect(&row, &FieldRow::tickClicked, this, [this, field] { toggle(field); });
    connect(&row, &FieldRow::removeClicked, this, [this, id] { m_model.removeAddedField(id); });
    connect(&row, &FieldRow::placePicked, &m_model, &AppModel::applyLocation);
    connect(&row, &FieldRow::homeUsed, this, [this, id](const FieldHome& home) { m_model.useHome(id, home); });
    connect(&row, &FieldRow::agreeAsked, &m_model, &AppModel::requestMakeAgree);
    m_languages->connectRow(row, field);
}

FieldRow* InspectorForm::rowOf(const FieldSpec& field, const QString& code)
{
    const QString key = FieldLanguages::key(field.id, code);
    if (FieldRow* known = m_pool.value(key))
        return known;
    FieldRowParts parts = partsOf(field);
    parts.isLanguage = true;
    FieldRow* row = makeRow(key, parts);
    connect(row, &FieldRow::textEdited, this, [this, key](const QString& text) { write(key, text); });
    connect(row, &FieldRow::tickClicked, this, [this, key] { m_model.toggleBatchInclude(key); });
    m_languages->connectRow(*row, field, code);
    return row;
}

FieldRow* InspectorForm::rowOf(const CustomValue& custom)
{
    const QString key = CustomFields::key(custom.name);
    if (FieldRow* known = m_pool.value(key))
        return known;
    FieldRow* row = makeRow(key, {});
    connect(row, &FieldRow::textEdited, this,
        [this, name = custom.name](const QString& text) { m_model.setCustom(name, text); });
    connect(row, &FieldRow::tickClicked, this, [this, name = custom.name] { m_model.toggleBatchCustom(name); });
    return row;
}

bool InspectorForm::takes(const QString& key) const
{
    return !m_pause->isOn() && !isAwaited(key);
}

void InspectorForm::write(const QString& id, const QString& text)
{
    if (!takes(id))
        return;
    if (m_model.isBatch())
        m_model.setBatch(id, text);
    else
        m_model.setSingle(id, text);
}

void InspectorForm::changeList(const QString& id, const QString& item, bool add)
{
    if (!takes(id))
        return;
    if (m_model.isBatch())
        add ? m_model.addBatchListItem(id, item) : m_model.removeBatchListItem(id, item);
    else
        add ? m_model.addSingleListItem(id, item) : m_model.removeSingleListItem(id, item);
}

void InspectorForm::toggle(const FieldSpec& field)
{
    if (field.isList())
        m_model.clearBatchList(field.id);
    else
        m_model.toggleBatchInclude(field.id);
}

// Top to bottom, as the sections stand: rows are made in the order in which photos need them.
void InspectorForm::orderTabStops()
{
    if (!std::exchange(m_tabOrderStale, false))
        return;
    QList<QWidget*> stops{ m_picker, m_batchPicker, m_banner->agree() };
    const auto take = [&](const FormSection* section) {
        for (const FieldRow* row : section->rows()) {
            stops.append(row->tabStops());
            if (m_keywordRows && row == m_pool.value(FieldID::keywords))
                stops.append(m_keywordStops);
        }
    };
    for (const FormSection* section : m_sections) {
        take(section);
        if (section == m_sections.at(size_t(FieldSection::location)))
            stops.append(m_map->fillLink());
    }
    stops.append(m_iptc->tabStops());
    take(m_customs);
    // A row made late stands behind the rest of the window: what follows the form goes there with it.
    stops.append(m_stopsBehind);
    for (qsizetype i = 1; i < stops.size(); ++i)
        QWidget::setTabOrder(stops.at(i - 1), stops.at(i));
}

}  // namespace Quorbel
