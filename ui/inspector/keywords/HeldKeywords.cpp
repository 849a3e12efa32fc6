#include "ui/inspector/keywords/HeldKeywords.h"

#include "app/model/AppModel.h"
#include "core/language/Texts.h"
#include "core/schema/FieldID.h"
#include "core/schema/KeywordPath.h"
#include "ui/controls/WalkedFlow.h"
#include "ui/inspector/keywords/SubRow.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal gap = 2;  // points
constexpr int mostLines = 4;  // before somebody asks for more
constexpr int chipsInThem = 64;  // more than four lines take
constexpr int moreAtOnce = 200;  // each is a widget

}  // namespace

HeldKeywords::HeldKeywords(AppModel& model, QWidget* parent)
    : QObject(parent)
    , m_model(model)
    , m_flow(new WalkedFlow(gap))
    , m_row(new SubRow(m_flow, parent))
    , m_more(new QBTextButton({}, m_flow))
    , m_most(chipsInThem)
{
    m_more->hide();
    connect(m_more, &QAbstractButton::clicked, this, &HeldKeywords::open);
}

QList<QWidget*> HeldKeywords::tabStops() const
{
    return m_flow->tabStops();
}

void HeldKeywords::refresh()
{
    if (m_model.selection() != m_photos) {
        m_photos = m_model.selection();
        m_isOpen = false;
        m_most = chipsInThem;
    }
    int beyond = 0;
    const QList<HeldKeyword> shown = m_model.isBatch() ? wanted(m_most, beyond) : QList<HeldKeyword>();
    m_row->setVisible(!shown.isEmpty());
    //: Stands before keywords. %1: of how many photos.
    m_row->setLabel(Texts::tr("In these %1").arg(m_model.selectedKeywordPhotos()));
    m_flow->setMost(m_isOpen && beyond == 0 ? 0 : m_isOpen ? QWIDGETSIZE_MAX : mostLines, m_more, beyond);
    if (shown == m_shown)
        return;
    m_shown = shown;
    QList<QWidget*> items;
    for (qsizetype i = 0; i < shown.size(); ++i) {
        HeldKeywordChip* chip = chipAt(i);
        chip->setHeld(shown.at(i));
        items.append(chip);
    }
    m_flow->setItems(items);
}

// Those that are added to all stand in the field above; those that are taken away stand here, held or not.
QList<HeldKeyword> HeldKeywords::wanted(int most, int& beyond) const
{
    const QStringList added = m_model.batchLists().value(FieldID::keywords);
    QStringList removed = m_model.batchRemoved().value(FieldID::keywords);
    QList<HeldKeyword> chips;
    int count = 0;
    const auto add = [&](const KeywordCount& found, bool isGone) {
        if (++count <= most)
            chips.append(held(found, isGone));
    };
    for (const KeywordCount& found : m_model.selectedKeywords())
        if (const bool isGone = removed.removeAll(found.keyword) > 0; isGone || !added.contains(found.keyword))
            add(found, isGone);
    for (const QString& keyword : std::as_const(removed))
        add({ keyword, 0 }, true);
    beyond = qMax(0, count - most);
    return chips;
}

HeldKeyword HeldKeywords::held(const KeywordCount& count, bool isGone) const
{
    const int photos = m_model.selectedKeywordPhotos();
    const bool isInAll = count.photos == photos;
    HeldKeyword held{ .keyword = count.keyword };
    held.by = isGone ? HeldKeyword::By::gone : isInAll ? HeldKeyword::By::all : HeldKeyword::By::some;
    if (held.by != HeldKeyword::By::all)
        held.count = Texts::tr("%1 of %2").arg(count.photos).arg(photos);
    //: Said behind a keyword. The numbers are of photos.
    QStringList told{ count.keyword,
        isInAll ? Texts::tr("in all %1").arg(photos) : Texts::tr("in %1 of %2").arg(count.photos).arg(photos) };
    if (isGone)
        //: Said behind a keyword.
        told.append(Texts::tr("to be taken away"));
    held.spoken = told.join(u", "_s);
    QStringList paths = m_model.pathsOf(count.keyword);
    for (QString& path : paths)
        path = KeywordPath::shown(path);
    held.toolTip = paths.join(u'\n');
    return held;
}

HeldKeywordChip* HeldKeywords::chipAt(qsizetype i)
{
    if (i < m_chips.size())
        return m_chips.at(i);
    auto* chip = new HeldKeywordChip(m_flow);
    connect(chip, &QAbstractButton::clicked, this, [this, chip] { choose(chip->held()); });
    connect(chip, &HeldKeywordChip::crossed, this, [this, chip] { cross(chip->held()); });
    m_chips.append(chip);
    return chip;
}

// By value: the chip shows another keyword as soon as the model has changed.
void HeldKeywords::choose(const HeldKeyword& held)
{
    const QString keyword = held.keyword;
    if (held.by == HeldKeyword::By::gone)
        m_model.keepBatchItem(FieldID::keywords, keyword);
    else if (held.by == HeldKeyword::By::some)
        m_model.addBatchListItem(FieldID::keywords, keyword);
}

void HeldKeywords::cross(const HeldKeyword& held)
{
    const QString keyword = held.keyword;
    if (held.by == HeldKeyword::By::gone)
        m_model.keepBatchItem(FieldID::keywords, keyword);
    else
        m_model.takeBatchItemAway(FieldID::keywords, keyword);
}

// All of them; where those would be too many widgets at a time, the next ones.
void HeldKeywords::open()
{
    const int before = int(m_flow->shown().size()) - 1;
    if (m_isOpen || m_most > chipsInThem)
        m_most += moreAtOnce;
    else
        m_most = chipsInThem + moreAtOnce;
    m_isOpen = true;
    refresh();
    m_flow->focusAt(before);
}

}  // namespace Quorbel
