#include "app/model/library/filter/Filtering.h"

#include "app/model/AppModel.h"
#include "app/model/pairs/Pairing.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto typingRest = 120ms;  // between the last key and the look at all photos
constexpr auto lookBudget = 8ms;  // of one slice of it
constexpr int mostStars = 5;

// Such as one sees; `disagreement` is counted elsewhere.
QList<PhotoTrait> countedTraits()
{
    QList<PhotoTrait> traits;
    for (const Gap& gap : Gaps::all())
        traits.append(gap.trait);
    return traits
        + QList<PhotoTrait>{ PhotoTrait::unrated, PhotoTrait::edited, PhotoTrait::changed, PhotoTrait::disagreement,
              PhotoTrait::unread };
}

}  // namespace

Filtering::Filtering(AppModel& model, Reach reach)
    : m_model(model)
    , m_reach(std::move(reach))
{
    for (QTimer* timer : { &m_settle, &m_typed, &m_look })
        timer->setSingleShot(true);
    m_typed.setInterval(typingRest);
    connect(&m_settle, &QTimer::timeout, this, &Filtering::settle);
    connect(&m_typed, &QTimer::timeout, this, [this] {
        m_reach.photos.find(m_text.trimmed());
        look();
    });
    connect(&m_look, &QTimer::timeout, this, &Filtering::look);
    connectModel();
    m_toldCounts = counts();
}

Filtering::~Filtering() = default;

// What follows from a change is decided when all of it is known: an action that waited for a save goes first.
void Filtering::connectModel()
{
    for (const auto signal : { &AppModel::recordsChanged, &AppModel::visibleRowsChanged, &AppModel::selectionChanged,
             &AppModel::unsavedCountChanged, &AppModel::leftEditsChanged, &AppModel::disagreementsChanged,
             &AppModel::saveOpenChanged, &AppModel::isSavingChanged })
        connect(&m_model, signal, &m_settle, [this] { m_settle.start(0); });
    connect(&m_model, &AppModel::photosOpened, this, [this] {
        forget();
        settle();
        tell();
    });
    connect(&m_model, &AppModel::primaryChanged, this, [this] {
        m_awaited.reset();
        reach();
    });
    connect(&m_model, &AppModel::detailsChanged, this, &Filtering::goOn);
}

// Of what is not open any more.
void Filtering::forget()
{
    m_text.clear();
    m_typed.stop();
    m_look.stop();
    m_left.reset();
    m_goal.reset();
    m_awaited.reset();
    m_hasUnsaved = false;
}

// --- What is asked for ---

const PhotoFilter& Filtering::filter() const
{
    return m_reach.photos.filter();
}

bool Filtering::isOn(PhotoTrait trait) const
{
    return filter().traits.testFlag(trait);
}

void Filtering::setOn(PhotoTrait trait, bool on)
{
    requireMainThread("setOn");
    if (trait == PhotoTrait::disagreement)
        m_model.setShowDisagreements(on);
    else
        m_reach.photos.setWanted(PhotoTraits(filter().traits).setFlag(trait, on));
    follow(true);
    tell();
}

void Filtering::setLeastStars(int stars)
{
    requireMainThread("setLeastStars");
    m_reach.photos.setWanted(filter().traits, qBound(0, stars, mostStars));
    follow(true);
    tell();
}

void Filtering::setText(const QString& text)
{
    requireMainThread("setText");
    if (text == m_text)
        return;
    m_text = text;
    m_typed.start();
    tell();
}

void Filtering::look()
{
    m_reach.photos.findOn(lookBudget);
    if (m_reach.photos.isFinding())
        return m_look.start(0);
    follow(true);
    tell();
}

void Filtering::clear()
{
    requireMainThread("clear");
    m_text.clear();
    m_typed.stop();
    m_look.stop();
    if (isOn(PhotoTrait::disagreement))
        m_model.setShowDisagreements(false);
    m_reach.photos.setWanted({}, 0);
    if (!filter().text.isEmpty() || m_reach.photos.isFinding())
        m_reach.photos.find({});
    follow(true);
    tell();
}

int Filtering::count(PhotoTrait trait) const
{
    if (trait == PhotoTrait::disagreement)
        return int(m_model.disagreements().photos);
    return m_reach.photos.index().count(trait);
}

int Filtering::countOfStars(int least) const
{
    return m_reach.photos.index().countOfStars(least);
}

Filtering::Counts Filtering::counts() const
{
    Counts counts;
    for (const PhotoTrait trait : countedTraits())
        counts.traits.append(count(trait));
    for (int stars = 1; stars <= mostStars; ++stars)
        counts.stars.append(countOfStars(stars));
    return counts;
}

void Filtering::tell()
{
    PhotoFilter now = filter();
    now.needle.clear();
    const bool isOther = now != std::exchange(m_told, now);
    if (m_text != std::exchange(m_toldText, m_text) || isOther)
        emit changed();
    Counts counted = counts();
    if (counted == m_toldCounts)
        return;
    m_toldCounts = std::move(counted);
    emit countsChanged();
}

// --- What is edited stays listed ---

void Filtering::settle()
{
    if (m_model.records().isEmpty())
        forget();
    if (m_model.isHoldingBack() || m_model.saveOpen())
        return;
    if (m_goal && m_goal->photo != m_model.primary())
        m_goal.reset();
    markEdited();
    m_model.pairing().follow();
    follow(false);
    tell();
}

void Filtering::markEdited()
{
    PhotoList& photos = m_reach.photos;
    const bool hasUnsaved = m_model.unsavedCount() > 0;
    if (hasUnsaved || m_hasUnsaved)
        photos.setOnly(PhotoTrait::held, hasUnsaved ? m_model.selectedRows() : QList<int>());
    m_hasUnsaved = hasUnsaved;
    QList<int> edited = hasUnsaved ? positionsOfUnsaved() : QList<int>();
    for (const LeftEdits& left : m_model.leftEdits())
        for (const QUrl& photo : left.edits.subjects)
            if (const int at = photos.position(m_model.pairing().photoOf(photo)); at >= 0)
                edited.append(at);
    if (!edited.isEmpty() || photos.index().count(PhotoTrait::edited) > 0)
        photos.setOnly(PhotoTrait::edited, edited);
}

// Edits that differ from photo to photo may concern only some of those selected.
QList<int> Filtering::positionsOfUnsaved() const
{
    Edits edits = m_reach.unsaved();
    const QHash<QUrl, OwnEdits> own = std::exchange(edits.own, {});
    if (own.isEmpty() || !edits.isEmpty())
        return m_model.selectedRows();
    QList<int> positions;
    for (auto photo = own.keyBegin(); photo != own.keyEnd(); ++photo)
        if (const int at = m_reach.photos.position(*photo); at >= 0)
            positions.append(at);
    return positions;
}

// --- The selection follows the list ---

// Whether a selected photo is in the list no more.
bool Filtering::mustLeave(bool isAsked) const
{
    const RecordIndex& index = m_reach.photos.index();
    const QList<int>& rows = m_model.selectedRows();
    return isOn() && std::any_of(rows.cbegin(), rows.cend(), [&](int row) {
        return isAsked ? !index.passes(row, filter()) : !index.isListed(row, filter());
    });
}

// `isAsked`: the user wants another list, and is asked about the edits of photos that are not in it.
void Filtering::follow(bool isAsked)
{
    if (isAsked)
        markEdited();
    if (!mustLeave(isAsked))
        return returnToList();
    // What is half typed is an edit, too.
    const QString field = focusedField ? focusedField() : QString();
    if (m_reach.endEditing)
        m_reach.endEditing();
    if (m_model.unsavedCount() == 0)
        leave();
    else if (isAsked && !m_model.isHoldingBack())
        m_reach.ask([this] { settle(); });
    if (!field.isEmpty())
        emit fieldAsked(field);
}

void Filtering::leave()
{
    const std::optional<QUrl> primary = m_model.primary();
    const auto next = primary ? m_reach.photos.shownNear(*primary) : std::nullopt;
    Selection rest;
    rest.photos.reserve(m_model.selectedRows().size());
    for (const int row : m_model.selectedRows())
        if (m_reach.photos.index().isListed(row, filter()))
            rest.photos.insert(m_model.records().at(row).url);
    if (rest.photos.isEmpty()) {
        m_left = next ? std::nullopt : primary;
        return m_reach.select(next ? Selection::of(*next) : Selection());
    }
    rest.primary = primary;
    if (!primary || !rest.photos.contains(*primary))
        rest.primary = next && rest.photos.contains(*next) ? next : rest.nearestStaying(m_reach.photos, {});
    if (!rest.primary)
        rest.primary = *rest.photos.cbegin();  // the search hides all of them
    m_reach.select(rest);
}

// Nothing was left to be selected, and now there is something.
void Filtering::returnToList()
{
    if (!m_left)
        return;
    if (!m_model.selection().isEmpty())
        return m_left.reset();
    if (const auto next = m_reach.photos.shownNear(*m_left)) {
        m_left.reset();
        m_reach.select(Selection::of(*next));
    }
}

}  // namespace Quorbel
