#include "core/tool/MetadataWriter.h"

#include "core/Product.h"
#include "core/iptc/IptcSchema.h"
#include "core/iptc/NumberCheck.h"
#include "core/iptc/StructureText.h"
#include "core/save/EditPlan.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "core/sidecar/SidecarSchema.h"
#include "core/text/Coordinates.h"
#include "core/text/Text.h"
#include "core/text/WallClock.h"

#include <algorithm>
#include <cmath>

namespace Quorbel::MetadataWriter {

using namespace Qt::StringLiterals;

namespace {

QList<Assignment> withoutHomes(const QList<Assignment>& all, const QStringList& homes)
{
    // A position names no home: where it may not go to both, it goes to the other one.
    QList<Assignment> kept = all;
    if (homes.contains(u"EXIF"_s))
        kept = Coordinates::inXmp(kept);
    else if (homes.contains(u"XMP"_s))
        kept = Coordinates::inExif(kept);
    kept.removeIf([&homes](const Assignment& assignment) { return homes.contains(homeOf(assignment.tag)); });
    return kept;
}

}  // namespace

QString customNamespacePrefix()
{
    return u"XMP-Quorbel"_s;
}

QString customNamespaceURI()
{
    return Product::customNamespaceURI();
}

namespace {

// Codes that the tool knows by their English names, too, are given as they are stored.
Assignment::Operation operationFor(const QString& tag)
{
    return IptcSchema::isWrittenByCode(tag) ? Assignment::Operation::restore : Assignment::Operation::set;
}

QList<Assignment> structureValue(const FieldSpec& field, const QString& text)
{
    const StructureSpec* structure = IptcStructures::spec(field.structure);
    const QString argument = structure ? StructureText::argument(*structure, text) : QString();
    return { { .tag = field.writeTags.constFirst(), .value = argument } };
}

}  // namespace

QList<Assignment> scalarArgs(const FieldSpec& field, const QString& value)
{
    if (field.kind == FieldKind::coordinates)
        return Coordinates::writeArgs(value);
    if (!NumberCheck::problem(field, { value }).isEmpty())
        return {};
    if (field.kind == FieldKind::structure)
        return structureValue(field, value);
    QString written = value;
    if (field.kind == FieldKind::rating)
        written = normalizeRating(value);
    else if (field.kind == FieldKind::date)
        written = normalizeDate(value);
    QList<Assignment> args;
    // The empty text of a restoring assignment would be a text without characters.
    for (const QString& tag : field.writeTags)
        args.append({ tag, written.isEmpty() ? Assignment::Operation::set : operationFor(tag), written });
    return args;
}

namespace {

QList<Assignment> exactListArgs(const FieldSpec& field, const QStringList& items, ListMode mode)
{
    QList<Assignment> args;
    for (const QString& tag : field.writeTags) {
        if (mode == ListMode::replace)
            args.append({ .tag = tag });
        for (const QString& item : items) {
            if (mode == ListMode::replace) {
                args.append({ .tag = tag, .value = item });
            } else {
                // Taken out before it is added, an item that is there already is not doubled.
                args.append({ tag, Assignment::Operation::remove, item });
                args.append({ tag, Assignment::Operation::add, item });
            }
        }
    }
    return args;
}

}  // namespace

QList<Assignment> listArgs(const FieldSpec& field, const QStringList& values, ListMode mode)
{
    QStringList items;
    for (const QString& value : values)
        if (const QString item = Text::trimmed(value); !item.isEmpty())
            items.append(item);
    return exactListArgs(field, items, mode);
}

QList<Assignment> customArgs(const QString& name, const QString& value)
{
    const std::optional<QString> tag = sanitizeCustomName(name);
    if (!tag || tag->compare(u"All"_s, Qt::CaseInsensitive) == 0)
        return {};
    return { { .tag = customNamespacePrefix() + u':' + *tag, .value = value } };
}

namespace {

QList<Assignment> structureArgs(const FieldSpec& field, const ListChange& change)
{
    const StructureSpec* structure = IptcStructures::spec(field.structure);
    const QString tag = field.writeTags.constFirst();
    QList<Assignment> args;
    if (!structure)
        return args;
    const auto append = [&](const QStringList& items, Assignment::Operation operation) {
        for (const QString& item : items)
            if (const QString argument = StructureText::argument(*structure, item); !argument.isEmpty())
                args.append({ tag, operation, argument });
    };
    if (change.whole)
        args.append({ .tag = tag });
    append(change.whole.value_or(QStringList()), Assignment::Operation::set);
    append(change.added, change.whole ? Assignment::Operation::set : Assignment::Operation::add);
    return args;
}

QList<Assignment> iptcArgs(const FieldSpec& field, const ListChange& change)
{
    if (!NumberCheck::problem(field, change.whole.value_or(QStringList()) + change.added).isEmpty())
        return {};
    if (field.kind == FieldKind::structure)
        return structureArgs(field, change);
    QList<Assignment> args;
    if (change.whole) {
        args = listArgs(field, *change.whole + change.added, ListMode::replace);
    } else {
        args = listArgs(field, change.added, ListMode::append);
        for (const QString& tag : field.writeTags)
            for (const QString& item : change.removed)
                args.append({ tag, Assignment::Operation::remove, item });
    }
    for (Assignment& assignment : args)
        if (field.kind == FieldKind::code && !assignment.value.isEmpty())
            assignment.value = IptcSchema::storedIn(assignment.tag, assignment.value);
    return args;
}

QList<Assignment> iptcArgs(const EditPlan& plan)
{
    QList<Assignment> args;
    for (auto it = plan.iptcLists.cbegin(); it != plan.iptcLists.cend(); ++it) {
        const FieldSpec* field = IptcSchema::isId(it.key()) ? plan.spec(it.key()) : nullptr;
        if (field && plan.hides(it.key()))
            args += SidecarSchema::emptied(*field);
        else if (field && !plan.together.contains(it.key()))
            args += iptcArgs(*field, *it);
    }
    return args;
}

// As they stand: what is to go is spelled as the files spell it.
QList<Assignment> removalArgs(const FieldSpec& field, const QStringList& items)
{
    QList<Assignment> args;
    for (const QString& tag : field.writeTags)
        for (const QString& item : items)
            if (!item.isEmpty())
                args.append({ tag, Assignment::Operation::remove, item });
    return args;
}

QList<Assignment> textArgs(const EditPlan& plan, const FieldSpec& field, const QString& text)
{
    if (plan.hides(field.id))
        return SidecarSchema::emptied(field);
    if (field.kind == FieldKind::structure && plan.together.contains(field.id))
        return {};
    const QList<Assignment> args = scalarArgs(field, text);
    return plan.sidecar && field.kind == FieldKind::coordinates ? Coordinates::inXmp(args) : args;
}

QList<Assignment> itemArgs(const EditPlan& plan, const FieldSpec& field, const QStringList& items)
{
    if (plan.hides(field.id))
        return SidecarSchema::emptied(field);
    return plan.isExact ? exactListArgs(field, items, plan.listMode) : listArgs(field, items, plan.listMode);
}

QList<Assignment> argsOfCustoms(const EditPlan& plan)
{
    QList<Assignment> args;
    for (const auto& custom : plan.customs) {
        QList<Assignment> own = customArgs(custom.name, custom.value);
        if (plan.hides(CustomFields::key(custom.name)))
            for (Assignment& assignment : own)
                assignment.operation = Assignment::Operation::restore;
        args += own;
    }
    return args;
}

QList<Assignment> fieldArgs(const EditPlan& plan)
{
    QList<Assignment> args;
    for (auto it = plan.scalars.cbegin(); it != plan.scalars.cend(); ++it)
        if (const FieldSpec* field = plan.spec(it.key()))
            args += textArgs(plan, *field, *it);
    for (auto it = plan.lists.cbegin(); it != plan.lists.cend(); ++it)
        if (const FieldSpec* field = plan.spec(it.key()))
            args += itemArgs(plan, *field, *it);
    for (auto it = plan.removed.cbegin(); it != plan.removed.cend(); ++it)
        if (const FieldSpec* field = plan.spec(it.key()))
            args += removalArgs(*field, it.value());
    args += iptcArgs(plan);
    args += argsOfCustoms(plan);
    for (auto further = plan.together.cbegin(); further != plan.together.cend(); ++further)
        if (!plan.hides(further.key()))
            args += *further;
    return plan.sidecar && !plan.isEmpty() ? args + noteArgs(*plan.sidecar) : args;
}

QList<Assignment> languageArgs(const EditPlan& plan)
{
    QList<Assignment> args;
    for (auto it = plan.scalars.cbegin(); it != plan.scalars.cend(); ++it)
        if (const QString tag = FieldLanguages::tag(it.key()); !tag.isEmpty())
            args.append(
                { tag, plan.hides(it.key()) ? Assignment::Operation::restore : Assignment::Operation::set, *it });
    return args;
}

}  // namespace

QList<Assignment> noteArgs(const SidecarNote& note)
{
    QList<Assignment> args;
    if (!note.extension.isEmpty())
        args.append({ .tag = u"XMP-photoshop:SidecarForExtension"_s, .value = note.extension });
    if (!note.savedAt.isEmpty())
        args.append({ .tag = u"XMP-xmp:MetadataDate"_s, .value = note.savedAt });
    return args;
}

WriteCommand command(const EditPlan& plan)
{
    WriteCommand command{
        .assignments = fieldArgs(plan), .keptLanguages = plan.keptLanguages, .languages = languageArgs(plan)
    };
    if (!plan.leftOut.isEmpty()) {
        command.assignments = withoutHomes(command.assignments, plan.leftOut);
        command.languages = withoutHomes(command.languages, plan.leftOut);
        command.keptLanguages.removeIf([&plan](const QString& tag) { return plan.leftOut.contains(homeOf(tag)); });
    }
    return command;
}

QList<Assignment> assignments(const EditPlan& plan)
{
    const WriteCommand whole = command(plan);
    return whole.assignments + whole.languages;
}

QString customConfig(const QStringList& names)
{
    QStringList tags;
    for (const QString& name : names)
        if (const std::optional<QString> tag = sanitizeCustomName(name); tag && !tags.contains(*tag))
            tags.append(*tag);
    // UTF-8 sorts by code point, where UTF-16 puts surrogates before the end of the first plane.
    std::sort(tags.begin(), tags.end(), [](const QString& a, const QString& b) { return a.toUtf8() < b.toUtf8(); });
    QStringList lines;
    for (const QString& tag : std::as_const(tags))
        lines.append(u"  "_s + tag + u" => { Writable => 'string' },"_s);
    return u"%Image::ExifTool::UserDefined = (\n"
           "  'Image::ExifTool::XMP::Main' => {\n"
           "    Quorbel => { SubDirectory => { TagTable => 'Image::ExifTool::UserDefined::Quorbel' } },\n"
           "  },\n"
           ");\n"
           "%Image::ExifTool::UserDefined::Quorbel = (\n"
           "  GROUPS => { 0 => 'XMP', 1 => '"_s
        + customNamespacePrefix()
        + u"', 2 => 'Image' },\n"
          "  NAMESPACE => { 'Quorbel' => '"_s
        + customNamespaceURI()
        + u"' },\n"
          "  WRITABLE => 'string',\n"_s
        + lines.join(u'\n') + u"\n);\n1;"_s;
}

std::optional<QString> sanitizeCustomName(const QString& name)
{
    QString kept;
    const QList<uint> codePoints = name.toUcs4();
    for (const char32_t c : codePoints) {
        const bool number = QChar::isNumber(c);
        if (QChar::isLetter(c) || QChar::isMark(c) || (number && !kept.isEmpty()))
            kept += QChar::fromUcs4(c);
    }
    if (kept.isEmpty())
        return std::nullopt;
    return kept;
}

QString normalizeDate(const QString& text)
{
    const QString trimmed = Text::trimmed(text);
    const auto date = WallClock::fromTyped(trimmed);
    return date ? WallClock::stored(*date) : trimmed;
}

QString normalizeRating(const QString& text)
{
    const QString trimmed = Text::trimmed(text);
    const std::optional<double> number = Text::parseDouble(trimmed);
    if (!number || !std::isfinite(*number))
        return trimmed;
    return QString::number(static_cast<int>(std::clamp(*number, 0.0, 5.0)));
}

QString displayDate(const QString& text)
{
    const QString trimmed = Text::trimmed(text);
    const auto date = WallClock::fromStored(trimmed);
    return date ? WallClock::shown(*date) : trimmed;
}

}  // namespace Quorbel::MetadataWriter
