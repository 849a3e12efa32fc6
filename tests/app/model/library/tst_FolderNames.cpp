#include "app/model/library/FolderNames.h"
#include "tests/support/Support.h"

#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

class tst_FolderNames : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void taken_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isTaken");
        QTest::newRow("free") << u"free.jpg"_s << false;
        QTest::newRow("an entry's") << u"other.jpg"_s << true;
        QTest::newRow("an entry's but for case") << u"OTHER.jpg"_s << true;
        QTest::newRow("its own") << u"Own.jpg"_s << false;
        QTest::newRow("its own but for case") << u"own.JPG"_s << false;
        QTest::newRow("its own and another's but for case") << u"TWICE.jpg"_s << true;
    }
    void taken()
    {
        QFETCH(QString, name);
        const PhotoFolder folder;
        for (const QString& entry : { u"Own.jpg"_s, u"other.jpg"_s, u"Twice.jpg"_s, u"twice.jpg"_s })
            folder.add(entry, "x");
        FolderNames names;
        const QString own = name == u"TWICE.jpg" ? u"Twice.jpg"_s : u"Own.jpg"_s;
        QTEST(names.known(folder.path()).isTaken(name, own), "isTaken");
        QTEST(names.current(folder.path()).isTaken(name, own), "isTaken");
    }

    // Nobody waits for a large folder; what is known of it follows its changes.
    void largeFolder()
    {
        const PhotoFolder folder;
        for (int i = 0; i < 2500; ++i)
            folder.add(u"Photo%1.jpg"_s.arg(i), {});
        FolderNames names;
        const QSignalSpy changed(&names, &FolderNames::changed);
        const auto isKnown = [&](const QString& name) { return names.known(folder.path()).isTaken(name, u"a.jpg"_s); };
        QVERIFY(!isKnown(u"photo7.jpg"_s));
        QVERIFY(isKnown(u"Photo7.jpg"_s));
        QTRY_COMPARE(changed.size(), 1);
        QVERIFY(isKnown(u"photo7.jpg"_s));
        QFile::remove(folder.path(u"Photo7.jpg"_s));
        QVERIFY(isKnown(u"photo7.jpg"_s));
        QVERIFY(!names.current(folder.path()).isTaken(u"photo7.jpg"_s, u"a.jpg"_s));
        folder.add(u"Photo8.png"_s, {});
        QVERIFY(!isKnown(u"photo8.png"_s));
        QTRY_VERIFY(isKnown(u"photo8.png"_s));
    }
};

QTEST_GUILESS_MAIN(tst_FolderNames)
#include "tst_FolderNames.moc"
