// The keywords that the selected photos hold, and how many of them hold each.
// Thread: the main thread; many photos are counted in the background. Knows no edits, and nobody who listens: what is
// found out later is announced.
#pragma once

#include "app/model/selection/SelectedPhotos.h"

#include <QObject>
#include <QTimer>

namespace Quorbel {

struct KeywordCount {
    QString keyword{};
    int photos = 0;  ///< of the selected ones that were read
    bool operator==(const KeywordCount&) const = default;
};

class SelectedKeywords final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SelectedKeywords)

public:
    SelectedKeywords(Announcer& announcer, const PhotoList& list, const SelectedPhotos& selected);

    /// The most frequent first, those of equal frequency by name. None while fewer than two photos are selected, and
    /// while those of another selection are counted.
    const QList<KeywordCount>& list() const { return m_told.list; }
    /// Of how many photos they were counted: of the selected ones, those that were read by then.
    int photos() const { return m_told.photos; }
    /// The selection or the records are other ones.
    void update();

private:
    struct Counted {
        QList<KeywordCount> list{};
        int photos = 0;
        bool operator==(const Counted&) const = default;
    };
    static Counted count(const QList<QStringList>& keywords);
    QList<QStringList> held();
    void begin();
    void take(const Counted& counted);

    Announcer& m_announcer;
    const PhotoList& m_list;
    const SelectedPhotos& m_selected;
    QSet<QUrl> m_photos;  ///< of which is told, or counted
    int m_listSerial = -1;
    Counted m_told;
    int m_counting = 0;  ///< changes with what is counted: what was counted of before is dropped
    bool m_isCounting = false;
    QTimer m_again;
};

}  // namespace Quorbel
