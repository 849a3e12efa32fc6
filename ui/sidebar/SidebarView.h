// The left column: how many photos are selected, the search, the filters, the sort order, what limits the list, the
// list, and long work at its foot. Thread: the main thread. Shows AppModel and calls it.
#pragma once

#include <QPointer>
#include <QWidget>

#include <optional>

namespace Quorbel {

class AppModel;
class BriefNote;
class FilterChips;
class FilterMenu;
class ProgressFoot;
class QBIconButton;
class QBTextField;
class SidebarList;
class ThumbnailStore;

class SidebarView final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SidebarView)

public:
    /// The store may be null: rows then have empty thumbnails.
    SidebarView(AppModel& model, ThumbnailStore* thumbs, QWidget* parent = nullptr);

    SidebarList* list() const { return m_list; }
    /// Puts the keyboard into the search field.
    void focusSearch();
    /// y of the hairline between the search field and the list, device-independent pixels.
    int listTop() const;
    /// y of the line under a folder's heading that stays at the top of the list; nothing while there is none.
    std::optional<int> stuckLine() const;
    /// Where the foot of long work is; empty while there is none.
    QRect footRect() const;

signals:
    /// The foot appeared or went.
    void footChanged();
    /// stuckLine() or listTop() may have another answer.
    void stuckLineMoved();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* buildHeader();
    QWidget* buildFind();
    QWidget* buildChips();
    QWidget* buildDisagreements();
    void openSortMenu();
    void openFilterMenu();
    void followFilters();
    void fitFind();

    AppModel& m_model;
    QBTextField* m_search = nullptr;
    QBIconButton* m_filter = nullptr;
    QBIconButton* m_sort = nullptr;
    QWidget* m_find = nullptr;
    FilterChips* m_chips = nullptr;
    QPointer<FilterMenu> m_menu;
    BriefNote* m_note = nullptr;
    SidebarList* m_list = nullptr;
    ProgressFoot* m_foot = nullptr;
};

}  // namespace Quorbel
