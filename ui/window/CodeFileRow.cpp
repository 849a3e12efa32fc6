#include "ui/window/CodeFileRow.h"

#include "app/model/words/CodeReplacements.h"
#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FormLabels.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString countText(int codes)
{
    if (codes == 0)
        return Texts::tr("There are no codes in this file.");
    return Texts::tr("%n code(s).", nullptr, codes);
}

}  // namespace

CodeFileRow::CodeFileRow(CodeReplacements& codes, QWidget* parent)
    : QWidget(parent)
    , m_codes(codes)
    , m_name(new ThemedLabel)
    , m_choose(new QBButton(Texts::tr("Choose…")))
    , m_clear(new QBButton(Texts::tr("Clear", "button: no file is used any more")))
    , m_column(new QVBoxLayout(this))
{
    m_name->setElided(true);
    m_name->setVerbatim(true);
    m_choose->setAccessibleDescription(Texts::tr("Choose the file of codes"));
    m_clear->setAccessibleDescription(Texts::tr("Use no file of codes"));
    auto* line = new QHBoxLayout;
    line->addWidget(m_name, 1);
    line->addWidget(m_choose);
    line->addWidget(m_clear);
    auto* help = new WrappedLine(TextRole::label, 11.5, 16);
    help->setText(
        Texts::tr("A text file with a code, a tab and its text in each line. Type =js= in a text or keyword, and js "
                  "becomes its text at the second “=”; one Undo gives the code back."));
    m_column->addLayout(line);
    m_column->addWidget(help);
    onRestyle(this, [this, line] {
        m_column->setContentsMargins(mirrored(QMargins(px(14), px(7), px(12), px(10))));
        m_column->setSpacing(px(4));
        line->setSpacing(px(8));
    });
    connect(m_choose, &QAbstractButton::clicked, &m_codes, &CodeReplacements::choose);
    connect(m_clear, &QAbstractButton::clicked, &m_codes, [this] { m_codes.setFile({}); });
    connect(&m_codes, &CodeReplacements::changed, this, &CodeFileRow::refresh);
    m_codes.look();
    refresh();
}

// The first is the number of codes, or why there are none.
QStringList CodeFileRow::states() const
{
    if (m_codes.file().isEmpty() || !m_codes.isKnown())
        return {};
    return m_codes.problem().isEmpty() ? QStringList(countText(m_codes.count())) + m_codes.notes()
                                       : QStringList(m_codes.problem());
}

void CodeFileRow::refresh()
{
    const QString path = m_codes.file();
    m_name->setText(path.isEmpty() ? Texts::tr("No file") : path.mid(path.lastIndexOf(u'/') + 1));
    m_name->setAccessibleDescription(path);
    m_clear->setEnabled(!path.isEmpty());
    const QStringList states = this->states();
    while (m_states.size() < states.size()) {
        auto* line = new WrappedLine(TextRole::label, 11.5, 16);
        line->setVerbatim(true);
        m_column->insertWidget(int(m_states.size()) + 1, line);
        m_states.append(line);
    }
    for (int i = 0; i < int(m_states.size()); ++i) {
        const bool isGood = i == 0 && m_codes.count() > 0;
        m_states.at(i)->setText(states.value(i));
        m_states.at(i)->setRole(isGood ? TextRole::label : TextRole::amberText);
        m_states.at(i)->setVisible(i < int(states.size()));
    }
}

}  // namespace Quorbel
