// The photos whose details could not be read, and why; and whether the tool fails at everything.
// Thread: one at a time. Plain values: reads nothing.
#pragma once

#include "core/renaming/NewNames.h"

#include <QHash>
#include <QUrl>

#include <optional>

namespace Quorbel {

struct DetailsFailure {
    QString reason{};  ///< in a few words, or as the tool describes it
    bool isTriedAgain = false;  ///< somebody asked for it; until that failed, too
    bool operator==(const DetailsFailure&) const = default;
};

class DetailsFailures final {
public:
    /// Nothing of a photo at which nothing failed, unless everything does.
    std::optional<DetailsFailure> of(const QUrl& photo) const;
    /// Whether this photo is not worth a try before it changes.
    bool isLeftAlone(const QUrl& photo) const;
    /// The tool fails at everything: nothing is worth a try.
    bool isGivenUp() const { return m_reasonForAll.has_value(); }
    qsizetype photos() const { return m_photos.size(); }
    /// Another number than before whenever of() may have another answer.
    int serial() const { return m_serial; }

    void note(const QUrl& photo, const QString& reason);
    /// The file changed while it was read: it may do so a few times.
    void noteChange(const QUrl& photo);
    /// A run over several photos failed: one of many in a row, which is when the tool is given up, or it failed at one
    /// of its photos.
    void noteRun(const QString& reason);
    /// A run did not fail.
    void noteSuccess() { m_runs = 0; }
    /// The photo is another one by now, was read, or is gone.
    void forget(const QUrl& photo);
    void rename(const NewNames& names);
    void tryAgain(const QUrl& photo);
    /// The tool may work by now.
    void trust();

private:
    QHash<QUrl, DetailsFailure> m_photos;
    QHash<QUrl, int> m_changes;  ///< how often a photo had changed when it was read
    int m_runs = 0;  ///< over several photos that failed one after the other
    std::optional<QString> m_reasonForAll;
    int m_serial = 0;
};

}  // namespace Quorbel
