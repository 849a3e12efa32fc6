#include "core/tool/WriteFailures.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Where in a message about a file the path begins, with what is in front of it; -1 in one about no file.
qsizetype pathAt(const QString& line)
{
    return line.indexOf(u" - /"_s);
}

QString bareName(const QString& tag)
{
    return tag.section(u':', -1);
}

// "Not a floating point number for XMP-xmp:Rating", in pieces.
struct Refusal {
    QString cause{};  ///< with the word before the tag; all of it, where no tag stands at its end
    QString tag{};
};

std::optional<Refusal> refusalIn(const QString& line)
{
    static const QRegularExpression warning(u"^Warning: (.+?)( \\((Print|Value|Raw)ConvInv\\))?$"_s);
    static const QRegularExpression named(u"^(.+ (?:in|for)) (\\S+:\\S+)$"_s);
    const auto match = warning.match(line);
    if (!match.hasMatch() || pathAt(line) >= 0)
        return std::nullopt;
    const auto pieces = named.match(match.captured(1));
    return pieces.hasMatch() ? Refusal{ pieces.captured(1), pieces.captured(2) } : Refusal{ match.captured(1) };
}

bool concerns(const Refusal& refusal, const QStringList& tags)
{
    return tags.isEmpty() || std::any_of(tags.cbegin(), tags.cend(), [&refusal](const QString& tag) {
        const QString name = bareName(tag);
        if (!refusal.tag.isEmpty())
            return bareName(refusal.tag).compare(name, Qt::CaseInsensitive) == 0;
        const QRegularExpression word(u":%1\\b"_s.arg(QRegularExpression::escape(name)),
            QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
        return refusal.cause.contains(word);
    });
}

}  // namespace

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

QStringList refusals(const QString& standardError, const QStringList& tags)
{
    QStringList causes;
    QHash<QString, QStringList> tagsBy;
    for (const auto& line : standardError.split(u'\n', Qt::SkipEmptyParts)) {
        const auto refusal = refusalIn(line);
        if (!refusal || !concerns(*refusal, tags))
            continue;
        if (!causes.contains(refusal->cause))
            causes.append(refusal->cause);
        if (QStringList& named = tagsBy[refusal->cause]; !refusal->tag.isEmpty() && !named.contains(refusal->tag))
            named.append(refusal->tag);
    }
    for (auto& cause : causes)
        if (const QStringList named = tagsBy.value(cause); !named.isEmpty())
            cause += u' ' + named.join(u", "_s);
    return causes;
}

QString toolReason(const ToolError& error)
{
    const QString prefix = u"Error: "_s;
    QStringList reasons;
    for (const auto& line : error.messages().split(u'\n', Qt::SkipEmptyParts))
        if (line.startsWith(prefix))
            reasons.append(line.left(pathAt(line)).sliced(prefix.size()));
    if (reasons.isEmpty())
        reasons = refusals(error.messages());
    reasons.removeDuplicates();
    return reasons.isEmpty() ? error.description() : reasons.join(u"; "_s);
}

}  // namespace Quorbel
