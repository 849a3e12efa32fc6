#include "core/schema/FieldCheck.h"

#include "core/language/Texts.h"
#include "core/schema/FieldSpec.h"
#include "core/text/Coordinates.h"
#include "core/text/Text.h"
#include "core/text/WallClock.h"

#include <QRegularExpression>

#include <cmath>

namespace Quorbel::FieldCheck {

using namespace Qt::StringLiterals;

namespace {

// Stricter than what is written: a position that lies nowhere is as wrong as a day that never was.
bool isPosition(const QString& text)
{
    const auto point = Coordinates::parse(text);
    return point && std::abs(point->latitude) <= 90 && std::abs(point->longitude) <= 180;
}

bool isOffset(const QString& text)
{
    static const QRegularExpression form(u"^([+-](0\\d|1[0-4]):[0-5]\\d|Z)$"_s);
    return form.match(text).hasMatch();
}

// The tool would take letters for a hexadecimal one.
bool isWholeNumber(const QString& text)
{
    static const QRegularExpression form(u"^\\d+$"_s);
    return form.match(text).hasMatch();
}

}  // namespace

QString note(const FieldSpec& field, const QString& text)
{
    const QString trimmed = Text::trimmed(text);
    if (trimmed.isEmpty())
        return {};
    switch (field.kind) {
    case FieldKind::date:
        return WallClock::fromTyped(trimmed) ? QString() : Texts::tr("Not a date: YYYY-MM-DD HH:MM");
    case FieldKind::coordinates:
        return isPosition(trimmed) ? QString() : Texts::tr("Not a position: lat, lon");
    case FieldKind::offset:
        return isOffset(trimmed) ? QString() : Texts::tr("Not an offset: +HH:MM");
    case FieldKind::number:
        return isWholeNumber(trimmed) ? QString() : Texts::tr("Not a whole number");
    case FieldKind::code:
    case FieldKind::structure:
    case FieldKind::text:
    case FieldKind::multiline:
    case FieldKind::keywords:
    case FieldKind::rating:
        break;
    }
    return {};
}

}  // namespace Quorbel::FieldCheck
