// The scrolling list of photos: rows painted by a delegate, selection kept by AppModel.
// Thread: the main thread. Only the rows on screen are ever laid out in detail, painted, or given thumbnails.
#pragma once

#include "ui/sidebar/SidebarModel.h"

#include <QElapsedTimer>
#include <QListView>
#include <QPointer>
#include <QTimer>

namespace Quorbel {

class AppModel;
class ThumbnailStore;

/// A list view whose every choice goes through AppModel::tap(): clicks, arrows, Home, End, PageUp, PageDown (with
/// Shift for a range, with Ctrl to move without choosing, then Space to add or take out), and typing a name's first
/// letters. Enter and a double-click open the photo in the user's default application.
class SidebarList final : public QListView {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SidebarList)

public:
    /// The store may be null: rows then have empty thumbnails.
    SidebarList(AppModel& model, ThumbnailStore* thumbs, QWidget* parent = nullptr);

    void keyboardSearch(const QString& text) override;
    /// Takes the focus for the arrow keys. Selects the first photo shown when the primary one is not among them.
    void takeKeyboard();

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
    void dataChanged(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles = {}) override;
    void paintEvent(QPaintEvent* event) override;
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;

private:
    void showSelection();
    void showPrimary();
    QItemSelection selectedRanges() const;
    bool moveCursor(const QKeyEvent& event);
    int rowAfter(int key, int row) const;
    bool isTyping() const;
    void choose(int row, bool shift, bool command);
    void followScreen();
    void requestThumbnails();
    void tellInView();
    void repaintThumbnail(const QUrl& url);
    std::pair<int, int> rowsOnScreen() const;
    QString emptyText() const;
    void setByKeyboard(bool on);

    AppModel& m_model;
    QPointer<ThumbnailStore> m_thumbs;
    SidebarModel m_rows;
    QTimer m_thumbnailsSoon;
    QTimer m_inViewSoon;
    bool m_hasToldInView = false;  ///< of what is open now
    bool m_byKeyboard = false;
    QString m_typed{};
    QElapsedTimer m_sinceTyped{};
};

}  // namespace Quorbel
