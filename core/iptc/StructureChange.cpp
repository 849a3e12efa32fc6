#include "core/iptc/StructureChange.h"

#include "core/iptc/StructureText.h"
#include "core/language/Texts.h"
#include "core/save/EditPlan.h"
#include "core/text/Quoted.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

using enum Assignment::Operation;

// One field of one photo.
class Change {
public:
    Change(const FieldSpec& field, const StructureSpec& structure, const QStringList& held)
        : m_field(field)
        , m_structure(structure)
        , m_tag(field.writeTags.constFirst())
        , m_held(held)
    {
    }

    StructureChange become(const QStringList& wanted) const
    {
        if (StructureText::areSame(m_structure, m_held, wanted))
            return { .assignments = {}, .expected = m_held, .problem = {} };
        StructureChange change{ .assignments = {}, .expected = wanted, .problem = {} };
        if (std::none_of(m_held.cbegin(), m_held.cend(), [this](const QString& item) { return isForeign(item); }))
            change.assignments = whole(wanted);
        else if (isAppended(wanted))
            change.assignments = appended(wanted.mid(m_held.size()));
        else if (m_held.size() == 1 && wanted.size() == 1)
            change.assignments = inPlace(m_held.constFirst(), wanted.constFirst());
        else
            change.assignments = ofOneItem(wanted);
        if (change.assignments.isEmpty())
            change.problem = problem();
        return change;
    }

private:
    bool isForeign(const QString& item) const { return !StructureText::foreignMembers(m_structure, item).isEmpty(); }
    bool isSame(const QString& a, const QString& b) const { return StructureText::isSame(m_structure, a, b); }

    Assignment to(Assignment::Operation operation, const QString& item) const
    {
        return { m_tag, operation, StructureText::argument(m_structure, item) };
    }

    QList<Assignment> whole(const QStringList& wanted) const
    {
        QList<Assignment> args;
        if (m_field.isSeveral || wanted.isEmpty())
            args.append({ .tag = m_tag });
        for (const QString& item : wanted)
            args.append(to(set, item));
        return args;
    }

    bool isAppended(const QStringList& wanted) const
    {
        return m_field.isSeveral && wanted.size() > m_held.size()
            && StructureText::areSame(m_structure, m_held, wanted.first(m_held.size()));
    }

    QList<Assignment> appended(const QStringList& items) const
    {
        QList<Assignment> args;
        for (const QString& item : items)
            args.append(to(add, item));
        return args;
    }

    // Member by member, each under a tag of its own: what has none, or stands deeper, cannot be reached.
    QList<Assignment> inPlace(const QString& before, const QString& after) const
    {
        const QJsonObject old = StructureText::members(before);
        const QJsonObject now = StructureText::members(after);
        QList<Assignment> args;
        for (const QString& name : old.keys() + now.keys()) {
            if (old.value(name) == now.value(name))
                continue;
            const StructureMember* member = IptcStructures::member(m_structure, name);
            QString tag = IptcStructures::flatTag(m_field.id, name);
            if (tag.isEmpty() || !member || !isPlain(old, name) || !isPlain(now, name))
                return {};
            // The tag alone would take the text's other languages away.
            if (member->hasLanguages && name == member->name)
                tag += u"-x-default"_s;
            const auto operation = member->kind == FieldKind::code && now.contains(name) ? restore : set;
            if (const Assignment one{ tag, operation, now.value(name).toString() }; !args.contains(one))
                args.append(one);
        }
        return args;
    }

    static bool isPlain(const QJsonObject& object, const QString& name)
    {
        return !object.contains(name) || object.value(name).isString();
    }

    // One item goes, or becomes another one. The tool takes away every item that has the same members, whatever else it
    // has: no other one may.
    QList<Assignment> ofOneItem(const QStringList& wanted) const
    {
        const qsizetype at = firstDifference(wanted);
        if (at >= m_held.size() || isForeign(m_held.at(at)))
            return {};
        const bool isReplaced = wanted.size() == m_held.size();
        QStringList rest = m_held;
        if (isReplaced)
            rest[at] = wanted.at(at);
        else
            rest.removeAt(at);
        if (!StructureText::areSame(m_structure, rest, wanted) || isPartOfAnother(at))
            return {};
        QList<Assignment> args{ to(remove, m_held.at(at)) };
        if (isReplaced)
            args.append(to(add, wanted.at(at)));
        return args;
    }

    qsizetype firstDifference(const QStringList& wanted) const
    {
        qsizetype at = 0;
        while (at < m_held.size() && at < wanted.size() && isSame(m_held.at(at), wanted.at(at)))
            ++at;
        return at;
    }

    bool isPartOfAnother(qsizetype at) const
    {
        const QJsonObject mine = StructureText::members(m_held.at(at));
        const QStringList names = mine.keys();
        for (qsizetype i = 0; i < m_held.size(); ++i) {
            const QJsonObject other = StructureText::members(m_held.at(i));
            if (i != at && std::all_of(names.cbegin(), names.cend(), [&](const QString& name) {
                    return other.value(name) == mine.value(name);
                }))
                return true;
        }
        return false;
    }

    QString problem() const
    {
        QStringList names;
        for (const QString& item : m_held)
            for (const QString& name : StructureText::foreignMembers(m_structure, item))
                if (!names.contains(name))
                    names.append(name);
        for (QString& name : names)
            name = Text::quoted(name);
        //: %1 is a field, %2 names parts of it, in quotation marks
        return Texts::tr("%1 holds %2 of another program, which this change would lose")
            .arg(Texts::shown(m_field.label), names.join(u", "_s));
    }

    const FieldSpec& m_field;
    const StructureSpec& m_structure;
    QString m_tag;
    QStringList m_held;
};

}  // namespace

StructureChange StructureChange::of(const FieldSpec& field, const QStringList& held, const ListChange& change)
{
    const StructureSpec* structure = IptcStructures::spec(field.structure);
    if (!structure)
        return {};
    QStringList wanted;
    for (const QString& item : change.whole.value_or(held))
        if (const QString tidied = StructureText::tidied(item); !tidied.isEmpty())
            wanted.append(tidied);
    for (const QString& item : change.added) {
        const QString tidied = StructureText::tidied(item);
        const bool isThere = std::any_of(wanted.cbegin(), wanted.cend(),
            [&](const QString& one) { return StructureText::isSame(*structure, one, tidied); });
        if (!tidied.isEmpty() && !isThere)
            wanted.append(tidied);
    }
    wanted.removeIf([&](const QString& item) { return change.removed.contains(item); });
    return Change(field, *structure, held).become(wanted);
}

}  // namespace Quorbel
