#include "core/iptc/StructureEdit.h"

#include "core/iptc/StructureText.h"
#include "core/language/Texts.h"
#include "core/schema/FieldCheck.h"
#include "core/text/Text.h"

#include <QJsonArray>
#include <QRegularExpression>

#include <tuple>

namespace Quorbel::StructureEdit {

using namespace Qt::StringLiterals;

namespace {

// A member that holds one may have been stored as several, and the other way round.
QJsonArray itemsOf(const QString& text, const QString& member)
{
    const QJsonValue value = StructureText::members(text).value(member);
    if (value.isArray())
        return value.toArray();
    return value.isUndefined() ? QJsonArray() : QJsonArray{ value };
}

}  // namespace

QString with(const QString& text, const QString& member, const QJsonValue& value)
{
    QJsonObject members = StructureText::members(text);
    members.insert(member, value);
    return StructureText::of(members);
}

QStringList texts(const QString& text, const QString& member)
{
    QStringList found;
    const QJsonArray items = itemsOf(text, member);
    for (const QJsonValue item : items)
        if (item.isString())
            found.append(item.toString());
    return found;
}

QStringList structures(const QString& text, const QString& member)
{
    QStringList found;
    const QJsonArray items = itemsOf(text, member);
    for (const QJsonValue item : items)
        if (item.isObject())
            found.append(StructureText::of(item.toObject()));
    return found;
}

QString withStructures(const QString& text, const StructureMember& member, const QStringList& structures)
{
    if (!member.isSeveral)
        return with(text, member.name, StructureText::members(structures.value(0)));
    QJsonArray items;
    for (const QString& structure : structures)
        items.append(StructureText::members(structure));
    // No card shows what is no structure; it is not lost for that.
    const QJsonArray before = itemsOf(text, member.name);
    for (const QJsonValue item : before)
        if (!item.isObject())
            items.append(item);
    return with(text, member.name, items);
}

QStringList languages(const QString& text, const QString& member)
{
    QStringList codes;
    const QStringList names = StructureText::members(text).keys();
    for (const QString& name : names)
        if (name.startsWith(member + u'-'))
            codes.append(name.sliced(member.size() + 1));
    return codes;
}

bool isSame(const QString& a, const QString& b, const QString& member)
{
    return itemsOf(a, member) == itemsOf(b, member);
}

QList<qsizetype> origins(const QStringList& items, const QStringList& held)
{
    QList<qsizetype> found(items.size(), -1);
    const auto common = [&](qsizetype item, qsizetype other) {
        const QJsonObject members = StructureText::members(items.at(item));
        const QJsonObject before = StructureText::members(held.at(other));
        qsizetype count = 0;
        for (auto member = members.begin(); member != members.end(); ++member)
            count += before.value(member.key()) == member.value() ? 1 : 0;
        return count;
    };
    for (qsizetype i = 0; i < items.size(); ++i)
        for (qsizetype at = 0; at < held.size() && found.at(i) < 0; ++at)
            if (items.at(i) == held.at(at) && !found.contains(at))
                found[i] = at;
    // The pair that has most in common is found first.
    while (true) {
        std::tuple<qsizetype, qsizetype, qsizetype> best{ 0, -1, -1 };
        for (qsizetype i = 0; i < items.size(); ++i)
            for (qsizetype at = 0; at < held.size() && found.at(i) < 0; ++at)
                if (const qsizetype count = found.contains(at) ? 0 : common(i, at); count > std::get<0>(best))
                    best = { count, i, at };
        const auto [count, item, at] = best;
        if (count == 0)
            return found;
        found[item] = at;
    }
}

QString note(const StructureMember& member, const QString& text)
{
    static const QRegularExpression partOfDate(u"^\\d{4}(-(0[1-9]|1[0-2]))?$"_s);
    const QString trimmed = Text::trimmed(text);
    if (trimmed.isEmpty())
        return {};
    if (member.kind == FieldKind::date && !partOfDate.match(trimmed).hasMatch())
        return FieldCheck::note({ .kind = FieldKind::date }, trimmed);
    if (member.kind == FieldKind::number && !Text::parseDouble(trimmed))
        return Texts::tr("Not a number");
    return {};
}

}  // namespace Quorbel::StructureEdit
