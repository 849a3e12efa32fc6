#include "app/shell/AppDelegate.h"

#include "app/model/SelfTest.h"
#include "app/model/words/CodeReplacements.h"
#include "app/shell/AboutSheet.h"
#include "app/shell/FirstPaint.h"
#include "app/shell/MainWindowDelegate.h"
#include "app/shell/Menus.h"
#include "app/shell/OpenPanel.h"
#include "app/shell/SessionEnd.h"
#include "app/shell/TemplatePanels.h"
#include "app/shell/TerminationSignals.h"
#include "app/shell/UserLanguage.h"
#include "core/Product.h"
#include "platform/desktop/Compositor.h"
#include "platform/desktop/SystemScheme.h"
#include "ui/closeup/CloseupView.h"
#include "ui/controls/ToolTips.h"
#include "ui/controls/theme/PopupFrame.h"
#include "ui/controls/theme/Theme.h"
#include "ui/inspector/InspectorView.h"
#include "ui/sheets/AddFieldSheet.h"
#include "ui/sheets/MessageSheet.h"
#include "ui/sheets/PasteFieldsSheet.h"
#include "ui/sheets/QuickSetSheet.h"
#include "ui/sheets/RenameSheet.h"
#include "ui/sheets/SaveDialogView.h"
#include "ui/sheets/ShiftTimeSheet.h"
#include "ui/sheets/fieldsets/FieldSetsSheet.h"
#include "ui/sheets/renaming/RenamePhotosSheet.h"
#include "ui/sheets/sidecars/MoveOverSheet.h"
#include "ui/templates/TemplatesSheet.h"
#include "ui/window/ContentView.h"
#include "ui/window/HelpView.h"
#include "ui/window/SettingsView.h"
#include "ui/window/WindowBar.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QInputMethod>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>
#include <QWindow>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Whether the window may be active: with it, another program's start lets this one come to the front.
constexpr auto activationVariable = "XDG_ACTIVATION_TOKEN";

// Milliseconds after the window's first picture: the network must not slow the first photos down.
constexpr int updateCheckDelay = 1'500;

// Centred on it, in the size that it asks for. Window managers put second windows into corners.
void placeOver(QWidget& second, const QWidget& window)
{
    QRect place(QPoint(), second.sizeHint().expandedTo(second.minimumSize()));
    place.moveCenter(window.geometry().center());
    second.setGeometry(place);
}

}  // namespace

void AppDelegate::willFinishLaunching(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QUORBEL_SELFTEST"))
        return;
    const QCoreApplication application(argc, argv);
    SelfTest::run(qEnvironmentVariable("QUORBEL_SELFTEST"));
}

AppDelegate::AppDelegate()
    : m_instance(SingleInstance::defaultSocketPath())
    , m_systemScheme(new SystemScheme(this))
{
}

AppDelegate::~AppDelegate()
{
    // Views before what they show.
    delete m_settings;
    delete m_help;
    m_window.reset();
}

QList<QUrl> AppDelegate::urlsOf(const QStringList& arguments)
{
    QList<QUrl> urls;
    for (const QString& argument : arguments) {
        const QUrl url(argument);
        if (url.scheme() == QLatin1String("file"))
            urls.append(url);
        else
            urls.append(QUrl::fromLocalFile(QDir::cleanPath(QDir::current().absoluteFilePath(argument))));
    }
    return urls;
}

bool AppDelegate::handOver(const HandOver& what) const
{
    return m_instance.handOver(what);
}

void AppDelegate::finishLaunching(const QList<QUrl>& urls)
{
    PopupFrame::setComposed(&Compositor::isRunning);
    m_app = std::make_unique<QuorbelApp>(hooks());
    buildWindow();
    new TerminationSignals([this] { m_app->model().quitKeepingEdits(); }, this);
    new SessionEnd(
        m_app->model(), [this] { m_window->close(); }, this);
    if (!urls.isEmpty())
        m_content->expectPhotos();
    m_content->setFocus();  // no button looks chosen before anybody chose it
    // Filters run newest first: the trace comes before the work that waits for the same picture.
    afterFirstPaint(m_window.get(), [this, urls] { finishAfterFirstPaint(urls); });
    traceFirstPaint(m_window.get());
    m_window->show();
    connect(m_window->windowHandle(), &QWindow::screenChanged, this,
        [this] { m_app->thumbnails().setDevicePixelRatio(m_window->devicePixelRatioF()); });
}

// Whatever a window does not need to show its first picture.
void AppDelegate::finishAfterFirstPaint(const QList<QUrl>& urls)
{
    if (!urls.isEmpty())
        m_app->model().requestLoad(urls);
    QApplication::setWindowIcon(QIcon::fromTheme(u"app.quorbel.Quorbel"_s));
    new Menus(m_app->model(), *m_content, menuCommands());
    m_content->buildColumns();
    new ToolTips(this);
    m_instance.listen([this](const HandOver& what) { received(what); });
    m_app->tidy();
    if (QuorbelApp::checksForUpdates())
        QTimer::singleShot(updateCheckDelay, this, [this] { m_app->updatePresenter().checkAutomatically(); });
}

MenuCommands AppDelegate::menuCommands()
{
    MenuCommands commands{ .openSettings = [this] { openSettings(); },
        .openHelp = [this] { openHelp(); },
        .showAbout = [this] { showAbout(); } };
    if (QuorbelApp::checksForUpdates())
        commands.checkForUpdates = [this] { m_app->updatePresenter().checkManually(); };
    return commands;
}

WindowHooks AppDelegate::hooks()
{
    using Chosen = std::function<void(const QList<QUrl>&)>;
    const auto panel = [this](OpenPanel::Choice choice) {
        return [this, choice](Chosen chosen) {
            OpenPanel::open(m_window.get(), Theme::of(m_window.get()), choice, std::move(chosen));
        };
    };
    return {
        .openPanel = panel(OpenPanel::Choice::any),
        .openFolderPanel = panel(OpenPanel::Choice::folder),
        .endEditing = [this] { endEditing(); },
        .quit = [this] { m_windowDelegate->quit(); },
        .show = [this](const Notice& notice,
                    const std::function<void(qsizetype)>& answered) { showNotice(notice, answered); },
    };
}

void AppDelegate::buildWindow()
{
    AppModel& model = m_app->model();
    m_window = std::make_unique<QMainWindow>();
    ContentFactories factories;
    factories.inspector = [this](QWidget* parent) {
        return new InspectorView(
            m_app->model(), &m_app->thumbnails(), m_app->placeProvider(), m_app->mapRenderer(), parent);
    };
    factories.addField = [&model] { return new AddFieldSheet(model); };
    factories.save = [&model] { return new SaveDialogView(model); };
    factories.rename = [&model] { return new RenameSheet(model); };
    factories.pasteFields = [this] { return new PasteFieldsSheet(m_app->model(), &m_app->thumbnails()); };
    factories.templates = [&model] { return new TemplatesSheet(model); };
    model.templates().panels = templatePanels(m_window.get());
    factories.quickSet = [&model] { return new QuickSetSheet(model); };
    factories.fieldSets = [&model] { return new FieldSetsSheet(model); };
    factories.shiftTime = [this] { return new ShiftTimeSheet(m_app->model(), &m_app->thumbnails()); };
    factories.moveOver = [&model] { return new MoveOverSheet(model.movingOver()); };
    factories.renamePhotos = [&model] { return new RenamePhotosSheet(model); };
    factories.setInspectorInset = [](QWidget* inspector, int pixels) {
        static_cast<InspectorView*>(inspector)->setBottomInset(pixels);
    };
    model.codes().setChooser([this](const auto& chosen) { chooseCodeFile(chosen); });
    factories.closeup = [this](QWidget* window) {
        return new CloseupView(m_app->model(), &m_app->thumbnails(), m_app->wholePictures(), window);
    };
    factories.keptField = [](QWidget* inspector) { return &static_cast<InspectorView*>(inspector)->keptField(); };
    m_content = new ContentView(model, &m_app->thumbnails(), *m_systemScheme, m_window.get(), factories);
    m_window->setMenuWidget(m_content->bar());
    m_window->setCentralWidget(m_content);

    m_windowDelegate = new MainWindowDelegate(model, *m_window, *m_content->sheets());
    m_windowDelegate->restoreGeometry();
    m_app->thumbnails().setDevicePixelRatio(m_window->devicePixelRatioF());
    connect(&model.preferences(), &Preferences::changed, this, &AppDelegate::applyThemes);
    connect(m_systemScheme, &SystemScheme::changed, this, &AppDelegate::applyThemes);
}

// A second start: its files go where a drop would go, and the window comes to the front.
void AppDelegate::received(const HandOver& what)
{
    if (!what.activationToken.isEmpty())
        qputenv(activationVariable, what.activationToken);
    if (m_window->isMinimized())
        m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
    if (!what.urls.isEmpty())
        m_app->model().requestLoad(what.urls);
}

// The main window's theme is its content's business; the other windows follow it.
void AppDelegate::applyThemes()
{
    if (m_settings)
        setTheme(m_settings, m_content->wantedTheme());
    if (m_help)
        setTheme(m_help, m_content->wantedTheme());
}

void AppDelegate::openSettings()
{
    if (!m_settings) {
        m_settings = new SettingsView(m_app->model(), UserLanguage::all(), m_window.get());
        m_settings->setWindowFlags(Qt::Dialog);
        m_settings->setAttribute(Qt::WA_DeleteOnClose);
        m_settings->setAttribute(Qt::WA_QuitOnClose, false);
        applyThemes();
        placeOver(*m_settings, *m_window);
    }
    m_settings->show();
    m_settings->raise();
    m_settings->activateWindow();
}

// Over the settings, whence one asks for it.
void AppDelegate::chooseCodeFile(const std::function<void(const QString&)>& chosen)
{
    QWidget* window = m_window.get();
    if (m_settings)
        window = m_settings;
    OpenPanel::open(window, Theme::of(window), OpenPanel::Choice::text, [chosen](const QList<QUrl>& urls) {
        if (!urls.isEmpty())
            chosen(urls.constFirst().toLocalFile());
    });
}

void AppDelegate::openHelp()
{
    if (!m_help) {
        m_help = new HelpView;
        m_help->setAttribute(Qt::WA_DeleteOnClose);
        m_help->setAttribute(Qt::WA_QuitOnClose, false);
        applyThemes();
        placeOver(*m_help, *m_window);
    }
    m_help->show();
    m_help->raise();
    m_help->activateWindow();
}

void AppDelegate::showAbout()
{
    const PlaceProvider* places = m_app->placeProvider();
    auto* sheet = new AboutSheet(places ? places->attribution() : QString());
    connect(sheet, &AboutSheet::closed, m_content, [this, sheet] { m_content->sheets()->dismiss(sheet); });
    m_content->sheets()->present(sheet);
}

void AppDelegate::showNotice(const Notice& notice, const std::function<void(qsizetype)>& answered)
{
    presentMessage(
        *m_content->sheets(), u"sparkles"_s, notice.message, notice.informativeText, notice.buttons, answered);
}

// Makes the field being typed into commit what the input method still holds, and takes the focus from it.
void AppDelegate::endEditing()
{
    QWidget* focus = m_window ? m_window->focusWidget() : nullptr;
    if (!qobject_cast<QLineEdit*>(focus) && !qobject_cast<QPlainTextEdit*>(focus))
        return;
    QGuiApplication::inputMethod()->commit();
    focus->clearFocus();
}

}  // namespace Quorbel
