// What a shift will make of the selected photos, as far as their records tell: the table of the sheet, which photos are
// left alone and why, and what is asked of each of the others.
// Thread: any; pure. Looks up positions in the zones that it is given.
#pragma once

#include "core/save/shift/TimeShift.h"
#include "platform/places/zones/TimeZones.h"

#include <QHash>
#include <QMap>
#include <QStringList>
#include <QUrl>

namespace Quorbel {

/// The zone that photos are to get.
struct ShiftZone {
    QByteArray id{};  ///< IANA's; its offset is that at each photo's own time
    std::optional<int> minutes{};  ///< where there is no id
    bool isOwn = false;  ///< each photo's, by its position
    bool operator==(const ShiftZone&) const = default;
};

struct ShiftQuestion {
    qint64 seconds = 0;
    std::optional<ShiftZone> zone{};  ///< instead of the seconds
    bool keepsClock = true;
    QHash<QUrl, QDateTime> exact{};  ///< times to the second, of photos of which they are known
    std::shared_ptr<const TimeZones> zones{};  ///< may be null
};

/// What the record of a photo tells.
struct ShiftPhoto {
    QUrl url{};
    QMap<QString, QString> values{};
};

struct ShiftPreview {
    struct Row {
        QString title{};  ///< "First", "3 on a new day"
        QString before{};
        QString after{};
        QUrl photo{};
        bool operator==(const Row&) const = default;
    };

    QList<Row> rows{};
    QList<QUrl> targets{};  ///< photos whose times or zones change
    QHash<QUrl, TimeShift> shifts{};
    // Names of photos that are left alone
    QStringList undated{};
    QStringList odd{};  ///< with the date
    QStringList zoneless{};  ///< their clock cannot be moved
    QStringList placeless{};  ///< no position, or one that lies in no zone
    int positions = 0;  ///< photos with a date and a position, of a zone
    int inZone = 0;  ///< of these: in that zone
    QByteArray mostZone{};  ///< that most of the positions lie in
    QDateTime first{};  ///< the earliest time

    static ShiftPreview of(const QList<ShiftPhoto>& photos, const ShiftQuestion& question);
    /// "2 photos have no date and are left alone: …"; "" when none is.
    QString warning() const;
    /// "37 of 38 positions lie in this zone."; "" without any.
    QString positionsText() const;
    /// "1 h 02 min 30 s later".
    static QString amountText(qint64 seconds);
    /// The time that the record shows; nothing where it shows none, or an odd one.
    static std::optional<QDateTime> clockOf(const QMap<QString, QString>& values);
};

}  // namespace Quorbel
