#include "app/model/words/QuickKeywords.h"

#include "app/model/AppModel.h"
#include "core/language/Texts.h"
#include "core/schema/FieldID.h"
#include "core/schema/KeywordPath.h"
#include "core/text/Text.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

QuickKeywords::QuickKeywords(AppModel& model)
    : m_model(model)
    , m_storedSets(model.preferences(), "quickKeywordSets", {})
    , m_storedCurrent(model.preferences(), "quickKeywordSet", {})
    , m_storedLast(model.preferences(), "lastKeywords", {})
{
    m_sets = QuickSets::fromText(m_storedSets());
    m_last = QuickSets::used(m_storedLast(), {}, withKeys);
    connect(&model, &AppModel::isSavingChanged, this, [this] {
        if (m_model.isSaving())
            noteUsed();
    });
}

QuickKeywords::~QuickKeywords() = default;

int QuickKeywords::position(const QString& name) const
{
    for (int i = 0; i < int(m_sets.size()); ++i)
        if (m_sets.at(i).name == name)
            return i;
    return -1;
}

QString QuickKeywords::current() const
{
    return position(m_storedCurrent()) < 0 ? QString() : m_storedCurrent();
}

QStringList QuickKeywords::keywords() const
{
    const int shown = position(m_storedCurrent());
    return shown < 0 ? m_last : m_sets.at(shown).keywords;
}

void QuickKeywords::show(const QString& name)
{
    m_storedCurrent.set(name);
    emit changed();
}

bool QuickKeywords::canGive() const
{
    return !m_model.selection().isEmpty() && m_model.unreadSelected() < m_model.selection().size();
}

void QuickKeywords::give(int position)
{
    const QString keyword = keywords().value(position);
    if (keyword.isEmpty() || !canGive())
        return;
    if (m_model.isBatch())
        m_model.addBatchListItem(FieldID::keywords, keyword);
    else
        m_model.addSingleListItem(FieldID::keywords, keyword);
}

// --- Those that were used last ---

// What a save that begins adds to photos: what was only typed may have been a slip.
void QuickKeywords::noteUsed()
{
    QStringList added = m_model.batchLists().value(FieldID::keywords);
    if (const ImageRecord* record = m_model.isBatch() ? nullptr : m_model.primaryRecord();
        record && m_model.editedSingle().contains(FieldID::keywords)) {
        const QStringList held = record->lists.value(FieldID::keywords);
        added = m_model.draftLists().value(FieldID::keywords);
        added.removeIf([&held](const QString& keyword) { return held.contains(keyword); });
    }
    for (QString& keyword : added)
        for (const QString& path : m_model.typedPaths())
            if (KeywordPath::keyword(path) == keyword)
                keyword = path;
    if (added.isEmpty())
        return;
    std::reverse(added.begin(), added.end());
    m_storedLast.set(QuickSets::used(added, m_storedLast(), withKeys));
    m_last = QuickSets::placed(m_storedLast(), m_last);
    emit changed();
}

// --- Sets ---

void QuickKeywords::edit(std::optional<Edited> edited)
{
    if (edited == m_edited)
        return;
    m_edited = std::move(edited);
    emit editedChanged();
}

void QuickKeywords::beginNew()
{
    edit(Edited{ .set = { .keywords = current().isEmpty() ? m_last : QStringList() } });
}

void QuickKeywords::beginChange()
{
    if (const int shown = position(m_storedCurrent()); shown >= 0)
        edit(Edited{ m_sets.at(shown).name, m_sets.at(shown) });
}

std::optional<QString> QuickKeywords::problem(const QString& name) const
{
    const QString wanted = Text::trimmed(name);
    if (wanted.isEmpty())
        return Texts::tr("A set needs a name");
    if (m_edited && wanted != m_edited->before && position(wanted) >= 0)
        return Texts::tr("There is a set of this name already");
    return std::nullopt;
}

void QuickKeywords::store(const QuickSet& set)
{
    if (!m_edited || problem(set.name))
        return;
    const QuickSet stored{ Text::trimmed(set.name), set.keywords };
    if (const int known = position(m_edited->before); known >= 0)
        m_sets[known] = stored;
    else
        m_sets.append(stored);
    keep();
    edit(std::nullopt);
    show(stored.name);
}

void QuickKeywords::remove()
{
    if (!m_edited)
        return;
    if (const int known = position(m_edited->before); known >= 0)
        m_sets.removeAt(known);
    keep();
    edit(std::nullopt);
    emit changed();
}

void QuickKeywords::cancel()
{
    edit(std::nullopt);
}

void QuickKeywords::keep()
{
    m_storedSets.set(QuickSets::toText(m_sets));
}

}  // namespace Quorbel
