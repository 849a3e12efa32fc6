// Menus in our own look: 28-point rows, a check mark before what is on, a dark row under the pointer.
// Thread: the main thread.
#pragma once

#include <QKeySequence>
#include <QMenu>

#include <functional>
#include <optional>

namespace Quorbel {

/// A QMenu that paints itself; actions, shortcuts, keyboard and accessibility are QMenu's. The theme is that of its
/// parent widget.
class ThemedMenu final : public QMenu {
    Q_OBJECT

public:
    explicit ThemedMenu(QWidget* parent = nullptr);
    explicit ThemedMenu(const QString& title, QWidget* parent = nullptr);
    /// A line in small muted type above a group of items; cannot be chosen.
    QAction* addHeader(const QString& title);
    ThemedMenu* addThemedMenu(const QString& title);
    /// Of several keys the first is shown.
    QAction* addCommand(const QString& text, const QList<QKeySequence>& keys, const std::function<void()>& run);
    /// The text as an item's, in which "&" is itself and marks no letter.
    static QString literal(QString text);
    /// Shows the menu under a widget, aligned with its left or right edge; returns at once. Deletes itself when
    /// closed if `once`.
    void popUpUnder(const QWidget* anchor, Qt::Alignment edge = Qt::AlignLeft, bool once = false);

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void setUp();
    void makeRoom();
    /// The menu without the room for its shadow.
    QRect box() const { return rect() - contentsMargins(); }
    QRect wantedBox() const;
    bool passOn(QMouseEvent* event);
    void paintItem(QPainter& painter, const QAction* action, const QRect& rect);

    std::optional<QRect> m_place;  ///< of the box, global; where it was put under a widget
};

}  // namespace Quorbel
