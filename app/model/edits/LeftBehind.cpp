#include "app/model/edits/LeftBehind.h"

#include "app/model/Background.h"

#include <QDateTime>

namespace Quorbel {

namespace {

// What stands is written at least once in so many rests, however fast somebody types.
constexpr int mostRests = 5;

QSet<QUrl> setOf(const QList<QUrl>& urls)
{
    return QSet<QUrl>(urls.cbegin(), urls.cend());
}

std::optional<LeftNotice> noticeOf(const LeftEdits& left)
{
    return LeftNotice{ left.edits.count(), int(left.edits.subjects.size()) };
}

}  // namespace

LeftBehind::LeftBehind(Announcer& announcer, const QString& path, std::chrono::milliseconds rest)
    : m_announcer(announcer)
    , m_interval(rest)
{
    m_rest.setSingleShot(true);
    m_longest.setSingleShot(true);
    m_longest.setInterval(rest * mostRests);
    for (QTimer* timer : { &m_rest, &m_longest })
        connect(timer, &QTimer::timeout, this, &LeftBehind::write);
    if (path.isEmpty())
        return;
    m_file = std::make_shared<LeftEditsFile>(path);
    look();
}

LeftBehind::~LeftBehind()
{
    if (m_file)
        m_file->close();
}

// What earlier starts left. The disk may be slow.
void LeftBehind::look()
{
    runInBackground(
        this, [file = m_file] { return file->found(); },
        [this](const QList<LeftEdits>& found) {
            const Announcer::Together together(m_announcer);
            takeFound(found);
        });
}

void LeftBehind::takeFound(const QList<LeftEdits>& found)
{
    if (std::exchange(m_hasFound, true) || found.isEmpty())
        return;
    const bool isFirst = m_kept.isEmpty();
    m_kept.append(found);
    if (m_kept.size() > LeftEditsList::limit)
        m_kept.resize(LeftEditsList::limit);
    m_announcer.announce(Change::leftEdits);
    if (isFirst)
        m_announcer.assign(m_notice, noticeOf(m_kept.constFirst()), Change::leftEdits);
}

void LeftBehind::keep(LeftEdits left)
{
    if (left.edits.isEmpty() || left.edits.subjects.isEmpty())
        return;
    left.leftAt = QDateTime::currentMSecsSinceEpoch();
    LeftEditsList::keep(m_kept, left);
    changed(noticeOf(left));
}

void LeftBehind::forget(const LeftEdits& left)
{
    if (m_kept.removeIf([&left](const LeftEdits& other) { return other.edits == left.edits; }) > 0)
        changed(std::nullopt);
}

std::optional<LeftEdits> LeftBehind::takeReturning(const QSet<QUrl>& photos)
{
    for (qsizetype i = 0; i < m_kept.size(); ++i) {
        if (!m_kept.at(i).returns || setOf(m_kept.at(i).edits.subjects) != photos)
            continue;
        const LeftEdits left = m_kept.takeAt(i);
        changed(std::nullopt);
        return left;
    }
    return std::nullopt;
}

void LeftBehind::stopReturning()
{
    for (LeftEdits& left : m_kept)
        left.returns = false;
}

void LeftBehind::rename(const NewNames& names)
{
    // What stands is asked for when the file is written.
    writeSoon();
    const QList<LeftEdits> before = m_kept;
    for (LeftEdits& left : m_kept) {
        left.edits.subjects = names.of(left.edits.subjects);
        left.edits.own = names.of(left.edits.own);
    }
    m_kept.removeIf([](const LeftEdits& left) { return left.edits.subjects.isEmpty(); });
    if (m_kept != before)
        changed(m_notice);
}

void LeftBehind::noteStanding(bool isEdit)
{
    if (isEdit)
        m_announcer.assign(m_notice, std::nullopt, Change::leftEdits);
    writeSoon();
}

// What was left behind is written at once: nobody types it again.
void LeftBehind::changed(const std::optional<LeftNotice>& notice)
{
    m_notice = notice;
    m_announcer.announce(Change::leftEdits);
    if (m_file)
        m_rest.start(0);
}

void LeftBehind::writeSoon()
{
    if (!m_file)
        return;
    m_rest.start(m_interval);
    if (!m_longest.isActive())
        m_longest.start();
}

void LeftBehind::write()
{
    m_rest.stop();
    m_longest.stop();
    // Not before it is known what the file holds.
    if (!m_hasFound)
        return writeSoon();
    runInBackground(
        this, [file = m_file, list = everything(), serial = ++m_serial] { return file->store(list, serial); },
        [](bool) {});
}

bool LeftBehind::flush()
{
    if (!m_file)
        return false;
    m_rest.stop();
    m_longest.stop();
    const Announcer::Together together(m_announcer);
    takeFound(m_file->found());
    return m_file->store(everything(), ++m_serial);
}

QList<LeftEdits> LeftBehind::everything() const
{
    QList<LeftEdits> all = m_standing ? m_standing() : QList<LeftEdits>();
    for (LeftEdits& left : all)
        left.leftAt = QDateTime::currentMSecsSinceEpoch();
    all.append(m_kept);
    return all;
}

}  // namespace Quorbel
