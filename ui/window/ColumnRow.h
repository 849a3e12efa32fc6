// The three columns of the window: sidebar, inspector and, where there is room, the preview.
// Thread: the main thread. Knows nothing of what the columns show; it gives them their widths.
#pragma once

#include "ui/controls/theme/AnimatedValue.h"

#include <QWidget>

namespace Quorbel {

class ResizeHandle;

namespace Columns {  // points
constexpr double minSidebar = 200;
constexpr double maxSidebar = 420;
constexpr double defaultSidebar = 288;
constexpr qreal previewThreshold = 1100;  ///< row width from which the preview has room
constexpr qreal minInspector = 430;
}  // namespace Columns

class ColumnRow final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ColumnRow)

public:
    /// Takes the three columns over. `sidebarWidth`, in points, is brought into its limits.
    ColumnRow(QWidget* sidebar, QWidget* inspector, QWidget* preview, double sidebarWidth, QWidget* parent = nullptr);

    bool previewWanted() const { return m_wanted; }
    void setPreviewWanted(bool wanted);
    /// Wanted, and the row is wide enough.
    bool previewShown() const;
    ResizeHandle* handle() const { return m_handle; }

signals:
    void previewShownChanged(bool shown);
    /// The user let go of the handle. In points.
    void sidebarWidthSettled(double width);

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    int sidebarWidth() const;
    void followWidth();
    void arrange();
    void slidePreview();

    QWidget* m_sidebar;
    ResizeHandle* m_handle;
    QWidget* m_inspector;
    QWidget* m_preview;
    bool m_wanted = true;
    bool m_wasShown = false;
    AnimatedValue m_reveal;  ///< 0 the preview is away … 1 it is there, while it slides
};

}  // namespace Quorbel
