// The whole window at the sizes of text that a desktop offers: nothing is cut off, shortened or covered that is not at
// the usual size. QT_SCALE_FACTOR is the caller's: the test is run once for each of several.
#include "tests/ui/window/WindowFixture.h"
#include "tests/ui/window/WindowWalk.h"

#include <QLabel>
#include <QRegularExpression>

#include <cmath>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

class tst_TextSizes : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { failOnWarnings(); }
    void cleanup() { setTextSize(10); }
    void theAuditFindsWhatIsWrong();
    void namesAndValuesAreDrawnAsTheyAre();
    void nothingIsLostAtAnySize_data();
    void nothingIsLostAtAnySize();

private:
    std::unique_ptr<WalkedPhotos> m_photos;
    QMap<int, Scenes> m_usual;  // by the window's width
};

void tst_TextSizes::initTestCase()
{
    dropSizeHintMessages();
    setTextSize(10);
    m_photos = std::make_unique<WalkedPhotos>();
    QVERIFY(m_photos->open());
    // The second is the narrowest in which the preview takes room from the inspector.
    for (const QSize size : { QSize(900, 600), QSize(1100, 600), QSize(1600, 1000) })
        m_usual.insert(size.width(), WindowWalk(*m_photos, size).scenes());
}

// A small window with one of every fault; and the same without.
void tst_TextSizes::theAuditFindsWhatIsWrong()
{
    QWidget window;
    window.resize(300, 200);
    auto* cut = new QLabel(u"Cut off at the right"_s, &window);
    cut->setGeometry(10, 10, 40, 20);
    auto* whole = new QLabel(u"Whole"_s, &window);
    whole->setGeometry(10, 40, 200, 20);
    auto* over = new QLabel(u"Over it"_s, &window);
    over->setGeometry(100, 45, 150, 20);
    auto* outside = new QLabel(u"Out"_s, &window);
    outside->setGeometry(250, 100, 100, 20);
    auto* field = new QLineEdit(u"2024-10-12 17:48"_s, &window);
    field->setGeometry(10, 130, 60, 30);
    window.show();
    const LayoutAudit bad = audit(&window);
    QCOMPARE(bad.faults.size(), 3);
    QCOMPARE(bad.tightFields.size(), 1);
    cut->resize(200, 20);
    over->move(100, 70);
    outside->move(150, 100);
    field->resize(200, 30);
    const LayoutAudit good = audit(&window);
    QCOMPARE(good.faults, QStringList());
    QCOMPARE(bad.worseThan({ good }), QStringList{ u"does not fit its field: “2024-10-12 17:48”"_s });
    QVERIFY(good.texts.contains(u"Whole"_s));
}

void tst_TextSizes::namesAndValuesAreDrawnAsTheyAre()
{
    static const QRegularExpression name(u"[0-9]x[0-9]"_s);
    const Scenes usual = m_usual.value(1600);
    int drawn = 0;
    QSet<QString> altered;
    for (const LayoutAudit& scene : usual) {
        drawn += int(QStringList(scene.texts.values()).filter(name).size());
        for (const QString& text : scene.altered)
            if (text.contains(name))
                altered.insert(text);
    }
    QVERIFY(drawn > 50);
    QCOMPARE(altered, QSet<QString>());
}

void tst_TextSizes::nothingIsLostAtAnySize_data()
{
    QTest::addColumn<qreal>("points");
    QTest::addColumn<QSize>("window");
    QTest::addColumn<bool>("whileRunning");
    // Between whole scales what differs is the rounding, which a few sizes show.
    const qreal scale = qGuiApp->devicePixelRatio();
    const QList<qreal> sizes = isSlowRun() && scale == std::floor(scale)
        ? QList<qreal>{ 9, 10, 11, 12, 14, 16, 17, 18, 20 }
        : QList<qreal>{ 9, 11, 17, 20 };
    for (const QSize size : { QSize(900, 600), QSize(1600, 1000) }) {
        // Where there is room, little can be lost that is not lost where there is none.
        const bool isQuick = !isSlowRun() && size.width() > 1000;
        for (const qreal points : isQuick ? QList<qreal>{ 20 } : sizes)
            QTest::addRow("%g pt, %d wide", points, size.width()) << points << size << true;
        for (const qreal points : isQuick ? QList<qreal>{ 14 } : QList<qreal>{ 14, 20 })
            QTest::addRow("%g pt from the start, %d wide", points, size.width()) << points << size << false;
    }
}

void tst_TextSizes::nothingIsLostAtAnySize()
{
    QFETCH(qreal, points);
    QFETCH(QSize, window);
    QFETCH(bool, whileRunning);
    if (!whileRunning)
        setTextSize(points);
    WindowWalk walk(*m_photos, window);
    setTextSize(points);
    const Scenes seen = walk.scenes();
    QMap<QString, QString> faults;  // and a scene that each is seen in
    for (auto scene = seen.cbegin(); scene != seen.cend(); ++scene) {
        const QList<LayoutAudit> usual{ m_usual.value(window.width()).value(scene.key()),
            m_usual.value(1100).value(scene.key()) };
        for (const QString& fault : scene->faults + scene->worseThan(usual))
            faults.insert(fault, scene.key());
    }
    for (auto fault = faults.cbegin(); fault != faults.cend(); ++fault)
        qInfo().noquote() << fault.value() + u": "_s + fault.key();
    QCOMPARE(faults.size(), 0);
}

int main(int argc, char* argv[])
{
    return runOnLargeScreen<tst_TextSizes>(argc, argv);
}
#include "tst_TextSizes.moc"
