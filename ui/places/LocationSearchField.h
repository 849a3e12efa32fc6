// The text field of the place, with suggestions under it.
// Thread: the main thread. Binds its text as QBTextField does; a picked place goes out through picked().
#pragma once

#include "ui/controls/TextFields.h"
#include "ui/places/LocationSearch.h"

#include <optional>

namespace Quorbel {

class SuggestionList;

class LocationSearchField final : public QBTextField {
    Q_OBJECT

public:
    explicit LocationSearchField(PlaceProvider* provider, QWidget* parent = nullptr);
    void setBias(std::optional<GeoPoint> point);
    /// Drops the search and the pick under way: the field shows the place of another thing now.
    void abandon();

signals:
    /// A place was picked and resolved; the owner fills the place fields with it.
    void picked(const Quorbel::LocationFill::Result& result);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void textChangedByUser(const QString& text);
    void showAnswer();
    void pick(int row);
    void finish(const LocationSearch::Answer& answer);
    void close();

    LocationSearch m_search;
    SuggestionList* m_list;
    bool m_showSuggestions = false;
    bool m_failed = false;
    std::optional<QString> m_programmaticText;  ///< what the field itself just wrote
};

}  // namespace Quorbel
