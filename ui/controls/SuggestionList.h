// A list of suggestions that drops down under a field and is driven from the field's keyboard.
// Thread: the main thread. Never takes the focus; lies over its neighbours inside the field's window.
#pragma once

#include <QPointer>
#include <QWidget>

namespace Quorbel {

struct SuggestionRow {
    QString title{};
    QString subtitle{};  ///< the rows are 44 points high when any row has one, else 28
    QString spoken{};  ///< in the place of both texts; none when empty
    bool isPath = false;  ///< the subtitle is the beginning of a path and its end: cut in the middle, and to be read
    bool operator==(const SuggestionRow&) const = default;
};

class SuggestionList final : public QWidget {
    Q_OBJECT

public:
    explicit SuggestionList(QWidget* field);
    const QList<SuggestionRow>& rows() const { return m_rows; }
    /// Shows rows under the field; hides when there are none.
    void showRows(const QList<SuggestionRow>& rows);
    /// Shows one muted line instead.
    void showMessage(const QString& message);
    const QString& message() const { return m_message; }
    void dismiss();
    int currentRow() const { return m_current; }
    void setCurrentRow(int row);
    /// Up, Down, Page Up and Down, Return, Escape as the field got them; true when the list used the key.
    bool handleKey(QKeyEvent* event);
    /// The part of this widget where a row is drawn.
    QRect rowRect(int row) const;
    int visibleRows() const;

signals:
    void activated(int row);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void place();
    void paintRow(QPainter& painter, int row);
    int rowAt(QPoint pos) const;
    int rowHeight() const;

    QPointer<QWidget> m_field;
    QList<SuggestionRow> m_rows;
    QString m_message;
    int m_current = -1;
    int m_first = 0;  ///< the topmost row shown
};

}  // namespace Quorbel
