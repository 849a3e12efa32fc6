#include "app/model/templates/Templates.h"

#include "app/model/AppModel.h"
#include "app/model/Background.h"
#include "app/model/RunningTasks.h"
#include "core/language/Texts.h"

#include <QBitArray>

#include <algorithm>
#include <utility>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// So many photos are filled while one waits: what is pressed next finds them filled.
constexpr qsizetype mostAtOnce = 100;

// Whether it fills fields that records know nothing of.
bool needsDetails(const Template& value)
{
    return std::any_of(value.fields.cbegin(), value.fields.cend(),
        [](const TemplateField& field) { return PhotoDetails::hold(field.key); });
}

// "New template", "New template 2", …
QString newName(const QList<TemplateStore::Entry>& entries)
{
    const QString first = Texts::tr("New template");
    QString name = first;
    const auto isTaken = [&] {
        return std::any_of(entries.cbegin(), entries.cend(),
            [&name](const TemplateStore::Entry& entry) { return entry.value().name == name; });
    };
    for (int number = 2; isTaken(); ++number)
        name = first + u' ' + QString::number(number);
    return name;
}

int freeDigit(const TemplateStore& store)
{
    for (int digit = 1; digit <= 9; ++digit)
        if (!store.withDigit(digit))
            return digit;
    return 0;
}

}  // namespace

Templates::Templates(AppModel& model, RunningTasks& tasks, const QString& folder, std::function<Edits()> unsaved)
    : m_model(model)
    , m_tasks(tasks)
    , m_unsaved(std::move(unsaved))
    , m_store(folder)
{
    for (const auto change : { &AppModel::selectionChanged, &AppModel::visibleRowsChanged, &AppModel::recordsChanged,
             &AppModel::editsChanged, &AppModel::detailsChanged })
        connect(&model, change, this, &Templates::forgetPhotos);
    connect(&model, &AppModel::selectionChanged, this, &Templates::giveUp);
    connect(&model, &AppModel::unreadSelectedChanged, this, &Templates::fillSoon);
    connect(&model, &AppModel::isSavingChanged, this, &Templates::canApplyChanged);
    connect(
        &m_store, &TemplateStore::failed, &model, [&model](const QString& problem) { model.setErrorMessage(problem); });
    connect(&m_store, &TemplateStore::imported, this, [this](const QList<int>& ids) { choose(ids.first()); });
    connect(&m_store, &TemplateStore::changed, this, [this] {
        if (!m_store.find(m_current))
            choose(m_store.all().isEmpty() ? 0 : m_store.all().first().id);
        emit canApplyChanged();
    });
}

Templates::~Templates() = default;

// --- The sheet ---

void Templates::setOpen(bool open)
{
    if (open == m_isOpen)
        return;
    m_isOpen = open;
    // What one is renaming stays where it is.
    m_store.setSorting(!open);
    emit openChanged();
}

void Templates::choose(int id)
{
    if (id == m_current)
        return;
    m_current = id;
    emit currentChanged();
}

void Templates::addNew()
{
    choose(m_store.add({ .name = newName(m_store.all()), .digit = freeDigit(m_store) }));
}

bool Templates::canSaveAsTemplate() const
{
    const ImageRecord* photo = m_model.primaryRecord();
    return photo && !photo->isUnread;
}

void Templates::saveAsTemplate()
{
    if (!canSaveAsTemplate())
        return;
    const ImageRecord& photo = *m_model.primaryRecord();
    Template made = TemplateFill::of(newName(m_store.all()), photo, m_unsaved(), m_model.details(photo.url));
    made.digit = freeDigit(m_store);
    choose(m_store.add(made));
    setOpen(true);
}

// --- Filling photos ---

int Templates::photoCount() const
{
    return int(m_model.selection().size());
}

bool Templates::canApply() const
{
    return photoCount() > 0 && !m_pending && !m_model.isSaving();
}

bool Templates::applyDigit(int digit)
{
    const TemplateStore::Entry* entry = m_store.withDigit(digit);
    if (entry)
        apply(entry->id);
    return entry;
}

void Templates::apply(int id)
{
    if (!canApply() || !m_store.find(id))
        return;
    m_pending = id;
    emit canApplyChanged();
    fill();
}

void Templates::fillSoon()
{
    if (m_pending && m_model.unreadSelected() == 0)
        fill();
}

void Templates::fill()
{
    const TemplateStore::Entry* entry = m_store.find(*m_pending);
    if (!entry) {
        m_pending.reset();
        emit canApplyChanged();
        return;
    }
    if (m_model.unreadSelected() > 0)
        return;
    QList<ImageRecord> photos;
    QHash<QUrl, PhotoDetails> details;
    for (const int row : rows()) {
        photos.append(m_model.records().at(row));
        if (const PhotoDetails* known = needsDetails(entry->value()) ? m_model.details(photos.last().url) : nullptr)
            details.insert(photos.last().url, *known);
    }
    if (photos.size() > mostAtOnce)
        fillInBackground(entry->value(), photos, details);
    else
        takeFilled(TemplateFill::edits(entry->value(), photos, m_unsaved(), details));
}

void Templates::fillInBackground(
    const Template& value, const QList<ImageRecord>& photos, const QHash<QUrl, PhotoDetails>& details)
{
    m_tasks.stop(m_task);
    const RunningTasks::Task task = m_tasks.begin(RunningTasks::Kind::fill, photos.size());
    m_task = task.id;
    runInBackground(
        this,
        [value, photos, details, unsaved = m_unsaved(), progress = task.progress, stop = task.stop.get_token()] {
            return TemplateFill::edits(value, photos, unsaved, details, [progress, stop] {
                ++progress->done;
                return !stop.stop_requested();
            });
        },
        [this, id = task.id, ticket = m_ticket](const TemplateFill::Result& result) {
            m_tasks.end(id);
            if (id != m_task)
                return;  // it was given up
            m_task = 0;
            if (ticket == m_ticket)
                takeFilled(result);
            else
                fill();  // what was filled is not what is there now
        });
}

void Templates::cancel()
{
    if (!m_pending)
        return;
    giveUp();
    emit canApplyChanged();
}

// What comes of it is not asked for any more.
void Templates::giveUp()
{
    m_pending.reset();
    if (const int task = std::exchange(m_task, 0); task != 0)
        m_tasks.stop(task);
}

void Templates::takeFilled(const TemplateFill::Result& result)
{
    m_pending.reset();
    if (!result.edits.isEmpty())
        m_model.layEdits(result.edits);
    if (!result.refusals.isEmpty())
        //: %1 names fields, and why a text cannot stand in them
        m_model.setErrorMessage(Texts::tr("Not filled in: %1").arg(result.refusals.join(u"; "_s)));
    emit canApplyChanged();
}

// --- What it would come to ---

void Templates::forgetPhotos()
{
    ++m_ticket;
    m_rows.reset();
    emit photosChanged();
    emit canApplyChanged();
}

const QList<int>& Templates::rows() const
{
    if (m_rows)
        return *m_rows;
    QBitArray isSelected(m_model.records().size());
    for (const int row : m_model.selectedRows())
        isSelected.setBit(row);
    QList<int> rows;
    for (const int row : m_model.visibleRows())
        if (isSelected.testBit(row)) {
            rows.append(row);
            isSelected.clearBit(row);
        }
    // Those that the list does not show now come last.
    for (const int row : m_model.selectedRows())
        if (isSelected.testBit(row))
            rows.append(row);
    m_rows = rows;
    return *m_rows;
}

QString Templates::photoName(int place) const
{
    return place >= 0 && place < rows().size() ? m_model.records().at(rows().at(place)).fileName : QString();
}

QList<FilledField> Templates::preview(int place) const
{
    const TemplateStore::Entry* entry = m_store.find(m_current);
    if (!entry || place < 0 || place >= rows().size())
        return {};
    const ImageRecord& photo = m_model.records().at(rows().at(place));
    if (photo.isUnread)
        return {};
    return TemplateFill::fill(entry->value(), { photo, place, m_model.details(photo.url) }, m_unsaved());
}

}  // namespace Quorbel
