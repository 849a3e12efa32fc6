// What templates call their fields and their keys, as the user reads it. Thread: any. Pure.
#pragma once

#include <QString>

namespace Quorbel::TemplateTexts {

/// The label of the field with this key in the user's language; a custom field is called as somebody has called it.
QString shownLabel(const QString& key, const QString& label);
/// What applies the template with this digit: "Ctrl+1".
QString keys(int digit);

}  // namespace Quorbel::TemplateTexts
