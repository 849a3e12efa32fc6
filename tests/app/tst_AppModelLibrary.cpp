// Opening, searching, sorting and selecting, against the real tool.
#include "tests/app/ModelFixture.h"

#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

class TestAppModelLibrary : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void openClickEditSave();
};

void TestAppModelLibrary::openClickEditSave()
{
    ModelFixture f;
    f.addTitled({ u"img10.jpg"_s, u"img2.jpg"_s, u"b.png"_s });
    f.folder.add(u"notes.txt"_s, "text");
    QVERIFY(f.open());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QCOMPARE(f.visible(), QStringList({ u"b.png"_s, u"img2.jpg"_s, u"img10.jpg"_s }));
    QCOMPARE(f.primary(), u"b.png"_s);
    f.click(u"img2.jpg"_s);
    QCOMPARE(f.primary(), u"img2.jpg"_s);
    QCOMPARE(f->draftValues().value(u"title"_s), u"img2.jpg"_s);
    f->setSingle(u"title"_s, u"Beach"_s);
    QCOMPARE(f->unsavedCount(), 1);
    f->requestSave();
    QVERIFY(f->saveOpen());
    f->confirmSaveDialog();
    QVERIFY(f->isSaving());
    QVERIFY(f.waitUntilIdle());
    QCOMPARE(f->errorMessage(), std::nullopt);
    QVERIFY(!f->isSaving());
    QCOMPARE(f->unsavedCount(), 0);
    QCOMPARE(f.onDisk(u"img2.jpg"_s, u"XMP:Title"_s), QJsonValue(u"Beach"_s));
    QCOMPARE(f->primaryRecord()->values.value(u"title"_s), u"Beach"_s);
}

QTEST_GUILESS_MAIN(TestAppModelLibrary)
#include "tst_AppModelLibrary.moc"
