// A long menu with a field above it in which one types what to look for.
// Thread: the main thread. Knows nothing of what its rows stand for.
#pragma once

#include "ui/controls/attached/SearchPopover.h"

#include <QList>

#include <functional>
#include <optional>

namespace Quorbel {

/// One that can be picked.
struct SearchMenuRow {
    QString title{};
    QString code{};  ///< shown at the right, and found too
    QString english{};  ///< of a title in the user's language: found too, not shown
    bool operator==(const SearchMenuRow&) const = default;
};

/// As high as eight rows, and as high with few as with many: what one types must not move the menu about.
class SearchMenu final : public SearchPopover {
    Q_OBJECT

public:
    static constexpr int mostRows = 8;

    SearchMenu(const QString& name, const QString& placeholder, QWidget* opener);
    void setRows(const QList<SearchMenuRow>& rows);
    /// Makes a row of what was typed, or none.
    void setOther(std::function<std::optional<SearchMenuRow>(const QString& typed)> other);

signals:
    void picked(const Quorbel::SearchMenuRow& row);

protected:
    int heightIn(int width) override;
    int find(const QString& typed) override;
    void pick(int row) override;
    int pageRows() const override { return mostRows; }

private:
    QList<SearchMenuRow> m_rows;
    QList<SearchMenuRow> m_found;
    std::function<std::optional<SearchMenuRow>(const QString&)> m_other;
};

}  // namespace Quorbel
