#include "platform/images/formats/PackBits.h"

#include <algorithm>

namespace Quorbel {

void unpackBits(QByteArrayView packed, QByteArray& row)
{
    qsizetype at = 0, to = 0;
    while (at < packed.size() && to < row.size()) {
        const int byte = quint8(packed[at++]), control = byte < 128 ? byte : byte - 256;
        if (control == -128)
            continue;
        const qsizetype count = qMin<qsizetype>(control >= 0 ? control + 1 : 1 - control, row.size() - to);
        if (control < 0) {
            if (at < packed.size())
                std::fill_n(row.begin() + to, count, packed[at++]);
        } else {
            const qsizetype there = qMin(count, packed.size() - at);
            std::copy_n(packed.begin() + at, there, row.begin() + to);
            at += there;
        }
        to += count;
    }
}

}  // namespace Quorbel
