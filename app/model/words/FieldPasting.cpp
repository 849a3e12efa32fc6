#include "app/model/words/FieldPasting.h"

#include "app/model/AppModel.h"
#include "app/model/Background.h"
#include "core/language/Texts.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// So few photos are counted at once: the sheet opens with its numbers.
constexpr qsizetype countedAtOnce = 100;

QString mimeType()
{
    return u"application/x-quorbel-fields+json"_s;
}

// As text, too: managers of clipboards keep nothing else when the program ends.
void putOnClipboard(const QByteArray& text)
{
    auto* data = new QMimeData;
    data->setData(mimeType(), text);
    data->setText(QString::fromUtf8(text));
    QGuiApplication::clipboard()->setMimeData(data);
}

// What may be fields; empty where there is nothing of the kind.
QByteArray clipboardText()
{
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (!data)
        return {};
    if (data->hasFormat(mimeType()))
        return data->data(mimeType());
    const QString text = data->hasText() ? data->text() : QString();
    return text.size() <= CopiedFields::largest ? text.toUtf8() : QByteArray();
}

}  // namespace

FieldPasting::FieldPasting(AppModel& model, Parts parts)
    : m_model(model)
    , m_parts(std::move(parts))
    , m_lastCopy(m_parts.lastCopyPath)
    , m_storedTicks(model.preferences(), "pasteTicks", {})
{
    readTicks();
    connectModel();
}

FieldPasting::~FieldPasting() = default;

void FieldPasting::connectModel()
{
    for (const auto changed : { &AppModel::selectionChanged, &AppModel::recordsChanged, &AppModel::editsChanged,
             &AppModel::unreadSelectedChanged, &AppModel::detailsChanged })
        connect(&m_model, changed, this, [this] {
            if (m_isOpen && !canPaste())
                close();
            count();
        });
    connect(&m_model, &AppModel::detailsChanged, this, &FieldPasting::addDetails);
}

// --- Copying ---

bool FieldPasting::canCopy() const
{
    const ImageRecord* record = m_model.primaryRecord();
    return record && !record->isUnread;
}

void FieldPasting::copy()
{
    requireMainThread("copy");
    m_unfinished.reset();
    if (!canCopy())
        return;
    const ImageRecord& record = *m_model.primaryRecord();
    const PhotoDetails* details = m_model.details(record.url);
    const Edits unsaved = m_parts.unsaved().of(record.url);
    const QStringList paths = (details ? details->paths : QStringList()) + unsaved.paths;
    CopiedFields fields =
        CopiedFields::of(record.url.toLocalFile(), unsaved.onto(record, details ? *details : PhotoDetails()), paths);
    fields.copiedAt = m_model.now();
    const QString name = record.fileName;
    if (fields.edits.isEmpty())
        return m_model.setErrorMessage(Texts::tr("“%1” has no fields to copy.").arg(name));
    if (!details) {
        m_unfinished = { .fields = fields, .photo = record.url };
        for (auto text = unsaved.scalars.cbegin(); text != unsaved.scalars.cend(); ++text)
            if (text->isEmpty())
                m_unfinished->cleared.insert(text.key());
    }
    offer(fields);
}

void FieldPasting::offer(CopiedFields fields)
{
    const QByteArray text = fields.toJson();
    if (text.size() > CopiedFields::largest)
        return m_model.setErrorMessage(Texts::tr("The texts of “%1” are too long to be copied.")
                                           .arg(QUrl::fromLocalFile(fields.photo).fileName()));
    if (m_unfinished)
        m_unfinished->text = text;
    putOnClipboard(text);
    m_lastCopy.keep(text);
}

// Languages and keyword paths are read later than all else: they join what was copied, as long as it is there.
void FieldPasting::addDetails()
{
    const PhotoDetails* details = m_unfinished ? m_model.details(m_unfinished->photo) : nullptr;
    if (!details)
        return;
    const Unfinished copied = *std::exchange(m_unfinished, std::nullopt);
    CopiedFields fields = copied.fields;
    ExternalRefresh::Drafts more;
    for (auto text = details->texts.cbegin(); text != details->texts.cend(); ++text)
        if (!fields.edits.scalars.contains(text.key()) && !copied.cleared.contains(text.key()))
            more.values.insert(text.key(), *text);
    more.lists = fields.edits.added;
    for (auto list = details->lists.cbegin(); list != details->lists.cend(); ++list)
        if (!more.lists.contains(list.key()) && !copied.cleared.contains(list.key()))
            more.lists.insert(list.key(), *list);
    const Edits late = CopiedFields::of({}, more, details->paths).edits;
    fields.edits = fields.edits.merged(late);
    if (fields != copied.fields && clipboardText() == copied.text)
        offer(fields);
}

// --- Pasting ---

bool FieldPasting::canPaste() const
{
    const ImageRecord* record = m_model.isBatch() ? nullptr : m_model.primaryRecord();
    return m_model.isBatch() || (record && !record->isUnread);
}

bool FieldPasting::readFields()
{
    using Refusal = CopiedFields::Refusal;
    auto read = CopiedFields::fromJson(clipboardText());
    // What is of a later version was copied to be pasted; for all else, what was copied last is meant.
    if (const Refusal* refusal = std::get_if<Refusal>(&read); refusal && *refusal != Refusal::newer)
        read = CopiedFields::fromJson(m_lastCopy.text());
    if (const auto* fields = std::get_if<CopiedFields>(&read)) {
        m_fields = *fields;
        return true;
    }
    m_model.setErrorMessage(std::get<Refusal>(read) == Refusal::newer
            ? Texts::tr("These fields were copied by a newer version of Quorbel.")
            : Texts::tr("No fields were copied yet. Edit ▸ Copy Fields takes those of the selected photo."));
    return false;
}

void FieldPasting::ask()
{
    requireMainThread("ask");
    if (m_isOpen || !canPaste() || !readFields())
        return;
    readTicks();
    m_counts.clear();
    m_isOpen = true;
    count();
    emit openChanged();
}

void FieldPasting::pasteAgain()
{
    requireMainThread("pasteAgain");
    if (m_isOpen || !canPaste() || !readFields())
        return;
    readTicks();
    if (const QSet<QString> keys = tickedKeys(); !keys.isEmpty())
        lay(keys);
    else
        ask();
}

void FieldPasting::paste()
{
    requireMainThread("paste");
    const QSet<QString> keys = tickedKeys();
    if (!m_isOpen || !canPaste() || keys.isEmpty())
        return;
    rememberTicks();
    close();
    lay(keys);
}

void FieldPasting::lay(const QSet<QString>& keys)
{
    Edits edits = m_fields.chosen(keys);
    for (CustomValue& custom : edits.customs)
        custom.name = m_model.storedCustomName(custom.name).value_or(custom.name);
    if (!m_model.isBatch()) {
        // The list of one photo is replaced as it is on screen, so that what was typed before stays. One that is not
        // known yet gains the items.
        const auto isUnknown = [this](const QString& id) { return PhotoDetails::hold(id) && !m_model.knowsDetails(); };
        for (auto items = edits.added.cbegin(); items != edits.added.cend(); ++items) {
            if (isUnknown(items.key()))
                continue;
            QStringList list = m_model.draftLists().value(items.key());
            for (const QString& item : *items)
                if (!list.contains(item))
                    list.append(item);
            edits.lists.insert(items.key(), list);
        }
        edits.added.removeIf([&isUnknown](const auto& items) { return !isUnknown(items.key()); });
    } else if (m_model.unreadSelected() == 0) {
        // What all of them hold is no edit.
        edits.scalars.removeIf([this, unsaved = m_parts.unsaved()](const auto& text) {
            return !unsaved.edited(text.key()) && !m_model.batchValues().contains(text.key())
                && m_model.sharedValue(text.key()) == text.value();
        });
    }
    m_model.layEdits(edits);
}

// --- The sheet ---

void FieldPasting::close()
{
    if (!std::exchange(m_isOpen, false))
        return;
    m_isStale = false;
    emit openChanged();
}

QList<FieldPasting::Row> FieldPasting::rows() const
{
    QList<Row> rows;
    for (const QString& key : PasteSummary::lineKeys(m_fields)) {
        const PasteCount count = m_counts.value(key);
        const bool on = isTicked(key);
        rows.append({ .key = key,
            .label = labelOfKey(key),
            .value = PasteSummary::shownValue(m_fields, key),
            .note = m_counts.isEmpty() ? QString() : PasteSummary::line(key, count, on),
            .isTicked = on,
            .losesText = count.replaced > 0 });
    }
    return rows;
}

int FieldPasting::tickedCount() const
{
    return int(tickedKeys().size());
}

int FieldPasting::unreadPhotos() const
{
    return m_model.unreadSelected();
}

void FieldPasting::setTicked(const QString& key, bool on)
{
    m_ticks.insert(key, on);
    emit changed();
}

void FieldPasting::tickAll(bool on)
{
    for (const QString& key : m_fields.keys())
        m_ticks.insert(key, on);
    emit changed();
}

bool FieldPasting::isTicked(const QString& key) const
{
    return m_ticks.value(key, PasteSummary::isTickedAtFirst(key));
}

QSet<QString> FieldPasting::tickedKeys() const
{
    QSet<QString> keys;
    for (const QString& key : m_fields.keys())
        if (isTicked(key))
            keys.insert(key);
    return keys;
}

void FieldPasting::readTicks()
{
    m_ticks.clear();
    const QJsonObject stored = QJsonDocument::fromJson(m_storedTicks().toUtf8()).object();
    for (auto tick = stored.begin(); tick != stored.end(); ++tick)
        if (tick->isBool())
            m_ticks.insert(tick.key(), tick->toBool());
}

void FieldPasting::rememberTicks()
{
    QJsonObject stored;
    for (auto tick = m_ticks.cbegin(); tick != m_ticks.cend(); ++tick)
        stored.insert(tick.key(), *tick);
    m_storedTicks.set(QString::fromUtf8(QJsonDocument(stored).toJson(QJsonDocument::Compact)));
}

QList<PasteSummary::Photo> FieldPasting::countedPhotos() const
{
    const QList<ImageRecord>& records = m_model.records();
    QList<PasteSummary::Photo> photos;
    photos.reserve(m_model.selectedRows().size());
    for (const int row : m_model.selectedRows()) {
        const ImageRecord& record = records.at(row);
        const PhotoDetails* details = m_model.details(record.url);
        if (!record.isUnread)
            photos.append({ record, details ? std::optional(*details) : std::nullopt });
    }
    return photos;
}

void FieldPasting::count()
{
    if (!m_isOpen)
        return;
    m_isStale = m_isCounting;
    if (m_isCounting)
        return;
    const auto photos = countedPhotos();
    if (photos.size() <= countedAtOnce)
        return takeCounts(PasteSummary::counts(m_fields, m_parts.unsaved(), photos));
    m_isCounting = true;
    runInBackground(
        this,
        [fields = m_fields, unsaved = m_parts.unsaved(), photos] {
            return PasteSummary::counts(fields, unsaved, photos);
        },
        [this](const QMap<QString, PasteCount>& counts) {
            m_isCounting = false;
            if (m_isStale)
                count();
            else
                takeCounts(counts);
        });
}

void FieldPasting::takeCounts(const QMap<QString, PasteCount>& counts)
{
    m_counts = counts;
    emit changed();
}

}  // namespace Quorbel
