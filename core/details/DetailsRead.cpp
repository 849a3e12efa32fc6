#include "core/details/DetailsRead.h"

#include "core/details/AnswersByFile.h"
#include "core/details/Credentials.h"
#include "core/details/DetailTags.h"
#include "core/details/Disagreements.h"
#include "core/details/SidecarDetails.h"
#include "core/iptc/IptcValues.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "core/schema/KeywordPath.h"

namespace Quorbel::DetailsRead {

using namespace Qt::StringLiterals;

namespace {

QMap<QString, QString> languages(const JSONObject& tags)
{
    QMap<QString, QString> texts;
    for (const FieldSpec& field : FieldSchema::everyField()) {
        const QString tag = field.languageTag();
        if (tag.isEmpty())
            continue;
        const QString prefix = tag + u'-';
        for (auto it = tags.lowerBound(prefix); it != tags.cend() && it.key().startsWith(prefix); ++it) {
            const QString code = it.key().sliced(prefix.size());
            if (const auto text = it->stringValue(); text && FieldLanguages::isCode(code))
                texts.insert(FieldLanguages::key(field.id, code), *text);
        }
    }
    return texts;
}

QStringList paths(const JSONObject& tags)
{
    QStringList found;
    for (const auto& home : KeywordPath::homes())
        for (const QString& item : tags.value(home.tag).stringArray())
            found.append(KeywordPath::fromStored(home, item));
    for (const QString& tree : tags.value(KeywordPath::treeTag()).stringArray())
        found += KeywordPath::inTree(tree);
    found.removeDuplicates();
    found.removeIf([](const QString& path) { return KeywordPath::parents(path).isEmpty(); });
    return found;
}

PhotoDetails heldIn(const JSONObject& tags)
{
    const IptcValues iptc = IptcValues::fromRead(tags);
    QMap<QString, QString> texts = languages(tags);
    texts.insert(iptc.texts);
    return { .texts = texts, .lists = iptc.lists, .paths = paths(tags) };
}

PhotoDetails details(const ImageRecord& photo, const JSONObject& tags)
{
    PhotoDetails details = heldIn(tags);
    details.url = photo.url;
    details.disagreements = Disagreements::of(photo, tags);
    return details;
}

PhotoDetails besideDetails(const ImageRecord& photo, const JSONObject& file, const JSONObject& sidecar)
{
    PhotoDetails details = heldIn(file);
    const PhotoDetails own = heldIn(sidecar);
    details.url = photo.url;
    details.paths = SidecarDetails::paths(details.paths, own.paths, sidecar);
    SidecarDetails::putOver(details, own, sidecar);
    details.disagreements = Disagreements::beside(photo, file, sidecar);
    return details;
}

}  // namespace

QHash<QUrl, PhotoDetails> of(const ExifToolRunner& runner, const SidecarPolicy& policy,
    const QList<ImageRecord>& photos, const ReadControl& control)
{
    QList<QUrl> files;
    for (const ImageRecord& photo : photos)
        files.append(photo.url);
    const QList<JSONObject> objects = runner.readDetails(DetailTags::all(), files, control).objects;
    const AnswersByFile answers(objects);
    const QHash<QUrl, JSONObject> sidecars = SidecarDetails::read(runner, policy, photos, control);
    QHash<QUrl, PhotoDetails> found;
    for (qsizetype i = 0; i < photos.size(); ++i) {
        if (control.stop.stop_requested())
            throw CancelledError();
        const ImageRecord& photo = photos.at(i);
        const JSONObject* tags = answers.of(photo.url.toLocalFile(), i, photos.size());
        if (!tags || tags->contains(DetailTags::error()))
            continue;
        PhotoDetails held =
            policy.isBeside(photo.url) ? besideDetails(photo, *tags, sidecars.value(photo.url)) : details(photo, *tags);
        held.hasCredentials = Credentials::isSealed(runner, photo.url, *tags, control);
        found.insert(photo.url, held);
    }
    return found;
}

}  // namespace Quorbel::DetailsRead
