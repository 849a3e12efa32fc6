// The window where one reads from right to left: each screen is the mirror image of the usual one.
#include "tests/ui/window/WindowFixture.h"
#include "tests/ui/window/WindowWalk.h"

#include <QRegularExpression>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

constexpr qreal tolerance = 2;  // pixels: what is in the middle of an odd width, and the room around letters

struct Seen {
    qreal width = 0;
    QList<Drawn> drawn{};
};

QMap<QString, Seen> allScreens(WalkedPhotos& photos)
{
    QMap<QString, Seen> screens;
    WindowWalk walk(photos, { 1600, 1000 });
    walk.scenes([&](const QString& name, QWidget* shown) {
        screens.insert(name, { qreal(shown->width()), drawnIn(shown) });
    });
    return screens;
}

// Where each is that is there once, by what it is. What is there several times is not told apart.
QMap<QString, QRectF> single(const QList<Drawn>& drawn)
{
    QMap<QString, QRectF> places;
    QSet<QString> several;
    // A part of a line between signs that have no direction has a place of its own; so have the parts of a file's name.
    static const QRegularExpression part(u"^“( .*|.* |▸)” in |RenameList"_s);
    for (const Drawn& one : drawn) {
        if (one.what.contains(part))
            continue;
        if (places.contains(one.what))
            several.insert(one.what);
        places.insert(one.what, one.place);
    }
    for (const QString& what : several)
        places.remove(what);
    return places;
}

}  // namespace

class tst_Mirroring : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
    void everyScreenIsMirrored();
};

void tst_Mirroring::everyScreenIsMirrored()
{
    WalkedPhotos photos;
    QVERIFY(photos.open());
    const QMap<QString, Seen> usual = allScreens(photos);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const QMap<QString, Seen> turned = allScreens(photos);
    QCOMPARE(turned.keys(), usual.keys());
    int compared = 0;
    QMap<QString, QString> faults;  // and a screen that each is seen on
    for (auto screen = usual.cbegin(); screen != usual.cend(); ++screen) {
        const QMap<QString, QRectF> places = single(turned.value(screen.key()).drawn);
        const QMap<QString, QRectF> before = single(screen->drawn);
        for (auto one = before.cbegin(); one != before.cend(); ++one) {
            const auto place = places.constFind(one.key());
            if (place == places.cend())
                continue;
            ++compared;
            const QRectF wanted(screen->width - one->right(), one->top(), one->width(), one->height());
            if (qAbs(wanted.left() - place->left()) > tolerance || qAbs(wanted.right() - place->right()) > tolerance)
                faults.insert(u"%1 at %2…%3, not %4…%5"_s.arg(one.key())
                                  .arg(place->left())
                                  .arg(place->right())
                                  .arg(wanted.left())
                                  .arg(wanted.right()),
                    screen.key());
        }
    }
    for (auto fault = faults.cbegin(); fault != faults.cend(); ++fault)
        qInfo().noquote() << fault.value() + u": "_s + fault.key();
    qInfo() << compared << "compared";
    QVERIFY(compared > 1500);
    QCOMPARE(faults.size(), 0);
}

int main(int argc, char* argv[])
{
    return runOnLargeScreen<tst_Mirroring>(argc, argv);
}
#include "tst_Mirroring.moc"
