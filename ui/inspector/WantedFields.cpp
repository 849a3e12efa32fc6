#include "ui/inspector/WantedFields.h"

#include "app/model/fieldsets/FieldSets.h"
#include "core/language/Texts.h"
#include "core/schema/FieldSchema.h"
#include "ui/inspector/FieldRowState.h"

namespace Quorbel::WantedFields {

using namespace Qt::StringLiterals;

void show(const FieldSets& sets, const QString& id, FieldRowState& state)
{
    state.wanted = sets.isGap(id);
    if (!state.wanted)
        return;
    //: Stands in an empty field. %1: name of a set of fields, as “Press”.
    state.placeholder = Texts::tr("Required by %1").arg(Texts::shown(sets.current()));
    state.italicPlaceholder = false;
    // Cards, stars and offsets have no place for it.
    const FieldKind kind = FieldSchema::spec(id)->kind;
    if (kind == FieldKind::structure || kind == FieldKind::rating || kind == FieldKind::offset)
        state.helpLine = state.placeholder;
}

QString line(const FieldSets& sets, FieldSection section)
{
    const auto count = sets.count(section);
    const bool isMissing = count && count->filled < count->wanted;
    if (!count || (section != FieldSection::common && !isMissing))
        return {};
    //: %1 and %2: numbers of fields.
    const QString text = Texts::tr("%1 of %2 filled").arg(count->filled).arg(count->wanted);
    const QStringList gaps = sets.gaps();
    // Told once, at the top.
    const bool isFirst = section == FieldSection::common
        || (!sets.count(FieldSection::common) && !gaps.isEmpty()
            && FieldSchema::spec(gaps.constFirst())->section == section);
    //: A gap: a field that a set of fields wants and that is empty. F8 is the key.
    return isFirst && !gaps.isEmpty() ? text + u" · "_s + Texts::tr("next gap F8") : text;
}

}  // namespace Quorbel::WantedFields
