// What a keyword editor offers while one types. Thread: any. A plain value.
#pragma once

#include <QStringList>

namespace Quorbel {

struct KeywordSuggestion {
    QString added{};  ///< what is handed out when it is chosen
    QString keyword{};
    QStringList parents{};  ///< from the top down; none for a keyword alone
};

}  // namespace Quorbel
