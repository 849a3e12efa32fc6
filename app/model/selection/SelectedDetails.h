// What the selected photos hold together beside their records: languages, keyword paths, homes that disagree.
// Thread: the main thread. Knows no edits; who looks into the photos, and when, is decided elsewhere.
#pragma once

#include "app/model/selection/SelectedPhotos.h"
#include "core/schema/PhotoDetails.h"

#include <functional>

namespace Quorbel {

class SelectedDetails final {
public:
    /// What is known of a photo; null before it was looked at.
    struct Source {
        std::function<const PhotoDetails*(const QUrl&)> of{};
        std::function<qsizetype()> known{};  ///< of how many photos anything is known, selected or not
        std::function<bool(const QUrl&)> isUnreadable{};  ///< whether it could not be looked at
    };

    SelectedDetails(const PhotoList& list, const SelectedPhotos& selected, Source source);
    Q_DISABLE_COPY_MOVE(SelectedDetails)

    const PhotoDetails* of(const QUrl& photo) const { return m_source.of(photo); }
    bool isUnreadable(const QUrl& photo) const { return m_source.isUnreadable(photo); }
    /// Of some photos something else is known.
    void forget() { m_summary.reset(); }

    /// As SelectedPhotos::sharedValue(), for what is beside the records, too: that is known of no photo that was not
    /// looked at.
    std::optional<QString> sharedValue(const QString& key) const;
    /// Whether one of them is known to hold something under this key.
    bool holds(const QString& key) const;
    /// Codes of the languages in which one of them holds the field.
    QStringList codes(const QString& id) const;
    /// Paths of this keyword in any of them.
    QStringList pathsOf(const QString& keyword) const;
    /// How many were not looked at yet.
    int unknown() const { return summary().unknown; }
    /// How many are known to have homes that disagree.
    int disagreeing() const { return summary().disagreeing; }
    /// Those that are known to have Content Credentials.
    const QList<QUrl>& sealed() const { return summary().sealed; }
    /// Whether a save can make some of those agree.
    bool canAgree() const { return summary().canAgree; }

private:
    struct Text {
        QString value{};
        bool isShared = true;  ///< by those that hold one
        int holders = 0;
    };
    struct Summary {
        QList<int> rows{};  ///< of which it was made
        QMap<QString, Text> texts{};  ///< by key (PhotoDetails::texts)
        QSet<QString> lists{};  ///< ids of those that are not empty
        QMap<QString, QStringList> paths{};  ///< by the keyword that they lead to
        int known = 0;
        int unknown = 0;
        int disagreeing = 0;
        QList<QUrl> sealed{};
        bool canAgree = false;
    };
    static void merge(Summary& summary, const ImageRecord& record, const PhotoDetails& details);
    const Summary& summary() const;

    const PhotoList& m_list;
    const SelectedPhotos& m_selected;
    Source m_source;
    mutable std::optional<Summary> m_summary;
};

}  // namespace Quorbel
