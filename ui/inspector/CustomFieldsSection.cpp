#include "ui/inspector/CustomFieldsSection.h"

#include "app/model/AppModel.h"
#include "core/language/Texts.h"
#include "core/schema/CustomFields.h"
#include "ui/inspector/FieldRow.h"
#include "ui/inspector/FormRows.h"
#include "ui/inspector/InspectorStates.h"

namespace Quorbel {

CustomFieldsSection::CustomFieldsSection(const AppModel& model, FormRows& rows, QWidget* parent)
    //: Heads the fields that users have named themselves, in capitals.
    : FormSection(Texts::tr("CUSTOM"), {}, parent)
    , m_model(model)
    , m_formRows(rows)
{
}

void CustomFieldsSection::refresh(bool fresh)
{
    QList<FieldRow*> rows;
    QSet<QString> names;
    const QList<CustomValue> customs = m_model.visibleCustomFields();
    for (const CustomValue& custom : customs) {
        FieldRow* row = m_formRows.of(custom);
        row->setState(InspectorStates::customRow(m_model, custom), fresh);
        rows.append(row);
        names.insert(custom.name);
        // One that is edited as it appears is the user's; others may come from another program.
        if (!fresh && row->state().edited && !m_names.contains(custom.name))
            emit fieldAdded(CustomFields::key(custom.name));
    }
    m_names = names;
    setRows(rows);
    setVisible(!rows.isEmpty());
}

}  // namespace Quorbel
