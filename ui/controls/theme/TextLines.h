// Breaks text into lines for widgets that paint their lines themselves. Thread: the main thread.
#pragma once

#include <QStringList>
#include <QTextOption>

#include <functional>

class QFont;
class QTextLine;

namespace Quorbel {

enum class LineBreaks {
    words,  ///< between words, and within one only where that is longer than a line
    spaces,  ///< at spaces, and where scripts without them have none: names of tags stay whole, even beyond the width
    anywhere,  ///< between any two letters
};

/// The text in lines of at most this width; never without a line. The last of `most` lines holds all the rest, however
/// long: whoever paints it elides it.
QStringList brokenIntoLines(const QString& text, const QFont& font, int width, LineBreaks breaks, int most = INT_MAX);

/// Lays the text out and hands over each line that is as wide as `width` allows, until `use` returns false.
void forEachLine(const QString& text, const QFont& font, int width, QTextOption::WrapMode wrap,
    const std::function<bool(QTextLine& line)>& use);

}  // namespace Quorbel
