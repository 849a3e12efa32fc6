#include "core/tool/WriteFailures.h"

#include <QHash>

namespace Quorbel {

using namespace Qt::StringLiterals;

QList<FileFailure> writeFailures(const QString& standardError, const QList<QUrl>& targets)
{
    const QString prefix = u"Error: "_s;
    const QString separator = u" - "_s;
    QHash<QString, QString> reasons;
    for (const auto& line : standardError.split(u'\n', Qt::SkipEmptyParts)) {
        if (!line.startsWith(prefix))
            continue;
        // Reasons and paths may both hold the separator. Paths are absolute, so "- /" is where one can begin.
        for (auto at = line.indexOf(separator, prefix.size()); at >= 0; at = line.indexOf(separator, at + 1))
            reasons.insert(line.sliced(at + separator.size()), line.sliced(prefix.size(), at - prefix.size()));
    }
    QList<FileFailure> failures;
    for (const auto& target : targets)
        if (const auto found = reasons.constFind(target.toLocalFile()); found != reasons.cend())
            failures.append({ .file = target, .reason = *found });
    return failures;
}

QList<FileFailure> writeFailures(const ToolError& error, const QList<QUrl>& targets)
{
    QList<FileFailure> failures = writeFailures(error.messages(), targets);
    if (failures.isEmpty())
        for (const auto& target : targets)
            failures.append({ .file = target, .reason = error.description() });
    return failures;
}

}  // namespace Quorbel
