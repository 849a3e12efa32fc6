// Turns update checks into notices: when to check, what to say, and what may be opened.
// Thread: the main thread. Knows no widget: the notice and the browser are handed in.
#pragma once

#include "core/UpdateChecker.h"

#include <QDateTime>
#include <QObject>
#include <QSettings>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <memory>

class QNetworkAccessManager;

namespace Quorbel {

/// A notice with one line, an explanation, and buttons, the default one first.
struct Notice {
    QString message{};
    QString informativeText{};
    QStringList buttons{};
    bool operator==(const Notice&) const = default;
};

/// What the presenter needs from outside; all of it required.
struct UpdatePresenterServices {
    std::shared_ptr<QSettings> defaults{};
    std::function<QDateTime()> now{};
    /// Shows a notice and calls back with the position of the button chosen; returns at once.
    std::function<void(const Notice&, std::function<void(qsizetype)>)> show{};
    std::function<void(const QUrl&)> openUrl{};
};

class UpdatePresenter final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdatePresenter)

public:
    /// Key of the date of the last recorded check, stored as an ISO 8601 text in UTC.
    static QString lastCheckKey();
    /// Seconds that must lie between two automatic checks.
    static constexpr qint64 throttle = 86'400;

    UpdatePresenter(
        const QUrl& manifestURL, qint64 currentBuild, UpdatePresenterServices services, QObject* parent = nullptr);
    ~UpdatePresenter() override;

    /// Checks unless a check was recorded within the throttle. Speaks only of an available update; a failed check is
    /// not recorded, so that the next start tries again.
    void checkAutomatically();
    /// Checks now, records it whatever comes out, and says what came out.
    void checkManually();

    /// The feed's address on this host; empty when there is no host: then nothing is ever fetched.
    static QUrl feedURL(const QString& host);
    /// The build number of a program that was built with this text; 0 when it is no decimal integer.
    static qint64 buildNumber(const QString& text);

private:
    void check(std::function<void(const UpdateCheckResult&)> done);
    void recordCheck();
    void presentAvailable(const UpdateManifest& manifest);

    QUrl m_manifestURL;
    qint64 m_currentBuild;
    UpdatePresenterServices m_services;
    std::unique_ptr<QNetworkAccessManager> m_session;  ///< made by the first check: starts cost nothing
};

}  // namespace Quorbel
