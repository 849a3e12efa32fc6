// Photos at which a read could stumble: none keeps the photos beside it from being opened. With the real tool.
#include "app/model/library/PhotoReader.h"
#include "core/Product.h"
#include "tests/support/Support.h"

#include <QTest>
#include <QtEndian>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

quint32 crc32(const QByteArray& bytes)
{
    quint32 crc = ~0U;
    for (const char byte : bytes) {
        crc ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = crc >> 1 ^ (crc & 1 ? 0xEDB88320U : 0);
    }
    return ~crc;
}

// A PNG with this chunk behind its header.
QByteArray pngWith(const QByteArray& type, const QByteArray& content)
{
    constexpr qsizetype afterHeader = 33;
    const QByteArray chunk = number(quint32(content.size())) + type + content + number(crc32(type + content));
    return pngBytes().insert(afterHeader, chunk);
}

QByteArray pngWithError(const QByteArray& text)
{
    return pngWith("tEXt", QByteArray("Error\0", 6) + text);
}

// One property of this namespace, beside the title "shown".
QByteArray pngWithProperty(const QByteArray& uri, const QByteArray& property)
{
    return pngWith("iTXt",
        QByteArray("XML:com.adobe.xmp\0\0\0\0\0", 22)
            + "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
              "<rdf:Description rdf:about='' xmlns:dc='http://purl.org/dc/elements/1.1/' xmlns:q='"
            + uri + "'><dc:title><rdf:Alt><rdf:li xml:lang='x-default'>shown</rdf:li></rdf:Alt></dc:title>" + property
            + "</rdf:Description></rdf:RDF></x:xmpmeta>");
}

QByteArray nested(const QByteArray& property, int levels)
{
    const QByteArray opening = "<q:NAME rdf:parseType='Resource'>";
    return QByteArray(opening).replace("NAME", property) + QByteArray(opening).replace("NAME", "a").repeated(levels)
        + "<q:b>x</q:b>" + QByteArray("</q:a>").repeated(levels) + "</q:" + property + '>';
}

QStringList titles(const QList<ImageRecord>& records)
{
    QStringList list;
    for (const ImageRecord& record : records)
        list.append(record.fileName + u'=' + record.values.value(u"title"_s));
    return list;
}

}  // namespace

class tst_PhotoReader : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void among_data();
    void among();
};

void tst_PhotoReader::among_data()
{
    QTest::addColumn<QByteArray>("photo");
    QTest::addColumn<QString>("reason");  // none: it opens like the others
    QTest::addColumn<QString>("title");
    const QByteArray other = "http://example.org/q/";
    const QByteArray own = Product::customNamespaceURI().toUtf8();
    QTest::addRow("a PNG text Error that is a number") << pngWithError("0.05") << ""
                                                       << "";
    QTest::addRow("a PNG text Error that is a text") << pngWithError("out of paper") << ""
                                                     << "";
    for (const char* value : { "0.05", "True", "out of paper" })
        QTest::addRow("an XMP property Error: %s", value)
            << pngWithProperty(other, QByteArray("<q:Error>") + value + "</q:Error>") << ""
            << "shown";
    QTest::addRow("a custom field Error") << pngWithProperty(own, "<q:Error>mine</q:Error>") << ""
                                          << "shown";
    QTest::addRow("nested 1,030 levels") << pngWithProperty(other, nested("City", 1030)) << "too deeply nested document"
                                         << "";
    QTest::addRow("no image at all") << QByteArray("GIF\x04") << "file format error"
                                     << "";
}

void tst_PhotoReader::among()
{
    QFETCH(QByteArray, photo);
    QFETCH(QString, reason);
    QFETCH(QString, title);
    const PhotoFolder folder;
    const QUrl odd = folder.add(u"odd.png"_s, photo);
    const QByteArray good = pngWithProperty("http://example.org/q/", "<q:Mood>1e999</q:Mood>");
    const QList<QUrl> urls{ folder.add(u"a.png"_s, good), odd, folder.add(u"z.png"_s, good) };
    QStringList expected{ u"a.png=shown"_s, u"z.png=shown"_s };
    QList<LeftOut> leftOut;
    if (reason.isEmpty())
        expected.insert(1, u"odd.png="_s + title);
    else
        leftOut.append({ u"odd.png"_s, reason });
    const MetadataService service{ realTool() };
    TaskProgress progress;
    const auto beside = PhotoReader::read(service, urls, progress, {});
    QCOMPARE(beside.error, std::nullopt);
    QCOMPARE(titles(beside.records), expected);
    QCOMPARE(beside.leftOut, leftOut);
    QCOMPARE(progress.done.load(), urls.size());
    if (photo.size() > 10'000)
        return;  // that took long enough
    const auto alone = PhotoReader::read(service, { odd }, progress, {});
    QCOMPARE(alone.error, std::nullopt);
    QCOMPARE(alone.records.size(), reason.isEmpty() ? 1 : 0);
    QCOMPARE(alone.leftOut, leftOut);
}

QTEST_GUILESS_MAIN(tst_PhotoReader)
#include "tst_PhotoReader.moc"
