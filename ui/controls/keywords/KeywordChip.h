// One keyword of an editor: a capsule with a cross, and where the keyword stands in a tree of keywords.
// Thread: the main thread. Knows no editor: whoever lays it out says whether there is room for its parents.
#pragma once

#include <QStringList>
#include <QWidget>

namespace Quorbel {

class QBIconButton;

/// A path of keywords as it is read: "Places ▸ Switzerland". In order from left to right, whatever is written how.
QString shownKeywordPath(const QStringList& elements);
/// As it is spoken: "Zürichsee, in Places, Switzerland"; of several paths, one behind the other.
QString spokenKeyword(const QString& keyword, const QList<QStringList>& parents);

/// In a cell 28 points high. The tooltip tells of all paths, and of a keyword that is cut off.
class KeywordChip final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KeywordChip)

public:
    explicit KeywordChip(QWidget* parent);
    /// `parents`: those of each path of the keyword, from the top down; none for a keyword that has no path.
    void setKeyword(const QString& keyword, const QList<QStringList>& parents, bool amber);
    /// It is never wider, and leaves out the middle of a longer path.
    void setMostWidth(int most);
    /// Whether the parents of the first path stand in front.
    void setParentsShown(bool shown);
    /// The width that the chip asks for with its parents in front.
    int widthWithParents() const;
    QSize sizeHint() const override;

signals:
    void crossed();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool areParentsShown() const { return m_parentsShown && !m_shown.isEmpty(); }
    QRect crossPlace() const;
    void measure();
    void showToolTip();
    int paintParents(QPainter& painter, const QRect& text) const;

    QString m_keyword{};
    QList<QStringList> m_parents{};
    QStringList m_shown{};  ///< of the first path's parents, what is drawn
    QFont m_keywordFont{};  ///< of a keyword behind its parents
    QFont m_arrowFont{};
    int m_arrowWidth = 0;
    QBIconButton* m_cross;
    bool m_amber = false;
    bool m_parentsShown = false;
    int m_most = QWIDGETSIZE_MAX;
    int m_width = 0;  ///< of the chip, without parents
    int m_widthWithParents = 0;
};

}  // namespace Quorbel
