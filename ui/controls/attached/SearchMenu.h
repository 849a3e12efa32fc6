// A long menu with a field above it in which one types what to look for.
// Thread: the main thread. Knows nothing of what its rows stand for.
#pragma once

#include "ui/controls/attached/Popover.h"

#include <QList>

#include <functional>
#include <optional>

class QListWidget;

namespace Quorbel {

class QBTextField;
class ThemedLabel;

/// One that can be picked.
struct SearchMenuRow {
    QString title{};
    QString code{};  ///< shown at the right, and found too
    bool operator==(const SearchMenuRow&) const = default;
};

/// The keyboard stays in the field: Up, Down, Page Up and Down go through the rows, Return picks. As high as eight
/// rows.
class SearchMenu final : public Popover {
    Q_OBJECT

public:
    static constexpr int mostRows = 8;

    /// `name` is what screen readers hear, `placeholder` stands in the empty field.
    SearchMenu(const QString& name, const QString& placeholder, QWidget* opener);
    void setRows(const QList<SearchMenuRow>& rows);
    /// Makes a row of what was typed, or none.
    void setOther(std::function<std::optional<SearchMenuRow>(const QString& typed)> other);
    /// Said in the place of the rows when nothing is found.
    void setNothingFound(const QString& text);
    QBTextField* field() const { return m_field; }
    QListWidget* list() const { return m_list; }

signals:
    void picked(const Quorbel::SearchMenuRow& row);

protected:
    int heightIn(int width) override;
    void arrange(const QRect& box) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void find();
    void pick(int row);
    bool useKey(int key);
    void goTo(int row);

    QBTextField* m_field;
    QListWidget* m_list;
    ThemedLabel* m_nothing;
    QList<SearchMenuRow> m_rows;
    QList<SearchMenuRow> m_found;
    std::function<std::optional<SearchMenuRow>(const QString&)> m_other;
};

}  // namespace Quorbel
