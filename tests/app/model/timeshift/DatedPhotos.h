// Photos with dates of a test's own. Thread: any.
#pragma once

#include <QMap>
#include <QStringList>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

using Texts = QMap<QString, QString>;  ///< by tag, as it is read

/// What the tool is told to give a photo these tags; one of several commands of a run.
inline QStringList argumentsFor(const Texts& tags, const QString& path)
{
    QStringList arguments{ u"-q"_s, u"-q"_s, u"-m"_s, u"-overwrite_original"_s };
    for (auto tag = tags.cbegin(); tag != tags.cend(); ++tag)
        arguments << u'-' + tag.key() + (tag->startsWith(u"0000") ? u"#="_s : u"="_s) + *tag;
    return arguments << path << u"-execute"_s;
}

}  // namespace Quorbel::Test
