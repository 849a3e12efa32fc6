#include "core/iptc/ShownText.h"

#include "core/iptc/IptcSchema.h"
#include "core/iptc/StructureText.h"
#include "core/iptc/Vocabularies.h"

namespace Quorbel::ShownText {

using namespace Qt::StringLiterals;

QString of(const QString& key, const QString& text)
{
    const FieldSpec* field = IptcSchema::spec(key);
    if (!field || text.isEmpty())
        return text;
    if (field->kind == FieldKind::code)
        return Vocabularies::nameOf(field->vocabulary, text);
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
