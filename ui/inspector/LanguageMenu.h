// The menu in which one picks a language for a text. Thread: the main thread. Knows no field and no model.
#pragma once

#include <QStringList>

class QWidget;

namespace Quorbel {

class SearchMenu;

/// Not open yet. `label` is what the texts are called: "Title". Languages that are `present` are not offered; `likely`
/// ones come first, and then the user's own. Of a row that is picked, the code is the language's.
SearchMenu* makeLanguageMenu(
    const QString& label, const QStringList& present, const QStringList& likely, QWidget* opener);

}  // namespace Quorbel
