#include "app/model/library/KeywordUses.h"

#include "core/schema/FieldID.h"
#include "core/text/Text.h"

#include <algorithm>

namespace Quorbel {

void KeywordUses::count(const ImageRecord& photo, int step)
{
    const auto keywords = photo.lists.constFind(FieldID::keywords);
    if (keywords == photo.lists.cend())
        return;
    for (const QString& keyword : *keywords) {
        int& uses = m_uses[keyword];
        uses += step;
        if (uses <= 0)
            m_uses.remove(keyword);
    }
}

QStringList KeywordUses::completions(const QString& prefix, int limit) const
{
    struct Use {
        QString keyword;
        int count = 0;
    };
    std::vector<Use> found;
    for (auto use = m_uses.cbegin(); use != m_uses.cend(); ++use)
        if (use.key().startsWith(prefix, Qt::CaseInsensitive))
            found.push_back({ use.key(), use.value() });
    const auto end = found.begin() + std::min(std::ptrdiff_t(found.size()), std::ptrdiff_t(std::max(limit, 0)));
    std::partial_sort(found.begin(), end, found.end(), [](const Use& a, const Use& b) {
        if (a.count != b.count)
            return a.count > b.count;
        const int order = Text::naturalCompare(a.keyword, b.keyword);
        return order != 0 ? order < 0 : a.keyword < b.keyword;
    });
    QStringList keywords;
    std::transform(found.begin(), end, std::back_inserter(keywords), [](const Use& use) { return use.keyword; });
    return keywords;
}

}  // namespace Quorbel
