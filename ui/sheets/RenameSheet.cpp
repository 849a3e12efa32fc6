#include "ui/sheets/RenameSheet.h"

#include "app/model/AppModel.h"
#include "core/language/Texts.h"
#include "core/text/FileNaming.h"
#include "core/text/Text.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/Labels.h"
#include "ui/controls/TextFields.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/sheets/SheetParts.h"
#include "ui/sheets/TokenFlow.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal renameWidth = 440;
constexpr qreal buttonsAbove = 22;

}  // namespace

RenameSheet::RenameSheet(AppModel& model, QWidget* parent)
    : SheetBody(parent)
    , m_model(model)
    , m_pattern(new QBTextField)
    , m_preview(new WrappedLine(TextRole::text, 12, 17))
    , m_problem(new ThemedLabel({}, TextRole::amberText, 11))
    , m_rename(new QBButton(Texts::tr("Rename"), QBButtonKind::primary))
{
    m_pattern->setMono(true);
    m_pattern->setPlaceholder(u"%Date%_%Title%"_s);
    m_pattern->setAccessibleName(Texts::tr("Pattern"));
    m_preview->setMono(true);
    m_preview->setVerbatim(true);
    m_preview->setBreaksAnywhere(true);
    auto* hint = new WrappedLine(TextRole::muted, 11.5, 16);
    hint->setText(Texts::tr("Click a field to insert it. The extension is kept automatically."));
    auto* dismiss = new QBButton(Texts::tr("Cancel"), QBButtonKind::secondary);
    connect(dismiss, &QAbstractButton::clicked, this, &RenameSheet::cancel);
    connect(m_rename, &QAbstractButton::clicked, this, &RenameSheet::confirm);
    auto* column = new QVBoxLayout(this);
    stackParts(this, column,
        { { m_pattern, 12 }, { buildTokens(), 12 }, { hint, 18 },
            { new LabeledDivider(Texts::tr("Preview", "noun")), 10 }, { m_preview }, { m_problem } });
    column->addLayout(sheetButtonRow(this, { dismiss, m_rename }));
    frameSheet(this, column, renameWidth);
    m_problem->setElided(true);
    m_problem->setVerbatim(true);
    m_problem->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // The line stands in the gap above the buttons: nothing moves when it appears.
    onRestyle(this, [this] { m_problem->setFixedHeight(px(buttonsAbove)); });
    connectModel();
    refresh();
}

QWidget* RenameSheet::buildTokens()
{
    auto* flow = new TokenFlow;
    for (const FileNaming::Token& token : FileNaming::tokens())
        flow->add(Texts::shown(token.label), token.placeholder,
            [this, placeholder = token.placeholder] { m_model.insertRenameToken(placeholder); });
    return flow;
}

void RenameSheet::connectModel()
{
    connect(m_pattern, &QLineEdit::textEdited, &m_model,
        [this](const QString& text) { m_model.preferences().renamePattern.set(text); });
    connect(&m_model.preferences(), &Preferences::changed, this, &RenameSheet::refresh);
    for (const auto changed : { &AppModel::editsChanged, &AppModel::recordsChanged, &AppModel::renamePreviewChanged })
        connect(&m_model, changed, this, &RenameSheet::refresh);
}

void RenameSheet::refresh()
{
    m_pattern->setBoundText(m_model.preferences().renamePattern());
    m_preview->setText(m_model.renamePreview());
    const std::optional<QString> problem = m_model.renameProblem();
    setTextOrNothing(*m_problem, problem.value_or(QString()));
    m_pattern->setAccessibleDescription(problem.value_or(QString()));
    // An empty pattern would name the photo "untitled": hardly what anybody wants.
    m_rename->setEnabled(
        m_model.canRename() && !problem && !Text::trimmed(m_model.preferences().renamePattern()).isEmpty());
}

QString RenameSheet::title() const
{
    return Texts::tr("Rename File");
}

void RenameSheet::confirm()
{
    if (!m_rename->isEnabled())
        return;
    m_model.performRename();
    m_model.setRenameOpen(false);
}

void RenameSheet::cancel()
{
    m_model.setRenameOpen(false);
}

QWidget* RenameSheet::initialFocus()
{
    return m_pattern;
}

}  // namespace Quorbel
