#include "ui/window/ContentView.h"

#include "app/model/AppModel.h"
#include "core/Product.h"
#include "core/language/Texts.h"
#include "platform/desktop/SystemScheme.h"
#include "ui/closeup/CloseupView.h"
#include "ui/controls/BriefNote.h"
#include "ui/controls/ResizeHandle.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Motion.h"
#include "ui/controls/theme/Theme.h"
#include "ui/inspector/InspectorFooter.h"
#include "ui/inspector/KeptField.h"
#include "ui/sheets/Sheet.h"
#include "ui/sidebar/SidebarList.h"
#include "ui/sidebar/SidebarView.h"
#include "ui/window/ColumnRow.h"
#include "ui/window/ErrorBanner.h"
#include "ui/window/FileDrop.h"
#include "ui/window/LaunchView.h"
#include "ui/window/ModelSheets.h"
#include "ui/window/PreviewColumnView.h"
#include "ui/window/WindowBar.h"
#include "ui/window/WindowGrowth.h"

#include <QPainter>
#include <QPropertyAnimation>
#include <QScreen>
#include <QTimer>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString sidebarWidthKey()
{
    return u"sidebarWidth"_s;
}

QString previewEnabledKey()
{
    return u"previewEnabled"_s;
}

// Points beyond the threshold to which a window is grown for the preview, so that the column has room to show
// something.
constexpr int growthBeyondThreshold = 80;
// Milliseconds for which expected photos keep the launch view away. It shows their progress, which begins then.
constexpr int launchPatience = 300;
// Points: from the banner to the inspector's footer, and to the lower edge of the launch view.
constexpr qreal bannerOverFooter = 16;
constexpr qreal bannerOverEdge = 20;

// Carries the sidebar's hairlines on across the empty part of the resize handle beside it.
class HandleLines final : public QWidget {
public:
    HandleLines(SidebarView* sidebar, ResizeHandle* handle)
        : QWidget(handle)
        , m_sidebar(sidebar)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        handle->installEventFilter(this);
        connect(sidebar, &SidebarView::footChanged, this, qOverload<>(&QWidget::update));
        connect(sidebar, &SidebarView::stuckLineMoved, this, qOverload<>(&QWidget::update));
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Resize)
            resize(parentWidget()->size());
        return QWidget::eventFilter(watched, event);
    }

    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = Theme::of(this);
        DirectedPainter painter(this);
        const int empty = width() - static_cast<ResizeHandle*>(parentWidget())->lineWidth();
        painter.fillRect(0, m_sidebar->listTop() - 1, empty, 1, theme.hair);
        if (const auto line = m_sidebar->stuckLine(); line && *line >= m_sidebar->listTop())
            painter.fillRect(0, *line, empty, 1, theme.line);
        if (const QRect foot = m_sidebar->footRect(); !foot.isEmpty()) {
            painter.fillRect(0, foot.top(), empty, foot.height(), theme.bg);
            painter.fillRect(0, foot.top(), empty, 1, theme.line);
        }
    }

private:
    SidebarView* m_sidebar;
};

// A stored number, or the default where there is none.
double storedWidth(const QSettings& preferences)
{
    bool isNumber = false;
    const double width = preferences.value(sidebarWidthKey()).toDouble(&isNumber);
    return isNumber ? width : Columns::defaultSidebar;
}

}  // namespace

ContentView::ContentView(
    AppModel& model, ThumbnailStore* thumbs, SystemScheme& systemScheme, QWidget* window, ContentFactories factories)
    : QWidget(window)
    , m_model(model)
    , m_thumbs(thumbs)
    , m_systemScheme(systemScheme)
    , m_window(window)
    , m_factories(std::move(factories))
    , m_bar(new WindowBar(model, this))
    , m_launch(new LaunchView(model, this))
    , m_banner(new ErrorBanner(model, this))
    , m_sheets(new SheetHost(window))
    , m_drop(new FileDrop(window))
    , m_note(new BriefNote(window))
{
    applyTheme();
    connectModel();
    followSheets();
    connect(m_bar, &WindowBar::previewToggled, this, &ContentView::togglePreview);
    connect(m_drop, &FileDrop::targetedChanged, m_launch, &LaunchView::setTargeted);
    connect(m_drop, &FileDrop::dropped, &model, qOverload<const QList<QUrl>&>(&AppModel::requestLoad));
    onRestyle(this, [this] {
        m_window->setMinimumSize(leastWindow(minimumWindow));
        placeBanner();
    });
    m_launch->hide();  // until this is shown: it may be for photos only
    showTitle();
}

ContentView::~ContentView() = default;

void ContentView::buildColumns()
{
    if (m_columns)
        return;
    m_sidebar = new SidebarView(m_model, m_thumbs);
    m_inspector = m_factories.inspector(this);
    connect(m_sidebar->list(), &SidebarList::lookAsked, this, &ContentView::toggleCloseup);
    m_columns = new ColumnRow(m_sidebar, m_inspector, new PreviewColumnView(m_model, m_thumbs),
        storedWidth(m_model.preferences().store()), this);
    m_columns->hide();
    m_columns->setGeometry(rect());
    m_columns->stackUnder(m_launch);
    new HandleLines(m_sidebar, m_columns->handle());
    m_columns->setPreviewWanted(m_model.preferences().store().value(previewEnabledKey(), true).toBool());
    connect(m_columns, &ColumnRow::sidebarWidthSettled, this,
        [this](double width) { m_model.preferences().store().setValue(sidebarWidthKey(), width); });
    connect(m_columns, &ColumnRow::previewShownChanged, this, &ContentView::showPreviewState);
}

void ContentView::expectPhotos()
{
    m_expectsPhotos = true;
    QTimer::singleShot(launchPatience, this, [this] {
        m_expectsPhotos = false;
        showRecords();
    });
}

void ContentView::connectModel()
{
    connect(&m_model, &AppModel::recordsChanged, this, &ContentView::showRecords);
    connect(&m_model, &AppModel::photosOpened, this, &ContentView::giveListTheKeyboard);
    for (const auto change : { &AppModel::folderChanged, &AppModel::recordsChanged, &AppModel::selectionChanged })
        connect(&m_model, change, this, &ContentView::showTitle);
    connect(&m_model.preferences(), &Preferences::changed, this, &ContentView::applyTheme);
    connect(&m_systemScheme, &SystemScheme::changed, this, &ContentView::applyTheme);
    connect(m_banner, &ErrorBanner::sizeChanged, this, &ContentView::placeBanner);
}

void ContentView::followSheets()
{
    connect(m_sheets, &SheetHost::openChanged, this, [this](bool open) {
        m_drop->setEnabled(!open);
        m_bar->setEnabledMenus(!open);
        if (!open && m_listWaitsForKeyboard)
            giveListTheKeyboard();
    });
    new ModelSheets(m_model, m_sheets, m_factories, this);
}

bool ContentView::previewShown() const
{
    return m_columns && !m_columns->isHidden() && m_columns->previewShown();
}

void ContentView::showPreviewState()
{
    m_bar->setPreviewShown(previewShown());
    emit previewShownChanged(previewShown());
}

void ContentView::togglePreview()
{
    buildColumns();
    const bool wanted = !(m_columns->previewWanted() && m_window->width() >= px(Columns::previewThreshold));
    m_model.preferences().store().setValue(previewEnabledKey(), wanted);
    m_columns->setPreviewWanted(wanted);
    if (wanted)
        growWindow(px(Columns::previewThreshold + growthBeyondThreshold));  // a window that is wide enough stays
}

void ContentView::growWindow(int target)
{
    const QScreen* screen = m_window->screen();
    if (!screen || m_window->isMaximized() || m_window->isFullScreen())
        return;
    // What the window manager draws around the window has to be on the screen too.
    const QMargins frame(m_window->geometry().left() - m_window->frameGeometry().left(), 0,
        m_window->frameGeometry().right() - m_window->geometry().right(), 0);
    const QRect grown = widened(m_window->geometry(), screen->availableGeometry().marginsRemoved(frame), target);
    if (grown == m_window->geometry())
        return;
    if (!motionEnabled(m_window)) {
        m_window->setGeometry(grown);
        return;
    }
    auto* animation = new QPropertyAnimation(m_window, "geometry", m_window);
    animation->setDuration(Duration::column);
    animation->setEasingCurve(QEasingCurve::OutCubic);
    animation->setEndValue(grown);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

void ContentView::focusSearch()
{
    endCloseup();
    if (m_columns && m_columns->isVisible())
        m_sidebar->focusSearch();
}

// --- From photo to photo ---

KeptField* ContentView::keptField() const
{
    return m_inspector && m_factories.keptField ? m_factories.keptField(m_inspector) : nullptr;
}

bool ContentView::hasField() const
{
    const KeptField* field = keptField();
    return field && !m_closeup && !field->current().isEmpty();
}

void ContentView::step(int places)
{
    if (KeptField* field = keptField(); field && !m_closeup)
        field->keep();
    m_model.step(places);
}

void ContentView::saveAndGoOn()
{
    if (KeptField* field = keptField(); field && !m_closeup) {
        field->commit();
        field->keep();
    }
    const QList<int>& rows = m_model.visibleRows();
    const bool isLast = m_model.isBatch()
        ? !rows.isEmpty() && m_model.selection().contains(m_model.records().at(rows.constLast()).url)
        : !m_model.canStep(1);
    if (isLast)
        m_note->say(Texts::tr("This is the last photo"));
    m_model.saveAndGoOn();
}

void ContentView::takeFromPhotoBefore()
{
    if (!hasField())
        return;
    bool isTaken = false;
    const auto watch = connect(&m_model, &AppModel::editsChanged, this, [&isTaken] { isTaken = true; });
    m_model.takeFromPhotoBefore(keptField()->current());
    disconnect(watch);
    if (!isTaken)
        m_note->say(Texts::tr("Nothing else in the photo before"));
}

void ContentView::toggleCloseup()
{
    if (m_closeup)
        return endCloseup();
    if (!m_factories.closeup || !m_model.primaryRecord())
        return;
    m_beforeCloseup = m_window->focusWidget();
    m_closeup = m_factories.closeup(m_window);
    connect(m_closeup, &CloseupView::closed, this, &ContentView::endCloseup, Qt::QueuedConnection);
    m_closeup->show();
    m_closeup->raise();
    if (m_sheets->current())
        m_sheets->raise();
    else
        m_closeup->setFocus(Qt::OtherFocusReason);
}

// The keyboard goes back to where it was, in what is selected now; else to the list.
void ContentView::endCloseup()
{
    if (!m_closeup)
        return;
    CloseupView* closeup = std::exchange(m_closeup, nullptr);
    closeup->hide();
    closeup->deleteLater();
    if (m_sheets->current())
        return;
    if (m_beforeCloseup && m_beforeCloseup->isVisible() && m_beforeCloseup->isEnabled())
        m_beforeCloseup->setFocus(Qt::OtherFocusReason);
    else if (m_columns && m_columns->isVisible())
        m_sidebar->list()->setFocus(Qt::OtherFocusReason);
}

void ContentView::showRecords()
{
    const bool any = !m_model.records().isEmpty();
    if (any)
        buildColumns();
    m_launch->setVisible(!any && !m_expectsPhotos);
    if (m_columns) {
        const bool leaves = !any && !m_columns->isHidden();
        m_columns->setVisible(any);
        if (leaves && !m_sheets->current())  // else Qt gives it to the next control, which then looks chosen
            setFocus(Qt::OtherFocusReason);
        showPreviewState();
    }
    placeBanner();
}

// The arrow keys go through the photos at once, and nobody types into a field that shows another photo now.
void ContentView::giveListTheKeyboard()
{
    m_listWaitsForKeyboard = m_sheets->current() != nullptr;
    if (!m_listWaitsForKeyboard && m_columns && !m_columns->isHidden())
        m_sidebar->list()->setFocus(Qt::OtherFocusReason);
}

void ContentView::showTitle()
{
    m_window->setWindowTitle(m_model.folderName().isEmpty() ? Product::name() : m_model.folderName());
}

void ContentView::applyTheme()
{
    reduceMotion(m_systemScheme.isMotionReduced());
    setTheme(m_window, wantedTheme());
}

const Theme& ContentView::wantedTheme() const
{
    const std::optional<ColorScheme> chosen = m_model.preferences().colorOverride();
    // Light and dark are a choice against the desktop's high contrast, too.
    if (chosen ? *chosen == ColorScheme::highContrast : m_systemScheme.isContrastHigh())
        return HighContrast::palette(m_systemScheme.isDark());
    const bool isDark = chosen ? *chosen == ColorScheme::dark : m_systemScheme.isDark();
    return isDark ? Theme::dark() : Theme::light();
}

void ContentView::placeBanner()
{
    const bool columns = m_columns && !m_columns->isHidden();
    const int under =
        columns ? InspectorFooter::heightFor(m_inspector->width()) + px(bannerOverFooter) : px(bannerOverEdge);
    m_banner->place(height() - under);
    if (m_inspector && m_factories.setInspectorInset)
        m_factories.setInspectorInset(m_inspector, m_banner->isHidden() ? 0 : m_banner->height() + px(2 * 16));
}

void ContentView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    showRecords();
}

void ContentView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_launch->setGeometry(rect());
    if (m_columns)
        m_columns->setGeometry(rect());
    placeBanner();
}

void ContentView::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), Theme::of(this).bg);
}

}  // namespace Quorbel
