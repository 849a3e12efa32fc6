#include "ui/controls/theme/VerbatimFonts.h"

#include <QFontDatabase>
#include <QHash>
#include <QMap>
#include <QRawFont>
#include <QtEndian>

#include <algorithm>

namespace Quorbel::VerbatimFonts {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostBytes = 8'000'000;  // of a font that is worth copying
constexpr quint16 nothing = 0xffff;
// More scripts, languages of one, or features of one language than a sound table has.
constexpr int tooMany = 500;

// --- Reading and changing a table; what lies outside reads as 0 ---

quint16 numberAt(const QByteArray& table, qsizetype at)
{
    return at >= 0 && at + 2 <= table.size() ? qFromBigEndian<quint16>(table.constData() + at) : quint16(0);
}

void setNumber(QByteArray& table, qsizetype at, quint16 value)
{
    if (at >= 0 && at + 2 <= table.size())
        qToBigEndian(value, table.data() + at);
}

bool isOptional(const QByteArray& feature)
{
    return feature == "calt" || feature == "clig" || feature == "liga" || feature == "rclt";
}

bool needsNone(const QByteArray& script)
{
    return script == "DFLT" || script == "latn" || script == "grek" || script == "cyrl";
}

// Takes the optional features out of the list of one language.
void thin(QByteArray& table, qsizetype language, qsizetype features)
{
    const auto tagOf = [&](quint16 index) { return table.mid(features + 2 + 6 * qsizetype(index), 4); };
    if (const quint16 required = numberAt(table, language + 2); required != nothing && isOptional(tagOf(required)))
        setNumber(table, language + 2, nothing);
    const quint16 count = numberAt(table, language + 4);
    if (count > tooMany)
        return;
    quint16 kept = 0;
    for (quint16 i = 0; i < count; ++i) {
        const quint16 index = numberAt(table, language + 6 + 2 * qsizetype(i));
        if (!isOptional(tagOf(index)))
            setNumber(table, language + 6 + 2 * qsizetype(kept++), index);
    }
    setNumber(table, language + 4, kept);
}

// --- Writing a font file ---

void append16(QByteArray& bytes, qsizetype value)
{
    const auto number = qToBigEndian(static_cast<quint16>(value));
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

void append32(QByteArray& bytes, qsizetype value)
{
    const auto number = qToBigEndian(static_cast<quint32>(value));
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

// The table of names: family, style, full name and PostScript name, in English for Unicode. By the style's name Qt looks
// for a face of the fonts that have what this one lacks: "Regular" would be taken before the weight.
QByteArray nameTable(const QString& family, const QString& style)
{
    const QList<std::pair<int, QString>> names{ { 1, family }, { 2, style }, { 4, family },
        { 6, QString(family).remove(u' ') } };
    QByteArray records;
    QByteArray texts;
    for (const auto& [id, text] : names) {
        for (const int number : { 3, 1, 0x409, id })
            append16(records, number);
        append16(records, text.size() * 2);
        append16(records, texts.size());
        for (const QChar c : text)
            append16(texts, c.unicode());
    }
    QByteArray table;
    for (const qsizetype number : { qsizetype(0), names.size(), 6 + records.size() })
        append16(table, number);
    return table + records + texts;
}

// A font file of these tables. Its checksums are 0: nothing that reads fonts from memory looks at them.
QByteArray fontFile(const QMap<QByteArray, QByteArray>& tables)
{
    QByteArray directory;
    QByteArray contents;
    append32(directory, tables.contains("CFF ") ? 0x4f54544f : 0x00010000);
    append16(directory, tables.size());
    for (int unused = 0; unused < 3; ++unused)  // helps for a binary search that nobody makes
        append16(directory, 0);
    const qsizetype start = directory.size() + 16 * tables.size();
    for (auto table = tables.cbegin(); table != tables.cend(); ++table) {
        directory += table.key();
        append32(directory, 0);
        append32(directory, start + contents.size());
        append32(directory, table.value().size());
        contents += table.value();
        contents.append((4 - contents.size() % 4) % 4, '\0');
    }
    return directory + contents;
}

// The family under which the copy of this face is known; empty when there is none.
QString copied(const QRawFont& face, const QString& family)
{
    const QByteArray substitutions = face.fontTable("GSUB");
    const QByteArray thinned = withoutOptionalSubstitutions(substitutions);
    if (thinned == substitutions)
        return {};
    QMap<QByteArray, QByteArray> tables;
    qsizetype size = 0;
    for (const char* tag : { "CFF ", "GDEF", "GPOS", "OS/2", "VORG", "cmap", "cvt ", "fpgm", "gasp", "glyf", "head",
             "hhea", "hmtx", "kern", "loca", "maxp", "post", "prep" }) {
        const QByteArray table = face.fontTable(tag);
        size += table.size();
        if (!table.isEmpty())
            tables.insert(tag, table);
    }
    const bool hasOutlines = tables.contains("CFF ") || tables.contains("glyf");
    if (!hasOutlines || !tables.contains("cmap") || size > mostBytes)
        return {};
    tables.insert("GSUB", thinned);
    tables.insert("name", nameTable(family, face.styleName()));
    const int id = QFontDatabase::addApplicationFontFromData(fontFile(tables));
    return QFontDatabase::applicationFontFamilies(id).value(0);
}

}  // namespace

QByteArray withoutOptionalSubstitutions(QByteArray table)
{
    const qsizetype scripts = numberAt(table, 4);
    const qsizetype features = numberAt(table, 6);
    const int count = scripts > 0 && features > 0 ? numberAt(table, scripts) : 0;
    for (int i = 0; i < qMin(count, tooMany); ++i) {
        const qsizetype record = scripts + 2 + 6 * qsizetype(i);
        if (!needsNone(table.mid(record, 4)))
            continue;
        const qsizetype script = scripts + numberAt(table, record + 4);
        if (const quint16 usual = numberAt(table, script))
            thin(table, script + usual, features);
        for (int j = 0; j < qMin<int>(numberAt(table, script + 2), tooMany); ++j)
            thin(table, script + numberAt(table, script + 4 + 6 * qsizetype(j) + 4), features);
    }
    return table;
}

QFont verbatim(const QFont& font)
{
    static QHash<std::pair<QString, int>, QString> copies;
    const std::pair key(font.family(), int(font.weight()));
    auto copy = copies.constFind(key);
    if (copy == copies.constEnd()) {
        const QString family = u"%1 verbatim %2"_s.arg(font.family()).arg(font.weight());
        copy = copies.insert(key, copied(QRawFont::fromFont(font), family));
    }
    if (copy->isEmpty())
        return font;
    QFont result = font;
    result.setFamilies({ *copy, font.family() });
    return result;
}

}  // namespace Quorbel::VerbatimFonts
