#include "core/iptc/StructureEdit.h"

#include "core/iptc/StructureText.h"
#include "core/schema/FieldCheck.h"
#include "core/text/Text.h"

#include <QJsonArray>
#include <QRegularExpression>

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

QString note(const StructureMember& member, const QString& text)
{
    static const QRegularExpression partOfDate(u"^\\d{4}(-(0[1-9]|1[0-2]))?$"_s);
    const QString trimmed = Text::trimmed(text);
    if (trimmed.isEmpty())
        return {};
    if (member.kind == FieldKind::date && !partOfDate.match(trimmed).hasMatch())
        return FieldCheck::note({ .kind = FieldKind::date }, trimmed);
    if (member.kind == FieldKind::number && !Text::parseDouble(trimmed))
        return u"Not a number"_s;
    return {};
}

}  // namespace Quorbel::StructureEdit
