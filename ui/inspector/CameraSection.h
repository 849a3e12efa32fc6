// The camera's details of one photo: labels and values in one or two columns, not editable. Each row is a widget of
// its own, so that screen readers come to it.
// Thread: the main thread.
#pragma once

#include "core/schema/ImageRecord.h"

#include <QWidget>

namespace Quorbel {

class CameraLine;

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

private:
    /// Two from 470 points of width on, filled one after the other.
    int columns() const;
    int linesPerColumn() const;
    int secondColumnWidth() const;
    void arrange();

    QList<CameraRow> m_rows;
    QList<CameraLine*> m_lines;  ///< kept once made; the first ones show the rows
};

}  // namespace Quorbel
