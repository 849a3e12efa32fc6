#include "ui/inspector/RowEditor.h"

#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/RatingEditor.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/keywords/KeywordEditor.h"
#include "ui/controls/pickers/OffsetPicker.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/iptc/IptcEditors.h"
#include "ui/places/LocationSearchField.h"

#include <QHBoxLayout>
#include <QLocale>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// A text that is the same but for the photo it belongs to: no undo may lead back into another photo.
template <typename Field>
void showText(Field* field, const FieldRowState& state, bool fresh)
{
    if (fresh)
        field->startText(state.text);
    else
        field->setBoundText(state.text);
    // A long text that nobody types in shows its beginning.
    if (QLineEdit* line = qobject_cast<QLineEdit*>(field); line && !line->hasFocus())
        line->setCursorPosition(0);
    field->setPlaceholder(state.placeholder, state.italicPlaceholder);
    field->setEdited(state.edited);
    field->setWanted(state.wanted);
}

RowEditor textEditor(const CodeTexts& codes, FieldRow& row)
{
    auto* field = new QBTextField(&row);
    field->setCodes(codes);
    QObject::connect(field, &QLineEdit::textEdited, &row, &FieldRow::textEdited);
    return { field, field, { field }, [field](const FieldRowState& state, bool fresh) {
                showText(field, state, fresh);
                field->setReadOnly(state.fixed);
            } };
}

RowEditor placeEditor(const FieldRowParts& parts, FieldRow& row)
{
    auto* field = new LocationSearchField(parts.places, &row);
    field->setCodes(parts.codes);
    QObject::connect(field, &QLineEdit::textEdited, &row, &FieldRow::textEdited);
    QObject::connect(field, &LocationSearchField::picked, &row, &FieldRow::placePicked);
    return { field, field, { field }, [field](const FieldRowState& state, bool fresh) {
                if (fresh)
                    field->abandon();
                showText(field, state, fresh);
            } };
}

RowEditor areaEditor(const CodeTexts& codes, FieldRow& row)
{
    auto* area = new QBTextArea(&row);
    area->setCodes(codes);
    QObject::connect(area, &QBTextArea::textEdited, &row, &FieldRow::textEdited);
    return { area, area, { area }, [area](const FieldRowState& state, bool fresh) { showText(area, state, fresh); } };
}

RowEditor keywordEditor(const FieldRowParts& parts, FieldRow& row)
{
    auto* editor = new KeywordEditor(&row);
    // Names and numbers of others may hold commas.
    editor->setSplitsAtCommas(!parts.field);
    editor->setCompletions(parts.completions);
    editor->setCodes(parts.codes);
    QObject::connect(editor, &KeywordEditor::added, &row, &FieldRow::itemAdded);
    QObject::connect(editor, &KeywordEditor::removed, &row, &FieldRow::itemRemoved);
    return { editor, editor->entry(), { editor->entry() }, [editor](const FieldRowState& state, bool fresh) {
                if (fresh)
                    editor->clearEntry();
                editor->setAccessibleName(state.label);
                editor->setAmber(state.batch);
                editor->setEdited(state.edited);
                if (editor->chips() != state.items || editor->parents() != state.itemParents)
                    editor->setChips(state.items, state.itemParents);
                editor->setPlaceholder(state.placeholder);
                editor->setWanted(state.wanted);
            } };
}

RowEditor dateEditor(const std::function<QDateTime()>& now, FieldRow& row)
{
    auto* holder = new QWidget(&row);
    auto* line = new QHBoxLayout(holder);
    auto* field = new QBTextField(holder);
    //: Button: puts the time of this moment into the field.
    auto* button = new QBButton(Texts::tr("Now"), QBButtonKind::secondary, holder);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(field, 1);
    line->addWidget(button);
    onRestyle(holder, [line] { line->setSpacing(px(7)); });
    field->setMono(true);
    button->setSidePadding(11);
    QObject::connect(field, &QLineEdit::textEdited, &row, &FieldRow::textEdited);
    QObject::connect(button, &QAbstractButton::clicked, &row, [now, &row] {
        const QDateTime time = now ? now() : QDateTime::currentDateTime();
        emit row.textEdited(QLocale::c().toString(time, u"yyyy-MM-dd HH:mm"));
    });
    return { holder, field, { field, button }, [field, button](const FieldRowState& state, bool fresh) {
                showText(field, state, fresh);
                button->setAccessibleDescription(state.label);
            } };
}

// Keeps an editor of its own width at the left.
QWidget* leftAligned(QWidget* editor, FieldRow& row)
{
    auto* holder = new QWidget(&row);
    auto* line = new QHBoxLayout(holder);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(editor);
    line->addStretch();
    return holder;
}

RowEditor ratingEditor(FieldRow& row)
{
    auto* stars = new RatingEditor;
    QWidget* holder = leftAligned(stars, row);
    QObject::connect(stars, &RatingEditor::valueEdited, &row, &FieldRow::textEdited);
    return { holder, stars, { stars }, [stars](const FieldRowState& state, bool) {
                stars->setValue(state.text);
                stars->setEdited(state.edited);
                stars->setWanted(state.wanted);
            } };
}

RowEditor offsetEditor(FieldRow& row)
{
    auto* picker = new OffsetPicker(FieldSchema::timeZoneOffsets(), u"—"_s);
    QWidget* holder = leftAligned(picker, row);
    QObject::connect(picker, &OffsetPicker::valueEdited, &row, &FieldRow::textEdited);
    return { holder, picker, { picker }, [picker](const FieldRowState& state, bool) {
                picker->setValue(state.text);
                picker->setEdited(state.edited);
                picker->setWanted(state.wanted);
            } };
}

}  // namespace

RowEditor makeRowEditor(const FieldRowParts& parts, FieldRow& row)
{
    switch (parts.kind) {
    case FieldKind::multiline:
        return areaEditor(parts.codes, row);
    case FieldKind::keywords:
        return keywordEditor(parts, row);
    case FieldKind::code:
        return IptcEditors::codes(*parts.field, row);
    case FieldKind::structure:
        return IptcEditors::structures(*parts.field, parts.codes, row);
    case FieldKind::date:
        return dateEditor(parts.now, row);
    case FieldKind::rating:
        return ratingEditor(row);
    case FieldKind::offset:
        return offsetEditor(row);
    case FieldKind::number:
        if (parts.field->isSeveral)
            return keywordEditor(parts, row);
        break;
    case FieldKind::text:
        if (!parts.vocabulary.isEmpty())
            return IptcEditors::textOrCode(parts.vocabulary, parts.codes, row);
        break;
    case FieldKind::coordinates:
        break;
    }
    // Codes stand for words, not for numbers.
    const bool isNumber = parts.kind == FieldKind::coordinates || parts.kind == FieldKind::number;
    const CodeTexts codes = isNumber ? CodeTexts() : parts.codes;
    return parts.searchesPlaces ? placeEditor(parts, row) : textEditor(codes, row);
}

}  // namespace Quorbel
