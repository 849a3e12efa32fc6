#include "app/model/fieldsets/FieldSets.h"

#include "app/model/AppModel.h"
#include "core/iptc/FieldAdvice.h"
#include "core/language/Texts.h"
#include "core/text/Text.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

FieldSets::FieldSets(AppModel& model, Reach reach)
    : m_model(model)
    , m_reach(std::move(reach))
    , m_storedSets(model.preferences(), "fieldSets", {})
    , m_storedCurrent(model.preferences(), "fieldSet", {})
    , m_storedOffered(model.preferences(), "fieldSetsOffered", false)
{
    m_own = FieldSetTexts::fromText(m_storedSets());
    m_own.removeIf([](const FieldSet& set) { return problem({ { {}, set } }).has_value(); });
    lead();
}

FieldSets::~FieldSets() = default;

QString FieldSets::usual()
{
    return Texts::mark("Default");
}

QStringList FieldSets::names() const
{
    QStringList names{ usual() };
    for (const FieldSet& set : FieldSetTexts::builtIn() + m_own)
        names.append(set.name);
    return names;
}

const FieldSet* FieldSets::find(const QString& name) const
{
    for (const QList<FieldSet>* sets : { &FieldSetTexts::builtIn(), &m_own })
        for (const FieldSet& set : *sets)
            if (set.name == name)
                return &set;
    return nullptr;
}

QString FieldSets::current() const
{
    const FieldSet* set = chosen();
    return set ? set->name : usual();
}

void FieldSets::choose(const QString& name)
{
    requireMainThread("choose");
    const FieldSet* set = find(name);
    m_storedCurrent.set(set ? set->name : QString());
    if (set)
        m_storedOffered.set(true);
    lead();
    emit changed();
}

bool FieldSets::isOffered() const
{
    return m_storedOffered() || !m_own.isEmpty();
}

// What is on screen and where the way from gap to gap leads follow the set.
void FieldSets::lead()
{
    const FieldSet* set = chosen();
    m_reach.showOnly(set ? std::optional(QSet<QString>(set->fields.cbegin(), set->fields.cend())) : std::nullopt);
    if (!hasWanted())
        return m_model.filtering().setCourse(std::nullopt);
    m_model.filtering().setCourse(Filtering::Course{ FieldSetTexts::formOrder(),
        [this] {
            return Filtering::Course::Found{ gaps(), isAllKnown() };
        },
        [this](int position) { return gapsOf(position); }, m_reach.require });
}

// --- What is on screen ---

// Nobody asked for it, and no field that somebody asked for calls for it.
bool FieldSets::isBeside(const QString& id) const
{
    const FieldSet* set = chosen();
    if (!set || set->fields.contains(id) || m_model.sessionAddedKnownIDs().contains(id))
        return false;
    const QString other = FieldAdvice::companionsOf(id);
    const QString value = !m_model.isBatch()    ? m_model.draftValues().value(other)
        : m_model.batchValues().contains(other) ? m_model.batchValues().value(other)
                                                : m_model.sharedValue(other).value_or(QString());
    return other.isEmpty() || !set->fields.contains(other) || !FieldAdvice::companions(other, value).contains(id);
}

QStringList FieldSets::visible(FieldSection section) const
{
    QStringList ids = m_model.visibleFieldIDs(section);
    ids.removeIf([this](const QString& id) { return isBeside(id); });
    return ids;
}

QStringList FieldSets::beside() const
{
    QStringList ids;
    for (const FieldSection section : chosen() ? allCases<FieldSection>() : QList<FieldSection>())
        ids += m_model.visibleFieldIDs(section);
    ids.removeIf([this](const QString& id) { return !isBeside(id); });
    return ids;
}

// --- Wanted fields ---

bool FieldSets::hasWanted() const
{
    const FieldSet* set = chosen();
    return set && !set->wanted.isEmpty();
}

bool FieldSets::isGap(const QString& id) const
{
    const FieldSet* set = chosen();
    return set && set->wanted.contains(id) && m_reach.fill(id) == FieldFill::empty;
}

QStringList FieldSets::gaps() const
{
    QStringList gaps = hasWanted() ? chosen()->fields : QStringList();
    gaps.removeIf([this](const QString& id) { return !isGap(id); });
    return gaps;
}

bool FieldSets::isAllKnown() const
{
    const FieldSet* set = chosen();
    const auto isUnknown = [this](const QString& id) { return m_reach.fill(id) == FieldFill::unknown; };
    return !set || std::none_of(set->wanted.cbegin(), set->wanted.cend(), isUnknown);
}

// Of a photo that is not selected.
Filtering::Course::Found FieldSets::gapsOf(int position) const
{
    const ImageRecord& photo = m_model.records().at(position);
    const FieldSet* set = chosen();
    if (!set || photo.isUnread)
        return {};
    const PhotoDetails* details = m_model.details(photo.url);
    Filtering::Course::Found found;
    for (const QString& id : set->fields) {
        if (!set->wanted.contains(id))
            continue;
        const bool isOfDetails = PhotoDetails::hold(id);
        if (isOfDetails && !details) {
            found.isAll = false;
            continue;
        }
        const QString text = isOfDetails ? details->texts.value(id) : photo.values.value(id);
        const QStringList items = isOfDetails ? details->lists.value(id) : photo.lists.value(id);
        if (Text::trimmed(text).isEmpty() && items.isEmpty())
            found.gaps.append(id);
    }
    return found;
}

std::optional<FieldSets::Count> FieldSets::count(FieldSection section) const
{
    const FieldSet* set = chosen();
    if (!set)
        return std::nullopt;
    Count count;
    for (const QString& id : set->fields) {
        if (!set->wanted.contains(id) || FieldSchema::spec(id)->section != section)
            continue;
        const FieldFill fill = m_reach.fill(id);
        if (fill == FieldFill::unknown)
            return std::nullopt;
        ++count.wanted;
        count.filled += fill == FieldFill::filled ? 1 : 0;
    }
    return count.wanted > 0 ? std::optional(count) : std::nullopt;
}

// --- Changing the user's own ---

void FieldSets::setEditing(bool on, std::optional<FieldSet> started)
{
    requireMainThread("edit");
    m_started = std::move(started);
    if (std::exchange(m_isEditing, on) != on)
        emit editingChanged();
}

void FieldSets::edit()
{
    setEditing(true);
}

void FieldSets::editWhatIsShown()
{
    FieldSet shown;
    for (const FieldSection section : allCases<FieldSection>())
        shown.fields += visible(section);
    if (const FieldSet* set = chosen())
        shown.wanted = set->wanted;
    setEditing(true, FieldSetTexts::ordered(shown));
}

std::optional<QString> FieldSets::problem(const QList<Edited>& sets)
{
    QStringList taken{ usual() };
    for (const FieldSet& set : FieldSetTexts::builtIn())
        taken.append(set.name);
    for (const Edited& edited : sets) {
        const QString name = Text::trimmed(edited.set.name);
        if (name.isEmpty())
            return Texts::tr("A set needs a name");
        if (taken.contains(name))
            return Texts::tr("There are two sets named “%1”").arg(name);
        if (edited.set.fields.isEmpty())
            return Texts::tr("“%1” has no fields").arg(name);
        taken.append(name);
    }
    return std::nullopt;
}

void FieldSets::store(const QList<Edited>& sets, const QString& chosen)
{
    if (!m_isEditing || problem(sets))
        return;
    const QString before = current();
    QString next = chosen.isEmpty() ? before : chosen;
    m_own.clear();
    for (const Edited& edited : sets) {
        m_own.append(FieldSetTexts::ordered(edited.set));
        m_own.last().name = Text::trimmed(edited.set.name);
        if (chosen.isEmpty() && !edited.before.isEmpty() && edited.before == before)
            next = m_own.last().name;
    }
    m_storedSets.set(FieldSetTexts::toText(m_own));
    setEditing(false);
    choose(next);
}

void FieldSets::cancel()
{
    setEditing(false);
}

}  // namespace Quorbel
