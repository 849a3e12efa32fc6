// The inspector over a model with photos of its own, in a window of its own.
// Thread: the test's.
#pragma once

#include "platform/places/map/MapRenderer.h"
#include "tests/app/model/ModelFixture.h"
#include "ui/controls/keywords/KeywordEditor.h"
#include "ui/controls/RatingEditor.h"
#include "ui/controls/TextFields.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/InspectorFooter.h"
#include "ui/inspector/InspectorForm.h"
#include "ui/inspector/InspectorView.h"

#include <QTest>
#include <QWidget>

namespace Quorbel::Test {

using namespace Qt::StringLiterals;

/// Knows one place, near every point of the northern hemisphere, and answers at once.
class OnePlace final : public PlaceProvider {
public:
    Placemark place{ u"Paradeplatz"_s, u"Zürich"_s, u"Zurich"_s, u"Switzerland"_s, u"CH"_s, { 47.37, 8.54 } };
    PlaceToken suggest(const PlaceQuery& query, PlaceCallback<QList<PlaceSuggestion>> answer) override;
    PlaceToken resolve(const PlaceSuggestion& suggestion, PlaceCallback<Placemark> answer) override;
    PlaceToken reverse(const GeoPoint& point, const QLocale& locale, PlaceCallback<Placemark> answer) override;
    QString attribution() const override { return {}; }
};

/// A plain ground with a river.
class SketchMap final : public MapRenderer {
public:
    PlaceToken render(const MapRequest& request, PlaceCallback<MapImage> answer) override;
};

class InspectorFixture {
public:
    InspectorFixture();
    ~InspectorFixture();

    /// Makes a photo that holds these assignments ("-XMP-dc:Title=…"), written by the real tool.
    QUrl add(const QString& name, const QStringList& assignments) const;
    /// Opens the folder and shows the window at this size; the first photo is selected.
    bool open(QSize size = { 520, 900 });
    /// The window alone.
    bool show(QSize size = { 520, 900 });
    void click(const QString& name, bool shift = false, bool command = false) { photos.click(name, shift, command); }
    /// Lets what the inspector posted to itself happen.
    static void settle();

    AppModel& model() const { return *photos.model; }
    /// By field id, or "custom:" and the name; null when the row is not on screen.
    FieldRow* row(const QString& id) const { return view->findChild<InspectorForm*>()->row(id); }
    /// The first editor of this class in a row; null when the row is not on screen.
    template <typename Editor>
    Editor* editor(const QString& id) const
    {
        const FieldRow* shown = row(id);
        return shown ? shown->findChild<Editor*>() : nullptr;
    }

    ModelFixture photos;
    OnePlace places;
    SketchMap maps;
    std::unique_ptr<QWidget> window;
    InspectorView* view = nullptr;
};

}  // namespace Quorbel::Test
