// Which of the tool's answers is about which file. Thread: any. Pure.
#pragma once

#include "core/text/JSONValue.h"

#include <QHash>

namespace Quorbel {

/// The answers must outlive it.
class AnswersByFile final {
public:
    explicit AnswersByFile(const QList<JSONObject>& answers);
    /// Of the file with this path, which was asked about at this position among so many; null where there is none.
    const JSONObject* of(const QString& path, qsizetype position, qsizetype count) const;

private:
    const QList<JSONObject>& m_answers;
    QHash<QString, const JSONObject*> m_byPath;
};

}  // namespace Quorbel
