#include "core/iptc/IptcValues.h"

#include "core/iptc/IptcSchema.h"
#include "core/iptc/IptcStructures.h"
#include "core/iptc/StructureText.h"
#include "core/iptc/Vocabularies.h"

#include <QRegularExpression>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QStringList structureTexts(const StructureSpec& structure, const JSONValue& read)
{
    QStringList texts;
    if (const auto* object = std::get_if<JSONValue::Object>(&read.payload))
        texts.append(StructureText::fromRead(structure, *object->members));
    if (const auto* array = std::get_if<JSONValue::Array>(&read.payload))
        for (const JSONValue& item : *array->elements)
            if (const auto* object = std::get_if<JSONValue::Object>(&item.payload))
                texts.append(StructureText::fromRead(structure, *object->members));
    texts.removeAll(QString());
    return texts;
}

// Without a definition the tool reads the address of a code of PLUS where it knows the others by the code alone, and
// IPTC's older block has subjects in a form of its own. What is in no vocabulary stays as it is.
QString code(const QString& vocabulary, const QString& text)
{
    if (const VocabularyTerm* term = Vocabularies::term(vocabulary, text))
        return term->code;
    static const QRegularExpression reference(u"^IPTC:(\\d{8}):"_s);
    const auto match = reference.match(text);
    return match.hasMatch() ? match.captured(1) : text;
}

QStringList itemsOf(const FieldSpec& field, const JSONValue& read)
{
    if (const StructureSpec* structure = IptcStructures::spec(field.structure))
        return structureTexts(*structure, read);
    QStringList items = read.stringArray();
    if (field.kind == FieldKind::code)
        for (QString& item : items)
            item = code(field.vocabulary, item);
    items.removeAll(QString());
    return items;
}

void take(IptcValues& values, const FieldSpec& field, const JSONObject& tags)
{
    for (const QString& tag : field.readTags) {
        const auto read = tags.constFind(tag);
        const QStringList items = read == tags.cend() ? QStringList() : itemsOf(field, *read);
        if (items.isEmpty())
            continue;
        if (field.isList())
            values.lists.insert(field.id, items);
        else
            values.texts.insert(
                field.id, field.kind == FieldKind::structure ? items.constFirst() : items.join(u", "_s));
        return;
    }
}

}  // namespace

IptcValues IptcValues::fromRead(const JSONObject& tags)
{
    IptcValues values;
    for (const FieldSpec& field : IptcSchema::all())
        take(values, field, tags);
    return values;
}

QStringList IptcValues::structures(const QString& id) const
{
    const QString one = texts.value(id);
    return one.isEmpty() ? lists.value(id) : QStringList(one);
}

}  // namespace Quorbel
