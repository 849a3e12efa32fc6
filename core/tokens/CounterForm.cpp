#include "core/tokens/CounterForm.h"

#include <QRegularExpression>

namespace Quorbel {

using namespace Qt::StringLiterals;

std::optional<CounterForm> CounterForm::parse(const QString& form)
{
    static const QRegularExpression numbers(u"^\\s*([0-9]{1,12})\\s*(?:\\+\\s*([0-9]{1,9}))?\\s*$"_s);
    const QRegularExpressionMatch match = numbers.match(form);
    if (!match.hasMatch())
        return std::nullopt;
    const QString first = match.captured(1);
    CounterForm counter{ .start = first.toLongLong(), .digits = int(first.size()) };
    if (match.hasCaptured(2))
        counter.step = match.captured(2).toLongLong();
    return counter;
}

QString CounterForm::text() const
{
    if (*this == CounterForm())
        return {};
    return number(0) + (step == 1 ? QString() : u'+' + QString::number(step));
}

QString CounterForm::number(qint64 position) const
{
    return QString::number(start + position * step).rightJustified(digits, u'0');
}

}  // namespace Quorbel
