#include "app/model/Background.h"

#include <sys/resource.h>
#include <unistd.h>

namespace Quorbel {

QThreadPool& patientThreads()
{
    static QThreadPool threads;
    threads.setMaxThreadCount(100);
    return threads;
}

void bePatient()
{
    constexpr int patience = 10;
    setpriority(PRIO_PROCESS, id_t(gettid()), patience);
}

}  // namespace Quorbel
