#include "core/save/Agreement.h"

#include "core/details/FileHome.h"
#include "core/details/HomeComparison.h"
#include "core/save/TagHomes.h"
#include "core/schema/FieldSchema.h"
#include "core/sidecar/SidecarSchema.h"
#include "core/text/StoredTime.h"
#include "core/text/WallClock.h"
#include "core/tool/MetadataReader.h"
#include "core/tool/MetadataWriter.h"

#include <algorithm>

namespace Quorbel::Agreement {

using namespace Qt::StringLiterals;

namespace {

QList<FieldHome> withoutForeign(QList<FieldHome> homes)
{
    homes.removeIf([](const FieldHome& home) { return home.isForeign; });
    return homes;
}

// Of one field. What IPTC's encoding or limit made of a text is no difference.
bool areAlike(const FieldSpec& field, const QList<FieldHome>& homes)
{
    const auto held = [](const FieldHome& home) {
        return HomeComparison::Held{
            .tag = home.tag, .items = home.values, .declaresEncoding = !home.tag.startsWith(u"IPTC:"_s)
        };
    };
    return std::all_of(homes.cbegin(), homes.cend(),
        [&](const FieldHome& home) { return HomeComparison::isSame(field, held(homes.constFirst()), held(home)); });
}

QStringList dateFields(const EditPlan& plan)
{
    QStringList ids;
    for (auto text = plan.scalars.cbegin(); text != plan.scalars.cend(); ++text)
        if (const FieldSpec* field = FieldSchema::spec(text.key()); field && field->kind == FieldKind::date)
            ids.append(field->id);
    return ids;
}

void add(EditPlan& plan, const FieldSpec& field, const FieldHome& home, const ImageRecord& photo)
{
    if (field.isList()) {
        const QStringList items = home.isShown ? photo.lists.value(field.id) : home.values;
        if (!items.isEmpty())
            plan.lists.insert(field.id, items);
    } else {
        const QString text = home.isShown ? photo.values.value(field.id) : home.values.value(0);
        if (!text.isEmpty())
            plan.scalars.insert(field.id, text);
    }
}

}  // namespace

EditPlan plan(const ImageRecord& photo, const PhotoDetails& details)
{
    EditPlan plan;
    for (auto found = details.disagreements.cbegin(); found != details.disagreements.cend(); ++found) {
        const FieldSpec* field = FieldSchema::spec(found.key());
        const QList<FieldHome> homes = withoutForeign(*found);
        if (!field || homes.isEmpty())
            continue;
        const bool isForeignShown = std::any_of(found->cbegin(), found->cend(),
            [](const FieldHome& home) { return home.isForeign && !FileHome::is(home); });
        const bool isSeveral =
            std::any_of(homes.cbegin(), homes.cend(), [](const FieldHome& home) { return home.isSeveral; });
        if (isSeveral || (homes.size() < found->size() && areAlike(*field, homes)))
            continue;
        add(plan, *field, homes.constFirst(), photo);
        if (isForeignShown)
            plan.notShown.append(field->id);
    }
    return plan;
}

QStringList dateTags(const EditPlan& plan, bool isBeside)
{
    QStringList tags;
    for (const QString& id : dateFields(plan))
        tags += (isBeside ? SidecarSchema::spec(id) : FieldSchema::spec(id))->writeTags;
    return tags;
}

EditPlan withSeconds(EditPlan plan, const FileTags& stored, bool isBeside)
{
    const auto isExact = [isBeside](const QString& text, const QString& shown) {
        return (WallClock::fromTyped(text) && MetadataWriter::displayDate(text) == shown)
            || (isBeside && StoredTime::from(text) && MetadataReader::shownBeside(text) == shown);
    };
    for (const QString& id : dateFields(plan)) {
        QString& shown = plan.scalars[id];
        for (const QString& tag : FieldSchema::spec(id)->writeTags + SidecarSchema::spec(id)->writeTags)
            for (const QString& text : TagHomes::itemsOf(tag, stored))
                if (isExact(text, shown))
                    shown = text;
    }
    return plan;
}

}  // namespace Quorbel::Agreement
