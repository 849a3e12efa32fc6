// The editors of the kinds that only fields of IptcSchema have.
// Thread: the main thread. As RowEditor: they know the row that they report to, nothing of the model.
#pragma once

#include "ui/inspector/RowEditor.h"

namespace Quorbel::IptcEditors {

/// One code of a vocabulary, or several.
RowEditor codes(const FieldSpec& field, FieldRow& row);
/// A text that is mostly a code of this vocabulary.
RowEditor textOrCode(const QString& vocabulary, const CodeTexts& codes, FieldRow& row);
/// One structure, or several.
RowEditor structures(const FieldSpec& field, const CodeTexts& codes, FieldRow& row);

}  // namespace Quorbel::IptcEditors
