#include "core/details/DetailsRead.h"

#include "core/details/AnswersByFile.h"
#include "core/details/Credentials.h"
#include "core/details/DetailTags.h"
#include "core/details/Disagreements.h"
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

PhotoDetails details(
    const ExifToolRunner& runner, const ImageRecord& photo, const JSONObject& tags, const ReadControl& control)
{
    const IptcValues iptc = IptcValues::fromRead(tags);
    QMap<QString, QString> texts = languages(tags);
    texts.insert(iptc.texts);
    return { .url = photo.url,
        .texts = texts,
        .lists = iptc.lists,
        .paths = paths(tags),
        .disagreements = Disagreements::of(photo, tags),
        .hasCredentials = Credentials::isSealed(runner, photo.url, tags, control) };
}

}  // namespace

QHash<QUrl, PhotoDetails> of(const ExifToolRunner& runner, const QList<ImageRecord>& photos, const ReadControl& control)
{
    QList<QUrl> files;
    for (const ImageRecord& photo : photos)
        files.append(photo.url);
    const QList<JSONObject> objects = runner.readDetails(DetailTags::all(), files, control).objects;
    const AnswersByFile answers(objects);
    QHash<QUrl, PhotoDetails> found;
    for (qsizetype i = 0; i < photos.size(); ++i) {
        if (control.stop.stop_requested())
            throw CancelledError();
        const ImageRecord& photo = photos.at(i);
        const JSONObject* tags = answers.of(photo.url.toLocalFile(), i, photos.size());
        if (tags && !tags->contains(DetailTags::error()))
            found.insert(photo.url, details(runner, photo, *tags, control));
    }
    return found;
}

}  // namespace Quorbel::DetailsRead
