#include "tests/ui/inspector/InspectorFixture.h"

#include "ui/controls/theme/Theme.h"

#include <QApplication>
#include <QHash>
#include <QPainter>
#include <QVBoxLayout>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

PlaceToken OnePlace::suggest(const PlaceQuery&, PlaceCallback<QList<PlaceSuggestion>> answer)
{
    answer({ { { place.name, place.country, u"1"_s, std::nullopt } }, PlaceError::none, {} });
    return {};
}

PlaceToken OnePlace::resolve(const PlaceSuggestion&, PlaceCallback<Placemark> answer)
{
    answer({ place, PlaceError::none, {} });
    return {};
}

PlaceToken OnePlace::reverse(const GeoPoint& point, const QLocale&, PlaceCallback<Placemark> answer)
{
    if (point.latitude < 0)
        answer({ {}, PlaceError::noResult, {} });
    else
        answer({ place, PlaceError::none, {} });
    return {};
}

PlaceToken SketchMap::render(const MapRequest& request, PlaceCallback<MapImage> answer)
{
    QImage image((request.size * request.devicePixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(request.devicePixelRatio);
    image.fill(request.dark ? QColor(0x33, 0x36, 0x38) : QColor(0xf1, 0xed, 0xe2));
    QPainter painter(&image);
    painter.setPen(QPen(request.dark ? QColor(0x2c, 0x55, 0x66) : QColor(0xa9, 0xd3, 0xe6), 6));
    painter.drawLine(QPointF(0, 80), QPointF(request.size.width(), 20));
    painter.end();
    answer({ MapImage{ image, request.kilometersAcross, {} }, PlaceError::none, {} });
    return {};
}

InspectorFixture::InspectorFixture() = default;
InspectorFixture::~InspectorFixture() = default;

QUrl InspectorFixture::add(const QString& name, const QStringList& assignments) const
{
    // One run of the tool makes all photos with the same content.
    static QHash<QStringList, QByteArray> made;
    if (const auto known = made.constFind(assignments); known != made.constEnd())
        return photos.folder.add(name, *known);
    const QUrl url = photos.folder.add(name);
    if (!assignments.isEmpty())
        exiftool(QStringList{ u"-overwrite_original"_s } + assignments + QStringList{ url.toLocalFile() });
    made.insert(assignments, readFile(url.toLocalFile()));
    return url;
}

bool InspectorFixture::open(QSize size)
{
    return show(size) && photos.open();
}

bool InspectorFixture::show(QSize size)
{
    window = std::make_unique<QWidget>();
    auto* column = new QVBoxLayout(window.get());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSizeConstraint(QLayout::SetNoConstraint);
    view = new InspectorView(model(), nullptr, &places, &maps);
    column->addWidget(view);
    setTheme(window.get(), Theme::light());
    window->resize(size);
    window->show();
    window->activateWindow();
    return QTest::qWaitForWindowActive(window.get());
}

void InspectorFixture::settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
}

}  // namespace Quorbel::Test
