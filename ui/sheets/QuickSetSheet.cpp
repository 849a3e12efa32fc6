#include "ui/sheets/QuickSetSheet.h"

#include "app/model/AppModel.h"
#include "app/model/words/QuickKeywords.h"
#include "core/language/Texts.h"
#include "core/schema/KeywordPath.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/Labels.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/keywords/KeywordEditor.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/inspector/InspectorStates.h"
#include "ui/sheets/SheetParts.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal problemHeight = 22;
constexpr int mostCompletions = 16;

// One that was typed with its parents is told from a plain one of its name.
QString shownKeyword(const QString& typed)
{
    const auto path = KeywordPath::fromTyped(typed);
    return path ? KeywordPath::shown(*path) : typed;
}

}  // namespace

QuickSetSheet::QuickSetSheet(AppModel& model, QWidget* parent)
    : SheetBody(parent)
    , m_model(model)
    , m_name(new QBTextField)
    , m_editor(new KeywordEditor)
    , m_problem(new ThemedLabel({}, TextRole::amberText, 11))
    , m_store(new QBButton(Texts::tr("Save"), QBButtonKind::primary))
{
    const QuickKeywords::Edited edited = model.quickKeywords().edited().value_or(QuickKeywords::Edited());
    m_isNew = edited.before.isEmpty();
    m_keywords = edited.set.keywords;
    m_name->setText(edited.set.name);
    m_name->setAccessibleName(Texts::tr("Name of the set"));
    m_name->setPlaceholder(Texts::tr("Name of the set"), false);
    connect(m_name, &QLineEdit::textEdited, this, &QuickSetSheet::show);
    buildKeywords();
    auto* hint = new WrappedLine(TextRole::label, 11, 15);
    hint->setText(Texts::tr("The first nine have the keys Alt+1 to Alt+9."));
    m_problem->setElided(true);
    auto* column = new QVBoxLayout(this);
    stackParts(this, column, { { m_name, 12 }, { m_editor, 8 }, { hint }, { m_problem } });
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(0);
    QList<QBButton*> right = buildButtons();
    if (!m_isNew) {
        auto* remove = new QBButton(Texts::tr("Delete Set"), QBButtonKind::destructive);
        connect(remove, &QAbstractButton::clicked, this, [this] { m_model.quickKeywords().remove(); });
        buttons->addWidget(remove);
    }
    buttons->addLayout(sheetButtonRow(this, right), 1);
    column->addLayout(buttons);
    frameSheet(this, column);
    onRestyle(this, [this] { m_problem->setFixedHeight(px(problemHeight)); });
    show();
}

void QuickSetSheet::buildKeywords()
{
    m_editor->setPlaceholder(Texts::tr("Add keyword + ↵"));
    m_editor->entry()->setAccessibleName(Texts::tr("Keywords of the set"));
    m_editor->setCompletions(
        [this](const QString& typed) { return InspectorStates::keywordSuggestions(m_model, typed, mostCompletions); });
    connect(m_editor, &KeywordEditor::added, this, &QuickSetSheet::add);
    connect(m_editor, &KeywordEditor::removed, this, [this](const QString& shown) {
        m_keywords.removeIf([&shown](const QString& typed) { return shownKeyword(typed) == shown; });
        show();
    });
}

QList<QBButton*> QuickSetSheet::buildButtons()
{
    auto* dismiss = new QBButton(Texts::tr("Cancel"), QBButtonKind::secondary);
    connect(dismiss, &QAbstractButton::clicked, this, &QuickSetSheet::cancel);
    connect(m_store, &QAbstractButton::clicked, this, &QuickSetSheet::confirm);
    return { dismiss, m_store };
}

void QuickSetSheet::add(const QString& typed)
{
    const auto path = KeywordPath::fromTyped(typed);
    const QString keyword = path.value_or(typed);
    if (!m_keywords.contains(keyword))
        m_keywords.append(keyword);
    show();
}

void QuickSetSheet::show()
{
    QStringList shown;
    for (const QString& keyword : std::as_const(m_keywords))
        shown.append(shownKeyword(keyword));
    if (m_editor->chips() != shown)
        m_editor->setChips(shown);
    const std::optional<QString> problem = m_model.quickKeywords().problem(m_name->text());
    // That a name is missing shows.
    setTextOrNothing(*m_problem, m_name->text().isEmpty() ? QString() : problem.value_or(QString()));
    m_name->setAccessibleDescription(m_problem->text());
    m_store->setEnabled(!problem);
}

QString QuickSetSheet::title() const
{
    return m_isNew ? Texts::tr("New Set of Quick Keywords") : Texts::tr("Set of Quick Keywords");
}

void QuickSetSheet::confirm()
{
    if (!m_store->isEnabled())
        return;
    // What stands in the entry was meant to be among them.
    if (const QString typed = m_editor->entry()->text().trimmed(); !typed.isEmpty())
        add(typed);
    m_model.quickKeywords().store({ m_name->text(), m_keywords });
}

void QuickSetSheet::cancel()
{
    m_model.quickKeywords().cancel();
}

QWidget* QuickSetSheet::initialFocus()
{
    return m_isNew ? m_name : static_cast<QWidget*>(m_editor->entry());
}

}  // namespace Quorbel
