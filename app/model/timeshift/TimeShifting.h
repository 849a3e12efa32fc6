// Shifts the times of the selected photos, for a camera whose clock was wrong, or gives them another time zone: what
// the sheet asks, and what it shows of what will be. Never an edit: a shift is a save of its own. Thread: the main
// thread; what photos hold is read and written in the background.
#pragma once

#include "app/model/RunningTasks.h"
#include "app/model/timeshift/ShiftJob.h"
#include "app/model/timeshift/ShiftPreview.h"

#include <QObject>

#include <functional>

namespace Quorbel {

class AppModel;

class TimeShifting final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TimeShifting)

public:
    /// What it needs of the model's own parts.
    struct Access {
        std::function<void(std::function<void()> action)> holdBack{};  ///< until edits are saved or left
        std::function<void(const QList<QUrl>& photos)> require{};  ///< these are to be read next
        std::function<void(const ShiftJob::Order& order, const ShiftJob::Looked& looked)> shift{};
        const std::optional<MetadataService>& service;  ///< as it is by now; absent: the tool was not found
        RunningTasks& tasks;
        Announcer& announcer;
    };
    enum class Way { amount, knownPhoto, zone };
    /// As it is typed.
    struct Amount {
        bool isEarlier = false;
        QString days{};
        QString hours{};
        QString minutes{};
        QString seconds{};
        bool operator==(const Amount&) const = default;
    };

    TimeShifting(AppModel& model, Access access);
    ~TimeShifting() override;
    /// The folder of the place data, for the zones of positions; without it there are only offsets.
    void setPlaceData(const QString& folder);

    bool isPossible() const;
    /// Opens the sheet over the selected photos, after the question about unsaved edits.
    void request();
    bool isOpen() const { return m_isOpen; }
    void close();
    const QList<ShiftPhoto>& photos() const { return m_photos; }
    /// Of these, how many were not read yet: they are read first.
    int unread() const;

    Way way() const { return m_way; }
    void setWay(Way way);
    const Amount& amount() const { return m_amount; }
    void setAmount(const Amount& amount);
    /// One of the photos, and when it was really taken, as typed.
    const QUrl& knownPhoto() const { return m_knownPhoto; }
    void setKnownPhoto(const QUrl& photo);
    /// "2024-10-12 17:48:02": what its own clock showed; "" for none.
    QString knownClock() const;
    const QString& knownTime() const { return m_knownTime; }
    void setKnownTime(const QString& typed);
    const ShiftZone& zone() const { return m_zone; }
    void setZone(const ShiftZone& zone);
    bool keepsClock() const { return m_keepsClock; }
    void setKeepsClock(bool on);
    /// Zones to choose among, with their names as they are shown, by offset at the time of the first photo.
    QList<std::pair<QString, ShiftZone>> zoneChoices() const;
    /// "+02:00 Zürich".
    QString zoneName(const ShiftZone& zone) const;
    bool hasZones() const { return m_zones != nullptr; }

    /// How far the clocks go; nothing while that is not typed right, and where zones are set.
    std::optional<qint64> seconds() const;
    /// What is wrong with what was typed; "" for nothing.
    QString problem() const;
    const ShiftPreview& preview() const { return m_preview; }
    bool canShift() const;
    /// Closes the sheet, reads what the photos hold exactly, and shifts. Needs canShift().
    void shift();
    /// Gives up a shift that has not begun to write.
    void cancel();

signals:
    void openChanged();
    void changed();

private:
    void open();
    void takePhotos();
    QUrl likelyKnown() const;
    void update();
    void readExact();
    void chooseZone();
    ShiftQuestion question() const;
    void look(const ShiftJob::Order& order);
    void takeLooked(ShiftJob::Order order, const ShiftJob::Looked& looked, const std::optional<QUrl>& skipped);
    template <typename T>
    void assign(T& member, const T& value);

    AppModel& m_model;
    Access m_access;
    std::shared_ptr<const TimeZones> m_zones;
    bool m_isOpen = false;
    QList<ShiftPhoto> m_photos;
    Way m_way = Way::amount;
    Amount m_amount;
    QUrl m_knownPhoto;
    QString m_knownTime;
    ShiftZone m_zone;
    bool m_isZoneChosen = false;  ///< by the user
    bool m_keepsClock = true;
    ShiftPreview m_preview;
    QHash<QUrl, QDateTime> m_exact;
    QSet<QUrl> m_asked;  ///< whose exact times are known, or being read
    QSet<QUrl> m_answered;  ///< of these: no longer being read
    bool m_isComputing = false;
    bool m_isStale = false;  ///< what is shown is not of what is typed
    int m_opened = 0;  ///< times
    int m_lookTask = 0;  ///< reads what is about to be shifted; 0 when none does
};

}  // namespace Quorbel
