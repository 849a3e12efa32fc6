#include "core/tool/MetadataWriter.h"

#include "core/Product.h"
#include "core/save/EditPlan.h"
#include "core/schema/FieldSchema.h"
#include "core/text/Coordinates.h"
#include "core/text/Text.h"

#include <QDateTime>

#include <algorithm>
#include <array>
#include <cmath>

namespace Quorbel::MetadataWriter {

using namespace Qt::StringLiterals;

namespace {

struct DatePattern {
    QChar dateSeparator{};
    int timeFields = 0;  ///< 0: date only; 2: hours and minutes; 3: with seconds
};

// Takes a number of one to `maximumDigits` ASCII digits off the front; nothing when there is no digit.
std::optional<int> takeNumber(QStringView& text, int maximumDigits)
{
    int number = 0;
    int digits = 0;
    while (digits < maximumDigits && digits < text.size() && text[digits] >= u'0' && text[digits] <= u'9')
        number = number * 10 + (text[digits++].unicode() - u'0');
    if (digits == 0)
        return std::nullopt;
    text = text.sliced(digits);
    return number;
}

bool takeSeparator(QStringView& text, QChar separator)
{
    if (!text.startsWith(separator))
        return false;
    text = text.sliced(1);
    return true;
}

// The whole text as a wall-clock date in this pattern. Not QDateTime::fromString: that insists on two digits a field.
// The result is in UTC merely to stay clear of hours that a change to summer time skips.
std::optional<QDateTime> parseDate(QStringView text, const DatePattern& pattern)
{
    constexpr int dateFields = 3;
    std::array<int, 6> fields{};
    for (int i = 0; i < dateFields + pattern.timeFields; ++i) {
        const QChar separator = i < dateFields ? pattern.dateSeparator : i == dateFields ? u' ' : u':';
        if (i > 0 && !takeSeparator(text, separator))
            return std::nullopt;
        const std::optional<int> number = takeNumber(text, i == 0 ? 4 : 2);
        if (!number)
            return std::nullopt;
        fields.at(i) = *number;
    }
    const QDate date(fields[0], fields[1], fields[2]);
    const QTime time(fields[3], fields[4], fields[5]);
    if (!text.isEmpty() || !date.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(date, time, Qt::UTC);
}

// The date in `format` if one of the patterns fits, otherwise the text as it is.
template <std::size_t N>
QString reformatted(const QString& text, const std::array<DatePattern, N>& patterns, const QString& format)
{
    for (const DatePattern& pattern : patterns)
        if (const std::optional<QDateTime> date = parseDate(text, pattern))
            return date->toString(format);
    return text;
}

}  // namespace

QString customNamespacePrefix()
{
    return u"XMP-Quorbel"_s;
}

QString customNamespaceURI()
{
    return Product::customNamespaceURI();
}

QList<Assignment> scalarArgs(const FieldSpec& field, const QString& value)
{
    if (field.kind == FieldKind::coordinates)
        return Coordinates::writeArgs(value);
    QString written = value;
    if (field.kind == FieldKind::rating)
        written = normalizeRating(value);
    else if (field.kind == FieldKind::date)
        written = normalizeDate(value);
    QList<Assignment> args;
    for (const QString& tag : field.writeTags)
        args.append({ .tag = tag, .value = written });
    return args;
}

QList<Assignment> listArgs(const FieldSpec& field, const QStringList& values, ListMode mode)
{
    QStringList items;
    for (const QString& value : values)
        if (const QString item = Text::trimmed(value); !item.isEmpty())
            items.append(item);
    QList<Assignment> args;
    for (const QString& tag : field.writeTags) {
        if (mode == ListMode::replace)
            args.append({ .tag = tag });
        for (const QString& item : std::as_const(items)) {
            if (mode == ListMode::replace) {
                args.append({ .tag = tag, .value = item });
            } else {
                // Taken out before it is added, an item that is there already is not doubled.
                args.append({ tag, Assignment::Operation::remove, item });
                args.append({ tag, Assignment::Operation::add, item });
            }
        }
    }
    return args;
}

QList<Assignment> customArgs(const QString& name, const QString& value)
{
    const std::optional<QString> tag = sanitizeCustomName(name);
    if (!tag)
        return {};
    return { { .tag = customNamespacePrefix() + u':' + *tag, .value = value } };
}

QList<Assignment> assignments(const EditPlan& plan)
{
    QList<Assignment> args;
    for (auto it = plan.scalars.cbegin(); it != plan.scalars.cend(); ++it)
        if (const FieldSpec* field = FieldSchema::spec(it.key()))
            args += scalarArgs(*field, it.value());
    for (auto it = plan.lists.cbegin(); it != plan.lists.cend(); ++it)
        if (const FieldSpec* field = FieldSchema::spec(it.key()))
            args += listArgs(*field, it.value(), plan.listMode);
    for (const auto& custom : plan.customs)
        args += customArgs(custom.name, custom.value);
    return args;
}

QString customConfig(const QStringList& names)
{
    QStringList tags;
    for (const QString& name : names)
        if (const std::optional<QString> tag = sanitizeCustomName(name); tag && !tags.contains(*tag))
            tags.append(*tag);
    // UTF-8 sorts by code point, where UTF-16 puts surrogates before the end of the first plane.
    std::sort(tags.begin(), tags.end(), [](const QString& a, const QString& b) { return a.toUtf8() < b.toUtf8(); });
    QStringList lines;
    for (const QString& tag : std::as_const(tags))
        lines.append(u"  "_s + tag + u" => { Writable => 'string' },"_s);
    return u"%Image::ExifTool::UserDefined = (\n"
           "  'Image::ExifTool::XMP::Main' => {\n"
           "    Quorbel => { SubDirectory => { TagTable => 'Image::ExifTool::UserDefined::Quorbel' } },\n"
           "  },\n"
           ");\n"
           "%Image::ExifTool::UserDefined::Quorbel = (\n"
           "  GROUPS => { 0 => 'XMP', 1 => '"_s
        + customNamespacePrefix()
        + u"', 2 => 'Image' },\n"
          "  NAMESPACE => { 'Quorbel' => '"_s
        + customNamespaceURI()
        + u"' },\n"
          "  WRITABLE => 'string',\n"_s
        + lines.join(u'\n') + u"\n);\n1;"_s;
}

std::optional<QString> sanitizeCustomName(const QString& name)
{
    QString kept;
    const QList<uint> codePoints = name.toUcs4();
    for (const char32_t c : codePoints) {
        const bool number = QChar::isNumber(c);
        if (QChar::isLetter(c) || QChar::isMark(c) || (number && !kept.isEmpty()))
            kept += QChar::fromUcs4(c);
    }
    if (kept.isEmpty())
        return std::nullopt;
    return kept;
}

std::optional<QString> customNameProblem(const QString& name)
{
    // The keys with a meaning of their own in ExifTool's tag tables (%specialTags of its main module), as far as
    // they are letters only.
    static const QStringList reserved{ u"AVOID"_s, u"DATAMEMBER"_s, u"FORMAT"_s, u"GROUPS"_s, u"NAMESPACE"_s,
        u"NOTES"_s, u"PERMANENT"_s, u"PREFERRED"_s, u"PRIORITY"_s, u"VARS"_s, u"WRITABLE"_s };
    const auto stored = sanitizeCustomName(name);
    if (!stored)
        return std::nullopt;
    const bool ascii = std::all_of(stored->cbegin(), stored->cend(), [](QChar c) { return c.unicode() < 0x80; });
    if (!ascii)
        return u"Only the letters A–Z and digits can be stored in a name."_s;
    if (stored->size() == 1)
        return u"A name needs at least two letters or digits."_s;
    if (reserved.contains(*stored))
        return u"“%1” is a reserved word; choose another name."_s.arg(*stored);
    return std::nullopt;
}

QString normalizeDate(const QString& text)
{
    static constexpr std::array<DatePattern, 6> patterns{ { { u':', 3 }, { u'-', 3 }, { u':', 2 }, { u'-', 2 },
        { u':', 0 }, { u'-', 0 } } };
    return reformatted(Text::trimmed(text), patterns, u"yyyy:MM:dd HH:mm:ss"_s);
}

QString normalizeRating(const QString& text)
{
    const QString trimmed = Text::trimmed(text);
    const std::optional<double> number = Text::parseDouble(trimmed);
    if (!number || !std::isfinite(*number))
        return trimmed;
    return QString::number(static_cast<int>(std::clamp(*number, 0.0, 5.0)));
}

QString displayDate(const QString& text)
{
    static constexpr std::array<DatePattern, 2> patterns{ { { u':', 3 }, { u':', 2 } } };
    return reformatted(Text::trimmed(text), patterns, u"yyyy-MM-dd HH:mm"_s);
}

}  // namespace Quorbel::MetadataWriter
