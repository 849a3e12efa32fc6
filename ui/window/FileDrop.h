// Makes a whole window take files that are dragged onto it, whatever lies under the pointer.
// Thread: the main thread. Knows nothing of what the files are.
#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

class QDropEvent;
class QWidget;

namespace Quorbel {

class FileDrop final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FileDrop)

public:
    /// `window` must outlive this.
    explicit FileDrop(QWidget* window);

    /// While off, the window takes no files.
    void setEnabled(bool enabled) { m_enabled = enabled; }

signals:
    /// A drag with files hovers over the window, or no longer does.
    void targetedChanged(bool targeted);
    /// File URLs in the order in which they came; never empty.
    void dropped(const QList<QUrl>& urls);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool windowEvent(QEvent* event);
    void drop(QDropEvent& event);

    QWidget* m_window;
    bool m_enabled = true;
};

}  // namespace Quorbel
