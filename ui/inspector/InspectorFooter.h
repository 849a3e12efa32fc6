// The bar under the inspector's form: what is unsaved, and the buttons.
// Thread: the main thread. Shows the model and calls it.
#pragma once

#include <QWidget>

class QBoxLayout;

namespace Quorbel {

class AppModel;
class NoticeLine;
class QBButton;
class TwoLineLabel;

class InspectorFooter final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(InspectorFooter)

public:
    /// The model must outlive this.
    explicit InspectorFooter(AppModel& model, QWidget* parent = nullptr);
    /// Reads the model again. Without a photo to edit the bar stays empty.
    void refresh(bool hasPhoto);
    /// In pixels, of a footer this many pixels wide: a narrow one has its text above the buttons.
    static int heightFor(int width);
    /// From the left.
    QList<QWidget*> tabStops() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange();
    void bringBack();

    AppModel& m_model;
    QBoxLayout* m_line;
    TwoLineLabel* m_unsaved;
    NoticeLine* m_left;
    QBButton* m_rename;
    QBButton* m_add;
    QBButton* m_save;
};

}  // namespace Quorbel
