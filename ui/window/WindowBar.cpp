#include "ui/window/WindowBar.h"

#include "app/model/AppModel.h"
#include "app/model/library/filter/Filtering.h"
#include "core/Product.h"
#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/ThemedMenu.h"
#include "ui/controls/ThemedMenuBar.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"
#include "ui/inspector/InspectorStates.h"

#include <QHBoxLayout>
#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal barHeight = 52;
constexpr qreal titleTop = 9;
constexpr qreal titleHeight = 18;
constexpr qreal subtitleHeight = 15;
constexpr qreal titleGap = 16;  // at least, to menus and tools
constexpr qreal leastTitle = 60;  // in less than that nothing could be read

// What one should know before one trusts that the list is up to date; "" where one may.
QString watchingText(const Watching& watching)
{
    if (watching.how == Watching::How::looking && watching.folders == 1)
        //: %1 is the program.
        return Texts::tr("This folder does not report changes; %1 looks every few seconds.").arg(Product::name());
    if (watching.how == Watching::How::looking)
        //: %1 is the program.
        return Texts::tr("Not all of these folders report changes; %1 looks every few seconds.").arg(Product::name());
    if (watching.how == Watching::How::partly)
        //: Of %2 folders, only %1 do.
        return Texts::tr("Only %1 of %2 folders report changes. Refresh to see what changed in the others.", nullptr,
            watching.folders)
            .arg(QString::number(watching.watched), QString::number(watching.folders));
    return {};
}

}  // namespace

WindowBar::WindowBar(AppModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_line(new QHBoxLayout(this))
    , m_tools(new QWidget)
{
    m_line->setSpacing(0);
    m_line->addStretch();
    m_line->addWidget(m_tools);

    auto* tools = new QHBoxLayout(m_tools);
    m_refresh = addTool(tools, u"arrow.clockwise"_s, Texts::tr("Refresh folder"));
    connect(m_refresh, &QAbstractButton::clicked, &model, &AppModel::refresh);
    m_preview = addTool(tools, u"rectangle.split.2x1"_s, Texts::tr("Show preview"));
    connect(m_preview, &QAbstractButton::clicked, this, &WindowBar::previewToggled);
    m_settings = addTool(tools, u"ellipsis"_s, Texts::tr("Settings"));
    connect(m_settings, &QAbstractButton::clicked, this, &WindowBar::openSettingsMenu);
    m_save = new QBButton(InspectorStates::saveTitle(model), QBButtonKind::primary);
    connect(m_save, &QAbstractButton::clicked, &model, &AppModel::requestSave);
    auto* saveGap = new QHBoxLayout;  // 12 from the last icon: the spacing and this
    saveGap->addWidget(m_save);
    tools->addLayout(saveGap);
    onRestyle(this, [=, this] {
        m_line->setContentsMargins(mirrored(QMargins(px(4), 0, px(12), 1)));
        tools->setContentsMargins(0, 0, 0, 0);
        tools->setSpacing(px(4));
        saveGap->setContentsMargins(mirrored(QMargins(px(8), 0, 0, 0)));
        setFixedHeight(px(barHeight));
    });

    for (const auto change : { &AppModel::selectionChanged, &AppModel::isSavingChanged, &AppModel::recordsChanged,
             &AppModel::folderChanged, &AppModel::unsavedCountChanged })
        connect(&model, change, this, &WindowBar::follow);
    connect(&model, &AppModel::visibleRowsChanged, this, &WindowBar::follow);
    connect(&model.filtering(), &Filtering::changed, this, &WindowBar::follow);
    follow();
    connect(&model, &AppModel::watchingChanged, this, &WindowBar::followWatching);
    followWatching();
}

ThemedMenuBar* WindowBar::menuBar()
{
    if (!m_menus) {
        m_menus = new ThemedMenuBar(this);
        m_menus->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
        m_line->insertWidget(0, m_menus, 0, Qt::AlignVCenter);
        m_menus->show();
    }
    return m_menus;
}

QBIconButton* WindowBar::addTool(QHBoxLayout* line, const QString& icon, const QString& name)
{
    auto* button = new QBIconButton(icon, name);
    line->addWidget(button);
    return button;
}

QSize WindowBar::sizeHint() const
{
    return { px(900), px(barHeight) };
}

void WindowBar::setPreviewShown(bool shown)
{
    m_preview->setName(shown ? Texts::tr("Hide preview") : Texts::tr("Show preview"));
    m_preview->setHighlighted(shown);
}

void WindowBar::setEnabledMenus(bool enabled)
{
    menuBar()->setEnabled(enabled);
}

void WindowBar::follow()
{
    m_save->setText(InspectorStates::saveTitle(m_model));
    m_save->setAccessibleName(m_save->text());
    m_save->setEnabled(m_model.unsavedCount() >= 1 && !m_model.isSaving());
    m_save->updateGeometry();
    setAccessibleName(shownTitle());
    setAccessibleDescription(m_model.folderCountText());
    update();
}

void WindowBar::followWatching()
{
    m_refresh->setHint(watchingText(m_model.watching()));
}

void WindowBar::openSettingsMenu()
{
    auto* menu = new ThemedMenu(this);
    const auto add = [&](const QString& text, Setting<bool>& setting) {
        QAction* action = menu->addAction(text);
        action->setCheckable(true);
        action->setChecked(setting());
        connect(action, &QAction::toggled, &m_model, [&setting](bool on) { setting.set(on); });
    };
    Preferences& preferences = m_model.preferences();
    add(Texts::tr("Show namespace details"), preferences.showNamespace);
    add(Texts::tr("Back up originals before writing"), preferences.backupOriginals);
    add(Texts::tr("Also write sidecar .xmp"), preferences.writeSidecar);
    menu->popUpUnder(m_settings, Qt::AlignRight, true);
}

void WindowBar::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.fillRect(rect(), theme.titlebar);
    painter.fillRect(0, height() - 1, width(), 1, theme.line);
    paintTitles(painter);
}

QString WindowBar::shownTitle() const
{
    return m_model.folderName().isEmpty() ? Product::name() : m_model.folderName();
}

// Centred on the window, as long as both sides leave room for it.
void WindowBar::paintTitles(QPainter& painter) const
{
    const Theme& theme = Theme::of(this);
    const int side = qMax(m_menus ? mirrored(m_menus->geometry(), this).right() : 0,
                         width() - mirrored(m_tools->geometry(), this).left())
        + px(titleGap);
    QRect line(side, px(titleTop), width() - 2 * side, px(titleHeight));
    if (line.width() < px(leastTitle))
        return;
    // The folder's name; the program's own comes before there is a reason to copy a font.
    const bool isName = !m_model.folderName().isEmpty();
    painter.setFont(isName ? verbatimFont(13, QFont::DemiBold) : sansFont(13, QFont::DemiBold));
    painter.setPen(theme.text);
    painter.drawText(line, Qt::AlignCenter,
        keptInOrder(painter.fontMetrics().elidedText(shownTitle(), Qt::ElideMiddle, line.width())));
    line.translate(0, line.height());
    line.setHeight(px(subtitleHeight));
    painter.setFont(sansFont(11));
    painter.setPen(theme.derived.label);
    painter.drawText(line, Qt::AlignCenter,
        painter.fontMetrics().elidedText(m_model.folderCountText(), Qt::ElideRight, line.width()));
}

}  // namespace Quorbel
