#include "core/iptc/IptcRead.h"

#include "core/details/AnswersByFile.h"
#include "core/details/DetailTags.h"
#include "core/iptc/IptcSchema.h"
#include "core/save/SaveGuard.h"

namespace Quorbel::IptcRead {

QHash<QUrl, IptcValues> of(
    const ExifToolRunner& runner, const QStringList& ids, const QList<QUrl>& targets, const ReadControl& control)
{
    QStringList tags;
    for (const QString& id : ids)
        if (const FieldSpec* field = IptcSchema::spec(id))
            tags += field->readTags;
    QHash<QUrl, IptcValues> found;
    if (tags.isEmpty())
        return found;
    const QList<QUrl> files = SaveGuard::filesBehindLinks(targets);
    const QList<JSONObject> objects = runner.readDetails(tags << DetailTags::error(), files, control).objects;
    const AnswersByFile answers(objects);
    for (qsizetype i = 0; i < files.size(); ++i)
        if (const JSONObject* tags = answers.of(files.at(i).toLocalFile(), i, files.size());
            tags && !tags->contains(DetailTags::error()))
            found.insert(targets.at(i), IptcValues::fromRead(*tags));
    return found;
}

}  // namespace Quorbel::IptcRead
