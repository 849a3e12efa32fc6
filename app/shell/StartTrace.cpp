#include "app/shell/StartTrace.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdio>

namespace Quorbel {

namespace {

class FirstPaint final : public QObject {
public:
    explicit FirstPaint(QWidget* window)
        : QObject(window)
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
                std::fputs("first paint\n", stderr);
                deleteLater();
            });
        }
        return false;
    }
};

}  // namespace

void StartTrace::watch(QWidget* window)
{
    if (qEnvironmentVariableIsSet("QUORBEL_TRACE_START"))
        new FirstPaint(window);
}

}  // namespace Quorbel
