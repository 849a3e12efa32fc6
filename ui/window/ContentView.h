// What the main window shows: the launch view or the three columns, the banner over them, sheets over all.
// Thread: the main thread. Shows AppModel and calls it; keeps two settings of its own, "sidebarWidth" and
// "previewEnabled", in the same store.
#pragma once

#include "ui/window/ContentFactories.h"

#include <QPointer>
#include <QWidget>

namespace Quorbel {

class AppModel;
class BriefNote;
class CloseupView;
class ColumnRow;
class ErrorBanner;
class FileDrop;
class KeptField;
class LaunchView;
class SheetHost;
class SidebarView;
class SystemScheme;
struct Theme;
class ThumbnailStore;
class WindowBar;

class ContentView final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ContentView)

public:
    static constexpr QSize minimumWindow{ 900, 600 };  ///< points; the window gets it as its minimum

    /// `window` is the top-level widget that this view is about to be placed in: it takes the drops, the sheets and
    /// the theme. The store may be null. Everything passed in must outlive this.
    ContentView(AppModel& model, ThumbnailStore* thumbs, SystemScheme& systemScheme, QWidget* window,
        ContentFactories factories);
    ~ContentView() override;
    /// What the user chose, or else what the desktop asks for.
    const Theme& wantedTheme() const;

    /// Builds what shows photos, if it is not there yet. That happens by itself when photos come; done earlier, at
    /// leisure, it makes their coming quicker.
    void buildColumns();
    /// Photos are about to come: what invites to open some stays away for a moment, or until they are there.
    void expectPhotos();
    WindowBar* bar() const { return m_bar; }
    SheetHost* sheets() const { return m_sheets; }
    bool previewShown() const;
    /// Hides the preview column; or shows it, growing the window where it is too narrow for it.
    void togglePreview();
    void focusSearch();
    /// The next photo or the one before, and the same after a save; the field that has the keyboard keeps it.
    void step(int places);
    void saveAndGoOn();
    /// Fills the field that has the keyboard.
    void takeFromPhotoBefore();
    /// Whether a field of the inspector has the keyboard, or had it when a menu took it.
    bool hasField() const;
    /// Looks closely at the primary photo, or no longer.
    void toggleCloseup();

signals:
    void previewShownChanged(bool shown);

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void connectModel();
    void followSheets();
    void showRecords();
    void giveListTheKeyboard();
    void showPreviewState();
    void showTitle();
    void applyTheme();
    void placeBanner();
    void growWindow(int target);
    KeptField* keptField() const;
    void endCloseup();

    AppModel& m_model;
    ThumbnailStore* m_thumbs;
    SystemScheme& m_systemScheme;
    QWidget* m_window;
    ContentFactories m_factories;
    WindowBar* m_bar;
    LaunchView* m_launch;
    SidebarView* m_sidebar = nullptr;
    QWidget* m_inspector = nullptr;
    ColumnRow* m_columns = nullptr;
    ErrorBanner* m_banner;
    SheetHost* m_sheets;
    FileDrop* m_drop;
    BriefNote* m_note;
    CloseupView* m_closeup = nullptr;  ///< while one looks closely
    QPointer<QWidget> m_beforeCloseup{};  ///< what had the keyboard
    bool m_expectsPhotos = false;
    bool m_listWaitsForKeyboard = false;  ///< until the sheet over it is closed
};

}  // namespace Quorbel
