// What there is to say of a write beside whether it worked. Thread: any. A plain value.
#pragma once

#include "core/tool/WriteFailures.h"

namespace Quorbel {

struct WriteNotes {
    QString messages{};  ///< what the tool printed to standard error while it wrote the values, and did not fail
    QList<QUrl> iptcLeftAlone{};  ///< targets with several IPTC blocks: they got all but the values bound for IPTC
    QList<FileFailure> sidecars{};  ///< sidecars that are not up to date, and why
};

}  // namespace Quorbel
