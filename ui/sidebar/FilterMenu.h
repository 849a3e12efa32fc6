// The menu of the filters: a tick, a name and a count for each, stars, a text in any field. It stays open while one
// ticks. Thread: the main thread. Shows Filtering and calls it.
#pragma once

#include "ui/controls/attached/Popover.h"
#include "ui/sidebar/FilterTexts.h"

#include <QList>

class QVBoxLayout;

namespace Quorbel {

class AppModel;
class Filtering;
class MenuRow;
class QBTextField;
class RatingEditor;
class ScrollArea;
class ThemedLabel;

class FilterMenu final : public Popover {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FilterMenu)

public:
    FilterMenu(AppModel& model, QWidget* opener);
    /// Under the opener.
    void popUp();

protected:
    int heightIn(int width) override;
    void arrange(const QRect& box) override;
    bool staysInWindow() const override { return false; }
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    struct Row {
        FilterText text{};
        MenuRow* widget = nullptr;
    };

    void build(QVBoxLayout* column);
    void addHeader(QVBoxLayout* column, const QString& title, ThemedLabel* note);
    void addRow(QVBoxLayout* column, const FilterText& text);
    QWidget* buildStars();
    QWidget* buildField();
    void follow();
    void clear();
    void walk(int step);
    QList<QWidget*> stops() const;

    Filtering& m_filtering;
    QWidget* m_opener;
    ScrollArea* m_scroll;
    QWidget* m_content;
    ThemedLabel* m_unread;
    ThemedLabel* m_starCount;
    RatingEditor* m_stars;
    QBTextField* m_field;
    MenuRow* m_clear;
    QList<Row> m_rows;
};

}  // namespace Quorbel
