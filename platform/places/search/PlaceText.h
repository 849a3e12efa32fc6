// How names of places are folded before they are compared: the same way when the search file is built and when it is
// asked. Thread: any. Pure.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringView>

namespace Quorbel {

/// Lower case without marks: "São Tomé" is "sao tome", "Łódź" "lodz", "O’Fallon" "ofallon". Words are separated by one
/// blank, with none at either end. Letters of other scripts stay; Hangul comes out as single letters.
QString foldPlaceName(QStringView name);

/// Whether one edit (a letter added, left out, replaced, or swapped with its neighbour) makes the folded `typed` the
/// beginning of the folded `name`, or all of it.
bool isMisspeltStart(QByteArrayView typed, QByteArrayView name);

/// A folded name as it is indexed: its last word once more, marked as the end. Asking for the same text asks for names
/// that are whole, at the price of one rare word.
QString markNameEnd(const QString& folded);

/// Words of the index that tell where a place is. None of them can be typed.
QString countryWord(const QString& code);
QString stateWord(int state);
/// The first two letters of a word of a state's or country's name, or of its code.
QString initialsWord(const QString& initials);
/// A word of the name of the town that an airport or landmark belongs to.
QString townWord(const QString& word);

/// An airport's code of three letters.
QString codeWord(const QString& code);

inline constexpr qsizetype initialsSize = 2;

}  // namespace Quorbel
