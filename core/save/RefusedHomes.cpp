#include "core/save/RefusedHomes.h"

#include "core/save/EditPlan.h"
#include "core/save/SaveGuard.h"
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

}  // namespace

QMap<QUrl, QMap<QString, QString>> find(const ExifToolRunner& runner, const EditPlan& plan, const QList<QUrl>& targets)
{
    const QStringList homes = homesOf(plan);
    if (homes.size() < 2)
        return {};
    const auto files = SaveGuard::filesBehindLinks(targets);
    const TemporaryConfig config(CustomFields::names(plan.customs));
    QMap<QUrl, QMap<QString, QString>> refused;
    for (const auto& home : homes)
        for (const auto& failure :
            writeFailures(runner.rehearse(commandFor(plan, homes, home), files, config.url()), files))
            for (qsizetype i = 0; i < files.size(); ++i)
                if (files[i] == failure.file)
                    refused[targets[i]].insert(home, failure.reason);
    refused.removeIf([&homes](const auto& entry) { return entry.value().size() == homes.size(); });
    return refused;
}

}  // namespace Quorbel::RefusedHomes
