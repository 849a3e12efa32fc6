#include "core/details/HomeComparison.h"

#include "core/details/StoredText.h"
#include "core/text/Coordinates.h"
#include "core/text/Text.h"
#include "core/tool/MetadataWriter.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace Quorbel::HomeComparison {

using namespace Qt::StringLiterals;

namespace {

// Degrees: EXIF's seconds with two decimals and XMP's minutes with four, both cut off, are up to 4.5e-6 apart.
constexpr double positionTolerance = 5e-6;

StoredText textOf(const Held& held, const QString& text)
{
    return { held.tag, text, held.declaresEncoding };
}

QList<StoredText> textsOf(const Held& held)
{
    QList<StoredText> texts;
    for (const QString& item : held.items)
        texts.append(textOf(held, item));
    return texts;
}

// Year, month, day, hour and minute, as far as the text goes; nothing for what is no date. Of a zone it takes no
// notice: what counts is what the camera's clock showed.
QStringList dateParts(const QString& text)
{
    static const QRegularExpression form(
        uR"(^(\d{4})(?:[:-](\d{2})(?:[:-](\d{2})(?:[ T](\d{2}):(\d{2})(?::\d{2}(?:\.\d*)?)?)?)?)?)"
        uR"([:-]?\s*[A-Z]{0,4}(?:[+-]\d{1,2}:?\d{0,2})?$)"_s);
    const QStringList captured = form.match(Text::trimmedWithNewlines(text)).capturedTexts().mid(1);
    QStringList parts;
    for (qsizetype i = 0; i < captured.size() && !captured.at(i).isEmpty(); ++i) {
        if (i < 3 && captured.at(i).toInt() == 0)  // IPTC's way to leave out month and day
            break;
        parts.append(captured.at(i));
    }
    return parts;
}

bool isSameDate(const QString& a, const QString& b)
{
    const QStringList first = dateParts(a);
    const QStringList second = dateParts(b);
    const qsizetype common = std::min(first.size(), second.size());
    return common > 0 ? first.first(common) == second.first(common) : StoredText::normal(a) == StoredText::normal(b);
}

QString shownDate(const QString& text)
{
    const QStringList parts = dateParts(text);
    if (parts.isEmpty())
        return Text::trimmed(text);
    const QString day = parts.first(std::min<qsizetype>(parts.size(), 3)).join(u'-');
    return parts.size() > 3 ? day + u' ' + parts.sliced(3).join(u':') : day;
}

bool isSamePosition(const QString& a, const QString& b)
{
    const auto first = Coordinates::parse(a);
    const auto second = Coordinates::parse(b);
    if (!first || !second)
        return a == b;
    return std::abs(first->latitude - second->latitude) < positionTolerance
        && std::abs(first->longitude - second->longitude) < positionTolerance;
}

bool isSameOne(const StoredText& a, const StoredText& b)
{
    return a.isSame(b);
}

// Each on its own, where both hold as many.
bool isSameInOrder(const Held& a, const Held& b)
{
    const QList<StoredText> first = textsOf(a);
    const QList<StoredText> second = textsOf(b);
    return std::equal(first.cbegin(), first.cend(), second.cbegin(), second.cend(), isSameOne);
}

bool isSameSet(const Held& a, const Held& b)
{
    const auto holdsAllOf = [](const QList<StoredText>& one, const QList<StoredText>& other) {
        return std::all_of(other.cbegin(), other.cend(), [&one](const StoredText& item) {
            return std::any_of(one.cbegin(), one.cend(), [&item](const StoredText& mine) { return mine.isSame(item); });
        });
    };
    if (a.items == b.items)
        return true;
    const QList<StoredText> first = textsOf(a);
    const QList<StoredText> second = textsOf(b);
    return holdsAllOf(first, second) && holdsAllOf(second, first);
}

// EXIF keeps all creators in one text.
Held withSplitCreators(Held held)
{
    if (held.tag != u"EXIF:Artist")
        return held;
    held.items = held.items.value(0).split(u';');
    for (QString& item : held.items)
        item = StoredText::normal(item);
    held.items.removeAll(QString());
    return held;
}

// EXIF keeps two notices in one text: the photographer's and the editor's.
bool isOneNoticeOf(const Held& exif, const Held& other)
{
    if (exif.tag != u"EXIF:Copyright")
        return false;
    const QStringList notices = StoredText::normal(exif.items.value(0)).split(u'\n', Qt::SkipEmptyParts);
    return notices.size() == 2 && std::any_of(notices.cbegin(), notices.cend(), [&](const QString& notice) {
        return textOf(exif, notice).isSame(textOf(other, other.items.value(0)));
    });
}

bool isSameOneByOneOrJoined(const Held& a, const Held& b)
{
    const auto joined = [](const Held& held) { return textOf(held, held.items.join(u", "_s)); };
    return isSameInOrder(a, b) || joined(a).isSame(joined(b));
}

bool isSameText(const Held& a, const Held& b)
{
    return isSameOneByOneOrJoined(a, b) || isSameOneByOneOrJoined(withSplitCreators(a), withSplitCreators(b))
        || isOneNoticeOf(a, b) || isOneNoticeOf(b, a);
}

QString only(const Held& held)
{
    return held.items.value(0);
}

}  // namespace

bool isSame(const FieldSpec& field, const Held& a, const Held& b)
{
    switch (field.kind) {
    case FieldKind::keywords:
        return isSameSet(a, b);
    case FieldKind::date:
        return isSameDate(only(a), only(b));
    case FieldKind::coordinates:
        return isSamePosition(only(a), only(b));
    case FieldKind::rating:
        return MetadataWriter::normalizeRating(only(a)) == MetadataWriter::normalizeRating(only(b));
    default:
        return isSameText(a, b);
    }
}

bool isBlank(const FieldSpec& field, const Held& held)
{
    static const QRegularExpression digit(u"[1-9]"_s);
    if (field.kind == FieldKind::date)
        return !only(held).contains(digit);
    return std::all_of(
        held.items.cbegin(), held.items.cend(), [](const QString& item) { return StoredText::normal(item).isEmpty(); });
}

QStringList shown(const FieldSpec& field, const Held& held)
{
    switch (field.kind) {
    case FieldKind::keywords:
        return held.items;
    case FieldKind::date:
        return { shownDate(only(held)) };
    case FieldKind::coordinates: {
        const auto point = Coordinates::parse(only(held));
        return { point ? Coordinates::displayString(*point) : only(held) };
    }
    case FieldKind::rating:
        return { MetadataWriter::normalizeRating(only(held)) };
    default: {
        QString text = held.items.join(u", "_s);
        return { text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n') };
    }
    }
}

}  // namespace Quorbel::HomeComparison
