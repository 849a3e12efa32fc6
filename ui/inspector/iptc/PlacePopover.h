// A place that one looks for by its name, for a card.
// Thread: the main thread. Asks a place provider; knows nothing of cards.
#pragma once

#include "ui/controls/attached/SearchPopover.h"
#include "ui/places/LocationSearch.h"

namespace Quorbel {

class PlacePopover final : public SearchPopover {
    Q_OBJECT

public:
    static constexpr int mostRows = 6;

    /// The provider is not owned and must outlive this; null is one that knows nothing.
    PlacePopover(PlaceProvider* places, QWidget* opener);
    /// Places near this point come first among equals.
    void setBias(const std::optional<GeoPoint>& point) { m_search.setBias(point); }

signals:
    void picked(const Quorbel::LocationFill::Result& place);

protected:
    int heightIn(int width) override;
    int find(const QString& typed) override;
    void pick(int row) override;
    int pageRows() const override { return mostRows; }

private:
    void finish(const LocationSearch::Answer& answer);

    LocationSearch m_search;
    QString m_typed;
};

}  // namespace Quorbel
