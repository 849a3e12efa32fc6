#include "core/iptc/ShownText.h"

#include "core/iptc/IptcSchema.h"
#include "core/iptc/StructureText.h"
#include "core/iptc/Vocabularies.h"
#include "core/schema/FieldSchema.h"

namespace Quorbel::ShownText {

using namespace Qt::StringLiterals;

QString of(const QString& key, const QString& text)
{
    const FieldSpec* field = FieldSchema::spec(key);
    if (!field || text.isEmpty())
        return text;
    if (!field->vocabulary.isEmpty())
        return field->kind == FieldKind::code ? Vocabularies::nameOf(field->vocabulary, text)
                                              : Vocabularies::namesOf(field->vocabulary, text);
    const StructureSpec* structure = IptcStructures::spec(field->structure);
    return structure ? StructureText::summary(*structure, { text }) : text;
}

QString of(const QString& id, const QStringList& items)
{
    const FieldSpec* field = IptcSchema::spec(id);
    if (const StructureSpec* structure = field ? IptcStructures::spec(field->structure) : nullptr)
        return StructureText::summary(*structure, items);
    QStringList shown;
    for (const QString& item : items)
        shown.append(of(id, item));
    return shown.join(u", "_s);
}

}  // namespace Quorbel::ShownText
