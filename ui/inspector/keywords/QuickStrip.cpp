#include "ui/inspector/keywords/QuickStrip.h"

#include "app/model/AppModel.h"
#include "app/model/words/QuickKeywords.h"
#include "core/language/Texts.h"
#include "core/schema/KeywordPath.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/WalkedFlow.h"
#include "ui/inspector/keywords/QuickSetMenu.h"
#include "ui/inspector/keywords/SubRow.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {
constexpr qreal gap = 4;  // points
}

QuickStrip::QuickStrip(AppModel& model, QWidget* parent)
    : QObject(parent)
    , m_model(model)
    , m_flow(new WalkedFlow(gap))
    , m_row(new SubRow(m_flow, parent))
    , m_set(new QBTextButton({}, m_flow))
{
    //: Stands before keywords that a click adds.
    m_row->setLabel(Texts::tr("Quick"));
    m_flow->setAccessibleName(Texts::tr("Quick keywords"));
    m_set->setTrailingIcon(u"chevron.up.chevron.down"_s);
    connect(m_set, &QAbstractButton::clicked, this, &QuickStrip::openMenu);
}

QList<QWidget*> QuickStrip::tabStops() const
{
    return m_flow->tabStops();
}

void QuickStrip::refresh()
{
    const QuickKeywords& quick = m_model.quickKeywords();
    const QStringList keywords = quick.keywords();
    QList<QWidget*> items;
    for (int i = 0; i < int(keywords.size()); ++i) {
        TokenChip* chip = chipAt(i);
        const bool hasKey = i < QuickKeywords::withKeys;
        const QString key =
            QKeySequence(QKeyCombination(Qt::ALT, Qt::Key(Qt::Key_1 + i))).toString(QKeySequence::NativeText);
        const auto path = KeywordPath::fromTyped(keywords.at(i));
        const QString text = path ? KeywordPath::keyword(*path) : keywords.at(i);
        QStringList told;
        if (path)
            told.append(KeywordPath::shown(*path));
        if (hasKey)
            told.append(key);
        chip->setText(text);
        chip->setKeyHint(hasKey ? QString::number(i + 1) : QString());
        chip->setToolTip(told.join(u'\n'));
        //: Adds a keyword to all photos. %1: the keyword, %2: keys that do the same.
        chip->setAccessibleName(
            hasKey ? Texts::tr("Add %1 to all, %2").arg(text, key) : Texts::tr("Add %1 to all").arg(text));
        items.append(chip);
    }
    const QString set = quick.current().isEmpty() ? Texts::tr("Last used") : quick.current();
    m_set->setText(set);
    //: %1: name of the set.
    m_set->setAccessibleName(Texts::tr("Set of quick keywords: %1").arg(set));
    items.append(m_set);
    m_flow->setItems(items);
}

TokenChip* QuickStrip::chipAt(int i)
{
    if (i < m_chips.size())
        return m_chips.at(i);
    auto* chip = new TokenChip({}, m_flow);
    connect(chip, &QAbstractButton::clicked, this, [this, i] { m_model.quickKeywords().give(i); });
    m_chips.append(chip);
    return chip;
}

void QuickStrip::openMenu()
{
    auto* menu = new ThemedMenu(m_set);
    addQuickSets(*menu, m_model.quickKeywords());
    menu->popUpUnder(m_set, Qt::AlignLeft, true);
}

}  // namespace Quorbel
