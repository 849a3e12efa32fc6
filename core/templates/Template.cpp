#include "core/templates/Template.h"

#include "core/language/Texts.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "core/text/Text.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

const QList<std::pair<TemplateMode, QString>>& RawValues<TemplateMode>::table()
{
    static const QList<std::pair<TemplateMode, QString>> values{
        { TemplateMode::set, Texts::mark("set") },
        { TemplateMode::setIfEmpty, Texts::mark("set if empty") },
        { TemplateMode::append, Texts::mark("append") },
        { TemplateMode::prepend, Texts::mark("prepend") },
    };
    return values;
}

const FieldSpec* TemplateField::spec() const
{
    const auto language = FieldLanguages::languageIn(key);
    return language ? language->field : FieldSchema::spec(key);
}

QString TemplateField::label() const
{
    if (const auto name = CustomFields::nameIn(key))
        return *name;
    if (FieldLanguages::languageIn(key))
        return FieldLanguages::label(key);
    return spec() ? Texts::shown(spec()->label) : key;
}

QList<TemplateMode> TemplateField::modes() const
{
    const FieldSpec* field = spec();
    if (!field || field->kind == FieldKind::text || field->kind == FieldKind::multiline)
        return { TemplateMode::set, TemplateMode::setIfEmpty, TemplateMode::append, TemplateMode::prepend };
    if (field->isList())
        return { TemplateMode::set, TemplateMode::setIfEmpty, TemplateMode::append };
    return { TemplateMode::set, TemplateMode::setIfEmpty };
}

bool TemplateField::isBlank() const
{
    return Text::trimmedWithNewlines(text + items.join(QString())).isEmpty();
}

qsizetype Template::indexOf(const QString& key) const
{
    const auto it =
        std::find_if(fields.cbegin(), fields.cend(), [&key](const TemplateField& field) { return field.key == key; });
    return it == fields.cend() ? -1 : it - fields.cbegin();
}

}  // namespace Quorbel
