// Finds photos that other programs changed, and keeps the user's edits across their re-read. Thread: any. Pure.
#pragma once

#include "core/schema/ImageRecord.h"

#include <QSet>

#include <functional>

namespace Quorbel::ExternalRefresh {

using ModificationDate = std::function<std::optional<QDateTime>(const ImageRecord&)>;

struct Drafts {
    QMap<QString, QString> values{};
    QMap<QString, QStringList> lists{};
    QList<CustomValue> customs{};
    bool operator==(const Drafts&) const = default;
};

/// Whether a file that bore one date when it was read is another one now. False where either is not known.
bool isModified(const std::optional<QDateTime>& asRead, const std::optional<QDateTime>& now);

/// URLs of the records whose file now has another modification date, in the records' order. Records without a
/// date, and files that are gone, are not among them.
QList<QUrl> modifiedURLs(const QList<ImageRecord>& records, const ModificationDate& mtimeOf);

/// The fresh record's contents with the drafts of the edited ids laid over them ("custom:" + name for customs).
Drafts mergeDrafts(const ImageRecord& record, const Drafts& drafts, const QSet<QString>& edited);

}  // namespace Quorbel::ExternalRefresh
