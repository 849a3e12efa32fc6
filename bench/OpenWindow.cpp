#include "bench/OpenWindow.h"

#include "app/model/thumbnails/FollowModel.h"
#include "app/model/thumbnails/ThumbnailStore.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/InspectorForm.h"
#include "ui/inspector/InspectorView.h"
#include "ui/sidebar/SidebarList.h"
#include "ui/window/ContentView.h"
#include "ui/window/WindowBar.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThreadPool>
#include <QTimer>

#include <algorithm>

namespace Quorbel::Bench {

using namespace Qt::StringLiterals;

OpenWindow::OpenWindow(const ExifToolRunner& tool, Thumbnails thumbnails, const QString& cache, Details details)
{
    AppModelServices services;
    services.service = MetadataService{ tool };
    services.preferences = std::make_shared<QSettings>(m_home.filePath(u"settings.ini"_s), QSettings::IniFormat);
    services.recordCachePath = cache;
    services.journalPath = m_home.filePath(u"undo"_s);
    services.templatesPath = m_home.filePath(u"templates"_s);
    if (details == Details::off)
        services.detailsDelay = std::chrono::hours(24);
    m_model = std::make_unique<AppModel>(services);
    if (thumbnails == Thumbnails::on) {
        ThumbnailStoreOptions options;
        options.cacheFolder = m_home.filePath(u"thumbnails"_s);
        m_thumbs = std::make_unique<ThumbnailStore>(options);
        followModel(*m_thumbs, *m_model);
    }
    m_window = std::make_unique<QMainWindow>();
    ContentFactories factories;
    factories.inspector = [this](QWidget* parent) {
        return new InspectorView(*m_model, m_thumbs.get(), nullptr, nullptr, parent);
    };
    auto* content = new ContentView(*m_model, m_thumbs.get(), m_scheme, m_window.get(), factories);
    m_window->setMenuWidget(content->bar());
    m_window->setCentralWidget(content);
    m_window->resize(1280, 900);
    content->buildColumns();
    m_list = content->findChild<SidebarList*>();
    m_form = content->findChild<InspectorForm*>();
    if (!m_list || !m_form)
        qFatal("the window has no list or no form");
    m_list->viewport()->installEventFilter(this);
    m_window->show();
    QCoreApplication::processEvents();
}

OpenWindow::~OpenWindow()
{
    m_window.reset();
    m_thumbs.reset();
    m_model.reset();
    QThreadPool::globalInstance()->waitForDone();
}

qsizetype OpenWindow::pictureBytes() const
{
    return m_thumbs
        ? m_thumbs->bytesHeld(ThumbnailStore::Kind::small) + m_thumbs->bytesHeld(ThumbnailStore::Kind::preview)
        : 0;
}

double OpenWindow::load(const QString& folder, const std::function<bool()>& condition)
{
    m_paintedRows = 0;
    QTimer wake;  // some conditions come true without an event
    wake.start(5);
    QElapsedTimer clock;
    clock.start();
    m_model->load({ QUrl::fromLocalFile(folder) });
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

bool OpenWindow::showsFields(const QString& photo) const
{
    const ImageRecord* record = m_model->primaryRecord();
    if (!record || record->url != QUrl::fromLocalFile(photo) || record->isUnread)
        return false;
    const FieldRow* row = m_form->row(u"title"_s);
    return row && row->isVisible() && !row->state().text.isEmpty()
        && row->state().text == record->values.value("title");
}

bool OpenWindow::hasRead(int count) const
{
    const QList<ImageRecord>& records = m_model->records();
    return records.size() == count && !m_model->isWorking()
        && std::none_of(records.begin(), records.end(), [](const ImageRecord& record) { return record.isUnread; });
}

bool OpenWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint && watched == m_list->viewport())
        m_paintedRows = std::max(m_paintedRows, m_list->model()->rowCount());
    return false;
}

}  // namespace Quorbel::Bench
