// The sections of the inspector's form that hold fields of IptcSchema only: each a line until it is unfolded.
// Thread: the main thread. Shows the model; the rows are the form's.
#pragma once

#include "app/model/iptc/SelectedHolders.h"
#include "core/schema/FieldSpec.h"

#include <QMap>
#include <QSet>
#include <QWidget>

#include <functional>

class QVBoxLayout;

namespace Quorbel {

class AppModel;
class FieldRow;
class FoldingSection;

class IptcSections final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IptcSections)

public:
    /// The rows of these fields with what they show now, further languages among them.
    using Rows = std::function<QList<FieldRow*>(const QStringList& ids, bool fresh)>;

    IptcSections(AppModel& model, Rows rows, QWidget* parent = nullptr);
    /// Reads the model again; `fresh`: of another photo. A section that was never on screen is not made before it has a
    /// field there, and its rows not before it is unfolded.
    void refresh(bool fresh);
    /// Unfolds the section of this field, if it is one of these and folded, and says so with changed().
    void reveal(const QString& id);
    QList<QWidget*> tabStops() const;
    /// As InspectorStates::heldText().
    QString heldText(const QString& id) const;

signals:
    /// A section is to be folded or unfolded: the form is to be shown again.
    void changed();

private:
    FoldingSection* make(FieldSection section);
    void setOpen(FieldSection section, bool open);

    AppModel& m_model;
    Rows m_rows;
    SelectedHolders m_holders;
    QVBoxLayout* m_column;
    QMap<FieldSection, FoldingSection*> m_sections;
    QSet<FieldSection> m_open;  ///< stay so from one photo to the next
};

}  // namespace Quorbel
