#include "ui/inspector/InspectorForm.h"

#include "app/model/AppModel.h"
#include "app/model/fieldsets/FieldSets.h"
#include "core/iptc/IptcSchema.h"
#include "core/language/Texts.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/inspector/BesideSet.h"
#include "ui/inspector/CameraSection.h"
#include "ui/inspector/CustomFieldsSection.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/FormLanguages.h"
#include "ui/inspector/FormPause.h"
#include "ui/inspector/FormRows.h"
#include "ui/inspector/FormSection.h"
#include "ui/inspector/InspectorStates.h"
#include "ui/inspector/WantedFields.h"
#include "ui/inspector/head/FormHead.h"
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

constexpr int blocksDelay = 150;  // milliseconds in which a record may come before anything changes

// The fields of the usual photo: those that are always shown, and the rating.
QList<FieldSpec> usualFields()
{
    QList<FieldSpec> fields = FieldSchema::all();
    fields.removeIf([](const FieldSpec& field) { return !field.alwaysShown && field.kind != FieldKind::rating; });
    return fields;
}

}  // namespace

InspectorForm::InspectorForm(
    AppModel& model, ThumbnailStore* thumbs, PlaceProvider* places, MapRenderer* maps, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_column(new QVBoxLayout(this))
    , m_head(new FormHead(model, thumbs))
    , m_languages(new FormLanguages(model, this))
    , m_rows(new FormRows(model, { places, m_languages, [this](const QString& key) { return takes(key); } }, this))
    , m_iptc(new IptcSections(model, [this](const QStringList& ids, bool fresh) { return rowsOf(ids, fresh); }))
    , m_customs(new CustomFieldsSection(model, *m_rows))
    , m_beside(new BesideSet(model, [this](const QStringList& ids, bool fresh) { return rowsOf(ids, fresh); }))
    //: Heads what the camera noted, in capitals; and beside it that nobody can change that.
    , m_cameraSection(new FormSection(Texts::tr("CAMERA"), Texts::tr("read-only")))
    , m_map(new LocationMap(places, maps))
    , m_camera(new CameraSection)
    , m_pause(new FormPause(this))
    , m_wait(new DetailsWait(model, this))
    , m_waitPause(new FormPause(this))
{
    m_column->setSpacing(0);
    m_column->addWidget(m_head);
    for (size_t i = 0; i < m_sections.size(); ++i) {
        m_sections.at(i) = new FormSection(Texts::shown(rawValue(FieldSection(i))));
        m_column->addWidget(m_sections.at(i));
    }
    m_sections.at(size_t(FieldSection::location))->setUnderRows(m_map);
    m_column->addWidget(m_iptc);
    m_column->addWidget(m_customs);
    m_column->addWidget(m_beside);
    m_cameraSection->setUnderRows(m_camera);
    m_column->addWidget(m_cameraSection);
    m_column->addStretch();
    connect(m_map, &LocationMap::found, &m_model, &AppModel::fillPlaceNames);
    connect(m_languages, &FormLanguages::changed, this, &InspectorForm::showAgain);
    connect(m_iptc, &IptcSections::changed, this, &InspectorForm::showAgain);
    connect(m_beside, &BesideSet::changed, this, &InspectorForm::showAgain);
    connect(m_rows, &FormRows::tabStopsChanged, this, [this] { m_tabOrderStale = true; });
    // What opens in a row without a change of the model is put in order once it stands.
    connect(m_rows, &FormRows::tabStopsChangedLate, this, [this] {
        m_tabOrderStale = true;
        QMetaObject::invokeMethod(this, &InspectorForm::orderTabStops, Qt::QueuedConnection);
    });
    connect(m_wait, &DetailsWait::late, this, &InspectorForm::showAgain);
    connect(m_languages, &FormLanguages::focusAsked, this, &InspectorForm::fieldAdded);
    connect(m_customs, &CustomFieldsSection::fieldAdded, this, &InspectorForm::fieldAdded);
    m_blocksSoon.setSingleShot(true);
    m_blocksSoon.setInterval(blocksDelay);
    connect(&m_blocksSoon, &QTimer::timeout, this, &InspectorForm::showBlocks);
    onRestyle(this, [this] { setBottomInset(m_bottomInset); });
}

void InspectorForm::setBottomInset(int pixels)
{
    m_bottomInset = pixels;
    m_column->setContentsMargins(
        mirrored(QMargins(px(side - FormSection::dotRoom), px(top), px(side), px(bottom) + pixels)));
}

void InspectorForm::refresh()
{
    m_head->refresh();
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
    m_customs->refresh(fresh);
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
    hideBelowSections();
}

void InspectorForm::hideBelowSections()
{
    m_iptc->hide();
    m_beside->hide();
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
    setAccessibleName(Texts::tr("Reading metadata"));
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
            rows.append(m_rows->of(field));
            rows.last()->setState(InspectorStates::unreadRow(m_model, field), true);
        }
        m_sections.at(i)->setRows(rows);
        m_sections.at(i)->setVisible(!rows.isEmpty());
    }
    if (m_keywordRows)
        m_keywordRows->hide();
    hideBelowSections();
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
    m_beside->setAttribute(Qt::WA_TransparentForMouseEvents, !on);
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

void InspectorForm::showSections(bool fresh)
{
    for (size_t i = 0; i < m_sections.size(); ++i)
        showSection(FieldSection(i), fresh);
    if (m_beside->refresh(withHeld(m_model.fieldSets().beside(), m_shownIds.back()), fresh))
        m_tabOrderStale = true;
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
    showKeywordRows();
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
    m_keywordRows = new KeywordRows(m_model, this);
    m_keywordRows->hide();
    m_sections.at(size_t(field.section))->setBelow(m_rows->of(field), m_keywordRows);
    m_beside->setBelow(m_rows->of(field), m_keywordRows);
}

void InspectorForm::showKeywordRows()
{
    if (!m_keywordRows)
        return;
    m_keywordRows->refresh();
    if (!row(FieldID::keywords))
        m_keywordRows->hide();
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
        FieldRow* row = m_rows->of(field);
        rows.append(row);
        FieldRowState state = InspectorStates::fieldRow(m_model, field);
        state.languages.isOpen = m_languages->isOpen(id);
        state.heldLine = m_iptc->heldText(id);
        state.isNamed = m_shownIds.back().contains(id);
        WantedFields::show(m_model.fieldSets(), id, state);
        // One that was not on screen shows another photo's text, if any.
        const bool isNew = fresh || row->isHidden() || (m_wait->hasJustEnded() && IptcSchema::isId(id));
        row->setState(state, isNew);
        addLanguageRows(field, isNew, rows);
    }
    return rows;
}

// What may stay for a moment stays: also what the photo before had, and this one has perhaps.
QStringList InspectorForm::withHeld(QStringList ids, QStringList& shown) const
{
    for (qsizetype i = 0; m_wait->isHolding() && i < shown.size(); ++i)
        if (IptcSchema::isId(shown.at(i)) && !ids.contains(shown.at(i)))
            ids.insert(i == 0 ? 0 : ids.indexOf(shown.at(i - 1)) + 1, shown.at(i));
    shown = ids;
    return ids;
}

void InspectorForm::showSection(FieldSection section, bool fresh)
{
    FormSection* form = m_sections.at(size_t(section));
    const QStringList ids = withHeld(m_model.fieldSets().visible(section), m_shownIds.at(size_t(section)));
    const QList<FieldRow*> rows = rowsOf(ids, fresh);
    form->setRows(rows);
    form->setNote(WantedFields::line(m_model.fieldSets(), section));
    form->setVisible(!rows.isEmpty());
}

void InspectorForm::addAwaitedRows(const FieldSpec& field, QList<FieldRow*>& rows)
{
    FieldRow* row = m_rows->of(field);
    rows.append(row);
    if (!m_wait->isHolding() || row->isHidden())
        return row->setState(InspectorStates::unreadRow(m_model, field), true);
    for (const RowLanguages::Code& code : row->state().languages.codes)
        if (FieldRow* language = this->row(FieldLanguages::key(field.id, code.text)))
            rows.append(language);
}

void InspectorForm::addLanguageRows(const FieldSpec& field, bool fresh, QList<FieldRow*>& rows)
{
    const QStringList codes = m_languages->shownCodes(field.id);
    for (const QString& code : codes) {
        FieldRow* row = m_rows->of(field, code);
        const bool isLast = code == codes.constLast();
        // One that was not on screen shows another photo's text, if any.
        row->setState(InspectorStates::languageRow(m_model, field, code, isLast), fresh || row->isHidden());
        rows.append(row);
    }
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
    FieldRow* found = m_rows->find(id);
    return found && !found->isHidden() ? found : nullptr;
}

QString InspectorForm::keyOf(const QWidget* widget) const
{
    return m_rows->keyOf(widget);
}

FieldRow* InspectorForm::reveal(const QString& id)
{
    const auto language = FieldLanguages::languageIn(id);
    if (m_beside->holds(language ? language->field->id : id))
        m_beside->unfold();
    else
        m_iptc->reveal(id);
    return row(id);
}

bool InspectorForm::takes(const QString& key) const
{
    return !m_pause->isOn() && !isAwaited(key);
}

// Top to bottom, as the sections stand: rows are made in the order in which photos need them.
void InspectorForm::orderTabStops()
{
    if (!std::exchange(m_tabOrderStale, false))
        return;
    QList<QWidget*> stops = m_head->tabStops();
    const auto take = [&](const QList<FieldRow*>& rows) {
        for (const FieldRow* row : rows) {
            stops.append(row->tabStops());
            if (m_keywordRows && row == m_rows->find(FieldID::keywords))
                stops.append(m_keywordStops);
        }
    };
    for (const FormSection* section : m_sections) {
        take(section->rows());
        if (section == m_sections.at(size_t(FieldSection::location)))
            stops.append(m_map->fillLink());
    }
    stops.append(m_iptc->tabStops());
    take(m_customs->rows());
    if (QWidget* heading = m_beside->heading())
        stops.append(heading);
    take(m_beside->rows());
    // A row made late stands behind the rest of the window: what follows the form goes there with it.
    stops.append(m_stopsBehind);
    for (qsizetype i = 1; i < stops.size(); ++i)
        QWidget::setTabOrder(stops.at(i - 1), stops.at(i));
}

}  // namespace Quorbel
