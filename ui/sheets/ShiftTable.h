// The table of the shift sheet: up to three photos with their times before and after. Thread: the main thread.
#pragma once

#include "app/model/timeshift/ShiftPreview.h"

#include <QWidget>

#include <array>

namespace Quorbel {

class ThemedLabel;

/// As high as its three rows, however many of them are filled.
class ShiftTable final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ShiftTable)

public:
    static constexpr int rows = 3;

    explicit ShiftTable(QWidget* parent = nullptr);
    void setRows(const QList<ShiftPreview::Row>& rows);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Line {
        ThemedLabel* title = nullptr;
        ThemedLabel* before = nullptr;
        ThemedLabel* arrow = nullptr;
        ThemedLabel* after = nullptr;
    };

    void arrange();

    std::array<Line, rows> m_lines{};
};

}  // namespace Quorbel
