#include "ui/sheets/SaveDialogView.h"

#include "app/model/AppModel.h"
#include "app/model/iptc/CredentialsNotice.h"
#include "app/model/iptc/FieldNotes.h"
#include "app/model/pairs/Pairing.h"
#include "core/iptc/ShownText.h"
#include "core/language/Texts.h"
#include "core/schema/CustomFields.h"
#include "core/schema/FieldCheck.h"
#include "core/schema/FieldID.h"
#include "core/schema/FieldLanguages.h"
#include "core/schema/KeywordPath.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/Toggles.h"
#include "ui/controls/scrolling/ScrollArea.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/sheets/SheetParts.h"

#include <QGridLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <functional>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal tileGap = 16;
constexpr qreal messageGap = 5;
constexpr qreal listGap = 14;
constexpr qreal buttonsAbove = 22;
constexpr qreal changeLabelWidth = 90;
constexpr qreal changeSide = 12;
constexpr qreal changeAbove = 6;
constexpr qreal mostListHeight = 190;

// What a write will change in one field.
struct ChangeLine {
    QString label{};
    QString value{};
    QString note{};  // what is wrong with the value; none when empty
    bool isOwn = false;  // the value tells of texts that differ from photo to photo
    QStringList takenAway{};  // items that a list loses
    QStringList counts{};  // of those, "18 of 40"; "" where that is not known
};

bool isSingle(const AppModel& model)
{
    return model.selection().size() == 1;
}

// What is asked about many photos takes its time to be worked out: once for each dialog.
using AskedAgreement = std::optional<AppModel::AgreementQuestion>;

QString titleText(const AppModel& model, const AskedAgreement& question)
{
    if (!isSingle(model))
        return question ? Texts::tr("Make %n photo(s) agree?", nullptr, question->photos)
                        : Texts::tr("Apply changes to %n photo(s)?", nullptr, model.selection().size());
    const ImageRecord* record = model.primaryRecord();
    const QString name = record ? model.pairing().names(*record) : QString();
    return (question ? Texts::tr("Make “%1” agree?") : Texts::tr("Save changes to “%1”?")).arg(name);
}

// The scalar fields among `ids`, by id.
QList<ChangeLine> scalarLines(
    const AppModel& model, const QSet<QString>& ids, const std::function<ChangeLine(const QString& id)>& lineOf)
{
    QList<ChangeLine> lines;
    QStringList sorted = ids.values();
    sorted.sort();
    for (const QString& id : std::as_const(sorted)) {
        const FieldSpec* field = FieldSchema::spec(id);
        const QString label =
            field ? (field->isList() ? QString() : Texts::shown(field->label)) : FieldLanguages::label(id);
        if (label.isEmpty())
            continue;
        lines.append(lineOf(id));
        lines.last().label = label;
        if (lines.last().note.isEmpty())
            lines.last().note = FieldNotes::of(model, id);
    }
    return lines;
}

ChangeLine textLine(const QString& id, const QString& value)
{
    const FieldSpec* field = FieldSchema::spec(id);
    return { .value = Texts::tr("“%1”").arg(ShownText::of(id, value)),
        .note = field ? FieldCheck::note(*field, value) : QString() };
}

ChangeLine batchLine(const AppModel& model, const QString& id)
{
    const auto own = model.batchOwn().constFind(id);
    if (own == model.batchOwn().cend())
        return textLine(id, model.batchValues().value(id));
    OwnSummary shown = *own;
    shown.text = ShownText::of(id, own->text);
    return { .value = shown.told(model.selection().size()), .isOwn = true };
}

// Keywords that were typed with their parents, with these.
QStringList shownItems(const AppModel& model, const QString& id, const QStringList& items)
{
    QStringList shown;
    for (const QString& item : items) {
        QStringList paths = id == FieldID::keywords ? model.typedPaths() : QStringList();
        paths.removeIf([&item](const QString& path) { return KeywordPath::keyword(path) != item; });
        if (paths.isEmpty())
            shown.append(item);
        for (const QString& path : std::as_const(paths))
            shown.append(KeywordPath::shown(path));
    }
    return shown;
}

// Of how many photos each field is written.
QList<ChangeLine> agreementLines(const AppModel::AgreementQuestion& question)
{
    QList<ChangeLine> lines;
    for (const FieldSpec& field : FieldSchema::all())
        if (const int photos = question.fields.value(field.id); photos > 0)
            lines.append({ Texts::shown(field.label), Texts::tr("%n photo(s)", nullptr, photos), {} });
    return lines;
}

// What is wrong with an item of a list.
QString noteOf(const FieldSpec& field, const QStringList& items)
{
    for (const QString& item : items)
        if (const QString note = FieldCheck::note(field, item); !note.isEmpty())
            return note;
    return {};
}

// What a list gains, and what it loses. Of texts that only some of the photos gain or lose it tells how many do.
ChangeLine listLine(const AppModel& model, const FieldSpec& field)
{
    ChangeLine line{ .label = Texts::shown(field.label),
        .value = ShownText::of(field.id, shownItems(model, field.id, model.batchLists().value(field.id))),
        .note = noteOf(field, model.batchLists().value(field.id)),
        .takenAway = model.batchRemoved().value(field.id) };
    if (const auto own = model.batchOwn().constFind(field.id); own != model.batchOwn().cend()) {
        line.isOwn = line.value.isEmpty();
        line.value += (line.isOwn ? QString() : u", "_s) + own->told(model.selection().size());
    }
    QHash<QString, int> held;
    if (field.id == FieldID::keywords && !line.takenAway.isEmpty())
        for (const KeywordCount& count : model.selectedKeywords())
            held.insert(count.keyword, count.photos);
    for (const QString& item : std::as_const(line.takenAway))
        line.counts.append(held.contains(item)
                //: Of %2 selected photos, %1 have the keyword.
                ? Texts::tr("%1 of %2").arg(held.value(item)).arg(model.selectedKeywordPhotos())
                : QString());
    return line;
}

bool hasEdits(const ChangeLine& line)
{
    return !line.value.isEmpty() || !line.takenAway.isEmpty();
}

// Custom fields whose texts differ from photo to photo, which are not seen in the form as others are.
QList<ChangeLine> ownCustomLines(const AppModel& model)
{
    QList<ChangeLine> lines;
    for (auto own = model.batchOwn().cbegin(); own != model.batchOwn().cend(); ++own)
        if (const auto name = CustomFields::nameIn(own.key()))
            lines.append({ .label = *name, .value = own->told(model.selection().size()), .isOwn = true });
    return lines;
}

// Scalar fields by id, then lists by id. Of one photo only the fields whose value is worth a second look.
QList<ChangeLine> changeLines(const AppModel& model, const AskedAgreement& question)
{
    if (question)
        return agreementLines(*question);
    if (isSingle(model)) {
        QList<ChangeLine> lines = scalarLines(model, model.editedSingle(),
            [&model](const QString& id) { return textLine(id, model.draftValues().value(id)); });
        for (const FieldSpec& field : FieldSchema::everyField())
            if (field.isList() && model.editedSingle().contains(field.id)) {
                const QStringList items = model.draftLists().value(field.id);
                lines.append({ Texts::shown(field.label), ShownText::of(field.id, items), noteOf(field, items) });
            }
        lines.removeIf([](const ChangeLine& line) { return line.note.isEmpty(); });
        return lines;
    }
    QList<ChangeLine> lines =
        scalarLines(model, model.batchInclude(), [&model](const QString& id) { return batchLine(model, id); });
    QMap<QString, ChangeLine> lists;
    for (const FieldSpec& field : FieldSchema::everyField())
        if (const ChangeLine line = field.isList() ? listLine(model, field) : ChangeLine(); hasEdits(line))
            lists.insert(field.id, line);
    return lines + lists.values() + ownCustomLines(model);
}

QString messageText(const AppModel& model, const AskedAgreement& question)
{
    if (question)
        return Texts::tr("Where the places of a field differ, all of them will hold what is shown of it. Lists are "
                         "brought together.");
    if (isSingle(model))
        return Texts::tr(
            "You edited %n field(s). Your changes will be lost if you don’t save them.", nullptr, model.unsavedCount());
    QStringList labels;
    for (const ChangeLine& line : changeLines(model, question))
        labels.append(line.label);
    const qsizetype files = model.selection().size();
    if (labels.isEmpty())
        return Texts::tr("This will modify the selected fields on %n file(s). This can’t be undone.", nullptr, files);
    //: %1 is a list of the names of fields.
    return Texts::tr("This will modify %1 on %n file(s). This can’t be undone.", nullptr, files)
        .arg(labels.join(u", "_s));
}

// The rows of the change list, with a hairline between them.
class ChangeTable final : public QWidget {
public:
    explicit ChangeTable(const QList<ChangeLine>& lines)
        : m_grid(new QGridLayout(this))
    {
        m_grid->setColumnStretch(1, 1);
        for (int i = 0; i < int(lines.size()); ++i) {
            m_grid->addWidget(ThemedLabel::wrapped(lines.at(i).label, TextRole::label, 13), i, 0, Qt::AlignTop);
            m_grid->addLayout(valueCell(lines.at(i)), i, 1);
        }
        onRestyle(this, [this] {
            m_grid->setContentsMargins(px(changeSide), px(changeAbove), px(changeSide), px(changeAbove));
            m_grid->setHorizontalSpacing(px(7));
            m_grid->setVerticalSpacing(2 * px(changeAbove) + 1);
            m_grid->setColumnMinimumWidth(0, px(changeLabelWidth));
        });
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        DirectedPainter painter(this);
        for (int i = 1; i < m_grid->rowCount(); ++i)
            painter.fillRect(0, m_grid->itemAtPosition(i, 0)->geometry().top() - px(changeAbove) - 1, width(), 1,
                Theme::of(this).line);
    }

private:
    static QVBoxLayout* valueCell(const ChangeLine& line)
    {
        auto* cell = new QVBoxLayout;
        cell->setSpacing(2);
        if (!line.value.isEmpty())
            cell->addWidget(valueLabel(line));
        if (!line.takenAway.isEmpty())
            cell->addWidget(takenAwayLabel(line));
        if (!line.note.isEmpty())
            cell->addWidget(ThemedLabel::wrapped(line.note, TextRole::amberText, 11));
        // Not aligned in the grid instead: that bounds a layout to its hint, which knows no broken lines.
        cell->addStretch();
        return cell;
    }

    static ThemedLabel* valueLabel(const ChangeLine& line)
    {
        auto* value = ThemedLabel::wrapped(line.value, line.isOwn ? TextRole::label : TextRole::text, 13);
        value->setVerbatim(!line.isOwn);
        value->setItalic(line.isOwn);
        return value;
    }

    // "taken away: regata (18 of 40)", the items struck through.
    static ThemedLabel* takenAwayLabel(const ChangeLine& line)
    {
        QStringList shown;
        QStringList spoken;
        for (qsizetype i = 0; i < line.takenAway.size(); ++i) {
            const QString count = line.counts.at(i).isEmpty() ? QString() : u" (%1)"_s.arg(line.counts.at(i));
            shown.append(u"<s>"_s + line.takenAway.at(i).toHtmlEscaped() + u"</s>"_s + count);
            spoken.append(line.takenAway.at(i) + count);
        }
        auto* label = ThemedLabel::wrapped({}, TextRole::text, 13);
        label->setTextFormat(Qt::RichText);
        label->setVerbatim(true);
        //: %1 is a list of keywords that photos lose.
        const QString takenAway = Texts::tr("taken away: %1");
        label->setText(takenAway.toHtmlEscaped().arg(shown.join(u", "_s)));
        label->setAccessibleName(takenAway.arg(spoken.join(u", "_s)));
        return label;
    }

    QGridLayout* m_grid;
};

// A framed list as high as its content, up to a limit beyond which it scrolls.
class ChangeList final : public ScrollArea {
public:
    explicit ChangeList(const QList<ChangeLine>& lines)
    {
        setFramed(true);
        setContent(new ChangeTable(lines));
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        setAccessibleName(Texts::tr("Changes", "noun: what a save changes"));
        // Only a list that scrolls needs the keyboard.
        setFocusPolicy(sizeHint().height() < contentHeight() ? Qt::TabFocus : Qt::NoFocus);
        installFocusRing(this, { RingShape::tight, 7, {}, {} });
    }

    QSize sizeHint() const override { return { listWidth(), qMin(px(mostListHeight), contentHeight()) }; }
    QSize minimumSizeHint() const override { return sizeHint(); }

private:
    static int listWidth() { return px(sheetWidth - 2 * sheetPadding - SymbolTile::side - tileGap); }
    int contentHeight() const { return widget()->heightForWidth(listWidth() - 2) + 2; }
};

}  // namespace

SaveDialogView::SaveDialogView(AppModel& model, QWidget* parent)
    : SheetBody(parent)
    , m_model(model)
    , m_single(isSingle(model))
    , m_question(model.agreementQuestion())
{
    setAccessibleName(titleText(model, m_question));
    QStringList told{ messageText(model, m_question) };
    for (const ChangeLine& line : changeLines(model, m_question))
        if (!line.note.isEmpty())
            //: %1 is the name of a field, %2 what is said of it.
            told.append(Texts::tr("%1: %2").arg(line.label, line.note));
    told.append(CredentialsNotice::text(model.credentialsAtStake()));
    told.removeAll(QString());
    setAccessibleDescription(told.join(u' '));
    auto* column = new QVBoxLayout(this);
    auto* line = new QHBoxLayout;
    line->addWidget(new SymbolTile(m_single ? u"tag"_s : u"square.stack.3d.up"_s), 0, Qt::AlignTop);
    line->addLayout(buildTexts(), 1);
    column->addLayout(line);
    QHBoxLayout* buttons = sheetButtonRow(this, buildButtons());
    column->addLayout(buttons);
    frameSheet(this, column);
    onRestyle(this, [column, line] {
        column->setSpacing(px(buttonsAbove));
        line->setSpacing(px(tileGap));
    });
}

QVBoxLayout* SaveDialogView::buildTexts()
{
    auto* texts = new QVBoxLayout;
    auto* title = ThemedLabel::wrapped(titleText(m_model, m_question), TextRole::text, 15, QFont::DemiBold);
    title->setVerbatim(true);
    auto* message = ThemedLabel::wrapped(messageText(m_model, m_question), TextRole::label, 13);
    QWidget* changes = buildChanges();
    QWidget* credentials = buildCredentials();
    buildCheckbox();
    QList<SheetPart> parts{ { title, messageGap }, { message, listGap } };
    if (changes)
        parts.append({ changes, listGap });
    if (credentials)
        parts.append({ credentials, listGap });
    parts.append({ m_dontAsk, 0, Qt::AlignLeft });
    stackParts(this, texts, parts);
    texts->addStretch();
    return texts;
}

QWidget* SaveDialogView::buildChanges()
{
    const QList<ChangeLine> lines = changeLines(m_model, m_question);
    return lines.isEmpty() ? nullptr : new ChangeList(lines);
}

// Nothing is wrong with it, and the save goes on: calm words, no mark of danger.
QWidget* SaveDialogView::buildCredentials()
{
    const QString text = CredentialsNotice::text(m_model.credentialsAtStake());
    return text.isEmpty() ? nullptr : ThemedLabel::wrapped(text, TextRole::label, 12);
}

void SaveDialogView::buildCheckbox()
{
    m_dontAsk = new QBCheckbox(
        m_single ? Texts::tr("Save and don’t ask again") : Texts::tr("Don’t ask again this session"), nullptr);
    const auto show = [this] {
        m_dontAsk->setChecked(m_single ? m_model.preferences().saveDontAsk() : m_model.batchDontAskSession());
    };
    show();
    connect(&m_model.preferences(), &Preferences::changed, this, show);
    connect(&m_model, &AppModel::batchDontAskSessionChanged, this, show);
    connect(m_dontAsk, &QAbstractButton::clicked, this, [this] {
        if (m_single)
            m_model.preferences().saveDontAsk.set(!m_model.preferences().saveDontAsk());
        else
            m_model.setBatchDontAskSession(!m_model.batchDontAskSession());
    });
}

QList<QBButton*> SaveDialogView::buildButtons()
{
    QList<QBButton*> buttons;
    if (m_single && !m_question) {
        buttons.append(new QBButton(Texts::tr("Don't Save"), QBButtonKind::destructive));
        connect(buttons.last(), &QAbstractButton::clicked, this, [this] { m_model.discardSaveDialog(); });
    }
    buttons.append(new QBButton(Texts::tr("Cancel"), QBButtonKind::secondary));
    connect(buttons.last(), &QAbstractButton::clicked, this, &SaveDialogView::cancel);
    m_confirm = new QBButton(confirmTitle(), QBButtonKind::primary);
    connect(m_confirm, &QAbstractButton::clicked, this, &SaveDialogView::confirm);
    buttons.append(m_confirm);
    return buttons;
}

QString SaveDialogView::confirmTitle() const
{
    if (m_question)
        return m_question->photos == 1 ? Texts::tr("Make It Agree") : Texts::tr("Make Them Agree");
    return m_single ? Texts::tr("Save") : Texts::tr("Apply to %n Photo(s)", nullptr, m_model.selection().size());
}

void SaveDialogView::confirm()
{
    m_model.confirmSaveDialog();
}

void SaveDialogView::cancel()
{
    m_model.cancelSaveDialog();
}

QWidget* SaveDialogView::initialFocus()
{
    return m_confirm;
}

}  // namespace Quorbel
