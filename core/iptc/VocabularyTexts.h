// What the vocabularies say, made known to translators: these read the program's code, and no data of it.
// Thread: any. A test compares it with vocabularies.txt.
#pragma once

#include <QStringList>

namespace Quorbel::VocabularyTexts {

/// In English: titles, names and notes, each once.
QStringList all();

}  // namespace Quorbel::VocabularyTexts
