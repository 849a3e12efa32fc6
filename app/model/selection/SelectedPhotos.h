// The selection, and what the selected photos hold together.
// Thread: the main thread. Knows no edits: which selection is wanted is decided elsewhere.
#pragma once

#include "app/model/Announcer.h"
#include "app/model/selection/Selection.h"
#include "core/schema/ImageRecord.h"

#include <optional>
#include <vector>

namespace Quorbel {

class SelectedPhotos final {
public:
    SelectedPhotos(Announcer& announcer, const PhotoList& list)
        : m_announcer(announcer)
        , m_list(list)
    {
    }
    Q_DISABLE_COPY_MOVE(SelectedPhotos)

    const Selection& selection() const { return m_selection; }
    void set(const Selection& selection);
    /// The same selection, after photos of it disappeared or got another name.
    void follow(const Selection& selection);
    /// Counts what was set; following does not count.
    int serial() const { return m_serial; }

    /// These were unread, and now are read, in their places of the list: the others are what they were.
    void takeRead(const QList<QUrl>& photos);

    bool isBatch() const { return m_selection.photos.size() >= 2; }
    /// The record of the primary photo; null when there is none. Valid until the records change.
    const ImageRecord* primaryRecord() const;
    /// Positions in the list, ascending. Memoised.
    const QList<int>& rows() const;
    QList<QUrl> urls() const;

    /// How many were not read yet. What is said below is said of the others.
    int unreadCount() const { return summary().unread; }
    /// The text that all of them hold ("" when none holds one); nothing when they differ, or none is
    /// selected and read.
    std::optional<QString> sharedValue(const QString& id) const;
    /// Whether one of them holds the field.
    bool holds(const QString& id) const;
    /// Names of the custom fields that one of them holds, ascending; of names that differ in case alone the first.
    QStringList customNames() const;
    /// The same as sharedValue(), for a custom field in any case.
    std::optional<QString> sharedCustom(const QString& name) const;

private:
    struct Field {
        QString id{};
        QString value{};
        bool isShared = true;
    };
    struct Custom {
        QString name{};
        QString value{};
        bool isShared = true;  ///< by those that hold the field
        int holders = 0;
    };
    struct Summary {
        std::vector<Field> fields{};  ///< every scalar field that a selected photo holds, by id
        QStringList heldLists{};  ///< every list field
        int unread = 0;
        int read = 0;
        QMap<QString, Custom> customs{};  ///< every custom field that a selected photo holds, by its name in lower case
    };

    void forgetIfOutdated() const;
    static void merge(Summary& summary, const ImageRecord& record);
    static void mergeCustom(QMap<QString, Custom>& customs, const CustomValue& custom);
    static void mergeFields(std::vector<Field>& fields, const QMap<QString, QString>& values, bool isFirst);
    const Summary& summary() const;

    Announcer& m_announcer;
    const PhotoList& m_list;
    Selection m_selection;
    int m_serial = 0;
    mutable int m_listSerial = 0;  ///< of the list when the memos were made
    mutable std::optional<QList<int>> m_rows;
    mutable std::optional<Summary> m_summary;
};

}  // namespace Quorbel
