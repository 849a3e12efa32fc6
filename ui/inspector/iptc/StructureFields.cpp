#include "ui/inspector/iptc/StructureFields.h"

#include "core/iptc/StructureEdit.h"
#include "core/iptc/StructureText.h"
#include "core/language/Texts.h"
#include "core/schema/FieldLanguages.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/ReadingOrder.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/attached/SearchMenu.h"
#include "ui/controls/cards/CardRow.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/inspector/LanguageMenu.h"
#include "ui/inspector/iptc/MemberLanguages.h"
#include "ui/inspector/iptc/SettledFocus.h"
#include "ui/inspector/iptc/StructureLayout.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal gap = 7;
constexpr qreal noteSize = 11;
constexpr qreal noteHeight = 15;

// "Name (German)"
QString labelOf(const StructureMember& member, const QString& code)
{
    const QString label = Texts::shown(member.label);
    return code.isEmpty() ? label : u"%1 (%2)"_s.arg(label, FieldLanguages::name(code));
}

QWidget* sideBySide(QWidget* left, QWidget* right, const StructureLayout::Beside& beside)
{
    auto* both = new QWidget;
    auto* line = new QHBoxLayout(both);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(left, 1);
    line->addWidget(right);
    if (auto* field = qobject_cast<QBTextField*>(right))
        field->setMono(beside.isMono);
    onRestyle(both, [line, right, beside] {
        line->setSpacing(px(gap));
        right->setFixedWidth(px(beside.width));
    });
    return both;
}

// “Mood”, “Weather” and 2 more
QString listed(QStringList names)
{
    constexpr qsizetype most = 3;
    const qsizetype more = qMax<qsizetype>(0, names.size() - most);
    names = names.first(names.size() - more);
    for (QString& name : names)
        //: A name, in quotation marks.
        name = Texts::tr("“%1”").arg(name);
    if (more > 0)
        //: The end of a list of names: %1 is those before, with commas between them.
        return Texts::tr("%1 and %n more", nullptr, more).arg(names.join(u", "_s));
    const QString last = names.takeLast();
    //: The end of a list of names: %1 is those before, with commas between them, %2 the last one.
    return names.isEmpty() ? last : Texts::tr("%1 and %2").arg(names.join(u", "_s), last);
}

}  // namespace

StructureFields::StructureFields(const StructureSpec& structure, const CodeTexts& codes, QWidget* parent)
    : QWidget(parent)
    , m_structure(structure)
    , m_codes(codes)
    , m_column(new QVBoxLayout(this))
    , m_start(new QBTextButton({}, this))
    , m_more(new QBTextButton(Texts::tr("More", "button: shows further fields"), this))
{
    describeInReadingOrder(staticMetaObject, QAccessible::Client);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_column->setContentsMargins(0, 0, 0, 0);
    for (QBTextButton* button : { m_start, m_more }) {
        m_column->addWidget(button, 0, Qt::AlignLeft);
        button->setTrailingIcon(u"chevron.down"_s);
        // In line with the labels.
        button->setInline(true);
        button->setRole(TextRole::label);
    }
    connect(m_start, &QAbstractButton::clicked, this, &StructureFields::startAsked);
    connect(m_more, &QAbstractButton::clicked, this, &StructureFields::revealRest);
    onRestyle(this, [this] { m_column->setSpacing(px(gap)); });
    showLines(true);
}

void StructureFields::show(const QString& text, bool fresh)
{
    if (!fresh && text == m_text)
        return;
    setText(text);
    if (fresh) {
        m_all = false;
        m_kept.clear();
        m_languages.clear();
    }
    showLines(fresh);
}

void StructureFields::setText(const QString& text)
{
    m_text = text;
    m_members = StructureText::members(text);
}

void StructureFields::setReadOnly(bool on)
{
    m_readOnly = on;
    for (const Line& line : std::as_const(m_lines)) {
        for (const Part& part : line.parts)
            part.editor.setReadOnly(on);
        if (line.languages)
            line.languages->setReadOnly(on);
    }
    showStart();
    showMore();
}

void StructureFields::setOrigin(const std::optional<QString>& origin)
{
    m_origin = origin;
    for (Line& line : m_lines)
        for (Part& part : line.parts)
            showNote(line, part);
}

void StructureFields::setStart(const QString& title)
{
    m_start->setText(title);
    m_start->updateGeometry();
    showStart();
}

// --- Which rows there are ---

bool StructureFields::isShown(const StructureMember& member) const
{
    const QString beside = StructureLayout::beside(member.name).member;
    return m_all || m_kept.contains(member.name) || m_kept.contains(beside)
        || !StructureLayout::isRare(m_structure, m_text, member.name);
}

QList<StructureFields::Key> StructureFields::wanted() const
{
    QList<Key> keys;
    for (qsizetype i = 0; i < m_structure.members.size(); ++i) {
        const StructureMember& member = m_structure.members.at(i);
        if (StructureLayout::isBeside(member.name) || !isShown(member))
            continue;
        keys.append(Key(i, QString()));
        if (!member.hasLanguages)
            continue;
        const QStringList codes = m_languages.value(member.name);
        for (const QString& code : codes)
            keys.append(Key(i, code));
    }
    return keys;
}

// What holds something now is shown for as long as the card is open, or emptying it would take it from under the
// keyboard.
void StructureFields::keepHeld()
{
    for (const StructureMember& member : m_structure.members) {
        if (holds(member.name))
            m_kept.insert(member.name);
        if (!member.hasLanguages)
            continue;
        QStringList& codes = m_languages[member.name];
        codes += StructureEdit::languages(m_text, member.name);
        codes.removeDuplicates();
        if (!codes.isEmpty())
            m_kept.insert(member.name);
    }
}

void StructureFields::showLines(bool fresh)
{
    keepHeld();
    const QList<Key> keys = wanted();
    bool isOther = false;
    for (auto line = m_lines.begin(); line != m_lines.end(); ++line)
        if (!keys.contains(line.key()) && !line->row->isHidden()) {
            line->row->hide();
            isOther = true;
        }
    for (const Key& key : keys) {
        if (!m_lines.contains(key))
            m_lines.insert(key, makeLine(key));
        Line& line = m_lines[key];
        // One that was not on screen may show another structure's.
        const bool isNew = line.row->isHidden();
        for (Part& part : line.parts) {
            part.editor.show(m_text, fresh || isNew);
            showNote(line, part);
        }
        line.row->show();
        isOther |= isNew;
    }
    showStart();
    showMore();
    showForeign();
    if (isOther)
        emit tabStopsChanged();
}

// --- Making them ---

StructureFields::Part StructureFields::makePart(const StructureMember& member, const QString& code)
{
    MemberEditorParts parts;
    parts.member = member;
    parts.label = labelOf(member, code);
    parts.codes = m_codes;
    parts.structure = [this] { return m_text; };
    parts.changed = [this](const QString& text) { take(text); };
    parts.stopsChanged = [this] { emit tabStopsChanged(); };
    const QString name = code.isEmpty() ? member.name : member.name + u'-' + code;
    Part part{ name, member, makeMemberEditor(name, parts, this) };
    part.editor.setReadOnly(m_readOnly);
    return part;
}

StructureFields::Line StructureFields::makeLine(const Key& key)
{
    const StructureMember& member = m_structure.members.at(key.first);
    Line line;
    line.parts.append(makePart(member, key.second));
    QWidget* editor = line.parts.constFirst().editor.widget;
    const StructureLayout::Beside beside = StructureLayout::beside(key.second.isEmpty() ? member.name : QString());
    if (const StructureMember* second = IptcStructures::member(m_structure, beside.member)) {
        line.parts.append(makePart(*second, {}));
        editor = sideBySide(editor, line.parts.constLast().editor.widget, beside);
    }
    line.row = new CardRow(labelOf(member, key.second), editor, line.parts.constFirst().editor.input, this);
    line.row->hide();
    if (member.hasLanguages && key.second.isEmpty()) {
        line.languages = new MemberLanguages(*line.row);
        line.languages->setReadOnly(m_readOnly);
        connect(line.languages, &MemberLanguages::asked, this,
            [this, member, row = line.row] { openLanguages(member, *row); });
    }
    m_column->insertWidget(1 + int(std::distance(m_lines.cbegin(), std::as_const(m_lines).lowerBound(key))), line.row);
    return line;
}

// What is seen of it, for screen readers too.
void StructureFields::showNote(Line& line, Part& part)
{
    part.editor.mark(m_origin);
    const QString text = part.member.kind == FieldKind::date || part.member.kind == FieldKind::number
        ? StructureEdit::note(part.member, StructureEdit::texts(m_text, part.name).value(0))
        : QString();
    if (!part.note && !text.isEmpty()) {
        part.note = new WrappedLine(TextRole::amberText, noteSize, noteHeight);
        line.row->addBelow(part.note);
    }
    if (part.note) {
        part.note->setText(text);
        part.note->setVisible(!text.isEmpty());
    }
    QStringList told;
    if (m_origin && !StructureEdit::isSame(m_text, *m_origin, part.name))
        told.append(Texts::tr("edited"));
    if (!text.isEmpty())
        told.append(text);
    part.editor.input->setAccessibleDescription(told.join(u", "_s));
}

// --- Above and below the rows ---

void StructureFields::showStart()
{
    const bool isOffered = !m_start->text().isEmpty() && m_text.isEmpty() && !m_readOnly;
    // Also while the popover that it has opened is closing.
    if (!isOffered && window()->focusWidget() == m_start && firstInput())
        firstInput()->setFocus(Qt::OtherFocusReason);
    m_start->setVisible(isOffered);
}

void StructureFields::showMore()
{
    QStringList labels;
    for (const StructureMember& member : m_structure.members)
        if (!StructureLayout::isBeside(member.name) && !isShown(member))
            labels.append(Texts::shown(member.label));
    m_more->setVisible(!labels.isEmpty() && !m_readOnly);
    m_more->setToolTip(labels.join(u", "_s));
    //: %1: what the card holds, as “place”, “person” or “contact”.
    m_more->setAccessibleName(Texts::tr("More fields of this %1").arg(Texts::shown(m_structure.item)));
    m_more->setAccessibleDescription(labels.join(u", "_s));
}

void StructureFields::revealRest()
{
    const QList<Key> before = wanted();
    m_all = true;
    showLines(false);
    const QList<Key> after = wanted();
    const auto first =
        std::find_if(after.cbegin(), after.cend(), [&before](const Key& key) { return !before.contains(key); });
    if (first != after.cend())
        focusWhereItStands(*m_lines[*first].parts.constFirst().editor.input);
}

void StructureFields::showForeign()
{
    const QStringList names = StructureText::foreignMembers(m_structure, m_text);
    if (!m_foreign && names.isEmpty())
        return;
    if (!m_foreign) {
        m_foreign = new WrappedLine(TextRole::label, noteSize, noteHeight, this);
        m_foreign->setVerbatim(true);
        m_column->addWidget(m_foreign);
    }
    m_foreign->setVisible(!names.isEmpty());
    if (!names.isEmpty())
        m_foreign->setText(
            //: %1: names of what another program has put in, as “Mood” and “Weather”. %2: “place”, “person”, “contact”…
            Texts::tr("Also holds %1 of another program, which stays. Changing this %2 may be refused for that.")
                .arg(listed(names), Texts::shown(m_structure.item)));
}

// --- What somebody does ---

void StructureFields::take(const QString& text)
{
    if (text == m_text)
        return;
    setText(text);
    showLines(false);
    emit textChanged(text);
}

void StructureFields::openLanguages(const StructureMember& member, CardRow& row)
{
    // Those of the other members are likely here, too.
    QStringList likely;
    for (const QStringList& codes : std::as_const(m_languages))
        likely += codes;
    SearchMenu* menu =
        makeLanguageMenu(Texts::shown(member.label), m_languages.value(member.name), likely, row.input());
    connect(menu, &SearchMenu::picked, this,
        [this, member](const SearchMenuRow& picked) { addLanguage(member, picked.code); });
    menu->open(QRect(row.input()->mapToGlobal(QPoint()), row.input()->size()), row.input()->width());
}

void StructureFields::addLanguage(const StructureMember& member, const QString& code)
{
    m_languages[member.name].append(code);
    showLines(false);
    if (QWidget* added = input(member.name + u'-' + code))
        focusWhereItStands(*added);
}

QWidget* StructureFields::input(const QString& member) const
{
    for (const Line& line : m_lines)
        for (const Part& part : line.parts)
            if (part.name == member && !line.row->isHidden())
                return part.editor.input;
    return nullptr;
}

QWidget* StructureFields::firstInput() const
{
    for (const Line& line : m_lines)
        if (!line.row->isHidden())
            return line.parts.constFirst().editor.input;
    return nullptr;
}

QList<QWidget*> StructureFields::tabStops() const
{
    QList<QWidget*> stops{ m_start };
    for (const Line& line : m_lines)
        for (const Part& part : line.parts)
            if (!line.row->isHidden())
                stops.append(part.editor.tabStops());
    stops.append(m_more);
    return stops;
}

}  // namespace Quorbel
