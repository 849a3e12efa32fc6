#include "core/save/Agreement.h"

#include "core/schema/FieldSchema.h"

#include <algorithm>

namespace Quorbel::Agreement {

namespace {

QList<FieldHome> withoutForeign(QList<FieldHome> homes)
{
    homes.removeIf([](const FieldHome& home) { return home.isForeign; });
    return homes;
}

bool areAlike(const QList<FieldHome>& homes)
{
    return std::all_of(homes.cbegin(), homes.cend(),
        [&homes](const FieldHome& home) { return home.values == homes.constFirst().values; });
}

}  // namespace

EditPlan plan(const ImageRecord& photo, const PhotoDetails& details)
{
    EditPlan plan;
    for (auto field = details.disagreements.cbegin(); field != details.disagreements.cend(); ++field) {
        const FieldSpec* spec = FieldSchema::spec(field.key());
        const QList<FieldHome> homes = withoutForeign(*field);
        if (!spec || areAlike(homes))
            continue;
        const FieldHome& first = homes.constFirst();
        if (spec->isList()) {
            const QStringList items = first.isShown ? photo.lists.value(spec->id) : first.values;
            if (!items.isEmpty())
                plan.lists.insert(spec->id, items);
            continue;
        }
        const bool hasItems =
            std::any_of(homes.cbegin(), homes.cend(), [](const FieldHome& home) { return home.values.size() != 1; });
        const QString text = first.isShown ? photo.values.value(spec->id) : first.values.value(0);
        if (!hasItems && !text.isEmpty())
            plan.scalars.insert(spec->id, text);
    }
    return plan;
}

}  // namespace Quorbel::Agreement
