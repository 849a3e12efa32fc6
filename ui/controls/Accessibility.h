// Roles, states, values and actions of the controls that Qt has no description of, for screen readers.
// Thread: the main thread.
#pragma once

namespace Quorbel {

/// Makes the descriptions known to Qt; every control that has one calls it. Calling it again does nothing.
void installAccessibility();

}  // namespace Quorbel
