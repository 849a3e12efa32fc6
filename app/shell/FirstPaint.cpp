#include "app/shell/FirstPaint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdio>

namespace Quorbel {

namespace {

class FirstPaint final : public QObject {
public:
    FirstPaint(QWidget* window, std::function<void()> then)
        : QObject(window)
        , m_then(std::move(then))
    {
        window->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            // The picture is handed to the screen after this event.
            QTimer::singleShot(0, this, [this] {
                m_then();
                deleteLater();
            });
        }
        return false;
    }

private:
    std::function<void()> m_then;
};

}  // namespace

void afterFirstPaint(QWidget* window, std::function<void()> then)
{
    new FirstPaint(window, std::move(then));
}

void traceFirstPaint(QWidget* window)
{
    if (qEnvironmentVariableIsSet("QUORBEL_TRACE_START"))
        afterFirstPaint(window, [] { std::fputs("first paint\n", stderr); });
}

}  // namespace Quorbel
