#include "core/tokens/TokenCatalog.h"

#include "core/language/Texts.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldSchema.h"

#include <QHash>

#include <algorithm>

namespace Quorbel::TokenCatalog {

using namespace Qt::StringLiterals;

namespace {

// "captionWriter" is %CaptionWriter%.
QString nameOf(const FieldSpec& field)
{
    if (field.id == FieldID::coords)
        return u"Coordinates"_s;
    return field.id.front().toUpper() + field.id.sliced(1);
}

TokenKind kindOf(const FieldSpec& field)
{
    if (field.isList())
        return TokenKind::list;
    return field.kind == FieldKind::date ? TokenKind::date : TokenKind::text;
}

// "Focal length" is %FocalLength%.
QString nameOfRow(const QString& label)
{
    QString name;
    for (const QString& word : label.split(u' '))
        name += word.front().toUpper() + word.sliced(1);
    return name;
}

QList<TokenSpec> build()
{
    QList<TokenSpec> tokens{
        { u"Date"_s, Texts::mark("Date taken"), TokenKind::date, FieldID::date },
        { u"Time"_s, Texts::mark("Time"), TokenKind::time, FieldID::date },
        { u"Title"_s, Texts::mark("Title"), TokenKind::text, FieldID::title },
        { u"Creator"_s, Texts::mark("Creator"), TokenKind::text, FieldID::creator },
        { u"Place"_s, Texts::mark("Place"), TokenKind::text, FieldID::place },
        { u"Original"_s, Texts::mark("Original name"), TokenKind::baseName, {} },
        { u"Counter"_s, Texts::mark("Counter"), TokenKind::counter, {} },
        { u"Filename"_s, Texts::mark("File name"), TokenKind::fileName, {} },
    };
    for (const FieldSpec& field : FieldSchema::all())
        if (std::none_of(tokens.cbegin(), tokens.cend(), [&](const TokenSpec& t) { return t.source == field.id; }))
            tokens.append({ nameOf(field), field.label, kindOf(field), field.id });
    // The make is part of the row "Camera" and has none of its own.
    for (const FieldSchema::CameraRowSpec& row : FieldSchema::cameraRows())
        if (row.label != u"Make")
            tokens.append({ nameOfRow(row.label), row.label, TokenKind::camera, row.label });
    return tokens;
}

}  // namespace

const QList<TokenSpec>& all()
{
    static const QList<TokenSpec> tokens = build();
    return tokens;
}

const TokenSpec* find(const QString& name)
{
    static const auto byName = [] {
        QHash<QString, const TokenSpec*> tokens;
        for (const TokenSpec& token : all())
            tokens.insert(token.name.toLower(), &token);
        return tokens;
    }();
    return byName.value(name.toLower());
}

const TokenSpec* ofField(const QString& id)
{
    const auto it = std::find_if(all().cbegin(), all().cend(), [&id](const TokenSpec& token) {
        return token.source == id && token.kind != TokenKind::camera && token.kind != TokenKind::time;
    });
    return it == all().cend() ? nullptr : &*it;
}

}  // namespace Quorbel::TokenCatalog
