// Roles, states, values and actions of widgets that Qt has no description of, for screen readers.
// Thread: the main thread. Describes the controls itself; of other widgets it knows what they say of themselves.
#pragma once

#include <QAccessible>

namespace Quorbel {

/// Makes the descriptions known to Qt; every control that has one calls it. Calling it again does nothing.
void installAccessibility();

/// Has the widgets of a class, and of those derived from it, describe themselves with this role and nothing more than
/// QWidget does. A widget's constructor calls it; calling it again does nothing.
void describeAs(const QMetaObject& widgetClass, QAccessible::Role role);

}  // namespace Quorbel
