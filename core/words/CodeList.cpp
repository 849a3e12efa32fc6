#include "core/words/CodeList.h"

#include "core/language/Texts.h"
#include "core/text/CodePage1252.h"
#include "core/text/Quoted.h"

#include <QStringDecoder>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostShown = 30;  // characters of a line that a note repeats

QString shortened(const QString& line)
{
    return Text::quoted(line.size() > mostShown ? line.left(mostShown) + u'…' : line);
}

}  // namespace

CodeList CodeList::parse(const QByteArray& bytes)
{
    CodeList list;
    const auto marked = QStringConverter::encodingForData(bytes);
    QStringDecoder decoder(marked.value_or(QStringConverter::Utf8));
    QString text = decoder(bytes);
    if (decoder.hasError() && !marked) {
        text = CodePage1252::decoded(bytes);
        list.note(Texts::tr("The file is not UTF-8: it was read as Windows Latin 1."));
    } else if (decoder.hasError()) {
        list.note(Texts::tr("Some characters of the file could not be read."));
    }
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    int number = 0;
    for (const QString& line : text.split(u'\n'))
        list.take(line, ++number);
    if (list.m_untold > 0)
        list.m_notes.append(Texts::tr("%n more line(s) like these.", nullptr, list.m_untold));
    return list;
}

void CodeList::take(const QString& line, int number)
{
    if (line.trimmed().isEmpty())
        return;
    if (!line.contains(u'\t')) {
        if (!line.startsWith(u'#'))
            //: %2 is the line, in quotation marks
            note(Texts::tr("Line %1 has no tab: %2").arg(number).arg(shortened(line.trimmed())));
        return;
    }
    const QString code = line.section(u'\t', 0, 0).trimmed();
    const QString text = line.section(u'\t', 1, 1).trimmed();
    if (code.isEmpty())
        return note(Texts::tr("Line %1 has no code in front of its tab.").arg(number));
    if (text.isEmpty())
        //: %2 is a code, in quotation marks
        return note(Texts::tr("Line %1 has no text for %2.").arg(number).arg(shortened(code)));
    if (code.contains(u'='))
        //: %2 is a code, in quotation marks
        return note(Texts::tr("Line %1: nobody can type a code with “=” in it: %2").arg(number).arg(shortened(code)));
    if (code.size() > longestCode)
        //: %2 is a code that has more, in quotation marks
        return note(Texts::tr("Line %1: a code has at most %n character(s): %2", nullptr, longestCode)
                        .arg(number)
                        .arg(shortened(code)));
    if (const auto before = m_lines.constFind(code); before != m_lines.cend())
        //: %1 is a code, in quotation marks
        note(Texts::tr("%1 is there twice, in lines %2 and %3: the last one counts.")
                 .arg(shortened(code), QString::number(*before), QString::number(number)));
    else
        m_spellings[code.toCaseFolded()].append(code);
    m_lines.insert(code, number);
    m_texts.insert(code, text);
}

void CodeList::note(const QString& text)
{
    if (m_notes.size() < mostNotes)
        m_notes.append(text);
    else
        ++m_untold;
}

std::optional<QString> CodeList::text(const QString& code) const
{
    if (const auto exact = m_texts.constFind(code); exact != m_texts.cend())
        return *exact;
    const QStringList spellings = m_spellings.value(code.toCaseFolded());
    return spellings.size() == 1 ? std::optional(m_texts.value(spellings.constFirst())) : std::nullopt;
}

}  // namespace Quorbel
