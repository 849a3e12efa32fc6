#include "core/details/DetailsRead.h"

#include "core/details/DetailTags.h"
#include "core/details/Disagreements.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "core/schema/KeywordPath.h"

#include <QDir>

namespace Quorbel::DetailsRead {

using namespace Qt::StringLiterals;

namespace {

QMap<QString, QString> languages(const JSONObject& tags)
{
    QMap<QString, QString> texts;
    for (const FieldSpec& field : FieldSchema::all()) {
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

PhotoDetails details(const ImageRecord& photo, const JSONObject& tags)
{
    return { .url = photo.url,
        .languages = languages(tags),
        .paths = paths(tags),
        .disagreements = Disagreements::of(photo, tags) };
}

// By the path of the file, as the tool printed it and tidied up.
QHash<QString, const JSONObject*> byPath(const QList<JSONObject>& objects)
{
    QHash<QString, const JSONObject*> index;
    for (const JSONObject& object : objects) {
        const QString path = object.value(u"SourceFile"_s).stringValue().value_or(QString());
        index.insert(path, &object);
        index.insert(QDir::cleanPath(path), &object);
    }
    return index;
}

}  // namespace

QHash<QUrl, PhotoDetails> of(const ExifToolRunner& runner, const QList<ImageRecord>& photos, const ReadControl& control)
{
    QList<QUrl> files;
    for (const ImageRecord& photo : photos)
        files.append(photo.url);
    const QList<JSONObject> objects = runner.readDetails(DetailTags::all(), files, control).objects;
    const auto index = byPath(objects);
    QHash<QUrl, PhotoDetails> found;
    for (qsizetype i = 0; i < photos.size(); ++i) {
        if (control.stop.stop_requested())
            throw CancelledError();
        const ImageRecord& photo = photos.at(i);
        const JSONObject* tags = index.value(photo.url.toLocalFile());
        // A name that is no text comes back changed, but at its place.
        if (!tags && objects.size() == photos.size())
            tags = &objects.at(i);
        if (tags && !tags->contains(DetailTags::error()))
            found.insert(photo.url, details(photo, *tags));
    }
    return found;
}

}  // namespace Quorbel::DetailsRead
