// The settings window: every preference of the model, in groups. Thread: the main thread.
// Each control shows its preference and writes it at once; there is nothing to apply.
#pragma once

#include "core/language/Languages.h"
#include "ui/window/SideWindow.h"

class QVBoxLayout;

namespace Quorbel {

class AppModel;
template <typename T>
class Setting;

class SettingsView final : public SideWindow {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SettingsView)

public:
    /// `languages`: those that can be chosen.
    SettingsView(AppModel& model, QList<Languages::Language> languages, QWidget* parent = nullptr);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void addDisplay(QVBoxLayout* column);
    void addSaving(QVBoxLayout* column);
    void addRenaming(QVBoxLayout* column);
    void addRawFiles(QVBoxLayout* column);
    void addPlaces(QVBoxLayout* column);
    void addCodes(QVBoxLayout* column);
    QWidget* appearancePicker();
    QWidget* languagePicker();
    QWidget* homeRow(const QString& name, Setting<bool>& isBeside, const QString& inside, const QString& beside);
    QWidget* namingRow();
    QWidget* patternField();
    QWidget* placeServiceField();
    QWidget* toggle(const QString& name, Setting<bool>& setting);

    AppModel& m_model;
    QList<Languages::Language> m_languages;
};

}  // namespace Quorbel
