// A word at the foot of the list that goes by itself: where the way from gap to gap has led.
// Thread: the main thread. Knows nothing of what it says.
#pragma once

#include <QTimer>
#include <QWidget>

namespace Quorbel {

class PassingNote final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PassingNote)

public:
    /// Lies over the lower end of `over`, and lets the mouse through.
    explicit PassingNote(QWidget* over);
    /// Shown for a moment, and spoken.
    void say(const QString& text);
    const QString& text() const { return m_text; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void place();

    QString m_text;
    QTimer m_end;
};

}  // namespace Quorbel
