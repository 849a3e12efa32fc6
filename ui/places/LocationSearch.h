// Place suggestions for a text being typed, and the whole of a picked one.
// Thread: the main thread. Asks a place provider; knows no widget.
#pragma once

#include "core/schema/LocationFill.h"
#include "platform/places/search/PlaceProvider.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <variant>

namespace Quorbel {

class LocationSearch final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QList<PlaceSuggestion> suggestions READ suggestions NOTIFY suggestionsChanged)

public:
    enum class SearchError { noResult };
    using Answer = std::variant<LocationFill::Result, SearchError>;

    /// The provider is not owned and must outlive this; null is a provider that knows nothing.
    explicit LocationSearch(PlaceProvider* provider, QObject* parent = nullptr);
    ~LocationSearch() override;

    const QList<PlaceSuggestion>& suggestions() const { return m_suggestions; }
    /// One line from the provider about the last query ("No place data installed"), empty when it has nothing to say.
    const QString& notice() const { return m_notice; }
    /// Empties the suggestions at once, and asks the provider 200 ms after the last call; not for a blank query.
    void update(const QString& query);
    /// Drops the pending query and the answer under way; the suggestions stay.
    void cancel();
    /// Calls back once, unless a later resolve(), abandonPick() or the end of this object comes first.
    void resolve(const PlaceSuggestion& suggestion, std::function<void(const Answer&)> done);
    void abandonPick() { m_resolving.reset(); }
    /// Places near this point come first among equals.
    void setBias(std::optional<GeoPoint> point) { m_bias = point; }

signals:
    /// The suggestions or the notice have a new value.
    void suggestionsChanged();

private:
    void ask();
    void publish(const QList<PlaceSuggestion>& suggestions, const QString& notice);

    PlaceProvider* m_provider;
    QTimer m_debounce;
    QString m_query;
    std::optional<GeoPoint> m_bias;
    QList<PlaceSuggestion> m_suggestions;
    QString m_notice;
    PlaceToken m_suggesting;
    PlaceToken m_resolving;
};

}  // namespace Quorbel
