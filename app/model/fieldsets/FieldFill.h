// What is known of a field of the selected photos. Thread: any. A plain value.
#pragma once

namespace Quorbel {

/// Of several photos: filled as soon as one of them holds something, or is to hold it; empty where none of those that
/// were looked at does.
enum class FieldFill { unknown, empty, filled };

}  // namespace Quorbel
