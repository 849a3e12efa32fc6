// The section of the inspector's form with the fields that users have named themselves. Thread: the main thread. Shows
// the model; the rows are the form's.
#pragma once

#include "ui/inspector/FormSection.h"

#include <QSet>

namespace Quorbel {

class AppModel;
class FormRows;

/// Hidden while the photos have no such field.
class CustomFieldsSection final : public FormSection {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CustomFieldsSection)

public:
    CustomFieldsSection(const AppModel& model, FormRows& rows, QWidget* parent = nullptr);
    /// Reads the model again. `fresh`: it is about other photos than before.
    void refresh(bool fresh);

signals:
    /// The user added the field with this key.
    void fieldAdded(const QString& key);

private:
    const AppModel& m_model;
    FormRows& m_formRows;
    QSet<QString> m_names;  ///< of the fields on screen
};

}  // namespace Quorbel
