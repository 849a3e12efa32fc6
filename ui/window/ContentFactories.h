// What makes the views that the window holds. Thread: the main thread. Knows none of them from the inside.
#pragma once

#include <functional>

class QWidget;

namespace Quorbel {

class CloseupView;
class KeptField;
class SheetBody;

/// Makes the views that the window holds but does not know the inside of. Each is handed over with ownership.
struct ContentFactories {
    std::function<QWidget*(QWidget* parent)> inspector{};
    std::function<SheetBody*()> addField{};
    std::function<SheetBody*()> save{};
    std::function<SheetBody*()> rename{};
    std::function<SheetBody*()> pasteFields{};
    std::function<SheetBody*()> templates{};
    std::function<SheetBody*()> quickSet{};
    std::function<SheetBody*()> fieldSets{};
    std::function<SheetBody*()> shiftTime{};
    std::function<SheetBody*()> moveOver{};
    std::function<SheetBody*()> renamePhotos{};
    /// Keeps this many pixels at the inspector's lower end free, so that its last rows scroll clear of the banner.
    std::function<void(QWidget* inspector, int pixels)> setInspectorInset{};
    /// Looks closely at the primary photo, over all of the window.
    std::function<CloseupView*(QWidget* window)> closeup{};
    /// Which field of the inspector has the keyboard, and what keeps it there.
    std::function<KeptField*(QWidget* inspector)> keptField{};
};

}  // namespace Quorbel
