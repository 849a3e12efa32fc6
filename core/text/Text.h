// Text services that the engine shares: trimming, natural order, folding, short lists, strict numbers.
// Thread: any. Pure, but for the user's locale, which natural order reads once.
#pragma once

#include <QCollatorSortKey>
#include <QString>
#include <QStringList>

#include <optional>

namespace Quorbel::Text {

/// Without leading and trailing blanks: Unicode space separators and tabs, not line breaks.
QString trimmed(const QString& text);
/// Without leading and trailing white space of any kind, line breaks included.
QString trimmedWithNewlines(const QString& text);

/// Natural order, as a file browser shows names: case-insensitive, digits by value, in the user's locale
/// (English where the locale is "C"). Negative, zero or positive.
int naturalCompare(const QString& a, const QString& b);
/// A key that sorts in the order of naturalCompare; worth computing once a string before a sort.
QCollatorSortKey naturalSortKey(const QString& text);

/// "a, b, c, d, e and 3 more": as much of a long list as one message names.
QString listed(const QStringList& names, qsizetype most = 5);

/// Without diacritics: "Zürich" becomes "Zurich". Letters that are no base plus mark (ø, ß) stay.
QString foldingDiacritics(const QString& text);

/// The whole text as a decimal number: sign, point, exponent, "inf" and "nan" accepted; nothing around it.
std::optional<double> parseDouble(const QString& text);
/// The whole text as a base-10 integer: one optional sign, then ASCII digits; nothing on overflow.
std::optional<qint64> parseInteger(const QString& text);
/// Shortest decimal form that reads back as the same double.
QString shortestForm(double value);

}  // namespace Quorbel::Text
