#include "ui/controls/theme/TextLines.h"

#include <QFontMetrics>
#include <QGuiApplication>
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

QStringList atSpaces(const QString& text, const QFontMetrics& metrics, int width, int most)
{
    QStringList lines;
    const QStringList words = text.split(u' ');
    for (const QString& word : words) {
        const QString longer = lines.isEmpty() ? word : lines.constLast() + u' ' + word;
        if (lines.isEmpty() || (lines.size() < most && metrics.horizontalAdvance(longer) > width))
            lines.append(word);
        else
            lines.last() = longer;
    }
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
        return atSpaces(text, QFontMetrics(font), width, most);
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
