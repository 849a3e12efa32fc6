#include "ui/inspector/iptc/IptcEditors.h"

#include "core/iptc/Vocabularies.h"
#include "core/language/Texts.h"
#include "ui/controls/pickers/CodePicker.h"
#include "ui/controls/pickers/CodesPicker.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/iptc/StructureCards.h"
#include "ui/inspector/iptc/VocabularySource.h"

namespace Quorbel::IptcEditors {

using namespace Qt::StringLiterals;

namespace {

RowEditor oneCode(const CodeSource& source, FieldRow& row)
{
    auto* picker = new CodePicker({}, &row);
    picker->setSource(source);
    QObject::connect(picker, &CodePicker::picked, &row, &FieldRow::textEdited);
    return { picker, picker, { picker }, [picker](const FieldRowState& state, bool) {
                picker->setCode(state.text);
                const QString placeholder = state.placeholder.isEmpty() ? Texts::tr("Choose…") : state.placeholder;
                picker->setPlaceholder(placeholder, state.italicPlaceholder);
                picker->setEdited(state.edited);
                picker->setWanted(state.wanted);
            } };
}

RowEditor severalCodes(const FieldSpec& field, FieldRow& row)
{
    //: Button: adds a code of a vocabulary to a list.
    auto* picker = new CodesPicker(Texts::shown(field.label), Texts::tr("Add code"), &row);
    picker->setSource(vocabularySource(field.vocabulary));
    QObject::connect(picker, &CodesPicker::added, &row, &FieldRow::itemAdded);
    QObject::connect(picker, &CodesPicker::removed, &row, &FieldRow::itemRemoved);
    return { picker, picker->input(), { picker->input() }, [picker](const FieldRowState& state, bool) {
                picker->setAmber(state.batch);
                picker->setEdited(state.edited);
                picker->setWanted(state.wanted);
                picker->setPlaceholder(state.wanted ? state.placeholder : QString());
                if (picker->codes() != state.items)
                    picker->setCodes(state.items);
            } };
}

}  // namespace

RowEditor codes(const FieldSpec& field, FieldRow& row)
{
    return field.isSeveral ? severalCodes(field, row) : oneCode(vocabularySource(field.vocabulary), row);
}

RowEditor textOrCode(const QString& vocabulary, const CodeTexts& codes, FieldRow& row)
{
    CodeSource source = vocabularySource(vocabulary);
    source.nameOf = [vocabulary](const QString& text) {
        const QString names = Vocabularies::namesOf(vocabulary, text);
        return names == text ? QString() : names;
    };
    source.takesAnyText = true;
    source.codes = codes;
    return oneCode(source, row);
}

RowEditor structures(const FieldSpec& field, const CodeTexts& codes, FieldRow& row)
{
    auto* cards = new StructureCards(field, codes, &row);
    QObject::connect(cards, &StructureCards::tabStopsChanged, &row, &FieldRow::tabStopsChanged);
    QObject::connect(cards, &StructureCards::itemsChanged, &row, [&row, &field](const QStringList& items) {
        if (field.isSeveral)
            emit row.itemsEdited(items);
        else
            emit row.textEdited(items.value(0));
    });
    const auto show = [cards, &field](const FieldRowState& state, bool fresh) {
        const QStringList one = state.text.isEmpty() ? QStringList() : QStringList(state.text);
        cards->setState({ .items = field.isSeveral ? state.items : one,
                            .held = state.held,
                            .edited = state.edited || (state.batch && state.included),
                            .batch = state.batch,
                            .wanted = state.wanted },
            fresh);
    };
    return { cards, cards, {}, show, [cards] { return cards->tabStops(); }, [cards] { return cards->input(); } };
}

}  // namespace Quorbel::IptcEditors
