// The languages that the program speaks, and which of them this run does.
// Thread: the main thread, before the first window. A language holds for the whole run.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace Quorbel::Languages {

struct Language {
    QString code{};  ///< of QLocale: "en", "de", "zh_CN"
    QString name{};  ///< in the language itself: "Deutsch"
};

/// "en", and the codes of those whose texts lie in the folder as "quorbel_<code>.qm". Looks at the files' names alone.
QStringList codesIn(const QString& folder);
/// English, then the others that can be read, by their names. Opens each file: not for a start.
QList<Language> in(const QString& folder);

/// The code to speak, of these: the choice when there is such a language, else the first of the desktop's that there is
/// ("de-CH" is served by "de"), else "en". Desktop's: as of QLocale::uiLanguages.
QString wanted(const QString& choice, const QStringList& desktop, const QStringList& there);

/// Takes texts from the language's file in the folder; English needs none. False when there is none to be read.
bool use(const QString& code, const QString& folder);

}  // namespace Quorbel::Languages
