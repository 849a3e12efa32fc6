#include "ui/inspector/iptc/DetailsWait.h"

#include "app/model/AppModel.h"
#include "app/model/library/details/DetailsFailures.h"

namespace Quorbel {

namespace {
constexpr int patience = 400;  // milliseconds: nobody looks at a photo that one only passes, and then the tool starts
}  // namespace

DetailsWait::DetailsWait(const AppModel& model, QObject* parent)
    : QObject(parent)
    , m_model(model)
{
    m_late.setSingleShot(true);
    m_late.setInterval(patience);
    connect(&m_late, &QTimer::timeout, this, &DetailsWait::late);
}

void DetailsWait::follow(bool fresh)
{
    const bool was = std::exchange(m_isOn, !m_model.isBatch() && !m_model.knowsDetails());
    m_hasJustEnded = was && !m_isOn;
    // Rows of several photos do not look like those of one.
    const bool wasBatch = std::exchange(m_wasBatch, m_model.isBatch());
    if (!m_isOn || wasBatch || m_model.detailsFailure())
        m_late.stop();
    else if (fresh || !was)
        m_late.start();
}

}  // namespace Quorbel
