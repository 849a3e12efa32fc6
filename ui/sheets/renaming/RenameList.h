// The list of old and new names, of any length: only the rows on screen are ever painted.
// Thread: the main thread. Shows a plan; knows no model of the program.
#pragma once

#include "core/renaming/RenamePlan.h"

#include <QListView>

#include <memory>

namespace Quorbel {

class RenameRows;

class RenameList final : public QListView {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RenameList)

public:
    explicit RenameList(QWidget* parent = nullptr);
    /// Null: no row. Another plan of as many rows keeps the place.
    void setPlan(const std::shared_ptr<const RenamePlan>& plan);
    /// Goes to the next row that is marked, round and round; false where none is.
    bool goToNextMarked();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOutRows();

    RenameRows* m_rows;
};

}  // namespace Quorbel
