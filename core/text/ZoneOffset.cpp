#include "core/text/ZoneOffset.h"

#include <QRegularExpression>

#include <cstdlib>

namespace Quorbel::ZoneOffset {

using namespace Qt::StringLiterals;

std::optional<int> minutes(const QString& text)
{
    static const QRegularExpression form(uR"(\A(?:Z|([+-])(0\d|1[0-4]):([0-5]\d))\z)"_s);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const int size = match.captured(2).toInt() * 60 + match.captured(3).toInt();
    return match.captured(1) == u"-" ? -size : size;
}

QString text(int minutes)
{
    const int size = std::abs(minutes);
    return u"%1%2:%3"_s.arg(QChar(minutes < 0 ? u'-' : u'+'))
        .arg(size / 60, 2, 10, QChar(u'0'))
        .arg(size % 60, 2, 10, QChar(u'0'));
}

}  // namespace Quorbel::ZoneOffset
