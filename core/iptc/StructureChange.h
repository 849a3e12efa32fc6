// How structures of one photo become others without a loss: the tool drops what it does not know where it is given a
// whole structure. Thread: any. Pure.
#pragma once

#include "core/schema/FieldSpec.h"
#include "core/tool/Assignment.h"

namespace Quorbel {

struct ListChange;

struct StructureChange {
    QList<Assignment> assignments{};  ///< none where the photo holds just that already
    QStringList expected{};  ///< what the photo holds afterwards
    /// Why it cannot be done; then there are no assignments.
    QString problem{};

    /// `held`: what the photo holds under this field, be it one structure or several, as it was read just before.
    static StructureChange of(const FieldSpec& field, const QStringList& held, const ListChange& change);
};

}  // namespace Quorbel
