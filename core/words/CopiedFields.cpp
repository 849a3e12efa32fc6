#include "core/words/CopiedFields.h"

#include "core/language/Texts.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "core/schema/KeywordPath.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr int version = 1;

QString format()
{
    return u"quorbel-fields"_s;
}

// Characters that no field holds, and that would spoil what carries them.
bool isStray(QChar c)
{
    return (c.unicode() < 0x20 && c != u'\n' && c != u'\r' && c != u'\t') || c.unicode() == 0x7f;
}

QString clean(QString text)
{
    return text.removeIf(isStray);
}

QStringList texts(const QJsonValue& value)
{
    QStringList texts;
    for (const auto& item : value.toArray())
        if (item.isString())
            texts.append(item.toString());
    return texts;
}

}  // namespace

CopiedFields CopiedFields::of(const QString& photo, const ExternalRefresh::Drafts& shown, const QStringList& paths)
{
    CopiedFields fields{ .photo = photo };
    for (auto text = shown.values.cbegin(); text != shown.values.cend(); ++text)
        fields.put(text.key(), *text);
    for (auto list = shown.lists.cbegin(); list != shown.lists.cend(); ++list)
        fields.putItems(list.key(), *list);
    for (const CustomValue& custom : shown.customs)
        fields.put(CustomFields::key(custom.name), custom.value);
    fields.putPaths(paths);
    return fields;
}

void CopiedFields::put(const QString& key, const QString& text)
{
    const QString cleaned = clean(text);
    if (cleaned.isEmpty())
        return;
    const FieldSpec* field = FieldSchema::spec(key);
    if (const auto name = CustomFields::nameIn(key); name && CustomFields::isWritable(*name))
        CustomFields::put(edits.customs, { *name, cleaned });
    else if ((field && !field->isList()) || FieldLanguages::languageIn(key))
        edits.scalars.insert(key, cleaned);
}

void CopiedFields::putItems(const QString& id, const QStringList& items)
{
    const FieldSpec* field = FieldSchema::spec(id);
    if (!field || !field->isList())
        return;
    QStringList cleaned;
    for (const QString& item : items)
        cleaned.append(clean(item).trimmed());
    cleaned.removeAll(QString());
    edits.addItems(id, cleaned);
}

void CopiedFields::putPaths(const QStringList& paths)
{
    const QStringList keywords = edits.added.value(FieldID::keywords);
    for (const QString& path : paths)
        if (const QString cleaned = clean(path); KeywordPath::elements(cleaned).size() > 1
            && keywords.contains(KeywordPath::keyword(cleaned)) && !edits.paths.contains(cleaned))
            edits.paths.append(cleaned);
}

QStringList CopiedFields::keys() const
{
    const QSet<QString> all = edits.keys();
    QStringList keys;
    for (const FieldSpec& field : FieldSchema::everyField()) {
        if (all.contains(field.id))
            keys.append(field.id);
        for (const QString& key : edits.scalars.keys())
            if (const auto language = FieldLanguages::languageIn(key); language && language->field->id == field.id)
                keys.append(key);
    }
    for (const CustomValue& custom : edits.customs)
        keys.append(CustomFields::key(custom.name));
    return keys;
}

Edits CopiedFields::chosen(const QSet<QString>& keys) const
{
    Edits some = edits;
    some.scalars.removeIf([&keys](const auto& text) { return !keys.contains(text.key()); });
    some.added.removeIf([&keys](const auto& items) { return !keys.contains(items.key()); });
    some.customs.removeIf(
        [&keys](const CustomValue& custom) { return !keys.contains(CustomFields::key(custom.name)); });
    if (!some.added.contains(FieldID::keywords))
        some.paths.clear();
    return some;
}

QByteArray CopiedFields::toJson() const
{
    QJsonObject fields;
    for (auto text = edits.scalars.cbegin(); text != edits.scalars.cend(); ++text)
        fields.insert(text.key(), *text);
    for (auto items = edits.added.cbegin(); items != edits.added.cend(); ++items)
        fields.insert(items.key(), QJsonArray::fromStringList(*items));
    for (const CustomValue& custom : edits.customs)
        fields.insert(CustomFields::key(custom.name), custom.value);
    QJsonObject all{ { u"format"_s, format() }, { u"version"_s, version }, { u"fields"_s, fields } };
    if (!photo.isEmpty())
        all.insert(u"photo"_s, photo);
    if (copiedAt.isValid())
        all.insert(u"copied"_s, copiedAt.toString(Qt::ISODate));
    if (!edits.paths.isEmpty())
        all.insert(u"keywordPaths"_s, QJsonArray::fromStringList(edits.paths));
    return QJsonDocument(all).toJson();
}

std::variant<CopiedFields, CopiedFields::Refusal> CopiedFields::fromJson(const QByteArray& text)
{
    if (text.size() > largest)
        return Refusal::tooLarge;
    const QJsonObject all = QJsonDocument::fromJson(text).object();
    if (all[u"format"_s].toString() != format() || !all[u"version"_s].isDouble())
        return Refusal::foreign;
    if (all[u"version"_s].toInt(version + 1) > version)
        return Refusal::newer;
    if (all[u"version"_s].toInt() < 1 || !all[u"fields"_s].isObject())
        return Refusal::foreign;
    CopiedFields read{ .photo = clean(all[u"photo"_s].toString()),
        .copiedAt = QDateTime::fromString(all[u"copied"_s].toString(), Qt::ISODate) };
    const QJsonObject fields = all[u"fields"_s].toObject();
    for (auto field = fields.begin(); field != fields.end(); ++field) {
        if (field->isString())
            read.put(field.key(), field->toString());
        else
            read.putItems(field.key(), texts(*field));
    }
    read.putPaths(texts(all[u"keywordPaths"_s]));
    if (read.edits.isEmpty())
        return Refusal::empty;
    return read;
}

QString labelOfKey(const QString& key)
{
    if (const auto name = CustomFields::nameIn(key))
        return *name;
    const FieldSpec* field = FieldSchema::spec(key);
    return field ? Texts::shown(field->label) : FieldLanguages::label(key);
}

}  // namespace Quorbel
