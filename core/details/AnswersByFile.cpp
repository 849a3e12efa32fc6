#include "core/details/AnswersByFile.h"

#include <QDir>

namespace Quorbel {

using namespace Qt::StringLiterals;

// By the path of the file, as the tool printed it and tidied up.
AnswersByFile::AnswersByFile(const QList<JSONObject>& answers)
    : m_answers(answers)
{
    for (const JSONObject& answer : answers) {
        const QString path = answer.value(u"SourceFile"_s).stringValue().value_or(QString());
        m_byPath.insert(path, &answer);
        m_byPath.insert(QDir::cleanPath(path), &answer);
    }
}

const JSONObject* AnswersByFile::of(const QString& path, qsizetype position, qsizetype count) const
{
    const JSONObject* answer = m_byPath.value(path);
    // A name that is no text comes back changed, but at its place.
    return answer || m_answers.size() != count ? answer : &m_answers.at(position);
}

}  // namespace Quorbel
