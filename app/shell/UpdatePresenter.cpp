#include "app/shell/UpdatePresenter.h"

#include "core/Product.h"
#include "core/language/Texts.h"
#include "core/text/Text.h"

#include <QNetworkAccessManager>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Milliseconds without any transfer after which a check counts as failed.
constexpr int transferTimeout = 30'000;

const Notice& upToDateNotice()
{
    static const Notice notice{ Texts::tr("You're up to date"), Texts::tr("Quorbel is running the latest version."),
        { Texts::tr("OK") } };
    return notice;
}

const Notice& failedNotice()
{
    static const Notice notice{ Texts::tr("Couldn't check for updates"),
        Texts::tr("Please check your internet connection and try again."), { Texts::tr("OK") } };
    return notice;
}

}  // namespace

QString UpdatePresenter::lastCheckKey()
{
    return u"lastUpdateCheck"_s;
}

UpdatePresenter::UpdatePresenter(
    const QUrl& manifestURL, qint64 currentBuild, UpdatePresenterServices services, QObject* parent)
    : QObject(parent)
    , m_manifestURL(manifestURL)
    , m_currentBuild(currentBuild)
    , m_services(std::move(services))
{
}

UpdatePresenter::~UpdatePresenter() = default;

QUrl UpdatePresenter::feedURL(const QString& host)
{
    if (host.isEmpty())
        return {};
    QUrl url;
    url.setScheme(u"https"_s);
    url.setAuthority(host);
    url.setPath(Product::feedPath());
    return url;
}

qint64 UpdatePresenter::buildNumber(const QString& text)
{
    return Text::parseInteger(text).value_or(0);
}

void UpdatePresenter::checkAutomatically()
{
    const auto last = QDateTime::fromString(m_services.defaults->value(lastCheckKey()).toString(), Qt::ISODate);
    if (last.isValid() && last.secsTo(m_services.now()) < throttle)
        return;
    check([this](const UpdateCheckResult& result) {
        if (std::holds_alternative<UpdateCheckResult::Failed>(result.outcome))
            return;
        recordCheck();
        if (const auto* available = std::get_if<UpdateCheckResult::Available>(&result.outcome))
            presentAvailable(available->manifest);
    });
}

void UpdatePresenter::checkManually()
{
    check([this](const UpdateCheckResult& result) {
        recordCheck();
        if (const auto* available = std::get_if<UpdateCheckResult::Available>(&result.outcome))
            presentAvailable(available->manifest);
        else if (std::holds_alternative<UpdateCheckResult::UpToDate>(result.outcome))
            m_services.show(upToDateNotice(), {});
        else
            m_services.show(failedNotice(), {});
    });
}

void UpdatePresenter::check(std::function<void(const UpdateCheckResult&)> done)
{
    if (m_manifestURL.isEmpty())
        return;
    if (!m_session) {
        m_session = std::make_unique<QNetworkAccessManager>();
        m_session->setTransferTimeout(transferTimeout);
    }
    UpdateChecker::check(m_manifestURL, m_currentBuild, *m_session, this, std::move(done));
}

void UpdatePresenter::recordCheck()
{
    m_services.defaults->setValue(lastCheckKey(), m_services.now().toUTC().toString(Qt::ISODate));
}

void UpdatePresenter::presentAvailable(const UpdateManifest& manifest)
{
    const Notice notice{ Texts::tr("Quorbel %1 is available").arg(manifest.version),
        manifest.notes.value_or(Texts::tr("A newer version of Quorbel is available.")),
        { Texts::tr("Download", "verb"), Texts::tr("Later", "button: not now") } };
    m_services.show(notice, [this, address = manifest.url](qsizetype button) {
        if (button != 0)
            return;
        // Nothing but HTTPS is ever opened, whatever a feed says.
        const QUrl url(address, QUrl::StrictMode);
        if (url.isValid() && url.scheme() == QLatin1String("https"))
            m_services.openUrl(url);
    });
}

}  // namespace Quorbel
