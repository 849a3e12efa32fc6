// The sheet of templates: which there are, what is in the chosen one, and what it makes of the selected photos.
// Thread: the main thread. Shows the model and calls it.
#pragma once

#include "core/templates/Template.h"
#include "ui/sheets/ListSheet.h"

#include <QPointer>

class QVBoxLayout;

namespace Quorbel {

class AppModel;
class ChoicePicker;
class QBButton;
class QBIconButton;
class QBTextField;
class TemplateRow;
class Templates;
class ThemedLabel;
class ThemedMenu;
class WrappedLine;

class TemplatesSheet final : public ListSheet {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TemplatesSheet)

public:
    /// The model must outlive this.
    explicit TemplatesSheet(AppModel& model, QWidget* parent = nullptr);

    QString title() const override;
    /// Fills the photos.
    void confirm() override;
    void cancel() override;
    QWidget* initialFocus() override;

protected:
    void fit() override;

private:
    QList<QBIconButton*> makeButtons();
    QWidget* buildForm();
    QWidget* buildNameLine();
    void placeName();
    QWidget* buildPreviewHead();
    void connectModel();

    const Template* value() const;
    void showTemplate();
    void showRows(const Template& value);
    void showPreview();
    void showButtons();
    void change(const Template& value);
    void changeField(const TemplateField& field);
    void giveTextThePills(TemplateRow* row);
    void addRow(const TemplateField& field, int at);
    void chooseField();
    void addField(const QString& key);
    void step(int by);
    void fillMenu(ThemedMenu* menu);

    AppModel& m_model;
    Templates& m_templates;
    QWidget* m_form = nullptr;
    QWidget* m_nameLine = nullptr;
    WrappedLine* m_problems;
    WrappedLine* m_none;
    QBTextField* m_name;
    ChoicePicker* m_digit;
    QVBoxLayout* m_rows;
    QBButton* m_add;
    ThemedLabel* m_photo;
    QBIconButton* m_before;
    QBIconButton* m_after;
    QVBoxLayout* m_preview;
    WrappedLine* m_status;
    QBButton* m_fill;
    QList<TemplateRow*> m_shown;
    QPointer<TemplateRow> m_focused;
    int m_shownId = 0;
    int m_place = 0;
};

}  // namespace Quorbel
