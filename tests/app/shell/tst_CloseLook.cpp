// The close look: where the photo stands in it, its keys and hands over the whole window, and which pictures are
// decoded and kept for it.
#include "tests/app/shell/HandsWindow.h"
#include "ui/closeup/CloseupLine.h"
#include "ui/sidebar/SidebarList.h"

#include <atomic>
#include <mutex>
#include <thread>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

class tst_CloseLook : public QObject {
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }
    void placesOfACloseLook_data();
    void placesOfACloseLook();
    void aCloseLook();
    void aCloseLookBeforeAndWithoutAPicture();
    void onlyWhatIsLookedAtIsDecoded();
    void aPhotoThatChangedIsDecodedAgain();
    void picturesKeepWithinTheirBound();
};

void tst_CloseLook::placesOfACloseLook_data()
{
    // In a view of 1,000 × 800, of a photo of 4,000 × 2,000 unless it is said otherwise.
    QTest::addColumn<CloseupPlace>("place");
    QTest::addColumn<QSize>("photo");
    QTest::addColumn<QRectF>("rect");
    const QSize photo(4000, 2000), view(1000, 800);
    const CloseupPlace fitted;
    QTest::newRow("fitted") << fitted << photo << QRectF(0, 150, 1000, 500);
    QTest::newRow("a small one is not enlarged") << fitted << QSize(100, 60) << QRectF(450, 370, 100, 60);
    // The photo's (1000, 1000) lies under (250, 400).
    const CloseupPlace at = fitted.zoomed(1, { 250, 400 }, photo, view);
    QTest::newRow("what is pointed at stays") << at << photo << QRectF(-750, -600, 4000, 2000);
    QTest::newRow("no farther than the edge")
        << fitted.zoomed(1, { 0, 150 }, photo, view) << photo << QRectF(0, 0, 4000, 2000);
    QTest::newRow("panned") << at.panned({ -100, 50 }, photo, view) << photo << QRectF(-850, -550, 4000, 2000);
    QTest::newRow("panned beyond") << at.panned({ -9000, 9000 }, photo, view) << photo << QRectF(-3000, 0, 4000, 2000);
    QTest::newRow("a step larger") << fitted.stepped(1, photo, view) << photo << QRectF(-500, -100, 2000, 1000);
    QTest::newRow("two steps") << fitted.stepped(1, photo, view).stepped(1, photo, view) << photo
                               << QRectF(-1500, -600, 4000, 2000);
    // Whatever the next photo's size.
    QTest::newRow("and back") << fitted.stepped(1, photo, view).stepped(-1, photo, view) << QSize(2000, 4000)
                              << QRectF(300, 0, 400, 800);
    QTest::newRow("not without end") << fitted.zoomed(99, { 500, 400 }, photo, view) << photo
                                     << QRectF(-15500, -7600, 32000, 16000);
    // The same part of a photo that stands.
    QTest::newRow("the neighbor's") << at << QSize(2000, 4000) << QRectF(-125, -1600, 2000, 4000);
    QTest::newRow("a narrow neighbor's") << at << QSize(800, 4000) << QRectF(100, -1600, 800, 4000);
}

void tst_CloseLook::placesOfACloseLook()
{
    QFETCH(CloseupPlace, place);
    QFETCH(QSize, photo);
    QFETCH(QRectF, rect);
    QCOMPARE(place.rect(photo, { 1000, 800 }), rect);
}

void tst_CloseLook::aCloseLook()
{
    HandsWindow f;
    QVERIFY(f.show());
    auto* list = f.window->findChild<SidebarList*>();
    list->setFocus();
    f.press(Qt::Key_Space, {});
    CloseupView* look = f.closeup();
    QVERIFY(look && look->isVisible() && look->hasFocus());
    QCOMPARE(look->geometry(), f.window->rect());
    QTRY_VERIFY(look->seen().isSharp);
    QCOMPARE(look->text().spoken().section(u", "_s, 0, 2), u"a.jpg, 1 of 3, 2 stars"_s);
    QCOMPARE(look->accessibleName(), look->text().spoken());
    // A click shows the pixels that are there, one for one.
    const QPoint spot(300, 300);
    const auto colorAt = [look](QPoint at) { return look->grab().toImage().pixel(at); };
    const QRectF fitted = look->place().rect(f.photoSize, look->size());
    const double scale = f.photoSize.width() / fitted.width();
    const QPointF under = (QPointF(spot) + QPointF(.5, .5) - fitted.topLeft()) * scale;
    QTest::mouseClick(look, Qt::LeftButton, {}, spot);
    QCOMPARE(look->place().zoom, 1.0);
    const QRgb first = colorAt(spot);
    QVERIFY(std::abs(qRed(first) - int(under.x()) % 256) <= 2 && std::abs(qGreen(first) - int(under.y()) % 256) <= 2);
    QCOMPARE(colorAt(spot + QPoint(7, 5)), qRgb((qRed(first) + 7) % 256, (qGreen(first) + 5) % 256, 0));
    // The hand moves it.
    QTest::mousePress(look, Qt::LeftButton, {}, spot);
    QTest::mouseMove(look, spot + QPoint(-30, -20));
    QTest::mouseRelease(look, Qt::LeftButton, {}, spot + QPoint(-30, -20));
    const QRgb moved = qRgb((qRed(first) + 30) % 256, (qGreen(first) + 20) % 256, 0);
    QCOMPARE(colorAt(spot), moved);
    // The neighbor is there already, and seen at the same place.
    QTRY_VERIFY(look->pictures().picture(f.url(u"b.jpg"_s)));
    f.press(Qt::Key_Right, {});
    QCOMPARE(f.primary(), u"b.jpg"_s);
    QVERIFY(look->seen().isSharp);
    QCOMPARE(look->text().note, u"damaged: not all of it can be shown · reduced to 3000 × 2000 of 6000 × 4000"_s);
    QCOMPARE(colorAt(spot), qRgb(qRed(moved), qGreen(moved), 40));
    f.press(Qt::Key_4, {});
    QCOMPARE(f->draftValues().value(u"rating"_s), u"4"_s);
    QCOMPARE(look->text().stars, 4);
    // What lies behind gets no key.
    f.input(u"title"_s)->setFocus();
    QVERIFY(look->hasFocus());
    // The guard asks over it.
    f.press(Qt::Key_Down, {});
    QVERIFY(f->saveOpen() && !look->hasFocus());
    f->discardSaveDialog();
    QCOMPARE(f.primary(), u"c.jpg"_s);
    QVERIFY(look->hasFocus());
    QTRY_COMPARE(look->text().note, u"preview 3000 × 2000 of 6000 × 4000"_s);
    f.press(Qt::Key_Z, {});
    QVERIFY(look->place().isFitted());
    f.press(Qt::Key_Escape, {});
    QTRY_VERIFY(!f.closeup());
    QVERIFY(list->hasFocus());
    QCOMPARE(list->currentIndex().data().toString().contains(u"c.jpg"_s), true);
    // From a field back into it.
    f.input(u"title"_s)->setFocus();
    f.press(Qt::Key_F11, {});
    QVERIFY(f.closeup()->hasFocus());
    f.press(Qt::Key_F11, {});
    QTRY_VERIFY(!f.closeup());
    QVERIFY(f.input(u"title"_s)->hasFocus());
}

void tst_CloseLook::aCloseLookBeforeAndWithoutAPicture()
{
    HandsWindow f;
    QVERIFY(f.show());
    f.isShut = true;
    f.content->toggleCloseup();
    QVERIFY(!f.closeup()->seen().isSharp);
    QCOMPARE(f.closeup()->accessibleDescription(), u"Reading…"_s);
    f.isShut = false;
    QTRY_VERIFY(f.closeup()->seen().isSharp);
    QCOMPARE(f.closeup()->accessibleDescription(), QString());
    f.content->toggleCloseup();
    f.outcome = DecodedImage::Outcome::damaged;
    f.content->toggleCloseup();
    QTRY_COMPARE(f.closeup()->accessibleDescription(), u"This photo is damaged: there is nothing in it to show."_s);
    // Nothing is left to look at.
    f->closeFolder();
    QTRY_VERIFY(!f.closeup());
}

// Whoever holds the arrow down runs past a hundred photos.
void tst_CloseLook::onlyWhatIsLookedAtIsDecoded()
{
    std::atomic<bool> isShut = true;
    std::mutex mutex;
    QStringList whole;
    WholePictures pictures({ .decode = [&](const QString& path, qint64, const std::stop_token& stop) {
        while (isShut && !stop.stop_requested())
            std::this_thread::yield();
        if (stop.stop_requested())
            return DecodedImage{ .outcome = DecodedImage::Outcome::cancelled };
        const std::lock_guard lock(mutex);
        whole.append(path);
        return DecodedImage{ DecodedImage::Outcome::decoded, QImage(10, 10, QImage::Format_RGB32) };
    } });
    const auto url = [](int i) { return QUrl::fromLocalFile(u"/nowhere/%1"_s.arg(i)); };
    for (int i = 0; i < 100; ++i) {
        pictures.look(url(i), { url(i + 1), url(i - 1) });
        QCoreApplication::processEvents();
    }
    QVERIFY(!pictures.picture(url(99)));
    isShut = false;
    QTRY_VERIFY(pictures.picture(url(98)) && pictures.running() == 0);
    QCOMPARE(whole, (QStringList{ u"/nowhere/99"_s, u"/nowhere/100"_s, u"/nowhere/98"_s }));
}

void tst_CloseLook::aPhotoThatChangedIsDecodedAgain()
{
    const PhotoFolder folder;
    const QUrl photo = folder.add(u"a.jpg"_s);
    std::atomic<int> decoded = 0;
    WholePictures pictures({ .decode = [&decoded](const QString&, qint64, const std::stop_token&) {
        return DecodedImage{ DecodedImage::Outcome::decoded, QImage(++decoded, 1, QImage::Format_RGB32) };
    } });
    const auto width = [&pictures, &photo] {
        const WholePicture* picture = pictures.picture(photo);
        return picture ? picture->size().width() : 0;
    };
    pictures.look(photo, {});
    QTRY_COMPARE(width(), 1);
    pictures.look(photo, {});
    QCOMPARE(pictures.running(), 0);
    QFile file(photo.toLocalFile());
    QVERIFY(file.open(QIODevice::Append) && file.write("more") == 4);
    file.close();
    pictures.look(photo, {});
    QTRY_COMPARE(width(), 2);
}

void tst_CloseLook::picturesKeepWithinTheirBound()
{
    constexpr qsizetype bound = 3 * 400'000;
    WholePictures pictures(
        { .mostBytes = bound, .decode = [](const QString& path, qint64, const std::stop_token&) {
             const int side = path.endsWith(u"/7"_s) ? 1000 : 300;  // one is larger than all that there is room for
             return DecodedImage{ DecodedImage::Outcome::decoded, QImage(side, side, QImage::Format_RGB32) };
         } });
    const auto url = [](int i) { return QUrl::fromLocalFile(u"/nowhere/%1"_s.arg(i)); };
    for (int i = 0; i < 20; ++i) {
        pictures.look(url(i), { url(i + 1), url(i - 1) });
        QTRY_VERIFY(pictures.picture(url(i)) && pictures.running() == 0);
        QVERIFY(pictures.bytesHeld() <= (i == 7 ? 4'000'000 : bound));
        QCOMPARE(pictures.picture(url(i + 1)) != nullptr, i != 6 && i != 7);
    }
    pictures.clear();
    QCOMPARE(pictures.bytesHeld(), 0);
}

int main(int argc, char* argv[])
{
    return runOnLargeScreen<tst_CloseLook>(argc, argv);
}

#include "tst_CloseLook.moc"
