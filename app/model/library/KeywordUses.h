// How often each keyword occurs in the open photos, kept up photo by photo.
// Thread: one at a time. A plain value.
#pragma once

#include "core/schema/ImageRecord.h"

#include <QHash>

namespace Quorbel {

class KeywordUses final {
public:
    void add(const ImageRecord& photo) { count(photo, 1); }
    void remove(const ImageRecord& photo) { count(photo, -1); }
    /// Keywords that begin with the text (any case), the most used first; at most `limit`.
    QStringList completions(const QString& prefix, int limit) const;

private:
    void count(const ImageRecord& photo, int step);

    QHash<QString, int> m_uses;
};

}  // namespace Quorbel
