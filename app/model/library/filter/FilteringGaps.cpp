// The way from gap to gap.
#include "app/model/AppModel.h"
#include "app/model/library/filter/Filtering.h"
#include "core/language/Texts.h"

#include <QLocale>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype lookedAtOnce = 24;  // photos, of which nothing is known yet

}  // namespace

void Filtering::setCourse(std::optional<Course> course)
{
    m_course = std::move(course);
    m_awaited.reset();
}

// Where the field stands among those that can be gaps; -1 when it is none.
qsizetype Filtering::placeOf(const QString& field) const
{
    if (m_course)
        return m_course->fields.indexOf(field);
    const QList<Gap>& gaps = Gaps::all();
    const auto found =
        std::find_if(gaps.cbegin(), gaps.cend(), [&field](const Gap& gap) { return gap.field == field; });
    return found == gaps.cend() ? -1 : found - gaps.cbegin();
}

PhotoTraits Filtering::gapsAsked() const
{
    const PhotoTraits filtered = filter().traits & Gaps::traits();
    return filtered ? filtered : Gaps::traits();
}

// Of the one selected photo, as one sees it.
QStringList Filtering::gapsOfDraft() const
{
    QStringList fields;
    const ImageRecord* photo = m_model.primaryRecord();
    if (m_model.isBatch() || !photo || photo->isUnread)
        return fields;
    for (const Gap& gap : Gaps::all()) {
        const bool isEmpty = m_model.isFieldEmpty(gap.field) && m_model.draftLists().value(gap.field).isEmpty();
        if (gapsAsked().testFlag(gap.trait) && isEmpty)
            fields.append(gap.field);
    }
    return fields;
}

// Of all selected photos.
QStringList Filtering::gapsHere() const
{
    return m_course ? m_course->here().gaps : gapsOfDraft();
}

Filtering::Course::Found Filtering::found(int position) const
{
    const auto& primary = m_model.primary();
    const bool isHere = !m_model.isBatch() && primary && m_reach.photos.position(*primary) == position;
    if (m_course)
        return isHere ? m_course->here() : m_course->at(position);
    return { isHere ? gapsOfDraft() : gapsOf(position) };
}

QStringList Filtering::gapsOf(int position) const
{
    QStringList fields;
    const PhotoTraits gaps = m_reach.photos.index().traits(position) & gapsAsked();
    for (const Gap& gap : Gaps::all())
        if (gaps.testFlag(gap.trait))
            fields.append(gap.field);
    return fields;
}

void Filtering::goToGap(Way way)
{
    requireMainThread("goToGap");
    m_awaited.reset();
    const QString field = focusedField ? focusedField() : QString();
    if (goWithinPhoto(field, way))
        return;
    if (m_course && m_model.primary() && !m_course->here().isAll && lookAhead({ *m_model.primary() }, way))
        return;
    const QList<int>& rows = m_model.visibleRows();
    const qsizetype count = rows.size();
    const int at = m_model.primary() ? m_reach.photos.position(*m_model.primary()) : -1;
    const bool isForward = way == Way::next;
    // Row of the photo in front of the first that is looked at.
    qsizetype from = isForward ? -1 : count;
    bool isListed = false;
    if (at >= 0) {
        from = m_reach.photos.rowOf(at);
        isListed = from < count && rows.at(from) == at;
        from -= !isListed && isForward ? 1 : 0;
    }
    QList<QUrl> unknown;  // that lie in front of the next gap
    for (qsizetype step = 1; step <= count; ++step) {
        const qsizetype to = isForward ? from + step : from - step;
        const qsizetype row = (to + count) % count;
        if (m_reach.photos.groups().isFolded(row))
            continue;
        const Course::Found found = this->found(rows.at(row));
        const QStringList& fields = found.gaps;
        if (!found.isAll)
            unknown.append(m_model.records().at(rows.at(row)).url);
        if (unknown.size() == lookedAtOnce && lookAhead(std::exchange(unknown, {}), way))
            return;
        if (fields.isEmpty())
            continue;
        if (lookAhead(unknown, way))
            return;
        const QString note = to == row ? QString()
            : isForward                ? Texts::tr("Started again at the top")
                                       : Texts::tr("Started again at the end");
        return goTo({ m_model.records().at(rows.at(row)).url, isForward ? fields.first() : fields.last(), note });
    }
    if (!lookAhead(unknown, way))
        emit noted(nothingLeft());
}

// Whether one has to wait for what these photos hold. Of some it never comes to be known.
bool Filtering::lookAhead(const QList<QUrl>& photos, Way way)
{
    if (photos.isEmpty() || m_course->require(photos))
        return false;
    m_awaited = way;
    return true;
}

void Filtering::goOn()
{
    if (m_awaited)
        goToGap(*m_awaited);
}

// In the list one stands in front of the photo's first field.
bool Filtering::goWithinPhoto(const QString& field, Way way)
{
    const qsizetype here = placeOf(field);
    QStringList fields = gapsHere();
    fields.removeIf(
        [&](const QString& other) { return way == Way::next ? placeOf(other) <= here : placeOf(other) >= here; });
    if (fields.isEmpty())
        return false;
    emit fieldAsked(way == Way::next ? fields.first() : fields.last());
    return true;
}

// Unsaved edits may be asked about on the way.
void Filtering::goTo(const Goal& goal)
{
    m_goal = goal;
    m_model.tap(goal.photo, false, false);
    reach();
}

void Filtering::reach()
{
    if (!m_goal || m_model.primary() != m_goal->photo || m_model.isBatch())
        return;
    const Goal goal = *std::exchange(m_goal, std::nullopt);
    emit fieldAsked(goal.field);
    if (!goal.note.isEmpty())
        emit noted(goal.note);
}

QString Filtering::nothingLeft() const
{
    const QString unread = QLocale().toString(this->unread());
    return this->unread() == 0 ? Texts::tr("No gaps left") : Texts::tr("No gaps left · %1 not read yet").arg(unread);
}

}  // namespace Quorbel
