// What is edited beside the values of the records: texts in further languages, keyword paths, what other homes hold.
#include "app/model/edits/Editing.h"
#include "core/details/FileHome.h"
#include "core/iptc/IptcSchema.h"
#include "core/save/ListHomes.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/KeywordPath.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// The code, where the key is one of this field's languages.
std::optional<QString> codeIn(const QString& key, const QString& id)
{
    const auto language = FieldLanguages::languageIn(key);
    return language && language->field->id == id ? std::optional(language->code) : std::nullopt;
}

// In the form in which the record has them.
QStringList shownItems(const QStringList& stored)
{
    QStringList items;
    for (const QString& item : stored)
        if (const QString shown = ListHomes::shownText(item); !shown.isEmpty() && !items.contains(shown))
            items.append(shown);
    return items;
}

}  // namespace

// --- What is known ---

// What is known stays until something else is: between a save and the look at what it wrote, what it wrote.
void Editing::takeDetails()
{
    const ImageRecord* record = m_selected.primaryRecord();
    const PhotoDetails* details = record ? m_details.of(record->url) : nullptr;
    if (!details || m_known.said == *details)
        return;
    m_known = { *details, *details };
    m_known.now.url = record->url;  // nothing known is told without one
    layDraft();
    changed();
}

bool Editing::isOutOfReach(const QString& key) const
{
    const ImageRecord* record = isBatch() || knowsDetails() ? nullptr : m_selected.primaryRecord();
    return record && PhotoDetails::hold(key) && m_details.isUnreadable(record->url);
}

// What was written is what the photo holds, before anybody looked.
void Editing::noteSaved(const Edits& written, const QSet<QString>& differing)
{
    const std::optional<QUrl>& primary = m_selected.selection().primary;
    const Edits saved = primary ? written.of(*primary) : written;
    for (const QString& key : saved.keys()) {
        if (differing.contains(key))
            continue;
        m_known.now.disagreements.remove(key);
        if (!PhotoDetails::hold(key))
            continue;
        if (IptcSchema::isId(key) && !saved.scalars.contains(key)) {
            noteSavedItems(saved, key);
            continue;
        }
        if (const QString text = saved.scalars.value(key); !text.isEmpty())
            m_known.now.texts.insert(key, text);
        else if (m_known.now.texts.remove(key); !m_draft.edits.edited(key) && !m_batch.edits.edited(key))
            m_languages.remove(key);
    }
    for (const QString& path : saved.paths)
        if (!m_known.now.paths.contains(path) && !differing.contains(FieldID::keywords))
            m_known.now.paths.append(path);
}

void Editing::noteSavedItems(const Edits& saved, const QString& id)
{
    QStringList items = saved.lists.value(id, m_known.now.lists.value(id));
    for (const QString& item : saved.added.value(id))
        if (!items.contains(item))
            items.append(item);
    items.removeIf([gone = saved.removed.value(id)](const QString& item) { return gone.contains(item); });
    if (items.isEmpty())
        m_known.now.lists.remove(id);
    else
        m_known.now.lists.insert(id, items);
}

// --- Languages ---

QStringList Editing::heldLanguages(const QString& id) const
{
    if (isBatch())
        return m_details.codes(id);
    QStringList codes;
    for (auto text = m_known.now.texts.cbegin(); text != m_known.now.texts.cend(); ++text)
        if (const auto code = codeIn(text.key(), id))
            codes.append(*code);
    return codes;
}

// One that was taken away is not on screen; one whose text was cleared in its row is.
QStringList Editing::languages(const QString& id) const
{
    const QMap<QString, QString>& texts = (isBatch() ? m_batch.edits : m_draft.edits).scalars;
    QStringList codes = heldLanguages(id);
    for (const QStringList& keys : { m_languages.values(), texts.keys(), m_told.batchOwn.keys() })
        for (const QString& key : keys)
            if (const auto code = codeIn(key, id))
                codes.append(*code);
    codes.removeIf([&](const QString& code) {
        const QString key = FieldLanguages::key(id, code);
        return texts.contains(key) && texts.value(key).isEmpty() && !m_languages.contains(key);
    });
    codes.sort();
    codes.removeDuplicates();
    return codes;
}

// As the photos spell it, where they hold it.
QString Editing::languageKey(const QString& id, const QString& code) const
{
    for (const QString& held : heldLanguages(id) + languages(id))
        if (held.compare(code, Qt::CaseInsensitive) == 0)
            return FieldLanguages::key(id, held);
    return FieldLanguages::key(id, FieldLanguages::spelling(code));
}

void Editing::addLanguage(const QString& id, const QString& code)
{
    const QString key = languageKey(id, code);
    if (isUnread() || !FieldLanguages::languageIn(key) || m_languages.contains(key) || isOutOfReach(key))
        return;
    const QMap<QString, QString>& texts = (isBatch() ? m_batch.edits : m_draft.edits).scalars;
    if (texts.contains(key) && texts.value(key).isEmpty())
        forgetText(key);
    m_languages.insert(key);
    changed();
}

void Editing::removeLanguage(const QString& id, const QString& code)
{
    const QString key = languageKey(id, code);
    if (isUnread() || !FieldLanguages::languageIn(key))
        return;
    m_languages.remove(key);
    if (!heldLanguages(id).contains(FieldLanguages::languageIn(key)->code))
        forgetText(key);
    else if (isBatch())
        m_batch.setScalar(key, {});
    else
        m_draft.confirmScalar(key, {});
    changed();
}

void Editing::forgetText(const QString& key)
{
    if (isBatch())
        return m_batch.forget(key);
    m_draft.forget(key);
    layDraft();
}

// --- Keyword paths ---

// A keyword that was typed with its parents brings its path along, unless the photo is known to hold that.
void Editing::addItem(const QString& id, const QString& item)
{
    const auto path = id == FieldID::keywords ? KeywordPath::fromTyped(item) : std::nullopt;
    if (isBatch() && path)
        m_batch.addPath(*path);
    else if (isBatch())
        m_batch.addItem(id, item);
    else if (path && !m_known.now.paths.contains(*path))
        m_draft.addPath(*path);
    else
        m_draft.addItem(id, path ? KeywordPath::keyword(*path) : item);
}

// Whether the photo holds the keyword, and is to lose it.
bool Editing::isTakenAway(const QString& keyword) const
{
    const ImageRecord* record = isBatch() ? nullptr : m_selected.primaryRecord();
    return record && record->lists.value(FieldID::keywords).contains(keyword)
        && !m_draft.shown.lists.value(FieldID::keywords).contains(keyword);
}

QStringList Editing::pathsOf(const QString& keyword) const
{
    if (isTakenAway(keyword))
        return {};
    QStringList found;
    const auto take = [&](const QStringList& paths) {
        for (const QString& path : paths)
            if (QStringView(path).sliced(path.lastIndexOf(u'|') + 1) == keyword && !found.contains(path))
                found.append(path);
    };
    take(isBatch() ? m_details.pathsOf(keyword) : m_known.now.paths);
    take(typedPaths());
    return found;
}

// --- Homes that disagree ---

QList<FieldHome> Editing::differingHomes(const QString& id) const
{
    if (isBatch() || isUnread() || m_draft.edits.edited(id))
        return {};
    QList<FieldHome> homes = m_known.now.disagreements.value(id);
    for (FieldHome& home : homes)
        home = FileHome::named(home, m_known.now.url.fileName());
    return homes;
}

void Editing::useHome(const QString& id, const FieldHome& home)
{
    const FieldSpec* field = FieldSchema::spec(id);
    if (!field || isBatch() || isUnread())
        return;
    const QStringList items = shownItems(home.values);
    if (field->isList()) {
        // Who takes one list for all has seen the others.
        QStringList givenUp;
        for (const FieldHome& other : m_known.now.disagreements.value(id))
            givenUp += shownItems(other.values);
        givenUp.removeIf([&items](const QString& item) { return items.contains(item); });
        givenUp.removeDuplicates();
        m_draft.confirmList(id, items, givenUp);
    } else {
        m_draft.confirmScalar(id, home.values.join(u", "_s));
    }
    changed();
}

}  // namespace Quorbel
