// The middle column: the form in which the metadata of the selected photos is read and edited, and its footer.
// Thread: the main thread. Keeps no state of its own: it shows AppModel and calls it.
#pragma once

#include <QWidget>

namespace Quorbel {

class AppModel;
class InspectorFooter;
class InspectorForm;
class KeptField;
class MapRenderer;
class PlaceProvider;
class ScrollArea;
class ThemedLabel;
class ThumbnailStore;

class InspectorView final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(InspectorView)

public:
    /// All but the model may be null. Nothing is owned, and everything must outlive this.
    InspectorView(
        AppModel& model, ThumbnailStore* thumbs, PlaceProvider* places, MapRenderer* maps, QWidget* parent = nullptr);

    /// Keeps this many pixels free below the last row, so that the form scrolls clear of what is laid over it.
    void setBottomInset(int pixels);
    /// Which field has the keyboard, and what keeps it there.
    KeptField& keptField() const { return *m_kept; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void connectModel();
    void connectGaps();
    void refresh();
    void refreshInPlace();
    void revealFocus(bool isNew);
    void focusField(const QString& id);

    AppModel& m_model;
    ScrollArea* m_scroll;
    InspectorForm* m_form;
    KeptField* m_kept;  ///< the form's
    ThemedLabel* m_nothing;
    InspectorFooter* m_footer;
};

}  // namespace Quorbel
