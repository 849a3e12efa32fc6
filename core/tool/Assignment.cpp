#include "core/tool/Assignment.h"

#include "core/language/Texts.h"
#include "core/tool/WriteCommand.h"

#include <QHash>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

bool replaces(Assignment::Operation operation)
{
    return operation == Assignment::Operation::set || operation == Assignment::Operation::restore;
}

QString sign(const Assignment& assignment)
{
    switch (assignment.operation) {
    case Assignment::Operation::add:
        return u"+="_s;
    case Assignment::Operation::remove:
        return u"-="_s;
    case Assignment::Operation::restore:
        // A tag that is there without a text is not a tag that is not there.
        return assignment.value.isEmpty() ? u"#^="_s : u"#="_s;
    default:
        return u"="_s;
    }
}

}  // namespace

QString homeOf(const QString& tag)
{
    if (tag.startsWith(u"XMP"_s, Qt::CaseInsensitive))
        return u"XMP"_s;
    return tag.startsWith(u"IPTC"_s, Qt::CaseInsensitive) ? u"IPTC"_s : u"EXIF"_s;
}

AssignmentConflict::AssignmentConflict(const QString& tag)
    : Error(Texts::tr("“%1” cannot be replaced and added to in one save. Nothing was written.").arg(tag))
{
}

void requireOneWay(const QList<Assignment>& assignments)
{
    QHash<QString, bool> replacesTag;
    for (const auto& assignment : assignments) {
        const bool isReplaced = replaces(assignment.operation);
        if (replacesTag.value(assignment.tag.toLower(), isReplaced) != isReplaced)
            throw AssignmentConflict(assignment.tag);
        replacesTag.insert(assignment.tag.toLower(), isReplaced);
    }
}

QStringList arguments(const QList<Assignment>& assignments)
{
    requireOneWay(assignments);
    QStringList list;
    list.reserve(assignments.size());
    for (const auto& assignment : assignments)
        list.append(u'-' + assignment.tag + sign(assignment) + assignment.value);
    return list;
}

QStringList arguments(const WriteCommand& command)
{
    requireOneWay(command.assignments + command.languages);
    QStringList list = command.options + arguments(command.assignments);
    if (!command.keptLanguages.isEmpty())
        list << u"-tagsfromfile"_s << u"@"_s;
    for (const QString& tag : command.keptLanguages)
        list << u'-' + tag + u"-*"_s;
    return list + arguments(command.languages);
}

}  // namespace Quorbel
