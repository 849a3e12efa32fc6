// Photos that are copied for each row, all their tags, and where these are not as a test expects. Thread: any.
#pragma once

#include "core/tool/TagDump.h"
#include "tests/support/Support.h"

#include <QFile>
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

/// Copies of all photos of a folder in another one.
inline QList<QUrl> copied(const PhotoFolder& from, const PhotoFolder& to)
{
    QList<QUrl> urls;
    for (const QString& name : from.names()) {
        QFile::copy(from.path(name), to.path(name));
        urls.append(to.url(name));
    }
    return urls;
}

}  // namespace Quorbel::Test
