#include "core/save/ValueTooLong.h"

#include "core/language/Texts.h"
#include "core/save/EditPlan.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Bytes of an argument, without the zero at its end: Linux allows 32 pages of 4 KiB.
constexpr qsizetype longestArgument = 128 * 1024 - 1;

void requireShort(const QList<Assignment>& assignments, const QString& label)
{
    const QStringList list = arguments(assignments);
    // A character takes three bytes at most.
    if (std::any_of(list.cbegin(), list.cend(), [](const QString& argument) {
            return argument.size() > longestArgument / 3 && argument.toUtf8().size() > longestArgument;
        }))
        throw ValueTooLong(label);
}

QString labelOf(const QString& id)
{
    if (const QString label = FieldLanguages::label(id); !label.isEmpty())
        return label;
    const FieldSpec* field = FieldSchema::spec(id);
    return field ? Texts::shown(field->label) : id;
}

}  // namespace

ValueTooLong::ValueTooLong(const QString& label)
    : Error(Texts::tr("“%1” is too long: a value may have 128 KiB at most. Nothing was written.").arg(label))
{
}

void requireShortValues(const EditPlan& plan)
{
    for (auto it = plan.scalars.cbegin(); it != plan.scalars.cend(); ++it)
        requireShort(MetadataWriter::assignments({ .scalars = { { it.key(), *it } } }), labelOf(it.key()));
    for (auto it = plan.lists.cbegin(); it != plan.lists.cend(); ++it)
        requireShort(MetadataWriter::assignments({ .lists = { { it.key(), *it } } }), labelOf(it.key()));
    for (auto it = plan.iptcLists.cbegin(); it != plan.iptcLists.cend(); ++it)
        requireShort(MetadataWriter::assignments({ .iptcLists = { { it.key(), *it } } }), labelOf(it.key()));
    for (const auto& custom : plan.customs)
        requireShort(MetadataWriter::customArgs(custom.name, custom.value), custom.name);
}

}  // namespace Quorbel
