// The engine around the real tool, and what a tag holds then.
// Thread: the test's.
#pragma once

#include "core/MetadataService.h"
#include "tests/support/Support.h"

namespace Quorbel::Test {

inline MetadataService realService()
{
    return { realTool() };
}

/// The values of a tag ("-XMP-dc:Title") as ExifTool prints them, a line each.
inline QByteArray tagValue(const QUrl& file, const QString& tag)
{
    return exiftool({ u"-s3"_s, u"-a"_s, tag, file.toLocalFile() }).trimmed();
}

/// What a call said that failed, the tool in its own words where it found any; "" when it worked.
template <typename Call>
QString problem(Call call)
{
    try {
        call();
    } catch (const ToolError& error) {
        return error.messages().isEmpty() ? error.description() : error.messages();
    } catch (const Error& error) {
        return error.description();
    }
    return {};
}

}  // namespace Quorbel::Test
