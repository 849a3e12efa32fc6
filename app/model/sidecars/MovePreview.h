// What moving over would do to the selected photos, and which of them it leaves alone: what the sheet shows, and what
// is done. Thread: any. A plain value; pure.
#pragma once

#include "app/model/sidecars/MovePlan.h"
#include "core/save/journal/FileStamp.h"

#include <QHash>

namespace Quorbel {

struct MovePreview {
    /// How many photos gain, change or lose a field.
    struct Row {
        QString label{};
        int gains = 0;
        int changes = 0;
        int loses = 0;
        bool operator==(const Row&) const = default;
    };
    /// A photo and its sidecar, when they were read.
    struct Stamps {
        std::optional<FileStamp> file{};
        QString sidecar{};
        std::optional<FileStamp> beside{};

        static Stamps of(const QUrl& photo, const QString& sidecar);
        bool operator==(const Stamps&) const = default;
    };

    QHash<QUrl, MovePlan> plans{};  ///< of the photos that something is written for
    QHash<QUrl, Stamps> stamps{};  ///< of these
    QMap<QString, Row> fields{};  ///< by key; the labels are made by rows()
    int agreeing = 0;  ///< photos with nothing to write
    int keeping = 0;  ///< photos whose sidecar keeps what it holds otherwise
    int sealed = 0;  ///< of the photos whose files are written: with Content Credentials
    // Names of photos that are left alone
    QStringList withoutSidecar{};
    QStringList withOthersSidecar{};
    QStringList notRaw{};
    QStringList readOnly{};  ///< of files, photos or sidecars
    QStringList unreadable{};  ///< the same, with the reason
    QStringList odd{};  ///< photos with the fields that are not written

    void take(const QUrl& photo, const MovePlan& plan, const Stamps& read);
    void add(const MovePreview& other);
    /// In the order of the fields.
    QList<Row> rows() const;
    /// What else there is to say, one line each.
    QStringList notes() const;
};

}  // namespace Quorbel
