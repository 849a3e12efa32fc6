#include "ui/inspector/iptc/MemberEditor.h"

#include "core/iptc/StructureEdit.h"
#include "core/language/Texts.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/keywords/KeywordEditor.h"
#include "ui/controls/pickers/CodePicker.h"
#include "ui/inspector/iptc/StructureList.h"
#include "ui/inspector/iptc/VocabularySource.h"

#include <QJsonArray>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString textIn(const QString& structure, const QString& name)
{
    return StructureEdit::texts(structure, name).join(u", "_s);
}

// Hands the structure over with another value of the member.
std::function<void(const QJsonValue& value)> setter(const QString& name, const MemberEditorParts& parts)
{
    return
        [name, parts](const QJsonValue& value) { parts.changed(StructureEdit::with(parts.structure(), name, value)); };
}

template <typename Editor>
std::function<void(const std::optional<QString>& origin)> marker(
    const QString& name, const MemberEditorParts& parts, Editor* editor)
{
    return [name, structure = parts.structure, editor](const std::optional<QString>& origin) {
        editor->setEdited(origin && !StructureEdit::isSame(structure(), *origin, name));
    };
}

template <typename Field>
MemberEditor textEditor(const QString& name, const MemberEditorParts& parts, QWidget* parent)
{
    auto* field = new Field(parent);
    if (parts.member.kind != FieldKind::number && parts.member.kind != FieldKind::date)
        field->setCodes(parts.codes);
    field->setAccessibleName(parts.label);
    QObject::connect(field, &Field::textEdited, field, [set = setter(name, parts)](const QString& text) { set(text); });
    const auto show = [field, name](const QString& structure, bool fresh) {
        if (fresh)
            field->startText(textIn(structure, name));
        else
            field->setBoundText(textIn(structure, name));
        // A long text that nobody types in shows its beginning.
        if (auto* line = qobject_cast<QLineEdit*>(field); line && !line->hasFocus())
            line->setCursorPosition(0);
    };
    return { field, field, [field] { return QList<QWidget*>{ field }; }, show,
        [field](bool on) { field->setReadOnly(on); }, marker(name, parts, field) };
}

MemberEditor codeEditor(const QString& name, const MemberEditorParts& parts, const CodeSource& source, QWidget* parent)
{
    auto* picker = new CodePicker(parts.label, parent);
    picker->setSource(source);
    picker->setPlaceholder(Texts::tr("Choose…"));
    QObject::connect(
        picker, &CodePicker::picked, picker, [set = setter(name, parts)](const QString& code) { set(code); });
    return { picker, picker, [picker] { return QList<QWidget*>{ picker }; },
        [picker, name](const QString& structure, bool) { picker->setCode(textIn(structure, name)); },
        [picker](bool on) { picker->setEnabled(!on); }, marker(name, parts, picker) };
}

// The one number that stands for a word.
CodeSource seaLevels()
{
    CodeSource source;
    source.rows = [](const QString& typed) {
        //: Whether a height is below sea level.
        QList<CodeRow> rows{ { u"0"_s, Texts::tr("No"), {} }, { u"1"_s, Texts::tr("Yes"), {} } };
        rows.removeIf([&typed](const CodeRow& row) { return !row.name.startsWith(typed, Qt::CaseInsensitive); });
        return rows;
    };
    source.nameOf = [](const QString& code) {
        return code == u"0" ? Texts::tr("No") : code == u"1" ? Texts::tr("Yes") : QString();
    };
    return source;
}

MemberEditor chipsEditor(const QString& name, const MemberEditorParts& parts, QWidget* parent)
{
    auto* editor = new KeywordEditor(parent);
    editor->setSplitsAtCommas(false);
    editor->setCodes(parts.codes);
    editor->setAccessibleName(parts.label);
    editor->entry()->setAccessibleName(parts.label);
    const auto change = [set = setter(name, parts), editor](const QStringList& texts) {
        editor->setChips(texts);
        set(QJsonArray::fromStringList(texts));
    };
    const auto add = [change, editor](const QString& text) {
        if (!editor->chips().contains(text))
            change(editor->chips() + QStringList(text));
    };
    const auto remove = [change, editor](const QString& text) {
        QStringList left = editor->chips();
        left.removeOne(text);
        change(left);
    };
    QObject::connect(editor, &KeywordEditor::added, editor, add);
    QObject::connect(editor, &KeywordEditor::removed, editor, remove);
    // What is typed belongs to the structure, also when nobody pressed Return.
    QObject::connect(editor->entry(), &QLineEdit::editingFinished, editor, &KeywordEditor::commit);
    const auto show = [editor, name](const QString& structure, bool fresh) {
        if (fresh)
            editor->clearEntry();
        if (const QStringList texts = StructureEdit::texts(structure, name); editor->chips() != texts)
            editor->setChips(texts);
    };
    return { editor, editor->entry(), [editor] { return QList<QWidget*>{ editor->entry() }; }, show,
        [editor](bool on) { editor->setEnabled(!on); }, marker(name, parts, editor) };
}

MemberEditor structuresEditor(const StructureSpec& structure, const MemberEditorParts& parts, QWidget* parent)
{
    const auto holds = parts.member.isSeveral ? StructureList::Holds::several : StructureList::Holds::one;
    auto* list = new StructureList({ parts.label, &structure, holds, true, parts.codes }, parent);
    QObject::connect(list, &StructureList::itemsChanged, list, [parts](const QStringList& items) {
        parts.changed(StructureEdit::withStructures(parts.structure(), parts.member, items));
    });
    QObject::connect(list, &StructureList::tabStopsChanged, list, [parts] { parts.stopsChanged(); });
    const auto show = [list, name = parts.member.name](const QString& text, bool fresh) {
        list->show(StructureEdit::structures(text, name), fresh);
    };
    const auto mark = [list, name = parts.member.name](const std::optional<QString>& origin) {
        list->setHeld(origin ? std::optional(StructureEdit::structures(*origin, name)) : std::nullopt);
    };
    return { list, list, [list] { return list->tabStops(); }, show, [list](bool on) { list->setReadOnly(on); }, mark };
}

}  // namespace

MemberEditor makeMemberEditor(const QString& name, const MemberEditorParts& parts, QWidget* parent)
{
    const StructureMember& member = parts.member;
    if (const StructureSpec* inner = IptcStructures::spec(member.structure))
        return structuresEditor(*inner, parts, parent);
    if (member.isSeveral)
        return chipsEditor(name, parts, parent);
    if (member.kind == FieldKind::code)
        return codeEditor(name, parts, vocabularySource(member.vocabulary), parent);
    if (member.name == u"GPSAltitudeRef")
        return codeEditor(name, parts, seaLevels(), parent);
    if (member.kind == FieldKind::multiline)
        return textEditor<QBTextArea>(name, parts, parent);
    return textEditor<QBTextField>(name, parts, parent);
}

}  // namespace Quorbel
