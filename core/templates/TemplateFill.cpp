#include "core/templates/TemplateFill.h"

#include "core/language/Texts.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldCheck.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/FieldSchema.h"
#include "core/schema/PhotoDetails.h"
#include "core/text/Text.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

using Outcome = FilledField::Outcome;

// A field of the template, its texts taken apart once for all photos.
struct Prepared {
    TemplateField field{};
    TokenText text{};
    QList<TokenText> items{};
};

QList<Prepared> prepared(const Template& value)
{
    QList<Prepared> fields;
    for (const TemplateField& field : value.fields) {
        Prepared one{ .field = field, .text = TokenText::parse(field.text) };
        for (const QString& item : field.items)
            one.items.append(TokenText::parse(item));
        fields.append(one);
    }
    return fields;
}

// A photo as one sees it, with what is edited of it.
struct Seen {
    ExternalRefresh::Drafts drafts{};
    PhotoTokens tokens{};
    bool knowsDetails = false;
};

Seen seen(const PhotoToFill& photo, const Edits& unsaved)
{
    Seen result{ .drafts = unsaved.onto(photo.record, photo.details ? *photo.details : PhotoDetails()),
        .tokens = PhotoTokens::of(photo.record),
        .knowsDetails = photo.details != nullptr };
    result.tokens.values = result.drafts.values;
    result.tokens.lists = result.drafts.lists;
    result.tokens.position = photo.position;
    return result;
}

// The custom field as this photo spells its name.
QString customName(const QString& name, const Seen& photo)
{
    return CustomFields::spelling(name, CustomFields::names(photo.drafts.customs));
}

QString textNow(const QString& key, const Seen& photo)
{
    const auto name = CustomFields::nameIn(key);
    if (!name)
        return photo.drafts.values.value(key);
    const qsizetype i = CustomFields::indexOf(photo.drafts.customs, customName(*name, photo));
    return i < 0 ? QString() : photo.drafts.customs.at(i).value;
}

bool isBlank(const QString& text)
{
    return Text::trimmedWithNewlines(text).isEmpty();
}

// Two texts become one with a blank between them, unless there is one or a sign that stands close.
QString joint(const QString& before, const QString& after)
{
    static const QString close = u".,;:!?)]…"_s;
    if (before.isEmpty() || after.isEmpty() || before.back().isSpace() || after.front().isSpace()
        || close.contains(after.front()))
        return {};
    return u" "_s;
}

// "People missing: “The crew”", "Place, Event missing".
QString missingNote(const QList<RenderedPiece>& pieces)
{
    QStringList missing;
    QStringList defaults;
    for (const RenderedPiece& piece : pieces) {
        if (piece.kind == RenderedPiece::Kind::missing && !missing.contains(Texts::shown(piece.label)))
            missing.append(Texts::shown(piece.label));
        if (piece.kind == RenderedPiece::Kind::otherwise && !piece.text.isEmpty())
            //: %1 is a field that the photo has nothing in, %2 what the template gives instead
            defaults.append(Texts::tr("%1 missing: “%2”").arg(Texts::shown(piece.label), piece.text));
    }
    defaults.removeDuplicates();
    if (!missing.isEmpty())
        //: %1 are the fields that the photo has nothing in: "Place, Event missing"
        defaults.prepend(Texts::tr("%1 missing").arg(missing.join(u", "_s)));
    return defaults.join(u" · "_s);
}

// Why the text cannot stand in this field; "" when it can.
QString refusal(const FieldSpec* spec, const QString& text)
{
    if (!spec)
        return {};
    if (spec->kind == FieldKind::rating) {
        const auto stars = Text::parseInteger(Text::trimmed(text));
        return stars && *stars >= 0 && *stars <= 5 ? QString() : Texts::tr("Not a rating: 0 to 5");
    }
    return FieldCheck::note(*spec, text);
}

QString keptNote(const QString& why)
{
    //: What a field holds stays as it is; %1 is why: "kept: not empty"
    return Texts::tr("kept: %1").arg(why);
}

FilledField kept(FilledField filled, const QString& now, const QString& why)
{
    filled.text = now;
    filled.pieces = { { RenderedPiece::Kind::text, now, {} } };
    filled.note = keptNote(why);
    return filled;
}

// The text alone, as it comes out for this photo.
QList<RenderedPiece> rendered(const Prepared& one, const Seen& photo)
{
    const FieldSpec* spec = one.field.spec();
    PhotoTokens tokens = photo.tokens;
    tokens.wholeDates = spec && spec->kind == FieldKind::date;
    if (!spec || spec->kind == FieldKind::multiline)
        return one.text.render(tokens).pieces;
    // In a field of one line values are of one line.
    return one.text.render(tokens, [](const QString& value) { return value.simplified(); }).pieces;
}

// Lays the new text over, behind or before what the field holds.
void join(FilledField& filled, TemplateMode mode, const QString& now, const QString& text)
{
    if (mode == TemplateMode::append && !now.isEmpty()) {
        const QString between = joint(now, text);
        filled.pieces.prepend({ RenderedPiece::Kind::text, now + between, {} });
        filled.text = now + between + text;
    } else if (mode == TemplateMode::prepend && !now.isEmpty()) {
        const QString between = joint(text, now);
        filled.pieces.append({ RenderedPiece::Kind::text, between + now, {} });
        filled.text = text + between + now;
    } else {
        filled.text = text;
    }
}

FilledField filledText(const Prepared& one, const Seen& photo)
{
    FilledField filled{ .key = one.field.key, .label = one.field.label() };
    const QString now = textNow(one.field.key, photo);
    const TemplateMode mode = one.field.mode;
    if (one.field.isBlank())
        return kept(filled, now, Texts::tr("nothing to fill in"));
    if (PhotoDetails::hold(one.field.key) && !photo.knowsDetails)
        return kept(filled, now, Texts::tr("not read yet"));
    if (mode == TemplateMode::setIfEmpty && !isBlank(now))
        return kept(filled, now, Texts::tr("not empty"));
    filled.pieces = rendered(one, photo);
    const QString text = RenderedText{ filled.pieces }.text();
    const QString missing = missingNote(filled.pieces);
    if (isBlank(text))
        return kept(filled, now, missing.isEmpty() ? Texts::tr("nothing to fill in") : missing);
    if ((mode == TemplateMode::append && now.endsWith(text)) || (mode == TemplateMode::prepend && now.startsWith(text)))
        return kept(filled, now, Texts::tr("there already"));
    if (const QString why = refusal(one.field.spec(), text); !why.isEmpty()) {
        filled.outcome = Outcome::refused;
        filled.text = text;
        filled.note = why;
        return filled;
    }
    join(filled, mode, now, text);
    filled.outcome = filled.text == now ? Outcome::kept : Outcome::changed;
    filled.note = missing;
    return filled;
}

QStringList without(QStringList list, const QStringList& items)
{
    list.removeIf([&items](const QString& item) { return items.contains(item); });
    return list;
}

FilledField filledList(const Prepared& one, const Seen& photo)
{
    FilledField filled{ .key = one.field.key, .label = one.field.label() };
    const QStringList now = photo.drafts.lists.value(one.field.key);
    if (PhotoDetails::hold(one.field.key) && !photo.knowsDetails) {
        filled.note = keptNote(Texts::tr("not read yet"));
        return filled;
    }
    QStringList wanted;
    QList<RenderedPiece> all;
    for (const TokenText& item : one.items) {
        const RenderedText text = item.render(photo.tokens, [](const QString& value) { return value.simplified(); });
        all += text.pieces;
        if (const QString made = Text::trimmed(text.text()); !made.isEmpty() && !wanted.contains(made))
            wanted.append(made);
    }
    filled.note = missingNote(all);
    filled.items = now;
    if (wanted.isEmpty())
        filled.note = keptNote(filled.note.isEmpty() ? Texts::tr("nothing to fill in") : filled.note);
    else if (one.field.mode == TemplateMode::setIfEmpty && !now.isEmpty())
        filled.note = keptNote(Texts::tr("not empty"));
    else {
        filled.added = without(wanted, now);
        if (one.field.mode == TemplateMode::set)
            filled.removed = without(now, wanted);
        filled.items = without(now, filled.removed) + filled.added;
    }
    filled.text = filled.items.join(u", "_s);
    filled.pieces = { { RenderedPiece::Kind::text, filled.text, {} } };
    if (!filled.added.isEmpty() || !filled.removed.isEmpty())
        filled.outcome = Outcome::changed;
    return filled;
}

FilledField filled(const Prepared& one, const Seen& photo)
{
    return one.field.isList() ? filledList(one, photo) : filledText(one, photo);
}

// What one field comes to for all photos.
struct Column {
    Prepared field{};
    QList<FilledField> cells{};  // by photo
    QStringList now{};  // of a text, what each shows
    QStringList names{};  // of a custom field, as each spells it
};

bool allChange(const Column& column)
{
    return std::all_of(column.cells.cbegin(), column.cells.cend(),
        [](const FilledField& cell) { return cell.outcome == Outcome::changed; });
}

void putText(QMap<QString, QString>& scalars, QList<CustomValue>& customs, const QString& key, const QString& name,
    const QString& text)
{
    if (name.isEmpty())
        scalars.insert(key, text);
    else
        CustomFields::put(customs, { name, text });
}

void addTexts(Edits& edits, const Column& column, const Edits& unsaved)
{
    const QString& key = column.field.field.key;
    const bool isSame = allChange(column)
        && std::all_of(column.cells.cbegin(), column.cells.cend(),
            [&](const FilledField& cell) { return cell.text == column.cells.front().text; })
        && QSet<QString>(column.names.cbegin(), column.names.cend()).size() <= 1;
    if (isSame)
        return putText(edits.scalars, edits.customs, key, column.names.value(0), column.cells.front().text);
    // Where texts differ, what was typed for all is own, too, for those that keep it.
    const auto name = CustomFields::nameIn(key);
    const bool hasCommon =
        unsaved.scalars.contains(key) || (name && CustomFields::indexOf(unsaved.customs, *name) >= 0);
    const bool anyChanges = std::any_of(column.cells.cbegin(), column.cells.cend(),
        [](const FilledField& cell) { return cell.outcome == Outcome::changed; });
    for (qsizetype i = 0; i < column.cells.size(); ++i) {
        const bool changes = column.cells.at(i).outcome == Outcome::changed;
        if (!changes && !(hasCommon && anyChanges))
            continue;
        OwnEdits& own = edits.own[edits.subjects.at(i)];
        putText(
            own.scalars, own.customs, key, column.names.value(i), changes ? column.cells.at(i).text : column.now.at(i));
    }
}

// Items without tokens are the same for all: those that hold one already lose nothing when it is added.
QStringList commonItems(const Column& column)
{
    if (column.field.field.mode == TemplateMode::setIfEmpty && !allChange(column))
        return {};
    QStringList items;
    for (const TokenText& item : column.field.items) {
        const QString text = item.hasTokens() ? QString() : Text::trimmed(item.render({}).text());
        const bool isGained = std::any_of(column.cells.cbegin(), column.cells.cend(),
            [&text](const FilledField& cell) { return cell.added.contains(text); });
        if (!text.isEmpty() && isGained)
            items.append(text);
    }
    return items;
}

void addItems(Edits& edits, const Column& column)
{
    const QString& id = column.field.field.key;
    // One photo's list is replaced: what is typed of it is a whole list, too.
    if (column.cells.size() == 1) {
        if (column.cells.front().outcome == Outcome::changed)
            edits.lists.insert(id, column.cells.front().items);
        return;
    }
    const QStringList common = commonItems(column);
    if (!common.isEmpty())
        edits.addItems(id, common);
    for (qsizetype i = 0; i < column.cells.size(); ++i) {
        const QStringList added = without(column.cells.at(i).added, common);
        const QStringList& removed = column.cells.at(i).removed;
        if (added.isEmpty() && removed.isEmpty())
            continue;
        OwnEdits& own = edits.own[edits.subjects.at(i)];
        if (!added.isEmpty())
            own.added.insert(id, added);
        if (!removed.isEmpty())
            own.removed.insert(id, removed);
    }
}

// "Date digitized of 3 photos: Not a date: YYYY-MM-DD HH:MM".
QStringList refusals(const QList<Column>& columns)
{
    QStringList lines;
    for (const Column& column : columns) {
        QString why;
        int photos = 0;
        for (const FilledField& cell : column.cells) {
            photos += cell.outcome == Outcome::refused ? 1 : 0;
            why = cell.outcome == Outcome::refused ? cell.note : why;
        }
        //: %1 is a field, %2 why a text cannot stand in it
        const QString told = photos == 1 ? Texts::tr("%1 of one photo: %2")
                                         //: %1 is a field, %2 why a text cannot stand in it
                                         : Texts::tr("%1 of %n photo(s): %2", nullptr, photos);
        if (photos > 0)
            lines.append(told.arg(column.field.field.label(), why));
    }
    return lines;
}

bool isOfOnePhoto(const FieldSpec& field)
{
    static const QSet<QString> ids{ u"iptc.imageGuid"_s, u"iptc.supplierImageId"_s, u"iptc.maxWidth"_s,
        u"iptc.maxHeight"_s };
    return field.kind == FieldKind::date || field.kind == FieldKind::coordinates || field.kind == FieldKind::offset
        || field.kind == FieldKind::structure || ids.contains(field.id);
}

// Fills one photo more into all columns.
void addPhoto(QList<Column>& columns, const Seen& photo)
{
    for (Column& column : columns) {
        column.cells.append(filled(column.field, photo));
        column.now.append(textNow(column.field.field.key, photo));
        if (const auto name = CustomFields::nameIn(column.field.field.key))
            column.names.append(customName(*name, photo));
    }
}

}  // namespace

QList<FilledField> TemplateFill::fill(const Template& value, const PhotoToFill& photo, const Edits& unsaved)
{
    const Seen now = seen(photo, unsaved);
    QList<FilledField> fields;
    for (const Prepared& one : prepared(value))
        fields.append(filled(one, now));
    return fields;
}

TemplateFill::Result TemplateFill::edits(const Template& value, const QList<ImageRecord>& photos, const Edits& unsaved,
    const QHash<QUrl, PhotoDetails>& details, const std::function<bool()>& goOn)
{
    Edits edits;
    QList<Column> columns;
    for (const Prepared& one : prepared(value))
        columns.append(Column{ .field = one });
    for (qsizetype i = 0; i < photos.size(); ++i) {
        const ImageRecord& photo = photos.at(i);
        if (photo.isUnread)
            continue;
        if (goOn && !goOn())
            return {};
        const auto known = details.constFind(photo.url);
        addPhoto(columns, seen({ photo, i, known == details.cend() ? nullptr : &*known }, unsaved));
        edits.subjects.append(photo.url);
    }
    if (edits.subjects.isEmpty())
        return {};
    for (const Column& column : std::as_const(columns)) {
        if (column.field.field.isList())
            addItems(edits, column);
        else
            addTexts(edits, column, unsaved);
    }
    return { edits, refusals(columns) };
}

Template TemplateFill::of(
    const QString& name, const ImageRecord& photo, const Edits& unsaved, const PhotoDetails* details)
{
    const auto pattern = [](const QString& text) { return TokenText{ { { .text = text } } }.pattern(); };
    const ExternalRefresh::Drafts drafts = unsaved.onto(photo, details ? *details : PhotoDetails());
    Template made{ .name = name };
    for (const FieldSpec& field : FieldSchema::everyField()) {
        TemplateField one{ .key = field.id, .mode = field.isList() ? TemplateMode::append : TemplateMode::set };
        if (field.isList()) {
            for (const QString& item : drafts.lists.value(field.id))
                one.items.append(pattern(item));
        } else {
            one.text = pattern(drafts.values.value(field.id));
        }
        if (!isOfOnePhoto(field) && !one.isBlank())
            made.fields.append(one);
    }
    for (const CustomValue& custom : drafts.customs)
        if (CustomFields::isWritable(custom.name) && !isBlank(custom.value))
            made.fields.append({ .key = CustomFields::key(custom.name), .text = pattern(custom.value) });
    return made;
}

}  // namespace Quorbel
