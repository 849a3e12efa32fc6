// Fetches the update feed and compares build numbers. Fetches nothing else, installs nothing.
// Thread: that of the network access manager passed in; check() returns at once.
#pragma once

#include "core/text/Errors.h"

#include <QByteArray>
#include <QUrl>

#include <functional>
#include <optional>
#include <variant>

class QNetworkAccessManager;
class QObject;

namespace Quorbel {

struct UpdateManifest {
    QString version{};  ///< display text; never compared
    qint64 build = 0;  ///< the only value compared
    QString url{};  ///< where the new version is downloaded
    std::optional<QString> notes{};
    bool operator==(const UpdateManifest&) const = default;
};

struct UpdateCheckResult {
    struct Available {
        UpdateManifest manifest{};
    };
    struct Failed {
        QString error{};  ///< for the developer; the user is told in the presenter's words
    };
    struct UpToDate { };
    std::variant<Available, Failed, UpToDate> outcome = UpToDate{};
};

namespace UpdateChecker {

/// The feed's document. Throws Error when it is no JSON object with the required members in their types.
UpdateManifest decode(const QByteArray& body);
/// upToDate when the feed's build is not higher; never failed.
UpdateCheckResult result(const UpdateManifest& manifest, qint64 currentBuild);
/// One GET; `done` is called once on the session's thread, unless `context` died meanwhile. Every failure arrives
/// as failed.
void check(const QUrl& manifestURL, qint64 currentBuild, QNetworkAccessManager& session, QObject* context,
    std::function<void(const UpdateCheckResult&)> done);

}  // namespace UpdateChecker

}  // namespace Quorbel
