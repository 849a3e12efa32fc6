// The camera's details of one photo: labels and values in one or two columns, not editable.
// Thread: the main thread.
#pragma once

#include "core/schema/ImageRecord.h"

#include <QWidget>

namespace Quorbel {

class CameraSection final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CameraSection)

public:
    explicit CameraSection(QWidget* parent = nullptr);
    void setRows(const QList<CameraRow>& rows);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return { 0, sizeHint().height() }; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct Cell {
        QRect label{};
        QRect value{};
    };
    /// Two from 470 points of width on, filled one after the other.
    int columns() const;
    Cell cell(int index) const;
    int linesPerColumn() const;
    int secondColumnWidth() const;

    QList<CameraRow> m_rows;
};

}  // namespace Quorbel
