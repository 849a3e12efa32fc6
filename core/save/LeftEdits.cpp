#include "core/save/LeftEdits.h"

#include "core/language/Texts.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "core/schema/KeywordPath.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype namedPhotos = 2;
constexpr qsizetype namedFields = 3;

// "a, b and 3 more", of so many.
QString enumerated(const QStringList& first, qsizetype count)
{
    if (count > first.size())
        //: %1 is a list: "a.jpg, b.jpg and 3 more"
        return Texts::tr("%1 and %n more", nullptr, count - first.size()).arg(first.join(u", "_s));
    if (first.size() < 2)
        return first.join(QString());
    //: the end of a list: "a.jpg, b.jpg and c.jpg"
    return Texts::tr("%1 and %2").arg(first.mid(0, first.size() - 1).join(u", "_s), first.constLast());
}

// A list that was changed from `held` to `wanted`, for a photo that holds `now`.
QStringList changedAlike(const QStringList& held, const QStringList& wanted, const QStringList& now)
{
    if (held == now)
        return wanted;
    QStringList list;
    for (const QString& item : now)
        if (wanted.contains(item) || !held.contains(item))
            list.append(item);
    for (const QString& item : wanted)
        if (!held.contains(item) && !list.contains(item))
            list.append(item);
    return list;
}

// Those of a field among these keys: its own first, then its languages by their names.
QStringList labelsOf(const FieldSpec& field, const QSet<QString>& keys)
{
    QStringList languages;
    for (const QString& key : keys)
        if (const auto language = FieldLanguages::languageIn(key); language && language->field->id == field.id)
            languages.append(FieldLanguages::label(key));
    languages.sort();
    return keys.contains(field.id) ? QStringList(Texts::shown(field.label)) + languages : languages;
}

// Those of all photos in their order, behind them by their names those that only some photos have.
QStringList customNamesIn(const Edits& edits, const QSet<QString>& keys)
{
    const QStringList common = CustomFields::names(edits.customs);
    QStringList own;
    for (const QString& key : keys)
        if (const auto name = CustomFields::nameIn(key); name && !common.contains(*name))
            own.append(*name);
    own.sort();
    return common + own;
}

// --- JSON ---

constexpr int version = 1;

QJsonObject toJson(const QMap<QString, QString>& texts)
{
    QJsonObject object;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text)
        object.insert(text.key(), *text);
    return object;
}

QJsonObject toJson(const QMap<QString, QStringList>& lists)
{
    QJsonObject object;
    for (auto list = lists.cbegin(); list != lists.cend(); ++list)
        object.insert(list.key(), QJsonArray::fromStringList(*list));
    return object;
}

// Its folder, with the slash, and its name in there.
std::pair<QString, QString> split(const QUrl& photo)
{
    const QString path = photo.toLocalFile();
    const qsizetype slash = path.lastIndexOf(u'/');
    return { path.left(slash + 1), path.mid(slash + 1) };
}

// Folders are named once: ten thousand photos of one folder take little more than their names.
QJsonObject toJson(const QList<QUrl>& photos)
{
    QMap<QString, QStringList> namesByFolder;
    for (const QUrl& photo : photos) {
        const auto [folder, name] = split(photo);
        namesByFolder[folder].append(name);
    }
    return toJson(namesByFolder);
}

QJsonArray toJson(const QList<CustomValue>& customs)
{
    QJsonArray array;
    for (const CustomValue& custom : customs)
        array.append(QJsonObject{ { u"name"_s, custom.name }, { u"value"_s, custom.value } });
    return array;
}

QJsonObject toJson(const OwnEdits& own)
{
    return { { u"scalars"_s, toJson(own.scalars) }, { u"added"_s, toJson(own.added) },
        { u"removed"_s, toJson(own.removed) }, { u"customs"_s, toJson(own.customs) } };
}

// By folder, and there by name, in order: to insert anywhere but behind all others takes time.
QJsonObject toJson(const QHash<QUrl, OwnEdits>& own)
{
    QMap<std::pair<QString, QString>, const OwnEdits*> sorted;
    for (auto one = own.cbegin(); one != own.cend(); ++one)
        sorted.insert(split(one.key()), &*one);
    QMap<QString, QJsonObject> ownByFolder;
    for (auto one = sorted.cbegin(); one != sorted.cend(); ++one)
        ownByFolder[one.key().first].insert(one.key().second, toJson(**one));
    QJsonObject object;
    for (auto folder = ownByFolder.cbegin(); folder != ownByFolder.cend(); ++folder)
        object.insert(folder.key(), *folder);
    return object;
}

QJsonObject toJson(const LeftEdits& left)
{
    return { { u"photos"_s, toJson(left.edits.subjects) }, { u"scalars"_s, toJson(left.edits.scalars) },
        { u"lists"_s, toJson(left.edits.lists) }, { u"added"_s, toJson(left.edits.added) },
        { u"removed"_s, toJson(left.edits.removed) }, { u"own"_s, toJson(left.edits.own) },
        { u"paths"_s, QJsonArray::fromStringList(left.edits.paths) }, { u"givenUp"_s, toJson(left.edits.givenUp) },
        { u"customs"_s, toJson(left.edits.customs) }, { u"held"_s, toJson(left.heldLists) },
        { u"confirmed"_s, QJsonArray::fromStringList(left.confirmed) }, { u"leftAt"_s, left.leftAt } };
}

QMap<QString, QString> textsFrom(const QJsonValue& value)
{
    QMap<QString, QString> texts;
    const QJsonObject object = value.toObject();
    for (auto text = object.begin(); text != object.end(); ++text)
        if (text->isString())
            texts.insert(text.key(), text->toString());
    return texts;
}

QMap<QString, QStringList> listsFrom(const QJsonValue& value)
{
    QMap<QString, QStringList> lists;
    const QJsonObject object = value.toObject();
    for (auto list = object.begin(); list != object.end(); ++list)
        if (list->isArray())
            lists.insert(list.key(), list->toVariant().toStringList());
    return lists;
}

QList<QUrl> photosFrom(const QJsonValue& value)
{
    QList<QUrl> photos;
    const QMap<QString, QStringList> namesByFolder = listsFrom(value);
    for (auto names = namesByFolder.cbegin(); names != namesByFolder.cend(); ++names)
        for (const QString& name : *names)
            if (names.key().startsWith(u'/') && !name.isEmpty())
                photos.append(QUrl::fromLocalFile(names.key() + name));
    return photos;
}

QList<CustomValue> customsFrom(const QJsonValue& value)
{
    QList<CustomValue> customs;
    for (const auto& custom : value.toArray())
        if (const QString name = custom[u"name"_s].toString(); !name.isEmpty())
            CustomFields::put(customs, { name, custom[u"value"_s].toString() });
    return customs;
}

// Of these photos: what belongs to none of them would never be shown.
QHash<QUrl, OwnEdits> ownFrom(const QJsonValue& value, const QList<QUrl>& photos)
{
    QHash<QUrl, OwnEdits> own;
    for (const QUrl& photo : value.toObject().isEmpty() ? QList<QUrl>() : photos) {
        const auto [folder, name] = split(photo);
        const QJsonValue of = value[folder][name];
        const OwnEdits one{ .scalars = textsFrom(of[u"scalars"_s]),
            .added = listsFrom(of[u"added"_s]),
            .removed = listsFrom(of[u"removed"_s]),
            .customs = customsFrom(of[u"customs"_s]) };
        if (!one.isEmpty())
            own.insert(photo, one);
    }
    return own;
}

LeftEdits leftFrom(const QJsonValue& value)
{
    LeftEdits left{ .heldLists = listsFrom(value[u"held"_s]),
        .confirmed = value[u"confirmed"_s].toVariant().toStringList(),
        .leftAt = value[u"leftAt"_s].toInteger() };
    left.edits = { .scalars = textsFrom(value[u"scalars"_s]),
        .lists = listsFrom(value[u"lists"_s]),
        .added = listsFrom(value[u"added"_s]),
        .removed = listsFrom(value[u"removed"_s]),
        .paths = value[u"paths"_s].toVariant().toStringList(),
        .givenUp = listsFrom(value[u"givenUp"_s]),
        .customs = customsFrom(value[u"customs"_s]),
        .subjects = photosFrom(value[u"photos"_s]) };
    left.edits.own = ownFrom(value[u"own"_s], left.edits.subjects);
    left.edits.paths.removeIf([](const QString& path) { return KeywordPath::elements(path).size() < 2; });
    return left;
}

}  // namespace

Edits LeftEdits::rebasedOnto(const ImageRecord& photo, const PhotoDetails* details) const
{
    Edits rebased = edits;
    for (auto list = rebased.lists.begin(); list != rebased.lists.end(); ++list) {
        const bool isBeside = PhotoDetails::hold(list.key());
        if (heldLists.contains(list.key()) && (!isBeside || details))
            *list = changedAlike(heldLists.value(list.key()), *list,
                isBeside ? details->lists.value(list.key()) : photo.lists.value(list.key()));
    }
    Edits folded = rebased.foldedInto(photo, details);
    for (const QString& key : confirmed) {
        if (rebased.scalars.contains(key))
            folded.scalars.insert(key, rebased.scalars.value(key));
        if (rebased.lists.contains(key))
            folded.lists.insert(key, rebased.lists.value(key));
    }
    return folded;
}

QString LeftEdits::names() const
{
    QStringList names;
    for (const QUrl& photo : edits.subjects.mid(0, namedPhotos))
        names.append(photo.fileName());
    return enumerated(names, edits.subjects.size());
}

QString LeftEdits::fields() const
{
    const QSet<QString> keys = edits.keys();
    QStringList labels;
    for (const FieldSpec& field : FieldSchema::everyField())
        labels.append(labelsOf(field, keys));
    labels.append(customNamesIn(edits, keys));
    return enumerated(labels.mid(0, namedFields), labels.size());
}

namespace LeftEditsList {

void keep(QList<LeftEdits>& list, const LeftEdits& left)
{
    list.removeIf([&left](const LeftEdits& other) { return other.edits == left.edits; });
    list.prepend(left);
    if (list.size() > limit)
        list.resize(limit);
}

void rename(QList<LeftEdits>& list, const QUrl& source, const QUrl& destination)
{
    rename(list, { { source, destination } });
}

void rename(QList<LeftEdits>& list, const QHash<QUrl, QUrl>& names)
{
    for (LeftEdits& left : list)
        left.edits.rename(names);
    list.removeIf([](const LeftEdits& left) { return left.edits.subjects.isEmpty() || left.edits.isEmpty(); });
}

QByteArray toJson(const QList<LeftEdits>& list)
{
    QJsonArray left;
    for (const LeftEdits& edits : list)
        left.append(Quorbel::toJson(edits));
    return QJsonDocument(QJsonObject{ { u"version"_s, version }, { u"left"_s, left } }).toJson(QJsonDocument::Compact);
}

std::optional<QList<LeftEdits>> fromJson(const QByteArray& text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (document[u"version"_s].toInt() != version || !document[u"left"_s].isArray())
        return std::nullopt;
    QList<LeftEdits> list;
    for (const auto& value : document[u"left"_s].toArray()) {
        const LeftEdits left = leftFrom(value);
        if (!left.edits.isEmpty() && !left.edits.subjects.isEmpty())
            list.append(left);
    }
    return list;
}

}  // namespace LeftEditsList

}  // namespace Quorbel
