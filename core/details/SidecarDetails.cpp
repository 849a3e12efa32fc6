#include "core/details/SidecarDetails.h"

#include "core/details/AnswersByFile.h"
#include "core/details/DetailTags.h"
#include "core/iptc/IptcSchema.h"
#include "core/schema/FieldID.h"
#include "core/sidecar/SidecarRead.h"
#include "core/sidecar/SidecarSchema.h"
#include "core/tool/MetadataWriter.h"

#include <algorithm>

namespace Quorbel::SidecarDetails {

using namespace Qt::StringLiterals;

QHash<QUrl, JSONObject> read(const ExifToolRunner& runner, const SidecarPolicy& policy,
    const QList<ImageRecord>& photos, const ReadControl& control)
{
    QHash<QUrl, JSONObject> found;
    QHash<QString, QList<QUrl>> photosOf;  // by path of the sidecar
    QList<QUrl> files;
    for (const ImageRecord& photo : photos) {
        const QString path = policy.existing(photo.url);
        if (path.isEmpty())
            continue;
        if (!photosOf.contains(path))
            files.append(QUrl::fromLocalFile(path));
        photosOf[path].append(photo.url);
    }
    if (files.isEmpty())
        return found;
    const ReadControl own{ .progress = {}, .stop = control.stop, .started = control.started };
    const QList<JSONObject> objects = runner.readDetails(DetailTags::ofSidecars(), files, own).objects;
    const AnswersByFile answers(objects);
    for (qsizetype i = 0; i < files.size(); ++i) {
        const QString path = files.at(i).toLocalFile();
        const JSONObject* tags = answers.of(path, i, files.size());
        if (!tags || tags->contains(DetailTags::error()) || !SidecarRead::reasonIn(*tags).isEmpty())
            continue;
        for (const QUrl& photo : photosOf.value(path))
            found.insert(photo, *tags);
    }
    return found;
}

bool decides(const FieldSpec& field, const JSONObject& sidecar)
{
    return std::any_of(field.readTags.cbegin(), field.readTags.cend(), [&sidecar](const QString& tag) {
        if (sidecar.contains(tag))
            return true;
        if (!tag.startsWith(u"XMP:"_s))
            return false;
        const QString ending = tag.sliced(3);
        const QString custom = MetadataWriter::customNamespacePrefix() + u':';
        return std::any_of(sidecar.keyBegin(), sidecar.keyEnd(), [&](const QString& key) {
            return key.startsWith(u"XMP-"_s) && key.endsWith(ending) && !key.startsWith(custom);
        });
    });
}

QStringList paths(const QStringList& ofFile, const QStringList& ofSidecar, const JSONObject& sidecar)
{
    return !ofSidecar.isEmpty() || decides(*SidecarSchema::spec(FieldID::keywords), sidecar) ? ofSidecar : ofFile;
}

void putOver(PhotoDetails& details, const PhotoDetails& ofSidecar, const JSONObject& sidecar)
{
    for (const FieldSpec& field : IptcSchema::all())
        if (decides(field, sidecar)) {
            details.texts.remove(field.id);
            details.lists.remove(field.id);
        }
    for (auto text = ofSidecar.texts.cbegin(); text != ofSidecar.texts.cend(); ++text)
        if (text->isEmpty())
            details.texts.remove(text.key());
        else
            details.texts.insert(text.key(), *text);
    details.lists.insert(ofSidecar.lists);
}

}  // namespace Quorbel::SidecarDetails
