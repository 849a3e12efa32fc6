// What the folded sections of the inspector's form say of their fields.
// Thread: the main thread. Reads the model; knows no widget but the shape of what is said.
#pragma once

#include "core/schema/FieldSpec.h"
#include "ui/controls/cards/Summary.h"

#include <functional>

namespace Quorbel {

class AppModel;

namespace IptcSummary {

/// The values of these fields in one line, and behind them what is said of all of them. `held`: how many of several
/// photos hold a field, "" where that is not to be told.
Summary of(const AppModel& model, const QStringList& ids, const std::function<QString(const QString& id)>& held,
    const QString& behind);
/// "2 places", where these fields are one that holds several structures; else "".
QString countText(const AppModel& model, const QStringList& ids);
/// Whether one of them, or its text in a further language, has an unsaved edit.
bool isEdited(const AppModel& model, const QStringList& ids);

}  // namespace IptcSummary

}  // namespace Quorbel
