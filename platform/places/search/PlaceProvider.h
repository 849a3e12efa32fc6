// Place search, reverse look-up: what a desktop system's place service would offer.
// Thread: calls come from the main thread; every answer arrives there, later or within the call.
// Knows nothing of photos or fields.
#pragma once

#include <QList>
#include <QLocale>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace Quorbel {

struct GeoPoint {
    double latitude = 0;  ///< degrees, north positive, -90…90
    double longitude = 0;  ///< degrees, east positive, -180…180
    bool isValid() const { return latitude >= -90 && latitude <= 90 && longitude >= -180 && longitude <= 180; }
    bool operator==(const GeoPoint&) const = default;
};

/// A place as it is known; empty text means unknown, never guessed.
struct Placemark {
    QString name{};
    QString locality{};
    QString administrativeArea{};
    QString country{};
    QString countryCode{};  ///< ISO 3166-1 alpha-2
    GeoPoint point{};
    bool operator==(const Placemark&) const = default;
};

struct PlaceSuggestion {
    QString title{};  ///< "Springfield"
    QString subtitle{};  ///< "Illinois, United States"
    QString id{};  ///< opaque; tells the provider which place it was
    std::optional<Placemark> placemark{};  ///< set when the suggestion already holds all of it
    bool operator==(const PlaceSuggestion&) const = default;
};

struct PlaceQuery {
    QString text{};
    std::optional<GeoPoint> bias{};  ///< places near it come first among equals
    QLocale locale{};
    int limit = 8;
};

enum class PlaceError { none, cancelled, offline, rateLimited, badAnswer, noData, noResult };

template <typename T>
struct PlaceResult {
    T value{};
    PlaceError error = PlaceError::none;
    QString detail{};  ///< one line for the user, when there is something to say
};

template <typename T>
using PlaceCallback = std::function<void(const PlaceResult<T>&)>;

/// A question under way. Destroying it drops the answer: the callback is not called any more.
class PlaceRequest {
public:
    virtual ~PlaceRequest() = default;
};
using PlaceToken = std::unique_ptr<PlaceRequest>;

class PlaceProvider {
public:
    virtual ~PlaceProvider() = default;

    /// Places whose names begin with the typed text, the likeliest first. May call back more than once, each time
    /// with the whole list so far (offline answers first, then those of an online service below them).
    virtual PlaceToken suggest(const PlaceQuery& query, PlaceCallback<QList<PlaceSuggestion>> answer) = 0;
    /// The whole of a suggested place; noResult when it cannot be found.
    virtual PlaceToken resolve(const PlaceSuggestion& suggestion, PlaceCallback<Placemark> answer) = 0;
    /// The place at a position; noResult in open sea.
    virtual PlaceToken reverse(const GeoPoint& point, const QLocale& locale, PlaceCallback<Placemark> answer) = 0;
    /// Credits of the data, for the About text.
    virtual QString attribution() const = 0;
};

struct PlaceOptions {
    QString dataFolder{};  ///< share/quorbel/places; where files are missing, suggest answers noData
    QUrl endpoint{};  ///< of an online service, asked besides the files here; empty: never go online
};

/// The service's address as a person typed it, or nothing when it is none that may be asked: https anywhere, http on
/// this machine only, without user name and password.
std::optional<QUrl> placeEndpoint(const QString& typed);

/// Places from the files in the data folder and, below them, from the endpoint when it is one that placeEndpoint
/// accepts. Never null. The provider owns a database connection: use and destroy it on the thread that made it.
std::unique_ptr<PlaceProvider> makePlaceProvider(const PlaceOptions& options);

}  // namespace Quorbel
