#include "ui/templates/TemplatesSheet.h"

#include "app/model/AppModel.h"
#include "app/model/templates/Templates.h"
#include "app/model/words/CodeReplacements.h"
#include "core/iptc/IptcSchema.h"
#include "core/language/Texts.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldLanguages.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/attached/SearchMenu.h"
#include "ui/controls/pickers/ChoicePicker.h"
#include "ui/controls/scrolling/ScrollArea.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/sheets/SheetParts.h"
#include "ui/templates/PreviewRow.h"
#include "ui/templates/TemplateList.h"
#include "ui/templates/TemplateRow.h"
#include "ui/templates/TemplateTexts.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLocale>
#include <QPainter>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr ListSheet::Widths widths{ .sheet = 880, .side = 196, .narrowSide = 170, .narrowBelow = 724 };
constexpr qreal rowGap = 7;
constexpr qreal digitWidth = 112;
constexpr qreal fieldMenuWidth = 320;
constexpr qreal leastForm = 200;
constexpr int fieldOfList = 12;  // suggestions while one types a keyword

// As high as what is in it, where there is room; else it scrolls.
class FormArea final : public ScrollArea {
public:
    QSize sizeHint() const override
    {
        return widget() ? QSize(widget()->sizeHint().width(), widget()->sizeHint().height()) : ScrollArea::sizeHint();
    }
    QSize minimumSizeHint() const override { return { px(leastForm), px(leastForm) }; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == widget() && event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return ScrollArea::eventFilter(watched, event);
    }
};

// A frame round the rows of the preview.
class PreviewFrame final : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = Theme::of(this);
        DirectedPainter painter(this);
        paintBox(painter, rect(), pxF(7), theme.field, QPen(theme.line, 1));
    }
};

// A field that a template may gain.
struct Addable {
    SearchMenuRow row{};
    QString key{};
};

// Of the further properties of the standard those that are words.
bool canBeFilled(const FieldSpec& field)
{
    return !IptcSchema::isId(field.id) || field.kind == FieldKind::text || field.kind == FieldKind::multiline
        || field.kind == FieldKind::keywords;
}

QList<Addable> addableFields(const Template& value)
{
    QList<Addable> fields;
    for (const FieldSpec& field : FieldSchema::everyField())
        if (value.indexOf(field.id) < 0 && canBeFilled(field))
            fields.append({ { Texts::shown(field.label), {}, field.label }, field.id });
    for (const FieldSpec& field : FieldSchema::everyField()) {
        if (field.languageTag().isEmpty())
            continue;
        for (const FieldLanguages::Choice& language : FieldLanguages::choices())
            if (const QString key = FieldLanguages::key(field.id, language.code); value.indexOf(key) < 0)
                fields.append({ { FieldLanguages::label(key), language.code, field.label }, key });
    }
    return fields;
}

QWidget* emptyColumn(QVBoxLayout*& column)
{
    auto* holder = new QWidget;
    column = new QVBoxLayout(holder);
    column->setContentsMargins(0, 0, 0, 0);
    return holder;
}

void clearColumn(QLayout* column)
{
    while (QLayoutItem* item = column->takeAt(0)) {
        if (QWidget* widget = item->widget()) {
            widget->hide();
            widget->deleteLater();
        }
        delete item;
    }
}

}  // namespace

TemplatesSheet::TemplatesSheet(AppModel& model, QWidget* parent)
    : ListSheet(widths, parent)
    , m_model(model)
    , m_templates(model.templates())
    , m_problems(new WrappedLine(TextRole::amberText, 11, 15))
    , m_none(new WrappedLine(TextRole::label, 13, 19))
    , m_name(new QBTextField)
    //: Keys that apply a template.
    , m_digit(new ChoicePicker(Texts::tr("Shortcut"), digitWidth))
    , m_add(new QBButton(Texts::tr("Add field"), QBButtonKind::dashed))
    , m_photo(new ThemedLabel({}, TextRole::label, 11))
    , m_before(new QBIconButton(u"chevron.right"_s, Texts::tr("Previous photo")))
    , m_after(new QBIconButton(u"chevron.right"_s, Texts::tr("Next photo")))
    , m_status(new WrappedLine(TextRole::label, 11, 15))
    //: Button: fills the fields of photos.
    , m_fill(new QBButton(Texts::tr("Fill"), QBButtonKind::primary))
{
    m_problems->setVerbatim(true);
    QWidget* form = buildForm();
    setParts(new TemplateList(m_templates), { m_problems }, makeButtons(), form);
    connectModel();
    showTemplate();
}

// Under the list.
QList<QBIconButton*> TemplatesSheet::makeButtons()
{
    auto* add = new QBIconButton(u"plus"_s, Texts::tr("New template"));
    auto* more = new QBIconButton(u"ellipsis"_s, Texts::tr("More", "button: opens a menu"));
    auto* menu = new ThemedMenu(this);
    connect(add, &QAbstractButton::clicked, this, [this] {
        m_templates.addNew();
        m_name->setFocus(Qt::OtherFocusReason);
        m_name->selectAll();
    });
    connect(more, &QAbstractButton::clicked, this, [this, menu, more] {
        fillMenu(menu);
        menu->popUpUnder(more);
    });
    return { add, more };
}

void TemplatesSheet::fillMenu(ThemedMenu* menu)
{
    menu->clear();
    const int id = m_templates.current();
    const auto add = [&](const QString& title, bool on, auto run) {
        connect(menu->addAction(title), &QAction::triggered, this, run);
        menu->actions().constLast()->setEnabled(on);
    };
    add(Texts::tr("Duplicate"), id > 0, [this, id] {
        Template copy = m_templates.store().find(id)->value();
        //: %1: name of the template that this is a copy of.
        copy.name = Texts::tr("%1 copy").arg(copy.name);
        copy.digit = 0;
        m_templates.choose(m_templates.store().add(copy));
    });
    menu->addSeparator();
    add(Texts::tr("Import…"), bool(m_templates.panels.import),
        [this] { m_templates.panels.import([this](const QStringList& paths) { m_templates.store().import(paths); }); });
    add(Texts::tr("Export…"), id > 0 && m_templates.panels.exportTo, [this, id] {
        const QString name = TemplateFile::baseName(m_templates.store().find(id)->value().name) + u".json"_s;
        m_templates.panels.exportTo(name, [this, id](const QString& path) { m_templates.store().exportTo(id, path); });
    });
    menu->addSeparator();
    add(Texts::tr("Move to Trash"), id > 0, [this, id] { m_templates.store().remove(id); });
}

QWidget* TemplatesSheet::buildForm()
{
    auto* right = new QWidget;
    auto* column = new QVBoxLayout(right);
    auto* area = new FormArea;
    m_form = new QWidget;
    auto* form = new QVBoxLayout(m_form);
    auto* frame = new PreviewFrame;
    m_preview = new QVBoxLayout(frame);
    m_preview->setContentsMargins(1, 1, 1, 1);
    m_preview->setSpacing(0);
    auto* addLine = new QHBoxLayout;
    addLine->addWidget(m_add);
    addLine->addStretch();
    connect(m_add, &QAbstractButton::clicked, this, &TemplatesSheet::chooseField);
    form->addWidget(buildNameLine());
    //: Heads the fields of a template, in capitals.
    form->addWidget(new LabeledDivider(Texts::tr("FIELDS")));
    form->addWidget(emptyColumn(m_rows));
    form->addLayout(addLine);
    form->addWidget(buildPreviewHead());
    form->addWidget(frame);
    form->addStretch();
    area->setContent(m_form);
    area->setFocusPolicy(Qt::NoFocus);
    m_form->installEventFilter(area);
    m_none->setText(
        Texts::tr("A template fills fields of the selected photos, with texts that each photo completes. Make one "
                  "with +, or drop a template's file into the list."));
    auto* done = new QBButton(Texts::tr("Done"), QBButtonKind::secondary);
    connect(done, &QAbstractButton::clicked, this, &TemplatesSheet::cancel);
    connect(m_fill, &QAbstractButton::clicked, this, &TemplatesSheet::confirm);
    auto* foot = sheetButtonRow(this, { done, m_fill });
    foot->insertWidget(0, m_status, 1);
    column->addWidget(m_none);
    column->addWidget(area, 1);
    column->addLayout(foot);
    onRestyle(right, [this, column, form, addLine, foot] {
        const int padding = px(sheetPadding);
        column->setContentsMargins(mirrored(QMargins(padding - px(4), px(14), px(14), padding)));
        column->setSpacing(px(14));
        foot->setContentsMargins(mirrored(QMargins(px(4), 0, px(10), 0)));
        // Room for the rings of fields that have the keyboard.
        form->setContentsMargins(mirrored(QMargins(px(4), px(4), px(10), px(4))));
        form->setSpacing(px(10));
        m_rows->setSpacing(px(rowGap));
        addLine->setContentsMargins(mirrored(QMargins(px(TemplateRow::labelWidth + TemplateRow::gap), 0, 0, px(4))));
    });
    return right;
}

QWidget* TemplatesSheet::buildNameLine()
{
    m_nameLine = new QWidget;
    auto* grid = new QGridLayout(m_nameLine);
    auto* label = new ThemedLabel(Texts::tr("Name"), TextRole::label, 13);
    label->setBuddy(m_name);
    m_name->setAccessibleName(Texts::tr("Name"));
    QStringList titles{ Texts::tr("No shortcut") };
    for (int digit = 1; digit <= 9; ++digit)
        titles.append(TemplateTexts::keys(digit));
    m_digit->setWidest(2 * digitWidth);
    m_digit->setTitles(titles);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    grid->addWidget(label, 0, 0);
    grid->addWidget(m_digit, 0, 2);
    onRestyle(m_nameLine, [grid, label] {
        label->setFixedWidth(px(TemplateRow::labelWidth));
        grid->setHorizontalSpacing(px(TemplateRow::gap));
        grid->setVerticalSpacing(px(TemplateRow::lineGap));
    });
    connect(m_name, &QLineEdit::textEdited, this, [this](const QString& text) {
        Template now = *value();
        now.name = text.simplified();
        // A template without a name keeps its last one until it gets another.
        if (!now.name.isEmpty())
            change(now);
    });
    connect(m_digit, &ChoicePicker::picked, this, [this](int digit) {
        Template now = *value();
        now.digit = digit;
        change(now);
    });
    return m_nameLine;
}

// As in the rows below it.
void TemplatesSheet::placeName()
{
    auto* grid = static_cast<QGridLayout*>(m_nameLine->layout());
    const bool isStacked = isNarrow();
    grid->addWidget(m_name, isStacked ? 1 : 0, isStacked ? 0 : 1, 1, isStacked ? 3 : 1);
}

QWidget* TemplatesSheet::buildPreviewHead()
{
    auto* head = new QWidget;
    auto* row = new QHBoxLayout(head);
    row->setContentsMargins(0, 0, 0, 0);
    m_before->setIcon(u"chevron.left"_s);
    for (QBIconButton* button : { m_before, m_after })
        button->setSizes({ 24, 24 }, 12, 0, 6);
    m_photo->setVerbatim(true);
    m_photo->setElided(true);
    connect(m_before, &QAbstractButton::clicked, this, [this] { step(-1); });
    connect(m_after, &QAbstractButton::clicked, this, [this] { step(1); });
    //: Heads what the template makes of a photo, in capitals.
    row->addWidget(new LabeledDivider(Texts::tr("PREVIEW")), 1);
    row->addWidget(m_before);
    row->addWidget(m_photo);
    row->addWidget(m_after);
    onRestyle(head, [row] { row->setSpacing(px(6)); });
    return head;
}

void TemplatesSheet::connectModel()
{
    connect(&m_templates.store(), &TemplateStore::changed, this, &TemplatesSheet::showTemplate);
    connect(&m_templates, &Templates::currentChanged, this, &TemplatesSheet::showTemplate);
    connect(&m_templates, &Templates::photosChanged, this, &TemplatesSheet::showPreview);
    connect(&m_templates, &Templates::canApplyChanged, this, &TemplatesSheet::showButtons);
}

// --- What is shown ---

const Template* TemplatesSheet::value() const
{
    const TemplateStore::Entry* entry = m_templates.store().find(m_templates.current());
    return entry ? &entry->value() : nullptr;
}

void TemplatesSheet::showTemplate()
{
    const QStringList problems = m_templates.store().problems();
    m_problems->setText(problems.join(u'\n'));
    m_problems->setVisible(!problems.isEmpty());
    const Template* now = value();
    m_form->setVisible(now);
    m_none->setVisible(!now);
    if (now) {
        if (m_shownId != m_templates.current() || (!m_name->hasFocus() && m_name->text() != now->name))
            m_name->startText(now->name);
        m_digit->setCurrent(now->digit);
        showRows(*now);
    }
    m_shownId = m_templates.current();
    showPreview();
    showButtons();
}

// Rows of fields that stay, stay: one of them may have the keyboard.
void TemplatesSheet::showRows(const Template& value)
{
    const bool isOther = m_shownId != m_templates.current();
    for (qsizetype i = m_shown.size() - 1; i >= 0; --i) {
        TemplateRow* row = m_shown.at(i);
        if (!isOther && value.indexOf(row->field().key) >= 0)
            continue;
        m_shown.removeAt(i);
        m_rows->removeWidget(row);
        row->hide();
        row->deleteLater();
    }
    for (int i = 0; i < value.fields.size(); ++i) {
        const TemplateField& field = value.fields.at(i);
        const auto same = [&field](const TemplateRow* row) { return row->field().key == field.key; };
        const auto found = std::find_if(m_shown.cbegin(), m_shown.cend(), same);
        if (found == m_shown.cend())
            addRow(field, i);
        else
            (*found)->show(field);
    }
    // Tab goes from top to bottom, and then to what is below the rows.
    QWidget* before = m_digit;
    for (TemplateRow* row : std::as_const(m_shown))
        before = row->orderTabs(before);
    setTabOrder(before, m_add);
}

void TemplatesSheet::addRow(const TemplateField& field, int at)
{
    TemplateRow::Completions completions;
    if (field.key == u"keywords")
        completions = [this](const QString& typed) {
            QList<KeywordSuggestion> suggestions;
            for (const QString& keyword : m_model.keywordCompletions(typed, fieldOfList))
                suggestions.append({ keyword, keyword });
            return suggestions;
        };
    auto* row = new TemplateRow(field, completions, m_form);
    row->setCodes(m_model.codes().texts());
    m_rows->insertWidget(at, row);
    m_shown.insert(qMin(qsizetype(at), m_shown.size()), row);
    row->QWidget::show();
    connect(row, &TemplateRow::changed, this, &TemplatesSheet::changeField);
    connect(row, &TemplateRow::focused, this, [this, row] { giveTextThePills(row); });
    connect(row, &TemplateRow::removed, this, [this, key = field.key] {
        Template now = *value();
        now.fields.removeAt(now.indexOf(key));
        m_add->setFocus(Qt::OtherFocusReason);
        change(now);
    });
}

// They stay where they are until another text has the keyboard: nothing moves away under the pointer.
void TemplatesSheet::giveTextThePills(TemplateRow* row)
{
    if (m_focused == row)
        return;
    if (m_focused)
        m_focused->setPillsShown(false);
    m_focused = row;
    row->setPillsShown(true);
}

void TemplatesSheet::showPreview()
{
    const int count = m_templates.photoCount();
    m_place = qBound(0, m_place, qMax(0, count - 1));
    const QString place = Texts::tr("%1 of %2").arg(QLocale().toString(m_place + 1), QLocale().toString(count));
    m_photo->setText(
        count == 0 ? Texts::tr("No photo selected") : u"%1 · %2"_s.arg(m_templates.photoName(m_place), place));
    m_before->setVisible(count > 1);
    m_after->setVisible(count > 1);
    m_before->setEnabled(m_place > 0);
    m_after->setEnabled(m_place + 1 < count);
    const QList<FilledField> fields = m_templates.preview(m_place);
    m_preview->parentWidget()->setVisible(!fields.isEmpty());
    clearColumn(m_preview);
    bool isFirst = true;
    for (const FilledField& field : fields) {
        auto* row = new PreviewRow(field, std::exchange(isFirst, false), m_preview->parentWidget());
        m_preview->addWidget(row);
        row->show();
    }
}

void TemplatesSheet::showButtons()
{
    const int count = m_templates.photoCount();
    const int unread = m_model.unreadSelected();
    //: Button: fills the fields of the selected photos. %1: how many these are.
    m_fill->setText(Texts::tr("Fill %1 Photo(s)", nullptr, count).arg(QLocale().toString(count)));
    m_fill->updateGeometry();
    const Template* now = value();
    m_fill->setEnabled(now && !now->fields.isEmpty() && m_templates.canApply());
    //: %1: how many photos.
    const QString status = Texts::tr("Reading %1 more…", nullptr, unread).arg(QLocale().toString(unread));
    setTextOrNothing(*m_status, unread > 0 ? status : QString());
}

void TemplatesSheet::step(int by)
{
    m_place += by;
    showPreview();
}

// --- What the user does ---

void TemplatesSheet::change(const Template& value)
{
    m_templates.store().change(m_templates.current(), value);
}

void TemplatesSheet::changeField(const TemplateField& field)
{
    Template now = *value();
    now.fields[now.indexOf(field.key)] = field;
    change(now);
}

void TemplatesSheet::chooseField()
{
    const QList<Addable> fields = addableFields(*value());
    auto* menu = new SearchMenu(Texts::tr("Add field"), Texts::tr("Search fields…"), m_add);
    QList<SearchMenuRow> rows;
    for (const Addable& field : fields)
        rows.append(field.row);
    menu->setRows(rows);
    menu->setNothingFound(Texts::tr("No field of this name."));
    menu->setOther([this](const QString& typed) -> std::optional<SearchMenuRow> {
        const auto name = m_model.storedCustomName(typed);
        if (!name || CustomFields::nameProblem(typed) || value()->indexOf(CustomFields::key(*name)) >= 0)
            return std::nullopt;
        return SearchMenuRow{ *name, Texts::tr("custom field"), {} };
    });
    connect(menu, &SearchMenu::picked, this, [this, fields](const SearchMenuRow& row) {
        const auto same = [&row](const Addable& field) { return field.row == row; };
        const auto found = std::find_if(fields.cbegin(), fields.cend(), same);
        addField(found == fields.cend() ? CustomFields::key(row.title) : found->key);
    });
    menu->open(QRect(m_add->mapToGlobal(QPoint(0, 0)), m_add->size()), px(fieldMenuWidth));
}

void TemplatesSheet::addField(const QString& key)
{
    TemplateField field{ .key = key };
    if (field.isList())
        field.mode = TemplateMode::append;
    Template now = *value();
    now.fields.append(field);
    change(now);
    if (!m_shown.isEmpty())
        m_shown.constLast()->edit();
}

QString TemplatesSheet::title() const
{
    return Texts::tr("Templates");
}

void TemplatesSheet::confirm()
{
    if (!m_fill->isEnabled())
        return;
    const int id = m_templates.current();
    m_templates.setOpen(false);
    m_templates.apply(id);
}

void TemplatesSheet::cancel()
{
    m_templates.setOpen(false);
}

QWidget* TemplatesSheet::initialFocus()
{
    return value() ? m_name : nullptr;
}

// Where text is large, the name's line gives way, too.
void TemplatesSheet::fit()
{
    ListSheet::fit();
    placeName();
}

}  // namespace Quorbel
