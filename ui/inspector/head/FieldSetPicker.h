// Chooses the set of fields that the form shows. Thread: the main thread. Shows the sets and calls them.
#pragma once

#include "ui/controls/pickers/ChoicePicker.h"

namespace Quorbel {

class FieldSets;

constexpr qreal fieldSetPickerWidth = 132;  // points

/// A picker that follows the sets, which must outlive it. It is hidden while only the usual form was ever chosen.
ChoicePicker* makeFieldSetPicker(FieldSets& sets, QWidget* parent);

}  // namespace Quorbel
