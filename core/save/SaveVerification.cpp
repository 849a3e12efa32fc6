#include "core/save/SaveVerification.h"

#include "core/iptc/IptcSchema.h"
#include "core/iptc/NumberCheck.h"
#include "core/language/Texts.h"
#include "core/save/ListHomes.h"
#include "core/save/TagHomes.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "core/text/Coordinates.h"
#include "core/text/Text.h"
#include "core/tool/MetadataReader.h"
#include "core/tool/MetadataWriter.h"

#include <algorithm>
#include <cmath>

namespace Quorbel::SaveVerification {

using namespace Qt::StringLiterals;

namespace {

// ExifTool prints "1.10" and "True" as the JSON values 1.1 and true: the same text in the file, another form here.
bool sameText(const QString& written, const QString& found)
{
    if (written == found)
        return true;
    const QString lower = written.toLower();
    if (lower == u"true"_s || lower == u"false"_s)
        return lower == found;
    const auto a = Text::parseDouble(written);
    const auto b = Text::parseDouble(found);
    return a && b && *a == *b;
}

// Of an enumeration the tool shows "5 (normal urgency)" and stores "5".
bool isNumberOf(const QString& shown, const QString& number)
{
    return !number.isEmpty() && shown.startsWith(number + u" ("_s);
}

bool samePosition(const QString& written, const QString& found)
{
    const auto normal = [](const QString& text) {
        const auto point = Coordinates::parse(text);
        return point ? Coordinates::displayString(*point) : Text::trimmed(text);
    };
    return normal(written) == normal(found);
}

// A date that a sidecar keeps to the letter is shown to the minute.
bool sameDate(const QString& written, const QString& found, bool isBeside)
{
    const QString stored = MetadataWriter::normalizeDate(written);
    return (isBeside ? MetadataReader::shownBeside(stored) : MetadataWriter::displayDate(stored)) == found;
}

bool sameScalar(const FieldSpec& field, const QString& written, const QString& found, bool isBeside)
{
    switch (field.kind) {
    case FieldKind::coordinates:
        return samePosition(written, found);
    case FieldKind::date:
        return sameDate(written, found, isBeside);
    case FieldKind::rating:
        return sameText(MetadataWriter::normalizeRating(written), MetadataWriter::normalizeRating(found));
    default:
        return sameText(written, found) || isNumberOf(found, written);
    }
}

QStringList withoutBlanks(const QStringList& items)
{
    QStringList kept;
    for (const auto& item : items)
        if (const QString trimmed = Text::trimmed(item); !trimmed.isEmpty())
            kept.append(trimmed);
    return kept;
}

bool sameList(const EditPlan& plan, const QStringList& written, const QStringList& found)
{
    const QStringList wanted = plan.isExact ? written : withoutBlanks(written);
    if (plan.listMode == MetadataWriter::ListMode::replace)
        return std::equal(wanted.cbegin(), wanted.cend(), found.cbegin(), found.cend(), sameText);
    return std::all_of(wanted.cbegin(), wanted.cend(), [&found](const QString& item) {
        return std::any_of(
            found.cbegin(), found.cend(), [&item](const QString& other) { return sameText(item, other); });
    });
}

// The text of a home, as its standard keeps it: without white space at its end, an enumeration by its number.
bool sameInHome(const FieldSpec& field, const QString& written, const QByteArray& stored)
{
    QString found = QString::fromUtf8(stored);
    if (field.kind == FieldKind::date)
        return MetadataWriter::displayDate(written) == MetadataWriter::displayDate(found);
    if (field.kind == FieldKind::rating)
        return sameText(written, MetadataWriter::normalizeRating(found));
    found.replace(QChar::Null, u'\n');
    if (field.kind == FieldKind::code)
        return found == written || found.endsWith(u'/' + written);
    return sameText(written, found) || Text::trimmedWithNewlines(written) == Text::trimmedWithNewlines(found)
        || isNumberOf(written, found);
}

// A position stands where there is one at all: in EXIF without its sign, which is a tag of its own there.
bool samePositionInHomes(const QList<Assignment>& assignments, const FileTags& stored)
{
    for (const Assignment& written : assignments) {
        const bool isNegative = assignments.contains({ .tag = written.tag + u"Ref"_s, .value = u"S"_s })
            || assignments.contains({ .tag = written.tag + u"Ref"_s, .value = u"W"_s });
        const FileTags places = TagHomes::placesOf(written.tag, stored);
        for (auto place = places.cbegin(); place != places.cend(); ++place) {
            const QString found = QString::fromUtf8(place->value(0));
            const auto degrees = Text::parseDouble(found);
            const auto wanted = Text::parseDouble(written.value);
            constexpr double tolerance = 1e-6;
            const double sign = isNegative && place.key().startsWith(u"XMP-"_s) ? -1 : 1;
            const bool isSame = degrees && wanted ? std::abs(*degrees - sign * *wanted) < tolerance
                                                  : found.left(1).compare(written.value, Qt::CaseInsensitive) == 0;
            if (!isSame)
                return false;
        }
    }
    return true;
}

bool holdsInHomes(const FieldSpec& field, const QString& value, const QString& fileType, const FileTags& stored)
{
    const QList<Assignment> assignments = MetadataWriter::scalarArgs(field, value);
    if (field.kind == FieldKind::coordinates)
        return samePositionInHomes(assignments, stored);
    return std::all_of(assignments.cbegin(), assignments.cend(), [&](const Assignment& written) {
        const FileTags places = TagHomes::placesOf(written.tag, stored);
        const auto holds = [&](const QList<QByteArray>& values) {
            return values.size() == 1 && sameInHome(field, written.value, values.constFirst());
        };
        if (!TagHomes::holds(fileType, written.tag))
            return true;
        return written.value.isEmpty() ? std::all_of(places.cbegin(), places.cend(), holds)
                                       : std::any_of(places.cbegin(), places.cend(), holds);
    });
}

// An emptied list of a sidecar is one of an item without characters.
QStringList itemsOf(const EditPlan& plan, const QString& tag, const FileTags& stored)
{
    QStringList items = TagHomes::itemsOf(tag, stored);
    if (plan.sidecar)
        items.removeAll(QString());
    return items;
}

bool holdsInHomes(const EditPlan& plan, const FieldSpec& field, const QStringList& items, const QString& fileType,
    const FileTags& stored)
{
    return std::all_of(field.writeTags.cbegin(), field.writeTags.cend(), [&](const QString& tag) {
        return !TagHomes::holds(fileType, tag) || sameList(plan, items, itemsOf(plan, tag, stored));
    });
}

// Whether some of what was taken away is there, in the home that is shown or in another one.
bool isStillThere(const QStringList& removed, const FieldSpec& field, const ImageRecord& record, const FileTags* stored)
{
    if (removed.isEmpty())
        return false;
    QStringList found = record.lists.value(field.id);
    for (const QString& tag : stored ? field.writeTags : QStringList())
        found += TagHomes::itemsOf(tag, *stored);
    return std::any_of(removed.cbegin(), removed.cend(),
        [&found](const QString& item) { return found.contains(item) || found.contains(ListHomes::shownText(item)); });
}

// Of what is written beside the fields. A tag that is assigned holds just that, in some place.
bool holdsTogether(const EditPlan& plan, const QString& id, const FileTags& stored)
{
    using enum Assignment::Operation;
    const QList<Assignment> assignments = plan.hides(id) ? QList<Assignment>() : plan.together.value(id);
    return std::all_of(assignments.cbegin(), assignments.cend(), [&](const Assignment& written) {
        const QStringList items = TagHomes::itemsOf(written.tag, stored);
        if (plan.leftOut.contains(homeOf(written.tag)))
            return true;
        if (written.operation == remove)
            return !items.contains(written.value) || assignments.contains({ written.tag, add, written.value });
        return written.value.isEmpty() ? items.isEmpty() : items.contains(written.value);
    });
}

// Whether the field is written, but not to all of its homes.
bool isInPart(const EditPlan& plan, const FieldSpec& field)
{
    if (plan.leftOut.isEmpty())
        return false;
    EditPlan alone{ .leftOut = plan.leftOut };
    if (const auto scalar = plan.scalars.constFind(field.id); scalar != plan.scalars.cend())
        alone.scalars.insert(field.id, *scalar);
    if (const auto list = plan.lists.constFind(field.id); list != plan.lists.cend())
        alone.lists.insert(field.id, *list);
    if (const auto items = plan.removed.constFind(field.id); items != plan.removed.cend())
        alone.removed.insert(field.id, *items);
    if (const auto change = plan.iptcLists.constFind(field.id); change != plan.iptcLists.cend())
        alone.iptcLists.insert(field.id, *change);
    const auto rest = MetadataWriter::assignments(alone);
    alone.leftOut.clear();
    return !rest.isEmpty() && rest != MetadataWriter::assignments(alone);
}

// Of the lists of IptcSchema; structures are compared elsewhere (PhotoPlan::structures).
bool holdsChange(const EditPlan& plan, const FieldSpec& field, const ListChange& change, const QString& fileType,
    const FileTags& stored)
{
    return std::all_of(field.writeTags.cbegin(), field.writeTags.cend(), [&](const QString& tag) {
        if (!TagHomes::holds(fileType, tag))
            return true;
        const QStringList found = itemsOf(plan, tag, stored);
        const auto inTag = [&tag](QStringList items) {
            for (QString& item : items)
                item = IptcSchema::storedIn(tag, item);
            return items;
        };
        const EditPlan replacing;
        const EditPlan appending{ .listMode = MetadataWriter::ListMode::append };
        const bool holdsWhole = !change.whole || sameList(replacing, inTag(*change.whole + change.added), found);
        return holdsWhole && sameList(appending, inTag(change.added), found)
            && std::none_of(change.removed.cbegin(), change.removed.cend(),
                [&](const QString& item) { return found.contains(IptcSchema::storedIn(tag, item)); });
    });
}

// What is no number is not written, whatever the files hold.
bool isRefused(const EditPlan& plan, const FieldSpec& field)
{
    const ListChange change = plan.iptcLists.value(field.id);
    const QStringList texts = change.whole.value_or(QStringList()) + change.added;
    return !NumberCheck::problem(field, QStringList(plan.scalars.value(field.id)) + texts).isEmpty();
}

QStringList refusedNumbers(const EditPlan& plan)
{
    QStringList keys;
    for (const QString& id : plan.scalars.keys() + plan.iptcLists.keys())
        if (const FieldSpec* field = IptcSchema::spec(id);
            field && field->kind == FieldKind::number && isRefused(plan, *field))
            keys.append(id);
    return keys;
}

// The records know nothing of these fields.
QStringList iptcDifferences(const EditPlan& plan, const QString& fileType, const FileTags& stored)
{
    QStringList keys;
    for (const FieldSpec& one : IptcSchema::all()) {
        const FieldSpec& field = *plan.spec(one.id);
        if (field.kind == FieldKind::structure || isInPart(plan, field) || isRefused(plan, field))
            continue;
        const auto text = plan.scalars.constFind(field.id);
        const auto list = plan.iptcLists.constFind(field.id);
        if ((text != plan.scalars.cend() && !holdsInHomes(field, *text, fileType, stored))
            || (list != plan.iptcLists.cend() && !holdsChange(plan, field, *list, fileType, stored)))
            keys.append(field.id);
    }
    return keys;
}

// A text in a further language stands in one home only.
QStringList languageDifferences(const EditPlan& plan, const FileTags& stored)
{
    QStringList keys;
    for (auto it = plan.scalars.cbegin(); it != plan.scalars.cend(); ++it) {
        const auto language = FieldLanguages::languageIn(it.key());
        if (!language || plan.leftOut.contains(u"XMP"_s))
            continue;
        const QStringList found = itemsOf(plan, FieldLanguages::tag(it.key()), stored);
        const bool isSame = it->isEmpty() ? found.isEmpty()
                                          : found.contains(*it)
                || (!found.isEmpty() && sameInHome(*language->field, *it, found.constFirst().toUtf8()));
        if (!isSame)
            keys.append(it.key());
    }
    return keys;
}

bool holdsCustom(const ImageRecord& record, const CustomValue& custom)
{
    const auto name = MetadataWriter::sanitizeCustomName(custom.name);
    // Without its definition ExifTool reads a custom name back with a capital first letter.
    const auto found = std::find_if(record.custom.cbegin(), record.custom.cend(),
        [&name](const CustomValue& other) { return name && other.name.compare(*name, Qt::CaseInsensitive) == 0; });
    return sameText(custom.value, found == record.custom.cend() ? QString() : found->value);
}

}  // namespace

QStringList differences(const EditPlan& plan, const ImageRecord& record, const FileTags* stored)
{
    QStringList keys;
    for (const auto& one : FieldSchema::all()) {
        const FieldSpec& field = *plan.spec(one.id);
        if (isInPart(plan, field))
            continue;
        const bool isShown = !stored || !plan.notShown.contains(field.id);
        if (const auto scalar = plan.scalars.constFind(field.id); scalar != plan.scalars.cend())
            if ((isShown && !sameScalar(field, *scalar, record.values.value(field.id), plan.sidecar.has_value()))
                || (stored && !holdsInHomes(field, *scalar, record.fileType, *stored)))
                keys.append(field.id);
        if (const auto list = plan.lists.constFind(field.id); list != plan.lists.cend())
            if (!sameList(plan, *list, record.lists.value(field.id))
                || (stored && !holdsInHomes(plan, field, *list, record.fileType, *stored)))
                keys.append(field.id);
        if (!keys.contains(field.id) && isStillThere(plan.removed.value(field.id), field, record, stored))
            keys.append(field.id);
        if (stored && !keys.contains(field.id) && !holdsTogether(plan, field.id, *stored))
            keys.append(field.id);
    }
    if (stored)
        keys += iptcDifferences(plan, record.fileType, *stored) + languageDifferences(plan, *stored);
    keys += refusedNumbers(plan);
    for (const auto& custom : plan.customs)
        if (!holdsCustom(record, custom))
            keys.append(CustomFields::key(custom.name));
    return keys;
}

bool hasHiddenHomes(const EditPlan& plan)
{
    if (!plan.iptcLists.isEmpty())
        return true;
    const QStringList ids = plan.scalars.keys() + plan.lists.keys() + plan.removed.keys() + plan.together.keys();
    return std::any_of(ids.cbegin(), ids.cend(), [&plan](const QString& id) {
        if (plan.together.contains(id) || FieldLanguages::languageIn(id))
            return true;
        const FieldSpec* field = plan.spec(id);
        return field && (IptcSchema::isId(id) || field->kind == FieldKind::coordinates || field->writeTags.size() > 1);
    });
}

QStringList labels(const QStringList& keys)
{
    QStringList texts;
    for (const auto& key : keys) {
        const FieldSpec* field = FieldSchema::spec(key);
        if (const QString label = FieldLanguages::label(key); !label.isEmpty())
            texts.append(label);
        else
            texts.append(field ? Texts::shown(field->label) : CustomFields::nameIn(key).value_or(key));
    }
    return texts;
}

}  // namespace Quorbel::SaveVerification
