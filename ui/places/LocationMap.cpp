#include "ui/places/LocationMap.h"

#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/places/MapPreview.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

LocationMap::LocationMap(PlaceProvider* places, MapRenderer* maps, QWidget* parent)
    : QWidget(parent)
    , m_places(places)
    , m_map(new MapPreview(maps))
    , m_line(new QWidget)
    , m_link(new QBTextButton(Texts::tr("Fill place from coordinates")))
    , m_failure(new ThemedLabel(Texts::tr("Couldn't look that up"), TextRole::label, 12))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_map);
    column->addWidget(m_line);
    auto* line = new QHBoxLayout(m_line);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(m_link);
    line->addWidget(m_failure);
    line->addStretch();
    m_link->setLink(true);
    m_failure->hide();
    onRestyle(this, [column, line] {
        column->setSpacing(px(6));
        line->setSpacing(px(10));
    });
    connect(m_link, &QAbstractButton::clicked, this, &LocationMap::lookUp);
}

void LocationMap::setPoint(const std::optional<Coordinates::Point>& point, bool offersFill)
{
    if (point != m_point)
        abandon();
    m_point = point;
    if (point)
        m_map->setPoint(*point);
    const GeoPoint place = point ? GeoPoint{ point->latitude, point->longitude } : GeoPoint{};
    m_line->setVisible(offersFill && m_places && place.isValid());
    setVisible(point.has_value());
}

void LocationMap::abandon()
{
    m_request.reset();
    m_failure->hide();
}

void LocationMap::lookUp()
{
    if (!m_places || !m_point)
        return;
    m_failure->hide();
    m_request = m_places->reverse({ m_point->latitude, m_point->longitude }, QLocale(),
        [this](const PlaceResult<Placemark>& answer) { finish(answer); });
}

void LocationMap::finish(const PlaceResult<Placemark>& answer)
{
    if (answer.error == PlaceError::cancelled)
        return;
    if (answer.error != PlaceError::none) {
        m_failure->show();
        return;
    }
    const Placemark& place = answer.value;
    emit found({ place.name, place.locality, place.administrativeArea, place.country, place.point.latitude,
        place.point.longitude, place.countryCode });
}

}  // namespace Quorbel
