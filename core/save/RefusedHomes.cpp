#include "core/save/RefusedHomes.h"

#include "core/iptc/IptcDefinitions.h"
#include "core/save/SaveGuard.h"
#include "core/save/SavePortion.h"
#include "core/schema/CustomFields.h"
#include "core/tool/ExifToolRunner.h"
#include "core/tool/TemporaryConfig.h"
#include "core/tool/WriteFailures.h"

namespace Quorbel::RefusedHomes {

namespace {

QStringList homesOf(const EditPlan& plan)
{
    QStringList homes;
    for (const auto& assignment : MetadataWriter::assignments(plan))
        if (const QString home = homeOf(assignment.tag); !homes.contains(home))
            homes.append(home);
    return homes;
}

WriteCommand commandFor(EditPlan plan, const QStringList& homes, const QString& home)
{
    plan.leftOut += homes;
    plan.leftOut.removeAll(home);
    return MetadataWriter::command(plan);
}

// One home of one portion.
struct Question {
    QString home{};
    qsizetype homes = 0;
    QList<QUrl> targets{};
    WriteRun run{};
};

QList<Question> questionsOf(const SavePortion& portion)
{
    const QStringList homes = homesOf(portion.plan);
    QList<Question> questions;
    if (homes.size() < 2 || portion.targets.isEmpty())
        return questions;
    const auto files = SaveGuard::filesBehindLinks(portion.targets);
    for (const QString& home : homes)
        questions.append({ home, homes.size(), portion.targets, { commandFor(portion.plan, homes, home), files } });
    return questions;
}

}  // namespace

QMap<QUrl, QMap<QString, QString>> find(const ExifToolRunner& runner, const EditPlan& plan, const QList<QUrl>& targets)
{
    return find(runner, { SavePortion{ plan, targets, {} } });
}

QMap<QUrl, QMap<QString, QString>> find(const ExifToolRunner& runner, const QList<SavePortion>& portions)
{
    QList<Question> questions;
    QStringList customNames;
    for (const SavePortion& portion : portions) {
        const QList<Question> some = questionsOf(portion);
        questions += some;
        if (!some.isEmpty())
            customNames += CustomFields::names(portion.plan.customs);
    }
    if (questions.isEmpty())
        return {};
    QList<WriteRun> runs;
    bool needsDefinitions = false;
    for (const Question& question : std::as_const(questions)) {
        runs.append(question.run);
        needsDefinitions = needsDefinitions || IptcDefinitions::areNeeded(question.run.command.assignments);
    }
    const TemporaryConfig config(customNames, needsDefinitions ? IptcDefinitions::text() : QString());
    const QStringList answers = runner.rehearseEach(runs, config.url());
    QMap<QUrl, QMap<QString, QString>> refused;
    QMap<QUrl, qsizetype> homes;
    for (qsizetype i = 0; i < questions.size(); ++i) {
        const Question& question = questions.at(i);
        const QList<QUrl>& files = question.run.files;
        QHash<QUrl, QString> reasons;
        for (const FileFailure& failure : writeFailures(answers.at(i), files))
            reasons.insert(failure.file, failure.reason);
        for (qsizetype j = 0; j < files.size(); ++j)
            if (const auto reason = reasons.constFind(files[j]); reason != reasons.cend()) {
                refused[question.targets[j]].insert(question.home, *reason);
                homes.insert(question.targets[j], question.homes);
            }
    }
    refused.removeIf([&homes](const auto& entry) { return entry.value().size() == homes.value(entry.key()); });
    return refused;
}

}  // namespace Quorbel::RefusedHomes
