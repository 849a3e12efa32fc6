// The language of this run: the user's choice, or the desktop's. Thread: the main thread, before the first window.
#pragma once

#include "core/language/Languages.h"

class QGuiApplication;

namespace Quorbel::UserLanguage {

/// Those that the program comes with.
QList<Languages::Language> all();

/// Speaks it from now on: the program's own texts and Qt's, the direction of writing, and the form of dates and sizes
/// where they are shown. Those stay the desktop's where it has the same language.
void speak(QGuiApplication& application);

}  // namespace Quorbel::UserLanguage
