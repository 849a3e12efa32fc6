#include "app/model/StallWatch.h"
#include "tests/support/Support.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

class tst_StallWatch : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void finds_data()
    {
        QTest::addColumn<QString>("given");
        QTest::addColumn<bool>("isFound");
        QTest::newRow("as it is") << u"folder/b.jpg"_s << true;
        QTest::newRow("in a linked folder") << u"link/b.jpg"_s << true;
        QTest::newRow("behind a link of another name") << u"c.jpg"_s << true;
        QTest::newRow("not among the photos") << u"folder/a.jpg"_s << false;
    }

    // The process is this one, which holds "folder/b.jpg" open; the read was given it by some other way.
    void finds()
    {
        QFETCH(QString, given);
        QFETCH(bool, isFound);
        const PhotoFolder root;
        QVERIFY(QDir(root.path()).mkpath(u"folder"_s));
        root.add(u"folder/a.jpg"_s);
        QFile open(root.add(u"folder/b.jpg"_s).toLocalFile());
        QVERIFY(QFile::link(root.path(u"folder"_s), root.path(u"link"_s)));
        QVERIFY(QFile::link(open.fileName(), root.path(u"c.jpg"_s)));
        QVERIFY(open.open(QIODevice::ReadOnly));
        const QList<QUrl> files{ root.url(u"none.jpg"_s), root.url(given) };
        StallWatch patient{ std::chrono::hours(1) };
        QCOMPARE(patient.look(QCoreApplication::applicationPid(), files), std::nullopt);
        StallWatch watch{ std::chrono::milliseconds(0) };
        QCOMPARE(watch.look(QCoreApplication::applicationPid(), files),
            isFound ? std::optional(root.url(given)) : std::nullopt);
        QCOMPARE(watch.look(0, files), std::nullopt);
    }
};

QTEST_GUILESS_MAIN(tst_StallWatch)
#include "tst_StallWatch.moc"
