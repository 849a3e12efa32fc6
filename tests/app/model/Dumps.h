// All tags of the photos in a folder, and where they are not as a test expects. Thread: any.
#pragma once

#include "core/tool/TagDump.h"

#include <QMap>
#include <QStringList>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

using Dump = QMap<QString, FileTags>;  ///< by file name

/// "a.jpg: XMP-dc:Title should be [One], is [Two]", for whatever is not as expected.
inline QStringList differences(const Dump& expected, const Dump& found)
{
    QStringList texts;
    for (auto file = expected.cbegin(); file != expected.cend(); ++file) {
        const FileTags now = found.value(file.key());
        QStringList keys = file->keys() + now.keys();
        keys.removeDuplicates();
        for (const QString& key : std::as_const(keys))
            if (const auto wanted = file->value(key), is = now.value(key); wanted != is)
                texts.append(u"%1: %2 should be [%3], is [%4]"_s.arg(
                    file.key(), key, QString::fromUtf8(wanted.join("][")), QString::fromUtf8(is.join("]["))));
    }
    return texts;
}

}  // namespace Quorbel::Test
