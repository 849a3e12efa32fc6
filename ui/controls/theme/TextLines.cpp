#include "ui/controls/theme/TextLines.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QTextBoundaryFinder>
#include <QTextLayout>

namespace Quorbel {

namespace {

QStringList atWords(const QString& text, const QFont& font, int width, int most)
{
    QStringList lines;
    forEachLine(text, font, width, QTextOption::WrapAtWordBoundaryOrAnywhere, [&](const QTextLine& line) {
        const bool isLast = lines.size() == most - 1;
        lines.append(text.mid(line.textStart(), isLast ? -1 : line.textLength()).trimmed());
        return !isLast;
    });
    return lines.isEmpty() ? QStringList(QString()) : lines;
}

// Chinese and Japanese are written without spaces; their signs and full-width forms are with them.
bool needsNoSpace(QChar letter)
{
    const char16_t code = letter.unicode();
    return letter.script() == QChar::Script_Han || (code >= 0x3000 && code < 0x3100)
        || (code >= 0xff00 && code < 0xfff0);
}

// A space stays at the end of its word.
QStringList words(const QString& text)
{
    QStringList found;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    qsizetype start = 0;
    for (qsizetype at = 1; at < text.size(); ++at) {
        const bool isWide = needsNoSpace(text.at(at - 1)) || needsNoSpace(text.at(at));
        finder.setPosition(at);
        if (text.at(at - 1) != u' ' && !(isWide && finder.isAtBoundary()))
            continue;
        found.append(text.sliced(start, at - start));
        start = at;
    }
    found.append(text.sliced(start));
    return found;
}

// Not rounded: what is a fraction of a pixel too wide is shortened when it is drawn.
QStringList atSpaces(const QString& text, const QFontMetricsF& metrics, int width, int most)
{
    QStringList lines{ QString() };
    for (const QString& word : words(text)) {
        const QString longer = lines.constLast() + word;
        if (!lines.constLast().isEmpty() && lines.size() < most && metrics.horizontalAdvance(longer.trimmed()) > width)
            lines.append(word);
        else
            lines.last() = longer;
    }
    for (QString& line : lines)
        line = line.trimmed();
    return lines;
}

QStringList anywhere(const QString& text, const QFontMetrics& metrics, int width, int most)
{
    QStringList lines{ QString() };
    for (const QChar c : text) {
        // Not between the halves of a character.
        if (!c.isLowSurrogate() && lines.size() < most && metrics.horizontalAdvance(lines.constLast() + c) > width)
            lines.append(QString());
        lines.last() += c;
    }
    return lines;
}

}  // namespace

QStringList brokenIntoLines(const QString& text, const QFont& font, int width, LineBreaks breaks, int most)
{
    switch (breaks) {
    case LineBreaks::words:
        break;
    case LineBreaks::spaces:
        return atSpaces(text, QFontMetricsF(font), width, most);
    case LineBreaks::anywhere:
        return anywhere(text, QFontMetrics(font), width, most);
    }
    return atWords(text, font, width, most);
}

void forEachLine(const QString& text, const QFont& font, int width, QTextOption::WrapMode wrap,
    const std::function<bool(QTextLine& line)>& use)
{
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(wrap);
    if (QGuiApplication::isRightToLeft()) {
        option.setTextDirection(Qt::RightToLeft);
        option.setAlignment(Qt::AlignRight);
    }
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (!use(line))
            break;
    }
    layout.endLayout();
}

}  // namespace Quorbel
