// Whose details are on screen, or soon will be: the selected photos, and those in view. Thread: one at a time. Plain
// values: reads nothing.
#pragma once

#include <QSet>
#include <QUrl>

#include <functional>
#include <optional>

namespace Quorbel {

class DetailsInSight final {
public:
    using Filter = std::function<bool(const QUrl&)>;

    /// `first`: the photo whose fields are on screen.
    void setSelected(const std::optional<QUrl>& first, const QSet<QUrl>& photos);
    void setInView(const QList<QUrl>& photos) { m_inView = photos; }
    bool isSelected(const QUrl& photo) const { return m_selected.contains(photo); }

    /// What to read next of the selected photos, the first one in front. Of too many, that one only.
    QList<QUrl> nextSelected(const Filter& isWanted) const;
    QList<QUrl> nextInView(const Filter& isWanted) const;

private:
    std::optional<QUrl> m_first;
    QSet<QUrl> m_selected;
    QList<QUrl> m_inView;
};

}  // namespace Quorbel
