#include "core/schema/ImageRecord.h"

#include "core/language/Texts.h"

#include <QLocale>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString dimensionsText(const ImageRecord& record)
{
    if (!record.pixelWidth || !record.pixelHeight)
        return {};
    return QString::number(*record.pixelWidth) + u'×' + QString::number(*record.pixelHeight);
}

QString joinedParts(QStringList parts)
{
    parts.removeAll(QString());
    return parts.join(u" · "_s);
}

// bytes ÷ step, halves rounded up, without overflow near the end of the range.
qint64 roundedQuotient(qint64 bytes, qint64 step)
{
    return bytes / step + (bytes % step * 2 >= step ? 1 : 0);
}

// `count` in units of 10^-digits with the locale's point, without trailing zeros: (105, 1) is "10.5", (110, 1) is "11".
QString decimalText(qint64 count, int digits)
{
    QString text = QString::number(count).rightJustified(digits + 1, u'0');
    const QString point = QLocale().decimalPoint();
    text.insert(text.size() - digits, point);
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(point))
        text.chop(point.size());
    return text;
}

// Under one kilobyte: one significant digit, so that even a byte is more than nothing.
QString fractionOfKilobyte(qint64 bytes)
{
    qint64 step = 1;
    while (bytes / step >= 10)
        step *= 10;
    return decimalText(roundedQuotient(bytes, step) * step, 3);
}

// A size as a file manager shows it: powers of 1000, a decimal point, no trailing zeros. "Zero KB" for nothing, one
// significant digit under a kilobyte ("0.5 KB"), whole kilobytes ("9 KB"), tenths of megabytes ("2.4 MB"), hundredths
// of gigabytes ("1.25 GB") beyond. A size that rounds to 1000 takes the next unit.
QString formattedFileSize(qint64 bytes)
{
    if (bytes <= 0)
        return Texts::tr("Zero KB");
    if (bytes < 1000)
        return fractionOfKilobyte(bytes) + u" KB"_s;
    if (const qint64 kilobytes = roundedQuotient(bytes, 1000); kilobytes < 1000)
        return QString::number(kilobytes) + u" KB"_s;
    if (const qint64 tenths = roundedQuotient(bytes, 100'000); tenths < 10'000)
        return decimalText(tenths, 1) + u" MB"_s;
    return decimalText(roundedQuotient(bytes, 10'000'000), 2) + u" GB"_s;
}

}  // namespace

QString ImageRecord::detailLine() const
{
    return joinedParts({ fileType, sidebarLine() });
}

QString ImageRecord::sidebarLine() const
{
    return joinedParts({ dimensionsText(*this), fileSize ? formattedFileSize(*fileSize) : QString() });
}

}  // namespace Quorbel
