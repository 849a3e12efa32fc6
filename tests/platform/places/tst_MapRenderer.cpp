#include "platform/places/map/MapLabels.h"
#include "platform/places/map/MapPalette.h"
#include "platform/places/map/MapRenderer.h"
#include "tests/support/Support.h"
#include "tools/map/MapWriter.h"

#include <QEventLoop>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cmath>

using namespace Quorbel;
using namespace Quorbel::MapBuild;
using namespace Qt::StringLiterals;

using MapFormat::Kind;

namespace {

enum Ground { sea, land, nationalLine };

const QStringList fileNames{ u"gshhg-shores-high.map"_s, u"gshhg-shores-middle.map"_s, u"gshhg-shores-low.map"_s,
    u"gshhg-rivers-high.map"_s, u"gshhg-rivers-low.map"_s, u"borders.map"_s, u"towns.map"_s };

// A world of 10° bins. Land: 40…50° N, 0…20° E, with a lake in the middle of its west half; an island across the
// antimeridian, 10…20° S, 170° E…170° W, with a border along 15° S; all south of 80° S. Six towns at 45° N.
class SmallWorld {
public:
    SmallWorld()
    {
        MapWriter shores(Kind::shore, columns, columns / 2);
        for (const int bin : { binAt(0, 40), binAt(10, 40), binAt(170, -20), binAt(180, -20) })
            shores.addShape(bin, MapFormat::land, square(0, MapFormat::binUnits));
        for (int longitude = 0; longitude < 360; longitude += 10)
            shores.addShape(binAt(longitude, -90), MapFormat::land, square(0, MapFormat::binUnits));
        shores.addShape(binAt(0, 40), MapFormat::lake, square(30000, 35535));
        MapWriter rivers(Kind::rivers, columns, columns / 2);
        MapWriter borders(Kind::borders, columns, columns / 2);
        borders.addLine(MapFormat::national, { { 172, -15 }, { 188, -15 } });
        MapWriter towns(Kind::towns, columns, columns / 2);
        for (int i = 0; i < 6; ++i)
            towns.addTown({ { 12 + 0.2 * i, 45 }, quint8(200 - 10 * i), 0, 100000, "Town " + QByteArray::number(i) });
        for (const auto& name : fileNames) {
            const auto& writer = name.startsWith(u"gshhg-s") ? shores
                : name.startsWith(u"gshhg-r")                ? rivers
                : name.startsWith(u"b")                      ? borders
                                                             : towns;
            writer.write(path(name));
        }
    }

    QString path() const { return m_folder.path(); }
    QString path(const QString& name) const { return m_folder.filePath(name); }

private:
    static constexpr int columns = 36;

    static int binAt(int west, int south) { return (80 - south) / 10 * columns + west / 10 % columns; }
    static QList<BinPoint> square(int from, int to)
    {
        const auto low = quint16(from);
        const auto high = quint16(to);
        return { { low, low }, { high, low }, { high, high }, { low, high } };
    }

    QTemporaryDir m_folder;
};

MapRequest requestAt(double latitude, double longitude)
{
    MapRequest request;
    request.center = { latitude, longitude };
    request.size = { 120, 60 };
    request.kilometersAcross = 60;
    request.widen = false;
    request.textScale = 0.1;  // names as small as dots, so that they hide nothing
    return request;
}

PlaceResult<MapImage> render(const QString& folder, const MapRequest& request)
{
    const auto renderer = makeMapRenderer(folder);
    PlaceResult<MapImage> answer;
    QEventLoop loop;
    const auto token = renderer->render(request, [&](const PlaceResult<MapImage>& result) {
        answer = result;
        loop.quit();
    });
    QTimer::singleShot(20000, &loop, &QEventLoop::quit);
    loop.exec();
    return answer;
}

// What a pixel shows: the colour that it is nearest to.
Ground groundOf(const QColor& pixel, bool dark = false)
{
    const auto& palette = MapPalette::of(dark);
    const auto distance = [&](const QColor& other) {
        return std::abs(pixel.red() - other.red()) + std::abs(pixel.green() - other.green())
            + std::abs(pixel.blue() - other.blue());
    };
    const auto onLand = std::min(distance(palette.land), distance(palette.settled));
    const auto atSea = std::min(distance(palette.sea), distance(palette.graticule));
    if (distance(palette.national) < std::min(onLand, atSea))
        return nationalLine;
    return onLand < atSea ? land : sea;
}

Ground groundAtCenter(const QImage& image, bool dark = false)
{
    return groundOf(image.pixelColor(image.width() / 2, image.height() / 2), dark);
}

QString builtData()
{
    const auto folder = qEnvironmentVariable("QUORBEL_TEST_SHARE") + u"/places"_s;
    const auto isThere = [&](const QString& name) { return QFile::exists(folder + u'/' + name); };
    return std::all_of(fileNames.begin(), fileNames.end(), isThere) ? folder : QString();
}

}  // namespace

class tst_MapRenderer : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void ground_data();
    void ground();
    void seamless_data();
    void seamless();
    void shoreStandsWhereItIs();
    void size_data();
    void size();
    void widens();
    void labelsKeepApart();
    void fromRightToLeft();
    void cancelled();
    void missing_data();
    void missing();
    void refused_data();
    void refused();
    void damaged_data();
    void damaged();
    void realWorld_data();
    void realWorld();
    void antimeridianIsNoEdge();

private:
    SmallWorld m_world{};
};

void tst_MapRenderer::ground_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<Ground>("ground");
    QTest::newRow("open sea") << -45.0 << -140.0 << sea;
    QTest::newRow("land") << 42.0 << 3.0 << land;
    QTest::newRow("lake") << 45.0 << 5.0 << sea;
    QTest::newRow("where two bins meet") << 42.0 << 10.0 << land;
    QTest::newRow("antimeridian from the west") << -12.0 << 180.0 << land;
    QTest::newRow("antimeridian from the east") << -12.0 << -180.0 << land;
    QTest::newRow("border across the antimeridian") << -15.0 << 180.0 << nationalLine;
    QTest::newRow("north pole") << 90.0 << 0.0 << sea;
    QTest::newRow("south pole") << -90.0 << 0.0 << land;
    QTest::newRow("south pole, other way up") << -90.0 << 170.0 << land;
}

void tst_MapRenderer::ground()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    auto request = requestAt(latitude, longitude);
    for (const bool dark : { false, true }) {
        request.dark = dark;
        const auto result = render(m_world.path(), request);
        QCOMPARE(result.error, PlaceError::none);
        QTEST(groundAtCenter(result.value.image, dark), "ground");
    }
}

void tst_MapRenderer::seamless_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<double>("across");
    QTest::newRow("bins side by side") << 45.0 << 10.0 << 500.0;
    QTest::newRow("antimeridian") << -13.0 << 180.0 << 300.0;
    QTest::newRow("pole, where all bins meet") << -89.9 << 20.0 << 1500.0;
    QTest::newRow("pole, near") << -90.0 << 0.0 << 20.0;
}

// Every pixel is plain land: no line where polygons of neighbouring bins meet, no gap between them.
void tst_MapRenderer::seamless()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(double, across);
    auto request = requestAt(latitude, longitude);
    request.kilometersAcross = across;
    const SmallWorld world;
    MapWriter(Kind::towns, 36, 18).write(world.path(u"towns.map"_s));
    MapWriter(Kind::borders, 36, 18).write(world.path(u"borders.map"_s));
    const auto image = render(world.path(), request).value.image;
    QVERIFY(!image.isNull());
    // Edges that are shared may round differently, by what no eye can see.
    const QRgb expected = MapPalette::of(false).land.rgb();
    const auto isLand = [&](QRgb pixel) {
        return std::abs(qRed(pixel) - qRed(expected)) <= 2 && std::abs(qGreen(pixel) - qGreen(expected)) <= 2
            && std::abs(qBlue(pixel) - qBlue(expected)) <= 2;
    };
    // The scale bar stands bottom left.
    for (int y = 0; y < image.height() - 16; ++y) {
        for (int x = 0; x < image.width(); ++x)
            QVERIFY2(isLand(image.pixel(x, y)), qPrintable(u"%1, %2"_s.arg(x).arg(y)));
    }
}

// The west coast lies on the meridian at the centre: the middle column, whatever the scale.
void tst_MapRenderer::shoreStandsWhereItIs()
{
    auto request = requestAt(42, 0);
    request.devicePixelRatio = 2;
    for (const double across : { 5.0, 60.0, 400.0 }) {
        request.kilometersAcross = across;
        const auto image = render(m_world.path(), request).value.image;
        const int middle = image.width() / 2;
        const int y = image.height() / 2;
        QCOMPARE(groundOf(image.pixelColor(middle - 2, y)), sea);
        QCOMPARE(groundOf(image.pixelColor(middle + 2, y)), land);
    }
}

void tst_MapRenderer::size_data()
{
    QTest::addColumn<QSizeF>("points");
    QTest::addColumn<double>("density");
    QTest::addColumn<QSize>("pixels");
    QTest::newRow("plain") << QSizeF(320, 96) << 1.0 << QSize(320, 96);
    QTest::newRow("double") << QSizeF(620, 96) << 2.0 << QSize(1240, 192);
    QTest::newRow("one and a half, rounded") << QSizeF(301, 96) << 1.5 << QSize(452, 144);
    QTest::newRow("one pixel") << QSizeF(1, 1) << 1.0 << QSize(1, 1);
    QTest::newRow("higher than wide") << QSizeF(40, 300) << 1.0 << QSize(40, 300);
}

void tst_MapRenderer::size()
{
    QFETCH(QSizeF, points);
    QFETCH(double, density);
    auto request = requestAt(45, 8);
    request.size = points;
    request.devicePixelRatio = density;
    request.widen = true;
    const auto image = render(m_world.path(), request).value.image;
    QTEST(image.size(), "pixels");
    QCOMPARE(image.devicePixelRatio(), density);
}

void tst_MapRenderer::widens()
{
    auto request = requestAt(45, 8);
    request.size = { 500, 96 };
    const auto near = render(m_world.path(), request).value;
    QCOMPARE(near.kilometersAcross, 60.0);
    QVERIFY(!near.attribution.isEmpty());

    // Two towns come into sight 320 km away, at 60 × 2.5³ km.
    request.widen = true;
    QVERIFY(std::abs(render(m_world.path(), request).value.kilometersAcross - 937.5) < 1e-6);

    // Where nothing is, it ends before the horizon shows.
    request.center = { -45, -140 };
    const auto far = render(m_world.path(), request).value;
    QVERIFY(far.kilometersAcross > 5000);
    QVERIFY(far.kilometersAcross < 2 * MapProjection::earthRadius);
    for (const int x : { 0, far.image.width() - 1 })
        QCOMPARE(far.image.pixelColor(x, 0).alpha(), 255);
}

void tst_MapRenderer::labelsKeepApart()
{
    const MapProjection projection({ 48, 8 }, { 500, 96 }, 150);
    QList<SeenTown> towns;
    QRandomGenerator random(7);
    for (int i = 0; i < 300; ++i) {
        const QPointF at(random.bounded(500.0), random.bounded(96.0));
        const double distance = QLineF(at, QPointF(250, 48)).length() / projection.scale();
        towns.append({ at, distance, quint8(200 - i / 2), 0, 1000, u"Sankt Name %1"_s.arg(i) });
    }
    towns[40] = { QPointF(252, 50), 0.7, 220, 0, 500000, u"Middle"_s };
    const QList<QRectF> reserved{ QRectF(240, 24, 20, 28), QRectF(0, 72, 84, 24) };
    const auto labels = placeLabels(towns, projection, QFont(), 1, reserved);

    QVERIFY(labels.size() >= 5);
    QCOMPARE(labels.first().text, u"Middle"_s);
    for (int i = 0; i < labels.size(); ++i) {
        QVERIFY(QRectF(0, 0, 500, 96).contains(labels[i].box));
        for (const auto& box : reserved)
            QVERIFY(!box.intersects(labels[i].box));
        for (int k = 0; k < labels.size(); ++k)
            QVERIFY2(i == k || (!labels[i].box.intersects(labels[k].box) && !labels[i].box.contains(labels[k].dot)),
                qPrintable(labels[i].text + labels[k].text));
    }
}

// The scale stands where one begins to read, a name after its dot.
void tst_MapRenderer::fromRightToLeft()
{
    auto request = requestAt(-45, -140);  // nothing but sea
    request.size = { 500, 96 };
    request.textScale = 1;
    const QImage usual = render(m_world.path(), request).value.image;
    request.direction = Qt::RightToLeft;
    const QImage turned = render(m_world.path(), request).value.image;
    QRect changed;
    for (int y = 0; y < usual.height(); ++y)
        for (int x = 0; x < usual.width(); ++x)
            if (usual.pixel(x, y) != turned.pixel(x, y))
                changed |= QRect(x, y, 1, 1);
    QVERIFY(changed.top() > 70 && changed.left() < 10 && changed.right() > 490);
    for (const QImage& image : { usual, turned })  // each corner has it in one of them
        QVERIFY(image.pixel(8, 89) != image.pixel(491, 89));

    const MapProjection projection({ 48, 8 }, { 500, 96 }, 150);
    const QList<SeenTown> towns{ { QPointF(250, 30), 10, 200, 0, 1000, u"Bern"_s } };
    const auto first = [&](Qt::LayoutDirection direction) {
        return placeLabels(towns, projection, QFont(), 1, {}, direction).value(0).box;
    };
    QVERIFY(first(Qt::LeftToRight).left() > 250);
    QVERIFY(first(Qt::RightToLeft).right() < 250 && !first(Qt::RightToLeft).isEmpty());
}

void tst_MapRenderer::cancelled()
{
    auto request = requestAt(45, 8);
    request.size = { 1000, 500 };
    auto renderer = makeMapRenderer(m_world.path());
    int calls = 0;
    const auto count = [&](const PlaceResult<MapImage>&) { ++calls; };

    // Dropped before, while and after it is drawn; one worker keeps the order, so the last answer ends the wait.
    renderer->render(request, count);
    auto drawn = renderer->render(request, count);
    QTest::qSleep(30);
    drawn.reset();
    bool isAnswered = false;
    const auto kept = renderer->render(request, [&](const PlaceResult<MapImage>& result) {
        isAnswered = true;
        QCOMPARE(result.error, PlaceError::none);
    });
    QVERIFY(!isAnswered);
    QTRY_VERIFY(isAnswered);
    QCOMPARE(calls, 0);

    // A renderer that goes takes its answers along, even those already on their way.
    const auto pending = renderer->render(request, count);
    const auto waiting = renderer->render(request, count);
    QTest::qSleep(30);
    renderer.reset();
    QTest::qWait(50);
    QCOMPARE(calls, 0);
}

void tst_MapRenderer::missing_data()
{
    QTest::addColumn<QString>("name");
    for (const auto& name : fileNames)
        QTest::newRow(qPrintable(name)) << name;
}

void tst_MapRenderer::missing()
{
    QFETCH(QString, name);
    const SmallWorld world;
    QVERIFY(QFile::remove(world.path(name)));
    const auto result = render(world.path(), requestAt(45, 8));
    QCOMPARE(result.error, PlaceError::noData);
    QVERIFY(!result.detail.isEmpty());
    QVERIFY(result.value.image.isNull());
}

void tst_MapRenderer::refused_data()
{
    QTest::addColumn<MapRequest>("request");
    auto request = requestAt(95, 8);
    QTest::newRow("no such latitude") << request;
    request = requestAt(45, qQNaN());
    QTest::newRow("no longitude") << request;
    request = requestAt(45, 8);
    request.size = { 0, 96 };
    QTest::newRow("no width") << request;
    request.size = { 1e6, 1e6 };
    QTest::newRow("too many pixels") << request;
    request = requestAt(45, 8);
    request.kilometersAcross = qInf();
    QTest::newRow("no scale") << request;
}

void tst_MapRenderer::refused()
{
    QFETCH(MapRequest, request);
    QCOMPARE(render(m_world.path(), request).error, PlaceError::noData);
}

void tst_MapRenderer::damaged_data()
{
    missing_data();
}

// Cut off anywhere or with bytes changed, a file draws something or nothing, but never reads beyond its end.
void tst_MapRenderer::damaged()
{
    QFETCH(QString, name);
    const SmallWorld world;
    const auto whole = Test::readFile(world.path(name));
    QRandomGenerator random(4711);
    const auto draws = [&](const QByteArray& bytes) {
        Test::writeFile(world.path(name), bytes);
        for (const double latitude : { 45.0, -90.0 }) {
            const auto result = render(world.path(), requestAt(latitude, 12));
            if (result.error != PlaceError::noData && result.value.image.isNull())
                return false;
        }
        return true;
    };
    for (int i = 0; i < 12; ++i) {
        QVERIFY(draws(whole.left(random.bounded(int(whole.size())))));
        QVERIFY(draws(whole.left(whole.size() - 1 - i)));
        auto garbled = whole;
        for (int k = 0; k <= i; ++k)
            garbled[random.bounded(8, int(whole.size()))] = char(random.bounded(256));
        QVERIFY(draws(garbled));
        // All offsets within the table changed, the header left alone.
        for (int k = MapFormat::headerSize; k < std::min<int>(MapFormat::headerSize + 2596, int(whole.size())); ++k)
            garbled[k] = char(random.bounded(k % 4 == 3 ? 1 : 256));
        QVERIFY(draws(garbled));
    }
}

void tst_MapRenderer::realWorld_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<Ground>("ground");
    QTest::newRow("Sahara") << 23.5 << 5.5 << land;
    QTest::newRow("Siberia") << 65.1 << 100.3 << land;
    QTest::newRow("Amazon forest") << -6.3 << -65.4 << land;
    QTest::newRow("Antarctic plateau") << -80.0 << 60.0 << land;
    QTest::newRow("south pole") << -90.0 << 0.0 << land;
    QTest::newRow("north pole") << 90.0 << 0.0 << sea;
    QTest::newRow("Atlantic") << 30.0 << -40.0 << sea;
    QTest::newRow("Gulf of Guinea") << 0.0 << 0.0 << sea;
    QTest::newRow("Pacific on the antimeridian") << 5.0 << 180.0 << sea;
    QTest::newRow("Lake Geneva") << 46.45 << 6.55 << sea;
    QTest::newRow("Lake Victoria") << -1.0 << 33.0 << sea;
    QTest::newRow("Caspian Sea") << 41.5 << 51.5 << sea;
    QTest::newRow("Manitoulin, an island in a lake") << 45.75 << -82.2 << land;
    QTest::newRow("Taveuni, on the antimeridian") << -16.83 << -180.0 << land;
    QTest::newRow("off Nice") << 43.66 << 7.30 << sea;
    QTest::newRow("behind Nice") << 43.74 << 7.27 << land;
    QTest::newRow("off San Francisco") << 37.76 << -122.54 << sea;
    QTest::newRow("San Francisco") << 37.76 << -122.46 << land;
    QTest::newRow("Strait of Dover") << 51.02 << 1.55 << sea;
    QTest::newRow("behind Dover") << 51.19 << 1.20 << land;
}

void tst_MapRenderer::realWorld()
{
    const auto folder = builtData();
    if (folder.isEmpty())
        QSKIP("The map files are not built: run scripts/places and configure again");
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    auto request = requestAt(latitude, longitude);
    request.size = { 40, 40 };
    request.devicePixelRatio = 2;
    for (const double across : { 10.0, 40.0 }) {
        request.kilometersAcross = across;
        const auto image = render(folder, request).value.image;
        // Off the middle, where the graticule or a dot may be.
        QTEST(groundOf(image.pixelColor(image.width() / 2 + 3, image.height() / 2 + 3)), "ground");
    }
}

// The same place by either of its names gives the same picture, in the real data too.
void tst_MapRenderer::antimeridianIsNoEdge()
{
    const auto built = builtData();
    for (const auto& folder : built.isEmpty() ? QStringList{ m_world.path() } : QStringList{ m_world.path(), built }) {
        for (const double across : { 150.0, 2000.0 }) {
            auto request = requestAt(-16.8, 180);
            request.kilometersAcross = across;
            const auto east = render(folder, request).value.image;
            request.center.longitude = -180;
            QCOMPARE(render(folder, request).value.image, east);
            QVERIFY(!east.isNull());
        }
    }
}

QTEST_MAIN(tst_MapRenderer)
#include "tst_MapRenderer.moc"
