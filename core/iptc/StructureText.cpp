#include "core/iptc/StructureText.h"

#include "core/iptc/Vocabularies.h"
#include "core/language/Texts.h"
#include "core/text/Text.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>

namespace Quorbel::StructureText {

using namespace Qt::StringLiterals;

namespace {

// --- From what was read ---

const StructureMember* find(const StructureSpec* structure, const QString& name)
{
    return structure ? IptcStructures::member(*structure, name) : nullptr;
}

// Days with hyphens, as they are typed; times stay behind them.
QString typedDate(const QString& text)
{
    const qsizetype end = text.indexOf(u' ');
    const QString day = end < 0 ? text : text.first(end);
    return QString(day).replace(u':', u'-') + (end < 0 ? QString() : text.sliced(end));
}

QJsonObject objectOf(const StructureSpec* structure, const JSONObject& read);

QJsonValue valueOf(const StructureMember* member, const JSONValue& read)
{
    const StructureSpec* inner = member ? IptcStructures::spec(member->structure) : nullptr;
    if (const auto* object = std::get_if<JSONValue::Object>(&read.payload))
        return objectOf(inner, *object->members);
    if (const auto* array = std::get_if<JSONValue::Array>(&read.payload)) {
        QJsonArray items;
        for (const JSONValue& item : *array->elements)
            items.append(valueOf(member, item));
        return items;
    }
    const QString text = read.stringValue().value_or(QString());
    return member && member->kind == FieldKind::date ? typedDate(text) : text;
}

QJsonObject objectOf(const StructureSpec* structure, const JSONObject& read)
{
    QJsonObject object;
    for (auto one = read.cbegin(); one != read.cend(); ++one) {
        const StructureMember* member = find(structure, one.key());
        QJsonValue value = valueOf(member, *one);
        if (member && member->isSeveral && !value.isArray())
            value = QJsonArray{ value };
        object.insert(one.key(), value);
    }
    return object;
}

// --- The one form ---

bool isEmpty(const QJsonValue& value)
{
    return value.isNull() || (value.isString() && value.toString().isEmpty())
        || (value.isArray() && value.toArray().isEmpty()) || (value.isObject() && value.toObject().isEmpty());
}

QJsonValue tidy(const QJsonValue& value)
{
    if (value.isObject()) {
        QJsonObject object;
        const QJsonObject members = value.toObject();
        for (auto member = members.begin(); member != members.end(); ++member)
            if (const QJsonValue inner = tidy(*member); !isEmpty(inner))
                object.insert(member.key(), inner);
        return object;
    }
    if (value.isArray()) {
        QJsonArray array;
        for (const QJsonValue& item : value.toArray())
            if (const QJsonValue inner = tidy(item); !isEmpty(inner))
                array.append(inner);
        return array;
    }
    if (value.isBool())
        return value.toBool() ? u"true"_s : u"false"_s;
    return value.isDouble() ? Text::shortestForm(value.toDouble()) : value;
}

// --- As an argument ---

QString escaped(const QString& text)
{
    QString result;
    for (const QChar c : text) {
        const bool isAtStart = result.isEmpty() && (c == u'{' || c == u'[' || c.isSpace());
        if (isAtStart || c == u'|' || c == u',' || c == u'}' || c == u']')
            result += u'|';
        result += c;
    }
    return result;
}

// Codes, and what the tool would take for a word, are given as they are stored.
bool isWrittenAsStored(const StructureMember& member)
{
    return member.kind == FieldKind::code ? member.vocabulary != u"worldRegion" : member.name == u"GPSAltitudeRef";
}

QString objectArgument(const StructureSpec& structure, const QJsonObject& object);

QString valueArgument(const StructureMember& member, const QJsonValue& value)
{
    if (value.isArray()) {
        QStringList items;
        for (const QJsonValue& item : value.toArray())
            if (const QString one = valueArgument(member, item); !one.isEmpty())
                items.append(one);
        return items.isEmpty() ? QString() : u'[' + items.join(u',') + u']';
    }
    if (const StructureSpec* inner = IptcStructures::spec(member.structure))
        return objectArgument(*inner, value.toObject());
    return escaped(value.toString());
}

QString objectArgument(const StructureSpec& structure, const QJsonObject& object)
{
    QStringList members;
    for (auto one = object.begin(); one != object.end(); ++one) {
        const StructureMember* member = IptcStructures::member(structure, one.key());
        const QString value = member ? valueArgument(*member, *one) : QString();
        const QString name = member && isWrittenAsStored(*member) ? one.key() + u'#' : one.key();
        if (!value.isEmpty())
            members.append(name + u'=' + value);
    }
    return members.isEmpty() ? QString() : u'{' + members.join(u',') + u'}';
}

// --- What the table does not know ---

void collectForeign(const StructureSpec& structure, const QJsonValue& value, const QString& path, QStringList& found)
{
    for (const QJsonValue& item : value.toArray())
        collectForeign(structure, item, path, found);
    const QJsonObject object = value.toObject();
    for (auto one = object.begin(); one != object.end(); ++one) {
        const StructureMember* member = IptcStructures::member(structure, one.key());
        const StructureSpec* inner = member ? IptcStructures::spec(member->structure) : nullptr;
        const QJsonValue first = one->isArray() ? one->toArray().first() : *one;
        if (!member || first.isObject() != (inner != nullptr))
            found.append(path + one.key());
        else if (inner)
            collectForeign(*inner, *one, path + one.key() + u'.', found);
    }
}

// --- Comparison ---

// Files keep positions in minutes with some decimals.
constexpr double tolerance = 1e-6;

bool isSameText(const StructureMember* member, const QString& a, const QString& b)
{
    if (member && member->kind == FieldKind::date)
        return typedDate(a) == typedDate(b);
    if (a == b || !member || member->kind != FieldKind::number)
        return a == b;
    const auto first = Text::parseDouble(a);
    const auto second = Text::parseDouble(b);
    return first && second && std::abs(*first - *second) < tolerance;
}

bool isSameObject(const StructureSpec* structure, const QJsonObject& a, const QJsonObject& b);

// One item of several may stand by itself.
QJsonArray itemsOf(const QJsonValue& value)
{
    return value.isArray() ? value.toArray() : QJsonArray{ value };
}

bool isSameValue(const StructureMember* member, const QJsonValue& a, const QJsonValue& b)
{
    if (a.isArray() || b.isArray()) {
        const QJsonArray first = itemsOf(a);
        const QJsonArray second = itemsOf(b);
        return std::equal(first.begin(), first.end(), second.begin(), second.end(),
            [member](const QJsonValue& one, const QJsonValue& other) { return isSameValue(member, one, other); });
    }
    if (a.isObject() && b.isObject())
        return isSameObject(member ? IptcStructures::spec(member->structure) : nullptr, a.toObject(), b.toObject());
    return a.type() == b.type() && isSameText(member, a.toString(), b.toString());
}

bool isSameObject(const StructureSpec* structure, const QJsonObject& a, const QJsonObject& b)
{
    const QStringList names = a.keys();
    return names == b.keys() && std::all_of(names.cbegin(), names.cend(), [&](const QString& name) {
        return isSameValue(find(structure, name), a.value(name), b.value(name));
    });
}

// --- For the eye ---

QString shown(const StructureMember* member, const QJsonValue& value)
{
    if (value.isArray()) {
        QStringList texts;
        for (const QJsonValue& item : value.toArray())
            if (const QString one = shown(member, item); !one.isEmpty())
                texts.append(one);
        return texts.join(u", "_s);
    }
    const StructureSpec* inner = member ? IptcStructures::spec(member->structure) : nullptr;
    return inner && value.isObject() ? title(*inner, of(value.toObject())) : value.toString();
}

// The first line of a member; where it comes in other languages only, of the first of these. Codes by their names.
QString titleOf(const StructureSpec& structure, const QJsonObject& object, const QString& name)
{
    const StructureMember* member = find(&structure, name);
    QString text = shown(member, object.value(name));
    for (auto one = object.begin(); text.isEmpty() && member && member->hasLanguages && one != object.end(); ++one)
        if (find(&structure, one.key()) == member)
            text = shown(member, *one);
    if (member && member->kind == FieldKind::code)
        text = Vocabularies::nameOf(member->vocabulary, text);
    return Text::trimmedWithNewlines(text).section(u'\n', 0, 0);
}

// Where no title member is there: the first that is, in the order of the table, then one that the table does not know.
QStringList titles(const StructureSpec& structure, const QString& text)
{
    const QJsonObject object = members(text);
    QStringList found;
    for (const QString& name : structure.titleMembers)
        if (const QString one = titleOf(structure, object, name); !one.isEmpty())
            found.append(one);
    QStringList others;
    for (const StructureMember& member : structure.members)
        others.append(member.name);
    others += object.keys();
    for (const QString& name : others)
        if (const QString one = titleOf(structure, object, name); found.isEmpty() && !one.isEmpty())
            found.append(one);
    return found;
}

}  // namespace

QString fromRead(const StructureSpec& structure, const JSONObject& read)
{
    return of(objectOf(&structure, read));
}

QString of(const QJsonObject& object)
{
    const QJsonObject tidied = tidy(object).toObject();
    return tidied.isEmpty() ? QString() : QString::fromUtf8(QJsonDocument(tidied).toJson(QJsonDocument::Compact));
}

QString tidied(const QString& text)
{
    return of(members(text));
}

QJsonObject members(const QString& text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

QString memberText(const StructureSpec& structure, const QString& text, const QString& member)
{
    return shown(find(&structure, member), members(text).value(member));
}

QString argument(const StructureSpec& structure, const QString& text)
{
    return objectArgument(structure, members(tidied(text)));
}

QStringList foreignMembers(const StructureSpec& structure, const QString& text)
{
    QStringList found;
    collectForeign(structure, members(text), {}, found);
    return found;
}

bool isSame(const StructureSpec& structure, const QString& a, const QString& b)
{
    return a == b || isSameObject(&structure, members(tidied(a)), members(tidied(b)));
}

bool areSame(const StructureSpec& structure, const QStringList& a, const QStringList& b)
{
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(),
        [&structure](const QString& one, const QString& other) { return isSame(structure, one, other); });
}

QString title(const StructureSpec& structure, const QString& text)
{
    return titles(structure, text).value(0);
}

QString subtitle(const StructureSpec& structure, const QString& text)
{
    return titles(structure, text).mid(1).join(u", "_s);
}

QString summary(const StructureSpec& structure, const QStringList& items)
{
    if (items.isEmpty())
        return {};
    const QString first = titles(structure, items.constFirst()).join(u", "_s);
    //: %1 is what the first of several cards says
    return items.size() == 1 ? first : Texts::tr("%1 · %n more", nullptr, items.size() - 1).arg(first);
}

}  // namespace Quorbel::StructureText
