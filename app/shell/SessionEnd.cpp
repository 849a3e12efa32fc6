#include "app/shell/SessionEnd.h"

#include "app/model/AppModel.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QSessionManager>

namespace Quorbel {

SessionEnd::SessionEnd(AppModel& model, std::function<void()> requestQuit, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_requestQuit(std::move(requestQuit))
{
    // Directly: the answer is read when the signal returns.
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &SessionEnd::commitData, Qt::DirectConnection);
}

void SessionEnd::commitData(QSessionManager& manager)
{
    m_model.keepEdits();
    if (m_model.unsavedCount() == 0 && !m_model.isSaving())
        return;
    // Not without an answer: the session would go on to end under the dialog.
    if (!manager.allowsInteraction())
        return;
    const bool mayEnd = ask();
    manager.release();
    if (!mayEnd)
        manager.cancel();
}

bool SessionEnd::ask()
{
    QEventLoop loop;
    const auto look = [this, &loop] {
        if (!m_model.isHoldingBack())
            loop.quit();
    };
    for (const auto changed : { &AppModel::saveOpenChanged, &AppModel::isSavingChanged })
        connect(&m_model, changed, &loop, look, Qt::QueuedConnection);
    m_requestQuit();
    if (m_model.isHoldingBack())
        loop.exec();
    return m_model.unsavedCount() == 0 && !m_model.isSaving();
}

}  // namespace Quorbel
