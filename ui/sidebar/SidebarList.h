// The scrolling list of photos: rows painted by a delegate, selection kept by AppModel.
// Thread: the main thread. Only the rows on screen are ever laid out in detail, painted, or given thumbnails.
#pragma once

#include "app/model/library/filter/PhotoFilter.h"
#include "core/schema/RecordSortOrder.h"
#include "ui/sidebar/GroupedListView.h"
#include "ui/sidebar/SidebarModel.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>

namespace Quorbel {

class AppModel;
class ThumbnailStore;

/// A list view whose every choice goes through AppModel::tap(): clicks, arrows, Home, End, PageUp, PageDown (with
/// Shift for a range, with Ctrl to move without choosing, then Space to add or take out), and typing a name's first
/// letters. Enter and a double-click open the photo in the user's default application. 0 to 5 rate the selected photos;
/// within a name that is being typed they belong to it. Space asks for a close look.
/// A folder's heading is folded and unfolded by a click, by Return and Space; with Alt all of them are. The keyboard
/// stops at folded ones, passes over the others, and gets to them with Left, which folds; Right unfolds. Being on a
/// heading selects nothing.
class SidebarList final : public GroupedListView {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SidebarList)

public:
    /// The store may be null: rows then have empty thumbnails.
    SidebarList(AppModel& model, ThumbnailStore* thumbs, QWidget* parent = nullptr);

    void keyboardSearch(const QString& text) override;
    /// Takes the focus for the arrow keys. Selects the first photo shown when the primary one is not among them.
    void takeKeyboard();

signals:
    /// The primary photo is to be looked at closely.
    void lookAsked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    void focusInEvent(QFocusEvent* event) override;
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;

private:
    /// The photo that is seen first, and what it is seen in.
    struct Place {
        std::optional<QUrl> folder{};
        QString search{};
        RecordSortOrder order{};
        PhotoFilter filter{};
        QUrl photo{};
        int y = 0;
    };

    void showSelection();
    void showReset();
    void rememberPlace();
    Place placeNow() const;
    void showPrimary();
    void showCursor();
    void goTo(int row);
    QItemSelection selectedRanges() const;
    bool moveCursor(const QKeyEvent& event);
    bool moveAcross(const QKeyEvent& event);
    std::optional<int> rowAfter(int key, int row, bool photosOnly) const;
    int stop(int row, int step, bool photosOnly) const;
    void setFolded(int heading, bool on, bool all);
    bool isTyping() const;
    void choose(int row, bool shift, bool command);
    void followScreen();
    void requestThumbnails();
    void tellInView();
    void repaintThumbnail(const QUrl& url);
    void setByKeyboard(bool on);

    AppModel& m_model;
    QPointer<ThumbnailStore> m_thumbs;
    SidebarModel& m_rows;  ///< a child of this: views outlive their members
    QTimer m_thumbnailsSoon;
    QTimer m_inViewSoon;
    bool m_hasToldInView = false;  ///< of what is open now
    Place m_place;
    bool m_byKeyboard = false;
    QUrl m_heading{};  ///< the folder whose heading the keyboard is on; empty: it is on a photo
    QString m_typed{};
    QElapsedTimer m_sinceTyped{};
};

}  // namespace Quorbel
