#include "ui/templates/TemplateRow.h"

#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/keywords/KeywordEditor.h"
#include "ui/controls/pickers/ChoicePicker.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/tokens/TokenEdit.h"
#include "ui/templates/TemplateTexts.h"
#include "ui/templates/TokenPieces.h"
#include "ui/templates/TokenPills.h"
#include "ui/templates/TokenPopover.h"

#include <QGridLayout>
#include <QLineEdit>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal popoverWidth = 320;  // points

QString titleOf(TemplateMode mode)
{
    switch (mode) {
    case TemplateMode::set:
        return Texts::tr("Set", "verb: puts the text into the field");
    case TemplateMode::setIfEmpty:
        //: Puts the text into the field when nothing is there.
        return Texts::tr("Set if empty");
    case TemplateMode::append:
        //: Puts the text behind what the field holds.
        return Texts::tr("Append");
    case TemplateMode::prepend:
        break;
    }
    //: Puts the text before what the field holds.
    return Texts::tr("Prepend");
}

}  // namespace

TemplateRow::TemplateRow(const TemplateField& field, Completions completions, QWidget* parent)
    : QWidget(parent)
    , m_field(field)
    , m_grid(new QGridLayout(this))
    , m_title(TemplateTexts::shownLabel(field.key, field.label()))
    //: %1: name of a field.
    , m_mode(new ChoicePicker(Texts::tr("What happens to %1").arg(m_title), modeWidth))
{
    auto* label = new TwoLineLabel(TextRole::label, 13);
    label->setText(m_title);
    auto* remove = new QBIconButton(u"xmark.circle.fill"_s, Texts::tr("Remove %1").arg(m_title));
    remove->setSizes({ 16, 30 }, 15);
    m_remove = remove;
    QStringList modes;
    for (const TemplateMode mode : field.modes())
        modes.append(titleOf(mode));
    m_mode->setWidest(1.6 * modeWidth);
    m_mode->setTitles(modes);
    QWidget* editor = field.isList() ? makeItems(completions) : makeText();
    label->setBuddy(editor);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->addWidget(label, 0, 0, Qt::AlignTop);
    m_grid->addWidget(m_mode, 0, 1, Qt::AlignTop);
    m_grid->addWidget(remove, 0, 3, Qt::AlignTop);
    m_grid->setColumnStretch(2, 1);
    onRestyle(this, [this, label] {
        label->setFixedSize(px(labelWidth), px(30));
        m_grid->setHorizontalSpacing(px(gap));
        m_grid->setVerticalSpacing(px(lineGap));
        placeText();
    });
    connect(m_mode, &ChoicePicker::picked, this, [this](int index) {
        TemplateField now = m_field;
        now.mode = m_field.modes().at(index);
        change(now);
    });
    connect(remove, &QAbstractButton::clicked, this, &TemplateRow::removed);
    show(field);
}

QWidget* TemplateRow::makeText()
{
    const FieldSpec* spec = m_field.spec();
    m_text = new TokenEdit(spec && spec->kind == FieldKind::multiline);
    m_text->setAccessibleName(m_title);
    m_text->setParse(&TokenPieces::of);
    connect(m_text, &TokenEdit::edited, this, [this] {
        TemplateField now = m_field;
        now.text = TokenPieces::pattern(m_text->pieces());
        change(now);
    });
    connect(m_text, &TokenEdit::focused, this, &TemplateRow::focused);
    connect(m_text, &TokenEdit::tokenOpened, this, &TemplateRow::openToken);
    return m_text;
}

QWidget* TemplateRow::makeItems(const Completions& completions)
{
    m_items = new KeywordEditor;
    m_items->setPlaceholder(m_field.key == u"keywords" ? Texts::tr("Add keyword + ↵") : Texts::tr("Add name + ↵"));
    m_items->entry()->setAccessibleName(m_title);
    if (completions)
        m_items->setCompletions(completions);
    connect(m_items, &KeywordEditor::added, this, [this](const QString& item) {
        TemplateField now = m_field;
        if (!now.items.contains(item))
            now.items.append(item);
        change(now);
    });
    connect(m_items, &KeywordEditor::removed, this, [this](const QString& item) {
        TemplateField now = m_field;
        now.items.removeAll(item);
        change(now);
    });
    return m_items;
}

void TemplateRow::setCodes(const CodeTexts& codes)
{
    if (m_text)
        m_text->setCodes(codes);
    if (m_items)
        m_items->setCodes(codes);
}

void TemplateRow::show(const TemplateField& field)
{
    m_field = field;
    m_mode->setCurrent(int(field.modes().indexOf(field.mode)));
    if (m_text && TokenPieces::pattern(m_text->pieces()) != field.text)
        m_text->setPieces(TokenPieces::of(field.text));
    if (m_items && m_items->chips() != field.items)
        m_items->setChips(field.items);
}

void TemplateRow::change(const TemplateField& field)
{
    if (field == m_field)
        return;
    show(field);
    emit changed(field);
}

// Beside its name and mode, or below them where it would have little room there.
void TemplateRow::placeText()
{
    m_isStacked = width() < px(stackedBelow);
    const int line = m_isStacked ? 1 : 0;
    const int column = m_isStacked ? 0 : 2;
    const int columns = m_isStacked ? 4 : 1;
    QWidget* editor = m_text ? static_cast<QWidget*>(m_text) : m_items;
    m_grid->addWidget(editor, line, column, 1, columns, Qt::AlignTop);
    if (m_pills)
        m_grid->addWidget(m_pills, line + 1, column, 1, columns);
}

void TemplateRow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if ((width() < px(stackedBelow)) != m_isStacked)
        placeText();
}

void TemplateRow::setPillsShown(bool on)
{
    if (!m_text || (!on && !m_pills))
        return;
    if (!m_pills) {
        m_pills = new TokenPills(this);
        placeText();
        orderTabs(m_mode);
        connect(m_pills, &TokenPills::picked, m_text, [this](const Token& token) {
            m_text->insertToken(TokenPieces::chip(token));
            m_text->setFocus(Qt::OtherFocusReason);
        });
    }
    m_pills->setVisible(on);
}

QWidget* TemplateRow::orderTabs(QWidget* before) const
{
    const auto follow = [&before](QWidget* next) {
        if (next != before)
            setTabOrder(before, next);
        before = next;
    };
    follow(m_mode);
    follow(m_text ? static_cast<QWidget*>(m_text) : m_items->entry());
    if (m_pills)
        for (QWidget* pill : m_pills->stops())
            follow(pill);
    follow(m_remove);
    return before;
}

void TemplateRow::edit()
{
    if (m_text)
        m_text->setFocus(Qt::OtherFocusReason);
    else
        m_items->entry()->setFocus(Qt::OtherFocusReason);
}

void TemplateRow::openToken(int position)
{
    const auto chip = m_text->tokenAt(position);
    if (!chip)
        return;
    auto* popover = new TokenPopover(TokenPieces::token(*chip), m_text);
    connect(popover, &TokenPopover::changed, m_text,
        [this, position](const Token& token) { m_text->replaceToken(position, TokenPieces::chip(token)); });
    const QRect place = m_text->rectOf(position);
    popover->open(QRect(m_text->mapToGlobal(place.topLeft()), place.size()), px(popoverWidth));
}

}  // namespace Quorbel
