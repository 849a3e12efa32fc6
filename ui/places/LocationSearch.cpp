#include "ui/places/LocationSearch.h"

#include "core/language/Texts.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr int debounceMilliseconds = 200;

LocationFill::Result resultOf(const Placemark& place)
{
    return { place.name, place.locality, place.administrativeArea, place.country, place.point.latitude,
        place.point.longitude, place.countryCode };
}

// What those who know places say of a query. They speak English; %1 is a number.
QString shownNotice(const QString& english)
{
    static const QStringList known{ Texts::mark("Place search is not installed"),
        Texts::mark("The place service asks for a pause"), Texts::mark("The place service sent too much"),
        Texts::mark("The place service did not answer in time"), Texts::mark("The place service cannot be reached"),
        Texts::mark("The place service answered something else"),
        Texts::mark("The place service answered with status %1") };
    for (const QString& text : known)
        if (const QString start = text.section(u"%1"_s, 0, 0); start != text && english.startsWith(start))
            return Texts::shown(text).arg(english.sliced(start.size()));
    return Texts::shown(english);
}

}  // namespace

LocationSearch::LocationSearch(PlaceProvider* provider, QObject* parent)
    : QObject(parent)
    , m_provider(provider)
{
    m_debounce.setSingleShot(true);
    m_debounce.setInterval(debounceMilliseconds);
    connect(&m_debounce, &QTimer::timeout, this, &LocationSearch::ask);
}

LocationSearch::~LocationSearch() = default;

void LocationSearch::update(const QString& query)
{
    cancel();
    m_query = query;
    // What was found for another text must not be picked while the new one waits for its answer.
    publish({}, {});
    if (!query.trimmed().isEmpty())
        m_debounce.start();
}

void LocationSearch::cancel()
{
    m_debounce.stop();
    m_suggesting.reset();
}

void LocationSearch::ask()
{
    if (!m_provider)
        return;
    PlaceQuery query;
    query.text = m_query;
    query.bias = m_bias;
    m_suggesting = m_provider->suggest(query, [this](const PlaceResult<QList<PlaceSuggestion>>& result) {
        // What an offline index knows is shown even when an online service failed beside it.
        publish(result.value, shownNotice(result.detail));
    });
}

void LocationSearch::publish(const QList<PlaceSuggestion>& suggestions, const QString& notice)
{
    if (suggestions == m_suggestions && notice == m_notice)
        return;
    m_suggestions = suggestions;
    m_notice = notice;
    emit suggestionsChanged();
}

void LocationSearch::resolve(const PlaceSuggestion& suggestion, std::function<void(const Answer&)> done)
{
    m_resolving.reset();
    if (suggestion.placemark)
        return done(resultOf(*suggestion.placemark));
    if (!m_provider)
        return done(SearchError::noResult);
    m_resolving = m_provider->resolve(suggestion, [done = std::move(done)](const PlaceResult<Placemark>& result) {
        if (result.error == PlaceError::none)
            done(resultOf(result.value));
        else if (result.error != PlaceError::cancelled)
            done(SearchError::noResult);
    });
}

}  // namespace Quorbel
