#include "app/model/timeshift/TimeShifting.h"

#include "app/model/AppModel.h"
#include "app/model/Background.h"
#include "app/model/pairs/Pairing.h"
#include "app/model/timeshift/ShiftFiles.h"
#include "core/language/Texts.h"
#include "core/save/TagHomes.h"
#include "core/schema/FieldSchema.h"
#include "core/text/StoredTime.h"
#include "core/text/Text.h"
#include "core/text/WallClock.h"
#include "core/text/ZoneOffset.h"

#include <QTimeZone>

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Tags that records show dates from.
const QStringList& shownTags()
{
    static const QStringList tags{ u"EXIF:DateTimeOriginal"_s, u"XMP-photoshop:DateCreated"_s, u"EXIF:CreateDate"_s,
        u"XMP-xmp:CreateDate"_s };
    return tags;
}

// And those of sidecars beside photos.
const QStringList& shownBesideTags()
{
    static const QStringList tags{ u"XMP-exif:DateTimeOriginal"_s, u"XMP-exif:DateTimeDigitized"_s };
    return tags;
}

// A whole number; nothing typed is none of it.
std::optional<qint64> numberIn(const QString& typed)
{
    const QString text = Text::trimmed(typed);
    if (text.isEmpty())
        return 0;
    constexpr qsizetype mostDigits = 7;
    const bool isNumber = text.size() <= mostDigits
        && std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    return isNumber ? std::optional(text.toLongLong()) : std::nullopt;
}

bool hasSeconds(const QString& typed)
{
    return typed.count(u':') >= (typed.contains(u'-') ? 2 : 4);
}

// The stored time that the record shows to the minute.
std::optional<QDateTime> exactClock(const QDateTime& shown, const QList<FileTags>& stored)
{
    for (const FileTags& tags : stored)
        for (const QString& tag : shownTags() + shownBesideTags())
            if (const auto time = StoredTime::from(TagHomes::itemsOf(tag, tags).value(0));
                time && WallClock::shown(time->clock) == WallClock::shown(shown))
                return time->clock;
    return std::nullopt;
}

}  // namespace

TimeShifting::TimeShifting(AppModel& model, Access access)
    : m_model(model)
    , m_access(std::move(access))
{
    connect(&model, &AppModel::selectionChanged, this, &TimeShifting::close);
    connect(&model, &AppModel::photosOpened, this, &TimeShifting::close);
    connect(&model, &AppModel::recordsChanged, this, [this] {
        if (!m_isOpen)
            return;
        takePhotos();
        update();
    });
    connect(&model, &AppModel::isSavingChanged, this, [this] {
        if (m_isOpen)
            emit changed();
    });
}

TimeShifting::~TimeShifting() = default;

void TimeShifting::setPlaceData(const QString& folder)
{
    m_zones = TimeZones::open(folder);
}

bool TimeShifting::isPossible() const
{
    return m_access.service && m_lookTask == 0 && !m_model.isSaving() && !m_model.selection().isEmpty();
}

void TimeShifting::request()
{
    if (!isPossible() || m_isOpen || m_model.saveOpen())
        return;
    if (m_model.unsavedCount() > 0)
        return m_access.holdBack([this] { request(); });
    open();
}

void TimeShifting::open()
{
    m_isOpen = true;
    ++m_opened;
    m_exact.clear();
    m_asked.clear();
    m_answered.clear();
    m_preview = {};
    m_isZoneChosen = false;
    m_zone = { .id = QTimeZone::systemTimeZoneId() };
    takePhotos();
    m_knownPhoto = likelyKnown();
    m_knownTime.clear();
    QList<QUrl> unread;
    for (const ShiftPhoto& photo : std::as_const(m_photos))
        if (const ImageRecord* record = m_model.record(photo.url); record && record->isUnread)
            unread.append(photo.url);
    if (!unread.isEmpty())
        m_access.require(unread);
    emit openChanged();
    update();
}

// The primary photo, or else the first one that has a date.
QUrl TimeShifting::likelyKnown() const
{
    const auto isDated = [](const ShiftPhoto& photo) { return ShiftPreview::clockOf(photo.values).has_value(); };
    const QUrl primary = m_model.primary().value_or(QUrl());
    const ImageRecord* record = m_model.record(primary);
    if (record && ShiftPreview::clockOf(record->values))
        return primary;
    const auto dated = std::find_if(m_photos.cbegin(), m_photos.cend(), isDated);
    return dated == m_photos.cend() ? primary : dated->url;
}

void TimeShifting::close()
{
    if (!std::exchange(m_isOpen, false))
        return;
    m_photos.clear();
    m_preview = {};
    emit openChanged();
}

// What was read of them is shared, not copied.
void TimeShifting::takePhotos()
{
    m_photos.clear();
    for (const int row : m_model.selectedRows()) {
        const ImageRecord& record = m_model.records().at(row);
        m_photos.append({ record.url, record.values });
    }
}

int TimeShifting::unread() const
{
    return m_model.unreadSelected();
}

template <typename T>
void TimeShifting::assign(T& member, const T& value)
{
    if (member == value)
        return;
    member = value;
    update();
}

void TimeShifting::setWay(Way way)
{
    assign(m_way, way);
}

void TimeShifting::setAmount(const Amount& amount)
{
    assign(m_amount, amount);
}

void TimeShifting::setKnownPhoto(const QUrl& photo)
{
    if (photo != m_knownPhoto)
        m_knownTime.clear();
    assign(m_knownPhoto, photo);
}

QString TimeShifting::knownClock() const
{
    const auto known = m_exact.constFind(m_knownPhoto);
    if (known != m_exact.cend())
        return known->toString(u"yyyy-MM-dd HH:mm:ss"_s);
    const ImageRecord* record = m_model.record(m_knownPhoto);
    const auto clock = record ? ShiftPreview::clockOf(record->values) : std::nullopt;
    return clock ? WallClock::shown(*clock) : QString();
}

void TimeShifting::setKnownTime(const QString& typed)
{
    assign(m_knownTime, typed);
}

void TimeShifting::setZone(const ShiftZone& zone)
{
    m_isZoneChosen = true;
    assign(m_zone, zone);
}

void TimeShifting::setKeepsClock(bool on)
{
    assign(m_keepsClock, on);
}

QString TimeShifting::zoneName(const ShiftZone& zone) const
{
    if (zone.isOwn)
        return Texts::tr("Each photo’s own");
    if (zone.id.isEmpty())
        return zone.minutes ? ZoneOffset::text(*zone.minutes) : QString();
    const QDateTime when = m_preview.first.isValid() ? m_preview.first : m_model.now();
    const auto offset = TimeZones::offset(zone.id, when);
    QString town = QString::fromLatin1(zone.id).section(u'/', -1).replace(u'_', u' ');
    if (m_zones)
        for (const TimeZone& known : m_zones->all())
            if (known.id == zone.id)
                town = known.town;
    return offset ? ZoneOffset::text(*offset) + u' ' + town : town;
}

QList<std::pair<QString, ShiftZone>> TimeShifting::zoneChoices() const
{
    QList<std::pair<QString, ShiftZone>> choices;
    if (!m_zones) {
        for (const QString& offset : FieldSchema::timeZoneOffsets())
            choices.append({ offset, { .minutes = ZoneOffset::minutes(offset) } });
        return choices;
    }
    const QDateTime when = m_preview.first.isValid() ? m_preview.first : m_model.now();
    QMap<std::pair<int, QString>, std::pair<QString, ShiftZone>> sorted;
    for (const TimeZone& zone : m_zones->all())
        if (const auto offset = TimeZones::offset(zone.id, when))
            sorted.insert({ *offset, zone.town }, { ZoneOffset::text(*offset) + u' ' + zone.town, { .id = zone.id } });
    choices.append({ Texts::tr("Each photo’s own"), { .isOwn = true } });
    return choices + sorted.values();
}

std::optional<qint64> TimeShifting::seconds() const
{
    if (m_way == Way::amount) {
        const auto days = numberIn(m_amount.days);
        const auto hours = numberIn(m_amount.hours);
        const auto minutes = numberIn(m_amount.minutes);
        const auto seconds = numberIn(m_amount.seconds);
        if (!days || !hours || !minutes || !seconds)
            return std::nullopt;
        const qint64 all = ((*days * 24 + *hours) * 60 + *minutes) * 60 + *seconds;
        return all > TimeShift::mostSeconds ? std::nullopt : std::optional(m_amount.isEarlier ? -all : all);
    }
    const auto typed = WallClock::fromTyped(Text::trimmed(m_knownTime));
    const auto clock = WallClock::fromTyped(knownClock());
    if (m_way == Way::zone || !typed || !clock)
        return std::nullopt;
    // Who types no seconds does not mean that there were none.
    const qint64 own = hasSeconds(m_knownTime) ? 0 : clock->time().second();
    const qint64 all = clock->secsTo(*typed) + own;
    return std::abs(all) > TimeShift::mostSeconds ? std::nullopt : std::optional(all);
}

QString TimeShifting::problem() const
{
    if (m_way == Way::zone || seconds())
        return {};
    if (m_way == Way::amount)
        return Texts::tr("Whole numbers, of a hundred years at most.");
    if (knownClock().isEmpty())
        return Texts::tr("This photo has no date: choose another one.");
    return Text::trimmed(m_knownTime).isEmpty() ? QString() : Texts::tr("Not a date: YYYY-MM-DD HH:MM:SS");
}

ShiftQuestion TimeShifting::question() const
{
    ShiftQuestion question{ .seconds = seconds().value_or(0), .keepsClock = m_keepsClock, .exact = m_exact };
    if (m_way == Way::zone)
        question.zone = m_zone;
    question.zones = m_zones;
    return question;
}

// One at a time: what was typed meanwhile is computed next.
void TimeShifting::update()
{
    if (!m_isOpen)
        return;
    m_isStale = true;
    emit changed();
    if (m_isComputing)
        return;
    m_isComputing = true;
    m_isStale = false;
    runInBackground(
        this, [photos = m_photos, question = question()] { return ShiftPreview::of(photos, question); },
        [this, opened = m_opened](const ShiftPreview& preview) {
            m_isComputing = false;
            if (!m_isOpen)
                return;
            if (opened != m_opened || m_isStale)
                return update();
            m_preview = preview;
            chooseZone();
            readExact();
            emit changed();
        });
}

// Until the user chooses one, the zone is that of most positions.
void TimeShifting::chooseZone()
{
    if (m_isZoneChosen || m_preview.mostZone.isEmpty() || m_preview.mostZone == m_zone.id)
        return;
    assign(m_zone, ShiftZone{ .id = m_preview.mostZone });
}

// Records show times to the minute: of the few photos that are shown here the seconds count.
void TimeShifting::readExact()
{
    QList<QUrl> wanted{ m_knownPhoto };
    for (const ShiftPreview::Row& row : std::as_const(m_preview.rows))
        wanted.append(row.photo);
    wanted.removeIf([this](const QUrl& photo) {
        const ImageRecord* record = m_model.record(photo);
        return !record || record->isUnread || m_asked.contains(photo);
    });
    if (wanted.isEmpty() || !m_access.service)
        return;
    m_asked.unite(QSet<QUrl>(wanted.cbegin(), wanted.cend()));
    runInBackground(
        this,
        [service = *m_access.service, wanted] {
            try {
                const ShiftFiles files(service.sidecars, wanted);
                const QStringList beside = files.areAnyBeside() ? shownBesideTags() : QStringList();
                return files.stored(service.runner, shownTags() + beside);
            } catch (const std::exception&) {
                return QHash<QUrl, QList<FileTags>>();  // then the minute has to do
            }
        },
        [this, wanted, opened = m_opened](const QHash<QUrl, QList<FileTags>>& stored) {
            if (!m_isOpen || opened != m_opened)
                return;
            m_answered.unite(QSet<QUrl>(wanted.cbegin(), wanted.cend()));
            for (auto it = stored.cbegin(); it != stored.cend(); ++it) {
                const ImageRecord* record = m_model.record(it.key());
                const auto shown = record ? ShiftPreview::clockOf(record->values) : std::nullopt;
                if (const auto exact = shown ? exactClock(*shown, *it) : std::nullopt)
                    m_exact.insert(it.key(), *exact);
            }
            update();
        });
}

bool TimeShifting::canShift() const
{
    // To the second only once the photo's own are known.
    const bool isKnown = m_way != Way::knownPhoto || m_answered.contains(m_knownPhoto);
    const bool isAsked = m_way == Way::zone || (isKnown && seconds().value_or(0) != 0);
    return m_isOpen && isAsked && !m_isStale && !m_isComputing && !m_preview.targets.isEmpty() && unread() == 0
        && isPossible();
}

void TimeShifting::shift()
{
    if (!canShift())
        return;
    const Preferences& preferences = m_model.preferences();
    const Pairing& pairing = m_model.pairing();
    const QList<QUrl> files = pairing.filesOf(m_preview.targets);
    ShiftJob::Order order{ files, m_preview.shifts,
        { preferences.backupOriginals(), preferences.writeSidecar(), {}, pairing.picturesAmong(files) } };
    for (const QUrl& file : files)
        if (const QUrl photo = pairing.photoOf(file); photo != file)
            order.shifts.insert(file, TimeShift(order.shifts.value(photo)));
    close();
    look(order);
}

// Not a save yet: it can be given up.
void TimeShifting::look(const ShiftJob::Order& order)
{
    const RunningTasks::Task task =
        m_access.tasks.begin(RunningTasks::Kind::check, order.targets.size(), order.targets);
    m_lookTask = task.id;
    runInBackground(
        this,
        [service = *m_access.service, order, progress = task.progress, stop = task.stop.get_token()] {
            return ShiftJob::look(service, order, *progress, stop);
        },
        [this, order, id = task.id](const ShiftJob::Looked& looked) {
            m_lookTask = 0;
            // The save begins in the same breath: no observer sees a pause.
            const Announcer::Together together(m_access.announcer);
            const std::optional<RunningTasks::Task> ended = m_access.tasks.end(id);
            takeLooked(order, looked, ended ? ended->skipped : std::nullopt);
        });
}

void TimeShifting::takeLooked(ShiftJob::Order order, const ShiftJob::Looked& looked, const std::optional<QUrl>& skipped)
{
    if (skipped) {
        order.targets.removeAll(*skipped);
        order.shifts.remove(*skipped);
        if (!order.targets.isEmpty())
            return look(order);
    }
    if (looked.error)
        return m_model.setErrorMessage(Texts::tr("Could not read metadata: %1").arg(*looked.error));
    // Of another file, the times on screen may have been other ones.
    if (m_access.service && looked.sidecars != m_access.service->sidecars)
        return m_model.setErrorMessage(
            Texts::tr("Could not shift the time: where edits of raw files go was changed in the settings meanwhile"));
    // What was closed meanwhile is not meant any more.
    order.targets.removeIf([this](const QUrl& photo) { return !m_model.record(photo); });
    if (!looked.isCancelled && !m_model.isSaving() && !order.targets.isEmpty())
        m_access.shift(order, looked);
}

void TimeShifting::cancel()
{
    if (m_lookTask != 0)
        m_access.tasks.stop(m_lookTask);
}

}  // namespace Quorbel
