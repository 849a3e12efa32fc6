#include "ui/places/LocationSearchField.h"

#include "core/language/Texts.h"
#include "core/schema/FieldID.h"
#include "ui/controls/SuggestionList.h"

#include <QKeyEvent>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// The text that filling the place fields with this result puts into the place field; nothing when it leaves it alone.
std::optional<QString> placeText(const LocationFill::Result& result)
{
    const auto assignments = LocationFill::assignments(result, [](const QString&) { return false; });
    for (const LocationFill::Assignment& assignment : assignments) {
        if (assignment.id == FieldID::place)
            return assignment.value;
    }
    return {};
}

}  // namespace

LocationSearchField::LocationSearchField(PlaceProvider* provider, QWidget* parent)
    : QBTextField(parent)
    , m_search(provider)
    , m_list(new SuggestionList(this))
{
    connect(this, &QLineEdit::textEdited, this, &LocationSearchField::textChangedByUser);
    connect(&m_search, &LocationSearch::suggestionsChanged, this, &LocationSearchField::showAnswer);
    connect(m_list, &SuggestionList::activated, this, &LocationSearchField::pick);
}

void LocationSearchField::setBias(std::optional<GeoPoint> point)
{
    m_search.setBias(point);
}

void LocationSearchField::textChangedByUser(const QString& text)
{
    if (m_programmaticText == text) {
        m_programmaticText.reset();
        return;
    }
    m_programmaticText.reset();
    m_failed = false;
    m_showSuggestions = !text.isEmpty();
    m_search.update(text);
    showAnswer();
}

void LocationSearchField::showAnswer()
{
    if (m_failed)
        return m_list->showMessage(Texts::tr("Couldn't look that up"));
    if (!m_showSuggestions)
        return m_list->dismiss();
    if (m_search.suggestions().isEmpty() && !m_search.notice().isEmpty())
        return m_list->showMessage(m_search.notice());
    QList<SuggestionRow> rows;
    for (const PlaceSuggestion& suggestion : m_search.suggestions())
        rows.append({ suggestion.title, suggestion.subtitle });
    m_list->showRows(rows);
}

void LocationSearchField::pick(int row)
{
    if (row < 0 || row >= m_search.suggestions().size())
        return;
    const PlaceSuggestion suggestion = m_search.suggestions().at(row);
    close();
    m_search.resolve(suggestion, [this](const LocationSearch::Answer& answer) { finish(answer); });
}

void LocationSearchField::finish(const LocationSearch::Answer& answer)
{
    const auto* result = std::get_if<LocationFill::Result>(&answer);
    // Whoever has gone on to another field is not told here.
    m_failed = !result && hasFocus();
    if (!result)
        return showAnswer();
    if (const std::optional<QString> text = placeText(*result)) {
        m_programmaticText = text;
        setBoundText(*text);
    }
    emit picked(*result);
}

void LocationSearchField::close()
{
    m_showSuggestions = false;
    m_failed = false;
    m_search.cancel();
    m_list->dismiss();
}

void LocationSearchField::abandon()
{
    m_programmaticText.reset();
    close();
    m_search.abandonPick();
}

void LocationSearchField::keyPressEvent(QKeyEvent* event)
{
    const bool closing = event->key() == Qt::Key_Escape && m_list->isVisible();
    if (m_list->handleKey(event)) {
        if (closing)
            close();
        return;
    }
    QBTextField::keyPressEvent(event);
}

void LocationSearchField::focusOutEvent(QFocusEvent* event)
{
    QBTextField::focusOutEvent(event);
    close();
}

}  // namespace Quorbel
