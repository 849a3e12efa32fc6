#include "app/shell/QuorbelApp.h"

#include "app/model/thumbnails/FollowModel.h"
#include "app/model/timeshift/TimeShifting.h"
#include "core/Product.h"
#include "core/tool/TemporaryFiles.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThreadPool>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// <prefix>/share/quorbel/places, seen from <prefix>/bin.
QString placesFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../share/quorbel/places"_s);
}

QDateTime now()
{
    return QDateTime::currentDateTime();
}

// Where the desktop keeps what programs remember from one run to the next.
QString stateFile(const QString& name)
{
    const QString given = qEnvironmentVariable("XDG_STATE_HOME");
    const QString base = QDir::isAbsolutePath(given) ? given : QDir::homePath() + u"/.local/state"_s;
    return base + u"/quorbel/"_s + name;
}

QString journalPath()
{
    return stateFile(u"undo"_s);
}

QString leftEditsPath()
{
    return stateFile(u"unsaved.json"_s);
}

void openUrl(const QUrl& url)
{
    QDesktopServices::openUrl(url);
}

}  // namespace

QuorbelApp::QuorbelApp(const WindowHooks& hooks)
    : m_preferences(
        std::make_shared<QSettings>(QSettings::IniFormat, QSettings::UserScope, Product::name(), Product::name()))
{
    const auto service = MetadataService::locate();
    ThumbnailStoreOptions images = ThumbnailStoreOptions::forUser();
    if (service)
        images.tool = m_wholePictures.tool = service->runner;
    m_thumbnails = std::make_unique<ThumbnailStore>(images);
    m_mapRenderer = makeMapRenderer(placesFolder());

    AppModelServices services;
    services.service = service;
    services.preferences = m_preferences;
    services.openPanel = hooks.openPanel;
    services.openFolderPanel = hooks.openFolderPanel;
    services.endEditing = hooks.endEditing;
    services.openUrl = openUrl;
    services.now = now;
    services.quit = hooks.quit;
    services.journalPath = journalPath();
    services.leftEditsPath = leftEditsPath();
    services.recordCachePath = QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + u"/records"_s;
    services.templatesPath = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + u"/templates"_s;
    m_model = std::make_unique<AppModel>(services);
    m_placeProvider = makePlaceProvider({ .dataFolder = placesFolder(),
        .endpoint = placeEndpoint(m_model->preferences().placeService()).value_or(QUrl()) });
    m_model->timeShifting().setPlaceData(placesFolder());
    followModel(*m_thumbnails, *m_model);

    m_updatePresenter =
        std::make_unique<UpdatePresenter>(UpdatePresenter::feedURL(QString::fromUtf8(QUORBEL_FEED_HOST)),
            UpdatePresenter::buildNumber(QString::fromUtf8(QUORBEL_BUILD_NUMBER)),
            UpdatePresenterServices{ m_preferences, now, hooks.show, openUrl });
}

QuorbelApp::~QuorbelApp() = default;

void QuorbelApp::tidy()
{
    m_thumbnails->pruneDisk();
    QThreadPool::globalInstance()->start([] {
        TemporaryFiles::clearAbandoned();
        TemporaryFiles::clearHalfWritten(QFileInfo(leftEditsPath()).path());
    });
}

bool QuorbelApp::checksForUpdates()
{
    return !QString::fromUtf8(QUORBEL_FEED_HOST).isEmpty();
}

}  // namespace Quorbel
