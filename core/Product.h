// The product's own names and addresses, in one place.
#pragma once

#include <QString>

namespace Quorbel::Product {

/// Organisation and application name: of the settings file, the window class and the desktop entry.
inline QString name()
{
    using namespace Qt::StringLiterals;
    return u"Quorbel"_s;
}

/// URI of the custom XMP group. It stands in every file written, so it never changes.
inline QString customNamespaceURI()
{
    using namespace Qt::StringLiterals;
    return u"http://quorbel.app/ns/1.0/"_s;
}

/// Path of the update feed on its host; the host is a build setting (QUORBEL_FEED_HOST).
inline QString feedPath()
{
    using namespace Qt::StringLiterals;
    return u"/quorbel/appcast.json"_s;
}

}  // namespace Quorbel::Product
