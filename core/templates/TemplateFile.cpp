#include "core/templates/TemplateFile.h"

#include "core/language/Texts.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "core/text/Errors.h"
#include "core/text/FileNaming.h"
#include "core/text/Text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSaveFile>
#include <QUrl>

namespace Quorbel::TemplateFile {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestFile = 1024 * 1024;  // bytes
constexpr qsizetype longestName = 120;  // bytes in UTF-8: room for a number, the ending, and a half-written file's

QJsonObject fieldToJson(const TemplateField& field)
{
    QJsonObject object;
    if (const auto custom = CustomFields::nameIn(field.key)) {
        object.insert(u"custom"_s, *custom);
    } else if (const auto language = FieldLanguages::languageIn(field.key)) {
        object.insert(u"field"_s, language->field->id);
        object.insert(u"language"_s, language->code);
    } else {
        object.insert(u"field"_s, field.key);
    }
    object.insert(u"mode"_s, rawValue(field.mode));
    if (field.isList())
        object.insert(u"items"_s, QJsonArray::fromStringList(field.items));
    else
        object.insert(u"text"_s, field.text);
    return object;
}

// The key that the object names; "" when there is no such field.
QString keyOf(const QJsonObject& object)
{
    const QString custom = object.value(u"custom"_s).toString();
    if (!custom.isEmpty())
        return CustomFields::isWritable(custom) ? CustomFields::key(custom) : QString();
    const QString id = object.value(u"field"_s).toString();
    const QString code = object.value(u"language"_s).toString();
    if (code.isEmpty())
        return FieldSchema::spec(id) ? id : QString();
    const QString key = FieldLanguages::key(id, code);
    return FieldLanguages::isCode(code) && FieldLanguages::languageIn(key) ? key : QString();
}

std::optional<TemplateField> fieldFromJson(const QJsonValue& value, QString& problem)
{
    const QJsonObject object = value.toObject();
    TemplateField field{ .key = keyOf(object) };
    const auto mode = fromRawValue<TemplateMode>(object.value(u"mode"_s).toString(u"set"_s));
    if (field.key.isEmpty())
        problem = Texts::tr("“%1” names a field that there is not.");
    else if (!mode)
        problem = Texts::tr("“%1” says nothing that can be done to a field.");
    else if (field.isList() ? !object.value(u"items"_s).isArray() : !object.value(u"text"_s).isString())
        problem = Texts::tr("“%1” has a field without a text.");
    if (!problem.isEmpty())
        return std::nullopt;
    field.mode = field.modes().contains(*mode) ? *mode : TemplateMode::append;
    if (!field.modes().contains(field.mode))
        field.mode = TemplateMode::setIfEmpty;
    field.text = object.value(u"text"_s).toString();
    for (const QJsonValue item : object.value(u"items"_s).toArray())
        if (const QString text = Text::trimmed(item.toString()); !text.isEmpty() && !field.items.contains(text))
            field.items.append(text);
    return field;
}

std::optional<QList<TemplateField>> fieldsFromJson(const QJsonArray& array, QString& problem)
{
    Template found;
    for (const QJsonValue value : array) {
        const std::optional<TemplateField> field = fieldFromJson(value, problem);
        if (!field)
            return std::nullopt;
        if (found.indexOf(field->key) < 0)
            found.fields.append(*field);
    }
    return found.fields;
}

std::optional<Template> refused(QString* problem, const QString& why)
{
    if (problem)
        *problem = why;
    return std::nullopt;
}

QString freePath(const QString& folder, const QString& base)
{
    const QDir dir(folder);
    const QStringList names = dir.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    return dir.filePath(FileNaming::uniqueFileName(
        base, u"json"_s, [&names](const QString& name) { return names.contains(name, Qt::CaseInsensitive); }));
}

// "Regatta-2.json" fits "Regatta", too.
bool fits(const QString& path, const QString& base)
{
    QString rest = QFileInfo(path).completeBaseName();
    if (!rest.startsWith(base))
        return false;
    static const QRegularExpression number(u"^-[0-9]+$"_s);
    rest = rest.sliced(base.size());
    return rest.isEmpty() || number.match(rest).hasMatch();
}

}  // namespace

QByteArray toJson(const Template& value)
{
    QJsonArray fields;
    for (const TemplateField& field : value.fields)
        fields.append(fieldToJson(field));
    QJsonObject object{ { u"quorbelTemplate"_s, version }, { u"name"_s, value.name }, { u"fields"_s, fields } };
    if (value.digit > 0)
        object.insert(u"shortcut"_s, value.digit);
    return QJsonDocument(object).toJson();
}

std::optional<Template> fromJson(const QByteArray& json, QString* problem)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    const int made = object.value(u"quorbelTemplate"_s).toInt();
    if (made < 1)
        return refused(problem, Texts::tr("“%1” is no template."));
    if (made > version)
        return refused(problem, Texts::tr("“%1” was made by a newer version of Quorbel."));
    Template value{ .name = Text::trimmedWithNewlines(object.value(u"name"_s).toString()),
        .digit = object.value(u"shortcut"_s).toInt() };
    if (value.name.isEmpty())
        return refused(problem, Texts::tr("“%1” has no name."));
    if (value.digit < 0 || value.digit > 9)
        value.digit = 0;
    QString why;
    const auto fields = fieldsFromJson(object.value(u"fields"_s).toArray(), why);
    if (!fields)
        return refused(problem, why);
    value.fields = *fields;
    return value;
}

std::optional<Template> read(const QString& path, QString* problem)
{
    const auto left = [&](const QString& why) { return refused(problem, why.arg(QFileInfo(path).fileName())); };
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return left(Texts::tr("“%1” cannot be read."));
    if (file.size() > largestFile)
        return left(Texts::tr("“%1” is no template."));
    QString why;
    const std::optional<Template> value = fromJson(file.readAll(), &why);
    return value ? value : left(why);
}

Listing list(const QString& folder)
{
    Listing listing;
    const QDir dir(folder);
    for (const QString& name : dir.entryList({ u"*.json"_s }, QDir::Files, QDir::Name)) {
        QString problem;
        if (const auto value = read(dir.filePath(name), &problem))
            listing.templates.append({ dir.filePath(name), *value });
        else
            listing.problems.append(problem);
    }
    return listing;
}

QString baseName(const QString& templateName)
{
    QString kept;
    const QList<uint> codePoints = templateName.toUcs4();
    for (const char32_t c : codePoints) {
        const QString one = QString::fromUcs4(&c, 1);
        kept += FileNaming::sanitizeComponent(one, false).isEmpty() ? u" "_s : one;
    }
    kept = kept.simplified();
    while (kept.startsWith(u'.') || kept.startsWith(u' '))
        kept.remove(0, 1);
    while (kept.toUtf8().size() > longestName)
        kept.chop(kept.back().isLowSurrogate() ? 2 : 1);
    kept = Text::trimmed(kept);
    return kept.isEmpty() ? u"template"_s : kept;
}

QString write(const QString& folder, const Stored& stored)
{
    QDir().mkpath(folder);
    const QString base = baseName(stored.value.name);
    const bool stays = !stored.path.isEmpty() && fits(stored.path, base);
    const QString path = stays ? stored.path : freePath(folder, base);
    QSaveFile file(path);
    const QByteArray json = toJson(stored.value);
    if (!file.open(QIODevice::WriteOnly) || file.write(json) != json.size() || !file.commit())
        throw FileError(Texts::tr("Cannot write the template “%1”"), QUrl::fromLocalFile(path), file.errorString());
    if (!stays && !stored.path.isEmpty())
        QFile::remove(stored.path);
    return path;
}

}  // namespace Quorbel::TemplateFile
