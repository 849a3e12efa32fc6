// The module of decoders as the program loads it: found beside the program, and done without when it cannot be used.
#include "platform/images/ImageModule.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QTest>

using namespace Quorbel;
using namespace Qt::StringLiterals;

class tst_ImageModule : public QObject {
    Q_OBJECT

private slots:
    void decodesWhatItIsGiven();
    void goesOnWithout_data();
    void goesOnWithout();
};

void tst_ImageModule::decodesWhatItIsGiven()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Zürich 1.jpg"_s);
    QImage image(400, 200, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(path));

    const ImageModule& module = ImageModule::loaded();
    const DecodedImage fromFile = module.decode(path, 100, {});
    QCOMPARE(fromFile.outcome, DecodedImage::Outcome::decoded);
    QCOMPARE(fromFile.image.size(), QSize(100, 50));

    QByteArray bytes;
    QBuffer buffer(&bytes);
    QVERIFY(image.save(&buffer, "png"));
    QCOMPARE(module.decodeBytes(bytes, 100, {}).image.size(), QSize(100, 50));
    QVERIFY(!module.hasOrientation(bytes));
    QVERIFY(module.embeddedThumbnail(path, {}).isNull());
}

void tst_ImageModule::goesOnWithout_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("no library") << QByteArray("text");
}

void tst_ImageModule::goesOnWithout()
{
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"quorbel-images.so"_s);
    if (!content.isEmpty()) {
        QFile library(file);
        QVERIFY(library.open(QIODevice::WriteOnly));
        library.write(content);
    }
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^No thumbnails: .*quorbel-images"_s));
    const ImageModule module = ImageModule::load(file);
    QCOMPARE(module.decode(u"/x.jpg"_s, 100, {}).outcome, DecodedImage::Outcome::unsupported);
    QVERIFY(module.embeddedThumbnail(u"/x.jpg"_s, {}).isNull());
}

QTEST_GUILESS_MAIN(tst_ImageModule)
#include "tst_ImageModule.moc"
